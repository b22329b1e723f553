// The focus cell, the selection, and the walk through cells by state.

#include <afxwin.h>

#include "grid/GridCtrl.h"

#include "grid/GridClientArea.h"
#include "grid/GridLifeWatch.h"
#include "grid/GridStateWalk.h"

#include <algorithm>
#include <memory>

// ---- The selection's books --------------------------------------------------------------------------------

// With selection off a cell counts as not selected: its bit then comes and goes, and its entry comes and
// stays.
BOOL CGridCtrl::SetItemState(int nRow, int nCol, UINT nState)
{
    const BOOL bWasSelected = IsCellSelected(nRow, nCol);
    if (bWasSelected && !(nState & CELL_SELECTED))
        m_mapSelected.Remove(nRow, nCol);
    if (!bWasSelected && (nState & CELL_SELECTED))
        m_mapSelected.Add(nRow, nCol);

    CGridCellBase* const pCell = GetCellToChange(nRow, nCol);
    if (!pCell)
        return FALSE;
    pCell->SetState(nState);
    return TRUE;
}

BOOL CGridCtrl::IsCellSelected(CCellID& cell) const
{
    return IsCellSelected(cell.row, cell.col);
}

BOOL CGridCtrl::IsCellSelected(int nRow, int nCol) const
{
    if (!m_bEnableSelection)
        return FALSE;
    return m_bVirtualMode ? m_mapSelected.Has(nRow, nCol) : (GetItemState(nRow, nCol) & CELL_SELECTED) != 0;
}

CCellRange CGridCtrl::GetSelectedCellRange()
{
    return m_mapSelected.Around(GetRowCount(), GetColumnCount());
}

CCellID CGridCtrl::GetNextItem(CCellID& start, int nFlags) const
{
    return gfnNextCell(m_rows, m_cols, start, nFlags,
                       [this](int nRow, int nCol) { return GetItemState(nRow, nCol); });
}

// ---- Focus ------------------------------------------------------------------------------------------------

CCellID CGridCtrl::SetFocusCell(int nRow, int nCol)
{
    return SetFocusCell(CCellID(nRow, nCol), TRUE);
}

CCellID CGridCtrl::SetFocusCell(CCellID cell, BOOL bNotify)
{
    const CCellID old = m_focusCell;
    if (cell == old)
        return old;
    if (cell.row != -1)
        cell.row = std::max(cell.row, m_rows.Fixed());
    if (cell.col != -1)
        cell.col = std::max(cell.col, m_cols.Fixed());
    m_focusCell = cell;

    ShowFocus(old, false, cell);
    ShowFocus(cell, true, old);
    if (bNotify && IsValid(cell))
        SendMessageToParent(cell.row, cell.col, LVN_ITEMCHANGED);
    return old;
}

/// Marks a cell, and shows it there and in the headers that it does not share with the other one.
void CGridCtrl::ShowFocus(const CCellID& cell, bool bFocused, const CCellID& other)
{
    if (!IsValid(cell))
        return;
    MarkItem(cell, CELL_FOCUSED, bFocused);
    RedrawCell(cell);
    if (!m_bTrackFocusCell)
        return;
    for (int nRow = 0; cell.col != other.col && nRow < m_rows.Fixed(); ++nRow)
        RedrawCell(nRow, cell.col);
    for (int nCol = 0; cell.row != other.row && nCol < m_cols.Fixed(); ++nCol)
        RedrawCell(cell.row, nCol);
}

// ---- Ranges -----------------------------------------------------------------------------------------------

/// One change of the selection: the cells, the books, and what of it shows on the screen.
class CGridCtrl::CSelectPass
{
public:
    CSelectPass(CGridCtrl& grid, bool bAtOnce) : m_grid(grid)
    {
        if (!::IsWindow(grid.m_hWnd))
            return;
        if (bAtOnce)
            m_pArea = std::make_unique<CClientArea>(grid);
        m_visible = grid.GetVisibleNonFixedCellRange();
    }

    /// Everything, in the books and in the cells. What lies in the new range is repainted when that is
    /// selected.
    void UnselectAll(const CCellRange& newRange)
    {
        for (const CCellID& cell : m_grid.m_mapSelected.Cells())
        {
            if (!m_grid.IsValid(cell))
                m_grid.m_mapSelected.Remove(cell.row, cell.col);
            else
                Mark(cell, false, !newRange.InRange(cell.row, cell.col));
        }
    }

    /// What was selected before a gesture with Ctrl began.
    void SelectAgain()
    {
        for (const CCellID& cell : m_grid.m_mapPrevSelected.Cells())
            if (m_grid.IsValid(cell))
                Mark(cell, true, true);
    }

    void Change(const CCellRange& range, bool bSelect)
    {
        range.ForEach(
            [&](int nRow, int nCol)
            {
                if ((m_grid.IsCellSelected(nRow, nCol) != FALSE) != bSelect)
                    Mark(CCellID(nRow, nCol), bSelect, true);
            });
    }

private:
    void Mark(const CCellID& cell, bool bSelected, bool bRepaint)
    {
        m_grid.MarkItem(cell, CELL_SELECTED, bSelected);
        if (bRepaint && m_visible.InRange(cell.row, cell.col))
            Repaint(cell);
    }
    void Repaint(const CCellID& cell)
    {
        if (CDC* const pDC = m_pArea ? m_pArea->DC() : nullptr)
            m_grid.RedrawCell(cell, pDC);
        else
            m_grid.InvalidateCellRect(cell);
    }

    CGridCtrl& m_grid;
    CCellRange m_visible;
    std::unique_ptr<CClientArea> m_pArea; ///< only when repainting at once
};

void CGridCtrl::SetSelectedRange(const CCellRange& range, BOOL bForceRepaint, BOOL bSelectCells)
{
    SetSelectedRange(range.minRow, range.minCol, range.maxRow, range.maxCol, bForceRepaint, bSelectCells);
}

void CGridCtrl::SetSelectedRange(int nMinRow, int nMinCol, int nMaxRow, int nMaxCol, BOOL bForceRepaint,
                                 BOOL bSelectCells)
{
    if (!m_bEnableSelection)
        return;
    CSelectPass pass(*this, bForceRepaint != FALSE);
    // A negative bound stays: it means that nothing is to be selected.
    const auto raised = [](int nItem, const CGridAxis& axis)
    { return nItem >= 0 ? std::max(nItem, axis.Fixed()) : nItem; };
    const CCellRange range(raised(nMinRow, m_rows), raised(nMinCol, m_cols), raised(nMaxRow, m_rows),
                           raised(nMaxCol, m_cols));
    const bool bAllBounds = range.minRow >= 0 && range.minCol >= 0 && range.maxRow >= 0 && range.maxCol >= 0;

    if (bSelectCells)
    {
        pass.UnselectAll(range);
        if (!GetSingleRowSelection())
        {
            if (range.minRow < 0)
                return;
            if (bAllBounds)
                pass.SelectAgain();
        }
    }
    if (IsValid(range))
        pass.Change(range, bSelectCells != FALSE);
}

void CGridCtrl::ResetSelectedRange()
{
    m_mapPrevSelected.RemoveAll();
    SetSelectedRange(CCellRange(), FALSE, TRUE);
    SetFocusCell(CCellID(), TRUE);
}

void CGridCtrl::SelectAllCells()
{
    SetSelectedRange(GetCellRange(), FALSE, TRUE);
}

void CGridCtrl::SelectColumns(CCellID cell, BOOL bForceRepaint, BOOL bSelectCells)
{
    SelectLines(EGridWay::eColumns, m_bSingleColSelection, cell, bForceRepaint, bSelectCells);
}

void CGridCtrl::SelectRows(CCellID cell, BOOL bForceRepaint, BOOL bSelectCells)
{
    SelectLines(EGridWay::eRows, GetSingleRowSelection(), cell, bForceRepaint, bSelectCells);
}

/// Whole rows, or columns, from that of the anchor to that of the cell, or `bOne` only.
void CGridCtrl::SelectLines(EGridWay way, BOOL bOne, const CCellID& cell, BOOL bForceRepaint,
                            BOOL bSelectCells)
{
    const int nTo = gfnItemAlong(way, cell);
    if (!IsValid(cell) || Axis(way).IsFixed(nTo))
        return;
    const int nFrom = bOne ? nTo : gfnItemAlong(way, m_selectionStart);
    SetSelectedRange(CellsOf(way, std::min(nFrom, nTo), std::max(nFrom, nTo) + 1), bForceRepaint,
                     bSelectCells);
}

void CGridCtrl::SelectCells(CCellID cell, BOOL bForceRepaint, BOOL bSelectCells)
{
    if (!IsValid(cell) || IsCellFixed(cell.row, cell.col))
        return;
    SetSelectedRange(std::min(m_selectionStart.row, cell.row), std::min(m_selectionStart.col, cell.col),
                     std::max(m_selectionStart.row, cell.row), std::max(m_selectionStart.col, cell.col),
                     bForceRepaint, bSelectCells);
}

/// Begins a gesture that selects in one way.
void CGridCtrl::SelectBy(int nMode, const CCellID& cell)
{
    m_nMouseMode = nMode;
    OnSelecting(cell);
}

/// Selects up to a cell, in the way of the gesture that is going on.
void CGridCtrl::OnSelecting(const CCellID& cell)
{
    switch (m_nMouseMode)
    {
    case MODE_SELECT_ALL:
        SelectAllCells();
        break;
    case MODE_SELECT_COL:
        SelectColumns(cell, FALSE, TRUE);
        break;
    case MODE_SELECT_ROW:
        SelectRows(cell, FALSE, TRUE);
        break;
    case MODE_SELECT_CELLS:
        SelectCells(cell, FALSE, TRUE);
        break;
    default:
        break;
    }
}

// ---- Clicks on headers, and the command -------------------------------------------------------------------

void CGridCtrl::OnFixedRowClick(CCellID& cell)
{
    if (!IsValid(cell))
        return;
    if (m_bHeaderSort)
    {
        const CLifeWatch life(*this);
        const CWaitCursor wait;
        SortItems(cell.col, cell.col == m_nSortColumn ? !m_bSortAscending : TRUE);
        if (!life.WindowLives())
            return;
        Invalidate();
    }
    if (m_bFixedRowSelection)
        SelectBy(m_cols.IsFixed(cell.col) ? MODE_SELECT_ALL : MODE_SELECT_COL, cell);
}

void CGridCtrl::OnFixedColumnClick(CCellID& cell)
{
    if (IsValid(cell) && m_bFixedColumnSelection)
        SelectBy(m_rows.IsFixed(cell.row) ? MODE_SELECT_ALL : MODE_SELECT_ROW, cell);
}

// The focus does not move, and is reported all the same.
void CGridCtrl::OnEditSelectAll()
{
    const CLifeWatch life(*this);
    SendMessageToParent(m_clickDownCell.row, m_clickDownCell.col, LVN_ITEMCHANGING);
    if (!life.ObjectLives())
        return;
    SelectAllCells();
    SendMessageToParent(m_focusCell.row, m_focusCell.col, LVN_ITEMCHANGED);
}

void CGridCtrl::OnUpdateEditSelectAll(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(m_bEnableSelection);
}

// ---- Settings ---------------------------------------------------------------------------------------------

// Dropped before, while entries can still be taken out, and after.
void CGridCtrl::EnableSelection(BOOL bEnable)
{
    ResetSelectedRange();
    m_bEnableSelection = bEnable;
    ResetSelectedRange();
}

void CGridCtrl::SetListMode(BOOL bEnableListMode)
{
    ResetSelectedRange();
    SetSortColumn(-1);
    m_bListMode = bEnableListMode;
    m_bFixedRowSelection = FALSE;
    InvalidateGrid();
}
