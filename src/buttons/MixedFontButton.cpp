#include <afxwin.h>

#include "buttons/MixedFontButton.h"

#include "buttons/MixedFontText.h"
#include "module/GdiScope.h"

#include <MixedFont.h>

namespace
{
constexpr int kBox = 13;     ///< width and height of the box
constexpr int kBoxGap = 7;   ///< between box and text
constexpr int kBoxRoom = 20; ///< box and gap

enum class Where
{
    nearEnd, ///< left or top
    middle,
    farEnd ///< right or bottom
};

Where Across(DWORD style)
{
    const DWORD bits = style & BS_CENTER;
    return bits == BS_RIGHT ? Where::farEnd : bits == BS_CENTER ? Where::middle : Where::nearEnd;
}

Where Down(DWORD style)
{
    const DWORD bits = style & BS_VCENTER;
    return bits == BS_TOP ? Where::nearEnd : bits == BS_BOTTOM ? Where::farEnd : Where::middle;
}

int BoxX(bool bLeftText, const CRect& rect)
{
    return bLeftText ? rect.right - kBox : rect.left;
}

int TextX(Where where, bool bLeftText, const CRect& rect, int nTextWidth)
{
    switch (where)
    {
    case Where::farEnd:
        return bLeftText ? BoxX(true, rect) - nTextWidth - kBoxGap : rect.right - nTextWidth - 1;
    case Where::middle:
        if (bLeftText) // wanted: the text's width goes off twice, so that a text stands left of the middle
            return (rect.right - nTextWidth - kBoxGap - rect.left) / 2 - nTextWidth / 2 + rect.left;
        return (rect.right - (rect.left + kBoxRoom)) / 2 - nTextWidth / 2 + rect.left + kBoxRoom;
    default:
        return bLeftText ? rect.left + 1 : rect.left + kBoxRoom;
    }
}

int BoxY(Where where, const CRect& rect, int nTextHeight)
{
    switch (where)
    {
    case Where::nearEnd:
        return rect.top + nTextHeight - 12;
    case Where::farEnd:
        return rect.bottom - 15;
    default:
        return rect.top + (rect.Height() - 12) / 2;
    }
}

int TextY(Where where, const CRect& rect, int nTextHeight)
{
    switch (where)
    {
    case Where::nearEnd:
        return rect.top + 1;
    case Where::farEnd:
        return rect.bottom - nTextHeight - 2;
    default:
        return rect.top + (rect.Height() - nTextHeight + 1) / 2;
    }
}

/// The focus mark goes round the text.
CRect FocusRect(CRect rectText)
{
    rectText.InflateRect(1, 1);
    return rectText;
}

void WipeFocus(CDC& dc, const CRect& rectText)
{
    CPen pen(PS_SOLID, 1, ::GetSysColor(COLOR_BTNFACE));
    const CGdiSelection line(dc, pen);
    const CGdiSelection inside(dc, ::GetStockObject(NULL_BRUSH));
    dc.Rectangle(FocusRect(rectText));
}
} // namespace

struct CMixedFontButton::Places
{
    CRect box;
    CRect text;
};

CMixedFontButton::CMixedFontButton() : CMixedFontButton(nullptr)
{
}

CMixedFontButton::CMixedFontButton(AButtonSTNotificationHandler* pHandler) : CExtButton(pHandler)
{
}

CMixedFontButton::~CMixedFontButton() = default;

BEGIN_MESSAGE_MAP(CMixedFontButton, CExtButton)
    ON_WM_ENABLE()
    ON_WM_LBUTTONDBLCLK()
    ON_MESSAGE(WM_SETTEXT, &CMixedFontButton::OnSetText)
END_MESSAGE_MAP()

// A window that is disabled while it has the focus loses it as a disabled one, which does not note the loss.
void CMixedFontButton::OnEnable(BOOL bEnable)
{
    m_bHasFocus = ::GetFocus() == m_hWnd;
    m_bTextDirty = TRUE;
    CExtButton::OnEnable(bEnable);
}

// Of an owner-drawn button the parent would hear of a double click in place of the second click.
void CMixedFontButton::OnLButtonDblClk(UINT nFlags, CPoint point)
{
    DefWindowProc(WM_LBUTTONDOWN, nFlags, MAKELPARAM(point.x, point.y));
}

// The system's button paints while it takes the text.
LRESULT CMixedFontButton::OnSetText(WPARAM wParam, LPARAM lParam)
{
    m_bTextDirty = TRUE;
    return DefWindowProc(WM_SETTEXT, wParam, lParam);
}

// ---- Messages outside the map -----------------------------------------------------------------------------

// The mask is wanted as it is: it keeps a bit of the types BS_RADIOBUTTON to BS_GROUPBOX.
void CMixedFontButton::PreSubclassWindow()
{
    constexpr DWORD kKept = 0xF4;
    const DWORD style = (GetStyle() & kKept) | BS_OWNERDRAW;
    SendMessage(BM_SETSTYLE, style, TRUE);
    ModifyStyle(BS_TYPEMASK, style & BS_TYPEMASK); // a button that is only being made takes no message yet
    m_bTextDirty = TRUE;                           // the text that the window came with is new here
    CExtButton::PreSubclassWindow();
}

LRESULT CMixedFontButton::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_SETFOCUS:
        return SetFocusState(TRUE);
    case WM_KILLFOCUS:
        return SetFocusState(FALSE);
    case BM_GETCHECK:
        return m_nCheckState != 0;
    case BM_SETCHECK:
        return SetCheckState(wParam);
    default:
        return CExtButton::DefWindowProc(message, wParam, lParam);
    }
}

LRESULT CMixedFontButton::SetFocusState(BOOL bFocus)
{
    if (!IsWindowEnabled())
        return 0;
    m_bHasFocus = bFocus;
    if (!bFocus)
        CancelPress();
    return Changed();
}

// Wanted: a disabled button keeps its state.
LRESULT CMixedFontButton::SetCheckState(WPARAM nCheck)
{
    if (!IsWindowEnabled() || nCheck > BST_CHECKED)
        return 0;
    m_nCheckState = static_cast<int>(nCheck);
    return Changed();
}

LRESULT CMixedFontButton::Changed()
{
    m_bTextDirty = TRUE;
    Invalidate(FALSE);
    return 0;
}

/// The system's button does not learn that the focus goes while Space or the mouse holds it down; it would
/// keep the mouse captured.
void CMixedFontButton::CancelPress()
{
    if (::GetCapture() != m_hWnd)
        return;
    SetState(FALSE);
    ::ReleaseCapture();
}

void CMixedFontButton::RadioButtonLook(int)
{
    m_bRadioLook = TRUE;
    if (m_hWnd)
        Invalidate(FALSE);
}

// ---- Painting ---------------------------------------------------------------------------------------------

void CMixedFontButton::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    CDC dc;
    dc.Attach(lpDrawItemStruct->hDC);
    _DrawCheckBox(&dc, lpDrawItemStruct->rcItem);
    dc.Detach();
}

void CMixedFontButton::_DrawCheckBox(CDC* pDC, const CRect& rect)
{
    const Places places = DrawLabel(*pDC, rect);
    DrawBox(*pDC, places.box);
    DrawFocus(*pDC, places.text);
}

CMixedFontButton::Places CMixedFontButton::DrawLabel(CDC& dc, const CRect& rect)
{
    const CSavedDC saved(dc);
    CString strText;
    GetWindowText(strText);
    gfnSelectParentFont(dc, *this);
    const Places places = Place(rect, CMixedFont::GetTextExtent(&dc, strText));
    const bool bWipes = m_bTextDirty && !m_rectLastText.IsRectNull() && !gfnIsTransparent(*this);
    if (bWipes)
        WipeFocus(dc, m_rectLastText); // the mark stands round the text that goes
    gfnBeginMixedFontText(dc, *this, places.text, m_bTextDirty, m_rectLastText);
    DrawLine(dc, strText, places.text.TopLeft());
    return places;
}

CMixedFontButton::Places CMixedFontButton::Place(const CRect& rect, CSize text) const
{
    const DWORD style = GetStyle();
    const bool bLeftText = (style & BS_LEFTTEXT) != 0;
    const Where across = Across(style), down = Down(style);
    const CPoint boxAt(BoxX(bLeftText, rect), BoxY(down, rect, text.cy));
    const CPoint textAt(TextX(across, bLeftText, rect, text.cx), TextY(down, rect, text.cy));
    return {CRect(boxAt, CSize(kBox, kBox)), CRect(textAt, text)};
}

/// Engraved while disabled.
void CMixedFontButton::DrawLine(CDC& dc, const CString& strText, CPoint at)
{
    if (IsWindowEnabled())
        dc.SetTextColor(::GetSysColor(COLOR_BTNTEXT));
    else
    {
        dc.SetTextColor(::GetSysColor(COLOR_BTNHIGHLIGHT));
        CMixedFont::TextOutW(&dc, at + CPoint(1, 1), strText);
        dc.SetBkMode(TRANSPARENT);
        dc.SetTextColor(::GetSysColor(COLOR_GRAYTEXT));
    }
    CMixedFont::TextOutW(&dc, at, strText);
}

/// The states are asked for by message: a class that derives may answer them.
void CMixedFontButton::DrawBox(CDC& dc, const CRect& rect)
{
    const LRESULT check = SendMessage(BM_GETCHECK);
    const bool bPushed = (SendMessage(BM_GETSTATE) & BST_PUSHED) != 0;
    UINT nLook = m_bRadioLook ? DFCS_BUTTONRADIO : DFCS_BUTTONCHECK;
    if (check == BST_CHECKED)
        nLook |= DFCS_CHECKED;
    if (!IsWindowEnabled() || bPushed || check == BST_INDETERMINATE)
        nLook |= DFCS_INACTIVE;
    dc.DrawFrameControl(CRect(rect), DFC_BUTTON, nLook);
}

void CMixedFontButton::DrawFocus(CDC& dc, const CRect& rectText)
{
    WipeFocus(dc, rectText);
    if (m_bHasFocus || (SendMessage(BM_GETSTATE) & BST_PUSHED))
        dc.DrawFocusRect(FocusRect(rectText));
}
