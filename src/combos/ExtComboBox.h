#pragma once
// The combo box of most dialogs: tells a handler of each change of selection, treats Tab, Enter and Escape as
// the text boxes do, and opens a list in which the longest entry can be read.
//
// ```cpp
//     class CSteelDialog : public CDialog, public AExtComboBoxNotificationHandler
//     {
//         CExtComboBox m_comboGrade{this};
//         void DoDataExchange(CDataExchange* pDX) override { DDX_Control(pDX, IDC_GRADE, m_comboGrade); }
//         void OnExtComboBoxSelChanged(int nId, int nSel) override { if (nId == IDC_GRADE) SetGrade(nSel); }
//     };
// ```
//
// Reports. Each selection that the user makes is reported, by mouse, or by the arrow keys in the closed list
// at every step; SetCurSel is silent. The parent receives neither CBN_SELCHANGE nor CBN_DROPDOWN. Without a
// handler the control is silent.
//
// Keys. Tab and Enter move the focus to the next control and Shift+Tab to the one before, so Enter does not
// press the dialog's default button; Escape sends IDCANCEL to the parent. An open list makes no difference.
// This goes for CBS_DROPDOWNLIST: in the other kinds the edit part has the focus, and the three keys are the
// dialog's.
//
// Width. Each time the list opens, it grows to its longest entry, in the control's font. It never becomes
// narrower again, and the control itself keeps its width.

#include <afxwin.h>

#include "module/Export.h"
#include "module/NotificationInterfaces.h"

class OW_DIALOGCONTROLS_API CExtComboBox : public CComboBox
{
    DECLARE_DYNAMIC(CExtComboBox)

public:
    /// The handler is not owned, may be null, and must outlive the combo box.
    explicit CExtComboBox(AExtComboBoxNotificationHandler* pHandler = nullptr);

protected:
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSelChange();
    afx_msg void OnDropDown();
    DECLARE_MESSAGE_MAP()

private:
    AExtComboBoxNotificationHandler* m_pHandler;
};
