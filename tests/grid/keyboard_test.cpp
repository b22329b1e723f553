// Keys, and edits from the first key to the last.

#include "GridFixture.h"

class GridKeyboard : public GridTest
{
protected:
    void SetUp() override
    {
        GridTest::SetUp();
        ClickCell(2, 2);
        parent.Take();
    }
    /// The focus after a key.
    CCellID After(WORD key, bool shift = false, bool control = false)
    {
        owtest::Press(key, shift, control);
        return grid.GetFocusCell();
    }
    void FocusOn(int nRow, int nCol)
    {
        grid.SetFocusCell(nRow, nCol);
        parent.Take();
    }
};

TEST_F(GridKeyboard, ArrowsMoveOverHiddenOnesAndSelectOneCell)
{
    EXPECT_EQ(After(VK_DOWN), CCellID(3, 2));
    EXPECT_EQ(parent.Take(), Calls{"changed 3,2"});
    EXPECT_EQ(Selected(), CCellRange(3, 2, 3, 2));
    grid.SetColumnWidth(3, 0, TRUE);
    EXPECT_EQ(After(VK_RIGHT), CCellID(3, 4));
    grid.SetRowHeight(2, 0);
    EXPECT_EQ(After(VK_UP), CCellID(1, 4));
    EXPECT_EQ(After(VK_UP), CCellID(1, 4)) << "not into the headings";
    EXPECT_EQ(After(VK_LEFT), CCellID(1, 2));
}

TEST_F(GridKeyboard, ShiftExtendsFromTheAnchor)
{
    After(VK_DOWN, true);
    EXPECT_EQ(After(VK_RIGHT, true), CCellID(3, 3));
    EXPECT_EQ(Selected(), CCellRange(2, 2, 3, 3));
    After(VK_RIGHT);
    EXPECT_EQ(Selected(), CCellRange(3, 4, 3, 4));
}

TEST_F(GridKeyboard, TabWrapsIntoTheNextRowAndBack)
{
    FocusOn(2, kCols - 1);
    EXPECT_EQ(After(VK_TAB), CCellID(3, 1));
    EXPECT_EQ(After(VK_TAB, true), CCellID(2, kCols - 1));
    EXPECT_EQ(Selected(), CCellRange(2, kCols - 1, 2, kCols - 1)) << "Shift with Tab does not extend";
    FocusOn(kRows - 1, kCols - 1);
    EXPECT_EQ(After(VK_TAB), CCellID(kRows - 1, kCols - 1));
    FocusOn(1, 1);
    EXPECT_EQ(After(VK_TAB, true), CCellID(1, 1));
}

TEST_F(GridKeyboard, PagesHomeAndEnd)
{
    // Nine whole rows show below the headings.
    const int nPage = 9;
    EXPECT_EQ(After(VK_NEXT).row, 2 + nPage);
    EXPECT_EQ(After(VK_PRIOR).row, 2);
    EXPECT_EQ(After(VK_PRIOR).row, 1) << "where the view cannot move, the first row";
    EXPECT_EQ(After(VK_END), CCellID(1, kCols - 1));
    EXPECT_EQ(After(VK_HOME), CCellID(1, 1));
    EXPECT_EQ(After(VK_END, false, true), CCellID(kRows - 1, kCols - 1));
    EXPECT_TRUE(grid.IsCellVisible(kRows - 1, kCols - 1));
    EXPECT_EQ(After(VK_NEXT).row, kRows - 1);
    EXPECT_EQ(After(VK_HOME, false, true), CCellID(1, 1));
    EXPECT_EQ(grid.GetTopleftNonFixedCell(), CCellID(1, 1));
}

TEST_F(GridKeyboard, ControlASelectsAllAndDeleteDoesNothing)
{
    owtest::Press('A', false, true);
    EXPECT_EQ(grid.GetSelectedCount(), (kRows - 1) * (kCols - 1));
    EXPECT_EQ(parent.Take(), (Calls{"changing 2,2", "changed 2,2"}));
    owtest::Press(VK_DELETE);
    EXPECT_EQ(Text(2, 2), L"2/2");
    EXPECT_EQ(parent.Take(), Calls{});
}

TEST_F(GridKeyboard, TabIsLeftToTheDialogOnRequest)
{
    EXPECT_EQ(grid.SendMessage(WM_GETDLGCODE), DLGC_WANTARROWS | DLGC_WANTCHARS | DLGC_WANTTAB);
    grid.SetHandleTabKey(FALSE);
    EXPECT_EQ(grid.SendMessage(WM_GETDLGCODE), DLGC_WANTARROWS | DLGC_WANTCHARS);
}

TEST_F(GridKeyboard, TypingReplacesTheTextAndEnterStoresIt)
{
    owtest::Type(L"abc");
    ASSERT_TRUE(EditorOpens(2, 2));
    EXPECT_EQ(parent.Take(), Calls{"begin 2,2"});
    owtest::Press(VK_RETURN);
    ASSERT_TRUE(EditorCloses());
    EXPECT_EQ(Text(2, 2), L"abc");
    EXPECT_EQ(parent.Take(), Calls{"end 2,2"});
    EXPECT_TRUE(grid.GetModified(2, 2));
    EXPECT_FALSE(grid.GetModified(2, 3));
    EXPECT_EQ(grid.GetFocusCell(), CCellID(2, 2));
}

TEST_F(GridKeyboard, AnInputMethodsCharacterStartsAnEditLikeATypedOne)
{
    EXPECT_EQ(grid.SendMessage(WM_IME_CHAR, VK_ESCAPE), 0);
    EXPECT_EQ(parent.Take(), Calls{}) << "but Escape does not";
    EXPECT_EQ(grid.SendMessage(WM_IME_CHAR, L'\x5B57'), 0);
    ASSERT_TRUE(EditorOpens(2, 2));
    owtest::Pump();
    grid.EndEditing();
    EXPECT_EQ(Text(2, 2), L"\x5B57");
    ASSERT_TRUE(EditorCloses());
}

TEST_F(GridKeyboard, EscapeAndTheLossOfTheFocusEndAnEdit)
{
    owtest::Type(L"x");
    ASSERT_TRUE(EditorOpens(2, 2));
    owtest::Press(VK_ESCAPE);
    ASSERT_TRUE(EditorCloses());
    EXPECT_EQ(Text(2, 2), L"2/2");
    EXPECT_EQ(parent.Take(), Calls{"begin 2,2"}) << "nothing has changed, so nobody is asked";

    owtest::Type(L"y");
    ASSERT_TRUE(EditorOpens(2, 2));
    ClickCell(4, 4);
    ASSERT_TRUE(EditorCloses());
    EXPECT_EQ(Text(2, 2), L"y");
    EXPECT_EQ(grid.GetFocusCell(), CCellID(4, 4));
}

TEST_F(GridKeyboard, TheKeyThatEndsAnEditMovesOnAndEditsThere)
{
    owtest::Type(L"1");
    ASSERT_TRUE(EditorOpens(2, 2));
    owtest::Press(VK_TAB);
    ASSERT_TRUE(EditorOpens(2, 3));
    EXPECT_EQ(Text(2, 2), L"1");
    owtest::Type(L"2");
    owtest::Press(VK_DOWN);
    ASSERT_TRUE(EditorOpens(3, 3));
    EXPECT_EQ(Text(2, 3), L"2");
    owtest::Press(VK_RETURN);
    ASSERT_TRUE(EditorCloses());
    EXPECT_EQ(Text(3, 3), L"3/3") << "the key that moved is no text";
}

TEST_F(GridKeyboard, EnterAsTabWalksTheCellsThatCanBeEdited)
{
    grid.SetEnterIsTab(TRUE);
    grid.SetItemState(2, 3, grid.GetItemState(2, 3) | CELL_READONLY);
    EXPECT_EQ(After(VK_RETURN), CCellID(2, 4));
    owtest::Press(VK_F2);
    ASSERT_TRUE(EditorOpens(2, 4)) << "F2 edits in this mode";
    owtest::Press(VK_ESCAPE);
    ASSERT_TRUE(EditorCloses());

    FocusOn(kRows - 1, kCols - 1);
    EXPECT_EQ(After(VK_TAB), CCellID(kRows - 1, 1)) << "the last row is gone around in";
    owtest::Pump();
}

TEST_F(GridKeyboard, F2NeedsEnterAsTab)
{
    owtest::Press(VK_F2);
    EXPECT_FALSE(grid.IsItemEditing(2, 2));
    EXPECT_EQ(parent.Take(), Calls{});
}

TEST_F(GridKeyboard, AReadOnlyCellOrGridIsNotEdited)
{
    grid.SetItemState(2, 2, grid.GetItemState(2, 2) | CELL_READONLY);
    owtest::Type(L"x");
    EXPECT_EQ(parent.Take(), Calls{});
    FocusOn(2, 3);
    grid.SetEditable(FALSE);
    owtest::Type(L"x");
    EXPECT_EQ(parent.Take(), Calls{});
    EXPECT_EQ(Text(2, 3), L"2/3");
}

TEST_F(GridKeyboard, TheParentMayForbidAnEditAndRefuseItsText)
{
    parent.answer = [](NMHDR& header) { return header.code == LVN_BEGINLABELEDITW ? -1 : 0; };
    owtest::Type(L"x");
    EXPECT_EQ(parent.Take(), Calls{"begin 2,2"});
    EXPECT_FALSE(grid.IsItemEditing(2, 2));

    std::wstring seen;
    parent.answer = [&](NMHDR& header) -> LRESULT
    {
        if (header.code != LVN_ENDLABELEDITW)
            return 0;
        seen = Text(2, 2);
        return -1;
    };
    owtest::Type(L"x");
    ASSERT_TRUE(EditorOpens(2, 2));
    owtest::Press(VK_RETURN);
    ASSERT_TRUE(EditorCloses());
    EXPECT_EQ(seen, L"x") << "the parent finds the new text in the cell";
    EXPECT_EQ(Text(2, 2), L"2/2");
    EXPECT_TRUE(grid.GetModified(2, 2)) << "the mark stays";
    EXPECT_FALSE(grid.IsItemEditing(2, 2));
}

TEST_F(GridKeyboard, ClearCellsAsksForEachCellThatShows)
{
    grid.SetRowHeight(3, 0);
    grid.SetItemState(2, 1, grid.GetItemState(2, 1) | CELL_READONLY);
    parent.answer = [](NMHDR& header)
    { return header.code == LVN_ENDLABELEDITW && reinterpret_cast<GridNotify&>(header).iRow == 4 ? -1 : 0; };
    grid.ClearCells(CCellRange(2, 1, 4, 2));
    EXPECT_EQ(parent.Take(), (Calls{"begin 2,2", "end 2,2", "begin 4,1", "end 4,1", "begin 4,2", "end 4,2"}));
    EXPECT_EQ(Text(2, 2), L"");
    EXPECT_EQ(Text(2, 1), L"2/1");
    EXPECT_EQ(Text(3, 2), L"3/2");
    EXPECT_EQ(Text(4, 2), L"4/2") << "refused";
}

TEST_F(GridKeyboard, AScrollEndsAnEdit)
{
    owtest::Type(L"x");
    ASSERT_TRUE(EditorOpens(2, 2));
    grid.SendMessage(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_TRUE(EditorCloses());
    EXPECT_EQ(Text(2, 2), L"x");
}
