#include <afxwin.h>

#include "grid/GridDivider.h"

#include <algorithm>

namespace
{
constexpr int kMarkerWidth = 2; ///< pixels
} // namespace

// Dividers are alive over the headers only.
bool CGridDividers::IsAt(CPoint point) const
{
    const EGridWay across = gfnOtherWay(m_way);
    if (gfnAlong(across, point) >= m_view.Axis(across).FixedExtent())
        return false;
    const CCellID cell = m_view.CellAt(point);
    CRect rect;
    if (!m_view.CellRect(cell, rect))
        return false;
    const int nFromStart = Along(point) - Along(rect.TopLeft());
    const int nToEnd = Along(rect.BottomRight()) + 1 - Along(point);
    return (nFromStart < m_nReach && gfnItemAlong(m_way, cell) != 0) || nToEnd < m_nReach;
}

// A column is looked up in row 0. A row is looked up in the column of the press, and again in column 0.
CGridDividers::STaken CGridDividers::Take(CCellID& pressed, CPoint point, bool bOpensHidden) const
{
    const bool bColumn = m_way == EGridWay::eColumns;
    int& nItem = gfnItemAlong(m_way, pressed);
    const int nLast = m_axis.Count() - 1;
    const bool bLastNearlyClosed = m_axis.Size(nLast) < m_nReach;
    CRect rectVisible;
    m_view.Visible(&rectVisible);
    if (bLastNearlyClosed && Along(rectVisible.BottomRight()) - Along(point) < m_nReach)
        nItem = nLast;

    STaken taken;
    CPoint start;
    if (!m_view.Origin(bColumn ? CCellID(0, pressed.col) : pressed, start))
        return taken;
    const bool bBefore = Along(point) - Along(start) < m_nReach;
    if (!bOpensHidden && (bBefore || nItem != nLast) && !PassHidden(nItem, bBefore))
        return taken;

    taken.bMarked = true;
    if (bBefore && (nItem != nLast || !bLastNearlyClosed))
    {
        --nItem;
        if (!m_view.Origin(bColumn ? CCellID(0, pressed.col) : CCellID(pressed.row, 0), start))
            return taken;
    }
    taken.bHeld = true;
    taken.rectHeld = HeldRect(start);
    return taken;
}

/// Steps back to where the item at the divider, or with `bBefore` the one before it, shows. False past the
/// first.
bool CGridDividers::PassHidden(int& nItem, bool bBefore) const
{
    const int nBack = bBefore ? 1 : 0;
    while (!m_axis.IsShown(nItem - nBack))
    {
        --nItem;
        if (nItem - nBack < 0)
            return false;
    }
    return true;
}

/// Not before the start of what is being sized, and at most as far as the scrolling part is wide.
CRect CGridDividers::HeldRect(POINT start) const
{
    CRect rect(CPoint(0, 0), m_view.Client());
    const int nFirst = Along(start) + 1;
    gfnStartAlong(m_way, rect) = nFirst;
    gfnEndAlong(m_way, rect) = nFirst + gfnAlong(m_way, m_view.Client()) - m_axis.FixedExtent();
    return rect;
}

CRect CGridDividers::Marker(CPoint point) const
{
    CRect rect(CPoint(0, 0), m_view.Client());
    gfnStartAlong(m_way, rect) = Along(point);
    gfnEndAlong(m_way, rect) = Along(point) + kMarkerWidth;
    return rect;
}

bool CGridDividers::Drop(const CCellID& pressed, CPoint point, bool bMayHide, int& nSize) const
{
    CPoint start;
    if (!m_view.Origin(pressed, start))
        return false;
    nSize = std::max(bMayHide ? 0 : 1, Along(point) - Along(start));
    return true;
}

// For both ways the start is that of the cell in row 0: that is right for columns, and makes a row's divider
// mean the row under the pointer in all but the top few pixels.
int CGridDividers::Fit(const CCellID& cell, CPoint point) const
{
    CPoint start;
    if (!m_view.Origin(CCellID(0, cell.col), start))
        return -1;
    int nItem = gfnItemAlong(m_way, cell) - (Along(point) - Along(start) < m_nReach ? 1 : 0);
    while (nItem >= 0 && !m_axis.IsShown(nItem))
        --nItem;
    return nItem;
}
