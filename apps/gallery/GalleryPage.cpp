#include <afxwin.h>

#include "GalleryPage.h"

CGalleryPage::CGalleryPage(UINT nTemplateId, LPCTSTR pszTitle, AGalleryLog& log)
    : m_nTemplateId(nTemplateId), m_pszTitle(pszTitle), m_log(log)
{
}

bool CGalleryPage::CreateIn(CWnd& host, const CRect& frame)
{
    if (!Create(m_nTemplateId, &host))
        return false;
    MoveWindow(frame);
    return true;
}

void CGalleryPage::Log(LPCTSTR pszControl, LPCTSTR pszFormat, ...)
{
    va_list arguments;
    va_start(arguments, pszFormat);
    CString strCall;
    strCall.FormatV(pszFormat, arguments);
    va_end(arguments);
    m_log.Write(CString(pszControl) + _T("   ") + strCall);
}

// Escape inside a page means the host, as if the page's controls were its own.
void CGalleryPage::OnCancel()
{
    GetParent()->PostMessage(WM_COMMAND, IDCANCEL);
}
