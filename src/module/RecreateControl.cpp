#include <afxwin.h>

#include "module/RecreateControl.h"

void gfnRecreateControl(CWnd& control, DWORD dwStyle, const CRect& rect)
{
    CWnd* pParent = control.GetParent();
    CFont* pFont = control.GetFont();
    const DWORD dwExStyle = control.GetExStyle();
    const int nId = control.GetDlgCtrlID();
    TCHAR szClass[64] = _T("");
    ::GetClassName(control.m_hWnd, szClass, _countof(szClass));
    CString strText;
    control.GetWindowText(strText);

    control.DestroyWindow();
    control.CreateEx(dwExStyle, szClass, _T(""), dwStyle, rect, pParent, nId);
    control.SetFont(pFont);
    control.SetWindowText(strText);
}
