#include <afxwin.h>

#include "grid/GridScrollBars.h"

#include <algorithm>
#include <utility>

namespace
{
SCROLLINFO Asking(UINT nMask)
{
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = nMask;
    return info;
}
} // namespace

// ---- What the bars are to be ------------------------------------------------------------------------------

// The vertical bar is decided first; the horizontal one takes height away and may make it necessary after
// all.
SGridBarPlan gfnPlanGridBars(CSize area, CSize fixed, CSize all, CSize thickness)
{
    SGridBarPlan plan;
    plan.bOnlyHeadersFit = fixed.cx >= area.cx || fixed.cy >= area.cy;
    if (plan.bOnlyHeadersFit)
        return plan;

    const CSize needed = all - fixed;
    CSize available = area - fixed;
    if (available.cy < needed.cy)
        available.cx -= thickness.cx;
    if (available.cx < needed.cx)
        available.cy -= thickness.cy;
    if (available.cy < needed.cy)
        plan.vertical = {true, needed.cy - 1, available.cy};
    if (available.cx < needed.cx)
        plan.horizontal = {true, needed.cx - 1, available.cx};
    return plan;
}

// ---- Where a message moves them ---------------------------------------------------------------------------

namespace
{
/// Back by the item before the first that shows, hidden ones left out.
std::optional<int> LineBack(const CGridAxis& axis, const SGridScrollState& state)
{
    int nItem = state.nFirst - 1;
    if (state.nPos <= 0 || nItem < axis.Fixed())
        return {};
    while (nItem > axis.Fixed() && axis.Size(nItem) <= 0)
        --nItem;
    return std::max(0, state.nPos - axis.Size(nItem));
}

/// On by the first item that shows.
std::optional<int> LineOn(const CGridAxis& axis, const SGridScrollState& state)
{
    int nItem = state.nFirst;
    if (state.nPos >= state.nMax || !axis.Has(nItem))
        return {};
    while (nItem < axis.Count() - 1 && axis.Size(nItem) <= 0)
        ++nItem;
    return gfnSaturated(LONGLONG(state.nPos) + axis.Size(nItem));
}

std::optional<int> If(bool bMoves, LONGLONG nPos)
{
    return bMoves ? std::optional<int>(gfnSaturated(nPos)) : std::nullopt;
}
} // namespace

std::optional<int> gfnScrolledPos(UINT nSBCode, const CGridAxis& axis, const SGridScrollState& state)
{
    const bool bMayBack = state.nPos > 0;
    const bool bMayOn = state.nPos < state.nMax;
    switch (nSBCode)
    {
    case SB_LINEUP:
        return LineBack(axis, state);
    case SB_LINEDOWN:
        return LineOn(axis, state);
    case SB_PAGEUP:
        return If(bMayBack, std::max(0, state.nPos - state.nPage));
    case SB_PAGEDOWN:
        return If(bMayOn, std::min<LONGLONG>(state.nMax, LONGLONG(state.nPos) + state.nPage));
    case SB_TOP:
        return If(bMayBack, 0);
    case SB_BOTTOM:
        return If(bMayOn, state.nMax);
    default:
        return {};
    }
}

// ---- The bars of a window ---------------------------------------------------------------------------------

bool CGridScrollBars::IsInWindow(EGridWay way) const
{
    return (m_window.GetStyle() & (way == EGridWay::eColumns ? WS_HSCROLL : WS_VSCROLL)) != 0;
}

CSize CGridScrollBars::AreaWithout(CSize client) const
{
    if (client.cx == 0 || client.cy == 0)
        return CSize(0, 0);
    if (IsInWindow(EGridWay::eRows))
        client.cx += ::GetSystemMetrics(SM_CXVSCROLL) + ::GetSystemMetrics(SM_CXBORDER);
    if (IsInWindow(EGridWay::eColumns))
        client.cy += ::GetSystemMetrics(SM_CYHSCROLL) + ::GetSystemMetrics(SM_CYBORDER);
    return client;
}

int CGridScrollBars::Pos(EGridWay way) const
{
    SCROLLINFO info = Asking(SIF_POS);
    return ::GetScrollInfo(m_window.m_hWnd, gfnBarOf(way), &info) ? info.nPos : 0;
}

int CGridScrollBars::TrackPos(EGridWay way) const
{
    SCROLLINFO info = Asking(SIF_TRACKPOS);
    return ::GetScrollInfo(m_window.m_hWnd, gfnBarOf(way), &info) ? info.nTrackPos : 0;
}

int CGridScrollBars::SetPos(EGridWay way, int nPos, bool bRepaint)
{
    SCROLLINFO info = Asking(SIF_POS);
    info.nPos = nPos;
    const int nResult = ::SetScrollInfo(m_window.m_hWnd, gfnBarOf(way), &info, FALSE);
    if (bRepaint)
        Changed(way);
    return nResult;
}

/// The masks of the two bars differ by design: a vertical bar is greyed where a horizontal one goes.
void CGridScrollBars::SetRange(EGridWay way, const SGridBar& bar)
{
    SCROLLINFO info = Asking(SIF_PAGE | SIF_RANGE);
    if (::GetScrollInfo(m_window.m_hWnd, gfnBarOf(way), &info) && info.nMin == 0 && info.nMax == bar.nMax &&
        info.nPage == static_cast<UINT>(bar.nPage))
        return;
    info = Asking(SIF_PAGE | SIF_RANGE | (way == EGridWay::eRows ? SIF_DISABLENOSCROLL : 0));
    info.nMax = bar.nMax;
    info.nPage = static_cast<UINT>(bar.nPage);
    ::SetScrollInfo(m_window.m_hWnd, gfnBarOf(way), &info, FALSE);
    Changed(way);
}

/// Where the thumb stands by now, in pixels of the bar; nothing for a bar that does not show.
std::optional<CGridScrollBars::SThumb> CGridScrollBars::Thumb(EGridWay way) const
{
    SCROLLBARINFO info{};
    info.cbSize = sizeof info;
    const LONG nObject = way == EGridWay::eColumns ? OBJID_HSCROLL : OBJID_VSCROLL;
    if (!IsInWindow(way) || !::GetScrollBarInfo(m_window.m_hWnd, nObject, &info))
        return {};
    return SThumb{info.xyThumbTop, info.xyThumbBottom};
}

void CGridScrollBars::Changed(EGridWay way)
{
    SState& state = StateOf(way);
    state.bChanged = true;
    if (m_bPaintAsked)
        return;
    const std::optional<SThumb> thumb = Thumb(way);
    if (!thumb || thumb == state.painted)
        return;
    m_bPaintAsked = true;
    m_window.RedrawWindow(nullptr, nullptr, RDW_INTERNALPAINT);
}

void CGridScrollBars::Paint()
{
    m_bPaintAsked = false;
    for (const EGridWay way : kGridWays)
    {
        SState& state = StateOf(way);
        if (!std::exchange(state.bChanged, false))
            continue;
        const std::optional<SThumb> thumb = Thumb(way);
        if (thumb && thumb != state.painted)
            PaintBar(way);
        state.painted = thumb;
    }
}

/// A position that is set to what it is may be left unpainted: so it is another one first.
void CGridScrollBars::PaintBar(EGridWay way)
{
    SCROLLINFO info = Asking(SIF_POS);
    if (!::GetScrollInfo(m_window.m_hWnd, gfnBarOf(way), &info))
        return;
    const int nPos = info.nPos;
    info.nPos = nPos > 0 ? nPos - 1 : nPos + 1;
    ::SetScrollInfo(m_window.m_hWnd, gfnBarOf(way), &info, FALSE);
    info.nPos = nPos;
    ::SetScrollInfo(m_window.m_hWnd, gfnBarOf(way), &info, TRUE);
}

void CGridScrollBars::FramePainted()
{
    for (const EGridWay way : kGridWays)
        if (StateOf(way).painted != Thumb(way))
            StateOf(way).painted.reset();
}
