#pragma once
// A text cell that can be marked: it then shows a star behind its text.
//
// ```cpp
//     m_grid.SetCellType(1, 1, RUNTIME_CLASS(CMarkedTextCell));
//     static_cast<CMarkedTextCell&>(*m_grid.GetCell(1, 1)).Mark(true); // changed and not saved yet, say
// ```
//
// The star is only painted. GetText, measuring and editing know the plain text; while a marked cell is
// painted, its text is set with the star and set back.

#include <afxwin.h>

#include "cells/GridCell.h"

class OW_DIALOGCONTROLS_API CMarkedTextCell : public CGridCell
{
    DECLARE_DYNCREATE(CMarkedTextCell)

public:
    using CGridCell::operator=;
    /// Takes over the mark, too.
    void operator=(const CMarkedTextCell& cell);

    /// A change has the whole grid repainted.
    void Mark(bool bMark);
    /// Whether the cell has its mark.
    bool IsMarked() const;

    BOOL Draw(CDC* pDC, int nRow, int nCol, CRect rect, BOOL bEraseBkgnd) override;

protected:
    bool m_bMarked = false;
};
