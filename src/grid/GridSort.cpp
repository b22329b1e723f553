// Sorting of rows by a column, and the header of the sorted column.

#include <afxwin.h>

#include "grid/GridCtrl.h"

#include "grid/GridLifeWatch.h"

#include <cstdlib>
#include <cwchar>
#include <utility>
#include <vector>

// ---- The sort column --------------------------------------------------------------------------------------

void CGridCtrl::SetSortColumn(int nCol)
{
    if (nCol == m_nSortColumn && nCol < 0)
        return; // no header to repaint
    InvalidateHeader(m_nSortColumn);
    m_nSortColumn = nCol;
    InvalidateHeader(m_nSortColumn);
}

/// Row 0 only, however many rows are fixed: that is where the arrow stands.
void CGridCtrl::InvalidateHeader(int nCol)
{
    InvalidateCellRect(0, nCol);
}

// ---- Entry points -----------------------------------------------------------------------------------------

/// False if the grid did not outlive the end of an edit.
bool CGridCtrl::PrepareSort(int nCol, BOOL bAscending)
{
    if (!EndEditFirst())
        return false;
    SetSortColumn(nCol);
    m_bSortAscending = bAscending;
    ResetSelectedRange();
    SetFocusCell(CCellID(), TRUE);
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

/// A quicksort around the cell in the middle. The parts that are still to be sorted wait on a list and not on
/// the stack, so that no order of the rows can exhaust it; they come up in the order of the recursion.
///
/// Rows move by their pointers; their cells are told the new places at the end. A comparison that adds or
/// removes rows or columns ends the sort.
class CGridCtrl::CRowSorter
{
public:
    CRowSorter(CGridCtrl& grid, PFNGRIDCOMPARE pfnCompare, int nCol, BOOL bAscending, LPARAM data)
        : m_grid(grid), m_life(grid), m_nStructure(grid.m_nStructure), m_pfnCompare(pfnCompare), m_nCol(nCol),
          m_bAscending(bAscending), m_data(data), m_nFirstMoved(grid.GetRowCount())
    {
    }
    ~CRowSorter() { TellMovedCells(); }
    CRowSorter(const CRowSorter&) = delete;
    CRowSorter& operator=(const CRowSorter&) = delete;

    void Sort(int low, int high)
    {
        m_parts.push_back({low, high});
        while (!m_parts.empty() && !m_bBroken)
        {
            const SPart part = m_parts.back();
            m_parts.pop_back();
            Partition(part.low, part.high);
        }
    }

private:
    struct SPart
    {
        int low;
        int high;
    };

    /// The pivot is held as a cell: it stays the same cell wherever its row goes.
    void Partition(int low, int high)
    {
        CGridCellBase* const pPivot = CellAt((low + high) / 2);
        int lo = low;
        int hi = high;
        while (lo <= hi)
        {
            while (lo < high && Before(CellAt(lo), pPivot))
                ++lo;
            while (hi > low && Before(pPivot, CellAt(hi), true))
                --hi;
            if (lo <= hi)
            {
                if (Compare(CellAt(lo), CellAt(hi)) != 0 && !m_bBroken)
                    Swap(lo, hi);
                ++lo;
                --hi;
            }
            if (m_bBroken)
                return;
        }
        if (lo < high)
            m_parts.push_back({lo, high});
        if (low < hi)
            m_parts.push_back({low, hi});
    }

    /// Whether the first belongs before the second. `bSwapped` hands the second to the comparison first.
    bool Before(CGridCellBase* pFirst, CGridCellBase* pSecond, bool bSwapped = false)
    {
        const int nOrder = bSwapped ? -Sign(Compare(pSecond, pFirst)) : Sign(Compare(pFirst, pSecond));
        return !m_bBroken && (m_bAscending ? nOrder < 0 : nOrder > 0);
    }

    static int Sign(int n) { return (n > 0) - (n < 0); }

    int Compare(CGridCellBase* pFirst, CGridCellBase* pSecond)
    {
        if (m_bBroken)
            return 0;
        const int nOrder =
            m_pfnCompare(reinterpret_cast<LPARAM>(pFirst), reinterpret_cast<LPARAM>(pSecond), m_data);
        m_bBroken = !m_life.ObjectLives() || m_grid.m_nStructure != m_nStructure;
        return nOrder;
    }

    CGridCellBase* CellAt(int nRow) const { return m_bBroken ? nullptr : m_grid.GetCell(nRow, m_nCol); }

    void Swap(int nRow, int nOther)
    {
        m_grid.SwapRows(nRow, nOther);
        m_nFirstMoved = std::min(m_nFirstMoved, std::min(nRow, nOther));
        m_nLastMoved = std::max(m_nLastMoved, std::max(nRow, nOther));
    }

    void TellMovedCells()
    {
        if (m_bBroken || m_grid.m_bVirtualMode)
            return;
        for (int nRow = m_nFirstMoved; nRow <= m_nLastMoved; ++nRow)
            for (int nCol = 0; nCol < m_grid.GetColumnCount(); ++nCol)
                if (CGridCellBase* const pCell = m_grid.GetCell(nRow, nCol))
                    pCell->SetCoords(nRow, nCol);
    }

    CGridCtrl& m_grid;
    const CLifeWatch m_life;
    const unsigned m_nStructure;
    PFNGRIDCOMPARE m_pfnCompare;
    int m_nCol;
    BOOL m_bAscending;
    LPARAM m_data;
    std::vector<SPart> m_parts;
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
    CRowSorter(*this, pfnCompare, nCol, bAscending, data).Sort(low, high);
    return TRUE;
}

/// Whole rows with their heights. In virtual mode there are only the heights.
void CGridCtrl::SwapRows(int nRow, int nOther)
{
    if (!m_bVirtualMode)
        std::swap(m_rowData[nRow], m_rowData[nOther]);
    m_rows.Swap(nRow, nOther);
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
