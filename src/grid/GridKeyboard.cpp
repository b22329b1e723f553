// Keys: the walk from cell to cell, and characters, which start an edit.

#include <afxwin.h>

#include "grid/GridCtrl.h"

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

    bool Tabs() const { return key == VK_TAB; }
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
    switch (move.key)
    {
    case VK_DELETE: // does not clear cells: ClearCells is for callers
        return true;
    case VK_DOWN:
        MoveVertically(move, 1);
        return true;
    case VK_UP:
        MoveVertically(move, -1);
        return true;
    case VK_RIGHT:
        MoveRight(move);
        return true;
    case VK_LEFT:
        MoveLeft(move);
        return true;
    case VK_TAB:
        move.shift ? MoveLeft(move) : MoveRight(move);
        return true;
    case VK_NEXT:
    case VK_PRIOR:
        MoveByPage(move);
        return true;
    case VK_HOME:
        MoveHome(move);
        return true;
    case VK_END:
        MoveToEnd(move);
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

void CGridCtrl::MoveVertically(SKeyMove& move, int nStep)
{
    int nRow = move.next.row + nStep;
    while (m_rows.Has(nRow) && !m_rows.IsFixed(nRow) && !m_rows.IsShown(nRow))
        nRow += nStep;
    if (m_rows.Has(nRow) && !m_rows.IsFixed(nRow))
        move.next.row = nRow;
}

/// Whether a move sideways may end on a cell: it shows, and with Enter as Tab it can be edited, too.
bool CGridCtrl::IsStop(int nRow, int nCol) const
{
    if (!m_cols.IsShown(nCol))
        return false;
    if (!m_bEnterIsTab)
        return true;
    CGridCellBase* const pCell = GetCell(nRow, nCol);
    return pCell && !pCell->IsFixed() && !pCell->IsReadOnly();
}

// Tab goes on in the next row. A Tab that stays in its row also gets the default handling.
void CGridCtrl::MoveRight(SKeyMove& move)
{
    const int nOldCol = move.next.col;
    ++move.next.col;
    if (move.Tabs())
    {
        if (move.next.col >= GetColumnCount() && move.next.row < GetRowCount() - 1)
        {
            move.next = CCellID(move.next.row + 1, m_cols.Fixed());
            move.wrapped = true;
        }
        else
            CWnd::OnKeyDown(move.key, move.repeat, move.flags);
    }
    for (; move.next.col < GetColumnCount(); ++move.next.col)
        if (IsStop(move.next.row, move.next.col))
            return;
    if (m_bEnterIsTab)
        for (move.next.col = 0; move.next.col < nOldCol; ++move.next.col)
            if (IsStop(move.next.row, move.next.col))
                return;
    move.next.col = nOldCol;
}

void CGridCtrl::MoveLeft(SKeyMove& move)
{
    const int nOldCol = move.next.col;
    --move.next.col;
    if (move.Tabs())
    {
        if (move.next.col < m_cols.Fixed() && move.next.row > m_rows.Fixed())
        {
            move.next = CCellID(move.next.row - 1, GetColumnCount() - 1);
            move.wrapped = true;
        }
        else
            CWnd::OnKeyDown(move.key, move.repeat, move.flags);
    }
    for (; move.next.col >= m_cols.Fixed(); --move.next.col)
        if (IsStop(move.next.row, move.next.col))
            return;
    if (m_bEnterIsTab)
        for (move.next.col = GetColumnCount() - 1; move.next.col > nOldCol; --move.next.col)
            if (IsStop(move.next.row, move.next.col))
                return;
    move.next.col = nOldCol;
}

/// As many rows as the view moves; where it cannot move, to the last or the first.
void CGridCtrl::MoveByPage(SKeyMove& move)
{
    const bool bDown = move.key == VK_NEXT;
    const int nTopBefore = GetTopleftNonFixedCell().row;
    move.scrolledV = true;
    if (!SendScroll(SB_VERT, bDown ? SB_PAGEDOWN : SB_PAGEUP))
        return;
    const int nMoved = GetTopleftNonFixedCell().row - nTopBefore;
    const int nFirst = m_rows.Fixed();
    const int nLast = GetRowCount() - 1;
    if (nMoved == 0)
        move.next.row = bDown ? nLast : nFirst;
    else
        move.next.row = std::max(nFirst, std::min(nLast, move.next.row + nMoved));
}

void CGridCtrl::MoveHome(SKeyMove& move)
{
    if (move.control)
    {
        move.scrolledV = true;
        if (!SendScroll(SB_VERT, SB_TOP))
            return;
        move.next.row = m_rows.Fixed();
    }
    move.scrolledH = true;
    if (!SendScroll(SB_HORZ, SB_LEFT))
        return;
    move.next.col = m_cols.Fixed();
    while (move.next.col < GetColumnCount() - 1 && !m_cols.IsShown(move.next.col))
        ++move.next.col;
    while (move.next.row < GetRowCount() - 1 && !m_rows.IsShown(move.next.row))
        ++move.next.row;
}

// The walk back past hidden ones stops behind the second body column and row.
void CGridCtrl::MoveToEnd(SKeyMove& move)
{
    if (move.control)
    {
        move.scrolledV = true;
        if (!SendScroll(SB_VERT, SB_BOTTOM))
            return;
        move.next.row = GetRowCount() - 1;
    }
    move.scrolledH = true;
    if (!SendScroll(SB_HORZ, SB_RIGHT))
        return;
    move.next.col = GetColumnCount() - 1;
    while (move.next.col > m_cols.Fixed() + 1 && !m_cols.IsShown(move.next.col))
        --move.next.col;
    while (move.next.row > m_rows.Fixed() + 1 && !m_rows.IsShown(move.next.row))
        --move.next.row;
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
        SendScroll(SB_HORZ, SB_ENDSCROLL);
    if (move.scrolledV && life.WindowLives())
        SendScroll(SB_VERT, SB_ENDSCROLL);
}

/// With Shift from the anchor, otherwise just the new cell. While the mouse selects, that is the mouse's
/// business.
void CGridCtrl::SelectByKey(const SKeyMove& move)
{
    if (m_nMouseMode != MODE_NOTHING)
        return;
    m_mapPrevSelected.RemoveAll();
    m_nMouseMode = m_bListMode ? MODE_SELECT_ROW : MODE_SELECT_CELLS;
    if (!move.shift || move.Tabs())
        m_selectionStart = move.next;
    OnSelecting(move.next);
    m_nMouseMode = MODE_NOTHING;
}

/// A line in the direction of the key; for a Tab into another row also to the other end of it.
bool CGridCtrl::ScrollForKey(SKeyMove& move)
{
    const auto scroll = [&](int nBar, UINT nSBCode)
    {
        (nBar == SB_HORZ ? move.scrolledH : move.scrolledV) = true;
        return SendScroll(nBar, nSBCode);
    };
    switch (move.key)
    {
    case VK_LEFT:
        return scroll(SB_HORZ, SB_LINELEFT);
    case VK_RIGHT:
        return scroll(SB_HORZ, SB_LINERIGHT);
    case VK_UP:
        return scroll(SB_VERT, SB_LINEUP);
    case VK_DOWN:
        return scroll(SB_VERT, SB_LINEDOWN);
    case VK_TAB:
        if (!move.wrapped)
            return scroll(SB_HORZ, move.shift ? SB_LINELEFT : SB_LINERIGHT);
        if (!scroll(SB_VERT, move.shift ? SB_LINEUP : SB_LINEDOWN))
            return false;
        SetScrollPos32(SB_HORZ, move.shift ? m_nHScrollMax : 0);
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
