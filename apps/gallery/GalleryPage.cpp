#include <afxwin.h>

#include "GalleryPage.h"

#include "GalleryHostDialog.h"
#include "resource.h"

#include "module/MemorySurface.h"

CGalleryPageDialog::CGalleryPageDialog(UINT nTemplateId, CGalleryHostDialog& host)
    : CPageDialog(nTemplateId, &host), m_host(host)
{
}

BOOL CGalleryPageDialog::OnInitDialog()
{
    gOtLang.TranslateDialog(this); // before the controls are bound and filled
    SetWindowPos(m_host.GetDlgItem(IDC_PAGE_FRAME), 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    return CPageDialog::OnInitDialog();
}

void CGalleryPageDialog::Log(LPCTSTR pszControl, LPCTSTR pszFormat, ...)
{
    va_list arguments;
    va_start(arguments, pszFormat);
    CString strCall;
    strCall.FormatV(gOtLang.Do(pszFormat), arguments);
    va_end(arguments);
    m_host.Write(gOtLang.Do(pszControl), strCall);
}

BOOL CGalleryPageDialog::PreTranslateMessage(MSG* pMsg)
{
    return m_host.GoByKey(*pMsg) || CPageDialog::PreTranslateMessage(pMsg);
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
