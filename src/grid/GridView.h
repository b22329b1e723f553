#pragma once
// For the grid's own sources: which cells of a grid show, and where they stand in its client area.
//
//     const CGridView view(rows, columns, CCellID(5, 1), client);   // scrolled down to row 5
//     CRect rect;
//     if (view.CellRect(CCellID(6, 2), rect)) ...
//     const CCellID cell = view.CellAt(point);
//
// It asks the axes whenever it is asked, so changes of sizes are seen, and it must not outlive them; what the
// view is scrolled to, and the size of the client area, stay as they were given. Rectangles hold their last
// pixel. A cell that is scrolled away above or to the left has no place; one beyond the other edges has.

#include <afxwin.h>

#include <optional>

#include "grid/GridAxis.h"
#include "grid/GridTypes.h"
#include "grid/GridWay.h"
#include "module/Export.h"

class OW_DIALOGCONTROLS_API CGridView
{
public:
    /// `topLeft`: the first body cell in view.
    CGridView(const CGridAxis& rows, const CGridAxis& cols, CCellID topLeft, CSize client)
        : m_rows(rows), m_cols(cols), m_topLeft(topLeft), m_client(client)
    {
    }

    const CGridAxis& Axis(EGridWay way) const { return way == EGridWay::eColumns ? m_cols : m_rows; }
    const CCellID& TopLeft() const { return m_topLeft; }
    const CSize& Client() const { return m_client; }
    /// Where the body begins.
    CPoint Body() const { return CPoint(m_cols.FixedExtent(), m_rows.FixedExtent()); }

    // FALSE, and nothing answered, for a cell that has no place or is not there.
    bool Origin(const CCellID& cell, POINT& point) const;
    bool CellRect(const CCellID& cell, RECT& rect) const;
    /// From the first cell of a range to the last.
    bool RangeRect(const CCellRange& range, RECT& rect) const;

    /// -1 in each direction in which there is no cell, or only a fixed one and those are not asked for.
    CCellID CellAt(CPoint point, bool bFixedToo = true) const;
    /// A point from a cell's origin; (0, 0) for a cell that has no place.
    CPoint FromOrigin(const CCellID& cell, CPoint point) const;

    /// The body cells that show at least in part. `pCovered` receives what they and the fixed ones cover.
    CCellRange Visible(RECT* pCovered = nullptr) const;
    /// Only those that show whole. One that ends exactly on the edge does.
    CCellRange VisibleWhole() const;
    /// Whether the top and left edges of a cell, fixed or not, lie in the client area.
    bool Shows(const CCellID& cell) const;

    struct SBeyond
    {
        bool bOn;    ///< behind the client area, and not in front of the body
        CPoint edge; ///< the nearest point from which a drag goes on
    };
    /// Where a point lies that has left what scrolls along a way; nothing for one that has not.
    std::optional<SBeyond> Beyond(EGridWay way, CPoint point) const;

    /// What scrolls along a way: all but the fixed items at its start.
    CRect ScrollingPart(EGridWay way) const;

private:
    bool HasPlace(EGridWay way, const CCellID& cell) const;
    CGridAxis::SVisible VisibleAlong(EGridWay way) const;

    const CGridAxis& m_rows;
    const CGridAxis& m_cols;
    CCellID m_topLeft;
    CSize m_client;
};
