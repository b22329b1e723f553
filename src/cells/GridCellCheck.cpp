#include <afxwin.h>

#include "cells/GridCellCheck.h"

#include "grid/GridCtrl.h"

#include <algorithm>

IMPLEMENT_DYNCREATE(CGridCellCheck, CGridCell)

void CGridCellCheck::operator=(const CGridCellCheck& cell)
{
    CGridCellBase::operator=(cell);
    m_bChecked = cell.m_bChecked;
    m_Rect = cell.m_Rect;
}

int CGridCellCheck::SetCheck(int nCheck)
{
    const int nOld = m_bChecked;
    m_bChecked = nCheck;
    if (!m_Rect.IsRectEmpty())
        InvalidateCell();
    return nOld;
}

int CGridCellCheck::GetCheck() const
{
    return m_bChecked;
}

// ---- Drawing and measuring --------------------------------------------------------------------------------

BOOL CGridCellCheck::Draw(CDC* pDC, int nRow, int nCol, CRect rect, BOOL bEraseBkgnd)
{
    const BOOL bDrawn = CGridCell::Draw(pDC, nRow, nCol, rect, bEraseBkgnd);
    m_Rect = rect;
    if (pDC)
        pDC->DrawFrameControl(GetBoxRect(), DFC_BUTTON, m_bChecked > 0 ? DFCS_CHECKED : 0);
    return bDrawn;
}

BOOL CGridCellCheck::GetTextRect(LPRECT pRect)
{
    CGridCell::GetTextRect(pRect);
    pRect->left = std::min<LONG>(pRect->left + GetRoomForBox(), pRect->right);
    return TRUE;
}

CSize CGridCellCheck::GetCellExtent(CDC* pDC)
{
    const int nRoom = GetRoomForBox();
    return CGridCell::GetCellExtent(pDC) + CSize(nRoom, nRoom);
}

CRect CGridCellCheck::GetBoxRect()
{
    constexpr int kBoxSize = 13;
    const int nMargin = static_cast<int>(GetMargin());
    return CRect(m_Rect.TopLeft() + CSize(nMargin, nMargin), CSize(kBoxSize, kBoxSize));
}

int CGridCellCheck::GetRoomForBox()
{
    return ::GetSystemMetrics(SM_CXHSCROLL) + 2 * static_cast<int>(GetMargin());
}

// ---- Mouse ------------------------------------------------------------------------------------------------

// The record points at the focus cell, and not at this one: after a click they are the same.
void CGridCellCheck::OnClick(CPoint point)
{
    if (!GetBoxRect().PtInRect(m_Rect.TopLeft() + point))
        return;
    m_bChecked = m_bChecked ? 0 : 1;
    InvalidateCell();
    if (!m_pGrid)
        return;
    const CCellID focus = m_pGrid->GetFocusCell();
    SendMessageToParent(focus.row, focus.col, GVN_CHECKCLICKED); // the receiver may delete this cell
}

void CGridCellCheck::InvalidateCell()
{
    if (m_pGrid && ::IsWindow(m_pGrid->m_hWnd))
        m_pGrid->InvalidateRect(&m_Rect, TRUE);
}
