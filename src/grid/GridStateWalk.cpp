#include <afxwin.h>

#include "grid/GridStateWalk.h"

#include "grid/GridCtrl.h"

#include <algorithm>

namespace
{
/// The state bits that a word of GVNI_ flags asks for.
UINT StatesAskedFor(int nFlags)
{
    UINT nStates = nFlags & (CELL_FOCUSED | CELL_SELECTED | CELL_DROPHILITED | CELL_READONLY | CELL_FIXED);
    if (nFlags & GVNI_MODIFIED)
        nStates |= CELL_MODIFIED;
    return nStates;
}

/// One straight way; the first of those asked for counts.
CCellID StepOf(int nFlags)
{
    if (nFlags & GVNI_ABOVE)
        return CCellID(-1, 0);
    if (nFlags & GVNI_BELOW)
        return CCellID(1, 0);
    if (nFlags & GVNI_TOLEFT)
        return CCellID(0, -1);
    return CCellID(0, nFlags & GVNI_TORIGHT ? 1 : 0);
}
} // namespace

CCellID gfnNextCell(const CGridAxis& rows, const CGridAxis& cols, const CCellID& start, int nFlags,
                    const std::function<UINT(int nRow, int nCol)>& stateOf)
{
    // Outside there is nothing to be found; just so far outside that the next cell can still be named.
    CCellID cell(std::clamp(start.row, -1, rows.Count()), std::clamp(start.col, -1, cols.Count()));
    const UINT nStates = StatesAskedFor(nFlags);
    const auto matches = [&](int nRow, int nCol) { return (stateOf(nRow, nCol) & nStates) != 0; };

    if ((nFlags & GVNI_AREA) == GVNI_AREA)
    {
        // With all three flags the rows below are searched from their start, otherwise from the start column
        // on.
        const bool bWholeRows = (nFlags & GVNI_ALL) == GVNI_ALL;
        const int nStartRow = cell.row < 1 ? rows.Fixed() : cell.row;
        const int nStartCol = cell.col + 1 < 1 ? cols.Fixed() : cell.col + 1;
        for (int nRow = nStartRow; nRow < rows.Count(); ++nRow)
            for (int nCol = bWholeRows && nRow > nStartRow ? cols.Fixed() : nStartCol; nCol < cols.Count();
                 ++nCol)
                if (matches(nRow, nCol))
                    return CCellID(nRow, nCol);
        return CCellID();
    }

    const CCellID step = StepOf(nFlags);
    if (step == CCellID(0, 0))
        return CCellID();
    // Back only as far as the fixed ones.
    const auto isInside = [](const CGridAxis& axis, int nItem, int nStep)
    { return nStep < 0 ? nItem >= axis.Fixed() : nItem < axis.Count(); };
    for (;;)
    {
        cell = CCellID(cell.row + step.row, cell.col + step.col);
        if (step.row ? !isInside(rows, cell.row, step.row) : !isInside(cols, cell.col, step.col))
            return CCellID();
        if (matches(cell.row, cell.col))
            return cell;
    }
}
