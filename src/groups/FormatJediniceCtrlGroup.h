#pragma once
// A combo box of length units, a check button and a box for a whole number, which together edit a
// CFormatJedinice: how a length is written.
//
// ```cpp
//     class CDimensionDialog : public CDialog, public AFormatJediniceCtrlGroupNotificationHandler
//     {
//         CFormatJedinice m_format;
//         CFormatJediniceCtrlGroup m_group{IDC_UNIT, IDC_WITH_UNIT, IDC_DECIMALS, this};
//         void DoDataExchange(CDataExchange* pDX) override { m_group.DoDataExchange(pDX); }
//         BOOL OnInitDialog() override
//         {
//             CDialog::OnInitDialog();
//             m_group.SetFormatSource(&m_format);
//             m_group.Update(true, true);                    // record to controls
//             return TRUE;
//         }
//         void OnFormatGroupChanged(CFormatJediniceCtrlGroup*, CFormatJedinice*, int nSource) override
//         {
//             Redraw();
//         }
//     };
// ```
//
// In the dialog template the combo box is a CBS_DROPDOWNLIST: its six entries are the units by number, m, cm,
// mm, dm, in and ft, sorted or not. The edit takes 0 to 15. The button is a BS_AUTOCHECKBOX, or a BS_3STATE
// where a selection of objects may have no common value: only that one can show it. A click takes it from
// indeterminate to on, and never back.
//
// Reports. A change by the user is stored in the record first, and the handler is called then, with its
// source, an ESource. Where the record lags behind the controls, at the button and while typing, GetCtrlState
// answers what the user sees. Without a record nothing is stored and nobody is called. What the program sets
// is not reported.
//
// Ownership. Neither the record nor the handler is owned. Both must outlive the group, or be taken away: the
// record by SetFormatSource(nullptr). Without the controls' windows, before the dialog is there or after it,
// operations on the controls do nothing, and records stay as they are.

#include <afxwin.h>

#include <FormatJedinice.h>

#include "buttons/ExtButton.h"
#include "combos/ExtComboBox.h"
#include "edits/EditIntegerWithRange.h"
#include "module/Export.h"
#include "module/NotificationInterfaces.h"

class OW_DIALOGCONTROLS_API CFormatJediniceCtrlGroup : public AExtComboBoxNotificationHandler,
                                                       public CEditNNotificationHandler,
                                                       public AButtonSTNotificationHandler
{
public:
    /// Where a change came from: the `nSource` of OnFormatGroupChanged.
    enum ESource
    {
        eSourceCombo = 0,  ///< nUnitIndex is stored
        eSourceButton = 1, ///< nCheckFlag is stored. Wanted: with BS_3STATE it is the state before the click
        eSourceTyping = 2, ///< in the edit; nothing is stored yet
        eSourceEditLeft = 3, ///< nEditValue is stored, whether or not it was typed in
    };

    /// The handler may be null.
    CFormatJediniceCtrlGroup(int nComboId, int nButtonId, int nEditId,
                             AFormatJediniceCtrlGroupNotificationHandler* pHandler);
    ~CFormatJediniceCtrlGroup() override;
    CFormatJediniceCtrlGroup(const CFormatJediniceCtrlGroup&) = delete;
    CFormatJediniceCtrlGroup& operator=(const CFormatJediniceCtrlGroup&) = delete;

    /// Binds the three controls. Throws CNotSupportedException if the dialog lacks one of them, as
    /// DDX_Control does. A dialog that opens again finds the units of its record listed; without a record the
    /// list is left alone.
    void DoDataExchange(CDataExchange* pDX);

    /// The record to edit; null for none, which empties the combo box. Lists the units and selects the
    /// record's; the other two controls are left to Update.
    void SetFormatSource(CFormatJedinice* pFormat);

    /// Does nothing without a record. To the controls: shows the record, or with `bCommon` false that there
    /// is no common value: no unit, an indeterminate button, an empty edit. From the controls, whatever
    /// `bCommon` is: all three fields are stored. No unit chosen gives the millimetre, which is then chosen;
    /// an indeterminate button counts as on; an empty edit gives its last number.
    void Update(bool bToControls, bool bCommon);

    /// Shows a format, the record aside. An index that is no unit shows none; a number that the edit does not
    /// take shows as the nearest that it does.
    void SetCtrlState(const CFormatJedinice& format);
    /// What the controls show, read as by Update, but for no unit chosen, which is -1. A new record without
    /// windows.
    CFormatJedinice GetCtrlState();

    /// Enables or disables the controls.
    void Enable(int bEnable);
    /// Shows and enables the controls, or hides and disables them.
    void Display(int bShow);

    void OnExtComboBoxSelChanged(int nId, int nSel) override;
    void OnButtonClicked(int nId) override;
    void OnEditNChange(int nId) override;
    void OnEditNKillFocus(int nId) override;

private:
    bool HasWindows() const;
    void ListUnits();
    void SelectUnit(int nUnit);
    void ShowNoCommonValue();
    void StoreControls();
    void Report(ESource eSource);
    template <class Function>
    void ForEachControl(Function function);

    int m_nComboId;
    int m_nButtonId;
    int m_nEditId;
    CExtComboBox m_combo;
    CExtButton m_button;
    CEditIntegerWithRange m_edit;
    CFormatJedinice* m_pFormat = nullptr;
    AFormatJediniceCtrlGroupNotificationHandler* m_pHandler;
};
