// Rows, columns and the cells in them.

#include <afxwin.h>

#include "grid/GridCtrl.h"

#include "grid/GridLifeWatch.h"
#include "grid/GridWay.h"

#include <algorithm>
#include <memory>

namespace
{
/// Runs work that may run out of memory, and reports an exception of the framework. False if there was one.
template <class Work>
bool Guarded(Work work)
{
    try
    {
        work();
        return true;
    }
    catch (CException* e)
    {
        e->ReportError();
        e->Delete();
        return false;
    }
}

void InheritColours(CGridCtrl& grid, int nRow, int nCol)
{
    grid.SetItemBkColour(nRow, nCol, CLR_INHERIT);
    grid.SetItemFgColour(nRow, nCol, CLR_INHERIT);
}

/// Of a cell in a fixed row, or column.
DWORD FixedBitOf(EGridWay way)
{
    return way == EGridWay::eRows ? CELL_FIXEDROW : CELL_FIXEDCOL;
}
} // namespace

// ---- After every change -----------------------------------------------------------------------------------

/// What follows every change of the counts. False if the grid did not outlive the end of an edit that a
/// scroll bar, coming or going, has set off.
bool CGridCtrl::CountsChanged()
{
    ++m_nStructure;
    const CLifeWatch life(*this);
    ResetScrollBars();
    if (!life.ObjectLives())
        return false;
    SetSortColumn(-1);
    m_bModified = TRUE;
    return true;
}

// ---- Counts -----------------------------------------------------------------------------------------------

BOOL CGridCtrl::SetRowCount(int nRows)
{
    return SetCount(EGridWay::eRows, nRows);
}

BOOL CGridCtrl::SetColumnCount(int nCols)
{
    return SetCount(EGridWay::eColumns, nCols);
}

BOOL CGridCtrl::SetCount(EGridWay way, int nCount)
{
    CGridAxis& axis = Axis(way);
    if (nCount == axis.Count())
        return TRUE;
    if (nCount < 0 || !EndEditFirst())
        return FALSE;
    if (nCount == axis.Count())
        return TRUE;
    m_topLeftCell.col = -1;
    axis.SetFixed(std::min(axis.Fixed(), nCount));
    if (gfnItemAlong(way, m_focusCell) >= nCount)
        SetFocusCell(CCellID());

    bool bDone = true;
    if (nCount < axis.Count())
        DropLines(way, nCount);
    else
        bDone = way == EGridWay::eRows ? AppendRows(nCount) : AppendColumns(nCount);
    SetSortColumn(-1); // here before the bars are reset, elsewhere after
    m_bModified = TRUE;
    if (CountsChanged())
        InvalidateGrid();
    return bDone;
}

void CGridCtrl::DropLines(EGridWay way, int nCount)
{
    RemoveCells(CellsOf(way, nCount, Axis(way).Count()));
    if (way == EGridWay::eRows)
        m_rowData.CutRows(std::min(nCount, m_rowData.RowCount()));
    else
        m_rowData.SetColumns(nCount);
    Axis(way).SetCount(nCount, 0);
}

/// Each row counts as soon as it is complete, so that an exception leaves a grid of those that were built.
bool CGridCtrl::AppendRows(int nRows)
{
    const int nHeight = m_cellDefault.GetHeight();
    return Guarded(
        [&]
        {
            if (m_bVirtualMode)
                return m_rows.SetCount(nRows, nHeight);
            m_rows.Reserve(nRows);
            for (int nRow = GetRowCount(); nRow < nRows; ++nRow)
            {
                m_rowData.InsertRow(nRow, GetColumnCount(), CellMaker());
                m_rows.SetCount(nRow + 1, nHeight);
            }
        });
}

/// The count changes when all cells have been made, or one could not be made, which leaves its place empty.
/// Rows that could not all be made longer go back to the old count. The width is that of the fixed columns'
/// default cell.
bool CGridCtrl::AppendColumns(int nCols)
{
    const int nOld = GetColumnCount();
    const bool bSized = Guarded(
        [&]
        {
            m_cols.Reserve(nCols);
            m_rowData.SetColumns(nCols);
        });
    if (!bSized)
        return false;
    const bool bFilled = Guarded([&] { m_rowData.FillFrom(nOld, CellMaker()); });
    m_cols.SetCount(nCols, m_cellFixedCol.GetWidth());
    return bFilled;
}

BOOL CGridCtrl::SetFixedRowCount(int nFixedRows)
{
    return SetFixedCount(EGridWay::eRows, nFixedRows);
}

BOOL CGridCtrl::SetFixedColumnCount(int nFixedCols)
{
    return SetFixedCount(EGridWay::eColumns, nFixedCols);
}

// The selection goes first for rows and last for columns: a column count that cannot grow leaves it. Wanted.
BOOL CGridCtrl::SetFixedCount(EGridWay way, int nFixed)
{
    CGridAxis& axis = Axis(way);
    if (nFixed == axis.Fixed())
        return TRUE;
    if (nFixed < 0 || !EndEditFirst())
        return FALSE;
    if (way == EGridWay::eRows)
        ResetSelectedRange();
    const CLifeWatch life(*this);
    if (nFixed > axis.Count() && (!SetCount(way, nFixed) || !life.ObjectLives()))
        return FALSE;
    ResetSelectedRange();
    if (!m_bVirtualMode)
        MarkFixedCells(way, nFixed);
    axis.SetFixed(nFixed);
    m_topLeftCell.col = -1;
    ++m_nStructure;
    InvalidateGrid();
    return TRUE;
}

/// Tells the cells of which the fixed count is about to change what they are from then on.
void CGridCtrl::MarkFixedCells(EGridWay way, int nFixed)
{
    const int nOld = Axis(way).Fixed();
    const CGridAxis& across = Axis(gfnOtherWay(way));
    const UINT nBit = FixedBitOf(way);
    CellsOf(way, nOld, nFixed)
        .ForEach(
            [&](int nRow, int nCol)
            {
                MarkItem(CCellID(nRow, nCol), CELL_FIXED | nBit, true);
                InheritColours(*this, nRow, nCol);
            });
    CellsOf(way, nFixed, nOld)
        .ForEach(
            [&](int nRow, int nCol)
            {
                const bool bStaysFixed = across.IsFixed(way == EGridWay::eRows ? nCol : nRow);
                MarkItem(CCellID(nRow, nCol), bStaysFixed ? nBit : CELL_FIXED | nBit, false);
                if (!bStaysFixed) // one that does keeps its colours
                    InheritColours(*this, nRow, nCol);
            });
}

// ---- Insert and delete ------------------------------------------------------------------------------------

int CGridCtrl::InsertColumn(LPCWSTR strHeading, UINT nFormat, int nColumn)
{
    return InsertLine(EGridWay::eColumns, nColumn, strHeading,
                      [&](int nCol)
                      {
                          for (int nRow = 0; nRow < GetRowCount(); ++nRow)
                              SetItemFormat(nRow, nCol, nFormat);
                          return GetTextExtent(0, nCol, strHeading).cx;
                      });
}

// Without a heading, a row is as high as the fixed rows' default cell.
int CGridCtrl::InsertRow(LPCWSTR strHeading, int nRow)
{
    const bool bHeading = strHeading && *strHeading;
    return InsertLine(EGridWay::eRows, nRow, strHeading,
                      [&](int nNew) {
                          return bHeading ? GetTextExtent(nNew, 0, strHeading).cy
                                          : m_cellFixedRow.GetHeight();
                      });
}

/// `prepare` is called with the index of the new line and answers its size.
template <class Prepare>
int CGridCtrl::InsertLine(EGridWay way, int nAt, LPCWSTR strHeading, Prepare prepare)
{
    CGridAxis& axis = Axis(way);
    const auto isWrong = [&]
    {
        const int nLast =
            axis.Count() - (way == EGridWay::eRows ? 1 : 0); // the count itself is a place for columns only
        return nAt >= 0 && (nAt < axis.Fixed() || nAt > nLast);
    };
    if (isWrong() || !EndEditFirst() || isWrong())
        return -1;
    m_topLeftCell.col = -1;
    ResetSelectedRange();
    SetCount(gfnOtherWay(way), std::max(1, Axis(gfnOtherWay(way)).Count()));

    const int nIndex = nAt < 0 ? axis.Count() : nAt;
    if (!Guarded([&] { PlaceLine(way, nIndex); }))
        return 0; // not to be told from a new line 0, and kept so
    CCellID heading(0, 0);
    gfnItemAlong(way, heading) = nIndex;
    SetItemText(heading.row, heading.col, strHeading);
    axis.SetSize(nIndex, prepare(nIndex));
    CountsChanged();
    return nIndex;
}

/// Puts a line of new cells of size 0 in; an exception takes it out again. A row counts before its cells are
/// made, a column after it.
void CGridCtrl::PlaceLine(EGridWay way, int nIndex)
{
    CGridAxis& axis = Axis(way);
    axis.Reserve(LONGLONG(axis.Count()) + 1);
    if (way == EGridWay::eColumns)
        m_rowData.InsertColumn(nIndex, CellMaker());
    axis.Insert(nIndex, 0);
    if (way == EGridWay::eColumns || m_bVirtualMode)
        return;
    try
    {
        m_rowData.InsertRow(nIndex, GetColumnCount(), CellMaker());
    }
    catch (CException*)
    {
        m_rows.Remove(nIndex);
        throw;
    }
}

BOOL CGridCtrl::DeleteRow(int nRow)
{
    return DeleteLine(EGridWay::eRows, nRow);
}

BOOL CGridCtrl::DeleteColumn(int nColumn)
{
    return DeleteLine(EGridWay::eColumns, nColumn);
}

BOOL CGridCtrl::DeleteLine(EGridWay way, int nLine)
{
    const CGridAxis& axis = Axis(way);
    if (!axis.Has(nLine) || !EndEditFirst() || !axis.Has(nLine))
        return FALSE;
    ResetSelectedRange();
    RemoveLine(way, nLine);
    CountsChanged();
    return TRUE;
}

/// Takes a line and its cells out.
void CGridCtrl::RemoveLine(EGridWay way, int nLine)
{
    RemoveCells(CellsOf(way, nLine, nLine + 1));
    if (way == EGridWay::eColumns)
        m_rowData.RemoveColumn(nLine);
    else if (!m_bVirtualMode)
        m_rowData.RemoveRow(nLine);
    Axis(way).Remove(nLine);
}

// From the end, so that the indices ahead stay right, and with the bars set once for all of them.
BOOL CGridCtrl::DeleteNonFixedRows()
{
    if (!EndEditFirst())
        return FALSE;
    ResetSelectedRange();
    if (GetRowCount() == m_rows.Fixed())
        return TRUE;
    for (int nRow = GetRowCount() - 1; nRow >= m_rows.Fixed(); --nRow)
        RemoveLine(EGridWay::eRows, nRow);
    CountsChanged();
    return TRUE;
}

BOOL CGridCtrl::DeleteAllItems()
{
    if (!EndEditFirst())
        return FALSE;
    ResetSelectedRange();
    DropLines(EGridWay::eRows, 0);
    DropLines(EGridWay::eColumns, 0);
    CountsChanged();
    return TRUE;
}

/// The cells of the rows, or columns, from one to before another.
CCellRange CGridCtrl::CellsOf(EGridWay way, int nFirst, int nEnd) const
{
    return way == EGridWay::eRows ? CCellRange(nFirst, 0, nEnd - 1, GetColumnCount() - 1)
                                  : CCellRange(0, nFirst, GetRowCount() - 1, nEnd - 1);
}

/// Destroys cells and leaves their places empty, so that nobody finds one there while its neighbours go.
void CGridCtrl::RemoveCells(const CCellRange& range)
{
    if (m_bVirtualMode)
        return;
    range.ForEach(
        [&](int nRow, int nCol)
        {
            CCellWatch::TellAll(m_pFirstCellWatch, GetCell(nRow, nCol));
            DestroyCell(nRow, nCol);
            m_rowData.Put(nRow, nCol, nullptr);
        });
}

void CGridCtrl::AutoFill()
{
    if (!EndEditFirst() || !::IsWindow(m_hWnd))
        return;
    CRect rect;
    GetClientRect(&rect);
    SetColumnCount(rect.Width() / std::max(1, m_cellDefault.GetWidth()) + 1);
    SetRowCount(rect.Height() / std::max(1, m_cellDefault.GetHeight()) + 1);
    SetFixedRowCount(1);
    SetFixedColumnCount(1);
    ExpandColumnsToFit(TRUE);
    ExpandRowsToFit(TRUE);
    ExpandColumnsToFit(TRUE);
    Invalidate();
}

// ---- Cells ------------------------------------------------------------------------------------------------

/// CreateCell, for whoever places cells.
CGridCells::MakeCell CGridCtrl::CellMaker()
{
    return [this](int nRow, int nCol) { return CreateCell(nRow, nCol); };
}

CGridCellBase* CGridCtrl::CreateCell(int nRow, int nCol)
{
    if (!m_pCellClass || !m_pCellClass->IsDerivedFrom(RUNTIME_CLASS(CGridCellBase)))
        return nullptr;
    auto* const pCell = static_cast<CGridCellBase*>(m_pCellClass->CreateObject());
    if (!pCell)
        return nullptr;
    pCell->SetGrid(this);
    pCell->SetCoords(nRow, nCol);
    if (m_cols.IsFixed(nCol))
        pCell->SetState(pCell->GetState() | CELL_FIXED | CELL_FIXEDCOL);
    if (m_rows.IsFixed(nRow))
        pCell->SetState(pCell->GetState() | CELL_FIXED | CELL_FIXEDROW);
    if (CGridCellBase* const pDefault = pCell->GetDefaultCell()) // of a class that keeps its grid
        pCell->SetFormat(pDefault->GetFormat());
    return pCell;
}

// Without a state first, so that a selected cell leaves the selection.
void CGridCtrl::DestroyCell(int nRow, int nCol)
{
    SetItemState(nRow, nCol, 0);
    delete GetCell(nRow, nCol);
}

BOOL CGridCtrl::SetCell(int nRow, int nCol, CGridCellBase* pCell)
{
    if (m_bVirtualMode || !IsValid(nRow, nCol))
        return FALSE;
    if (pCell)
        pCell->SetCoords(nRow, nCol);
    m_rowData.Put(nRow, nCol, pCell);
    ++m_nStructure;
    return TRUE;
}

BOOL CGridCtrl::SetCellType(int nRow, int nCol, CRuntimeClass* pClass)
{
    if (m_bVirtualMode || !IsValid(nRow, nCol))
        return FALSE;
    if (!pClass || !pClass->IsDerivedFrom(RUNTIME_CLASS(CGridCellBase)))
        return FALSE;
    std::unique_ptr<CGridCellBase> pNew(static_cast<CGridCellBase*>(pClass->CreateObject()));
    if (!pNew)
        return FALSE;
    CGridCellBase* const pOld = GetCell(nRow, nCol);
    if (pOld)
        *pNew = *pOld;
    CCellWatch::TellAll(m_pFirstCellWatch, pOld, pNew.get());
    SetCell(nRow, nCol, pNew.release());
    delete pOld;
    return TRUE;
}

BOOL CGridCtrl::SetDefaultCellType(CRuntimeClass* pClass)
{
    if (!pClass || !pClass->IsDerivedFrom(RUNTIME_CLASS(CGridCellBase)))
        return FALSE;
    m_pCellClass = pClass;
    return TRUE;
}

CGridCellBase* CGridCtrl::GetCell(int nRow, int nCol) const
{
    if (!IsValid(nRow, nCol))
        return nullptr;
    return m_bVirtualMode ? MakeVirtualCell(nRow, nCol) : m_rowData.At(nRow, nCol);
}

CGridDefaultCell* CGridCtrl::GetDefaultCell(BOOL bFixedRow, BOOL bFixedCol) const
{
    if (bFixedRow)
        return bFixedCol ? &m_cellFixedRowCol : &m_cellFixedRow;
    return bFixedCol ? &m_cellFixedCol : &m_cellDefault;
}

BOOL CGridCtrl::IsValid(int nRow, int nCol) const
{
    return m_rows.Has(nRow) && m_cols.Has(nCol);
}

BOOL CGridCtrl::IsValid(const CCellID& cell) const
{
    return IsValid(cell.row, cell.col);
}

BOOL CGridCtrl::IsValid(const CCellRange& range) const
{
    return range.minRow >= 0 && range.minCol >= 0 && m_rows.Has(range.maxRow) && m_cols.Has(range.maxCol) &&
           range.minRow <= range.maxRow && range.minCol <= range.maxCol;
}

BOOL CGridCtrl::IsCellFixed(int nRow, int nCol)
{
    return m_rows.IsFixed(nRow) || m_cols.IsFixed(nCol);
}

CCellRange CGridCtrl::GetCellRange()
{
    return CCellRange(0, 0, GetRowCount() - 1, GetColumnCount() - 1);
}

BOOL CGridCtrl::IsItemEditing(int nRow, int nCol)
{
    CGridCellBase* const pCell = GetCell(nRow, nCol);
    return pCell ? pCell->IsEditing() : FALSE;
}
