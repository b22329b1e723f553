#pragma once
// For the grid's own sources: the dividers between columns, or between rows, which the mouse drags. Where one
// can be taken, which column or row it sizes, and to what size.
//
//     CGridDividers dividers(EGridWay::eColumns, view, 3);
//     if (dividers.IsAt(point)) ...                        // over the headers, 3 pixels on either side
//     const auto taken = dividers.Take(pressed, point, true);
//     ...
//     int nSize;
//     if (dividers.Drop(pressed, releasePoint, true, nSize)) ... // of pressed.col
//
// Columns and rows differ in one thing, which is wanted: where a drag or a double click looks for the start
// of what it sizes is told at Take and Fit.

#include <afxwin.h>

#include "grid/GridView.h"

class OW_DIALOGCONTROLS_API CGridDividers
{
public:
    /// `nReach`: pixels on either side of a divider that belong to it.
    CGridDividers(EGridWay way, const CGridView& view, int nReach)
        : m_way(way), m_view(view), m_axis(m_view.Axis(way)), m_nReach(nReach)
    {
    }

    bool IsAt(CPoint point) const;

    struct STaken
    {
        bool bMarked = false; ///< there is something to size: its marker shows
        bool bHeld = false;   ///< and the cursor is to be held in `rectHeld`
        CRect rectHeld;       ///< in client coordinates
    };
    /// A press on a divider. `pressed` is the cell under it, and becomes that of what is sized: the item
    /// before, if the press was on its far side, or the last one, if that is nearly closed. Without
    /// `bOpensHidden` the nearest item that shows takes the place of a hidden one.
    STaken Take(CCellID& pressed, CPoint point, bool bOpensHidden) const;

    /// The line that shows where a divider would go.
    CRect Marker(CPoint point) const;

    /// The size that a release gives to what was taken; false if that is not in view any more.
    bool Drop(const CCellID& pressed, CPoint point, bool bMayHide, int& nSize) const;

    /// What a double click sizes to its contents, or -1.
    int Fit(const CCellID& cell, CPoint point) const;

private:
    int Along(POINT point) const { return gfnAlong(m_way, point); }
    bool PassHidden(int& nItem, bool bBefore) const;
    CRect HeldRect(POINT start) const;

    EGridWay m_way;
    const CGridView m_view;
    const CGridAxis& m_axis;
    int m_nReach;
};
