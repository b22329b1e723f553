#include <afxwin.h>

#include "grid/ExtGridCtrl.h"

#include "grid/ExtGridParts.h"

class CExtGridMsgHook : public CExtGridHook<CExtGridCtrl>
{
    using CExtGridHook::CExtGridHook;
};

CExtGridCtrl::CExtGridCtrl(AExtGridCtrlNotificationHandler* pHandler)
    : CExtGrid(pHandler, std::make_unique<CExtGridMsgHook>(this))
{
}

void CExtGridCtrl::OnGridEndEdit(NMHDR* pNMHDR, LRESULT* pResult)
{
    const CCellID cell = gfnCellOf(pNMHDR);
    const CString strText = GetItemText(cell.row, cell.col);
    *pResult = GetHandler().OnExtGridEndEdit(gfnControlId(*this), cell.row, cell.col, &strText) ? 0 : -1;
}

void CExtGridCtrl::OnGridRClick(NMHDR* pNMHDR, LRESULT* /*pResult*/)
{
    const int nRow = RaisedToBody(gfnCellOf(pNMHDR)).row;
    if (nRow < GetRowCount())
        GetHandler().OnExtGridRClick(gfnControlId(*this), nRow);
}

void CExtGridCtrl::OnGridSelChanged(NMHDR* pNMHDR, LRESULT* pResult)
{
    const CCellID cell = gfnCellOf(pNMHDR);
    const int nRow = RaisedToBody(cell).row;
    if (nRow >= GetRowCount())
        return;
    if (nRow != m_nCurrentRow)
    {
        GetHandler().OnExtGridRowChanged(gfnControlId(*this), nRow, m_nCurrentRow);
        if (m_crSelectedRow != CLR_NONE)
            ShowCurrentRow(nRow, cell.col);
        // As it came, so that a fixed row is remembered while the body's first is painted, and selecting that
        // one is a change once more. Wanted.
        m_nCurrentRow = cell.row;
    }
    *pResult = 1;
}

void CExtGridCtrl::SelectRowEx(int nRow, int nCol)
{
    GridNotify record{{}, nRow, nCol}; // as if the grid had notified
    LRESULT lResult = 0;
    OnGridSelChanged(&record.hdr, &lResult);
}

void CExtGridCtrl::ShowCurrentRow(int nRow, int nCol)
{
    const CGridDrawingStop stop(*this);
    if (m_nCurrentRow != -1)
        gfnPaintRow(*this, m_nCurrentRow, kRestingColor);
    gfnPaintRow(*this, nRow, m_crSelectedRow);
    EnsureVisible(nRow, nCol); // here, with drawing stopped, it does not scroll: wanted
}
