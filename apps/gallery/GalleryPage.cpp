#include <afxwin.h>

#include "GalleryPage.h"

void CGalleryPage::Log(LPCTSTR pszControl, LPCTSTR pszFormat, ...)
{
    va_list arguments;
    va_start(arguments, pszFormat);
    CString strCall;
    strCall.FormatV(pszFormat, arguments);
    va_end(arguments);
    m_host.Write(pszControl, strCall);
}

BOOL CGalleryPage::PreTranslateMessage(MSG* pMsg)
{
    if (pMsg->message != WM_KEYDOWN || pMsg->wParam != VK_F6)
        return CPageDialog::PreTranslateMessage(pMsg);
    const bool bBack = ::GetKeyState(VK_SHIFT) < 0;
    CDialog& host = m_host.Window();
    host.GotoDlgCtrl(host.GetNextDlgTabItem(bBack ? GetWindow(GW_HWNDPREV) : GetWindow(GW_HWNDNEXT), bBack));
    return TRUE;
}

CPage::EPageID CTitledPage::NextID()
{
    static int s_nLast = 0;
    return static_cast<EPageID>(++s_nLast);
}

CPage* AddTitledPage(AGalleryHost& host, CGalleryPage* pDialog, LPCTSTR pszTitle, CPage* pParent)
{
    host.AddDialog(pDialog);
    return host.AddPage(new CTitledPage(pszTitle, pDialog), pParent);
}
