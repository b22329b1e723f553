#include <afxwin.h>

#include "grid/ExtGridCtrl2.h"

#include "cells/SubtractiveMix.h"
#include "grid/ExtGridParts.h"

class CExtGrid2MsgHook : public CExtGridHook<CExtGridCtrl2>
{
    using CExtGridHook::CExtGridHook;
};

namespace
{
/// What the rows look like where the cross does not cover them.
class CRestingColors
{
public:
    explicit CRestingColors(AExtGridCtrl2ExtraHeaderSupport* pExtraHeader)
    {
        if (!pExtraHeader)
            return;
        m_nBandRows = pExtraHeader->GetExtraHeaderCount();
        m_crBand = pExtraHeader->GetExtraHeaderColor();
        m_crBody = pExtraHeader->GetBodyColor();
    }

    /// `nBodyRow` counts from the first row that is not fixed.
    COLORREF Of(int nBodyRow) const { return nBodyRow < m_nBandRows ? m_crBand : m_crBody; }

private:
    int m_nBandRows = 0;
    COLORREF m_crBand = kRestingColor;
    COLORREF m_crBody = kRestingColor;
};
} // namespace

CExtGridCtrl2::CExtGridCtrl2(AExtGridCtrl2NotificationHandler* pHandler,
                             AExtGridCtrl2ExtraHeaderSupport* pExtraHeader)
    : CExtGrid(pHandler, std::make_unique<CExtGrid2MsgHook>(this)), m_pExtraHeader(pExtraHeader)
{
}

void CExtGridCtrl2::OnGridEndEdit(NMHDR* pNMHDR, LRESULT* pResult)
{
    const CCellID cell = gfnCellOf(pNMHDR);
    const CString strText = GetItemText(cell.row, cell.col);
    *pResult = GetHandler().OnExtGrid2EndEdit(gfnControlId(*this), cell, &strText) ? 0 : -1;
}

void CExtGridCtrl2::OnGridRClick(NMHDR* pNMHDR, LRESULT* /*pResult*/)
{
    const CCellID cell = RaisedToBody(gfnCellOf(pNMHDR));
    if (IsValid(cell))
        GetHandler().OnExtGrid2RClick(gfnControlId(*this), cell);
}

void CExtGridCtrl2::OnGridSelChanged(NMHDR* pNMHDR, LRESULT* pResult)
{
    const CCellID cell = RaisedToBody(gfnCellOf(pNMHDR));
    if (!IsValid(cell))
        return;
    if (cell != CurrentCell())
    {
        GetHandler().OnExtGrid2CellChanged(gfnControlId(*this), cell, CurrentCell());
        if (m_crSelected != CLR_NONE)
            ShowCross(cell);
        // As it came, so that a fixed address is remembered while the body's first cell has the cross, and
        // selecting that one is a change once more. Wanted.
        SetCurrentCell(gfnCellOf(pNMHDR));
    }
    *pResult = 1;
}

void CExtGridCtrl2::SelectCellEx(int nRow, int nCol)
{
    if (CCellID(nRow, nCol) == CurrentCell())
        SetCurrentCell(CCellID());     // the same cell again is a change, too
    GridNotify record{{}, nRow, nCol}; // as if the grid had notified
    LRESULT lResult = 0;
    OnGridSelChanged(&record.hdr, &lResult);
}

void CExtGridCtrl2::SetCurrentCell(const CCellID& cell)
{
    m_nCurrentRow = cell.row;
    m_nCurrentCol = cell.col;
}

void CExtGridCtrl2::ShowCross(const CCellID& cell)
{
    const CGridDrawingStop stop(*this);
    const CRestingColors colors(m_pExtraHeader);
    const auto resting = [&](int nRow) { return colors.Of(nRow - GetFixedRowCount()); };
    const auto crossed = [&](int nRow) { return gfnSubtractiveMix(m_crSelected, resting(nRow)); };

    if (m_nCurrentRow != -1)
        gfnPaintRow(*this, m_nCurrentRow, resting(m_nCurrentRow));
    if (m_nCurrentCol != -1)
        gfnPaintColumn(*this, m_nCurrentCol, resting);
    gfnPaintRow(*this, cell.row, crossed(cell.row));
    gfnPaintColumn(*this, cell.col, crossed);
    EnsureVisible(cell.row, cell.col); // here, with drawing stopped, it does not scroll: wanted
}
