#pragma once
// A cell with a check box in front of its text.
//
// ```cpp
//     m_grid.SetCellType(1, 6, RUNTIME_CLASS(CGridCellCheck));
//     static_cast<CGridCellCheck&>(*m_grid.GetCell(1, 6)).SetCheck(TRUE);
//     // ON_NOTIFY(GVN_CHECKCLICKED, IDC_GRID, OnCheckClicked) in the dialog's map: a GridNotify record
// ```
//
//         +-----------------------------------------+
//         | margin                                  |   The box is 13 by 13 pixels. The text stands clear of
//         |<margin> [box]   text                    |   it: it begins the width of a scroll arrow and two
//         |                                         |   margins behind where it would stand in a plain cell.
//         +-----------------------------------------+
//
// A click into the box flips it, in a cell that is read-only and in a grid that is not editable, too. A click
// beside it edits the text as in any cell.

#include <afxwin.h>

#include "cells/GridCell.h"

/// WM_NOTIFY to the owner of the grid, or its parent: a click has flipped the box of the grid's focus cell,
/// at whose address the record points.
constexpr int GVN_CHECKCLICKED = -180;

class OW_DIALOGCONTROLS_API CGridCellCheck : public CGridCell
{
    DECLARE_DYNCREATE(CGridCellCheck)

public:
    using CGridCell::operator=;
    /// Takes over the state of the box, and the place where the other was drawn.
    void operator=(const CGridCellCheck& cell);

    /// Answers the old state, and sends no notification. A negative state is kept, and shows as not checked.
    int SetCheck(int nCheck);
    int GetCheck() const;

    BOOL Draw(CDC* pDC, int nRow, int nCol, CRect rect, BOOL bEraseBkgnd) override;
    BOOL GetTextRect(LPRECT pRect) override;
    CSize GetCellExtent(CDC* pDC) override;
    void OnClick(CPoint point) override;

protected:
    int m_bChecked = 0;
    CRect m_Rect; ///< where the cell was last drawn, in the grid's client area; empty until then

private:
    CRect GetBoxRect();
    int GetRoomForBox();
    void InvalidateCell();
};
