#pragma once
// For the sources of the extended grids: what CExtGridCtrl and CExtGridCtrl2 share.

#include <MsgHook.h>

#include "grid/GridCtrl.h"

/// Sees the messages of a grid's parent before the parent does, and hands three of the grid's notifications
/// to the grid; the parent does not get those.
///
/// Not guarded against re-entry: a handler may move the focus or bring up a box that ends an edit, and then
/// hears of that, too.
template <class Grid>
class CExtGridHook : public CMsgHook
{
public:
    explicit CExtGridHook(Grid* pGrid) : m_pGrid(pGrid) {}
    ~CExtGridHook() override
    {
        Unhook();
        m_parent.m_hWnd = nullptr; // it is not ours to destroy
    }

    /// Nothing happens if there is no parent, or the hook is in place already.
    void HookParent()
    {
        const HWND hParent = m_pGrid->GetSafeHwnd() ? ::GetParent(m_pGrid->m_hWnd) : nullptr;
        if (IsHooked() || !hParent)
            return;
        CWnd* const pParent = CWnd::FromHandlePermanent(hParent);
        m_parent.m_hWnd = pParent ? nullptr : hParent;
        HookWindow(pParent ? pParent : &m_parent);
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message != WM_NOTIFY || !IsGridId(wParam))
            return Default();
        auto* const pHeader = reinterpret_cast<NMHDR*>(lParam);
        LRESULT lResult = 1;
        switch (pHeader->code)
        {
        case LVN_ENDLABELEDITW:
            m_pGrid->OnGridEndEdit(pHeader, &lResult);
            return lResult;
        case LVN_ITEMCHANGED:
            m_pGrid->OnGridSelChanged(pHeader, &lResult);
            return lResult;
        case NM_RCLICK:
            m_pGrid->OnGridRClick(pHeader, &lResult);
            return lResult;
        default:
            return Default();
        }
    }

private:
    /// A grid whose window has gone before the parent's has no id.
    bool IsGridId(WPARAM wParam) const
    {
        return m_pGrid->GetSafeHwnd() && m_pGrid->GetDlgCtrlID() == static_cast<int>(wParam);
    }

    Grid* m_pGrid; ///< not owned: it owns the hook
    CWnd m_parent; ///< names a parent that is no object of its own, for as long as it is hooked
};

/// Stops a grid's drawing for as long as it stands. Afterwards drawing is on and the whole window invalid,
/// also if the caller had switched it off: that is wanted.
class CGridDrawingStop
{
public:
    explicit CGridDrawingStop(CGridCtrl& grid) : m_grid(grid) { m_grid.SetRedraw(FALSE); }
    ~CGridDrawingStop() { m_grid.SetRedraw(TRUE, TRUE); }
    CGridDrawingStop(const CGridDrawingStop&) = delete;
    CGridDrawingStop& operator=(const CGridDrawingStop&) = delete;

private:
    CGridCtrl& m_grid;
};

/// The colour of what is neither current nor coloured by the client. White itself, not CLR_INHERIT: a cell
/// that was current keeps a colour of its own.
constexpr COLORREF kRestingColor = RGB(255, 255, 255);

// Backgrounds of a row's or a column's cells beyond the fixed ones. Without effect in virtual mode, and
// outside the grid.

inline void gfnPaintRow(CGridCtrl& grid, int nRow, COLORREF cr)
{
    for (int nCol = grid.GetFixedColumnCount(); nCol < grid.GetColumnCount(); ++nCol)
        grid.SetItemBkColour(nRow, nCol, cr);
}

/// `colorOfRow` answers the colour for a row's index.
template <class ColorOfRow>
void gfnPaintColumn(CGridCtrl& grid, int nCol, ColorOfRow colorOfRow)
{
    for (int nRow = grid.GetFixedRowCount(); nRow < grid.GetRowCount(); ++nRow)
        grid.SetItemBkColour(nRow, nCol, colorOfRow(nRow));
}

/// The id that handlers are told; 0 while there is no window.
inline int gfnControlId(const CWnd& grid)
{
    return grid.GetSafeHwnd() ? grid.GetDlgCtrlID() : 0;
}

/// The cell that a GridNotify record is about.
inline CCellID gfnCellOf(const NMHDR* pNMHDR)
{
    const auto& record = reinterpret_cast<const GridNotify&>(*pNMHDR);
    return CCellID(record.iRow, record.iColumn);
}
