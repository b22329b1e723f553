// Painting: regions first, then the cells in four passes, then the lines of the scrolling part.

#include <afxwin.h>

#include "grid/GridCtrl.h"

#include "grid/GridClientArea.h"
#include "grid/MemDC.h"

#include <algorithm>

// ---- Messages ---------------------------------------------------------------------------------------------

void CGridCtrl::OnPaint()
{
    CPaintDC dc(this);
    if (!m_bDoubleBuffering)
    {
        OnDraw(&dc);
        return;
    }
    CMemDC buffer(&dc);
    OnDraw(&buffer);
}

// OnDraw erases, region by region.
BOOL CGridCtrl::OnEraseBkgnd(CDC* /*pDC*/)
{
    return TRUE;
}

// ---- The whole window -------------------------------------------------------------------------------------

void CGridCtrl::OnDraw(CDC* pDC)
{
    CRect rectClip;
    if (!m_bAllowDraw || pDC->GetClipBox(&rectClip) == ERROR)
        return;
    EraseBkgnd(pDC);

    CRect rectVisible;
    const CCellRange visible = GetVisibleNonFixedCellRange(&rectVisible);
    SendCacheHintToParent(visible);
    CFont* const pOldFont = pDC->GetCurrentFont();
    if (!pDC->IsPrinting())
        pDC->SelectObject(m_cellDefault.GetFontObject()); // of most cells: they find it there
    DrawCells(pDC, rectClip, visible);
    pDC->SelectObject(pOldFont);
    DrawGridLines(pDC, visible, rectVisible);
    SendCacheHintToParent(CCellRange());
}

/// Corner, fixed columns, fixed rows, body.
void CGridCtrl::DrawCells(CDC* pDC, const CRect& rectClip, const CCellRange& visible)
{
    const CPoint body(GetFixedColumnWidth(), GetFixedRowHeight());
    const int nLastFixedRow = m_rows.Fixed() - 1;
    const int nLastFixedCol = m_cols.Fixed() - 1;
    const CRect rectAll(INT_MIN, INT_MIN, INT_MAX,
                        INT_MAX); // the corner is drawn without asking the clip box

    DrawPass(pDC, rectAll, CCellRange(0, 0, nLastFixedRow, nLastFixedCol), CPoint(0, 0));
    DrawPass(pDC, rectClip, CCellRange(visible.minRow, 0, visible.maxRow, nLastFixedCol), CPoint(0, body.y));
    DrawPass(pDC, rectClip, CCellRange(0, visible.minCol, nLastFixedRow, visible.maxCol), CPoint(body.x, 0));
    DrawPass(pDC, rectClip, visible, body);
}

/// The cells of a range, the first of them at a point, as far as they touch the clip box. A hidden row or
/// column gives cells without an extent, which are drawn all the same.
void CGridCtrl::DrawPass(CDC* pDC, const CRect& rectClip, const CCellRange& range, CPoint origin)
{
    CRect rect;
    rect.bottom = origin.y - 1;
    for (int nRow = range.minRow; nRow <= range.maxRow && m_rows.Has(nRow); ++nRow)
    {
        rect.top = rect.bottom + 1;
        rect.bottom = gfnSaturated(LONGLONG(rect.top) + m_rows.Size(nRow)) - 1;
        if (rect.top > rectClip.bottom)
            break;
        if (rect.bottom < rectClip.top)
            continue;

        rect.right = origin.x - 1;
        for (int nCol = range.minCol; nCol <= range.maxCol && m_cols.Has(nCol); ++nCol)
        {
            rect.left = rect.right + 1;
            rect.right = gfnSaturated(LONGLONG(rect.left) + m_cols.Size(nCol)) - 1;
            if (rect.left > rectClip.right)
                break;
            if (rect.right < rectClip.left)
                continue;
            if (CGridCellBase* const pCell = GetCell(nRow, nCol))
                pCell->Draw(pDC, nRow, nCol, rect, FALSE);
        }
    }
}

// Along the last pixel of each row and column; headers draw edges of their own.
void CGridCtrl::DrawGridLines(CDC* pDC, const CCellRange& visible, const CRect& rectVisible)
{
    CPen pen(PS_SOLID, 0, m_crGridLine);
    pDC->SelectObject(&pen);
    const CPoint body(GetFixedColumnWidth(), GetFixedRowHeight());
    if (m_nGridLines & GVL_VERT)
    {
        int x = body.x;
        for (int nCol = visible.minCol; nCol <= visible.maxCol && m_cols.Has(nCol); ++nCol)
        {
            x = gfnSaturated(LONGLONG(x) + m_cols.Size(nCol));
            pDC->MoveTo(x - 1, body.y);
            pDC->LineTo(x - 1, rectVisible.bottom);
        }
    }
    if (m_nGridLines & GVL_HORZ)
    {
        int y = body.y;
        for (int nRow = visible.minRow; nRow <= visible.maxRow && m_rows.Has(nRow); ++nRow)
        {
            y = gfnSaturated(LONGLONG(y) + m_rows.Size(nRow));
            pDC->MoveTo(body.x, y - 1);
            pDC->LineTo(rectVisible.right, y - 1);
        }
    }
    pDC->SelectStockObject(NULL_PEN); // so that the pen can go
}

void CGridCtrl::EraseBkgnd(CDC* pDC)
{
    CRect clip;
    if (pDC->GetClipBox(&clip) == ERROR)
        return;
    CRect visible;
    GetVisibleNonFixedCellRange(&visible);
    const int nFixedWidth = GetFixedColumnWidth();
    const int nFixedHeight = GetFixedRowHeight();
    const auto fill = [pDC](const CRect& rect, COLORREF clr)
    {
        CBrush brush(clr);
        pDC->FillRect(&rect, &brush);
    };

    if (clip.left < nFixedWidth && clip.top < nFixedHeight)
        fill(CRect(clip.left, clip.top, nFixedWidth, nFixedHeight), m_cellFixedRowCol.GetBackClr());
    // From the top of the clip box, over the corner just painted, which its cells paint again.
    if (clip.left < nFixedWidth && clip.top < visible.bottom)
        fill(CRect(clip.left, clip.top, nFixedWidth, visible.bottom), m_cellFixedCol.GetBackClr());
    // One pixel into the corner.
    if (clip.top < nFixedHeight && clip.right > nFixedWidth && clip.left < visible.right)
        fill(CRect(nFixedWidth - 1, clip.top, visible.right, nFixedHeight), m_cellFixedRow.GetBackClr());

    CRect body;
    if (body.IntersectRect(&visible, &clip))
    {
        body.left = std::max<int>(body.left, nFixedWidth);
        body.top = std::max<int>(body.top, nFixedHeight);
        fill(body, m_cellDefault.GetBackClr());
    }
    if (visible.right < clip.right)
        fill(CRect(visible.right, clip.top, clip.right, clip.bottom), m_crGridBk);
    if (visible.bottom < clip.bottom && clip.left < visible.right)
        fill(CRect(clip.left, visible.bottom, visible.right, clip.bottom), m_crGridBk);
}

// ---- At once ----------------------------------------------------------------------------------------------

BOOL CGridCtrl::RedrawCell(const CCellID& cell, CDC* pDC)
{
    return RedrawCell(cell.row, cell.col, pDC);
}

BOOL CGridCtrl::RedrawCell(int nRow, int nCol, CDC* pDC)
{
    CRect rect;
    if (!m_bAllowDraw || !IsCellVisible(nRow, nCol) || !GetCellRect(nRow, nCol, &rect))
        return FALSE;
    if (pDC)
        return RedrawCellOn(*pDC, nRow, nCol, rect);

    const CClientArea area(*this);
    if (area.DC())
        return RedrawCellOn(*area.DC(), nRow, nCol, rect);
    InvalidateRect(&rect, TRUE);
    return TRUE;
}

/// A cell and, in the body, its own two lines.
BOOL CGridCtrl::RedrawCellOn(CDC& dc, int nRow, int nCol, const CRect& rect)
{
    CGridCellBase* const pCell = GetCell(nRow, nCol);
    const BOOL bDrawn = pCell ? pCell->Draw(&dc, nRow, nCol, rect, TRUE) : FALSE;
    if (IsCellFixed(nRow, nCol))
        return bDrawn;

    CPen pen(PS_SOLID, 0, m_crGridLine);
    CPen* const pOldPen = dc.SelectObject(&pen);
    if (m_nGridLines & GVL_HORZ)
    {
        dc.MoveTo(rect.left, rect.bottom);
        dc.LineTo(rect.right + 1, rect.bottom);
    }
    if (m_nGridLines & GVL_VERT)
    {
        dc.MoveTo(rect.right, rect.top);
        dc.LineTo(rect.right, rect.bottom + 1);
    }
    dc.SelectObject(pOldPen);
    return bDrawn;
}

BOOL CGridCtrl::RedrawRow(int nRow)
{
    const CClientArea area(*this);
    BOOL bAll = TRUE;
    for (int nCol = 0; nCol < GetColumnCount(); ++nCol)
        bAll = RedrawCell(nRow, nCol, area.DC()) && bAll;
    return bAll;
}

BOOL CGridCtrl::RedrawColumn(int nCol)
{
    const CClientArea area(*this);
    BOOL bAll = TRUE;
    for (int nRow = 0; nRow < GetRowCount(); ++nRow)
        bAll = RedrawCell(nRow, nCol, area.DC()) && bAll;
    return bAll;
}

// ---- Later ------------------------------------------------------------------------------------------------

void CGridCtrl::SetRedraw(BOOL bAllowDraw, BOOL bResetScrollBars)
{
    const bool bSwitchedOn = bAllowDraw && !m_bAllowDraw;
    m_bAllowDraw = bAllowDraw;
    if (bSwitchedOn)
        InvalidateGrid();
    if (bResetScrollBars)
        ResetScrollBars();
}

void CGridCtrl::Refresh()
{
    InvalidateGrid();
}

/// The whole window, unless there is none or drawing is switched off.
void CGridCtrl::InvalidateGrid()
{
    if (::IsWindow(m_hWnd) && m_bAllowDraw)
        Invalidate();
}

BOOL CGridCtrl::InvalidateCellRect(const CCellID& cell)
{
    return InvalidateCellRect(cell.row, cell.col);
}

BOOL CGridCtrl::InvalidateCellRect(int nRow, int nCol)
{
    CRect rect;
    if (!::IsWindow(m_hWnd) || !m_bAllowDraw || !IsValid(nRow, nCol) || !IsCellVisible(nRow, nCol) ||
        !GetCellRect(nRow, nCol, &rect))
        return FALSE;
    rect.right++; // to exclusive corners
    rect.bottom++;
    InvalidateRect(&rect, TRUE);
    return TRUE;
}

BOOL CGridCtrl::InvalidateCellRect(const CCellRange& range)
{
    if (!::IsWindow(m_hWnd) || !m_bAllowDraw)
        return FALSE;
    const CCellRange visible = GetVisibleNonFixedCellRange();
    const CCellRange part(std::max(range.minRow, visible.minRow), std::max(range.minCol, visible.minCol),
                          std::min(range.maxRow, visible.maxRow), std::min(range.maxCol, visible.maxCol));
    CRect rect;
    if (!GetCellRangeRect(part, &rect))
        return FALSE;
    rect.right++;
    rect.bottom++;
    InvalidateRect(&rect, TRUE);
    return TRUE;
}
