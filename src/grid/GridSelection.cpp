// The focus cell, the selection, and the walk through cells by state.

#include <afxwin.h>

#include "grid/GridCtrl.h"

#include "grid/GridClientArea.h"
#include "grid/GridLifeWatch.h"

#include <algorithm>
#include <optional>

// ---- The selection's books --------------------------------------------------------------------------------

// With selection off a cell counts as not selected: its bit then comes and goes, and its entry comes and
// stays.
bool CGridCtrl::IsRecordedSelected(int nRow, int nCol) const
{
    if (!m_bEnableSelection)
        return false;
    return m_bVirtualMode ? m_mapSelected.Has(nRow, nCol) : (GetItemState(nRow, nCol) & CELL_SELECTED) != 0;
}

BOOL CGridCtrl::SetItemState(int nRow, int nCol, UINT nState)
{
    const bool bWasSelected = IsRecordedSelected(nRow, nCol);
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
    return IsRecordedSelected(nRow, nCol);
}

CCellRange CGridCtrl::GetSelectedCellRange()
{
    CCellRange range(GetRowCount(), GetColumnCount(), -1, -1);
    for (const CCellID& cell : m_mapSelected.Cells())
    {
        range.minRow = std::min(range.minRow, cell.row);
        range.minCol = std::min(range.minCol, cell.col);
        range.maxRow = std::max(range.maxRow, cell.row);
        range.maxCol = std::max(range.maxCol, cell.col);
    }
    return range;
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

    const bool bOtherRow = cell.row != old.row;
    const bool bOtherCol = cell.col != old.col;
    if (IsValid(old))
    {
        SetItemState(old.row, old.col, GetItemState(old.row, old.col) & ~CELL_FOCUSED);
        RedrawCell(old);
        RedrawHeadersOf(old, bOtherRow, bOtherCol);
    }
    if (IsValid(cell))
    {
        SetItemState(cell.row, cell.col, GetItemState(cell.row, cell.col) | CELL_FOCUSED);
        RedrawCell(cell);
        RedrawHeadersOf(cell, bOtherRow, bOtherCol);
        if (bNotify)
            SendMessageToParent(cell.row, cell.col, LVN_ITEMCHANGED);
    }
    return old;
}

/// The headers above and beside a cell, which show where the focus is.
void CGridCtrl::RedrawHeadersOf(const CCellID& cell, bool bRow, bool bCol)
{
    if (!m_bTrackFocusCell)
        return;
    for (int nRow = 0; bCol && nRow < m_rows.Fixed(); ++nRow)
        RedrawCell(nRow, cell.col);
    for (int nCol = 0; bRow && nCol < m_cols.Fixed(); ++nCol)
        RedrawCell(cell.row, nCol);
}

// ---- Ranges -----------------------------------------------------------------------------------------------

/// One pass of SetSelectedRange: what shows, and how a change is brought to the screen.
struct CGridCtrl::SSelectPass
{
    CCellRange visible;
    std::optional<CClientArea> area; ///< only when repainting at once
    CDC* DC() const { return area ? area->DC() : nullptr; }
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
    SSelectPass pass;
    if (::IsWindow(m_hWnd))
    {
        if (bForceRepaint)
            pass.area.emplace(*this);
        pass.visible = GetVisibleNonFixedCellRange();
    }

    // A negative bound stays: it means that nothing is to be selected.
    const auto raised = [](int nItem, const CGridAxis& axis)
    { return nItem >= 0 ? std::max(nItem, axis.Fixed()) : nItem; };
    const CCellRange range(raised(nMinRow, m_rows), raised(nMinCol, m_cols), raised(nMaxRow, m_rows),
                           raised(nMaxCol, m_cols));
    const bool bAllBounds = range.minRow >= 0 && range.minCol >= 0 && range.maxRow >= 0 && range.maxCol >= 0;

    if (bSelectCells)
    {
        UnselectAll(range, pass);
        if (!GetSingleRowSelection())
        {
            if (range.minRow < 0)
                return;
            if (bAllBounds)
                SelectAgain(pass);
        }
    }
    if (IsValid(range))
        ChangeRange(range, bSelectCells != FALSE, pass);
}

/// Everything, in the books and in the cells. What lies in the new range is repainted when that is selected.
void CGridCtrl::UnselectAll(const CCellRange& newRange, SSelectPass& pass)
{
    for (const CCellID& cell : m_mapSelected.Cells())
    {
        if (!IsValid(cell))
        {
            m_mapSelected.Remove(cell.row, cell.col);
            continue;
        }
        SetItemState(cell.row, cell.col, GetItemState(cell.row, cell.col) & ~CELL_SELECTED);
        if (!newRange.InRange(cell.row, cell.col))
            RepaintSelection(cell.row, cell.col, pass);
    }
}

/// What was selected before a gesture with Ctrl began.
void CGridCtrl::SelectAgain(SSelectPass& pass)
{
    for (const CCellID& cell : m_mapPrevSelected.Cells())
    {
        if (!IsValid(cell))
            continue;
        SetItemState(cell.row, cell.col, GetItemState(cell.row, cell.col) | CELL_SELECTED);
        RepaintSelection(cell.row, cell.col, pass);
    }
}

void CGridCtrl::ChangeRange(const CCellRange& range, bool bSelect, SSelectPass& pass)
{
    for (int nRow = range.minRow; nRow <= range.maxRow; ++nRow)
        for (int nCol = range.minCol; nCol <= range.maxCol; ++nCol)
        {
            if ((IsCellSelected(nRow, nCol) != FALSE) == bSelect)
                continue;
            const UINT nState = GetItemState(nRow, nCol);
            SetItemState(nRow, nCol, bSelect ? nState | CELL_SELECTED : nState & ~CELL_SELECTED);
            RepaintSelection(nRow, nCol, pass);
        }
}

void CGridCtrl::RepaintSelection(int nRow, int nCol, SSelectPass& pass)
{
    if (!pass.visible.InRange(nRow, nCol))
        return;
    if (pass.DC())
        RedrawCell(nRow, nCol, pass.DC());
    else
        InvalidateCellRect(nRow, nCol);
}

void CGridCtrl::ResetSelectedRange()
{
    m_mapPrevSelected.RemoveAll();
    SetSelectedRange(-1, -1, -1, -1, FALSE, TRUE);
    SetFocusCell(CCellID(), TRUE);
}

void CGridCtrl::SelectAllCells()
{
    if (m_bEnableSelection)
        SetSelectedRange(m_rows.Fixed(), m_cols.Fixed(), GetRowCount() - 1, GetColumnCount() - 1, FALSE,
                         TRUE);
}

void CGridCtrl::SelectColumns(CCellID cell, BOOL bForceRepaint, BOOL bSelectCells)
{
    if (!m_bEnableSelection || m_cols.IsFixed(cell.col) || !IsValid(cell))
        return;
    const int nFrom = m_bSingleColSelection ? cell.col : m_selectionStart.col;
    SetSelectedRange(m_rows.Fixed(), std::min(nFrom, cell.col), GetRowCount() - 1, std::max(nFrom, cell.col),
                     bForceRepaint, bSelectCells);
}

void CGridCtrl::SelectRows(CCellID cell, BOOL bForceRepaint, BOOL bSelectCells)
{
    if (!m_bEnableSelection || m_rows.IsFixed(cell.row) || !IsValid(cell))
        return;
    const int nFrom = GetSingleRowSelection() ? cell.row : m_selectionStart.row;
    SetSelectedRange(std::min(nFrom, cell.row), m_cols.Fixed(), std::max(nFrom, cell.row),
                     GetColumnCount() - 1, bForceRepaint, bSelectCells);
}

void CGridCtrl::SelectCells(CCellID cell, BOOL bForceRepaint, BOOL bSelectCells)
{
    if (!m_bEnableSelection || !IsBodyCell(cell))
        return;
    SetSelectedRange(std::min(m_selectionStart.row, cell.row), std::min(m_selectionStart.col, cell.col),
                     std::max(m_selectionStart.row, cell.row), std::max(m_selectionStart.col, cell.col),
                     bForceRepaint, bSelectCells);
}

/// Selects up to a cell, in the way of the gesture that is going on.
void CGridCtrl::OnSelecting(const CCellID& cell)
{
    if (!m_bEnableSelection)
        return;
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
    {
        m_nMouseMode = m_cols.IsFixed(cell.col) ? MODE_SELECT_ALL : MODE_SELECT_COL;
        OnSelecting(cell);
    }
}

void CGridCtrl::OnFixedColumnClick(CCellID& cell)
{
    if (!IsValid(cell) || !m_bFixedColumnSelection)
        return;
    m_nMouseMode = m_rows.IsFixed(cell.row) ? MODE_SELECT_ALL : MODE_SELECT_ROW;
    OnSelecting(cell);
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

// ---- Walking by state -------------------------------------------------------------------------------------

namespace
{
/// The state bits that a word of GVNI_ flags asks for.
UINT StatesAskedFor(int nFlags)
{
    UINT nStates = nFlags & (CELL_FOCUSED | CELL_SELECTED | CELL_DROPHILITED | CELL_READONLY | CELL_FIXED);
    if (nFlags & GVNI_MODIFIED)
        nStates |= CELL_MODIFIED;
    return nStates;
}
} // namespace

CCellID CGridCtrl::GetNextItem(CCellID& start, int nFlags) const
{
    // Outside there is nothing to be found; just so far outside that the next cell can still be named.
    const CCellID cell(std::clamp(start.row, -1, GetRowCount()), std::clamp(start.col, -1, GetColumnCount()));
    const UINT nStates = StatesAskedFor(nFlags);
    const auto matches = [&](int nRow, int nCol) { return (GetItemState(nRow, nCol) & nStates) != 0; };

    if ((nFlags & GVNI_AREA) == GVNI_AREA)
    {
        // With all three flags the rows below are searched from their start, otherwise from the start column
        // on.
        const bool bWholeRows = (nFlags & GVNI_ALL) == GVNI_ALL;
        const int nStartRow = cell.row < 1 ? m_rows.Fixed() : cell.row;
        const int nStartCol = cell.col + 1 < 1 ? m_cols.Fixed() : cell.col + 1;
        for (int nRow = nStartRow; nRow < GetRowCount(); ++nRow)
            for (int nCol = bWholeRows && nRow > nStartRow ? m_cols.Fixed() : nStartCol;
                 nCol < GetColumnCount(); ++nCol)
                if (matches(nRow, nCol))
                    return CCellID(nRow, nCol);
        return CCellID();
    }
    if (nFlags & GVNI_ABOVE)
    {
        for (int nRow = cell.row - 1; nRow >= m_rows.Fixed(); --nRow)
            if (matches(nRow, cell.col))
                return CCellID(nRow, cell.col);
    }
    else if (nFlags & GVNI_BELOW)
    {
        for (int nRow = cell.row + 1; nRow < GetRowCount(); ++nRow)
            if (matches(nRow, cell.col))
                return CCellID(nRow, cell.col);
    }
    else if (nFlags & GVNI_TOLEFT)
    {
        for (int nCol = cell.col - 1; nCol >= m_cols.Fixed(); --nCol)
            if (matches(cell.row, nCol))
                return CCellID(cell.row, nCol);
    }
    else if (nFlags & GVNI_TORIGHT)
    {
        for (int nCol = cell.col + 1; nCol < GetColumnCount(); ++nCol)
            if (matches(cell.row, nCol))
                return CCellID(cell.row, nCol);
    }
    return CCellID();
}
