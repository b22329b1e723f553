#include <afxwin.h>

#include "DlgPage/PageGradientCaptionStatic.h"

#include "DlgPage/GradientFill.h"
#include "DlgPage/Page.h"
#include "module/GdiScope.h"
#include "module/KeptText.h"

#include <cmath>

IMPLEMENT_DYNAMIC(CPageGradientCaptionStatic, CStatic)

CPageGradientCaptionStatic::CPageGradientCaptionStatic(ACurrentPageProvider& provider)
    : currentPageProvider(provider)
{
}

CPageGradientCaptionStatic::~CPageGradientCaptionStatic() = default;

BEGIN_MESSAGE_MAP(CPageGradientCaptionStatic, CStatic)
    ON_WM_PAINT()
END_MESSAGE_MAP()

LRESULT CPageGradientCaptionStatic::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_SETTEXT:
        return SetTitle(reinterpret_cast<const wchar_t*>(lParam));
    case WM_GETTEXT:
        return gfnCopyKeptText(title, reinterpret_cast<wchar_t*>(lParam), wParam);
    case WM_GETTEXTLENGTH:
        return title.GetLength();
    default:
        return CStatic::WindowProc(message, wParam, lParam);
    }
}

void CPageGradientCaptionStatic::OnPaint()
{
    CPaintDC dc(this);
    DrawCachedBitmap(&dc);

    CRect rect;
    GetClientRect(rect);
    CDC dcText;
    dcText.CreateCompatibleDC(&dc);
    const CGdiSelection selection(dcText, textBitmap);
    dc.BitBlt(0, 0, rect.Width(), rect.Height(), &dcText, 0, 0, SRCCOPY);
}

void CPageGradientCaptionStatic::PageSelected(CPage* pNew, CPage*)
{
    SetWindowText(pNew ? pNew->GetTreeItemName() : CString());
}

LRESULT CPageGradientCaptionStatic::SetTitle(const wchar_t* pszText)
{
    title.Format(L"%s", pszText ? pszText : L"");
    titleChanged = 1;
    Invalidate(FALSE);
    return TRUE;
}

void CPageGradientCaptionStatic::DrawCachedBitmap(CDC* pDC)
{
    if (!gradientBitmap.GetSafeHandle())
        DrawGradientBitmap(*pDC);
    if (titleChanged || !textBitmap.GetSafeHandle())
        DrawTextBitmap(*pDC);
}

void CPageGradientCaptionStatic::DrawGradientBitmap(CDC& dc)
{
    CRect rect;
    GetClientRect(rect);
    gradientBitmap.CreateCompatibleBitmap(&dc, rect.Width(), rect.Height());
    CDC dcGradient;
    dcGradient.CreateCompatibleDC(&dc);
    const CGdiSelection selection(dcGradient, gradientBitmap);
    gfnFillGradient(dcGradient, rect, gradientColor);
}

void CPageGradientCaptionStatic::DrawTextBitmap(CDC& dc)
{
    CRect rect;
    GetClientRect(rect);
    textBitmap.DeleteObject();
    textBitmap.CreateCompatibleBitmap(&dc, rect.Width(), rect.Height());
    CDC dcText, dcGradient;
    dcText.CreateCompatibleDC(&dc);
    dcGradient.CreateCompatibleDC(&dc);
    const CGdiSelection text(dcText, textBitmap);
    const CGdiSelection gradient(dcGradient, gradientBitmap);
    dcText.BitBlt(0, 0, rect.Width(), rect.Height(), &dcGradient, 0, 0, SRCCOPY);
    DrawTitle(dcText, rect);
    titleChanged = 0;
}

void CPageGradientCaptionStatic::DrawTitle(CDC& dc, CRect rect)
{
    CFont font;
    CreateTitleFont(font);
    const CGdiSelection selection(dc, font);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(::GetSysColor(COLOR_BTNFACE));
    dc.DrawText(L" " + title, rect, DT_SINGLELINE | DT_VCENTER); // the blank is the text's margin
}

void CPageGradientCaptionStatic::CreateTitleFont(CFont& font) const
{
    constexpr double kLarger = 1.2;
    HGDIOBJ hFont = reinterpret_cast<HFONT>(::SendMessage(::GetParent(m_hWnd), WM_GETFONT, 0, 0));
    if (!hFont)
        hFont = ::GetStockObject(SYSTEM_FONT); // what a window without a font draws with
    LOGFONTW description{};
    ::GetObjectW(hFont, sizeof(description), &description);
    description.lfHeight = static_cast<LONG>(std::floor(description.lfHeight * kLarger + 0.5));
    description.lfWeight = FW_BOLD;
    font.CreateFontIndirect(&description);
}
