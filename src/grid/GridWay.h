#pragma once
// Rows and columns as the two ways that one operation can go. Columns follow one another along x, and the
// horizontal scroll bar scrolls them; rows along y.
//
// The codes of scroll messages mean the same for both bars, and have two names each, as SB_LINEUP and
// SB_LINELEFT are one. What goes both ways uses those of the vertical bar.

#include <afxwin.h>

#include "grid/GridTypes.h"

enum class EGridWay
{
    eColumns = SB_HORZ,
    eRows = SB_VERT
};

constexpr EGridWay kGridWays[] = {EGridWay::eColumns, EGridWay::eRows};

constexpr EGridWay gfnOtherWay(EGridWay way)
{
    return way == EGridWay::eColumns ? EGridWay::eRows : EGridWay::eColumns;
}

/// The SB_ number of its scroll bar.
constexpr int gfnBarOf(EGridWay way)
{
    return static_cast<int>(way);
}

inline int gfnAlong(EGridWay way, POINT point)
{
    return way == EGridWay::eColumns ? point.x : point.y;
}

inline int gfnAlong(EGridWay way, SIZE size)
{
    return way == EGridWay::eColumns ? size.cx : size.cy;
}

/// The point so far along the way, and so far across it.
inline CPoint gfnPointAlong(EGridWay way, int nAlong, int nAcross)
{
    return way == EGridWay::eColumns ? CPoint(nAlong, nAcross) : CPoint(nAcross, nAlong);
}

inline int& gfnItemAlong(EGridWay way, CCellID& cell)
{
    return way == EGridWay::eColumns ? cell.col : cell.row;
}

inline int gfnItemAlong(EGridWay way, const CCellID& cell)
{
    return way == EGridWay::eColumns ? cell.col : cell.row;
}

/// Where a rectangle begins, to be set.
inline LONG& gfnStartAlong(EGridWay way, RECT& rect)
{
    return way == EGridWay::eColumns ? rect.left : rect.top;
}

inline LONG& gfnEndAlong(EGridWay way, RECT& rect)
{
    return way == EGridWay::eColumns ? rect.right : rect.bottom;
}
