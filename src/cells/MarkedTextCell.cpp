#include <afxwin.h>

#include "cells/MarkedTextCell.h"

#include "cells/CellTextScope.h"
#include "grid/GridCtrl.h"

IMPLEMENT_DYNCREATE(CMarkedTextCell, CGridCell)

void CMarkedTextCell::operator=(const CMarkedTextCell& cell)
{
    CGridCellBase::operator=(cell);
    m_bMarked = cell.m_bMarked;
}

void CMarkedTextCell::Mark(bool bMark)
{
    if (bMark == m_bMarked)
        return;
    m_bMarked = bMark;
    if (m_pGrid && ::IsWindow(m_pGrid->m_hWnd))
        m_pGrid->Invalidate(FALSE);
}

bool CMarkedTextCell::IsMarked() const
{
    return m_bMarked;
}

BOOL CMarkedTextCell::Draw(CDC* pDC, int nRow, int nCol, CRect rect, BOOL bEraseBkgnd)
{
    if (!m_bMarked)
        return CGridCellBase::Draw(pDC, nRow, nCol, rect, bEraseBkgnd);
    const CCellTextScope withStar(*this, CString(GetText()) + L"*");
    return CGridCellBase::Draw(pDC, nRow, nCol, rect, bEraseBkgnd);
}
