#include <afxwin.h>

#include "grid/GridPainter.h"

#include "grid/GridCtrl.h"
#include "module/GdiScope.h"

#include <algorithm>

CGridPainter::CGridPainter(CDC& dc, const CGridView& view) : m_dc(dc), m_view(view)
{
    m_bCanPaint = dc.GetClipBox(&m_rectClip) != ERROR;
    m_visible = view.Visible(&m_rectVisible);
}

// ---- Regions ----------------------------------------------------------------------------------------------

void CGridPainter::Erase(const SGridColors& colors) const
{
    const CRect& clip = m_rectClip;
    const CRect& visible = m_rectVisible;
    const CPoint body = m_view.Body();
    const auto fill = [&](const CRect& rect, COLORREF clr)
    {
        CBrush brush(clr);
        m_dc.FillRect(&rect, &brush);
    };

    if (clip.left < body.x && clip.top < body.y)
        fill(CRect(clip.left, clip.top, body.x, body.y), colors.corner);
    // From the top of the clip box, over the corner just painted, which its cells paint again.
    if (clip.left < body.x && clip.top < visible.bottom)
        fill(CRect(clip.left, clip.top, body.x, visible.bottom), colors.fixedCols);
    // One pixel into the corner.
    if (clip.top < body.y && clip.right > body.x && clip.left < visible.right)
        fill(CRect(body.x - 1, clip.top, visible.right, body.y), colors.fixedRows);

    CRect bodyPart;
    if (bodyPart.IntersectRect(&visible, &clip))
    {
        bodyPart.left = std::max(bodyPart.left, body.x);
        bodyPart.top = std::max(bodyPart.top, body.y);
        fill(bodyPart, colors.body);
    }
    if (visible.right < clip.right)
        fill(CRect(visible.right, clip.top, clip.right, clip.bottom), colors.behind);
    if (visible.bottom < clip.bottom && clip.left < visible.right)
        fill(CRect(clip.left, visible.bottom, visible.right, clip.bottom), colors.behind);
}

// ---- Cells ------------------------------------------------------------------------------------------------

void CGridPainter::DrawCells(const CDrawCell& draw) const
{
    const CPoint body = m_view.Body();
    const int nLastFixedRow = m_view.Axis(EGridWay::eRows).Fixed() - 1;
    const int nLastFixedCol = m_view.Axis(EGridWay::eColumns).Fixed() - 1;
    const CRect rectAll(INT_MIN, INT_MIN, INT_MAX,
                        INT_MAX); // the corner is drawn without asking the clip box

    DrawPass(rectAll, CCellRange(0, 0, nLastFixedRow, nLastFixedCol), CPoint(0, 0), draw);
    DrawPass(m_rectClip, CCellRange(m_visible.minRow, 0, m_visible.maxRow, nLastFixedCol), CPoint(0, body.y),
             draw);
    DrawPass(m_rectClip, CCellRange(0, m_visible.minCol, nLastFixedRow, m_visible.maxCol), CPoint(body.x, 0),
             draw);
    DrawPass(m_rectClip, m_visible, body, draw);
}

/// The cells of a range, the first of them at a point, as far as they touch the clip box.
void CGridPainter::DrawPass(const CRect& rectClip, const CCellRange& range, CPoint origin,
                            const CDrawCell& draw) const
{
    const CGridAxis& rows = m_view.Axis(EGridWay::eRows);
    const CGridAxis& cols = m_view.Axis(EGridWay::eColumns);
    CRect rect;
    rect.bottom = origin.y - 1;
    for (int nRow = range.minRow; nRow <= range.maxRow && rows.Has(nRow); ++nRow)
    {
        rect.top = rect.bottom + 1;
        rect.bottom = gfnSaturated(LONGLONG(rect.top) + rows.Size(nRow)) - 1;
        if (rect.top > rectClip.bottom)
            break;
        if (rect.bottom < rectClip.top)
            continue;

        rect.right = origin.x - 1;
        for (int nCol = range.minCol; nCol <= range.maxCol && cols.Has(nCol) && rows.Has(nRow); ++nCol)
        {
            rect.left = rect.right + 1;
            rect.right = gfnSaturated(LONGLONG(rect.left) + cols.Size(nCol)) - 1;
            if (rect.left > rectClip.right)
                break;
            if (rect.right >= rectClip.left)
                draw(nRow, nCol, rect);
        }
    }
}

// ---- Lines ------------------------------------------------------------------------------------------------

// Headers draw edges of their own.
void CGridPainter::DrawLines(int nLines, COLORREF clr) const
{
    CPen pen(PS_SOLID, 0, clr);
    m_dc.SelectObject(&pen);
    if (nLines & GVL_VERT)
        DrawLinesBehind(EGridWay::eColumns);
    if (nLines & GVL_HORZ)
        DrawLinesBehind(EGridWay::eRows);
    m_dc.SelectStockObject(NULL_PEN); // so that the pen can go
}

/// Along the ends of the columns, or rows, of the body.
void CGridPainter::DrawLinesBehind(EGridWay way) const
{
    const CGridAxis& axis = m_view.Axis(way);
    const EGridWay across = gfnOtherWay(way);
    const int nStart = gfnAlong(across, m_view.Body());
    const int nEnd = gfnAlong(across, m_rectVisible.BottomRight());
    const int nLast = gfnItemAlong(way, CCellID(m_visible.maxRow, m_visible.maxCol));
    int nBehind = gfnAlong(way, m_view.Body());
    for (int nItem = gfnItemAlong(way, m_view.TopLeft()); nItem <= nLast && axis.Has(nItem); ++nItem)
    {
        nBehind = gfnSaturated(LONGLONG(nBehind) + axis.Size(nItem));
        m_dc.MoveTo(gfnPointAlong(way, nBehind - 1, nStart));
        m_dc.LineTo(gfnPointAlong(way, nBehind - 1, nEnd));
    }
}

void CGridPainter::DrawLinesOf(CDC& dc, const CRect& rect, int nLines, COLORREF clr)
{
    CPen pen(PS_SOLID, 0, clr);
    const CGdiSelection selection(dc, pen.GetSafeHandle());
    if (nLines & GVL_HORZ)
    {
        dc.MoveTo(rect.left, rect.bottom);
        dc.LineTo(rect.right + 1, rect.bottom);
    }
    if (nLines & GVL_VERT)
    {
        dc.MoveTo(rect.right, rect.top);
        dc.LineTo(rect.right, rect.bottom + 1);
    }
}
