// Painting: regions first, then the cells in four passes, then the lines of the scrolling part.

#include <afxwin.h>

#include "grid/GridCtrl.h"

#include "grid/GridClientArea.h"
#include "grid/GridPainter.h"
#include "grid/MemDC.h"
#include "module/GdiScope.h"

#include <algorithm>

// ---- Messages ---------------------------------------------------------------------------------------------

void CGridCtrl::OnPaint()
{
    m_bars.Paint();
    CPaintDC dc(this);
    if (::IsRectEmpty(&dc.m_ps.rcPaint))
        return; // only the bars
    if (!m_bDoubleBuffering)
    {
        OnDraw(&dc);
        return;
    }
    CMemDC buffer(&dc);
    OnDraw(&buffer);
}

void CGridCtrl::OnNcPaint()
{
    CWnd::OnNcPaint();
    m_bars.FramePainted();
}

// OnDraw erases, region by region.
BOOL CGridCtrl::OnEraseBkgnd(CDC* /*pDC*/)
{
    return TRUE;
}

// ---- The whole window -------------------------------------------------------------------------------------

void CGridCtrl::OnDraw(CDC* pDC)
{
    const CGridPainter painter(*pDC, GetView());
    if (!m_bAllowDraw || !painter.CanPaint())
        return;
    painter.Erase(RegionColors());
    SendCacheHintToParent(painter.Visible());
    DrawCells(*pDC, painter);
    painter.DrawLines(m_nGridLines, m_crGridLine);
    SendCacheHintToParent(CCellRange());
}

void CGridCtrl::EraseBkgnd(CDC* pDC)
{
    const CGridPainter painter(*pDC, GetView());
    if (painter.CanPaint())
        painter.Erase(RegionColors());
}

SGridColors CGridCtrl::RegionColors() const
{
    return {m_cellDefault.GetBackClr(), m_cellFixedRow.GetBackClr(), m_cellFixedCol.GetBackClr(),
            m_cellFixedRowCol.GetBackClr(), m_crGridBk};
}

/// The font of most cells is on the context meanwhile: they find it there.
void CGridCtrl::DrawCells(CDC& dc, const CGridPainter& painter)
{
    const CFontSelection font(dc, dc.IsPrinting() ? nullptr : m_cellDefault.GetFontObject()->GetSafeHandle());
    painter.DrawCells(
        [&](int nRow, int nCol, const CRect& rect)
        {
            if (CGridCellBase* const pCell = GetCell(nRow, nCol))
                pCell->Draw(&dc, nRow, nCol, rect, FALSE);
        });
}

/// Whether a cell shows, and may be painted, and where.
bool CGridCtrl::IsPainted(const CCellID& cell, CRect& rect)
{
    return m_bAllowDraw && IsCellVisible(cell) && GetCellRect(cell, &rect);
}

// ---- At once ----------------------------------------------------------------------------------------------

BOOL CGridCtrl::RedrawCell(const CCellID& cell, CDC* pDC)
{
    return RedrawCell(cell.row, cell.col, pDC);
}

BOOL CGridCtrl::RedrawCell(int nRow, int nCol, CDC* pDC)
{
    CRect rect;
    if (!IsPainted(CCellID(nRow, nCol), rect))
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

    CGridPainter::DrawLinesOf(dc, rect, m_nGridLines, m_crGridLine);
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
    if (!IsPainted(CCellID(nRow, nCol), rect))
        return FALSE;
    InvalidatePixels(rect);
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
    InvalidatePixels(rect);
    return TRUE;
}

/// `rect` holds its last pixel.
void CGridCtrl::InvalidatePixels(CRect rect)
{
    rect.right++;
    rect.bottom++;
    InvalidateRect(&rect, TRUE);
}
