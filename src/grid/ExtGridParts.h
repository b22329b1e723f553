#pragma once
// For the sources of the extended grids: what CExtGridCtrl and CExtGridCtrl2 share.

#include "grid/GridCtrl.h"

/// Stops a grid's drawing for as long as it stands. Afterwards drawing is on and the whole window invalid,
/// also if the caller had switched it off: that is wanted.
class CGridDrawingStop
{
public:
    explicit CGridDrawingStop(CGridCtrl& grid) : m_grid(grid) { m_grid.SetRedraw(FALSE); }
    ~CGridDrawingStop() { m_grid.SetRedraw(TRUE, TRUE); }
    CGridDrawingStop(const CGridDrawingStop&) = delete;
    CGridDrawingStop& operator=(const CGridDrawingStop&) = delete;

private:
    CGridCtrl& m_grid;
};

/// The colour of what is neither current nor coloured by the client. White itself, not CLR_INHERIT: a cell
/// that was current keeps a colour of its own.
constexpr COLORREF kRestingColor = RGB(255, 255, 255);

// Backgrounds of a row's or a column's cells beyond the fixed ones. Without effect in virtual mode, and
// outside the grid.

inline void gfnPaintRow(CGridCtrl& grid, int nRow, COLORREF cr)
{
    for (int nCol = grid.GetFixedColumnCount(); nCol < grid.GetColumnCount(); ++nCol)
        grid.SetItemBkColour(nRow, nCol, cr);
}

/// `colorOfRow` answers the colour for a row's index.
template <class ColorOfRow>
void gfnPaintColumn(CGridCtrl& grid, int nCol, ColorOfRow colorOfRow)
{
    for (int nRow = grid.GetFixedRowCount(); nRow < grid.GetRowCount(); ++nRow)
        grid.SetItemBkColour(nRow, nCol, colorOfRow(nRow));
}

/// The id that handlers are told; 0 while there is no window.
inline int gfnControlId(const CWnd& grid)
{
    return grid.GetSafeHwnd() ? grid.GetDlgCtrlID() : 0;
}

/// The cell that a GridNotify record is about.
inline CCellID gfnCellOf(const NMHDR* pNMHDR)
{
    const auto& record = reinterpret_cast<const GridNotify&>(*pNMHDR);
    return CCellID(record.iRow, record.iColumn);
}
