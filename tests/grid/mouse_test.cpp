// The mouse: every transition of its state machine, with a real one where the way there matters.

#include "GridFixture.h"

#include "ModalVisit.h"

#include <algorithm>

IMPLEMENT_DYNCREATE(NotedCell, CGridCell)

class GridMouse : public GridTest
{
protected:
    /// On the divider behind a column, or below a row, over the headers.
    CPoint ColumnDivider(int nCol) { return CPoint(kColWidth * (nCol + 1) - 1, kRowHeight / 2); }
    CPoint RowDivider(int nRow) { return CPoint(kColWidth / 2, kRowHeight * (nRow + 1) - 1); }
};

TEST_F(GridMouse, AClickSelectsFocusesAndTells)
{
    ClickCell(3, 2);
    EXPECT_EQ(parent.Take(), (Calls{"changed 3,2", "changing 3,2", "click 3,2"}));
    EXPECT_EQ(parent.commands, 1);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(3, 2));
    EXPECT_EQ(Selected(), CCellRange(3, 2, 3, 2));
    EXPECT_EQ(grid.GetMouseMode(), 0);
}

TEST_F(GridMouse, ADragSelectsARectangleAndTellsOfRowsOnly)
{
    owtest::ButtonDown(grid, MiddleOf(grid, 2, 1));
    EXPECT_EQ(grid.GetMouseMode(), 4);
    EXPECT_EQ(::GetCapture(), grid.m_hWnd);
    parent.Take();
    owtest::MoveTo(grid, MiddleOf(grid, 2, 2));
    EXPECT_EQ(parent.Take(), Calls{}) << "inside one row the focus moves quietly";
    owtest::MoveTo(grid, MiddleOf(grid, 4, 3));
    EXPECT_EQ(parent.Take(), Calls{"changed 4,3"});
    EXPECT_EQ(Selected(), CCellRange(2, 1, 4, 3));
    EXPECT_EQ(grid.GetSelectedCount(), 9);
    owtest::MoveTo(grid, MiddleOf(grid, 1, 1));
    EXPECT_EQ(Selected(), CCellRange(1, 1, 2, 1)) << "the anchor stays";
    owtest::ButtonUp();
    EXPECT_EQ(grid.GetMouseMode(), 0);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(GridMouse, ADragBeyondTheEdgeScrollsByTheTimer)
{
    owtest::ButtonDown(grid, MiddleOf(grid, 3, 1));
    EXPECT_NE(grid.m_nTimerId, 0u);
    owtest::MoveTo(grid, CPoint(90, 215));
    EXPECT_TRUE(owtest::PumpUntil([&] { return grid.GetFocusCell().row == kRows - 1; }))
        << "goes on without a move";
    EXPECT_EQ(Selected().minRow, 3);
    EXPECT_GE(Selected().maxRow, kRows - 2);
    owtest::MoveTo(grid, CPoint(90, -5));
    EXPECT_TRUE(owtest::PumpUntil([&] { return grid.GetFocusCell().row == 1; }));
    owtest::MoveTo(grid, CPoint(310, 100));
    EXPECT_TRUE(owtest::PumpUntil([&] { return grid.GetFocusCell().col == kCols - 1; }));
    owtest::ButtonUp();
    EXPECT_EQ(grid.m_nTimerId, 0u);

    owtest::ButtonDown(grid, CPoint(90, 10));
    EXPECT_EQ(grid.GetMouseMode(), 2);
    EXPECT_EQ(grid.m_nTimerId, 0u) << "a drag on a header does not scroll";
    owtest::ButtonUp();
}

TEST_F(GridMouse, LosingTheCaptureStopsTheTimerAndKeepsTheMode)
{
    owtest::ButtonDown(grid, MiddleOf(grid, 3, 1));
    ::SetCapture(parent);
    EXPECT_EQ(grid.m_nTimerId, 0u);
    EXPECT_EQ(grid.GetMouseMode(), 4);
    ::ReleaseCapture();
    owtest::ButtonUp();
    EXPECT_EQ(grid.GetMouseMode(), 0);
}

TEST_F(GridMouse, HeadersSelectColumnsRowsAndAll)
{
    ClickCell(0, 2);
    EXPECT_EQ(Selected(), CCellRange(1, 2, kRows - 1, 2));
    Drag(MiddleOf(grid, 0, 2), MiddleOf(grid, 0, 4));
    EXPECT_EQ(Selected(), CCellRange(1, 2, kRows - 1, 4));
    ClickCell(5, 0);
    EXPECT_EQ(Selected(), CCellRange(5, 1, 5, kCols - 1));
    EXPECT_EQ(grid.GetFocusCell(), CCellID(5, 1)) << "the focus goes to the body";
    owtest::ButtonDown(grid, MiddleOf(grid, 0, 0));
    EXPECT_EQ(grid.GetMouseMode(), 1);
    owtest::ButtonUp();
    EXPECT_EQ(grid.GetSelectedCount(), (kRows - 1) * (kCols - 1));

    grid.SetFixedRowSelection(FALSE);
    grid.SetFixedColumnSelection(FALSE);
    parent.Take();
    owtest::ButtonDown(grid, MiddleOf(grid, 0, 3));
    EXPECT_EQ(grid.GetMouseMode(), 0) << "a press that selects nothing";
    owtest::ButtonUp();
    EXPECT_EQ(parent.Take().back(), "click 0,3") << "is a click all the same";
    ClickCell(4, 0);
    EXPECT_EQ(grid.GetSelectedCount(), (kRows - 1) * (kCols - 1));
}

TEST_F(GridMouse, ListModeAndSingleSelectionShapeAClick)
{
    grid.SetListMode();
    ClickCell(3, 2);
    EXPECT_EQ(Selected(), CCellRange(3, 1, 3, kCols - 1));
    Drag(MiddleOf(grid, 4, 1), MiddleOf(grid, 6, 1));
    EXPECT_EQ(Selected(), CCellRange(4, 1, 6, kCols - 1));
    grid.SetSingleRowSelection();
    Drag(MiddleOf(grid, 2, 1), MiddleOf(grid, 5, 1));
    EXPECT_EQ(Selected(), CCellRange(5, 1, 5, kCols - 1));

    grid.SetListMode(FALSE);
    EXPECT_FALSE(grid.GetSingleRowSelection()) << "counts in list mode only";
    EXPECT_FALSE(grid.GetFixedRowSelection()) << "switched off, whatever the argument";
    grid.SetFixedRowSelection(TRUE);
    grid.SetSingleColSelection();
    Drag(MiddleOf(grid, 0, 2), MiddleOf(grid, 0, 4));
    EXPECT_EQ(Selected(), CCellRange(1, 4, kRows - 1, 4));
}

TEST_F(GridMouse, ShiftExtendsAndControlAddsAndTakesAway)
{
    SendClick(MiddleOf(grid, 2, 1));
    SendClick(MiddleOf(grid, 4, 2), MK_SHIFT);
    EXPECT_EQ(Selected(), CCellRange(2, 1, 4, 2));

    SendClick(MiddleOf(grid, 7, 3), MK_CONTROL);
    EXPECT_EQ(grid.GetSelectedCount(), 7);
    EXPECT_TRUE(grid.IsCellSelected(3, 1) && grid.IsCellSelected(7, 3));
    parent.Take();
    SendClick(MiddleOf(grid, 3, 1), MK_CONTROL);
    EXPECT_FALSE(grid.IsCellSelected(3, 1));
    EXPECT_EQ(grid.GetSelectedCount(), 6);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(3, 1));

    // On the focus cell's text, Ctrl selects instead of preparing an edit.
    SendClick(MiddleOf(grid, 3, 1), MK_CONTROL);
    EXPECT_TRUE(grid.IsCellSelected(3, 1));
    EXPECT_FALSE(grid.IsItemEditing(3, 1));
}

TEST_F(GridMouse, TheDividersChangeTheModeUnderAMovingPointer)
{
    const auto moveTo = [&](CPoint point, int nMode, LPCTSTR pCursor)
    {
        owtest::MoveTo(grid, point);
        EXPECT_EQ(grid.GetMouseMode(), nMode) << point.x << ',' << point.y;
        EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, pCursor));
    };
    moveTo(ColumnDivider(1), 8, IDC_SIZEWE);
    moveTo(RowDivider(2), 6, IDC_SIZENS);
    moveTo(ColumnDivider(2), 8, IDC_SIZEWE);
    moveTo(MiddleOf(grid, 3, 3), 0, IDC_ARROW);
    grid.SetColumnResize(FALSE);
    grid.SetRowResize(FALSE);
    moveTo(ColumnDivider(1), 0, IDC_ARROW);
    moveTo(RowDivider(2), 0, IDC_ARROW);
}

TEST_F(GridMouse, ADragOnADividerSizes)
{
    Drag(ColumnDivider(1), CPoint(150, 10));
    EXPECT_EQ(grid.GetColumnWidth(1), 150 - kColWidth);
    EXPECT_EQ(grid.GetMouseMode(), 8) << "the pointer stands on the divider that it has moved";
    Drag(RowDivider(2), CPoint(30, 75));
    EXPECT_EQ(grid.GetRowHeight(2), 75 - 2 * kRowHeight);
    SetSizes(grid);
    owtest::ButtonDown(grid, ColumnDivider(1));
    CRect held;
    ::GetClipCursor(&held);
    grid.ScreenToClient(&held);
    EXPECT_EQ(held.left, kColWidth + 1) << "the cursor is held one pixel behind the column's start";
    owtest::MoveTo(grid, CPoint(held.left, 10));
    owtest::ButtonUp();
    EXPECT_EQ(grid.GetColumnWidth(1), 1);
    SetSizes(grid); // without a way, and at the very corner, there is nothing to size
    Drag(ColumnDivider(1), ColumnDivider(1));
    DragByMessages(ColumnDivider(1), CPoint(0, 0));
    EXPECT_EQ(grid.GetColumnWidth(1), kColWidth);
}

TEST_F(GridMouse, ADragHidesWhereItMayAndOpensWhatMayBeOpened)
{
    DragByMessages(ColumnDivider(1), CPoint(kColWidth - 30, 10));
    EXPECT_EQ(grid.GetColumnWidth(1), 0);
    Drag(CPoint(kColWidth + 1, 10), CPoint(kColWidth + 41, 10));
    EXPECT_EQ(grid.GetColumnWidth(1), 41) << "the divider opens what it hid";
    DragByMessages(RowDivider(3), CPoint(20, 40));
    EXPECT_EQ(grid.GetRowHeight(3), 0);
    grid.EnableColumnHide(FALSE);
    DragByMessages(CPoint(kColWidth + 40, 10), CPoint(kColWidth - 30, 10));
    EXPECT_EQ(grid.GetColumnWidth(1), 1);
    grid.EnableRowHide(FALSE);
    DragByMessages(RowDivider(2), CPoint(20, 5));
    EXPECT_EQ(grid.GetRowHeight(2), 1);

    // With opening switched off the nearest one that shows is sized instead.
    SetSizes(grid);
    grid.SetColumnWidth(2, 0, TRUE);
    grid.SetRowHeight(2, 0);
    grid.EnableHiddenColUnhide(FALSE);
    grid.EnableHiddenRowUnhide(FALSE);
    Drag(CPoint(kColWidth * 2 + 1, 10), CPoint(150, 10));
    Drag(CPoint(30, kRowHeight * 2 + 1), CPoint(30, 50));
    EXPECT_EQ(CSize(grid.GetColumnWidth(1), grid.GetRowHeight(1)), CSize(90, 30));
    EXPECT_EQ(CSize(grid.GetColumnWidth(2), grid.GetRowHeight(2)), CSize(0, 0));
}

TEST_F(GridMouse, ACellHearsWhatTheMouseDoesToIt)
{
    using Notes = std::vector<std::string>;
    for (const int nRow : {3, 5})
        grid.SetCellType(nRow, 2, RUNTIME_CLASS(NotedCell));
    grid.UpdateWindow();
    const CPoint point(125, 63);
    owtest::MoveTo(grid, point);
    grid.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(grid.m_hWnd), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, IDC_CROSS));
    const Notes hover = NotedCell::Take();
    EXPECT_TRUE(std::find(hover.begin(), hover.end(), "over") != hover.end());
    const auto told = [&](UINT message, CPoint at)
    {
        NotedCell::Take();
        Send(message, at);
        Notes notes = NotedCell::Take();
        std::erase_if(notes, [](const std::string& note) { return note.starts_with("draw"); });
        return notes;
    };
    EXPECT_EQ(told(WM_LBUTTONDOWN, point), Notes{"down 5,3"});
    EXPECT_EQ(told(WM_LBUTTONUP, point), Notes{"click 5,3"});
    EXPECT_EQ(told(WM_LBUTTONDBLCLK, point), Notes{"dblclick 5,3"});
    EXPECT_EQ(told(WM_RBUTTONUP, point), Notes{"rclick 5,3"});
    grid.EndEditing();

    // A drag ends with a click of the cell that has the focus by then, and tells the one that was pressed.
    Send(WM_LBUTTONDOWN, CPoint(125, 103), MK_LBUTTON);
    Send(WM_MOUSEMOVE, CPoint(125, 63), MK_LBUTTON);
    parent.Take();
    EXPECT_EQ(told(WM_LBUTTONUP, CPoint(126, 64)), Notes{"click 6,4"});
    EXPECT_EQ(parent.Take(), Calls{"click 5,2"});
}

TEST_F(GridMouse, ADoubleClickOnADividerFitsTheContents)
{
    grid.SetItemText(5, 1, L"the longest text of its column by far");
    const int nWide = grid.GetCellTextExtent(5, 1).cx;
    const auto doubleClick = [&](CPoint point)
    {
        Send(WM_MOUSEMOVE, point);
        Send(WM_LBUTTONDBLCLK, point, MK_LBUTTON);
    };
    doubleClick(ColumnDivider(1));
    EXPECT_EQ(grid.GetColumnWidth(1), nWide);

    // Below a row the double click means that row; in its top pixels it still does, unlike the drag.
    grid.SetRowHeight(4, 60);
    doubleClick(CPoint(30, 4 * kRowHeight + 1));
    EXPECT_LT(grid.GetRowHeight(4), 60);
    EXPECT_EQ(grid.GetRowHeight(3), kRowHeight);
}

TEST_F(GridMouse, ASecondClickOrADoubleClickEdits)
{
    ClickCell(2, 2);
    owtest::ButtonDown(grid, MiddleOf(grid, 2, 2));
    EXPECT_EQ(grid.GetMouseMode(), 10);
    EXPECT_EQ(::GetCapture(), nullptr);
    owtest::ButtonUp();
    EXPECT_TRUE(EditorOpens(2, 2));
    EndByKey(VK_ESCAPE);

    const CPoint point = MiddleOf(grid, 3, 3);
    SendClick(point);
    parent.Take();
    Send(WM_LBUTTONDBLCLK, point, MK_LBUTTON);
    EXPECT_TRUE(grid.IsItemEditing(3, 3));
    EXPECT_EQ(parent.Take(), (Calls{"begin 3,3", "dblclk 3,3"}));
    EndByKey(VK_ESCAPE);
    MakeReadOnly(3, 3);
    parent.Take();
    Send(WM_LBUTTONDBLCLK, point, MK_LBUTTON);
    EXPECT_EQ(parent.Take(), Calls{"dblclk 3,3"});
}

TEST_F(GridMouse, OutsideTheTextOfTheFocusCellAPressSelects)
{
    grid.SetImageList(&CGridCtrl::GridImageList);
    grid.SetItemImage(2, 2, 0);
    ClickCell(2, 2);
    CRect rect;
    grid.GetCellRect(2, 2, &rect);
    owtest::ButtonDown(grid, CPoint(rect.left + 5, rect.CenterPoint().y));
    EXPECT_EQ(grid.GetMouseMode(), 4);
    owtest::ButtonUp();
    grid.SetImageList(nullptr);
}

TEST_F(GridMouse, TheRightButtonFocusesAndTellsUnlessItIsSwitchedOff)
{
    const auto rightClick = [&](CPoint point)
    {
        grid.SendMessage(WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(point.x, point.y));
        grid.SendMessage(WM_RBUTTONUP, 0, MAKELPARAM(point.x, point.y));
    };
    rightClick(MiddleOf(grid, 0, 3));
    EXPECT_EQ(parent.Take(), (Calls{"changed 1,3", "rclick 0,3"}))
        << "the real cell is told, the raised one focused";
    EXPECT_EQ(grid.GetFocusCell(), CCellID(1, 3));

    rightClick(MiddleOf(grid, 1, 3));
    EXPECT_EQ(parent.Take(), (Calls{"changed 1,3", "rclick 1,3"})) << "the focus is given anew";

    grid.SetColumnCount(2);
    parent.Take();
    rightClick(CPoint(280, 100));
    EXPECT_EQ(parent.Take(), Calls{"rclick -1,-1"});

    grid.SetFocusCell(2, 1);
    grid.StartEditCell();
    ASSERT_TRUE(EditorOpens(2, 1));
    parent.Take();
    grid.SetNeReagujNaDesniKlik(TRUE);
    rightClick(MiddleOf(grid, 4, 1));
    EXPECT_TRUE(EditorCloses()) << "it still ends an edit";
    EXPECT_EQ(parent.Take(), Calls{});
    EXPECT_EQ(grid.GetFocusCell(), CCellID(2, 1));
}

TEST_F(GridMouse, AClickOnAHeaderSortsAndTheNextOneTurnsTheOrder)
{
    grid.SetHeaderSort();
    for (int nRow = 1; nRow < kRows; ++nRow)
        grid.SetItemTextFmt(nRow, 1, L"%02d", (nRow * 7) % 20);
    ClickCell(0, 1);
    EXPECT_EQ(Text(1, 1), L"00");
    EXPECT_EQ(grid.GetSortColumn(), 1);
    ClickCell(0, 1);
    EXPECT_EQ(Text(1, 1), L"19");
    ClickCell(0, 2);
    EXPECT_TRUE(grid.GetSortAscending()) << "another column begins ascending";
}

TEST_F(GridMouse, APressThatABoxHasAnsweredBeginsNothing)
{
    const auto pressWithBox = [&](UINT code, const std::function<void()>& inBox)
    {
        ClickCell(2, 2);
        owtest::Type(L"x");
        owtest::ModalVisit visit([&](CWnd&) { inBox(); });
        bool asked = false;
        parent.On(code,
                  [&]
                  {
                      if (!std::exchange(asked, true))
                          ::MessageBox(parent, L"Really?", L"grid", MB_OK);
                  });
        owtest::ButtonDown(grid, MiddleOf(grid, 4, 3));
        EXPECT_EQ(visit.Count(), 1);
        EXPECT_EQ(grid.GetMouseMode(), 0);
        EXPECT_EQ(grid.m_nTimerId, 0u);
        EXPECT_EQ(::GetCapture(), nullptr);
        owtest::MoveTo(grid, MiddleOf(grid, 6, 4));
        EXPECT_EQ(Selected(), CCellRange(2, 2, 2, 2)) << "and nothing is dragged";
        parent.answer = nullptr;
    };
    pressWithBox(LVN_ENDLABELEDITW, [] { owtest::ButtonUp(); });
    EXPECT_EQ(Text(2, 2), L"x");
    for (const UINT code : {LVN_ENDLABELEDITW, LVN_ITEMCHANGING})
    {
        pressWithBox(code, [] {});
        owtest::ButtonUp();
    }

    // Without a box the release may come while the parent answers, in the grid or beside it.
    parent.On(LVN_ITEMCHANGED,
              [&]
              {
                  owtest::MoveTo(parent, CPoint(2, 2));
                  owtest::ButtonUp();
              });
    owtest::ButtonDown(grid, MiddleOf(grid, 5, 3));
    EXPECT_EQ(grid.GetMouseMode(), 0);
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(grid.m_nTimerId, 0u);
    owtest::MoveTo(grid, ColumnDivider(2));
    EXPECT_EQ(grid.GetMouseMode(), 8);
    owtest::MoveTo(grid, MiddleOf(grid, 6, 4));
    EXPECT_EQ(grid.GetMouseMode(), 0) << "the pointer only hovers";
}
