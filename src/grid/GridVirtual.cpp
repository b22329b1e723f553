// Virtual mode, in which cells are made up for each question, and what a grid tells its parent.

#include <afxwin.h>

#include "grid/GridCtrl.h"

#include "grid/NotifyOwner.h"

#include <new>

namespace
{
/// The cell that a virtual grid hands out.
class CVirtualCell : public CGridCell
{
public:
    /// Past the setters, which nobody can have changed here.
    void Become(const GV_ITEM& item, CGridCtrl& grid)
    {
        m_nState = item.nState;
        m_nFormat = item.nFormat;
        m_nImage = item.iImage;
        m_crBkClr = item.crBkClr;
        m_crFgClr = item.crFgClr;
        m_lParam = item.lParam;
        if (!m_plfFont)
            m_plfFont = new (std::nothrow) LOGFONTW;
        if (m_plfFont)
            *m_plfFont = item.lfFont;
        m_nMargin = item.nMargin;
        m_strText = item.strText;
        m_pGrid = &grid;
    }
};

/// What the cell of a place is as long as nobody says otherwise.
void DescribePlace(const CGridCtrl& grid, int nRow, int nCol, GV_ITEM& item)
{
    const bool bFixedRow = nRow < grid.GetFixedRowCount();
    const bool bFixedCol = nCol < grid.GetFixedColumnCount();
    CGridDefaultCell& defaultCell = *grid.GetDefaultCell(bFixedRow, bFixedCol);
    item.row = nRow;
    item.col = nCol;
    item.mask = GV_MASK_ALL;
    item.nFormat = defaultCell.GetFormat();
    item.iImage = defaultCell.GetImage();
    item.crBkClr = defaultCell.GetBackClr();
    item.crFgClr = defaultCell.GetTextClr();
    item.lParam = defaultCell.GetData();
    const LOGFONTW* const plf = defaultCell.GetFont(); // none after a Reset
    item.lfFont = plf ? *plf : LOGFONTW{};
    item.nMargin = defaultCell.GetMargin();
    item.strText.Truncate(0); // keeps its buffer for the answer

    item.nState = 0;
    if (grid.IsCellSelected(nRow, nCol))
        item.nState |= CELL_SELECTED;
    if (bFixedRow)
        item.nState |= CELL_FIXED | CELL_FIXEDROW;
    if (bFixedCol)
        item.nState |= CELL_FIXED | CELL_FIXEDCOL;
    if (grid.GetFocusCell() == CCellID(nRow, nCol))
        item.nState |= CELL_FOCUSED;
}
} // namespace

void CGridCtrl::SetVirtualMode(BOOL bVirtual)
{
    if (!DeleteAllItems())
        return;
    m_bVirtualMode = bVirtual;
    if (!m_bVirtualMode)
        return;
    m_nAutoSizeStyle = GVS_HEADER;
    m_bEditable = FALSE;
    m_bHeaderSort = FALSE;
    m_bFixedColumnSelection = FALSE;
    m_bFixedRowSelection = FALSE;
}

void CGridCtrl::SetCallbackFunc(GRIDCALLBACK pCallback, LPARAM lParam)
{
    m_pfnCallback = pCallback;
    m_lCallbackParam = lParam;
}

// One request and one cell for the process: the next call overwrites both, and nothing is allocated after the
// first.
CGridCellBase* CGridCtrl::MakeVirtualCell(int nRow, int nCol) const
{
    static GV_DISPINFO info;
    static CVirtualCell cell;

    DescribePlace(*this, nRow, nCol, info.item);
    if (m_pfnCallback)
        m_pfnCallback(&info, m_lCallbackParam);
    else
        SendDisplayRequestToParent(&info);
    cell.Become(info.item, const_cast<CGridCtrl&>(*this));
    return &cell;
}

// ---- To the parent ----------------------------------------------------------------------------------------

LRESULT CGridCtrl::SendDisplayRequestToParent(GV_DISPINFO* pDispInfo) const
{
    return gfnNotifyOwner(this, pDispInfo->hdr, LVN_GETDISPINFOW);
}

LRESULT CGridCtrl::SendCacheHintToParent(const CCellRange& range) const
{
    if (!m_bVirtualMode)
        return 0;
    GridCacheHint hint{{}, range};
    return gfnNotifyOwner(this, hint.hdr, LVN_ODCACHEHINT);
}

LRESULT CGridCtrl::SendMessageToParent(int nRow, int nCol, int nCode) const
{
    return gfnNotifyOwner(this, nRow, nCol, static_cast<UINT>(nCode));
}
