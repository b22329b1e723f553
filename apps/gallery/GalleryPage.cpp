#include <afxwin.h>

#include "GalleryPage.h"

#include "module/MemorySurface.h"

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

void PaintInMemory(const DRAWITEMSTRUCT& item, const std::function<void(CDC& dc, const CRect& area)>& paint)
{
    CDC& dc = *CDC::FromHandle(item.hDC);
    const CRect area(item.rcItem);
    ow::CMemorySurface surface;
    if (!surface.Create(dc, area.Size()))
        return;
    paint(surface.DC(), CRect(CPoint(0, 0), area.Size()));
    dc.BitBlt(area.left, area.top, area.Width(), area.Height(), &surface.DC(), 0, 0, SRCCOPY);
}

CPage* AddTitledPage(AGalleryHost& host, CGalleryPage* pDialog, LPCTSTR pszTitle, CPage* pParent)
{
    host.AddDialog(pDialog);
    return host.AddPage(new CTitledPage(pszTitle, pDialog), pParent);
}
