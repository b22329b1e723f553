#pragma once
// The cells of a grid, row by row: what stands where, and what is left when memory ends.
//
//     const auto make = [&](int nRow, int nCol) { return CreateCell(nRow, nCol); };
//     CGridCells cells;
//     cells.InsertRow(0, 3, make);                 // three cells
//     cells.InsertColumn(3, make);                 // and one behind them
//     cells.At(0, 3)->SetText(L"text");
//
// A place may be empty: whoever makes the cells may have none for it. Rows are held by pointer, so that a row
// that is inserted, removed or swapped moves one pointer for each row behind it, and a column one for each row.
//
// Cells that are still in their places when these go are deleted with them; whoever destroys cells in a way of
// his own does so first, and empties their places. Indices are not checked: they lie inside, as the grid's
// counts say. An exception of `make`, or of memory, leaves everything as it was unless told otherwise.

#include <afxcoll.h>
#include <afxtempl.h>

#include <functional>

#include "module/Export.h"

class CGridCellBase;

class OW_DIALOGCONTROLS_API CGridCells
{
public:
    /// The new cell for a place, or null. It may ask for cells: those made before it stand in their places.
    using MakeCell = std::function<CGridCellBase*(int nRow, int nCol)>;

    CGridCells() = default;
    ~CGridCells();
    CGridCells(const CGridCells&) = delete;
    CGridCells& operator=(const CGridCells&) = delete;

    int RowCount() const { return static_cast<int>(m_rows.GetSize()); }
    /// Null for an empty place.
    CGridCellBase* At(int nRow, int nCol) const { return m_rows[nRow]->GetAt(nCol); }
    /// What stood there is the caller's.
    void Put(int nRow, int nCol, CGridCellBase* pCell) { m_rows[nRow]->SetAt(nCol, pCell); }

    void InsertRow(int nRow, int nCols, const MakeCell& make);
    void InsertColumn(int nCol, const MakeCell& make);
    void RemoveRow(int nRow);
    void RemoveColumn(int nCol);
    /// Takes rows off the end.
    void CutRows(int nRows);
    /// Adds empty places at the end of each row, or takes places off it. An exception of memory may leave more
    /// empty places in the first rows: nobody asks for those, and the next call puts that right.
    void SetColumns(int nCols);
    /// Puts new cells into the places of each row from a column on. An exception leaves the rest empty.
    void FillFrom(int nCol, const MakeCell& make);
    void SwapRows(int nRow, int nOther);

private:
    using CRow = CTypedPtrArray<CObArray, CGridCellBase*>;
    static void Delete(CRow* pRow);

    CTypedPtrArray<CObArray, CRow*> m_rows; ///< owned
};
