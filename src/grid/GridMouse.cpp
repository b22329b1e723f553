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

#include "grid/GridLifeWatch.h"
#include "grid/GridSizing.h"

#include <algorithm>
#include <utility>

namespace
{
void ShowStandardCursor(LPCWSTR pszCursor)
{
    ::SetCursor(::LoadCursor(nullptr, pszCursor));
}

bool IsInText(CGridCtrl& grid, const CCellID& cell, CPoint point)
{
    CRect rect;
    CGridCellBase* const pCell = grid.GetCell(cell.row, cell.col);
    if (!pCell || !grid.GetCellRect(cell, &rect))
        return false;
    pCell->GetTextRect(&rect);
    return rect.PtInRect(point);
}

bool IsBodyCell(CGridCtrl& grid, const CCellID& cell)
{
    return grid.IsValid(cell) && !grid.IsCellFixed(cell.row, cell.col);
}
} // namespace

// ---- Press ------------------------------------------------------------------------------------------------

/// One press of the left button, up to the gesture that it begins.
class CGridCtrl::CPress
{
public:
    CPress(CGridCtrl& grid, UINT nFlags, CPoint point)
        : m_grid(grid), m_life(grid), m_cell(grid.m_clickDownCell), m_nFlags(nFlags), m_point(point),
          m_bReal(::GetKeyState(VK_LBUTTON) < 0)
    {
        grid.m_bPressLost = false;
    }

    void Answer()
    {
        m_grid.SetFocus();
        if (!m_life.WindowLives() || !FindCell() || !TellCell())
            return;
        if (BeginsEdit())
        {
            m_grid.m_nMouseMode = MODE_PREPARE_EDIT;
            return;
        }
        const bool bSelected = m_grid.IsCellSelected(m_cell) != FALSE;
        if (bSelected && Has(MK_CONTROL))
            return Deselect();
        if (!bSelected && !CSizing::IsOver(m_grid) && !TakeFocus())
            return;
        m_grid.SetCapture();
        BeginGesture();
        if (m_life.WindowLives())
            m_grid.m_ptLastMouse = m_point;
    }

private:
    bool Has(UINT nFlag) const { return (m_nFlags & nFlag) != 0; }

    /// Whoever is told of a press may show a message box, and the button is up again when it closes: whatever
    /// the press was going to begin would then have no end.
    bool GoesOn()
    {
        if (!m_life.WindowLives())
            return false;
        if (!m_grid.m_bPressLost && (!m_bReal || ::GetKeyState(VK_LBUTTON) < 0))
            return true;
        m_grid.m_bLButtonDown = FALSE;
        if (GetCapture() == &m_grid)
            ::ReleaseCapture();
        return false;
    }

    /// Where it is, and from where it selects. False outside the cells.
    bool FindCell()
    {
        m_grid.m_bLButtonDown = TRUE;
        m_grid.m_ptClickClient = m_point;
        m_cell = m_grid.GetCellFromPt(m_point);
        if (!m_grid.IsValid(m_cell))
            return false;
        if (!Has(MK_SHIFT))
            m_grid.m_selectionStart = m_cell;
        else if (!m_grid.IsValid(m_grid.m_selectionStart))
            m_grid.m_selectionStart = m_grid.m_focusCell;
        return true;
    }

    bool TellCell()
    {
        m_grid.EndEditing();
        if (!GoesOn())
            return false;
        if (CGridCellBase* const pCell = m_grid.GetCell(m_cell.row, m_cell.col))
            pCell->OnClickDown(m_grid.GetPointClicked(m_cell.row, m_cell.col, m_point));
        return GoesOn() && m_grid.IsValid(m_cell);
    }

    bool BeginsEdit() const
    {
        return m_cell == m_grid.m_focusCell && !Has(MK_CONTROL) && IsInText(m_grid, m_cell, m_point) &&
               m_grid.IsCellEditable(m_cell);
    }

    /// Ctrl on a selected cell takes it, or in list mode its row, out of the selection.
    void Deselect()
    {
        m_grid.SetFocusCell(m_cell, TRUE);
        if (!m_life.ObjectLives())
            return;
        if (m_grid.m_bListMode)
            m_grid.SelectRows(m_cell, TRUE, FALSE);
        else
            m_grid.SelectCells(m_cell, TRUE, FALSE);
    }

    bool TakeFocus()
    {
        m_grid.SetFocusCell(CCellID(), TRUE);
        if (m_grid.m_rows.Count() > m_grid.m_rows.Fixed() && m_grid.m_cols.Count() > m_grid.m_cols.Fixed())
            m_grid.SetFocusCell(m_grid.RaisedToBody(m_cell), TRUE);
        return GoesOn();
    }

    void BeginGesture()
    {
        if (m_grid.m_nMouseMode == MODE_NOTHING)
            m_grid.FindDivider(m_point);
        if (CSizing::IsOver(m_grid))
            CSizing(m_grid).Begin(m_point);
        else
            BeginSelecting();
    }

    void BeginSelecting()
    {
        m_grid.SendMessageToParent(m_cell.row, m_cell.col, LVN_ITEMCHANGING);
        if (!GoesOn())
            return;
        m_grid.m_mapPrevSelected.RemoveAll();
        if (Has(MK_CONTROL))
            m_grid.m_mapPrevSelected = m_grid.m_mapSelected;

        if (m_grid.m_rows.IsFixed(m_cell.row))
            m_grid.OnFixedRowClick(m_cell);
        else if (m_grid.m_cols.IsFixed(m_cell.col))
            m_grid.OnFixedColumnClick(m_cell);
        else
        {
            // Only here a drag beyond the edge scrolls; one that began on a header does not.
            m_grid.SelectBy(m_grid.BodyMode(), m_cell);
            m_grid.m_nTimerId = m_grid.SetTimer(AutoScrollTimerId, m_grid.m_nTimerInterval, nullptr);
        }
    }

    CGridCtrl& m_grid;
    const CLifeWatch m_life;
    CCellID& m_cell; ///< the grid's: whoever is told may change it
    const UINT m_nFlags;
    const CPoint m_point;
    const bool m_bReal; ///< it comes from the button itself, not as a message only
};

void CGridCtrl::OnLButtonDown(UINT nFlags, CPoint point)
{
    CPress(*this, nFlags, point).Answer();
}

// Within one top-level window the focus may move while the button stays down.
void CGridCtrl::OnKillFocus(CWnd* pNewWnd)
{
    CWnd::OnKillFocus(pNewWnd);
    if (::GetAncestor(pNewWnd->GetSafeHwnd(), GA_ROOT) != ::GetAncestor(m_hWnd, GA_ROOT))
        m_bPressLost = true;
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
    if (IsBodyCell(*this, cell) || m_nMouseMode == MODE_SELECT_COL || m_nMouseMode == MODE_SELECT_ROW)
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
    if (IsBodyCell(*this, cell) && IsInText(*this, cell, point) && (IsValid(m_clickDownCell) || m_bListMode))
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
    const CLifeWatch life(*this);
    const CGridView view = GetView();
    const auto vertically = view.Beyond(EGridWay::eRows, point);
    const auto sideways = view.Beyond(EGridWay::eColumns, point);
    if (vertically)
        StepSelection(vertically->bOn ? VK_DOWN : VK_UP, vertically->edge);
    if (sideways && life.WindowLives())
        StepSelection(sideways->bOn ? VK_RIGHT : VK_LEFT, sideways->edge);
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
    if (pWnd == this)
        return;
    KillTimer(AutoScrollTimerId);
    m_nTimerId = 0;
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
