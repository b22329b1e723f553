// Scroll bars, scroll messages, the wheel, and scrolling to a cell. Nothing is moved on the screen: the
// scrolling part is repainted.

#include <afxwin.h>

#include "grid/GridCtrl.h"

#include "grid/GridLifeWatch.h"

#include <algorithm>

namespace
{
constexpr int kWheelNotch = 120;
constexpr int kWheelPage = -1; ///< the system's setting for a page instead of lines

UINT ScrollMessage(int nBar)
{
    return nBar == SB_HORZ ? WM_HSCROLL : WM_VSCROLL;
}
} // namespace

// ---- The bars ---------------------------------------------------------------------------------------------

int CGridCtrl::GetScrollPos32(int nBar, BOOL bGetTrackPos)
{
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = bGetTrackPos ? SIF_TRACKPOS : SIF_POS;
    if (!GetScrollInfo(nBar, &info, info.fMask))
        return 0;
    return bGetTrackPos ? info.nTrackPos : info.nPos;
}

BOOL CGridCtrl::SetScrollPos32(int nBar, int nPos, BOOL bRedraw)
{
    m_topLeftCell.row = -1;
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_POS;
    info.nPos = nPos;
    return SetScrollInfo(nBar, &info, bRedraw);
}

void CGridCtrl::EnableScrollBars(int nBar, BOOL bEnable)
{
    if ((nBar == SB_HORZ || nBar == SB_BOTH) && (IsVisibleHScroll() != FALSE) != (bEnable != FALSE))
    {
        m_nBarState ^= BAR_HORIZONTAL;
        CWnd::ShowScrollBar(SB_HORZ, bEnable);
    }
    if ((nBar == SB_VERT || nBar == SB_BOTH) && (IsVisibleVScroll() != FALSE) != (bEnable != FALSE))
    {
        m_nBarState ^= BAR_VERTICAL;
        CWnd::ShowScrollBar(SB_VERT, bEnable);
    }
}

bool CGridCtrl::HasBar(int nBar) const
{
    return (GetStyle() & (nBar == SB_HORZ ? WS_HSCROLL : WS_VSCROLL)) != 0;
}

/// In the books and in the window, which disagree when only the headers have fitted before.
void CGridCtrl::ShowBar(int nBar, bool bShow)
{
    const CLifeWatch life(*this);
    EnableScrollBars(nBar, bShow);
    if (life.WindowLives() && HasBar(nBar) != bShow)
        CWnd::ShowScrollBar(nBar, bShow);
}

// The vertical bar is decided first; the horizontal one takes height away and may make it necessary after
// all.
//
// A bar that comes or goes changes the size of the window, and with that ends an edit: whoever hears of that
// may destroy the window.
void CGridCtrl::ResetScrollBars()
{
    m_topLeftCell.row = -1;
    if (!m_bAllowDraw || !::IsWindow(m_hWnd))
        return;
    CSize area = GetClientSize();
    if (area.cx == 0 || area.cy == 0)
        return;

    // The area as it would be without bars
    if (HasBar(SB_VERT))
        area.cx += ::GetSystemMetrics(SM_CXVSCROLL) + ::GetSystemMetrics(SM_CXBORDER);
    if (HasBar(SB_HORZ))
        area.cy += ::GetSystemMetrics(SM_CYHSCROLL) + ::GetSystemMetrics(SM_CYBORDER);

    const CSize fixed(GetFixedColumnWidth(), GetFixedRowHeight());
    if (fixed.cx >= area.cx || fixed.cy >= area.cy)
    {
        // Only headers fit. The books of the bars stay as they were; the next full pass puts them right.
        const HWND hWnd = m_hWnd;
        ::ShowScrollBar(hWnd, SB_HORZ, FALSE);
        ::ShowScrollBar(hWnd, SB_VERT, FALSE);
        return;
    }

    const CSize needed(GetVirtualWidth() - fixed.cx, GetVirtualHeight() - fixed.cy);
    CSize available(area.cx - fixed.cx, area.cy - fixed.cy);
    if (available.cy < needed.cy)
        available.cx -= ::GetSystemMetrics(SM_CXVSCROLL);
    if (available.cx < needed.cx)
        available.cy -= ::GetSystemMetrics(SM_CYHSCROLL);

    const bool bVertical = available.cy < needed.cy;
    const bool bHorizontal = available.cx < needed.cx;
    m_nVScrollMax = bVertical ? needed.cy - 1 : 0;
    m_nHScrollMax = bHorizontal ? needed.cx - 1 : 0;
    const CLifeWatch life(*this);
    ShowBar(SB_VERT, bVertical);
    if (life.WindowLives())
        ShowBar(SB_HORZ, bHorizontal);
    if (!life.WindowLives())
        return;
    SetScrollRange32(SB_HORZ, m_nHScrollMax, available.cx, SIF_PAGE | SIF_RANGE);
    SetScrollRange32(SB_VERT, m_nVScrollMax, available.cy, SIF_PAGE | SIF_RANGE | SIF_DISABLENOSCROLL);
}

/// The masks of the two bars differ by design: a vertical bar is greyed where a horizontal one goes.
void CGridCtrl::SetScrollRange32(int nBar, int nMax, int nPage, UINT nMask)
{
    const UINT nNewPage = nMax > 0 ? static_cast<UINT>(nPage) : 0;
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    if (GetScrollInfo(nBar, &info, SIF_PAGE | SIF_RANGE) && info.nMin == 0 && info.nMax == nMax &&
        info.nPage == nNewPage)
        return; // setting it again would repaint the bar: most of what a change of a row's height costs
    info = {};
    info.cbSize = sizeof info;
    info.fMask = nMask;
    info.nMax = nMax;
    info.nPage = nNewPage;
    SetScrollInfo(nBar, &info, TRUE);
}

// ---- Messages ---------------------------------------------------------------------------------------------

// The guard is one for all grids of the thread: changing the bars changes the size again.
void CGridCtrl::OnSize(UINT nType, int cx, int cy)
{
    static bool s_bSizing = false;
    if (s_bSizing || !::IsWindow(m_hWnd))
        return;
    s_bSizing = true;
    const CLifeWatch life(*this);
    EndEditing();
    if (life.WindowLives())
    {
        CWnd::OnSize(nType, cx, cy);
        ResetScrollBars();
    }
    s_bSizing = false;
}

void CGridCtrl::OnHScroll(UINT nSBCode, UINT /*nPos*/, CScrollBar* /*pScrollBar*/)
{
    OnScroll(SB_HORZ, nSBCode);
}

void CGridCtrl::OnVScroll(UINT nSBCode, UINT /*nPos*/, CScrollBar* /*pScrollBar*/)
{
    OnScroll(SB_VERT, nSBCode);
}

// The position in the message has 16 bits only; the bar itself is asked.
void CGridCtrl::OnScroll(int nBar, UINT nSBCode)
{
    const CLifeWatch life(*this);
    EndEditing();
    if (!life.WindowLives())
        return;

    const int nPos = GetScrollPos32(nBar);
    const int nMax = nBar == SB_HORZ ? m_nHScrollMax : m_nVScrollMax;
    const CCellID oldTopLeft = GetTopleftNonFixedCell();
    const int nPage = ClientExtent(nBar) - AxisOf(nBar).FixedExtent();
    switch (nSBCode)
    {
    case SB_LINELEFT:
        ScrollLineBack(nBar, nPos);
        break;
    case SB_LINERIGHT:
        ScrollLineOn(nBar, nPos, nMax);
        break;
    case SB_PAGELEFT:
        if (nPos > 0)
            ScrollTo(nBar, std::max(0, nPos - nPage));
        break;
    case SB_PAGERIGHT:
        if (nPos < nMax)
            ScrollTo(nBar, gfnSaturated(std::min<LONGLONG>(nMax, LONGLONG(nPos) + nPage)));
        break;
    case SB_THUMBPOSITION:
    case SB_THUMBTRACK:
        SetScrollPos32(nBar, GetScrollPos32(nBar, TRUE));
        if (GetTopleftNonFixedCell() != oldTopLeft)
            InvalidateScrolling(nBar);
        break;
    case SB_LEFT:
        if (nPos > 0)
        {
            SetScrollPos32(nBar, 0);
            Invalidate();
        }
        break;
    case SB_RIGHT:
        if (nPos < nMax)
        {
            SetScrollPos32(nBar, nMax);
            Invalidate();
        }
        break;
    default:
        break;
    }
}

/// Back by the item before the first that shows, hidden ones left out. Left or up.
void CGridCtrl::ScrollLineBack(int nBar, int nPos)
{
    const CGridAxis& axis = AxisOf(nBar);
    const CCellID topLeft = GetTopleftNonFixedCell();
    int nItem = (nBar == SB_HORZ ? topLeft.col : topLeft.row) - 1;
    if (nPos <= 0 || nItem < axis.Fixed())
        return;
    while (nItem > axis.Fixed() && axis.Size(nItem) <= 0)
        --nItem;
    ScrollTo(nBar, std::max(0, nPos - axis.Size(nItem)));
}

/// On by the first item that shows. The bar itself limits the position, and only a real step repaints.
void CGridCtrl::ScrollLineOn(int nBar, int nPos, int nMax)
{
    const CGridAxis& axis = AxisOf(nBar);
    const CCellID topLeft = GetTopleftNonFixedCell();
    int nItem = nBar == SB_HORZ ? topLeft.col : topLeft.row;
    if (nPos >= nMax || !axis.Has(nItem))
        return;
    while (nItem < axis.Count() - 1 && axis.Size(nItem) <= 0)
        ++nItem;
    SetScrollPos32(nBar, gfnSaturated(LONGLONG(nPos) + axis.Size(nItem)));
    if (GetScrollPos32(nBar) != nPos)
        InvalidateScrolling(nBar);
}

void CGridCtrl::ScrollTo(int nBar, int nPos)
{
    SetScrollPos32(nBar, nPos);
    InvalidateScrolling(nBar);
}

/// The headers at the side of the bar's direction stay as they are.
void CGridCtrl::InvalidateScrolling(int nBar)
{
    CRect rect(CPoint(0, 0), GetClientSize());
    (nBar == SB_HORZ ? rect.left : rect.top) = AxisOf(nBar).FixedExtent();
    InvalidateRect(&rect, TRUE);
}

// Posted: the scrolling runs when this message is done with.
BOOL CGridCtrl::OnMouseWheel(UINT nFlags, short zDelta, CPoint pt)
{
    const bool bPage = m_nWheelLines == kWheelPage;
    const int nSteps = bPage ? zDelta / kWheelNotch : zDelta * m_nWheelLines / kWheelNotch;
    const UINT nCode = nSteps > 0 ? (bPage ? SB_PAGEUP : SB_LINEUP) : (bPage ? SB_PAGEDOWN : SB_LINEDOWN);
    for (int nStep = std::abs(nSteps); nStep > 0; --nStep)
        PostMessage(WM_VSCROLL, MAKEWPARAM(nCode, 0));
    return CWnd::OnMouseWheel(nFlags, zDelta, pt);
}

/// Scrolls at once. False if the window did not outlive what the end of a running edit set off.
bool CGridCtrl::SendScroll(int nBar, UINT nSBCode)
{
    const CLifeWatch life(*this);
    SendMessage(ScrollMessage(nBar), MAKEWPARAM(nSBCode, 0));
    return life.WindowLives();
}

// ---- Scrolling to a cell ----------------------------------------------------------------------------------

void CGridCtrl::EnsureVisible(CCellID& cell)
{
    EnsureVisible(cell.row, cell.col);
}

// A fixed cell scrolls, too, by the distance from the visible range: it is not made an exception of.
void CGridCtrl::EnsureVisible(int nRow, int nCol)
{
    if (!m_bAllowDraw || !::IsWindow(m_hWnd))
        return;
    const HWND hFocus = ::GetFocus(); // each step ends any edit
    if (!ScrollBySteps(nRow, nCol) || !ScrollCellEndIntoView(nRow, nCol))
        return;
    if (::IsWindow(hFocus))
        ::SetFocus(hFocus);
}

/// Line by line in whole rows and columns, counted from the visible range. Hidden ones use up a step, and so
/// would those beyond the ends, to which nothing can be scrolled.
bool CGridCtrl::ScrollBySteps(int nRow, int nCol)
{
    nRow = std::clamp(nRow, -1, GetRowCount());
    nCol = std::clamp(nCol, -1, GetColumnCount());
    const CCellRange visible = GetVisibleNonFixedCellRange();
    for (int nStep = visible.maxCol + 1; nStep <= nCol; ++nStep)
        if (m_cols.IsShown(nStep) && !SendScroll(SB_HORZ, SB_LINERIGHT))
            return false;
    for (int nStep = visible.minCol - 1; nStep >= nCol; --nStep)
        if (m_cols.IsShown(nStep) && !SendScroll(SB_HORZ, SB_LINELEFT))
            return false;
    for (int nStep = visible.maxRow + 1; nStep <= nRow; ++nStep)
        if (m_rows.IsShown(nStep) && !SendScroll(SB_VERT, SB_LINEDOWN))
            return false;
    for (int nStep = visible.minRow - 1; nStep >= nRow; --nStep)
        if (m_rows.IsShown(nStep) && !SendScroll(SB_VERT, SB_LINEUP))
            return false;
    return true;
}

/// A cell cut off by the right or bottom edge, as far as its own start stays in view.
bool CGridCtrl::ScrollCellEndIntoView(int nRow, int nCol)
{
    CRect rect;
    if (!GetCellRect(nRow, nCol, &rect))
        return true;
    // Sideways only the bar's end and the headers stop it: the rectangle may stand still for a step and go
    // on.
    while (rect.right > GetClientSize().cx && rect.left > GetFixedColumnWidth())
    {
        const int nPos = GetScrollPos32(SB_HORZ);
        if (!SendScroll(SB_HORZ, SB_LINERIGHT))
            return false;
        if (!GetCellRect(nRow, nCol, &rect))
            return true;
        if (GetScrollPos32(SB_HORZ) == nPos)
            break;
    }
    while (rect.bottom > GetClientSize().cy && rect.top > GetFixedRowHeight())
    {
        const CRect rectBefore = rect;
        if (!SendScroll(SB_VERT, SB_LINEDOWN))
            return false;
        if (!GetCellRect(nRow, nCol, &rect) || rect == rectBefore)
            return true;
    }
    return true;
}
