// Rows, columns and the cells in them; virtual mode.

#include <afxwin.h>

#include "grid/GridCtrl.h"

#include "grid/GridLifeWatch.h"
#include "grid/NotifyOwner.h"

#include <algorithm>
#include <memory>
#include <new>

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

/// Deletes a row that did not make it into the grid, with the cells made for it so far.
struct CRowDeleter
{
    template <class Row>
    void operator()(Row* pRow) const
    {
        for (INT_PTR nCol = 0; nCol < pRow->GetSize(); ++nCol)
            delete pRow->GetAt(nCol);
        delete pRow;
    }
};
} // namespace

// ---- Before every change ----------------------------------------------------------------------------------

/// An edit ends here as by a click elsewhere, before its cell can move away from under it. False if the grid
/// did not outlive what its parent did about it. Indices are to be checked after it.
bool CGridCtrl::EndEditFirst()
{
    const CLifeWatch life(*this);
    if (HasEditorFocus())
        SetFocus();
    if (life.WindowLives() && !m_bVirtualMode)
        EndEditing();
    return life.ObjectLives();
}

/// The focus is in an in-place editor of this grid, or in a part of one.
bool CGridCtrl::HasEditorFocus() const
{
    HWND hWnd = ::IsWindow(m_hWnd) ? ::GetFocus() : nullptr;
    if (!::IsChild(m_hWnd, hWnd))
        return false;
    while (::GetParent(hWnd) != m_hWnd)
        hWnd = ::GetParent(hWnd);
    return ::GetDlgCtrlID(hWnd) == static_cast<int>(InPlaceControlId);
}

// ---- Counts -----------------------------------------------------------------------------------------------

BOOL CGridCtrl::SetRowCount(int nRows)
{
    if (nRows == GetRowCount())
        return TRUE;
    if (nRows < 0 || !EndEditFirst())
        return FALSE;
    if (nRows == GetRowCount())
        return TRUE;
    m_topLeftCell.col = -1;
    if (nRows < m_rows.Fixed())
        m_rows.SetFixed(nRows);
    if (m_focusCell.row >= nRows)
        SetFocusCell(CCellID());

    bool bDone = true;
    if (nRows < GetRowCount())
        DropRows(nRows);
    else
        bDone = Guarded([&] { AppendRows(nRows); });
    SetSortColumn(-1); // here before the bars are reset, elsewhere after
    m_bModified = TRUE;
    if (CountsChanged())
        InvalidateGrid();
    return bDone;
}

// Differs from SetRowCount in the size of what is new, which is that of the fixed columns' default cell, and
// in that the count changes only when all cells have been made.
BOOL CGridCtrl::SetColumnCount(int nCols)
{
    if (nCols == GetColumnCount())
        return TRUE;
    if (nCols < 0 || !EndEditFirst())
        return FALSE;
    if (nCols == GetColumnCount())
        return TRUE;
    m_topLeftCell.col = -1;
    if (nCols < m_cols.Fixed())
        m_cols.SetFixed(nCols);
    if (m_focusCell.col >= nCols)
        SetFocusCell(CCellID());

    bool bDone = true;
    if (nCols < GetColumnCount())
        DropColumns(nCols);
    else
        bDone = AppendColumns(nCols);
    SetSortColumn(-1); // here before the bars are reset, elsewhere after
    m_bModified = TRUE;
    if (CountsChanged())
        InvalidateGrid();
    return bDone;
}

void CGridCtrl::DropRows(int nRows)
{
    if (!m_bVirtualMode)
    {
        for (int nRow = nRows; nRow < GetRowCount(); ++nRow)
            DeleteRowCells(nRow);
        m_rowData.SetSize(nRows);
    }
    m_rows.SetCount(nRows, 0);
}

/// Each row counts as soon as it is complete, so that an exception leaves a grid of those that were built.
void CGridCtrl::AppendRows(int nRows)
{
    const int nHeight = m_cellDefault.GetHeight();
    m_rows.Reserve(nRows);
    if (m_bVirtualMode)
    {
        m_rows.SetCount(nRows, nHeight);
        return;
    }
    for (int nRow = GetRowCount(); nRow < nRows; ++nRow)
    {
        std::unique_ptr<CGridRow, CRowDeleter> pRow(new CGridRow);
        pRow->SetSize(GetColumnCount());
        for (int nCol = 0; nCol < GetColumnCount(); ++nCol)
            pRow->SetAt(nCol, CreateCell(nRow, nCol));
        m_rowData.Add(pRow.get());
        pRow.release();
        m_rows.SetCount(nRow + 1, nHeight);
    }
}

void CGridCtrl::DropColumns(int nCols)
{
    for (int nRow = 0; nRow < m_rowData.GetSize(); ++nRow)
        for (int nCol = nCols; nCol < GetColumnCount(); ++nCol)
            RemoveCell(nRow, nCol);
    SizeRows(nCols);
    m_cols.SetCount(nCols, 0);
}

/// A cell that could not be made leaves its place empty; rows that could not all be made longer go back to
/// the old count.
bool CGridCtrl::AppendColumns(int nCols)
{
    const bool bSized = Guarded(
        [&]
        {
            m_cols.Reserve(nCols);
            SizeRows(nCols);
        });
    if (!bSized)
    {
        SizeRows(GetColumnCount());
        return false;
    }
    const bool bFilled = Guarded(
        [&]
        {
            for (int nRow = 0; nRow < m_rowData.GetSize(); ++nRow)
                for (int nCol = GetColumnCount(); nCol < nCols; ++nCol)
                    m_rowData[nRow]->SetAt(nCol, CreateCell(nRow, nCol));
        });
    m_cols.SetCount(nCols, m_cellFixedCol.GetWidth());
    return bFilled;
}

void CGridCtrl::SizeRows(int nCols)
{
    for (int nRow = 0; nRow < m_rowData.GetSize(); ++nRow)
        m_rowData[nRow]->SetSize(nCols);
}

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

BOOL CGridCtrl::SetFixedRowCount(int nFixedRows)
{
    if (nFixedRows == m_rows.Fixed())
        return TRUE;
    if (nFixedRows < 0 || !EndEditFirst())
        return FALSE;
    const int nOldFixed = m_rows.Fixed();
    ResetSelectedRange();
    m_topLeftCell.col = -1;
    if (nFixedRows > GetRowCount() && !SetRowCount(nFixedRows))
        return FALSE;
    if (m_focusCell.row < nFixedRows)
        SetFocusCell(CCellID());

    for (int nRow = nOldFixed; nRow < nFixedRows; ++nRow)
        for (int nCol = 0; nCol < GetColumnCount(); ++nCol)
            MakeCellFixed(nRow, nCol, CELL_FIXEDROW);
    for (int nRow = nFixedRows; nRow < nOldFixed; ++nRow)
        for (int nCol = 0; nCol < GetColumnCount(); ++nCol)
            MakeCellLoose(nRow, nCol, CELL_FIXEDROW, m_cols.IsFixed(nCol));
    m_rows.SetFixed(nFixedRows);
    m_topLeftCell.col = -1; // growing may have worked it out for the old count
    ++m_nStructure;
    InvalidateGrid();
    return TRUE;
}

// The mirror of SetFixedRowCount, but the selection goes last: a column count that cannot grow leaves it.
BOOL CGridCtrl::SetFixedColumnCount(int nFixedCols)
{
    if (nFixedCols == m_cols.Fixed())
        return TRUE;
    if (nFixedCols < 0 || !EndEditFirst())
        return FALSE;
    const int nOldFixed = m_cols.Fixed();
    const CLifeWatch life(*this);
    if (nFixedCols > GetColumnCount() && (!SetColumnCount(nFixedCols) || !life.ObjectLives()))
        return FALSE;
    if (m_focusCell.col < nFixedCols)
        SetFocusCell(CCellID());
    ResetSelectedRange();
    m_topLeftCell.col = -1;

    for (int nRow = 0; nRow < GetRowCount(); ++nRow)
    {
        for (int nCol = nOldFixed; nCol < nFixedCols; ++nCol)
            MakeCellFixed(nRow, nCol, CELL_FIXEDCOL);
        for (int nCol = nFixedCols; nCol < nOldFixed; ++nCol)
            MakeCellLoose(nRow, nCol, CELL_FIXEDCOL, m_rows.IsFixed(nRow));
    }
    m_cols.SetFixed(nFixedCols);
    m_topLeftCell.col = -1;
    ++m_nStructure;
    InvalidateGrid();
    return TRUE;
}

void CGridCtrl::MakeCellFixed(int nRow, int nCol, DWORD nBit)
{
    if (m_bVirtualMode)
        return;
    SetItemState(nRow, nCol, GetItemState(nRow, nCol) | CELL_FIXED | nBit);
    SetItemBkColour(nRow, nCol, CLR_INHERIT);
    SetItemFgColour(nRow, nCol, CLR_INHERIT);
}

/// A cell that stays fixed in the other direction keeps its colours.
void CGridCtrl::MakeCellLoose(int nRow, int nCol, DWORD nBit, bool bStaysFixed)
{
    if (m_bVirtualMode)
        return;
    const DWORD nState = GetItemState(nRow, nCol);
    if (bStaysFixed)
    {
        SetItemState(nRow, nCol, nState & ~nBit);
        return;
    }
    SetItemState(nRow, nCol, nState & ~(CELL_FIXED | nBit));
    SetItemBkColour(nRow, nCol, CLR_INHERIT);
    SetItemFgColour(nRow, nCol, CLR_INHERIT);
}

// ---- Insert and delete ------------------------------------------------------------------------------------

int CGridCtrl::InsertColumn(LPCWSTR strHeading, UINT nFormat, int nColumn)
{
    const auto isWrong = [&]
    { return nColumn >= 0 && (nColumn < m_cols.Fixed() || nColumn > GetColumnCount()); };
    if (isWrong() || !EndEditFirst() || isWrong())
        return -1;
    m_topLeftCell.col = -1;
    ResetSelectedRange();
    if (GetRowCount() == 0)
        SetRowCount(1);

    const int nIndex = nColumn < 0 ? GetColumnCount() : nColumn;
    if (!Guarded([&] { PlaceNewColumn(nIndex); }))
        return 0; // not to be told from a new column 0, and kept so

    SetItemText(0, nIndex, strHeading);
    for (int nRow = 0; nRow < GetRowCount(); ++nRow)
        SetItemFormat(nRow, nIndex, nFormat);
    m_cols.SetSize(nIndex, GetTextExtent(0, nIndex, strHeading).cx);
    if (nIndex < m_focusCell.col)
        ++m_focusCell.col;
    CountsChanged();
    return nIndex;
}

/// Puts a column of new cells of width 0 in; an exception takes out again what had been put in.
void CGridCtrl::PlaceNewColumn(int nIndex)
{
    int nRow = 0;
    try
    {
        for (; nRow < m_rowData.GetSize(); ++nRow)
        {
            std::unique_ptr<CGridCellBase> pCell(CreateCell(nRow, nIndex));
            m_rowData[nRow]->InsertAt(nIndex, pCell.get());
            pCell.release();
        }
        m_cols.Insert(nIndex, 0);
    }
    catch (CException*)
    {
        while (--nRow >= 0)
        {
            delete m_rowData[nRow]->GetAt(nIndex);
            m_rowData[nRow]->RemoveAt(nIndex);
        }
        throw;
    }
}

// Differs from InsertColumn in that the count itself is refused as an index, and in the size: a heading
// decides it, and without one the fixed rows' default cell.
int CGridCtrl::InsertRow(LPCWSTR strHeading, int nRow)
{
    const auto isWrong = [&] { return nRow >= 0 && (nRow < m_rows.Fixed() || nRow >= GetRowCount()); };
    if (isWrong() || !EndEditFirst() || isWrong())
        return -1;
    m_topLeftCell.col = -1;
    ResetSelectedRange();
    if (GetColumnCount() == 0)
        SetColumnCount(1);

    const int nIndex = nRow < 0 ? GetRowCount() : nRow;
    if (!Guarded([&] { PlaceNewRow(nIndex); }))
        return 0;
    SetItemText(nIndex, 0, strHeading);
    const bool bHeading = strHeading && *strHeading;
    m_rows.SetSize(nIndex, bHeading ? GetTextExtent(nIndex, 0, strHeading).cy : m_cellFixedRow.GetHeight());
    if (nIndex < m_focusCell.row)
        ++m_focusCell.row;
    CountsChanged();
    return nIndex;
}

/// Puts a row of new cells of height 0 in; an exception takes it out again.
void CGridCtrl::PlaceNewRow(int nIndex)
{
    m_rows.Reserve(LONGLONG(GetRowCount()) + 1);
    if (m_bVirtualMode)
    {
        m_rows.Insert(nIndex, 0);
        return;
    }
    std::unique_ptr<CGridRow> pRow(new CGridRow);
    pRow->SetSize(GetColumnCount());
    m_rowData.InsertAt(nIndex, pRow.get());
    pRow.release();
    m_rows.Insert(nIndex, 0);
    try
    {
        for (int nCol = 0; nCol < GetColumnCount(); ++nCol)
            m_rowData[nIndex]->SetAt(nCol, CreateCell(nIndex, nCol));
    }
    catch (CException*)
    {
        CloseRow(nIndex);
        throw;
    }
}

BOOL CGridCtrl::DeleteRow(int nRow)
{
    if (!m_rows.Has(nRow) || !EndEditFirst() || !m_rows.Has(nRow))
        return FALSE;
    ResetSelectedRange();
    CloseRow(nRow);
    if (m_focusCell.row == nRow)
        m_focusCell = CCellID();
    else if (m_focusCell.row > nRow)
        --m_focusCell.row;
    CountsChanged();
    return TRUE;
}

/// Takes a row and its cells out.
void CGridCtrl::CloseRow(int nRow)
{
    if (!m_bVirtualMode)
    {
        DeleteRowCells(nRow);
        m_rowData.RemoveAt(nRow);
    }
    m_rows.Remove(nRow);
}

BOOL CGridCtrl::DeleteColumn(int nColumn)
{
    if (!m_cols.Has(nColumn) || !EndEditFirst() || !m_cols.Has(nColumn))
        return FALSE;
    ResetSelectedRange();
    for (int nRow = 0; nRow < m_rowData.GetSize(); ++nRow)
    {
        RemoveCell(nRow, nColumn);
        m_rowData[nRow]->RemoveAt(nColumn);
    }
    m_cols.Remove(nColumn);
    if (m_focusCell.col == nColumn)
        m_focusCell = CCellID();
    else if (m_focusCell.col > nColumn)
        --m_focusCell.col;
    CountsChanged();
    return TRUE;
}

// From the end, so that the indices ahead stay right. The first call is for the row past the end and does
// nothing.
BOOL CGridCtrl::DeleteNonFixedRows()
{
    if (!EndEditFirst())
        return FALSE;
    ResetSelectedRange();
    for (int nRow = GetRowCount(); nRow >= m_rows.Fixed(); --nRow)
        DeleteRow(nRow);
    return TRUE;
}

BOOL CGridCtrl::DeleteAllItems()
{
    if (!EndEditFirst())
        return FALSE;
    ResetSelectedRange();
    for (int nRow = 0; nRow < m_rowData.GetSize(); ++nRow)
        DeleteRowCells(nRow);
    m_rowData.SetSize(0);
    m_rows.SetCount(0, 0);
    m_cols.SetCount(0, 0);
    m_focusCell = CCellID();
    CountsChanged();
    return TRUE;
}

/// All cells of a row and the row itself; its place stays for the caller to close.
void CGridCtrl::DeleteRowCells(int nRow)
{
    for (int nCol = 0; nCol < GetColumnCount(); ++nCol)
        RemoveCell(nRow, nCol);
    delete m_rowData[nRow];
    m_rowData[nRow] = nullptr;
}

/// Destroys a cell and leaves its place empty, so that nobody finds it there while its neighbours go.
void CGridCtrl::RemoveCell(int nRow, int nCol)
{
    CCellWatch::TellAll(m_pFirstCellWatch, GetCellToChange(nRow, nCol));
    DestroyCell(nRow, nCol);
    m_rowData[nRow]->SetAt(nCol, nullptr);
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
    if (m_bVirtualMode || !IsValid(nRow, nCol) || !m_rowData[nRow])
        return FALSE;
    if (pCell)
        pCell->SetCoords(nRow, nCol);
    m_rowData[nRow]->SetAt(nCol, pCell);
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
    if (!m_rows.Has(nRow) || !m_cols.Has(nCol))
        return nullptr;
    if (m_bVirtualMode)
        return MakeVirtualCell(nRow, nCol);
    const CGridRow* const pRow = m_rowData[nRow];
    return pRow ? pRow->GetAt(nCol) : nullptr;
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

// ---- Virtual mode -----------------------------------------------------------------------------------------

void CGridCtrl::SetVirtualMode(BOOL bVirtual)
{
    if (!DeleteAllItems())
        return;
    m_bVirtualMode = bVirtual;
    if (!m_bVirtualMode)
        return;
    m_nAutoSizeStyle = GVS_HEADER;
    m_bEditable = FALSE;
    m_bHeaderSort = FALSE;
    m_bFixedColumnSelection = FALSE;
    m_bFixedRowSelection = FALSE;
}

void CGridCtrl::SetCallbackFunc(GRIDCALLBACK pCallback, LPARAM lParam)
{
    m_pfnCallback = pCallback;
    m_lCallbackParam = lParam;
}

// One request and one cell for the process: the next call overwrites both, and nothing is allocated after the
// first.
CGridCellBase* CGridCtrl::MakeVirtualCell(int nRow, int nCol) const
{
    static GV_DISPINFO gvdi;
    static CGridCell cell;

    FillDisplayRequest(gvdi, nRow, nCol);
    if (m_pfnCallback)
        m_pfnCallback(&gvdi, m_lCallbackParam);
    else
        SendDisplayRequestToParent(&gvdi);

    // Past the setters, which a derived class cannot have changed here.
    cell.m_nState = gvdi.item.nState;
    cell.m_nFormat = gvdi.item.nFormat;
    cell.m_nImage = gvdi.item.iImage;
    cell.m_crBkClr = gvdi.item.crBkClr;
    cell.m_crFgClr = gvdi.item.crFgClr;
    cell.m_lParam = gvdi.item.lParam;
    if (!cell.m_plfFont)
        cell.m_plfFont = new (std::nothrow) LOGFONTW;
    if (cell.m_plfFont)
        *cell.m_plfFont = gvdi.item.lfFont;
    cell.m_nMargin = gvdi.item.nMargin;
    cell.SetText(gvdi.item.strText);
    cell.SetGrid(const_cast<CGridCtrl*>(this));
    return &cell;
}

/// What the cell is as long as nobody says otherwise.
void CGridCtrl::FillDisplayRequest(GV_DISPINFO& info, int nRow, int nCol) const
{
    CGridDefaultCell& defaultCell = *GetDefaultCell(m_rows.IsFixed(nRow), m_cols.IsFixed(nCol));
    GV_ITEM& item = info.item;
    item.row = nRow;
    item.col = nCol;
    item.mask = GV_MASK_ALL;
    item.nFormat = defaultCell.GetFormat();
    item.iImage = defaultCell.GetImage();
    item.crBkClr = defaultCell.GetBackClr();
    item.crFgClr = defaultCell.GetTextClr();
    item.lParam = defaultCell.GetData();
    const LOGFONTW* const plf = defaultCell.GetFont(); // none after a Reset
    item.lfFont = plf ? *plf : LOGFONTW{};
    item.nMargin = defaultCell.GetMargin();
    item.strText.Truncate(0); // keeps its buffer for the answer

    item.nState = 0;
    if (IsCellSelected(nRow, nCol))
        item.nState |= CELL_SELECTED;
    if (m_rows.IsFixed(nRow))
        item.nState |= CELL_FIXED | CELL_FIXEDROW;
    if (m_cols.IsFixed(nCol))
        item.nState |= CELL_FIXED | CELL_FIXEDCOL;
    if (m_focusCell == CCellID(nRow, nCol))
        item.nState |= CELL_FOCUSED;
}

LRESULT CGridCtrl::SendDisplayRequestToParent(GV_DISPINFO* pDispInfo) const
{
    return gfnNotifyOwner(this, pDispInfo->hdr, LVN_GETDISPINFOW);
}

LRESULT CGridCtrl::SendCacheHintToParent(const CCellRange& range) const
{
    if (!m_bVirtualMode)
        return 0;
    GridCacheHint hint{{}, range};
    return gfnNotifyOwner(this, hint.hdr, LVN_ODCACHEHINT);
}

LRESULT CGridCtrl::SendMessageToParent(int nRow, int nCol, int nCode) const
{
    return gfnNotifyOwner(this, nRow, nCol, static_cast<UINT>(nCode));
}
