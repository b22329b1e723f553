// Keys: the walk from cell to cell, and characters, which start an edit.

#include <afxwin.h>

#include "grid/GridCtrl.h"

#include "grid/GridKeyWalk.h"
#include "grid/GridLifeWatch.h"

#include <algorithm>

namespace
{
constexpr UINT kSelectAllKey = 'A';

bool IsDown(int nVirtualKey)
{
    return ::GetKeyState(nVirtualKey) < 0;
}
} // namespace

UINT CGridCtrl::OnGetDlgCode()
{
    if (!m_bHandleTabKey || IsDown(VK_CONTROL)) // Tab leaves the grid
        return DLGC_WANTARROWS | DLGC_WANTCHARS;
    return DLGC_WANTARROWS | DLGC_WANTCHARS | DLGC_WANTTAB;
}

// ---- Key down ---------------------------------------------------------------------------------------------

/// One key on its way: where it leads, what it scrolls, and what it takes along.
class CGridCtrl::CKeyStroke
{
public:
    CKeyStroke(CGridCtrl& grid, UINT nChar, UINT nRepCnt, UINT nFlags)
        : m_grid(grid), m_life(grid), m_nKey(grid.m_bEnterIsTab && nChar == VK_RETURN ? VK_TAB : nChar),
          m_nRepCnt(nRepCnt), m_nFlags(nFlags), m_next(grid.m_focusCell)
    {
    }

    bool IsSelectAll() const { return m_bControl && m_nKey == kSelectAllKey; }

    /// False for a key that means nothing here.
    bool Go();
    void DoDefault() { m_grid.CWnd::OnKeyDown(m_nKey, m_nRepCnt, m_nFlags); }

    /// Takes selection, focus and view along.
    void Follow();

private:
    int Step() const;
    CGridKeyWalk Walk() const;
    void GoTab();
    void GoPage();
    bool ScrollToEdge(UINT nSBCode);
    bool Scroll(EGridWay way, UINT nSBCode);
    bool ScrollTowards();
    void Select() const;

    CGridCtrl& m_grid;
    const CLifeWatch m_life;
    const UINT m_nKey;
    const UINT m_nRepCnt;
    const UINT m_nFlags;
    const bool m_bShift = IsDown(VK_SHIFT);
    const bool m_bControl = IsDown(VK_CONTROL);
    CCellID m_next;
    bool m_bWrapped = false; ///< a Tab has gone into another row
    bool m_bScrolled[2] = {};
};

void CGridCtrl::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (!IsValid(m_focusCell))
    {
        CWnd::OnKeyDown(nChar, nRepCnt, nFlags);
        return;
    }
    const CLifeWatch life(*this);
    CKeyStroke stroke(*this, nChar, nRepCnt, nFlags);
    if (stroke.IsSelectAll())
        OnEditSelectAll();
    if (!life.WindowLives())
        return;
    if (!stroke.Go())
        stroke.DoDefault();
    else if (life.WindowLives())
        stroke.Follow();
}

// ---- Where a key leads ------------------------------------------------------------------------------------

/// 1 on, to the right or down, -1 back.
int CGridCtrl::CKeyStroke::Step() const
{
    if (m_nKey == VK_TAB)
        return m_bShift ? -1 : 1;
    return m_nKey == VK_RIGHT || m_nKey == VK_DOWN || m_nKey == VK_NEXT ? 1 : -1;
}

CGridKeyWalk CGridCtrl::CKeyStroke::Walk() const
{
    const auto mayEdit = [&grid = m_grid](const CCellID& cell)
    {
        CGridCellBase* const pCell = grid.GetCell(cell.row, cell.col);
        return pCell && !pCell->IsFixed() && !pCell->IsReadOnly();
    };
    return CGridKeyWalk(m_grid.m_rows, m_grid.m_cols,
                        m_grid.m_bEnterIsTab ? CGridKeyWalk::CTest(mayEdit) : nullptr);
}

bool CGridCtrl::CKeyStroke::Go()
{
    switch (m_nKey)
    {
    case VK_DELETE: // does not clear cells: ClearCells is for callers
        return true;
    case VK_DOWN:
    case VK_UP:
        m_next = Walk().Vertically(m_next, Step());
        return true;
    case VK_RIGHT:
    case VK_LEFT:
        m_next = Walk().Sideways(m_next, Step());
        return true;
    case VK_TAB:
        GoTab();
        return true;
    case VK_NEXT:
    case VK_PRIOR:
        GoPage();
        return true;
    case VK_HOME:
        if (ScrollToEdge(SB_TOP))
            m_next = Walk().ToStart(m_next, m_bControl);
        return true;
    case VK_END:
        if (ScrollToEdge(SB_BOTTOM))
            m_next = Walk().ToEnd(m_next, m_bControl);
        return true;
    case VK_F2:
        if (!m_grid.m_bEnterIsTab)
            return false;
        m_grid.StartEditCell();
        return true;
    default:
        return false;
    }
}

// A Tab that stays in its row also gets the default handling.
void CGridCtrl::CKeyStroke::GoTab()
{
    m_bWrapped = Walk().TabWraps(m_next, Step());
    if (!m_bWrapped)
        DoDefault();
    m_next = Walk().Tab(m_next, Step());
}

void CGridCtrl::CKeyStroke::GoPage()
{
    const int nTopBefore = m_grid.GetTopleftNonFixedCell().row;
    if (Scroll(EGridWay::eRows, Step() > 0 ? SB_PAGEDOWN : SB_PAGEUP))
        m_next = Walk().ByPage(m_next, Step(), m_grid.GetTopleftNonFixedCell().row - nTopBefore);
}

/// To an end of the row or, with Ctrl, of the grid.
bool CGridCtrl::CKeyStroke::ScrollToEdge(UINT nSBCode)
{
    return (!m_bControl || Scroll(EGridWay::eRows, nSBCode)) && Scroll(EGridWay::eColumns, nSBCode);
}

/// False if the window did not outlive it.
bool CGridCtrl::CKeyStroke::Scroll(EGridWay way, UINT nSBCode)
{
    m_bScrolled[gfnBarOf(way)] = true;
    return m_grid.SendScroll(way, nSBCode);
}

// ---- What a key takes along -------------------------------------------------------------------------------

void CGridCtrl::CKeyStroke::Follow()
{
    if (m_next == m_grid.m_focusCell)
        return;
    Select();
    m_grid.SetFocusCell(m_next, TRUE);
    if (!m_life.WindowLives())
        return;
    if (!m_grid.IsCellVisible(m_next))
    {
        if (!ScrollTowards())
            return;
        m_grid.EnsureVisible(m_next);
        if (!m_life.WindowLives())
            return;
        m_grid.Invalidate();
    }
    m_grid.EnsureVisible(m_next);
    for (const EGridWay way : kGridWays)
        if (m_bScrolled[gfnBarOf(way)] && m_life.WindowLives())
            m_grid.SendScroll(way, SB_ENDSCROLL);
}

/// With Shift from the anchor, otherwise just the new cell. While the mouse selects, that is the mouse's
/// business.
void CGridCtrl::CKeyStroke::Select() const
{
    if (m_grid.m_nMouseMode != MODE_NOTHING)
        return;
    m_grid.m_mapPrevSelected.RemoveAll();
    if (!m_bShift || m_nKey == VK_TAB)
        m_grid.m_selectionStart = m_next;
    m_grid.SelectBy(m_grid.BodyMode(), m_next);
    m_grid.m_nMouseMode = MODE_NOTHING;
}

/// A line in the direction of the key; for a Tab into another row also to the other end of it.
bool CGridCtrl::CKeyStroke::ScrollTowards()
{
    const bool bOn = Step() > 0;
    const UINT nLine = bOn ? SB_LINEDOWN : SB_LINEUP;
    switch (m_nKey)
    {
    case VK_UP:
    case VK_DOWN:
        return Scroll(EGridWay::eRows, nLine);
    case VK_LEFT:
    case VK_RIGHT:
        return Scroll(EGridWay::eColumns, nLine);
    case VK_TAB:
        if (!m_bWrapped)
            return Scroll(EGridWay::eColumns, nLine);
        if (!Scroll(EGridWay::eRows, nLine))
            return false;
        m_grid.SetScrollPos32(SB_HORZ, bOn ? 0 : m_grid.m_nHScrollMax);
        return true;
    default:
        return true;
    }
}

void CGridCtrl::OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    CWnd::OnKeyUp(nChar, nRepCnt, nFlags);
}

void CGridCtrl::OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    CWnd::OnSysKeyDown(nChar, nRepCnt, nFlags);
}

// ---- Characters start an edit -----------------------------------------------------------------------------

bool CGridCtrl::StartsEdit(UINT nChar) const
{
    return !IsDown(VK_CONTROL) && m_nMouseMode == MODE_NOTHING && nChar != VK_ESCAPE;
}

void CGridCtrl::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    const CLifeWatch life(*this);
    const bool bTab = nChar == VK_TAB && m_bHandleTabKey;
    if (StartsEdit(nChar) && !bTab)
        OnEditCell(m_focusCell.row, m_focusCell.col, CPoint(-1, -1), nChar);
    if (life.WindowLives())
        CWnd::OnChar(nChar, nRepCnt, nFlags);
}

LRESULT CGridCtrl::OnImeChar(WPARAM wParam, LPARAM /*lParam*/)
{
    if (StartsEdit(static_cast<UINT>(wParam)))
        OnEditCell(m_focusCell.row, m_focusCell.col, CPoint(-1, -1), static_cast<UINT>(wParam));
    return 0;
}
