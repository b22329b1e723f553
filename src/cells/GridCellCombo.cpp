#include <afxwin.h>

#include "cells/GridCellCombo.h"

#include "cells/InPlaceList.h"
#include "grid/GridCtrl.h"

#include <algorithm>

IMPLEMENT_DYNCREATE(CGridCellCombo, CGridCell)

namespace
{
/// Ends a running edit by taking the focus to the grid; null if that was the end of the grid's window. What
/// the grid tells its parent may also delete the cell, and even the grid object.
CGridCtrl* EndByFocus(const CGridCtrl& grid)
{
    const HWND hGrid = grid.m_hWnd;
    ::SetFocus(hGrid);
    return dynamic_cast<CGridCtrl*>(CWnd::FromHandlePermanent(hGrid));
}

/// Takes the arrow's width off the rectangle.
void DrawListArrow(CDC& dc, CRect& rect)
{
    CRect arrow(rect);
    arrow.left = rect.right - ::GetSystemMetrics(SM_CXVSCROLL);
    arrow.bottom = rect.top + ::GetSystemMetrics(SM_CYHSCROLL);
    dc.DrawFrameControl(arrow, DFC_SCROLL, DFCS_SCROLLDOWN);
    rect.right = arrow.left;
}
} // namespace

void CGridCellCombo::operator=(const CGridCellCombo& cell)
{
    CGridCellBase::operator=(cell);
    m_Strings.Copy(cell.m_Strings);
    m_dwStyle = cell.m_dwStyle;
}

void CGridCellCombo::SetOptions(const CStringArray& options)
{
    m_Strings.Copy(options);
}

DWORD CGridCellCombo::GetStyle() const
{
    return m_dwStyle;
}

CComboBox* CGridCellCombo::DajKomboBoks() const
{
    return GetList();
}

CWnd* CGridCellCombo::GetEditWnd()
{
    CInPlaceList* const pList = GetList();
    const bool bHasEdit = (m_dwStyle & CBS_DROPDOWNLIST) != CBS_DROPDOWNLIST;
    return pList && bHasEdit ? &pList->m_edit : nullptr;
}

CInPlaceList* CGridCellCombo::GetList() const
{
    return dynamic_cast<CInPlaceList*>(m_pEditWnd);
}

// ---- Drawing and measuring --------------------------------------------------------------------------------

BOOL CGridCellCombo::Draw(CDC* pDC, int nRow, int nCol, CRect rect, BOOL bEraseBkgnd)
{
    if (IsEditing())
    {
        // The text is in the editor, and must not show beside it.
        const CString strText = GetText();
        SetText(L"");
        const BOOL bDrawn = CGridCell::Draw(pDC, nRow, nCol, rect, bEraseBkgnd);
        SetText(strText);
        return bDrawn;
    }
    const int nArrowHeight = ::GetSystemMetrics(SM_CYHSCROLL); // measured in both directions
    if (pDC && m_pGrid && m_pGrid->IsCellEditable(nRow, nCol) && nArrowHeight < rect.Width() &&
        nArrowHeight < rect.Height())
        DrawListArrow(*pDC, rect);
    return CGridCell::Draw(pDC, nRow, nCol, rect, bEraseBkgnd);
}

CSize CGridCellCombo::GetCellExtent(CDC* pDC)
{
    const CSize size = CGridCell::GetCellExtent(pDC);
    return CSize(size.cx + ::GetSystemMetrics(SM_CXVSCROLL),
                 std::max<int>(size.cy, ::GetSystemMetrics(SM_CYHSCROLL)));
}

// ---- Editing ----------------------------------------------------------------------------------------------

BOOL CGridCellCombo::Edit(int nRow, int nCol, CRect rect, CPoint point, UINT nID, UINT nChar)
{
    if (!m_pGrid)
        return FALSE;
    if (m_bEditing)
    {
        CGridCtrl* const pGrid = EndByFocus(*m_pGrid);
        CGridCellBase* const pCell = pGrid ? pGrid->GetCell(nRow, nCol) : nullptr;
        // From here on this cell may be gone, and is not touched itself.
        if (pCell != this || pCell->IsEditing())
            return FALSE;
        return pCell->Edit(nRow, nCol, rect, point, nID, nChar);
    }
    m_bEditing = TRUE;
    SetEditWnd(new CInPlaceList(m_pGrid, rect, m_dwStyle, nID, nRow, nCol, GetTextClr(), GetBackClr(),
                                m_Strings, GetText(), nChar));
    return TRUE;
}
