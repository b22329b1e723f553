#pragma once
// For the grid's own sources: how rows are sorted by one of their cells.
//
// A quicksort around the cell in the middle. The pivot is held as a cell and not as a row: it stays the same
// cell wherever its row goes. Rows that compare equal are not swapped with each other; the sort is not stable
// all the same.
//
// The parts that are still to be sorted wait on a list and not on the stack, so that no order of the rows can
// exhaust it; they come up in the order of the recursion.

#include <vector>

/// `Rows` has the operations
///
///     Cell CellAt(int nRow);                  what the row is compared by, as often as it is asked
///     int Compare(Cell first, Cell second);   negative, 0 or positive
///     void Swap(int nRow, int nOther);
///     bool Broken() const;                    a comparison has changed the rows: nothing more is asked
template <class Rows>
class CRowSorter
{
public:
    CRowSorter(Rows& rows, bool bAscending) : m_rows(rows), m_nSign(bAscending ? 1 : -1) {}
    CRowSorter(const CRowSorter&) = delete;
    CRowSorter& operator=(const CRowSorter&) = delete;

    /// Both ends are sorted, too.
    void Sort(int nLow, int nHigh)
    {
        m_parts.push_back({nLow, nHigh});
        while (!m_parts.empty() && !m_rows.Broken())
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

    void Partition(int nLow, int nHigh)
    {
        const auto pivot = m_rows.CellAt((nLow + nHigh) / 2);
        int lo = nLow;
        int hi = nHigh;
        while (lo <= hi)
        {
            while (lo < nHigh && Order(m_rows.CellAt(lo), pivot) < 0)
                ++lo;
            while (hi > nLow && Order(m_rows.CellAt(hi), pivot) > 0)
                --hi;
            if (lo <= hi)
            {
                if (Order(m_rows.CellAt(lo), m_rows.CellAt(hi)) != 0)
                    m_rows.Swap(lo, hi);
                ++lo;
                --hi;
            }
            if (m_rows.Broken())
                return;
        }
        if (lo < nHigh)
            m_parts.push_back({lo, nHigh});
        if (nLow < hi)
            m_parts.push_back({nLow, hi});
    }

    /// Negative if the first belongs in front of the second. Without an order where it is broken.
    template <class Cell>
    int Order(Cell first, Cell second)
    {
        if (m_rows.Broken())
            return 0;
        const int nOrder = m_rows.Compare(first, second);
        if (m_rows.Broken() || nOrder == 0)
            return 0;
        return nOrder < 0 ? -m_nSign : m_nSign;
    }

    Rows& m_rows;
    const int m_nSign;
    std::vector<SPart> m_parts;
};
