#include <afxwin.h>

#include "cells/GridCellColorCombo.h"

#include "grid/GridCtrl.h"
#include "grid/GridLifeWatch.h"

#include <aced.h>

IMPLEMENT_DYNCREATE(CGridCellColorCombo, CGridCell)

namespace
{
/// The smallest cell with a swatch, as right minus left and bottom minus top of its rectangle.
constexpr int kLeastWidth = 54, kLeastHeight = 17;

void DrawSwatch(CDC& dc, CRect rect, COLORREF clr)
{
    CBrush frame(RGB(0, 0, 0));
    dc.FrameRect(rect, &frame);
    rect.DeflateRect(1, 1);
    CBrush fill;
    if (clr != CLR_INVALID && fill.CreateSolidBrush(clr))
        dc.FillRect(rect, &fill);
}

/// A triangle that points down, the mark of a list: lines of 5, 3 and 1 pixels.
void DrawListMark(CDC& dc, CPoint at)
{
    CPen pen(PS_SOLID, 1, RGB(0, 0, 0));
    CPen* const pOldPen = dc.SelectObject(&pen);
    for (int k = 0; k < 3; ++k)
    {
        dc.MoveTo(at.x + k, at.y + k);
        dc.LineTo(at.x + 5 - k, at.y + k);
    }
    dc.SelectObject(pOldPen);
}

CCellID CellUnderCursor(CGridCtrl& grid)
{
    CPoint point;
    if (!::GetCursorPos(&point))
        return CCellID();
    grid.ScreenToClient(&point);
    return grid.GetCellFromPt(point);
}
} // namespace

CGridCellColorCombo::CGridCellColorCombo()
{
}

CGridCellColorCombo::~CGridCellColorCombo()
{
    if (m_pGone)
        *m_pGone = true;
}

void CGridCellColorCombo::operator=(const CGridCellColorCombo& cell)
{
    CGridCellBase::operator=(cell);
    m_nMastAci = cell.m_nMastAci;
}

int CGridCellColorCombo::DajMastAci() const
{
    return m_nMastAci;
}

void CGridCellColorCombo::PostaviMastAci(int nMastAci)
{
    m_nMastAci = nMastAci;
}

BOOL CGridCellColorCombo::Draw(CDC* pDC, int nRow, int nCol, CRect rect, BOOL bEraseBkgnd)
{
    if (!pDC || rect.Width() < 1 || rect.Height() < 1)
        return FALSE;
    CGridCell::Draw(pDC, nRow, nCol, rect, bEraseBkgnd);
    if (rect.Width() < kLeastWidth || rect.Height() < kLeastHeight)
        return FALSE; // although the cell itself has been painted

    const CRect swatch(rect.TopLeft() + CSize(7, 3), CSize(41, 12));
    DrawSwatch(*pDC, swatch, acedGetRGB(m_nMastAci));
    DrawListMark(*pDC, CPoint(swatch.right + 10, swatch.top + 4));
    return TRUE;
}

// A point before the cell comes from a click on another cell that left the focus here. Anything can happen to
// the cell and the grid while the dialog is open; a cell that stands in no grid may outlive the one it was
// given.
void CGridCellColorCombo::OnClick(CPoint point)
{
    if (point.x < 0 || point.y < 0 || !m_pGrid || !::IsWindow(m_pGrid->m_hWnd) || m_pGone)
        return;
    CGridCtrl& grid = *m_pGrid;
    const CGridCtrl::CLifeWatch life(grid);
    const CCellID cell = CellUnderCursor(grid);
    int nMastAci = m_nMastAci;
    bool bGone = false;
    m_pGone = &bGone;
    const bool bAccepted = acedSetColorDialog(nMastAci, Adesk::kFalse, 0) != Adesk::kFalse;
    if (bGone)
        return;
    m_pGone = nullptr;
    if (!bAccepted || nMastAci == m_nMastAci)
        return;
    m_nMastAci = nMastAci;
    if (life.WindowLives())
        grid.RedrawCell(cell);
}
