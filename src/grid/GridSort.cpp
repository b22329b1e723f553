// Sorting of rows by a column, and the header of the sorted column.

#include <afxwin.h>

#include "grid/GridCtrl.h"

#include "grid/GridLifeWatch.h"
#include "grid/RowSorter.h"

#include <algorithm>
#include <cstdlib>
#include <cwchar>

// ---- The sort column --------------------------------------------------------------------------------------

// Row 0 only, however many rows are fixed: that is where the arrow stands.
void CGridCtrl::SetSortColumn(int nCol)
{
    if (nCol == m_nSortColumn && nCol < 0)
        return; // no header to repaint
    InvalidateCellRect(0, m_nSortColumn);
    m_nSortColumn = nCol;
    InvalidateCellRect(0, m_nSortColumn);
}

// ---- Entry points -----------------------------------------------------------------------------------------

/// False if the grid did not outlive the end of an edit.
bool CGridCtrl::PrepareSort(int nCol, BOOL bAscending)
{
    if (!EndEditFirst())
        return false;
    SetSortColumn(nCol);
    m_bSortAscending = bAscending;
    ResetSelectedRange(); // and no focus cell
    return true;
}

// The first two prepare a second time in the third, which does no harm.

BOOL CGridCtrl::SortItems(int nCol, BOOL bAscending, LPARAM data)
{
    if (!PrepareSort(nCol, bAscending))
        return FALSE;
    return SortItems(m_pfnCompare ? m_pfnCompare : pfnCellTextCompare, nCol, bAscending, data);
}

BOOL CGridCtrl::SortTextItems(int nCol, BOOL bAscending, LPARAM data)
{
    if (!PrepareSort(nCol, bAscending))
        return FALSE;
    return SortItems(pfnCellTextCompare, nCol, bAscending, data);
}

BOOL CGridCtrl::SortItems(PFNGRIDCOMPARE pfnCompare, int nCol, BOOL bAscending, LPARAM data)
{
    if (!PrepareSort(nCol, bAscending))
        return FALSE;
    return SortItems(pfnCompare, nCol, bAscending, data, m_rows.Fixed(), -1);
}

// ---- The sort ---------------------------------------------------------------------------------------------

/// The rows of a grid, to be sorted. They move by their pointers, with their heights; their cells are told the
/// new places at the end. In virtual mode there are only the heights. A comparison that adds or removes rows or
/// columns ends the sort.
class CGridCtrl::CSortedRows
{
public:
    CSortedRows(CGridCtrl& grid, PFNGRIDCOMPARE pfnCompare, int nCol, LPARAM data)
        : m_grid(grid), m_life(grid), m_nStructure(grid.m_nStructure), m_pfnCompare(pfnCompare), m_nCol(nCol),
          m_data(data), m_nFirstMoved(grid.GetRowCount())
    {
    }
    ~CSortedRows()
    {
        if (m_bBroken || m_grid.m_bVirtualMode)
            return;
        const CCellRange moved(m_nFirstMoved, 0, m_nLastMoved, m_grid.GetColumnCount() - 1);
        moved.ForEach(
            [this](int nRow, int nCol)
            {
                if (CGridCellBase* const pCell = m_grid.GetCell(nRow, nCol))
                    pCell->SetCoords(nRow, nCol);
            });
    }
    CSortedRows(const CSortedRows&) = delete;
    CSortedRows& operator=(const CSortedRows&) = delete;

    CGridCellBase* CellAt(int nRow) const { return m_bBroken ? nullptr : m_grid.GetCell(nRow, m_nCol); }
    bool Broken() const { return m_bBroken; }

    int Compare(CGridCellBase* pFirst, CGridCellBase* pSecond)
    {
        const int nOrder =
            m_pfnCompare(reinterpret_cast<LPARAM>(pFirst), reinterpret_cast<LPARAM>(pSecond), m_data);
        m_bBroken = !m_life.ObjectLives() || m_grid.m_nStructure != m_nStructure;
        return nOrder;
    }

    void Swap(int nRow, int nOther)
    {
        if (!m_grid.m_bVirtualMode)
            m_grid.m_rowData.SwapRows(nRow, nOther);
        m_grid.m_rows.Swap(nRow, nOther);
        m_nFirstMoved = std::min(m_nFirstMoved, std::min(nRow, nOther));
        m_nLastMoved = std::max(m_nLastMoved, std::max(nRow, nOther));
    }

private:
    CGridCtrl& m_grid;
    const CLifeWatch m_life;
    const unsigned m_nStructure;
    PFNGRIDCOMPARE m_pfnCompare;
    int m_nCol;
    LPARAM m_data;
    bool m_bBroken = false; ///< the comparison changed the grid
    int m_nFirstMoved;
    int m_nLastMoved = -1;
};

BOOL CGridCtrl::SortItems(PFNGRIDCOMPARE pfnCompare, int nCol, BOOL bAscending, LPARAM data, int low,
                          int high)
{
    if (!EndEditFirst() || nCol >= GetColumnCount())
        return FALSE;
    if (high == -1)
        high = GetRowCount() - 1;
    if (low >= high)
        return FALSE;
    CSortedRows rows(*this, pfnCompare, nCol, data);
    CRowSorter(rows, bAscending != FALSE).Sort(low, high);
    return TRUE;
}

// ---- Comparisons ------------------------------------------------------------------------------------------

namespace
{
/// A cell without a text counts as an empty one.
LPCWSTR TextToCompare(CGridCellBase& cell)
{
    const LPCWSTR pszText = cell.GetText();
    return pszText ? pszText : L"";
}
} // namespace

int CGridCtrl::pfnCellTextCompare(LPARAM lParam1, LPARAM lParam2, LPARAM /*lParamSort*/)
{
    auto* const pCell1 = reinterpret_cast<CGridCellBase*>(lParam1);
    auto* const pCell2 = reinterpret_cast<CGridCellBase*>(lParam2);
    if (!pCell1 || !pCell2)
        return 0;
    const int nOrder = std::wcscmp(TextToCompare(*pCell1), TextToCompare(*pCell2));
    return (nOrder > 0) - (nOrder < 0);
}

// A text without digits counts as 0.
int CGridCtrl::pfnCellNumericCompare(LPARAM lParam1, LPARAM lParam2, LPARAM /*lParamSort*/)
{
    auto* const pCell1 = reinterpret_cast<CGridCellBase*>(lParam1);
    auto* const pCell2 = reinterpret_cast<CGridCellBase*>(lParam2);
    if (!pCell1 || !pCell2)
        return 0;
    const long nValue1 = _wtol(TextToCompare(*pCell1));
    const long nValue2 = _wtol(TextToCompare(*pCell2));
    return (nValue1 > nValue2) - (nValue1 < nValue2);
}
