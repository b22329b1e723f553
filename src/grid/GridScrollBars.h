#pragma once
// For the grid's own sources: its pair of scroll bars. What they are to be for given sizes, where a scroll
// message moves one, and when they are painted.
//
//     const SGridBarPlan plan = gfnPlanGridBars(area, fixed, all, thickness);
//     m_bars.SetRange(EGridWay::eRows, plan.Of(EGridWay::eRows));
//     m_bars.SetPos(EGridWay::eRows, 40);      // nothing is painted yet
//     void CMyGrid::OnPaint() { m_bars.Paint(); ... }
//     void CMyGrid::OnNcPaint() { Default(); m_bars.FramePainted(); }
//
// COST
//
// The system takes as long to paint one bar as a grid takes for all its cells. So a change is set without
// painting, and the window's next paint looks at the bars: however often one has changed, it is painted once,
// and not at all if its thumb stands on the pixels where it was painted last. That is most single lines of a
// large table. A change that moves the thumb asks for that paint, if nothing else does.

#include <afxwin.h>

#include <optional>

#include "grid/GridAxis.h"
#include "grid/GridWay.h"
#include "module/Export.h"

// ---- What the bars are to be ------------------------------------------------------------------------------

struct SGridBar
{
    bool bShows = false;
    int nMax = 0;  ///< the greatest value of its range, in pixels; 0 without a bar
    int nPage = 0; ///< pixels that show of the part that scrolls
};

struct SGridBarPlan
{
    bool bOnlyHeadersFit = false; ///< there is nothing to scroll, and the bars are not told
    SGridBar horizontal;
    SGridBar vertical;

    const SGridBar& Of(EGridWay way) const { return way == EGridWay::eColumns ? horizontal : vertical; }
};

/// `area`: the client area as it would be without bars. `fixed`, `all`: what the fixed rows and columns, and
/// all of them, take up. `thickness`: width of a vertical and height of a horizontal bar.
OW_DIALOGCONTROLS_API SGridBarPlan gfnPlanGridBars(CSize area, CSize fixed, CSize all, CSize thickness);

// ---- Where a message moves them ---------------------------------------------------------------------------

/// How far a view is scrolled along one way.
struct SGridScrollState
{
    int nPos;   ///< of the bar
    int nMax;   ///< of its range
    int nPage;  ///< pixels that scroll, as they show
    int nFirst; ///< the first item that shows behind the fixed ones
};

/// The position that a line, a page or an end of the bar leads to; nothing if that moves nothing, or for
/// another code. A line on may lead past the range: the bar limits it.
OW_DIALOGCONTROLS_API std::optional<int> gfnScrolledPos(UINT nSBCode, const CGridAxis& axis,
                                                        const SGridScrollState& state);

// ---- The bars of a window ---------------------------------------------------------------------------------

class OW_DIALOGCONTROLS_API CGridScrollBars
{
public:
    /// The window need not exist yet; it is not owned.
    explicit CGridScrollBars(CWnd& window) : m_window(window) {}

    /// Whether the window has the bar, whatever a grid's books say.
    bool IsInWindow(EGridWay way) const;
    /// A client area as it would be without them. One that has no extent stays without.
    CSize AreaWithout(CSize client) const;

    int Pos(EGridWay way) const;
    /// While the user drags the thumb; 0 if it cannot be told.
    int TrackPos(EGridWay way) const;
    /// Answers what SetScrollInfo does. Without `bRepaint` the bar keeps its looks until somebody paints it.
    int SetPos(EGridWay way, int nPos, bool bRepaint = true);
    void SetRange(EGridWay way, const SGridBar& bar);
    /// The user drags the thumb, which the system paints by itself meanwhile.
    void Tracked(EGridWay way) { StateOf(way).painted.reset(); }

    /// Belongs into the window's WM_PAINT, before its paint context.
    void Paint();
    /// Belongs behind its WM_NCPAINT: the system has painted what it found, maybe a part only.
    void FramePainted();
    /// For another window of the same object.
    void Forget() { m_states[0] = m_states[1] = SState(), m_bPaintAsked = false; }

private:
    struct SThumb
    {
        int nFirst;
        int nEnd;
        friend bool operator==(const SThumb&, const SThumb&) = default;
    };
    struct SState
    {
        bool bChanged = false;         ///< since it was painted
        std::optional<SThumb> painted; ///< where the thumb is on the screen, if that is known
    };

    SState& StateOf(EGridWay way) { return m_states[gfnBarOf(way)]; }
    std::optional<SThumb> Thumb(EGridWay way) const;
    void Changed(EGridWay way);
    void PaintBar(EGridWay way);

    CWnd& m_window;
    SState m_states[2];
    bool m_bPaintAsked = false;
};
