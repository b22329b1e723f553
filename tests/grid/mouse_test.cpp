// The mouse: every transition of its state machine, with a real one where the way there matters.

#include "GridFixture.h"

IMPLEMENT_DYNCREATE(NotedCell, CGridCell)

class GridMouse : public GridTest
{
protected:
    CPoint ColumnDivider(int nCol) { return CPoint(kColWidth * (nCol + 1) - 1, kRowHeight / 2); }
    CPoint RowDivider(int nRow) { return CPoint(kColWidth / 2, kRowHeight * (nRow + 1) - 1); }
    /// What comes of a drag from one cell to another, by a pixel at least, from the press on.
    std::string Drawn(CCellID from, CCellID to)
    {
        Seen();
        Drag(MiddleOf(grid, from.row, from.col), MiddleOf(grid, to.row, to.col) + CSize(1, 0));
        return Seen();
    }
    std::string Clicked(int nRow, int nCol, WPARAM modifiers = 0)
    {
        SendClick(MiddleOf(grid, nRow, nCol), modifiers);
        return Seen();
    }
    std::string MovedTo(CPoint point)
    {
        owtest::MoveTo(grid, point);
        return Seen();
    }
    std::string Pressed(CPoint point)
    {
        owtest::ButtonDown(grid, point);
        return Seen();
    }
    std::string Released()
    {
        owtest::ButtonUp();
        return Seen();
    }
    CSize SizeOf(int nRow, int nCol) { return CSize(grid.GetColumnWidth(nCol), grid.GetRowHeight(nRow)); }
    bool NoGesture() { return grid.GetMouseMode() == 0 && grid.m_nTimerId == 0 && !::GetCapture(); }
};

TEST_F(GridMouse, ADragSelectsARectangleAndTellsOfRowsOnly)
{
    EXPECT_EQ(Pressed(MiddleOf(grid, 2, 1)), "2,1 [2,1-2,1]=1 mode 4 timer capture changed 2,1 changing 2,1");
    EXPECT_EQ(MovedTo(MiddleOf(grid, 2, 2)), "2,2 [2,1-2,2]=2 mode 4 timer capture")
        << "inside one row the focus moves quietly";
    EXPECT_EQ(MovedTo(MiddleOf(grid, 4, 3)), "4,3 [2,1-4,3]=9 mode 4 timer capture changed 4,3");
    Send(WM_MOUSEMOVE, MiddleOf(grid, 4, 0), MK_LBUTTON);
    EXPECT_EQ(grid.GetFocusCell(), CCellID(4, 3)) << "not into the headings";
    EXPECT_EQ(MovedTo(MiddleOf(grid, 1, 1)), "1,1 [1,1-2,1]=2 mode 4 timer capture changed 1,1");
    ::SetCapture(parent);
    ::ReleaseCapture();
    EXPECT_EQ(Seen(), "1,1 [1,1-2,1]=2 mode 4") << "the mode stays until the release";
    EXPECT_EQ(Released(), "1,1 [1,1-2,1]=2 click 2,1 #");
}

TEST_F(GridMouse, ADragBeyondTheEdgeScrollsByTheTimer)
{
    const auto reaches = [&](CPoint to, int CCellID::*index, int nItem)
    {
        owtest::MoveTo(grid, to);
        return owtest::PumpUntil([&] { return grid.GetFocusCell().*index == nItem; });
    };
    owtest::ButtonDown(grid, MiddleOf(grid, 3, 2));
    EXPECT_TRUE(reaches({90, 215}, &CCellID::row, kRows - 1)) << "goes on without a move";
    EXPECT_TRUE(reaches({90, -5}, &CCellID::row, 1));
    EXPECT_TRUE(reaches({310, 100}, &CCellID::col, kCols - 1));
    EXPECT_EQ(Selected().maxRow, 5) << "as far as the pointer";
    EXPECT_TRUE(reaches({-5, 100}, &CCellID::col, 1));
    Released();
    EXPECT_EQ(Pressed(CPoint(90, 10)), "1,1 [1,1-20,1]=20 mode 2 capture changed 1,1 changing 0,1")
        << "a drag on a header does not scroll";
    owtest::ButtonUp();
}

TEST_F(GridMouse, WhatIsPressedAndTheModesShapeWhatIsSelected)
{
    EXPECT_EQ(Drawn({0, 2}, {0, 2}), "1,2 [1,2-20,2]=20 changed 1,2 changing 0,2 changed 1,2 click 0,2 #");
    EXPECT_EQ(Drawn({0, 2}, {0, 4}), "1,4 [1,2-20,4]=60 changed 1,2 changing 0,2 changed 1,4 click 0,2 #");
    EXPECT_EQ(Drawn({5, 0}, {5, 0}), "5,1 [5,1-5,6]=6 changed 5,1 changing 5,0 click 5,0 #")
        << "the focus goes to the body";
    EXPECT_EQ(Pressed(MiddleOf(grid, 0, 0)), "1,1 [1,1-20,6]=120 mode 1 capture changed 1,1 changing 0,0");
    EXPECT_EQ(Released(), "1,1 [1,1-20,6]=120 click 0,0 #");
    grid.SetFixedRowSelection(FALSE);
    grid.SetFixedColumnSelection(FALSE);
    EXPECT_EQ(Clicked(0, 3), "1,3 [1,1-20,6]=120 changed 1,3 changing 0,3 click 0,3 #")
        << "selects nothing, and is a click all the same";
    EXPECT_EQ(Clicked(4, 0), "4,1 [1,1-20,6]=120 changed 4,1 changing 4,0 click 4,0 #");
    grid.SetSortColumn(2);
    grid.SetListMode();
    EXPECT_EQ(grid.GetSortColumn(), -1);
    EXPECT_EQ(Drawn({4, 1}, {6, 1}), "6,1 [4,1-6,6]=18 changed 4,1 changing 4,1 changed 6,1 click 4,1 #");
    EXPECT_EQ(Clicked(5, 2, MK_CONTROL), "5,2 [4,1-6,6]=12 changed 5,2 click 5,2 #") << "takes the row away";
    grid.SetSingleRowSelection();
    EXPECT_EQ(Drawn({2, 1}, {5, 1}), "5,1 [5,1-5,6]=6 changed 2,1 changing 2,1 changed 5,1 click 2,1 #");
    grid.SetListMode(FALSE);
    EXPECT_FALSE(grid.GetSingleRowSelection()) << "counts in list mode only";
    EXPECT_FALSE(grid.GetFixedRowSelection()) << "switched off, whatever the argument";
    grid.SetFixedRowSelection(TRUE);
    grid.SetSingleColSelection();
    EXPECT_EQ(Drawn({0, 2}, {0, 4}), "1,4 [1,4-20,4]=20 changed 1,2 changing 0,2 changed 1,4 click 0,2 #");
}

TEST_F(GridMouse, ShiftExtendsAndControlAddsAndTakesAway)
{
    Clicked(2, 1);
    EXPECT_EQ(Clicked(4, 2, MK_SHIFT), "4,2 [2,1-4,2]=6 changed 4,2 changing 4,2 click 4,2 #");
    EXPECT_EQ(Clicked(7, 3, MK_CONTROL), "7,3 [2,1-7,3]=7 changed 7,3 changing 7,3 click 7,3 #");
    EXPECT_EQ(Clicked(3, 1, MK_CONTROL), "3,1 [2,1-7,3]=6 changed 3,1 click 3,1 #");
    EXPECT_FALSE(grid.IsCellSelected(3, 1));
    EXPECT_EQ(Clicked(3, 1, MK_CONTROL), "3,1 [2,1-7,3]=7 changed 3,1 changing 3,1 click 3,1 #")
        << "on the text of the focus cell, too, where an edit would begin";
    grid.m_selectionStart = CCellID();
    EXPECT_EQ(Clicked(5, 3, MK_SHIFT), "5,3 [3,1-5,3]=9 changed 5,3 changing 5,3 click 5,3 #")
        << "without an anchor from the focus";
}

TEST_F(GridMouse, ADragOnADividerSizesHidesAndOpens)
{
    const CPoint column = ColumnDivider(1), row = RowDivider(2);
    for (const bool allowed : {false, true})
    {
        grid.SetColumnResize(allowed);
        grid.SetRowResize(allowed);
        for (const auto& [point, mode, cursor] :
             {std::tuple(column, 8, IDC_SIZEWE), {row, 6, IDC_SIZENS}, {MiddleOf(grid, 3, 3), 0, IDC_ARROW}})
        {
            owtest::MoveTo(grid, point);
            EXPECT_EQ(grid.GetMouseMode(), allowed ? mode : 0) << point.x << ',' << point.y;
            EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, allowed ? cursor : IDC_ARROW));
        }
    }
    Drag(row, CPoint(30, 75));
    Drag(column, CPoint(150, 10));
    EXPECT_EQ(SizeOf(2, 1), CSize(150 - kColWidth, 75 - 2 * kRowHeight));
    SetSizes(grid);
    owtest::ButtonDown(grid, column);
    CRect held;
    ::GetClipCursor(&held);
    grid.ScreenToClient(&held);
    EXPECT_EQ(held.left, kColWidth + 1) << "the cursor is held one pixel behind the column's start";
    owtest::ButtonUp();
    DragByMessages(column, CPoint(0, 0));
    EXPECT_EQ(SizeOf(2, 1), CSize(kColWidth, kRowHeight)) << "without a way, and at the corner, nothing";
    EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, IDC_ARROW)) << "until the next move";
    const auto close = [&]
    {
        DragByMessages(column, CPoint(kColWidth - 30, 10));
        DragByMessages(row, CPoint(20, 5));
        EXPECT_TRUE(NoGesture());
        return SizeOf(2, 1);
    };
    EXPECT_EQ(close(), CSize(0, 0));
    Drag(CPoint(kColWidth + 1, 10), CPoint(kColWidth + 41, 10));
    EXPECT_EQ(grid.GetColumnWidth(1), 41) << "the divider opens what it hid";
    SetSizes(grid);
    grid.EnableColumnHide(FALSE);
    grid.EnableRowHide(FALSE);
    EXPECT_EQ(close(), CSize(1, 1));

    SetSizes(grid);
    grid.SetColumnWidth(2, 0, TRUE);
    grid.SetRowHeight(3, 0);
    grid.EnableHiddenColUnhide(FALSE);
    grid.EnableHiddenRowUnhide(FALSE);
    Drag(column + CSize(2, 0), CPoint(150, 10));
    Drag(row + CSize(0, 2), CPoint(30, 70));
    EXPECT_EQ(SizeOf(2, 1), CSize(90, 30)) << "the nearest ones that show";

    SetSizes(grid);
    Send(WM_MOUSEMOVE, column);
    Send(WM_LBUTTONDOWN, column, MK_LBUTTON);
    grid.SetScrollPos32(SB_HORZ, 2 * kColWidth);
    Send(WM_LBUTTONUP, CPoint(150, 10));
    EXPECT_EQ(grid.GetColumnWidth(1), kColWidth) << "out of view: there is no start to count from";
    EXPECT_EQ(grid.GetMouseMode(), 9) << "and the mode is left as it is";
}

TEST_F(GridMouse, TheMarkerOfADragLeavesNothingBehind)
{
    owtest::Surface before(300, 200), during(300, 200), after(300, 200);
    CClientDC dc(&grid);
    const auto capture = [&](owtest::Surface& into) { into.dc().BitBlt(0, 0, 300, 200, &dc, 0, 0, SRCCOPY); };
    for (const bool column : {true, false})
    {
        const CPoint divider = column ? ColumnDivider(1) : RowDivider(2);
        grid.UpdateWindow();
        capture(before);
        Send(WM_MOUSEMOVE, divider - CSize(1, 1)); // a press may come from elsewhere
        Send(WM_LBUTTONDOWN, divider, MK_LBUTTON);
        for (const int way : {10, 20})
            Send(WM_MOUSEMOVE, divider + (column ? CSize(way, 0) : CSize(0, way)), MK_LBUTTON);
        capture(during);
        Send(WM_LBUTTONUP, divider);
        capture(after);
        EXPECT_FALSE(during == before);
        EXPECT_TRUE(after == before);
    }
}

TEST_F(GridMouse, ACellHearsWhatTheMouseDoesToIt)
{
    grid.SetCellType(3, 2, RUNTIME_CLASS(NotedCell));
    grid.UpdateWindow();
    const CPoint point(125, 63);
    owtest::MoveTo(grid, point);
    grid.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(grid.m_hWnd), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, IDC_CROSS));
    const std::pair<UINT, Calls> told[] = {{WM_MOUSEMOVE, {"over 0,0"}},
                                           {WM_LBUTTONDOWN, {"down 5,3", "changed 3,2", "changing 3,2"}},
                                           {WM_LBUTTONUP, {"click 5,3", "click 3,2"}},
                                           {WM_LBUTTONDBLCLK, {"begin 3,2", "dblclick 5,3", "dblclk 3,2"}},
                                           {WM_RBUTTONUP, {"changed 3,2", "rclick 5,3", "rclick 3,2"}}};
    for (const auto& [message, calls] : told)
    {
        parent.Take();
        Send(message, point);
        EXPECT_EQ(parent.Take(), calls);
    }
    grid.EndEditing();
    Send(WM_LBUTTONDOWN, CPoint(125, 103), MK_LBUTTON);
    Send(WM_MOUSEMOVE, CPoint(125, 63), MK_LBUTTON);
    parent.Take();
    Send(WM_LBUTTONUP, CPoint(126, 64));
    EXPECT_EQ(parent.Take(), (Calls{"click 6,4", "click 5,2"})) << "to the focus cell, of the pressed one";
}

TEST_F(GridMouse, ADoubleClickOnADividerFitsTheContents)
{
    grid.SetItemText(5, 1, L"the longest text of its column by far");
    grid.SetRowHeight(4, 60);
    for (const CPoint divider : {ColumnDivider(1), CPoint(30, 4 * kRowHeight + 1)})
    {
        Send(WM_MOUSEMOVE, divider);
        EXPECT_EQ(Repainted([&] { Send(WM_LBUTTONDBLCLK, divider, MK_LBUTTON); }), Client());
    }
    EXPECT_EQ(grid.GetColumnWidth(1), grid.GetCellTextExtent(5, 1).cx);
    EXPECT_LT(grid.GetRowHeight(4), 60) << "below a row that row is meant";
    EXPECT_EQ(parent.Take(), Calls{}) << "no double click of a cell";
}

TEST_F(GridMouse, ASecondClickOrADoubleClickInTheTextEdits)
{
    ClickCell(2, 2);
    grid.SetImageList(&CGridCtrl::GridImageList);
    grid.SetItemImage(2, 2, 0);
    Seen();
    EXPECT_EQ(Pressed(CPoint(CellRect(2, 2).left + 5, CellRect(2, 2).CenterPoint().y)),
              "2,2 [2,2-2,2]=1 mode 4 timer capture changing 2,2")
        << "outside the text a press selects";
    owtest::ButtonUp();
    grid.SetImageList(nullptr);
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

TEST_F(GridMouse, TheRightButtonFocusesAndTellsUnlessItIsSwitchedOff)
{
    const auto told = [&](CPoint point)
    {
        Seen();
        Send(WM_RBUTTONDOWN, point, MK_RBUTTON);
        Send(WM_RBUTTONUP, point);
        return Seen();
    };
    EXPECT_EQ(told(MiddleOf(grid, 0, 3)), "1,3 changed 1,3 rclick 0,3")
        << "the real cell is told, the raised one focused";
    grid.SetColumnCount(2);
    EXPECT_EQ(told(CPoint(280, 100)), "-1,-1 rclick -1,-1") << "beside all cells";
    SendClick(CPoint(280, 100));
    EXPECT_EQ(Seen(), "-1,-1 click 5,-1");
    grid.SetFocusCell(2, 1);
    grid.SendMessage(WM_VSCROLL, SB_BOTTOM);
    grid.StartEditCell();
    ASSERT_TRUE(EditorOpens(2, 1)) << "and comes back into view";
    grid.SetNeReagujNaDesniKlik(TRUE);
    EXPECT_EQ(told(MiddleOf(grid, 4, 1)), "2,1");
    EXPECT_TRUE(EditorCloses()) << "it still ends an edit";
}

TEST_F(GridMouse, AClickOnAHeaderSortsAndTheNextOneTurnsTheOrder)
{
    grid.SetHeaderSort();
    for (const auto& [column, first] :
         {std::pair(1, L"1/1"), {1, L"9/1"}, {1, L"1/1"}, {1, L"9/1"}, {2, L"1/1"}})
    {
        ClickCell(0, column);
        EXPECT_EQ(Text(1, 1), first);
        EXPECT_EQ(grid.GetSortColumn(), column);
    }
}

TEST_F(GridMouse, APressThatIsInterruptedWhileTheParentAnswersBeginsNothing)
{
    const CPoint point = MiddleOf(grid, 5, 3);
    GridParent other;
    ASSERT_TRUE(other.Open(50, 50));
    const auto ask = [&](const std::function<void()>& inBox)
    {
        owtest::ModalVisit visit([&](CWnd&) { inBox(); });
        ::MessageBox(parent, L"Really?", L"grid", MB_OK);
    };
    const std::function<void()> harms[] = {[&] { ask([] {}); }, [&] { ask([] { owtest::ButtonUp(); }); },
                                           [&] { Send(WM_LBUTTONUP, point); }, [&] { other.SetFocus(); },
                                           [&]
                                           {
                                               owtest::MoveTo(parent, CPoint(2, 2));
                                               owtest::ButtonUp();
                                           }};
    for (const UINT code : {LVN_ENDLABELEDITW, LVN_ITEMCHANGED, LVN_ITEMCHANGING})
        for (const auto& harm : harms)
        {
            grid.SetFocus();
            grid.SetItemText(2, 2, L"");
            grid.SetFocusCell(2, 2);
            grid.SetSelectedRange(CCellRange());
            owtest::Type(L"x");
            bool done = false;
            parent.On(code, [&] { std::exchange(done, true) ? void() : harm(); });
            owtest::ButtonDown(grid, point);
            owtest::MoveTo(grid, MiddleOf(grid, 6, 4));
            EXPECT_TRUE(done && NoGesture()) << "notification " << int(code);
            EXPECT_LE(grid.GetSelectedCount(), 1) << "nothing is dragged";
            EXPECT_EQ(Text(2, 2), L"x");
            parent.answer = nullptr;
            owtest::ButtonUp();
        }
    other.DestroyWindow();
}
