#pragma once
// A cell with a text in several fonts, with lowered and raised parts: the mark-up of CMixedFont.
//
// ```cpp
//     m_grid.SetCellType(1, 4, RUNTIME_CLASS(CMixedFontGridCell));
//     m_grid.SetItemText(1, 4, L"<f Symbol>s</f><sub>max</sub> [kN/cm<sup>2</sup>]");
// ```
//
// The text outside all marks is in the font of the grid's window, and without one in the context's; a font
// of the cell's own makes no difference. The text stands on one line in the middle of the cell's height,
// and left, centred or at the right by the cell's format, two pixels from the edge: the margin and the
// formats for the height play no part, and neither does an image, which the text runs over. What does not
// fit is cut off. A selected cell keeps the colour of its text.
//
// The user edits the text with its marks in it.

#include <afxwin.h>

#include "cells/GridCell.h"

class OW_DIALOGCONTROLS_API CMixedFontGridCell : public CGridCell
{
    DECLARE_DYNCREATE(CMixedFontGridCell)

public:
    using CGridCell::operator=;
    void operator=(const CMixedFontGridCell& cell);

    BOOL Draw(CDC* pDC, int nRow, int nCol, CRect rect, BOOL bEraseBkgnd) override;

private:
    void DrawMixedText(CDC& dc, const CRect& rect);
};
