// Text, state, colours and the rest of single cells, by row and column.

#include <afxwin.h>

#include "grid/GridCtrl.h"

#include <cstdarg>

namespace
{
/// `none` where there is no cell.
template <class Value>
Value Ask(CGridCellBase* pCell, Value (CGridCellBase::*get)(), Value none)
{
    return pCell ? (pCell->*get)() : none;
}

/// FALSE where there is no cell. Looks do not count as a modification: see ChangeContents.
template <class Value>
BOOL Change(CGridCellBase* pCell, void (CGridCellBase::*set)(Value), Value value)
{
    if (pCell)
        (pCell->*set)(value);
    return pCell != nullptr;
}
} // namespace

// ---- Access -----------------------------------------------------------------------------------------------

/// The cell that a setter may change; null in virtual mode, where there is nothing that could keep the
/// change.
CGridCellBase* CGridCtrl::GetCellToChange(int nRow, int nCol) const
{
    return m_bVirtualMode ? nullptr : GetCell(nRow, nCol);
}

/// The books after a change of text, data or image: SetModified for a cell that is at hand.
void CGridCtrl::ItemChanged(CGridCellBase& cell, int nCol)
{
    if (nCol == m_nSortColumn)
        SetSortColumn(-1);
    cell.SetState(cell.GetState() | CELL_MODIFIED);
    m_bModified = TRUE;
}

/// Sets bits of a cell's state, or clears them.
void CGridCtrl::MarkItem(const CCellID& cell, UINT nBits, bool bOn)
{
    const UINT nState = GetItemState(cell.row, cell.col);
    SetItemState(cell.row, cell.col, bOn ? nState | nBits : nState & ~nBits);
}

template <class Value>
BOOL CGridCtrl::ChangeContents(int nRow, int nCol, void (CGridCellBase::*set)(Value), Value value)
{
    CGridCellBase* const pCell = GetCellToChange(nRow, nCol);
    if (!Change(pCell, set, value))
        return FALSE;
    ItemChanged(*pCell, nCol);
    return TRUE;
}

// ---- Contents ---------------------------------------------------------------------------------------------

BOOL CGridCtrl::SetItemText(int nRow, int nCol, LPCWSTR str)
{
    return ChangeContents(nRow, nCol, &CGridCellBase::SetText, str);
}

BOOL CGridCtrl::SetItemTextFmt(int nRow, int nCol, LPCWSTR szFmt, ...)
{
    CString strText;
    va_list arguments;
    va_start(arguments, szFmt);
    strText.FormatV(szFmt, arguments);
    va_end(arguments);
    return SetItemText(nRow, nCol, strText);
}

BOOL CGridCtrl::SetItemTextFmtID(int nRow, int nCol, UINT nID, ...)
{
    CString strFormat;
    CString strText;
    if (strFormat.LoadString(nID))
    {
        va_list arguments;
        va_start(arguments, nID);
        strText.FormatV(strFormat, arguments);
        va_end(arguments);
    }
    return SetItemText(nRow, nCol, strText);
}

CString CGridCtrl::GetItemText(int nRow, int nCol) const
{
    return CString(Ask<LPCWSTR>(GetCell(nRow, nCol), &CGridCellBase::GetText, L""));
}

BOOL CGridCtrl::SetItemData(int nRow, int nCol, LPARAM lParam)
{
    return ChangeContents(nRow, nCol, &CGridCellBase::SetData, lParam);
}

LPARAM CGridCtrl::GetItemData(int nRow, int nCol) const
{
    return Ask<LPARAM>(GetCell(nRow, nCol), &CGridCellBase::GetData, 0);
}

BOOL CGridCtrl::SetItemImage(int nRow, int nCol, int iImage)
{
    return ChangeContents(nRow, nCol, &CGridCellBase::SetImage, iImage);
}

int CGridCtrl::GetItemImage(int nRow, int nCol) const
{
    return Ask(GetCell(nRow, nCol), &CGridCellBase::GetImage, -1);
}

// SetItemState stands with the selection, which it keeps in step.
UINT CGridCtrl::GetItemState(int nRow, int nCol) const
{
    return Ask<DWORD>(GetCell(nRow, nCol), &CGridCellBase::GetState, 0);
}

// ---- Looks ------------------------------------------------------------------------------------------------

BOOL CGridCtrl::SetItemFormat(int nRow, int nCol, UINT nFormat)
{
    return Change<DWORD>(GetCellToChange(nRow, nCol), &CGridCellBase::SetFormat, nFormat);
}

UINT CGridCtrl::GetItemFormat(int nRow, int nCol) const
{
    return Ask<DWORD>(GetCell(nRow, nCol), &CGridCellBase::GetFormat, 0);
}

BOOL CGridCtrl::SetItemBkColour(int nRow, int nCol, COLORREF cr)
{
    return Change(GetCellToChange(nRow, nCol), &CGridCellBase::SetBackClr, cr);
}

COLORREF CGridCtrl::GetItemBkColour(int nRow, int nCol) const
{
    return Ask<COLORREF>(GetCell(nRow, nCol), &CGridCellBase::GetBackClr, 0);
}

BOOL CGridCtrl::SetItemFgColour(int nRow, int nCol, COLORREF cr)
{
    return Change(GetCellToChange(nRow, nCol), &CGridCellBase::SetTextClr, cr);
}

COLORREF CGridCtrl::GetItemFgColour(int nRow, int nCol) const
{
    return Ask<COLORREF>(GetCell(nRow, nCol), &CGridCellBase::GetTextClr, 0);
}

BOOL CGridCtrl::SetItemFont(int nRow, int nCol, const LOGFONTW* plf)
{
    return Change(GetCellToChange(nRow, nCol), &CGridCellBase::SetFont, plf);
}

const LOGFONTW* CGridCtrl::GetItemFont(int nRow, int nCol) const
{
    const LOGFONTW* const plf = Ask<LOGFONTW*>(GetCell(nRow, nCol), &CGridCellBase::GetFont, nullptr);
    return plf ? plf : GetDefaultCell(m_rows.IsFixed(nRow), m_cols.IsFixed(nCol))->GetFont();
}

CSize CGridCtrl::GetCellTextExtent(int nRow, int nCol)
{
    CGridCellBase* const pCell = GetCell(nRow, nCol);
    return pCell ? pCell->GetTextExtent(pCell->GetText(), nullptr) : CSize(0, 0);
}

CSize CGridCtrl::GetTextExtent(int nRow, int nCol, LPCWSTR str)
{
    CGridCellBase* const pCell = GetCell(nRow, nCol);
    return pCell ? pCell->GetTextExtent(str, nullptr) : CSize(0, 0);
}

// ---- Several at once --------------------------------------------------------------------------------------

// Counts as a modification whatever the mask says.
BOOL CGridCtrl::SetItem(const GV_ITEM* pItem)
{
    CGridCellBase* const pCell = pItem ? GetCellToChange(pItem->row, pItem->col) : nullptr;
    if (!pCell)
        return FALSE;
    SetModified(TRUE, pItem->row, pItem->col);

    if (pItem->mask & GV_MASK_TEXT)
        pCell->SetText(pItem->strText);
    if (pItem->mask & GV_MASK_PARAM)
        pCell->SetData(pItem->lParam);
    if (pItem->mask & GV_MASK_IMAGE)
        pCell->SetImage(pItem->iImage);
    if (pItem->mask & GV_MASK_STATE)
        SetItemState(pItem->row, pItem->col, pItem->nState);
    if (pItem->mask & GV_MASK_FORMAT)
        pCell->SetFormat(pItem->nFormat);
    if (pItem->mask & GV_MASK_BKCLR)
        pCell->SetBackClr(pItem->crBkClr);
    if (pItem->mask & GV_MASK_FGCLR)
        pCell->SetTextClr(pItem->crFgClr);
    if (pItem->mask & GV_MASK_FONT)
        pCell->SetFont(&pItem->lfFont);
    if (pItem->mask & GV_MASK_MARGIN)
        pCell->SetMargin(pItem->nMargin);
    return TRUE;
}

BOOL CGridCtrl::GetItem(GV_ITEM* pItem)
{
    CGridCellBase* const pCell = pItem ? GetCell(pItem->row, pItem->col) : nullptr;
    if (!pCell)
        return FALSE;

    if (pItem->mask & GV_MASK_TEXT)
        pItem->strText = GetItemText(pItem->row, pItem->col);
    if (pItem->mask & GV_MASK_PARAM)
        pItem->lParam = pCell->GetData();
    if (pItem->mask & GV_MASK_IMAGE)
        pItem->iImage = pCell->GetImage();
    if (pItem->mask & GV_MASK_STATE)
        pItem->nState = pCell->GetState();
    if (pItem->mask & GV_MASK_FORMAT)
        pItem->nFormat = pCell->GetFormat();
    if (pItem->mask & GV_MASK_BKCLR)
        pItem->crBkClr = pCell->GetBackClr();
    if (pItem->mask & GV_MASK_FGCLR)
        pItem->crFgClr = pCell->GetTextClr();
    const LOGFONTW* const plf = pItem->mask & GV_MASK_FONT ? pCell->GetFont() : nullptr;
    if (plf)
        pItem->lfFont = *plf;
    if (pItem->mask & GV_MASK_MARGIN)
        pItem->nMargin = pCell->GetMargin();
    return TRUE;
}

// ---- Modified and editable --------------------------------------------------------------------------------

void CGridCtrl::SetModified(BOOL bModified, int nRow, int nCol)
{
    if (nCol < 0 || nCol == m_nSortColumn)
        SetSortColumn(-1); // what is sorted may not be any more

    if (nRow < 0 || nCol < 0)
        m_bModified = bModified;
    else
    {
        MarkItem(CCellID(nRow, nCol), CELL_MODIFIED, bModified != FALSE);
        m_bModified = m_bModified || bModified;
    }
    if (m_bModified || m_bVirtualMode)
        return; // a virtual grid has no cells with marks
    GetCellRange().ForEach(
        [this](int nEachRow, int nEachCol)
        {
            if (GetModified(nEachRow, nEachCol))
                MarkItem(CCellID(nEachRow, nEachCol), CELL_MODIFIED, false);
        });
}

BOOL CGridCtrl::GetModified(int nRow, int nCol)
{
    if (nRow < 0 || nCol < 0)
        return m_bModified;
    return (GetItemState(nRow, nCol) & CELL_MODIFIED) != 0;
}

BOOL CGridCtrl::IsCellEditable(CCellID& cell) const
{
    return IsCellEditable(cell.row, cell.col);
}

// A cell that is not there has no state, and so counts as editable.
BOOL CGridCtrl::IsCellEditable(int nRow, int nCol) const
{
    return m_bEditable && !(GetItemState(nRow, nCol) & CELL_READONLY);
}
