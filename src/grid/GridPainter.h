#pragma once
// For the grid's own sources: paints a grid region by region, with the cells left to whoever knows them.
//
//     CGridPainter painter(dc, view);
//     painter.Erase(colors);
//     painter.DrawCells([&](int nRow, int nCol, const CRect& rect) { ... });
//     painter.DrawLines(GVL_BOTH, crLine);
//
// Only what lies in the context's clip box is filled, and only cells that touch it are asked for.

#include <afxwin.h>

#include <functional>

#include "grid/GridView.h"
#include "module/Export.h"

/// Backgrounds of the regions.
struct SGridColors
{
    COLORREF body;
    COLORREF fixedRows;
    COLORREF fixedCols;
    COLORREF corner;
    COLORREF behind; ///< where there are no cells
};

class OW_DIALOGCONTROLS_API CGridPainter
{
public:
    CGridPainter(CDC& dc, const CGridView& view);

    /// FALSE for a context that has no clip box: nothing can be painted.
    bool CanPaint() const { return m_bCanPaint; }
    /// The body cells that show.
    const CCellRange& Visible() const { return m_visible; }

    void Erase(const SGridColors& colors) const;

    /// `draw` gets a cell and its rectangle, which holds its last pixel. Corner, fixed columns, fixed rows,
    /// body. Hidden rows and columns give cells without an extent, which are drawn all the same. The number
    /// of rows and columns may shrink meanwhile.
    using CDrawCell = std::function<void(int nRow, int nCol, const CRect& rect)>;
    void DrawCells(const CDrawCell& draw) const;

    /// Along the last pixels of rows and columns, in the body only. `nLines`: GVL_ values.
    void DrawLines(int nLines, COLORREF clr) const;
    /// The two of one cell, along the right and bottom edges of its rectangle.
    static void DrawLinesOf(CDC& dc, const CRect& rect, int nLines, COLORREF clr);

private:
    void DrawPass(const CRect& rectClip, const CCellRange& range, CPoint origin, const CDrawCell& draw) const;
    void DrawLinesBehind(EGridWay way) const;

    CDC& m_dc;
    const CGridView m_view;
    CRect m_rectClip;
    bool m_bCanPaint;
    CRect m_rectVisible;
    CCellRange m_visible;
};
