// Scroll bars, scroll messages, the wheel, and scrolling to a cell. Nothing is moved on the screen: the
// scrolling part is repainted.

#include <afxwin.h>

#include "grid/GridCtrl.h"

#include "grid/GridLifeWatch.h"

#include <algorithm>
#include <utility>

namespace
{
constexpr int kWheelNotch = 120;
constexpr int kWheelPage = -1; ///< the system's setting for a page instead of lines

EGridWay WayOf(int nBar)
{
    return nBar == SB_HORZ ? EGridWay::eColumns : EGridWay::eRows;
}
} // namespace

/// Scrolls to a cell in many steps: what they uncover is repainted once, when this goes.
class CGridCtrl::CScrollRun
{
public:
    explicit CScrollRun(CGridCtrl& grid)
        : m_grid(grid), m_life(grid), m_pOuter(std::exchange(grid.m_pScrollRun, this))
    {
    }
    ~CScrollRun()
    {
        if (!m_life.ObjectLives())
            return;
        m_grid.m_pScrollRun = m_pOuter;
        if (m_life.WindowLives() && !m_rect.IsRectEmpty())
            m_grid.RepaintScrolled(m_rect);
    }
    CScrollRun(const CScrollRun&) = delete;
    CScrollRun& operator=(const CScrollRun&) = delete;

    void Add(const CRect& rect) { m_rect.UnionRect(&m_rect, &rect); }

    /// False if the window did not outlive what the end of a running edit set off.
    bool BringIntoView(const CCellID& cell) const { return GoBySteps(cell) && BringEndIntoView(cell); }

private:
    bool GoBySteps(const CCellID& cell) const;
    bool GoByStepsAlong(EGridWay way, int nFirst, int nLast, int nItem) const;
    bool BringEndIntoView(const CCellID& cell) const;
    bool CutOffAt(EGridWay way, const CRect& rect) const;

    CGridCtrl& m_grid;
    const CLifeWatch m_life;
    CScrollRun* m_pOuter;
    CRect m_rect;
};

// ---- The bars ---------------------------------------------------------------------------------------------

int CGridCtrl::GetScrollPos32(int nBar, BOOL bGetTrackPos)
{
    return bGetTrackPos ? m_bars.TrackPos(WayOf(nBar)) : m_bars.Pos(WayOf(nBar));
}

BOOL CGridCtrl::SetScrollPos32(int nBar, int nPos, BOOL bRedraw)
{
    m_topLeftCell.row = -1;
    return m_bars.SetPos(WayOf(nBar), nPos, bRedraw != FALSE);
}

void CGridCtrl::EnableScrollBars(int nBar, BOOL bEnable)
{
    for (const EGridWay way : kGridWays)
        if ((nBar == gfnBarOf(way) || nBar == SB_BOTH) &&
            ((m_nBarState & BarBit(way)) != 0) != (bEnable != FALSE))
        {
            m_nBarState ^= BarBit(way);
            CWnd::ShowScrollBar(gfnBarOf(way), bEnable);
        }
}

/// In the books and in the window, which disagree when only the headers have fitted before. False if the
/// window did not outlive it: a bar that comes or goes changes the size of the window, and with that ends an
/// edit, and whoever hears of that may destroy the window.
bool CGridCtrl::ShowBar(EGridWay way, bool bShow, const CLifeWatch& life)
{
    EnableScrollBars(gfnBarOf(way), bShow);
    if (life.WindowLives() && m_bars.IsInWindow(way) != bShow)
        CWnd::ShowScrollBar(gfnBarOf(way), bShow);
    return life.WindowLives();
}

void CGridCtrl::ResetScrollBars()
{
    m_topLeftCell.row = -1;
    if (!m_bAllowDraw || !::IsWindow(m_hWnd))
        return;
    const CSize area = m_bars.AreaWithout(GetClientSize());
    if (area == CSize(0, 0))
        return;

    const CSize thickness(::GetSystemMetrics(SM_CXVSCROLL), ::GetSystemMetrics(SM_CYHSCROLL));
    const SGridBarPlan plan = gfnPlanGridBars(area, CSize(GetFixedColumnWidth(), GetFixedRowHeight()),
                                              CSize(GetVirtualWidth(), GetVirtualHeight()), thickness);
    if (plan.bOnlyHeadersFit)
    {
        // The books of the bars stay as they were; the next full pass puts them right.
        const HWND hWnd = m_hWnd;
        ::ShowScrollBar(hWnd, SB_HORZ, FALSE);
        ::ShowScrollBar(hWnd, SB_VERT, FALSE);
        return;
    }
    m_nVScrollMax = plan.vertical.nMax;
    m_nHScrollMax = plan.horizontal.nMax;
    const CLifeWatch life(*this);
    if (!ShowBar(EGridWay::eRows, plan.vertical.bShows, life) ||
        !ShowBar(EGridWay::eColumns, plan.horizontal.bShows, life))
        return;
    m_bars.SetRange(EGridWay::eColumns, plan.horizontal);
    m_bars.SetRange(EGridWay::eRows, plan.vertical);
}

// ---- Messages ---------------------------------------------------------------------------------------------

// The guard is one for all grids: changing the bars changes the size again.
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
    OnScroll(EGridWay::eColumns, nSBCode);
}

void CGridCtrl::OnVScroll(UINT nSBCode, UINT /*nPos*/, CScrollBar* /*pScrollBar*/)
{
    OnScroll(EGridWay::eRows, nSBCode);
}

// The position in the message has 16 bits only; the bar itself is asked.
void CGridCtrl::OnScroll(EGridWay way, UINT nSBCode)
{
    const CLifeWatch life(*this);
    EndEditing();
    if (!life.WindowLives())
        return;

    const CCellID oldTopLeft = GetTopleftNonFixedCell();
    const bool bThumb = nSBCode == SB_THUMBPOSITION || nSBCode == SB_THUMBTRACK;
    const int nOldPos = m_bars.Pos(way);
    const SGridScrollState state{nOldPos, way == EGridWay::eColumns ? m_nHScrollMax : m_nVScrollMax,
                                 gfnAlong(way, GetClientSize()) - Axis(way).FixedExtent(),
                                 gfnItemAlong(way, oldTopLeft)};
    const std::optional<int> nPos = bThumb ? m_bars.TrackPos(way) : gfnScrolledPos(nSBCode, Axis(way), state);
    if (!nPos)
        return;
    if (bThumb)
        m_bars.Tracked(way);
    SetScrollPos32(gfnBarOf(way), *nPos);

    if (nSBCode == SB_TOP || nSBCode == SB_BOTTOM)
        RepaintScrolled(CRect(CPoint(0, 0), GetClientSize()));
    else if (bThumb ? GetTopleftNonFixedCell() != oldTopLeft
                    : nSBCode != SB_LINEDOWN || m_bars.Pos(way) != nOldPos) // the bar limits a line on
        RepaintScrolled(GetView().ScrollingPart(way));
}

/// At the end of a run of steps, or now.
void CGridCtrl::RepaintScrolled(const CRect& rect)
{
    if (m_pScrollRun)
        m_pScrollRun->Add(rect);
    else
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
bool CGridCtrl::SendScroll(EGridWay way, UINT nSBCode)
{
    const CLifeWatch life(*this);
    SendMessage(way == EGridWay::eColumns ? WM_HSCROLL : WM_VSCROLL, MAKEWPARAM(nSBCode, 0));
    return life.WindowLives();
}

// ---- Scrolling to a cell ----------------------------------------------------------------------------------

void CGridCtrl::EnsureVisible(CCellID& cell)
{
    EnsureVisible(cell.row, cell.col);
}

// A fixed cell scrolls, too, by the distance from the visible range: it is not made an exception of. However
// many steps it takes, their repaint is asked for once.
void CGridCtrl::EnsureVisible(int nRow, int nCol)
{
    if (!m_bAllowDraw || !::IsWindow(m_hWnd))
        return;
    const HWND hFocus = ::GetFocus(); // each step ends any edit
    const CScrollRun run(*this);
    if (run.BringIntoView(CCellID(nRow, nCol)) && ::IsWindow(hFocus))
        ::SetFocus(hFocus);
}

/// Line by line in whole rows and columns, counted from the visible range. Hidden ones use up a step, and so
/// would those beyond the ends, to which nothing can be scrolled.
bool CGridCtrl::CScrollRun::GoBySteps(const CCellID& cell) const
{
    const CCellRange visible = m_grid.GetVisibleNonFixedCellRange();
    return GoByStepsAlong(EGridWay::eColumns, visible.minCol, visible.maxCol, cell.col) &&
           GoByStepsAlong(EGridWay::eRows, visible.minRow, visible.maxRow, cell.row);
}

bool CGridCtrl::CScrollRun::GoByStepsAlong(EGridWay way, int nFirst, int nLast, int nItem) const
{
    const CGridAxis& axis = m_grid.Axis(way);
    nItem = std::clamp(nItem, -1, axis.Count());
    for (int nStep = nLast + 1; nStep <= nItem; ++nStep)
        if (axis.IsShown(nStep) && !m_grid.SendScroll(way, SB_LINEDOWN))
            return false;
    for (int nStep = nFirst - 1; nStep >= nItem; --nStep)
        if (axis.IsShown(nStep) && !m_grid.SendScroll(way, SB_LINEUP))
            return false;
    return true;
}

/// Its end lies beyond the window's edge, and there is room yet to go.
bool CGridCtrl::CScrollRun::CutOffAt(EGridWay way, const CRect& rect) const
{
    return gfnAlong(way, rect.BottomRight()) > gfnAlong(way, m_grid.GetClientSize()) &&
           gfnAlong(way, rect.TopLeft()) > m_grid.Axis(way).FixedExtent();
}

/// A cell cut off by the right or bottom edge, as far as its own start stays in view. Sideways only the bar's
/// end and the headers stop it: the rectangle may stand still for a step and go on.
bool CGridCtrl::CScrollRun::BringEndIntoView(const CCellID& cell) const
{
    CRect rect;
    for (const EGridWay way : kGridWays)
    {
        if (!m_grid.GetCellRect(cell, &rect))
            return true;
        while (CutOffAt(way, rect))
        {
            const CRect rectBefore = rect;
            const int nPosBefore = m_grid.m_bars.Pos(way);
            if (!m_grid.SendScroll(way, SB_LINEDOWN))
                return false;
            if (!m_grid.GetCellRect(cell, &rect))
                return true;
            if (way == EGridWay::eColumns ? m_grid.m_bars.Pos(way) == nPosBefore : rect == rectBefore)
                break;
        }
    }
    return true;
}
