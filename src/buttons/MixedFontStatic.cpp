#include <afxwin.h>

#include "buttons/MixedFontStatic.h"

#include "buttons/MixedFontText.h"
#include "module/GdiScope.h"
#include "module/KeptText.h"

#include <MixedFont.h>

#include <vector>

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

// The system's control does not hear of what makes it paint by itself: it would show the caption with its
// mark-up.
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
    std::vector<wchar_t> text(DefWindowProc(WM_GETTEXTLENGTH, 0, 0) + 1);
    DefWindowProc(WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    SetTitle(text.data());
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
    const CPoint at(TextLeft(rect.Width() - text.cx), 0);
    gfnBeginMixedFontText(dc, *this, CRect(at, text), m_bTextDirty, m_rectLastText);
    CMixedFont::TextOutW(&dc, at, m_strTitle);
}

int CMixedFontStatic::TextLeft(int nRoom) const
{
    switch (GetStyle() & SS_TYPEMASK)
    {
    case SS_RIGHT:
        return nRoom;
    case SS_CENTER:
        return nRoom / 2;
    default:
        return 0;
    }
}
