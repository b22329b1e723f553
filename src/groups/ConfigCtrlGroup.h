#pragma once
// A combo box and two buttons to choose, save and delete named configurations of what a dialog edits.
//
// ```cpp
//     class CBoltDialog : public CDialog, public AConfigCtrlGroupNotificationHandler
//     {
//         CPatternSet m_set;                                            // an AConfigSet
//         CConfigCtrlGroup m_configs{IDC_CONFIGS, IDC_SAVE, IDC_DELETE, &m_set, this};
//         void DoDataExchange(CDataExchange* pDX) override { m_configs.DoDataExchange(pDX); }
//         BOOL OnInitDialog() override { CDialog::OnInitDialog(); return m_configs.OnInitDialog(); }
//         void OnConfigGroupChanged(CConfigCtrlGroup*) override { ShowValues(); }
//         void OnValueChanged() { m_configs.Refresh(); }                // a value is no longer as stored
//     };
// ```
//
// The group holds no configurations: it asks the caller's AConfigSet. The first row of the combo box is
// "Default", which nobody can delete or overwrite, and row n + 1 is entry n of the set. The combo box must be
// a CBS_DROPDOWNLIST.
//
// Choose. The entry becomes current, the handler is told, and the combo box keeps the focus.
//
// Save. Asks for a name, beginning with that of the current entry. "Default" is refused, an existing name is
// overwritten if the user agrees; after a refusal the question comes again, with the name that it began with.
// No other check is made of the name. The handler is not told, as no value has changed.
//
// Delete. Asks first; then the entry goes, the set's next one is shown, and the handler is told.
//
// List. It is filled in OnInitDialog, and follows what this group saves and deletes. Entries that the set
// gains or loses by other means show when the dialog opens the next time; until then rows and entries may be
// out of step: a row is taken for the entry of its number, and an entry without a row shows as none.
//
// Without a set the combo box has "Default" alone, and the buttons do nothing. Set and handler are not owned,
// and must outlive the group. Texts are shown through gOtLang.

#include <afxwin.h>

#include "buttons/ButtonST.h"
#include "combos/ExtComboBox.h"
#include "groups/ConfigSet.h"
#include "module/Export.h"
#include "module/NotificationInterfaces.h"

class OW_DIALOGCONTROLS_API CConfigCtrlGroup : public AButtonSTNotificationHandler,
                                               public AExtComboBoxNotificationHandler
{
public:
    CConfigCtrlGroup(UINT nComboId, UINT nSaveId, UINT nDeleteId, AConfigSet* pSet,
                     AConfigCtrlGroupNotificationHandler* pHandler);
    CConfigCtrlGroup(const CConfigCtrlGroup&) = delete;
    CConfigCtrlGroup& operator=(const CConfigCtrlGroup&) = delete;

    /// Binds the three controls. Throws CNotSupportedException if the dialog lacks one of them, as
    /// DDX_Control does.
    void DoDataExchange(CDataExchange* pDX);

    /// Fills the combo box; to be called after the dialog's base operation. Always 1.
    int OnInitDialog();

    /// Shows the set's current entry, or none if the values differ from it. Without a window it does nothing.
    void Refresh();

    // What the controls tell
    void OnButtonClicked(int nId) override;
    void OnExtComboBoxSelChanged(int nId, int nSel) override;

private:
    void ShowCurrent();
    void SelectRow(int nRow);
    void Save();
    bool AskName(CString& strName);
    bool Store(const CString& strName);
    void Delete();
    void TellChanged();

    AConfigCtrlGroupNotificationHandler* m_pHandler;
    AConfigSet* m_pConfigSet; ///< may be null
    UINT m_nComboId;
    UINT m_nSaveId;
    UINT m_nDeleteId;
    CExtComboBox m_combo;
    CButtonST m_btnSave;
    CButtonST m_btnDelete;
};
