#include <afxwin.h>

#include "combos/ExtComboBox.h"

#include "combos/DropWidth.h"
#include "module/DialogKeys.h"

IMPLEMENT_DYNAMIC(CExtComboBox, CComboBox)

CExtComboBox::CExtComboBox(AExtComboBoxNotificationHandler* pHandler) : m_pHandler(pHandler)
{
}

BEGIN_MESSAGE_MAP(CExtComboBox, CComboBox)
    ON_WM_GETDLGCODE()
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
    ON_CONTROL_REFLECT(CBN_SELCHANGE, &CExtComboBox::OnSelChange)
    ON_CONTROL_REFLECT(CBN_DROPDOWN, &CExtComboBox::OnDropDown)
END_MESSAGE_MAP()

// Without DLGC_WANTALLKEYS the dialog would take Tab, Enter and Escape before the combo box sees them.
UINT CExtComboBox::OnGetDlgCode()
{
    return CComboBox::OnGetDlgCode() | DLGC_WANTALLKEYS;
}

// Wanted: whether the list is open is not asked.
void CExtComboBox::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (!gfnHandleDialogKey(*this, nChar))
        CComboBox::OnKeyDown(nChar, nRepCnt, nFlags);
}

void CExtComboBox::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (!gfnIsDialogKeyChar(nChar))
        CComboBox::OnChar(nChar, nRepCnt, nFlags);
}

void CExtComboBox::OnSelChange()
{
    if (m_pHandler)
        m_pHandler->OnExtComboBoxSelChanged(GetDlgCtrlID(), GetCurSel());
}

void CExtComboBox::OnDropDown()
{
    gfnGrowDropWidth(*this);
}
