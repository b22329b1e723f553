// One edit: its start, its end, and what becomes of its text.

#include <afxwin.h>

#include "grid/GridCtrl.h"

#include "grid/GridLifeWatch.h"

#include <algorithm>

namespace
{
/// The focus is in an in-place editor of this grid, or in a part of one.
bool HasEditorFocus(HWND hGrid)
{
    HWND hWnd = ::IsWindow(hGrid) ? ::GetFocus() : nullptr;
    if (!::IsChild(hGrid, hWnd))
        return false;
    while (::GetParent(hWnd) != hGrid)
        hWnd = ::GetParent(hWnd);
    return ::GetDlgCtrlID(hWnd) == static_cast<int>(InPlaceControlId);
}
} // namespace

// ---- Its start --------------------------------------------------------------------------------------------

void CGridCtrl::StartEditCell()
{
    OnEditCell(m_focusCell.row, m_focusCell.col, CPoint(-1, -1), VK_LBUTTON);
}

void CGridCtrl::OnEditCell(int nRow, int nCol, CPoint point, UINT nChar)
{
    const CLifeWatch life(*this);
    if (!IsValid(nRow, nCol) || !IsCellEditable(nRow, nCol))
        return;
    EnsureVisible(nRow, nCol);
    CRect rect;
    if (!life.WindowLives() || !IsCellVisible(nRow, nCol) || !GetCellRect(nRow, nCol, &rect))
        return;
    if (SendMessageToParent(nRow, nCol, LVN_BEGINLABELEDITW) < 0 || !life.WindowLives())
        return;

    // An editor takes the focus as it is made. Whoever reacts to losing it, another editor above all, does so
    // before there is a cell to be deleted under the new editor's feet.
    if (!IsItemEditing(nRow, nCol) && ::GetFocus() != m_hWnd)
        SetFocus();
    if (!life.WindowLives())
        return;
    if (CGridCellBase* const pCell = GetCell(nRow, nCol))
        pCell->Edit(nRow, nCol, rect, point, InPlaceControlId, nChar);
}

// ---- Its end ----------------------------------------------------------------------------------------------

void CGridCtrl::EndEditing()
{
    if (!IsValid(m_focusCell))
        return;
    if (CGridCellBase* const pCell = GetCell(m_focusCell.row, m_focusCell.col))
        pCell->EndEdit();
}

/// An edit ends here as by a click elsewhere, before its cell can move away from under it. False if the grid
/// did not outlive what its parent did about it. Indices are to be checked after it.
bool CGridCtrl::EndEditFirst()
{
    const CLifeWatch life(*this);
    if (HasEditorFocus(m_hWnd))
        SetFocus();
    if (life.WindowLives() && !m_bVirtualMode)
        EndEditing();
    return life.ObjectLives();
}

// A key that moves on (pages, end, home and the arrows stand in a row) carries the edit to the next cell.
void CGridCtrl::OnEndInPlaceEdit(NMHDR* pNMHDR, LRESULT* pResult)
{
    *pResult = 0;
    if (!::IsWindow(m_hWnd))
        return;
    const CLifeWatch life(*this);
    const auto& item = reinterpret_cast<GV_DISPINFO*>(pNMHDR)->item;
    UINT nKey = static_cast<UINT>(item.lParam);
    OnEndEditCell(item.row, item.col, item.strText);
    if (!life.WindowLives())
        return;

    if (m_bEnterIsTab && nKey == VK_RETURN)
        nKey = VK_TAB;
    if (nKey != VK_TAB && (nKey < VK_PRIOR || nKey > VK_DOWN))
        return;
    OnKeyDown(nKey, 0, 0);
    if (life.WindowLives())
        OnEditCell(m_focusCell.row, m_focusCell.col, CPoint(-1, -1), nKey);
}

void CGridCtrl::OnEndEditCell(int nRow, int nCol, CString str)
{
    const CCellWatch watch(*this, GetCell(nRow, nCol));
    if (!OfferText(nRow, nCol, str))
        return;
    if (CGridCellBase* const pCell = watch.Cell())
        pCell->OnEndEdit();
}

/// Puts a text into a cell if cell and parent agree. It is stored before they are asked, so that they see it
/// in the grid; a text put back leaves the cell marked as modified all the same. What the parent does to the
/// rows meanwhile is no matter: the old text goes back into its own cell or nowhere. False if the grid did not
/// outlive the answer.
bool CGridCtrl::OfferText(int nRow, int nCol, const CString& str)
{
    const CString strOld = GetItemText(nRow, nCol);
    if (strOld == str)
        return true;
    const CLifeWatch life(*this);
    const CCellWatch watch(*this, GetCellToChange(nRow, nCol));
    SetItemText(nRow, nCol, str);
    const bool bAccepted =
        ValidateEdit(nRow, nCol, str) && SendMessageToParent(nRow, nCol, LVN_ENDLABELEDITW) >= 0;
    if (!life.ObjectLives())
        return false;

    CGridCellBase* const pCell = watch.Cell();
    if (!bAccepted && pCell)
    {
        pCell->SetText(strOld);
        ItemChanged(*pCell, nCol);
    }
    if (bAccepted && pCell == GetCellToChange(nRow, nCol)) // where it was
    {
        SetModified(TRUE, nRow, nCol);
        RedrawCell(nRow, nCol);
    }
    return true;
}

BOOL CGridCtrl::ValidateEdit(int nRow, int nCol, LPCWSTR str)
{
    CGridCellBase* const pCell = GetCell(nRow, nCol);
    return pCell ? pCell->ValidateEdit(str) : TRUE;
}

/// A change by program that asks the parent like an edit.
void CGridCtrl::ValidateAndModifyCellContents(int nRow, int nCol, LPCWSTR str)
{
    if (!IsCellEditable(nRow, nCol))
        return;
    const CLifeWatch life(*this);
    if (SendMessageToParent(nRow, nCol, LVN_BEGINLABELEDITW) < 0 || !life.ObjectLives())
        return;
    OfferText(nRow, nCol, str);
}

void CGridCtrl::ClearCells(CCellRange range)
{
    const CLifeWatch life(*this);
    for (int nRow = std::max(0, range.minRow); nRow <= range.maxRow && nRow < GetRowCount(); ++nRow)
        for (int nCol = std::max(0, range.minCol); nCol <= range.maxCol && nCol < GetColumnCount(); ++nCol)
        {
            if (!m_rows.IsShown(nRow) || !m_cols.IsShown(nCol))
                continue;
            ValidateAndModifyCellContents(nRow, nCol, L"");
            if (!life.ObjectLives())
                return;
        }
    InvalidateGrid();
}
