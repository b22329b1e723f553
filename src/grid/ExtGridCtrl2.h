#pragma once
// CExtGridCtrl2: a grid with one current cell, whose row and column are painted as a cross, and a handler
// that is called in place of three of the grid's notifications. The first rows of the body can have a colour
// of their own, as an extra header under the fixed one.
//
// ```cpp
//     class CLoadsDialog : public CDialog,
//                          public AExtGridCtrl2NotificationHandler,
//                          public AExtGridCtrl2ExtraHeaderSupport
//     {
//         CExtGridCtrl2 m_grid{this, this};
//         void OnExtGrid2CellChanged(int nId, CCellID cell, CCellID prevCell) override { ShowLoad(cell); }
//         bool OnExtGrid2EndEdit(int nId, CCellID cell, const CString* pText) override
//         {
//             return !pText->IsEmpty(); // false: the old text comes back
//         }
//         void OnExtGrid2RClick(int nId, CCellID cell) override { ShowMenu(cell); }
//
//         int GetExtraHeaderColor() override { return RGB(255, 242, 204); }
//         int GetExtraHeaderCount() override { return 2; } // the first two rows below the fixed ones
//         int GetBodyColor() override { return RGB(255, 255, 255); }
//     };
// ```
//
// HANDLER
//
// Required, as for CExtGridCtrl, whose header tells what the handler must do, which notifications it replaces
// and where the hook stands. The extra header is not owned, either, and may be null.
//
//                         current column
//                      +--------+---+--------+
//          fixed row   |        |   |        |
//                      +--------+---+--------+
//          band        |        | # |        |    # mix of the cross with the band's colour
//          band        |        | # |        |
//                      +--------+---+--------+
//          body        |        | + |        |    + mix of the cross with the body's colour
//          current row | + + + +| + | + + + +|
//          body        |        | + |        |
//                      +--------+---+--------+
//
// CURRENT CELL
//
// The focus cell. Fixed rows and columns are never current: whatever names one means the first row or column
// of the body, and so does a right click outside all cells. OnExtGrid2CellChanged is called before the
// colours change. The extra header is then asked once for its count and the two colours. The old row and
// column go back to the colours of their rows, band or body, and the new ones get the subtractive mix of
// those with m_crSelected. Without an extra header there is no band and the body is white, so that the cross
// has the plain colour.
//
// SelectCellEx remembers a fixed address as it came. The first cell of the body, although it has the cross,
// then counts as another one, and the fixed row and column get the colours of rest when they are left: a
// fixed row that of the band.
//
// The colours stay in the cells: rows that are added, or a band that grows, show it once the cross has passed
// over them. In virtual mode there are no cells, and so no colours. Each change of cell switches drawing on
// (SetRedraw) and repaints the window. Deleting rows or columns leaves the current address as it is.
//
// FAILURES
//
// A cell past the last row or column is ignored.

#include <afxwin.h>

#include "grid/ExtGrid.h"
#include "module/NotificationInterfaces.h"

class OW_DIALOGCONTROLS_API CExtGridCtrl2 : public CExtGrid<AExtGridCtrl2NotificationHandler>
{
    template <class Grid>
    friend class CExtGridHook;

public:
    CExtGridCtrl2(AExtGridCtrl2NotificationHandler* pHandler, AExtGridCtrl2ExtraHeaderSupport* pExtraHeader);

    /// Makes a cell current, with the handler called as for the user. Unlike CExtGridCtrl::SelectRowEx, and
    /// unlike a click, it does so also if the cell is current already; the former cell is then told as (-1,
    /// -1). Neither the focus cell nor the scroll position moves.
    void SelectCellEx(int nRow, int nCol);

protected:
    // What the hook takes. Each gets a GridNotify record.
    void OnGridEndEdit(NMHDR* pNMHDR, LRESULT* pResult);    ///< 0 accepts the text, -1 refuses it
    void OnGridSelChanged(NMHDR* pNMHDR, LRESULT* pResult); ///< 1; left as it is for a cell past the end
    void OnGridRClick(NMHDR* pNMHDR, LRESULT* pResult);     ///< no result

    AExtGridCtrl2ExtraHeaderSupport* m_pExtraHeader; ///< not owned; may be null
    COLORREF m_crSelected = RGB(0xE0, 0xE0, 0xFF);   ///< of the cross; CLR_NONE paints nothing
    int m_nCurrentRow = -1;                          ///< -1 for none; may name a fixed row
    int m_nCurrentCol = -1;                          ///< -1 for none; may name a fixed column

private:
    CCellID CurrentCell() const { return CCellID(m_nCurrentRow, m_nCurrentCol); }
    void SetCurrentCell(const CCellID& cell);
    void ShowCross(const CCellID& cell);
};
