#pragma once
// How a cell is painted, step by step: background, focus frame, raised edge, image, sort arrow, text.
//
// CGridCellBase::Draw runs one of these. A kind of cell that differs in a step overrides that step and runs
// its own:
//
// ```cpp
//     class CHatchPainter : public CGridCellPainter
//     {
//         using CGridCellPainter::CGridCellPainter;
//         void FillBackground(const CRect& rect, COLORREF clr) override;
//     };
//     class CHatchCell : public CGridCell
//     {
//         BOOL Draw(CDC* pDC, int nRow, int nCol, CRect rect, BOOL bEraseBkgnd) override
//         {
//             return CHatchPainter(*this, nRow, nCol).Paint(pDC, rect, bEraseBkgnd);
//         }
//     };
// ```
//
// Rectangles hold their last pixel, except where a step says otherwise.

#include <afxwin.h>

#include "cells/GridCellBase.h"

class OW_DIALOGCONTROLS_API CGridCellPainter
{
public:
    CGridCellPainter(CGridCellBase& cell, int nRow, int nCol);
    virtual ~CGridCellPainter();

    /// FALSE if there is nothing to paint on, no room, or no grid to ask. `bEraseBkgnd` also paints a
    /// background that is inherited; one of the cell's own is always painted.
    BOOL Paint(CDC* pDC, CRect rect, BOOL bEraseBkgnd);

protected:
    /// Fills with the cell's colour; not called for a selected cell without the focus, which is filled with
    /// the highlight colour. `rect` has exclusive corners.
    virtual void FillBackground(const CRect& rect, COLORREF clr);
    /// Takes the margin off.
    virtual void TakeMargin(CRect& rect);
    /// Paints the image into what the margin left.
    virtual void DrawImage(const CRect& rect);

    CGridCellBase& Cell() const { return m_cell; }
    CGridCtrl& Grid() const { return *m_pGrid; }
    CDC& DC() const { return *m_pDC; }

    /// Paints the cell's image at a point, if `size` from there fits into the rectangle and its margins.
    void DrawImageAt(CPoint point, CSize size, const CRect& rect);

private:
    struct SColors
    {
        COLORREF text;
        COLORREF back;
        BOOL erase;
    };
    SColors ResolveColors(CGridCellBase& defaultCell, BOOL bEraseBkgnd) const;
    void DrawBackground(CRect& rect, const SColors& colors);
    void DrawFocused(CRect& rect, SColors colors);
    void FrameFocus(const CRect& rect, COLORREF clr);
    void DrawSelected(const CRect& rect);
    void DrawPlain(const CRect& rect, const SColors& colors);
    void DrawFixedEdge(CRect& rect);
    bool IsHeaderOfFocus() const;
    void DrawSortArrow(CRect& rect);
    void DrawText(CRect rect);

    CGridCellBase& m_cell;
    CGridCtrl* m_pGrid;
    CDC* m_pDC = nullptr;
    int m_nRow;
    int m_nCol;
};
