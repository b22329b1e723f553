// From cells to pixels and back, and sizing to fit. The sums are those of CGridAxis.

#include <afxwin.h>

#include "grid/GridCtrl.h"

#include "grid/GridClientArea.h"
#include "grid/GridLifeWatch.h"
#include "grid/SavedWidths.h"

#include <algorithm>
#include <cstdlib>

namespace
{
const CCellRange kNoCells;

/// The last pixel of what begins at a place, or the furthest that has a pixel behind it.
int LastPixel(int nStart, int nSize)
{
    return gfnSaturated(LONGLONG(nStart) + nSize) - 1;
}
} // namespace

// ---- The top-left cell and what shows ---------------------------------------------------------------------

CCellID CGridCtrl::GetTopleftNonFixedCell(BOOL bForceRecalculation)
{
    if (m_topLeftCell.IsValid() && !bForceRecalculation)
        return m_topLeftCell;
    const bool bWindow = ::IsWindow(m_hWnd);
    m_topLeftCell.row = m_rows.FirstAt(bWindow ? GetScrollPos(SB_VERT) : 0);
    m_topLeftCell.col = m_cols.FirstAt(bWindow ? GetScrollPos(SB_HORZ) : 0);
    return m_topLeftCell;
}

CSize CGridCtrl::GetClientSize() const
{
    CRect rect;
    if (::IsWindow(m_hWnd))
        GetClientRect(&rect);
    return rect.Size();
}

// A cell that shows only in part counts.
CCellRange CGridCtrl::GetVisibleNonFixedCellRange(RECT* pRect, BOOL bForceRecalculation)
{
    const CSize client = GetClientSize();
    const CCellID topLeft = GetTopleftNonFixedCell(bForceRecalculation);
    const CGridAxis::SVisible rows = m_rows.Visible(topLeft.row, client.cy);
    const CGridAxis::SVisible cols = m_cols.Visible(topLeft.col, client.cx);
    if (pRect)
        ::SetRect(pRect, 0, 0, cols.bReachesEnd ? client.cx : cols.nEnd,
                  rows.bReachesEnd ? client.cy : rows.nEnd);
    return CCellRange(topLeft.row, topLeft.col, rows.nLast, cols.nLast);
}

// One that ends exactly on the edge of the window stays in.
CCellRange CGridCtrl::GetUnobstructedNonFixedCellRange(BOOL bForceRecalculation)
{
    const CSize client = GetClientSize();
    const CCellID topLeft = GetTopleftNonFixedCell(bForceRecalculation);
    const auto lastWhole = [](const CGridAxis& axis, int nFirst, int nClientEnd)
    {
        const CGridAxis::SVisible visible = axis.Visible(nFirst, nClientEnd);
        return visible.nLast > 0 && visible.nEnd > nClientEnd ? visible.nLast - 1 : visible.nLast;
    };
    return CCellRange(topLeft.row, topLeft.col, lastWhole(m_rows, topLeft.row, client.cy),
                      lastWhole(m_cols, topLeft.col, client.cx));
}

BOOL CGridCtrl::IsCellVisible(CCellID cell)
{
    return IsCellVisible(cell.row, cell.col);
}

// Its top and left edges lie in the window.
BOOL CGridCtrl::IsCellVisible(int nRow, int nCol)
{
    if (!::IsWindow(m_hWnd) || nRow < 0 || nCol < 0)
        return FALSE;
    CPoint origin;
    if (!GetCellOrigin(nRow, nCol, &origin))
        return FALSE;
    const CSize client = GetClientSize();
    return origin.x < client.cx && origin.y < client.cy;
}

// ---- Cells to pixels --------------------------------------------------------------------------------------

BOOL CGridCtrl::GetCellOrigin(const CCellID& cell, POINT* p)
{
    return GetCellOrigin(cell.row, cell.col, p);
}

BOOL CGridCtrl::GetCellOrigin(int nRow, int nCol, POINT* p)
{
    if (!IsValid(nRow, nCol))
        return FALSE;
    CCellID topLeft;
    if (!m_rows.IsFixed(nRow) || !m_cols.IsFixed(nCol))
        topLeft = GetTopleftNonFixedCell();
    if ((!m_rows.IsFixed(nRow) && nRow < topLeft.row) || (!m_cols.IsFixed(nCol) && nCol < topLeft.col))
        return FALSE;
    p->x = m_cols.Origin(nCol, topLeft.col);
    p->y = m_rows.Origin(nRow, topLeft.row);
    return TRUE;
}

BOOL CGridCtrl::GetCellRect(const CCellID& cell, RECT* pRect)
{
    return GetCellRect(cell.row, cell.col, pRect);
}

BOOL CGridCtrl::GetCellRect(int nRow, int nCol, RECT* pRect)
{
    CPoint origin;
    if (!GetCellOrigin(nRow, nCol, &origin))
        return FALSE;
    ::SetRect(pRect, origin.x, origin.y, LastPixel(origin.x, m_cols.Size(nCol)),
              LastPixel(origin.y, m_rows.Size(nRow)));
    return TRUE;
}

BOOL CGridCtrl::GetTextRect(const CCellID& cell, RECT* pRect)
{
    return GetTextRect(cell.row, cell.col, pRect);
}

BOOL CGridCtrl::GetTextRect(int nRow, int nCol, RECT* pRect)
{
    if (!GetCell(nRow, nCol) || !GetCellRect(nRow, nCol, pRect))
        return FALSE;
    CGridCellBase* const pCell = GetCell(nRow, nCol);
    return pCell ? pCell->GetTextRect(pRect) : FALSE;
}

BOOL CGridCtrl::GetCellRangeRect(const CCellRange& range, RECT* pRect)
{
    CPoint first, last;
    if (!GetCellOrigin(range.minRow, range.minCol, &first) ||
        !GetCellOrigin(range.maxRow, range.maxCol, &last))
        return FALSE;
    ::SetRect(pRect, first.x, first.y, LastPixel(last.x, m_cols.Size(range.maxCol)),
              LastPixel(last.y, m_rows.Size(range.maxRow)));
    return TRUE;
}

// ---- Pixels to cells --------------------------------------------------------------------------------------

CCellID CGridCtrl::GetCellFromPt(CPoint point, BOOL bAllowFixedCellCheck)
{
    const CCellID topLeft = GetTopleftNonFixedCell();
    if (!bAllowFixedCellCheck && !IsValid(topLeft))
        return CCellID();
    return CCellID(m_rows.ItemAt(point.y, topLeft.row, bAllowFixedCellCheck != FALSE),
                   m_cols.ItemAt(point.x, topLeft.col, bAllowFixedCellCheck != FALSE));
}

CPoint CGridCtrl::GetPointClicked(int nRow, int nCol, const CPoint& point)
{
    CPoint origin;
    return GetCellOrigin(nRow, nCol, &origin) ? CPoint(point.x - origin.x, point.y - origin.y) : CPoint(0, 0);
}

// Dividers are alive over the headers only.
BOOL CGridCtrl::MouseOverRowResizeArea(CPoint& point)
{
    if (point.x >= GetFixedColumnWidth())
        return FALSE;
    const CCellID cell = GetCellFromPt(point);
    CPoint start;
    if (!GetCellOrigin(cell, &start))
        return FALSE;
    const int nBelow = LastPixel(start.y, m_rows.Size(cell.row)) + 1 - point.y;
    return (point.y - start.y < m_nResizeCaptureRange && cell.row != 0) || nBelow < m_nResizeCaptureRange;
}

BOOL CGridCtrl::MouseOverColumnResizeArea(CPoint& point)
{
    if (point.y >= GetFixedRowHeight())
        return FALSE;
    const CCellID cell = GetCellFromPt(point);
    CPoint start;
    if (!GetCellOrigin(cell, &start))
        return FALSE;
    const int nBehind = LastPixel(start.x, m_cols.Size(cell.col)) + 1 - point.x;
    return (point.x - start.x < m_nResizeCaptureRange && cell.col != 0) || nBehind < m_nResizeCaptureRange;
}

// ---- Sizes ------------------------------------------------------------------------------------------------

int CGridCtrl::GetRowHeight(int nRow) const
{
    return m_rows.Has(nRow) ? m_rows.Size(nRow) : -1;
}

int CGridCtrl::GetColumnWidth(int nCol) const
{
    return m_cols.Has(nCol) ? m_cols.Size(nCol) : -1;
}

BOOL CGridCtrl::SetRowHeight(int nRow, int nHeight)
{
    if (!m_rows.Has(nRow) || nHeight < 0)
        return FALSE;
    m_rows.SetSize(nRow, nHeight);
    ResetScrollBars();
    return TRUE;
}

BOOL CGridCtrl::SetColumnWidth(int nCol, int nWidth, int bIgnoreSaved)
{
    if (!m_cols.Has(nCol) || nWidth < 0)
        return FALSE;
    m_cols.SetSize(nCol, bIgnoreSaved ? nWidth : CSavedWidths(m_strPersistKey).Read(nCol, nWidth));
    ResetScrollBars();
    return TRUE;
}

// ---- Sizing to the contents -------------------------------------------------------------------------------

/// The rows that count for a style, all columns.
CCellRange CGridCtrl::AutoSizeSpan(UINT nStyle) const
{
    if (nStyle == GVS_DEFAULT)
        nStyle = m_nAutoSizeStyle;
    return CCellRange(nStyle & GVS_HEADER ? 0 : m_rows.Fixed(), 0,
                      (nStyle & GVS_DATA ? GetRowCount() : m_rows.Fixed()) - 1, GetColumnCount() - 1);
}

BOOL CGridCtrl::AutoSizeColumn(int nCol, UINT nAutoSizeStyle, BOOL bResetScroll)
{
    if (!m_cols.IsShown(nCol))
        return FALSE;
    const CClientArea area(*this);
    if (!area.DC())
        return FALSE;

    const CCellRange span = AutoSizeSpan(nAutoSizeStyle);
    SendCacheHintToParent(CCellRange(span.minRow, nCol, span.maxRow, nCol));
    int nWidth = 0;
    for (int nRow = span.minRow; nRow <= span.maxRow; ++nRow)
        if (CGridCellBase* const pCell = GetCell(nRow, nCol))
            nWidth = std::max<int>(nWidth, pCell->GetCellExtent(area.DC()).cx);
    SendCacheHintToParent(kNoCells);

    if (m_cols.Has(nCol))
        m_cols.SetSize(nCol, nWidth);
    if (bResetScroll)
        ResetScrollBars();
    return TRUE;
}

// The hint names one column more than there is; receivers have to bear it.
BOOL CGridCtrl::AutoSizeRow(int nRow, BOOL bResetScroll)
{
    if (!m_rows.IsShown(nRow))
        return FALSE;
    const CClientArea area(*this);
    if (!area.DC())
        return FALSE;

    SendCacheHintToParent(CCellRange(nRow, 0, nRow, GetColumnCount()));
    int nHeight = 0;
    for (int nCol = 0; nCol < GetColumnCount(); ++nCol)
        if (CGridCellBase* const pCell = GetCell(nRow, nCol))
            nHeight = std::max<int>(nHeight, pCell->GetCellExtent(area.DC()).cy);
    SendCacheHintToParent(kNoCells);

    if (m_rows.Has(nRow))
        m_rows.SetSize(nRow, nHeight);
    if (bResetScroll)
        ResetScrollBars();
    return TRUE;
}

void CGridCtrl::AutoSizeColumns(UINT nAutoSizeStyle)
{
    for (int nCol = 0; nCol < GetColumnCount(); ++nCol)
        if (m_cols.IsShown(nCol))
            AutoSizeColumn(nCol, nAutoSizeStyle, FALSE);
    ResetScrollBars();
}

void CGridCtrl::AutoSizeRows()
{
    for (int nRow = 0; nRow < GetRowCount(); ++nRow)
        if (m_rows.IsShown(nRow))
            AutoSizeRow(nRow, FALSE);
    ResetScrollBars();
}

// Rows in the span start at height 1: they can shrink, and none becomes hidden.
void CGridCtrl::AutoSize(UINT nAutoSizeStyle)
{
    const CClientArea area(*this);
    if (!area.DC())
        return;
    const CCellRange span = AutoSizeSpan(nAutoSizeStyle);
    SendCacheHintToParent(CCellRange(span.minRow, 0, span.maxRow, GetColumnCount()));
    for (int nRow = span.minRow; nRow <= span.maxRow; ++nRow)
        if (m_rows.IsShown(nRow))
            m_rows.SetSize(nRow, 1);
    for (int nCol = 0; nCol < GetColumnCount(); ++nCol)
        if (m_cols.IsShown(nCol))
            FitColumnAndRows(nCol, span, area.DC());
    SendCacheHintToParent(kNoCells);
    const CLifeWatch life(*this);
    ResetScrollBars();
    if (life.ObjectLives())
        InvalidateGrid();
}

/// One column as wide as its widest cell, and the rows at least as high as their cells in it.
void CGridCtrl::FitColumnAndRows(int nCol, const CCellRange& span, CDC* pDC)
{
    int nWidth = 0;
    for (int nRow = span.minRow; nRow <= span.maxRow; ++nRow)
    {
        CGridCellBase* const pCell = m_rows.IsShown(nRow) ? GetCell(nRow, nCol) : nullptr;
        if (!pCell)
            continue;
        const CSize size = pCell->GetCellExtent(pDC);
        nWidth = std::max<int>(nWidth, size.cx);
        if (m_rows.Has(nRow) && size.cy > m_rows.Size(nRow))
            m_rows.SetSize(nRow, size.cy);
    }
    if (m_cols.Has(nCol))
        m_cols.SetSize(nCol, nWidth);
}

// ---- Sizing to the window ---------------------------------------------------------------------------------

void CGridCtrl::ExpandColumnsToFit(BOOL bExpandFixed)
{
    Expand(SB_HORZ, bExpandFixed);
}

void CGridCtrl::ExpandRowsToFit(BOOL bExpandFixed)
{
    Expand(SB_VERT, bExpandFixed);
}

// Each gets an equal share of what is free, or missing; what the division leaves goes to the first ones, a
// pixel each. A hidden one among those takes up a place without taking the pixel, so that the total can stay
// some pixels short. Where there is too little room, one that shows keeps one pixel, and so can come back.
void CGridCtrl::Expand(int nBar, BOOL bExpandFixed)
{
    CGridAxis& axis = AxisOf(nBar);
    const int nFirst = bExpandFixed ? 0 : axis.Fixed();
    if (axis.Count() <= nFirst || !::IsWindow(m_hWnd))
        return;
    const CLifeWatch life(*this);
    EnableScrollBars(nBar, FALSE); // which may end an edit
    if (!life.WindowLives())
        return;

    int nShown = 0;
    for (int nItem = nFirst; nItem < axis.Count(); ++nItem)
        nShown += axis.IsShown(nItem);
    if (nShown == 0)
        return;
    const int nFree = ClientExtent(nBar) - axis.Extent();
    const int nShare = nFree / nShown;
    const int nRest = std::abs(nFree) % nShown;
    const int nStep = nFree > 0 ? 1 : -1;
    for (int nItem = nFirst; nItem < axis.Count(); ++nItem)
        if (axis.IsShown(nItem))
            axis.SetSize(nItem,
                         std::max(1, axis.Size(nItem) + nShare + (nItem - nFirst < nRest ? nStep : 0)));
    Invalidate();
    ResetScrollBars();
}

// The second pass over the columns takes up the width of a scroll bar that the rows made unnecessary.
void CGridCtrl::ExpandToFit(BOOL bExpandFixed)
{
    const CLifeWatch life(*this);
    ExpandColumnsToFit(bExpandFixed);
    if (life.ObjectLives())
        ExpandRowsToFit(bExpandFixed);
    if (life.ObjectLives())
        ExpandColumnsToFit(bExpandFixed);
    if (life.ObjectLives())
        InvalidateGrid();
}

// Not the first column, even if it is the only one that shows.
void CGridCtrl::ExpandLastColumn()
{
    int nCol = GetColumnCount() - 1;
    while (nCol > 0 && !m_cols.IsShown(nCol))
        --nCol;
    if (nCol <= 0 || !::IsWindow(m_hWnd))
        return;
    const CLifeWatch life(*this);
    EnableScrollBars(SB_HORZ, FALSE);
    if (!life.WindowLives() || !m_cols.Has(nCol))
        return;
    const int nOthers = m_cols.Extent() - m_cols.Size(nCol);
    m_cols.SetSize(nCol, std::max(1, ClientExtent(SB_HORZ) - nOthers)); // it goes on showing
    Invalidate();
    ResetScrollBars();
}

int CGridCtrl::ClientExtent(int nBar) const
{
    const CSize client = GetClientSize();
    return nBar == SB_HORZ ? client.cx : client.cy;
}
