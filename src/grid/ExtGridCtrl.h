#pragma once
// CExtGridCtrl: a grid with one current row, which is painted in a colour, and a handler that is called in
// place of three of the grid's notifications.
//
// ```cpp
//     class CMembersDialog : public CDialog, public AExtGridCtrlNotificationHandler
//     {
//         CExtGridCtrl m_grid{this};
//         BOOL OnInitDialog() override
//         {
//             CDialog::OnInitDialog();     // DDX_Control binds the grid to a window of the template:
//             m_grid.InstallMessageHook(); // no Create, which hooks by itself
//             ...
//             m_grid.SelectRowEx(1, 1);
//             return TRUE;
//         }
//         void OnExtGridRowChanged(int nId, int nRow, int nPrevRow) override { ShowMember(nRow); }
//         bool OnExtGridEndEdit(int nId, int nRow, int nCol, const CString* pText) override
//         {
//             return !pText->IsEmpty(); // false: the old text comes back
//         }
//         void OnExtGridRClick(int nId, int nRow) override { ShowMenu(nRow); }
//     };
// ```
//
// HANDLER
//
// Required, not owned, and to outlive the grid: it is called without a check for null. A debug build asserts,
// a release build crashes, at the first call. The handler may change the grid; it must not destroy it.
//
// The grid hooks the window procedure of its parent and takes three notifications out of the parent's
// messages, by its control id: LVN_ITEMCHANGED, LVN_ENDLABELEDITW and NM_RCLICK. The parent sees all others.
// Several grids may stand on one parent. A grid without a parent, or with an owner other than the parent, has
// no calls. The hook stays on the first parent, until that or the grid object goes.
//
// CURRENT ROW
//
// The row of the focus cell. Fixed rows are never current: whatever names one means the first row of the
// body, and so does a right click outside all cells, and select all without a focus cell. OnExtGridRowChanged
// is called before the colours change. The row's cells beyond the fixed columns are then painted in
// m_crSelectedRow, and those of the row before in white, whatever colour they had: white stays with them. In
// virtual mode there are no cells, and so no colours. Each change of row switches drawing on (SetRedraw) and
// repaints the window.
//
// SelectRowEx remembers the address of a fixed row as it came. The first row of the body, although painted,
// then counts as another one, and the fixed row's cells turn white when it is left.
//
// Deleting rows leaves the current row's number as it is; the row that moves up to it is not painted, and
// selecting it is no change.
//
// FAILURES
//
// A row past the end is ignored.

#include <afxwin.h>

#include "grid/ExtGrid.h"
#include "module/NotificationInterfaces.h"

class OW_DIALOGCONTROLS_API CExtGridCtrl : public CExtGrid<AExtGridCtrlNotificationHandler>
{
    template <class Grid>
    friend class CExtGridHook;

public:
    explicit CExtGridCtrl(AExtGridCtrlNotificationHandler* pHandler);

    /// Makes a row current, with the handler called as for the user. The row that is current already is left
    /// alone. Neither the focus cell nor the scroll position moves.
    void SelectRowEx(int nRow, int nCol);

protected:
    // What the hook takes. Each gets a GridNotify record.
    void OnGridEndEdit(NMHDR* pNMHDR, LRESULT* pResult);    ///< 0 accepts the text, -1 refuses it
    void OnGridSelChanged(NMHDR* pNMHDR, LRESULT* pResult); ///< 1; left as it is for a row past the end
    void OnGridRClick(NMHDR* pNMHDR, LRESULT* pResult);     ///< no result

    COLORREF m_crSelectedRow = RGB(0xE0, 0xE0, 0xFF); ///< of the current row; CLR_NONE paints nothing
    int m_nCurrentRow = -1;                           ///< -1 for none; may name a fixed row

private:
    void ShowCurrentRow(int nRow, int nCol);
};
