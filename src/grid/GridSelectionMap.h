#pragma once
// The cells of a grid that are selected, by address.
//
// The key of an entry holds the low half of the column in its high and the low half of the row in its low 16
// bits, so rows 65536 apart share an entry; the value keeps the true address. That is wanted: the selection of
// a row beyond 65535 is looked up under the same key in every operation.
//
// Asking, adding and removing take constant time, whatever is selected. Entries of one column stand together
// in pages, so that a selection of many rows is a walk through memory and not a jump for each cell.

#include <afxwin.h>

#include "grid/GridTypes.h"

#include <algorithm>
#include <array>
#include <bit>
#include <bitset>
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
    int Count() const { return m_nCount; }
    /// Whether none is.
    bool IsEmpty() const { return m_nCount == 0; }
    /// Whether the cell is.
    bool Has(int nRow, int nCol) const
    {
        const auto found = m_pages.find(KeyOf(nRow, nCol) / kPageSize);
        return found != m_pages.end() && found->second.used[PlaceOf(nRow)];
    }
    /// Selects a cell.
    void Add(int nRow, int nCol)
    {
        SPage& page = m_pages[KeyOf(nRow, nCol) / kPageSize];
        const size_t nPlace = PlaceOf(nRow);
        m_nCount += !page.used[nPlace];
        page.used.set(nPlace);
        page.cells[nPlace] = CCellID(nRow, nCol);
    }
    /// Takes a cell out; one that is not in does nothing.
    void Remove(int nRow, int nCol)
    {
        const auto found = m_pages.find(KeyOf(nRow, nCol) / kPageSize);
        if (found == m_pages.end() || !found->second.used[PlaceOf(nRow)])
            return;
        --m_nCount;
        found->second.used.reset(PlaceOf(nRow));
        if (found->second.used.none())
            m_pages.erase(found);
    }
    /// Takes all out.
    void RemoveAll()
    {
        m_pages = {};
        m_nCount = 0;
    }

    /// A copy, so that the map may change while a caller walks over it. In any order, but neighbours close to
    /// each other, as they stand in memory.
    std::vector<CCellID> Cells() const
    {
        const auto byRows = [](const auto* pLeft, const auto* pRight)
        { return std::rotr(pLeft->first, kRowBits) < std::rotr(pRight->first, kRowBits); };
        std::vector<const CPages::value_type*> pages;
        pages.reserve(m_pages.size());
        for (const auto& entry : m_pages)
            pages.push_back(&entry);
        std::sort(pages.begin(), pages.end(), byRows);

        std::vector<CCellID> cells;
        cells.reserve(m_nCount);
        for (const auto* const pEntry : pages)
            pEntry->second.ForEach([&](const CCellID& cell) { cells.push_back(cell); });
        return cells;
    }

    /// The smallest range around all of them; with none of them the counts as minima, and maxima of -1.
    CCellRange Around(int nRowCount, int nColCount) const
    {
        CCellRange range(nRowCount, nColCount, -1, -1);
        for (const auto& [nKey, page] : m_pages)
            page.ForEach(
                [&](const CCellID& cell)
                {
                    range.minRow = std::min(range.minRow, cell.row);
                    range.minCol = std::min(range.minCol, cell.col);
                    range.maxRow = std::max(range.maxRow, cell.row);
                    range.maxCol = std::max(range.maxCol, cell.col);
                });
        return range;
    }

private:
    static constexpr size_t kPageSize = 64; ///< rows of one column
    struct SPage
    {
        std::bitset<kPageSize> used;
        std::array<CCellID, kPageSize> cells;

        template <class Work>
        void ForEach(Work work) const
        {
            for (size_t nPlace = 0; nPlace < kPageSize; ++nPlace)
                if (used[nPlace])
                    work(cells[nPlace]);
        }
    };

    using CPages = std::unordered_map<DWORD, SPage>; ///< by the key of their first cell / kPageSize
    static constexpr int kRowBits = 10; ///< low in such a key: the row's; above them the column's

    static size_t PlaceOf(int nRow) { return static_cast<DWORD>(nRow) % kPageSize; }

    CPages m_pages;
    int m_nCount = 0;
};
