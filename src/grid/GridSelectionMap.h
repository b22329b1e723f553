#pragma once
// The cells of a grid that are selected, by address.
//
// The key of an entry holds the column in its high and the low half of the row in its low 16 bits, so rows
// 65536 apart share an entry; the value keeps the true address. That is wanted: the selection of a row beyond
// 65535 is looked up under the same key in every operation. Asking, adding and removing take constant time,
// whatever is selected.

#include <afxwin.h>

#include "grid/GridTypes.h"

#include <algorithm>
#include <unordered_map>
#include <vector>

class CGridSelectionMap
{
public:
    /// A cell's place in the map.
    static DWORD KeyOf(int nRow, int nCol)
    {
        return (static_cast<DWORD>(nCol) << 16) | (static_cast<DWORD>(nRow) & 0xFFFF);
    }

    /// How many cells are selected.
    int Count() const { return static_cast<int>(m_cells.size()); }
    /// Whether none is.
    bool IsEmpty() const { return m_cells.empty(); }
    /// Whether the cell is.
    bool Has(int nRow, int nCol) const { return m_cells.contains(KeyOf(nRow, nCol)); }
    /// Selects a cell.
    void Add(int nRow, int nCol) { m_cells[KeyOf(nRow, nCol)] = CCellID(nRow, nCol); }
    /// Takes a cell out; one that is not in does nothing.
    void Remove(int nRow, int nCol) { m_cells.erase(KeyOf(nRow, nCol)); }
    /// Takes all out.
    void RemoveAll() { m_cells = {}; }

    /// A copy, so that the map may change while a caller walks over it. In any order.
    std::vector<CCellID> Cells() const
    {
        std::vector<CCellID> cells;
        cells.reserve(m_cells.size());
        for (const auto& entry : m_cells)
            cells.push_back(entry.second);
        return cells;
    }

    /// The smallest range around all of them; with none of them the counts as minima, and maxima of -1.
    CCellRange Around(int nRowCount, int nColCount) const
    {
        CCellRange range(nRowCount, nColCount, -1, -1);
        for (const auto& [nKey, cell] : m_cells)
        {
            range.minRow = std::min(range.minRow, cell.row);
            range.minCol = std::min(range.minCol, cell.col);
            range.maxRow = std::max(range.maxRow, cell.row);
            range.maxCol = std::max(range.maxCol, cell.col);
        }
        return range;
    }

private:
    std::unordered_map<DWORD, CCellID> m_cells;
};
