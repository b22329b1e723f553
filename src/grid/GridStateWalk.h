#pragma once
// For the grid's own sources: the walk through the cells of a grid by their state.

#include <afxwin.h>

#include <functional>

#include "grid/GridAxis.h"
#include "grid/GridTypes.h"
#include "module/Export.h"

/// The next cell whose state has any of the bits that `nFlags`, GVNI_ values, ask for; (-1, -1) if there is
/// none. `stateOf` answers a cell's CELL_ bits, and 0 where there is no cell.
OW_DIALOGCONTROLS_API CCellID gfnNextCell(const CGridAxis& rows, const CGridAxis& cols, const CCellID& start,
                                          int nFlags, const std::function<UINT(int nRow, int nCol)>& stateOf);
