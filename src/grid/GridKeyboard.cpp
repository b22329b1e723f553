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

/// One key stroke on its way: where it leads, and what it has scrolled.
struct CGridCtrl::SKeyMove
{
    UINT key;
    UINT repeat;
    UINT flags;
    bool shift;
    bool control;
    CCellID next;
    bool wrapped = false;
    bool scrolledH = false;
    bool scrolledV = false;

    /// 1 on, to the right or down, -1 back.
    int Step() const
    {
        if (key == VK_TAB)
            return shift ? -1 : 1;
        return key == VK_RIGHT || key == VK_DOWN || key == VK_NEXT ? 1 : -1;
    }
};

UINT CGridCtrl::OnGetDlgCode()
{
    if (!m_bHandleTabKey || IsDown(VK_CONTROL)) // Tab leaves the grid
        return DLGC_WANTARROWS | DLGC_WANTCHARS;
    return DLGC_WANTARROWS | DLGC_WANTCHARS | DLGC_WANTTAB;
}

// ---- Key down ---------------------------------------------------------------------------------------------

void CGridCtrl::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (!IsValid(m_focusCell))
    {
        CWnd::OnKeyDown(nChar, nRepCnt, nFlags);
        return;
    }
    const CLifeWatch life(*this);
    SKeyMove move{nChar, nRepCnt, nFlags, IsDown(VK_SHIFT), IsDown(VK_CONTROL), m_focusCell};
    if (move.control && nChar == kSelectAllKey)
        OnEditSelectAll();
    if (!life.WindowLives())
        return;
    if (m_bEnterIsTab && nChar == VK_RETURN)
        move.key = VK_TAB;

    if (!MoveByKey(move))
    {
        CWnd::OnKeyDown(move.key, nRepCnt, nFlags);
        return;
    }
    if (!life.WindowLives())
        return;
    if (move.next != m_focusCell)
        FollowKey(move);
}

/// False for a key that means nothing here.
bool CGridCtrl::MoveByKey(SKeyMove& move)
{
    const auto mayEdit = [this](const CCellID& cell)
    {
        CGridCellBase* const pCell = GetCell(cell.row, cell.col);
        return pCell && !pCell->IsFixed() && !pCell->IsReadOnly();
    };
    const CGridKeyWalk walk(m_rows, m_cols, m_bEnterIsTab ? CGridKeyWalk::CTest(mayEdit) : nullptr);
    switch (move.key)
    {
    case VK_DELETE: // does not clear cells: ClearCells is for callers
        return true;
    case VK_DOWN:
    case VK_UP:
        move.next = walk.Vertically(move.next, move.Step());
        return true;
    case VK_RIGHT:
    case VK_LEFT:
        move.next = walk.Sideways(move.next, move.Step());
        return true;
    case VK_TAB:
        move.wrapped = walk.TabWraps(move.next, move.Step());
        if (!move.wrapped) // a Tab that stays in its row also gets the default handling
            CWnd::OnKeyDown(move.key, move.repeat, move.flags);
        move.next = walk.Tab(move.next, move.Step());
        return true;
    case VK_NEXT:
    case VK_PRIOR:
        if (const std::optional<int> moved = ScrollPage(move))
            move.next = walk.ByPage(move.next, move.Step(), *moved);
        return true;
    case VK_HOME:
        if (ScrollToEdge(move, SB_LEFT))
            move.next = walk.ToStart(move.next, move.control);
        return true;
    case VK_END:
        if (ScrollToEdge(move, SB_RIGHT))
            move.next = walk.ToEnd(move.next, move.control);
        return true;
    case VK_F2:
        if (!m_bEnterIsTab)
            return false;
        OnEditCell(m_focusCell.row, m_focusCell.col, CPoint(-1, -1), VK_LBUTTON);
        return true;
    default:
        return false;
    }
}

/// By how many rows the view has moved; nothing if the window did not outlive it.
std::optional<int> CGridCtrl::ScrollPage(SKeyMove& move)
{
    const int nTopBefore = GetTopleftNonFixedCell().row;
    if (!ScrollByKey(move, EGridWay::eRows, move.Step() > 0 ? SB_PAGEDOWN : SB_PAGEUP))
        return {};
    return GetTopleftNonFixedCell().row - nTopBefore;
}

/// To an end of the row or, with Ctrl, of the grid. False if the window did not outlive it.
bool CGridCtrl::ScrollToEdge(SKeyMove& move, UINT nSBCode)
{
    return (!move.control || ScrollByKey(move, EGridWay::eRows, nSBCode)) &&
           ScrollByKey(move, EGridWay::eColumns, nSBCode);
}

bool CGridCtrl::ScrollByKey(SKeyMove& move, EGridWay way, UINT nSBCode)
{
    (way == EGridWay::eColumns ? move.scrolledH : move.scrolledV) = true;
    return SendScroll(way, nSBCode);
}

/// Takes selection, focus and view along.
void CGridCtrl::FollowKey(SKeyMove& move)
{
    const CLifeWatch life(*this);
    SelectByKey(move);
    SetFocusCell(move.next, TRUE);
    if (!life.WindowLives())
        return;
    if (!IsCellVisible(move.next))
    {
        if (!ScrollForKey(move))
            return;
        EnsureVisible(move.next);
        if (!life.WindowLives())
            return;
        Invalidate();
    }
    EnsureVisible(move.next);
    if (move.scrolledH && life.WindowLives())
        SendScroll(EGridWay::eColumns, SB_ENDSCROLL);
    if (move.scrolledV && life.WindowLives())
        SendScroll(EGridWay::eRows, SB_ENDSCROLL);
}

/// With Shift from the anchor, otherwise just the new cell. While the mouse selects, that is the mouse's
/// business.
void CGridCtrl::SelectByKey(const SKeyMove& move)
{
    if (m_nMouseMode != MODE_NOTHING)
        return;
    m_mapPrevSelected.RemoveAll();
    m_nMouseMode = m_bListMode ? MODE_SELECT_ROW : MODE_SELECT_CELLS;
    if (!move.shift || move.key == VK_TAB)
        m_selectionStart = move.next;
    OnSelecting(move.next);
    m_nMouseMode = MODE_NOTHING;
}

/// A line in the direction of the key; for a Tab into another row also to the other end of it.
bool CGridCtrl::ScrollForKey(SKeyMove& move)
{
    const bool bOn = move.Step() > 0;
    const UINT nLine = bOn ? SB_LINEDOWN : SB_LINEUP;
    switch (move.key)
    {
    case VK_UP:
    case VK_DOWN:
        return ScrollByKey(move, EGridWay::eRows, nLine);
    case VK_LEFT:
    case VK_RIGHT:
        return ScrollByKey(move, EGridWay::eColumns, nLine);
    case VK_TAB:
        if (!move.wrapped)
            return ScrollByKey(move, EGridWay::eColumns, nLine);
        if (!ScrollByKey(move, EGridWay::eRows, nLine))
            return false;
        SetScrollPos32(SB_HORZ, bOn ? 0 : m_nHScrollMax);
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
