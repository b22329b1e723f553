#include <afxwin.h>

#include "buttons/MixedFontStatic.h"

#include "buttons/MixedFontText.h"
#include "module/GdiScope.h"
#include "module/KeptText.h"

#include <MixedFont.h>

IMPLEMENT_DYNCREATE(CMixedFontStatic, CStatic)

CMixedFontStatic::CMixedFontStatic() = default;

BEGIN_MESSAGE_MAP(CMixedFontStatic, CStatic)
    ON_WM_PAINT()
END_MESSAGE_MAP()

void CMixedFontStatic::OnPaint()
{
    CPaintDC dc(this);
    Paint(dc);
}

// ---- Messages outside the map -----------------------------------------------------------------------------

void CMixedFontStatic::PreSubclassWindow()
{
    CStatic::PreSubclassWindow();
    TakeOverTitle();
}

// The system's control does not hear of what makes it paint by itself: it would show the caption with its mark-up.
LRESULT CMixedFontStatic::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_SETTEXT:
        return SetTitle(reinterpret_cast<const wchar_t*>(lParam));
    case WM_GETTEXT:
        return gfnCopyKeptText(m_strTitle, reinterpret_cast<wchar_t*>(lParam), wParam);
    case WM_GETTEXTLENGTH:
        return m_strTitle.GetLength();
    case WM_CREATE: // a window that is made for this object had no text yet when it was taken over
        TakeOverTitle();
        return CStatic::WindowProc(message, wParam, lParam);
    case WM_ENABLE: // looks the same
        return 0;
    case WM_ERASEBKGND:
        return Erase(*CDC::FromHandle(reinterpret_cast<HDC>(wParam)));
    case WM_PRINTCLIENT:
        UpdateWindow(); // what is to be wiped is wiped on the screen
        Paint(*CDC::FromHandle(reinterpret_cast<HDC>(wParam)));
        return 0;
    default:
        return CStatic::WindowProc(message, wParam, lParam);
    }
}

/// Asks the window, as if there were no text here.
void CMixedFontStatic::TakeOverTitle()
{
    const int nLength = static_cast<int>(DefWindowProc(WM_GETTEXTLENGTH, 0, 0));
    CString strText;
    DefWindowProc(WM_GETTEXT, nLength + 1, reinterpret_cast<LPARAM>(strText.GetBuffer(nLength)));
    strText.ReleaseBuffer();
    SetTitle(strText);
}

LRESULT CMixedFontStatic::SetTitle(const wchar_t* pszText)
{
    m_strTitle = pszText;
    m_bTextDirty = TRUE;
    Invalidate(FALSE);
    return TRUE;
}

/// The ground outside the text; a parent that clips its children leaves it to them.
LRESULT CMixedFontStatic::Erase(CDC& dc) const
{
    CRect rect;
    GetClientRect(rect);
    if (!gfnIsTransparent(*this))
        ::FillRect(dc, rect, ::GetSysColorBrush(COLOR_BTNFACE));
    return TRUE;
}

// ---- Painting ---------------------------------------------------------------------------------------------

void CMixedFontStatic::Paint(CDC& dc)
{
    CRect rect;
    GetClientRect(rect);
    const CSavedDC saved(dc);
    gfnSelectParentFont(dc, *this);
    const CSize text = CMixedFont::GetTextExtent(&dc, m_strTitle);
    const CPoint at(TextLeft(rect, text.cx), rect.top);
    gfnBeginMixedFontText(dc, *this, CRect(at, text), m_bTextDirty, m_rectLastText);
    CMixedFont::TextOutW(&dc, at, m_strTitle);
}

int CMixedFontStatic::TextLeft(const CRect& rect, int nTextWidth) const
{
    switch (GetStyle() & SS_TYPEMASK)
    {
    case SS_RIGHT:
        return rect.right - nTextWidth;
    case SS_CENTER:
        return rect.left + (rect.Width() - nTextWidth) / 2;
    default:
        return rect.left;
    }
}
