#pragma once
// The units of a grid's columns, by index. A cell looks its unit up for each number that it shows; a grid has few
// columns with one.

#include <ComplexUnit.h>

#include <algorithm>
#include <vector>

class CColumnUnits
{
public:
    /// By value: it may be one of these.
    void Set(int nCol, CComplexUnit unit)
    {
        Remove(nCol);
        m_columns.push_back(nCol);
        m_units.push_back(unit);
    }

    void Remove(int nCol)
    {
        const auto it = std::find(m_columns.begin(), m_columns.end(), nCol);
        if (it == m_columns.end())
            return;
        m_units.erase(m_units.begin() + (it - m_columns.begin()));
        m_columns.erase(it);
    }

    void RemoveAll()
    {
        m_columns.clear();
        m_units.clear();
    }

    /// Null for a column without a unit; good until the units change.
    const CComplexUnit* Find(int nCol) const
    {
        for (size_t i = 0; i < m_columns.size(); ++i)
            if (m_columns[i] == nCol)
                return &m_units[i];
        return nullptr;
    }

private:
    std::vector<int> m_columns;
    std::vector<CComplexUnit> m_units; ///< of the columns, in the same order
};
