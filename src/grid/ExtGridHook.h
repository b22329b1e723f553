#pragma once
// How an extended grid sees the notifications that it sends to its parent before the parent does. Three of
// them go to the grid in place of the parent.
//
// Not guarded against re-entry: a handler may move the focus or bring up a box that ends an edit, and then
// hears of that, too.

#include <afxwin.h>

#include <MsgHook.h>

#include "module/Export.h"

class OW_DIALOGCONTROLS_API CParentHook : public CMsgHook
{
public:
    explicit CParentHook(CWnd& grid);
    ~CParentHook() override;

    /// Nothing happens if there is no parent, or the hook is in place already.
    void HookParent();

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    // Each gets a GridNotify record, and a result of 1.
    virtual void OnGridEndEdit(NMHDR* pNMHDR, LRESULT* pResult) = 0;
    virtual void OnGridSelChanged(NMHDR* pNMHDR, LRESULT* pResult) = 0;
    virtual void OnGridRClick(NMHDR* pNMHDR, LRESULT* pResult) = 0;

private:
    bool IsGridId(WPARAM wParam) const;
    LRESULT OnGridNotify(NMHDR& header);

    CWnd& m_grid;
    CWnd m_parent; ///< names a parent that is no object of its own, for as long as it is hooked
};

/// The hook of one kind of grid, which makes it a friend.
template <class Grid>
class CExtGridHook : public CParentHook
{
public:
    explicit CExtGridHook(Grid* pGrid) : CParentHook(*pGrid), m_pGrid(pGrid) {}

private:
    void OnGridEndEdit(NMHDR* pNMHDR, LRESULT* pResult) override { m_pGrid->OnGridEndEdit(pNMHDR, pResult); }
    void OnGridSelChanged(NMHDR* pNMHDR, LRESULT* pResult) override
    {
        m_pGrid->OnGridSelChanged(pNMHDR, pResult);
    }
    void OnGridRClick(NMHDR* pNMHDR, LRESULT* pResult) override { m_pGrid->OnGridRClick(pNMHDR, pResult); }

    Grid* m_pGrid; ///< not owned: it owns the hook
};
