#include <afxwin.h>

#include "grid/GridView.h"

#include <algorithm>

namespace
{
/// The last pixel of what begins at a place, or the furthest that has a pixel behind it.
int LastPixel(int nStart, int nSize)
{
    return gfnSaturated(LONGLONG(nStart) + nSize) - 1;
}
} // namespace

// ---- Cells to pixels --------------------------------------------------------------------------------------

bool CGridView::HasPlace(EGridWay way, const CCellID& cell) const
{
    const int nItem = gfnItemAlong(way, cell);
    return Axis(way).Has(nItem) && (Axis(way).IsFixed(nItem) || nItem >= gfnItemAlong(way, m_topLeft));
}

bool CGridView::Origin(const CCellID& cell, POINT& point) const
{
    if (!HasPlace(EGridWay::eColumns, cell) || !HasPlace(EGridWay::eRows, cell))
        return false;
    point.x = m_cols.Origin(cell.col, m_topLeft.col);
    point.y = m_rows.Origin(cell.row, m_topLeft.row);
    return true;
}

bool CGridView::CellRect(const CCellID& cell, RECT& rect) const
{
    return RangeRect(CCellRange(cell.row, cell.col, cell.row, cell.col), rect);
}

bool CGridView::RangeRect(const CCellRange& range, RECT& rect) const
{
    CPoint first, last;
    if (!Origin(CCellID(range.minRow, range.minCol), first) ||
        !Origin(CCellID(range.maxRow, range.maxCol), last))
        return false;
    ::SetRect(&rect, first.x, first.y, LastPixel(last.x, m_cols.Size(range.maxCol)),
              LastPixel(last.y, m_rows.Size(range.maxRow)));
    return true;
}

// ---- Pixels to cells --------------------------------------------------------------------------------------

CCellID CGridView::CellAt(CPoint point, bool bFixedToo) const
{
    return CCellID(m_rows.ItemAt(point.y, m_topLeft.row, bFixedToo),
                   m_cols.ItemAt(point.x, m_topLeft.col, bFixedToo));
}

CPoint CGridView::FromOrigin(const CCellID& cell, CPoint point) const
{
    CPoint origin;
    return Origin(cell, origin) ? CPoint(point.x - origin.x, point.y - origin.y) : CPoint(0, 0);
}

// ---- What shows -------------------------------------------------------------------------------------------

CGridAxis::SVisible CGridView::VisibleAlong(EGridWay way) const
{
    return Axis(way).Visible(gfnItemAlong(way, m_topLeft), gfnAlong(way, m_client));
}

CCellRange CGridView::Visible(RECT* pCovered) const
{
    const CGridAxis::SVisible rows = VisibleAlong(EGridWay::eRows);
    const CGridAxis::SVisible cols = VisibleAlong(EGridWay::eColumns);
    if (pCovered)
        ::SetRect(pCovered, 0, 0, cols.bReachesEnd ? m_client.cx : cols.nEnd,
                  rows.bReachesEnd ? m_client.cy : rows.nEnd);
    return CCellRange(m_topLeft.row, m_topLeft.col, rows.nLast, cols.nLast);
}

CCellRange CGridView::VisibleWhole() const
{
    const auto lastWhole = [&](EGridWay way)
    {
        const CGridAxis::SVisible visible = VisibleAlong(way);
        const bool bCutOff = visible.nLast > 0 && visible.nEnd > gfnAlong(way, m_client);
        return bCutOff ? visible.nLast - 1 : visible.nLast;
    };
    return CCellRange(m_topLeft.row, m_topLeft.col, lastWhole(EGridWay::eRows),
                      lastWhole(EGridWay::eColumns));
}

bool CGridView::Shows(const CCellID& cell) const
{
    CPoint origin;
    return Origin(cell, origin) && origin.x < m_client.cx && origin.y < m_client.cy;
}

// Behind the client area that is the first pixel that does not show; in front of the body, its second one.
std::optional<CGridView::SBeyond> CGridView::Beyond(EGridWay way, CPoint point) const
{
    const EGridWay across = gfnOtherWay(way);
    const int nAcross = std::clamp(gfnAlong(across, point), 0, gfnAlong(across, m_client));
    const int nBody = Axis(way).FixedExtent();
    const int nEnd = gfnAlong(way, m_client);
    if (gfnAlong(way, point) > nEnd)
        return SBeyond{true, gfnPointAlong(way, nEnd, nAcross)};
    if (gfnAlong(way, point) < nBody)
        return SBeyond{false, gfnPointAlong(way, nBody + 1, nAcross)};
    return {};
}

CRect CGridView::ScrollingPart(EGridWay way) const
{
    CRect rect(CPoint(0, 0), m_client);
    gfnStartAlong(way, rect) = Axis(way).FixedExtent();
    return rect;
}
