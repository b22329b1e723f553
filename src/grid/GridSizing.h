#pragma once
// For the grid's own sources: a column or row that the mouse sizes. CGridDividers says where the dividers are
// and what a drag makes of them; this is what the grid does about it.

#include "grid/GridClientArea.h"
#include "grid/GridCtrl.h"
#include "grid/GridDivider.h"
#include "grid/GridLifeWatch.h"

/// The dividers that the mouse is over or drags, by the mode.
class CGridCtrl::CSizing
{
public:
    explicit CSizing(CGridCtrl& grid)
        : m_grid(grid),
          m_bColumns(grid.m_nMouseMode == MODE_OVER_COL_DIVIDE || grid.m_nMouseMode == MODE_SIZING_COL),
          m_dividers(m_bColumns ? EGridWay::eColumns : EGridWay::eRows, grid.GetView(),
                     grid.m_nResizeCaptureRange)
    {
    }

    static bool IsOver(const CGridCtrl& grid)
    {
        return grid.m_nMouseMode == MODE_OVER_COL_DIVIDE || grid.m_nMouseMode == MODE_OVER_ROW_DIVIDE;
    }
    static bool IsOn(const CGridCtrl& grid)
    {
        return grid.m_nMouseMode == MODE_SIZING_COL || grid.m_nMouseMode == MODE_SIZING_ROW;
    }

    void ShowCursor() const { ::SetCursor(::LoadCursor(nullptr, m_bColumns ? IDC_SIZEWE : IDC_SIZENS)); }

    // What does not come to its end leaves the mode as it is and the cursor free; the release puts that
    // right.
    void Begin(CPoint point) const
    {
        m_grid.m_nMouseMode = m_bColumns ? MODE_SIZING_COL : MODE_SIZING_ROW;
        const BOOL bOpensHidden = m_bColumns ? m_grid.m_bHiddenColUnhide : m_grid.m_bHiddenRowUnhide;
        CGridDividers::STaken taken = m_dividers.Take(m_grid.m_clickDownCell, point, bOpensHidden != FALSE);
        if (taken.bMarked)
            InvertMarker(point);
        if (!taken.bHeld)
            return;
        m_grid.ClientToScreen(&taken.rectHeld);
        ::ClipCursor(&taken.rectHeld);
        m_grid.m_ptLastMouse = point;
    }

    void Drag(CPoint point) const
    {
        InvertMarker(m_grid.m_ptLastMouse);
        InvertMarker(point);
    }

    /// The new size from the release. False if what was sized is not in view any more.
    bool End(CPoint point) const
    {
        InvertMarker(m_grid.m_ptLastMouse);
        if (point == m_grid.m_ptClickClient || point == CPoint(0, 0))
            return true;
        const CCellID sized = m_grid.m_clickDownCell;
        const BOOL bMayHide = m_bColumns ? m_grid.m_bColumnHide : m_grid.m_bRowHide;
        int nSize = 0;
        if (!m_dividers.Drop(sized, point, bMayHide != FALSE, nSize))
            return false;
        const CLifeWatch life(m_grid); // a bar that comes or goes ends an edit
        if (m_bColumns)
            m_grid.SetColumnWidth(sized.col, nSize, TRUE);
        else
            m_grid.SetRowHeight(sized.row, nSize);
        if (!life.WindowLives())
            return false;
        m_grid.ResetScrollBars();
        m_grid.Invalidate();
        return true;
    }

    /// Sizes the column or row at a divider to its contents. False where there is none.
    bool Fit(const CCellID& cell, CPoint point) const
    {
        const int nItem = m_dividers.Fit(cell, point);
        if (nItem < 0)
            return false;
        const CLifeWatch life(m_grid);
        if (m_bColumns)
            m_grid.AutoSizeColumn(nItem, m_grid.m_nAutoSizeStyle, TRUE);
        else
            m_grid.AutoSizeRow(nItem, TRUE);
        if (!life.WindowLives())
            return false;
        m_grid.Invalidate();
        return true;
    }

private:
    void InvertMarker(CPoint point) const
    {
        const CClientArea area(m_grid);
        if (area.DC())
            area.DC()->InvertRect(CRect(m_dividers.Marker(point)));
    }

    CGridCtrl& m_grid;
    const bool m_bColumns;
    const CGridDividers m_dividers;
};
