#include <afxwin.h>

#include "grid/GridKeyWalk.h"

#include <algorithm>

CCellID CGridKeyWalk::Vertically(const CCellID& from, int nStep) const
{
    const auto isBody = [&](int nRow) { return m_rows.Has(nRow) && !m_rows.IsFixed(nRow); };
    int nRow = from.row + nStep;
    while (isBody(nRow) && !m_rows.IsShown(nRow))
        nRow += nStep;
    return isBody(nRow) ? CCellID(nRow, from.col) : from;
}

CCellID CGridKeyWalk::Sideways(const CCellID& from, int nStep) const
{
    return FirstStop(CCellID(from.row, from.col + nStep), nStep, from.col);
}

bool CGridKeyWalk::TabWraps(const CCellID& from, int nStep) const
{
    return nStep > 0 ? from.col + 1 >= m_cols.Count() && from.row < m_rows.Count() - 1
                     : from.col - 1 < m_cols.Fixed() && from.row > m_rows.Fixed();
}

CCellID CGridKeyWalk::Tab(const CCellID& from, int nStep) const
{
    if (!TabWraps(from, nStep))
        return Sideways(from, nStep);
    const int nRowStart = nStep > 0 ? m_cols.Fixed() : m_cols.Count() - 1;
    return FirstStop(CCellID(from.row + nStep, nRowStart), nStep, from.col);
}

bool CGridKeyWalk::MayStop(const CCellID& cell) const
{
    return m_cols.IsShown(cell.col) && (!m_mayStop || m_mayStop(cell));
}

CCellID CGridKeyWalk::FirstStop(CCellID cell, int nStep, int nOld) const
{
    for (; cell.col < m_cols.Count() && (nStep > 0 || cell.col >= m_cols.Fixed()); cell.col += nStep)
        if (MayStop(cell))
            return cell;
    if (m_mayStop)
        for (cell.col = nStep > 0 ? 0 : m_cols.Count() - 1; cell.col * nStep < nOld * nStep;
             cell.col += nStep)
            if (MayStop(cell))
                return cell;
    return CCellID(cell.row, nOld);
}

CCellID CGridKeyWalk::ByPage(const CCellID& from, int nStep, int nMoved) const
{
    const int nFirst = m_rows.Fixed();
    const int nLast = m_rows.Count() - 1;
    if (nMoved == 0)
        return CCellID(nStep > 0 ? nLast : nFirst, from.col);
    return CCellID(std::max(nFirst, std::min(nLast, from.row + nMoved)), from.col);
}

CCellID CGridKeyWalk::ToStart(CCellID from, bool bOfGrid) const
{
    if (bOfGrid)
        from.row = m_rows.Fixed();
    from.col = m_cols.Fixed();
    while (from.col < m_cols.Count() - 1 && !m_cols.IsShown(from.col))
        ++from.col;
    while (from.row < m_rows.Count() - 1 && !m_rows.IsShown(from.row))
        ++from.row;
    return from;
}

CCellID CGridKeyWalk::ToEnd(CCellID from, bool bOfGrid) const
{
    if (bOfGrid)
        from.row = m_rows.Count() - 1;
    from.col = m_cols.Count() - 1;
    while (from.col > m_cols.Fixed() + 1 && !m_cols.IsShown(from.col))
        --from.col;
    while (from.row > m_rows.Fixed() + 1 && !m_rows.IsShown(from.row))
        --from.row;
    return from;
}
