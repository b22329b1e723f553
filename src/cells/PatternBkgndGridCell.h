#pragma once
// A text cell with a hatch on its background, for sections, layers and the like.
//
// ```cpp
//     m_grid.SetCellType(1, 2, RUNTIME_CLASS(CPatternBkgndGridCell));
//     auto& cell = static_cast<CPatternBkgndGridCell&>(*m_grid.GetCell(1, 2));
//     cell.SetBackClr(RGB(255, 240, 200)); // the gaps
//     cell.SetPatternColor(RGB(160, 160, 255));
//     cell.SetPatternStyle(HS_BDIAGONAL);
//     m_grid.RedrawCell(1, 2);
// ```
//
// The lines are in the subtractive mix of the pattern's and the background's colour, as of two transparent
// sheets, and so darker than either; the gaps show the background. Give the cell a background of its own:
// an inherited one is not resolved, and counts as black.
//
// A cell that is selected and has not the focus shows the highlight colour without the pattern.
//
// Edited like a CAnsiGridCell, by gOtSubLang.

#include <afxwin.h>

#include "cells/AnsiGridCell.h"

class OW_DIALOGCONTROLS_API CPatternBkgndGridCell : public CAnsiGridCell
{
    DECLARE_DYNCREATE(CPatternBkgndGridCell)

public:
    using CAnsiGridCell::operator=;
    /// Takes over the pattern, too.
    void operator=(const CPatternBkgndGridCell& cell);

    // The setters do not repaint. 0xFFFFFFFF as colour or -1 as style, which both are at first, means no
    // pattern.

    /// Colour of the lines.
    COLORREF GetPatternColor() const;
    void SetPatternColor(COLORREF clr);
    /// A style of CreateHatchBrush: HS_HORIZONTAL to HS_DIAGCROSS. One that the system does not know shows as
    /// the plain background.
    int GetPatternStyle() const;
    void SetPatternStyle(int nStyle);

    BOOL Draw(CDC* pDC, int nRow, int nCol, CRect rect, BOOL bEraseBkgnd) override;

protected:
    /// Whether there are both a colour and a style.
    bool IsPatternBkgnd() const;
    /// Fills a rectangle with exclusive corners; FALSE, with nothing painted, if the system has no such
    /// hatch.
    BOOL FillPatternBkgnd(CDC* pDC, const CRect& rect);

    COLORREF m_crPattern = 0xFFFFFFFF;
    int m_nPatternStyle = -1;

private:
    class CPainter;
};
