// The mouse: one state machine in m_nMouseMode.
//
//     over nothing -> over a divider -> sizing -> over nothing
//                  -> selecting all, columns, rows or cells -> over nothing
//                  -> prepared to edit -> over nothing, with an editor open
//
// A move changes the mode only between nothing and the two dividers; a press enters a gesture; the release
// ends it.

#include <afxwin.h>

#include "grid/GridCtrl.h"

#include "grid/GridClientArea.h"
#include "grid/GridDivider.h"
#include "grid/GridLifeWatch.h"

#include <algorithm>
#include <utility>

namespace
{
void ShowStandardCursor(LPCWSTR pszCursor)
{
    ::SetCursor(::LoadCursor(nullptr, pszCursor));
}
} // namespace

/// The dividers that the mouse is over or drags, by the mode.
class CGridCtrl::CSizing
{
public:
    explicit CSizing(CGridCtrl& grid)
        : m_grid(grid),
          m_bColumns(grid.m_nMouseMode == MODE_OVER_COL_DIVIDE || grid.m_nMouseMode == MODE_SIZING_COL),
          m_dividers(m_bColumns ? EGridWay::eColumns : EGridWay::eRows, grid.GetView(),
                     grid.m_nResizeCaptureRange)
    {
    }

    static bool IsOver(const CGridCtrl& grid)
    {
        return grid.m_nMouseMode == MODE_OVER_COL_DIVIDE || grid.m_nMouseMode == MODE_OVER_ROW_DIVIDE;
    }
    static bool IsOn(const CGridCtrl& grid)
    {
        return grid.m_nMouseMode == MODE_SIZING_COL || grid.m_nMouseMode == MODE_SIZING_ROW;
    }

    void ShowCursor() const { ShowStandardCursor(m_bColumns ? IDC_SIZEWE : IDC_SIZENS); }

    // What does not come to its end leaves the mode as it is and the cursor free; the release puts that
    // right.
    void Begin(CPoint point) const
    {
        m_grid.m_nMouseMode = m_bColumns ? MODE_SIZING_COL : MODE_SIZING_ROW;
        const BOOL bOpensHidden = m_bColumns ? m_grid.m_bHiddenColUnhide : m_grid.m_bHiddenRowUnhide;
        CGridDividers::STaken taken = m_dividers.Take(m_grid.m_clickDownCell, point, bOpensHidden != FALSE);
        if (taken.bMarked)
            InvertMarker(point);
        if (!taken.bHeld)
            return;
        m_grid.ClientToScreen(&taken.rectHeld);
        ::ClipCursor(&taken.rectHeld);
        m_grid.m_ptLastMouse = point;
    }

    void Drag(CPoint point) const
    {
        InvertMarker(m_grid.m_ptLastMouse);
        InvertMarker(point);
    }

    /// The new size from the release. False if what was sized is not in view any more.
    bool End(CPoint point) const
    {
        InvertMarker(m_grid.m_ptLastMouse);
        if (point == m_grid.m_ptClickClient || point == CPoint(0, 0))
            return true;
        const CCellID sized = m_grid.m_clickDownCell;
        const BOOL bMayHide = m_bColumns ? m_grid.m_bColumnHide : m_grid.m_bRowHide;
        int nSize = 0;
        if (!m_dividers.Drop(sized, point, bMayHide != FALSE, nSize))
            return false;
        if (m_bColumns)
            m_grid.SetColumnWidth(sized.col, nSize, TRUE);
        else
            m_grid.SetRowHeight(sized.row, nSize);
        m_grid.ResetScrollBars();
        m_grid.Invalidate();
        return true;
    }

    /// Sizes the column or row at a divider to its contents. False where there is none.
    bool Fit(const CCellID& cell, CPoint point) const
    {
        const int nItem = m_dividers.Fit(cell, point);
        if (nItem < 0)
            return false;
        if (m_bColumns)
            m_grid.AutoSizeColumn(nItem, m_grid.m_nAutoSizeStyle, TRUE);
        else
            m_grid.AutoSizeRow(nItem, TRUE);
        m_grid.Invalidate();
        return true;
    }

private:
    void InvertMarker(CPoint point) const
    {
        const CClientArea area(m_grid);
        if (area.DC())
            area.DC()->InvertRect(CRect(m_dividers.Marker(point)));
    }

    CGridCtrl& m_grid;
    const bool m_bColumns;
    const CGridDividers m_dividers;
};

// ---- Press ------------------------------------------------------------------------------------------------

void CGridCtrl::OnLButtonDown(UINT nFlags, CPoint point)
{
    const CLifeWatch life(*this);
    m_bPressLost = false;
    m_bRealPress = ::GetKeyState(VK_LBUTTON) < 0;
    SetFocus();
    if (!life.WindowLives())
        return;
    m_bLButtonDown = TRUE;
    m_ptClickClient = point;
    m_clickDownCell = GetCellFromPt(point);
    if (!IsValid(m_clickDownCell))
        return;
    if (!(nFlags & MK_SHIFT))
        m_selectionStart = m_clickDownCell;
    else if (!IsValid(m_selectionStart))
        m_selectionStart = m_focusCell;

    EndEditing();
    if (!life.WindowLives() || !PressGoesOn())
        return;
    if (CGridCellBase* const pCell = GetCell(m_clickDownCell.row, m_clickDownCell.col))
        pCell->OnClickDown(GetPointClicked(m_clickDownCell.row, m_clickDownCell.col, point));
    if (!life.WindowLives() || !PressGoesOn() || !IsValid(m_clickDownCell))
        return;

    const bool bControl = (nFlags & MK_CONTROL) != 0;
    if (m_clickDownCell == m_focusCell && !bControl && IsInText(m_clickDownCell, point) &&
        IsCellEditable(m_clickDownCell))
    {
        m_nMouseMode = MODE_PREPARE_EDIT;
        return;
    }
    if (IsCellSelected(m_clickDownCell))
    {
        if (bControl)
        {
            DeselectPressed();
            return;
        }
    }
    else if (!CSizing::IsOver(*this))
    {
        SetFocusCell(CCellID(), TRUE);
        if (m_rows.Count() > m_rows.Fixed() && m_cols.Count() > m_cols.Fixed())
            SetFocusCell(RaisedToBody(m_clickDownCell), TRUE);
        if (!life.WindowLives() || !PressGoesOn())
            return;
    }
    SetCapture();
    BeginGesture(nFlags, point);
    if (life.WindowLives())
        m_ptLastMouse = point;
}

/// Whoever is told of a press may show a message box, and the button is up again when it closes: whatever the
/// press was going to begin would then have no end.
bool CGridCtrl::PressGoesOn()
{
    if (!m_bPressLost && (!m_bRealPress || ::GetKeyState(VK_LBUTTON) < 0))
        return true;
    m_bLButtonDown = FALSE;
    if (GetCapture() == this)
        ::ReleaseCapture();
    return false;
}

// Within one top-level window the focus may move while the button stays down.
void CGridCtrl::OnKillFocus(CWnd* pNewWnd)
{
    CWnd::OnKillFocus(pNewWnd);
    if (::GetAncestor(pNewWnd->GetSafeHwnd(), GA_ROOT) != ::GetAncestor(m_hWnd, GA_ROOT))
        m_bPressLost = true;
}

/// Ctrl on a selected cell takes it, or in list mode its row, out of the selection.
void CGridCtrl::DeselectPressed()
{
    const CLifeWatch life(*this);
    SetFocusCell(m_clickDownCell, TRUE);
    if (!life.ObjectLives())
        return;
    if (m_bListMode)
        SelectRows(m_clickDownCell, TRUE, FALSE);
    else
        SelectCells(m_clickDownCell, TRUE, FALSE);
}

void CGridCtrl::BeginGesture(UINT nFlags, CPoint point)
{
    if (m_nMouseMode == MODE_NOTHING)
        FindDivider(point);
    if (CSizing::IsOver(*this))
        CSizing(*this).Begin(point);
    else
        BeginSelecting(nFlags);
}

void CGridCtrl::BeginSelecting(UINT nFlags)
{
    const CLifeWatch life(*this);
    SendMessageToParent(m_clickDownCell.row, m_clickDownCell.col, LVN_ITEMCHANGING);
    if (!life.WindowLives() || !PressGoesOn())
        return;
    m_mapPrevSelected.RemoveAll();
    if (nFlags & MK_CONTROL)
        m_mapPrevSelected = m_mapSelected;

    if (m_rows.IsFixed(m_clickDownCell.row))
        OnFixedRowClick(m_clickDownCell);
    else if (m_cols.IsFixed(m_clickDownCell.col))
        OnFixedColumnClick(m_clickDownCell);
    else
    {
        // Only here a drag beyond the edge scrolls; one that began on a header does not.
        m_nMouseMode = m_bListMode ? MODE_SELECT_ROW : MODE_SELECT_CELLS;
        OnSelecting(m_clickDownCell);
        m_nTimerId = SetTimer(AutoScrollTimerId, m_nTimerInterval, nullptr);
    }
}

/// The mode and the cursor of the divider at a point; false if there is none that may be dragged.
bool CGridCtrl::FindDivider(CPoint point)
{
    int nMode = MODE_NOTHING;
    if (m_bAllowColumnResize && MouseOverColumnResizeArea(point))
        nMode = MODE_OVER_COL_DIVIDE;
    else if (m_bAllowRowResize && MouseOverRowResizeArea(point))
        nMode = MODE_OVER_ROW_DIVIDE;
    else
        return false;
    if (std::exchange(m_nMouseMode, nMode) != nMode)
        CSizing(*this).ShowCursor();
    return true;
}

bool CGridCtrl::IsInText(const CCellID& cell, CPoint point)
{
    CRect rect;
    CGridCellBase* const pCell = GetCell(cell.row, cell.col);
    if (!pCell || !GetCellRect(cell, &rect))
        return false;
    pCell->GetTextRect(&rect);
    return rect.PtInRect(point);
}

bool CGridCtrl::IsBodyCell(const CCellID& cell) const
{
    return IsValid(cell) && !m_rows.IsFixed(cell.row) && !m_cols.IsFixed(cell.col);
}

CCellID CGridCtrl::RaisedToBody(CCellID cell) const
{
    return CCellID(std::max(cell.row, m_rows.Fixed()), std::max(cell.col, m_cols.Fixed()));
}

// ---- Move -------------------------------------------------------------------------------------------------

void CGridCtrl::OnMouseMove(UINT /*nFlags*/, CPoint point)
{
    const CLifeWatch life(*this);
    if (!m_bLButtonDown || m_nMouseMode == MODE_NOTHING)
        Hover(point);
    else if (IsValid(m_clickDownCell) && !Drag(point))
        return;
    if (life.ObjectLives())
        m_ptLastMouse = point;
}

void CGridCtrl::Hover(CPoint point)
{
    if (!FindDivider(point) && m_nMouseMode != MODE_NOTHING)
    {
        m_nMouseMode = MODE_NOTHING;
        ShowStandardCursor(IDC_ARROW);
    }
    if (m_nMouseMode != MODE_NOTHING || (m_bVirtualMode && !m_bTitleTips))
        return;
    const CCellID cell = GetCellFromPt(point);
    if (CGridCellBase* const pCell = GetCell(cell.row, cell.col))
        pCell->OnMouseOver();
}

/// Goes on with the gesture. False where it has nothing to go to: the last position then stays.
bool CGridCtrl::Drag(CPoint point)
{
    switch (m_nMouseMode)
    {
    case MODE_SELECT_COL:
    case MODE_SELECT_ROW:
    case MODE_SELECT_CELLS:
        return DragSelection(GetCellFromPt(point));
    case MODE_SIZING_ROW:
    case MODE_SIZING_COL:
        CSizing(*this).Drag(point);
        return true;
    default:
        return true;
    }
}

/// A drag inside one row moves the focus quietly: the parent hears of it only when the row changes.
bool CGridCtrl::DragSelection(const CCellID& cell)
{
    if (!IsValid(cell))
        return false;
    if (cell == m_focusCell)
        return true;
    OnSelecting(cell);
    if (IsBodyCell(cell) || m_nMouseMode == MODE_SELECT_COL || m_nMouseMode == MODE_SELECT_ROW)
        SetFocusCell(cell, cell.row != m_focusCell.row);
    return true;
}

// ---- Release ----------------------------------------------------------------------------------------------

void CGridCtrl::OnLButtonUp(UINT nFlags, CPoint point)
{
    const CLifeWatch life(*this);
    CWnd::OnLButtonUp(nFlags, point);
    m_bLButtonDown = FALSE;
    m_bPressLost = true;
    ::ClipCursor(nullptr);
    if (GetCapture() == this)
        ::ReleaseCapture(); // which stops the scrolling

    const CPoint pointInCell = GetPointClicked(m_focusCell.row, m_focusCell.col, point);
    if (m_nMouseMode == MODE_PREPARE_EDIT)
        OnEditCell(m_focusCell.row, m_focusCell.col, pointInCell, VK_LBUTTON);
    else if (CSizing::IsOn(*this))
    {
        if (!CSizing(*this).End(point))
            return;
    }
    else
        TellClick(pointInCell);
    if (!life.WindowLives())
        return;

    m_nMouseMode = MODE_NOTHING;
    ShowStandardCursor(IDC_ARROW);
    if (!IsValid(m_clickDownCell))
        return;
    const CWnd* const pOwner = GetOwner();
    if (pOwner && ::IsWindow(pOwner->m_hWnd))
        ::PostMessage(pOwner->m_hWnd, WM_COMMAND, GetDlgCtrlID(), reinterpret_cast<LPARAM>(m_hWnd));
}

void CGridCtrl::TellClick(CPoint pointInCell)
{
    const CLifeWatch life(*this);
    if (CGridCellBase* const pCell = GetCell(m_focusCell.row, m_focusCell.col))
        pCell->OnClick(pointInCell);
    if (life.ObjectLives())
        SendMessageToParent(m_clickDownCell.row, m_clickDownCell.col, NM_CLICK);
}

void CGridCtrl::StopAutoScroll()
{
    KillTimer(AutoScrollTimerId);
    m_nTimerId = 0;
}

// ---- Double click -----------------------------------------------------------------------------------------

void CGridCtrl::OnLButtonDblClk(UINT nFlags, CPoint point)
{
    const CLifeWatch life(*this);
    const CCellID cell = GetCellFromPt(point);
    if (!IsValid(cell))
        return;
    switch (m_nMouseMode)
    {
    case MODE_OVER_COL_DIVIDE:
    case MODE_OVER_ROW_DIVIDE:
        if (!CSizing(*this).Fit(cell, point))
            return;
        break;
    case MODE_NOTHING:
        TellDoubleClick(cell, point);
        break;
    default:
        break;
    }
    if (life.WindowLives())
        CWnd::OnLButtonDblClk(nFlags, point);
}

void CGridCtrl::TellDoubleClick(const CCellID& cell, CPoint point)
{
    const CLifeWatch life(*this);
    const CPoint pointInCell = GetPointClicked(cell.row, cell.col, point);
    if (IsBodyCell(cell) && IsInText(cell, point) && (IsValid(m_clickDownCell) || m_bListMode))
        OnEditCell(cell.row, cell.col, pointInCell, VK_LBUTTON);
    if (!life.ObjectLives())
        return;
    if (CGridCellBase* const pCell = GetCell(cell.row, cell.col))
        pCell->OnDblClick(pointInCell);
    if (life.ObjectLives())
        SendMessageToParent(cell.row, cell.col, NM_DBLCLK);
}

// ---- Right button -----------------------------------------------------------------------------------------

void CGridCtrl::OnRButtonDown(UINT nFlags, CPoint point)
{
    CWnd::OnRButtonDown(nFlags, point);
    m_bRButtonDown = TRUE;
}

void CGridCtrl::OnRButtonUp(UINT nFlags, CPoint point)
{
    const CLifeWatch life(*this);
    CWnd::OnRButtonUp(nFlags, point); // may show a context menu
    if (!life.WindowLives())
        return;
    m_bRButtonDown = FALSE;
    const CCellID cell = GetCellFromPt(point);
    EndEditing();
    if (!life.WindowLives() || m_bNeReagujNaDesniKlik)
        return;
    if (!IsValid(cell))
    {
        SendMessageToParent(-1, -1, NM_RCLICK);
        return;
    }
    SetFocusCell(CCellID(), TRUE);
    SetFocusCell(RaisedToBody(cell), TRUE);
    if (!life.WindowLives())
        return;
    if (CGridCellBase* const pCell = GetCell(cell.row, cell.col))
        pCell->OnRClick(GetPointClicked(cell.row, cell.col, point));
    if (life.WindowLives())
        SendMessageToParent(cell.row, cell.col,
                            NM_RCLICK); // the real cell, fixed or not
}

// ---- Drag beyond the edge ---------------------------------------------------------------------------------

// The grid sends itself arrow keys, which move the focus and scroll, and selects up to the edge. The mode is
// not looked at: the timer lives during a gesture only.
void CGridCtrl::OnTimer(UINT_PTR nIDEvent)
{
    CPoint point;
    if (nIDEvent != AutoScrollTimerId || !::GetCursorPos(&point))
        return;
    ScreenToClient(&point);
    const CRect client(CPoint(0, 0), GetClientSize());
    const CPoint body(GetFixedColumnWidth(), GetFixedRowHeight());
    const CLifeWatch life(*this);

    const int x = std::clamp<int>(point.x, client.left, client.right);
    if (point.y > client.bottom)
        StepSelection(VK_DOWN, CPoint(x, client.bottom));
    else if (point.y < body.y)
        StepSelection(VK_UP, CPoint(x, body.y + 1));
    if (!life.WindowLives())
        return;

    const int y = std::clamp<int>(point.y, client.top, client.bottom);
    if (point.x > client.right)
        StepSelection(VK_RIGHT, CPoint(client.right, y));
    else if (point.x < body.x)
        StepSelection(VK_LEFT, CPoint(body.x + 1, y));
}

void CGridCtrl::StepSelection(UINT nKey, CPoint pointAtEdge)
{
    const CLifeWatch life(*this);
    SendMessage(WM_KEYDOWN, nKey, 0);
    if (life.WindowLives())
        OnSelecting(GetCellFromPt(pointAtEdge));
}

// The mode stays until the release.
void CGridCtrl::OnCaptureChanged(CWnd* pWnd)
{
    if (pWnd != this)
        StopAutoScroll();
}

// ---- Cursor -----------------------------------------------------------------------------------------------

BOOL CGridCtrl::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message)
{
    if (nHitTest != HTCLIENT)
        return CWnd::OnSetCursor(pWnd, nHitTest, message);
    if (CSizing::IsOver(*this))
    {
        CSizing(*this).ShowCursor();
        return TRUE;
    }
    if (!m_bVirtualMode)
    {
        const DWORD dwPos = ::GetMessagePos();
        CPoint point(static_cast<short>(LOWORD(dwPos)), static_cast<short>(HIWORD(dwPos)));
        ScreenToClient(&point);
        const CCellID cell = GetCellFromPt(point);
        if (CGridCellBase* const pCell = GetCell(cell.row, cell.col))
            return pCell->OnSetCursor();
    }
    ShowStandardCursor(IDC_ARROW);
    return TRUE;
}
