#pragma once
// The radio buttons of a dialog that belong together, as one object: the choice is an index.
//
// ```cpp
//     class CCoatingDialog : public CDialog, public AButtonSTNotificationHandler
//     {
//         CRadioGroup m_coating{nullptr, 0};
//         int m_nCoating = 0;
//         BOOL OnInitDialog() override
//         {
//             CDialog::OnInitDialog();
//             m_coating.Set(this, IDC_COATING_NONE);        // the first of them; the others are found
//             m_coating.SetOption(m_nCoating);
//             return TRUE;
//         }
//         void OnButtonClicked(int nId) override { m_nCoating = m_coating.GetOption(); }
//     };
// ```
//
// Which controls. The group begins with the given control and goes on with those that follow it in the dialog
// group (WS_GROUP) and are no tab stop of their own (WS_TABSTOP). It ends before
// - the next tab stop behind the group's own,
// - a label (window class "Static"), or a control without an id (IDC_STATIC),
// - a control whose id the group has already: it has wrapped round, or the id was given twice.
// The tab stop may have moved on to a checked button: the group is found all the same. Hidden and disabled
// controls are passed over, except for the first, as the dialog's own keys pass them over. Wanted: a first
// control that is the only tab stop of its dialog gives an empty group.
//
// The ids of a group should run upwards in the order of the dialog with no other control's id in between, as
// always with radio buttons: GetOption and SetOption work on all ids from the first to the last.
//
// Reports. On each click of a member no other member stays checked, hidden and disabled ones included; then the
// handler is told, with the member's id. SetOption is silent. At first the handler is the dialog, if its
// class implements AButtonSTNotificationHandler. A control that has an object of its own already (by
// DDX_Control, or in another group) keeps it, and its clicks do not come here.
//
// Ownership. Neither the dialog nor the handler is owned; both must outlive the group, or be taken from it by
// Empty or by SetNotificationHandler(nullptr). The dialog's window may go before: from then on the group does
// nothing, and no option is checked. The group owns the objects of its buttons and not their windows, which
// stay in the dialog, usable, when the group is emptied, set anew, assigned to or destroyed. None of that may
// happen within a click of a member.
//
// A copy has the same dialog, handler and ids. It shows and changes the same buttons, and hears no clicks.

#include <afxwin.h>
#include <afxtempl.h>

#include "buttons/ExtButton.h"
#include "module/Export.h"
#include "module/NotificationInterfaces.h"
#include "module/OCArray.h"

class OW_DIALOGCONTROLS_API CRadioGroup : public AButtonSTNotificationHandler
{
public:
    CRadioGroup(CDialog* pDlg, int nFirstId);
    CRadioGroup(const CRadioGroup& other);
    CRadioGroup& operator=(const CRadioGroup& other);
    ~CRadioGroup() override;

    /// By GetUniqueId alone: all empty groups are equal.
    bool operator==(const CRadioGroup& other) const;
    bool operator!=(const CRadioGroup& other) const;

    /// Finds the group anew, and makes the dialog its handler. The group is empty afterwards with no dialog,
    /// with no window of it, with the id 0, and with an id that the dialog lacks.
    void Set(CDialog* pDlg, int nFirstId);
    /// Forgets dialog, handler and controls.
    void Empty();

    /// Null silences the group.
    void SetNotificationHandler(AButtonSTNotificationHandler* pHandler);

    /// The id of the first control; 0 for an empty group.
    int GetUniqueId() const;
    /// How many controls the group has.
    int Count() const;
    /// The index of a control's id; -1 if it is no member.
    int Find(int nId) const;

    /// The index of the checked button; -1 if there is none.
    int GetOption() const;
    /// Checks one button and clears the others; an index that is none clears all.
    void SetOption(int nOption);

    /// Shows or hides all controls.
    void Show(bool bShow);
    /// Enables or disables all controls.
    void Enable(bool bEnable);

protected:
    void OnButtonClicked(int nId) override;

private:
    void ClearOthers(int nId) const;
    bool HasControls() const;
    void CollectIds(CWnd& first);
    void BindButtons();
    void ReleaseButtons();
    int FirstId() const { return m_arrIds[0]; }
    int LastId() const { return m_arrIds[m_arrIds.GetUpperBound()]; }
    template <class Function>
    void ForEachControl(Function function) const;

    CArray<int, int> m_arrIds;        ///< in the order of the dialog
    OCArray<CExtButton> m_arrButtons; ///< one for each id; sized from empty only, as they must not move
    AButtonSTNotificationHandler* m_pHandler = nullptr;
    CDialog* m_pDialog = nullptr;
};
