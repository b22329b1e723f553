// From cells to pixels and back, and sizing to fit. The sums are those of CGridAxis.

#include <afxwin.h>

#include "grid/GridCtrl.h"

#include "grid/GridClientArea.h"
#include "grid/GridDivider.h"
#include "grid/GridLifeWatch.h"
#include "grid/SavedWidths.h"

#include <algorithm>

namespace
{
const CCellRange kNoCells;
} // namespace

// ---- The view ---------------------------------------------------------------------------------------------

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

/// What shows now, and where.
CGridView CGridCtrl::GetView(BOOL bForceRecalculation)
{
    const CCellID topLeft = GetTopleftNonFixedCell(bForceRecalculation);
    return CGridView(m_rows, m_cols, topLeft, GetClientSize());
}

CCellRange CGridCtrl::GetVisibleNonFixedCellRange(RECT* pRect, BOOL bForceRecalculation)
{
    return GetView(bForceRecalculation).Visible(pRect);
}

CCellRange CGridCtrl::GetUnobstructedNonFixedCellRange(BOOL bForceRecalculation)
{
    return GetView(bForceRecalculation).VisibleWhole();
}

BOOL CGridCtrl::IsCellVisible(CCellID cell)
{
    return ::IsWindow(m_hWnd) && GetView().Shows(cell);
}

BOOL CGridCtrl::IsCellVisible(int nRow, int nCol)
{
    return IsCellVisible(CCellID(nRow, nCol));
}

BOOL CGridCtrl::GetCellOrigin(const CCellID& cell, POINT* p)
{
    return GetView().Origin(cell, *p);
}

BOOL CGridCtrl::GetCellOrigin(int nRow, int nCol, POINT* p)
{
    return GetCellOrigin(CCellID(nRow, nCol), p);
}

BOOL CGridCtrl::GetCellRect(const CCellID& cell, RECT* pRect)
{
    return GetView().CellRect(cell, *pRect);
}

BOOL CGridCtrl::GetCellRect(int nRow, int nCol, RECT* pRect)
{
    return GetCellRect(CCellID(nRow, nCol), pRect);
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
    return GetView().RangeRect(range, *pRect);
}

CCellID CGridCtrl::GetCellFromPt(CPoint point, BOOL bAllowFixedCellCheck)
{
    const CGridView view = GetView();
    if (!bAllowFixedCellCheck && !IsValid(view.TopLeft()))
        return CCellID();
    return view.CellAt(point, bAllowFixedCellCheck != FALSE);
}

CPoint CGridCtrl::GetPointClicked(int nRow, int nCol, const CPoint& point)
{
    return GetView().FromOrigin(CCellID(nRow, nCol), point);
}

BOOL CGridCtrl::MouseOverRowResizeArea(CPoint& point)
{
    return CGridDividers(EGridWay::eRows, GetView(), m_nResizeCaptureRange).IsAt(point);
}

BOOL CGridCtrl::MouseOverColumnResizeArea(CPoint& point)
{
    return CGridDividers(EGridWay::eColumns, GetView(), m_nResizeCaptureRange).IsAt(point);
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
    const CCellRange span = AutoSizeSpan(nAutoSizeStyle);
    const CCellRange cells(span.minRow, nCol, span.maxRow, nCol);
    return SizeToCells(EGridWay::eColumns, cells, cells, bResetScroll);
}

// The hint names one column more than there is; receivers have to bear it.
BOOL CGridCtrl::AutoSizeRow(int nRow, BOOL bResetScroll)
{
    const int nCols = GetColumnCount();
    return SizeToCells(EGridWay::eRows, CCellRange(nRow, 0, nRow, nCols - 1),
                       CCellRange(nRow, 0, nRow, nCols), bResetScroll);
}

/// One column, or row, as large as the largest of its cells.
BOOL CGridCtrl::SizeToCells(EGridWay way, const CCellRange& cells, const CCellRange& hint, BOOL bResetScroll)
{
    CGridAxis& axis = Axis(way);
    const int nItem = gfnItemAlong(way, CCellID(cells.minRow, cells.minCol));
    if (!axis.IsShown(nItem))
        return FALSE;
    const CClientArea area(*this);
    if (!area.DC())
        return FALSE;

    SendCacheHintToParent(hint);
    int nSize = 0;
    for (int nRow = cells.minRow; nRow <= cells.maxRow; ++nRow)
        for (int nCol = cells.minCol; nCol <= cells.maxCol; ++nCol)
            if (CGridCellBase* const pCell = GetCell(nRow, nCol))
                nSize = std::max(nSize, gfnAlong(way, pCell->GetCellExtent(area.DC())));
    SendCacheHintToParent(kNoCells);

    if (axis.Has(nItem))
        axis.SetSize(nItem, nSize);
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
    Expand(EGridWay::eColumns, bExpandFixed);
}

void CGridCtrl::ExpandRowsToFit(BOOL bExpandFixed)
{
    Expand(EGridWay::eRows, bExpandFixed);
}

void CGridCtrl::Expand(EGridWay way, BOOL bExpandFixed)
{
    CGridAxis& axis = Axis(way);
    const int nFirst = bExpandFixed ? 0 : axis.Fixed();
    if (axis.Count() <= nFirst || !::IsWindow(m_hWnd))
        return;
    const CLifeWatch life(*this);
    EnableScrollBars(gfnBarOf(way), FALSE); // which may end an edit
    if (!life.WindowLives() || !axis.Share(nFirst, gfnAlong(way, GetClientSize()) - axis.Extent()))
        return;
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
    m_cols.SetSize(nCol, std::max(1, static_cast<int>(GetClientSize().cx) - nOthers)); // it goes on showing
    Invalidate();
    ResetScrollBars();
}
