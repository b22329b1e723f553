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
    void TypeInto(int nRow, int nCol, const wchar_t* text)
    {
        FocusOn(nRow, nCol);
        owtest::Type(text);
        ASSERT_TRUE(EditorOpens(nRow, nCol));
    }
};

TEST_F(GridKeyboard, AKeyMovesTheFocusTellsAndSelects)
{
    EXPECT_EQ(After(VK_DOWN), CCellID(3, 2));
    EXPECT_EQ(parent.Take(), Calls{"changed 3,2"});
    EXPECT_EQ(Selected(), CCellRange(3, 2, 3, 2));
    After(VK_DOWN, true);
    EXPECT_EQ(After(VK_RIGHT, true), CCellID(4, 3));
    EXPECT_EQ(Selected(), CCellRange(3, 2, 4, 3)) << "from the anchor";
    After(VK_TAB, true);
    EXPECT_EQ(Selected(), CCellRange(4, 2, 4, 2)) << "Shift with Tab does not extend";
    EXPECT_EQ(grid.scrolls, std::vector<std::string>{}) << "all that shows";
    grid.SetListMode();
    FocusOn(4, 2);
    After(VK_UP);
    EXPECT_EQ(Selected(), CCellRange(3, 1, 3, kCols - 1));
}

TEST_F(GridKeyboard, EachKeyScrollsInItsWay)
{
    const int nLastRow = kRows - 1, nLastCol = kCols - 1;
    const int nPage = 9; // whole rows below the headings
    // A key, with Shift, with Control, where it leads, the scrolling; and from there with the next.
    const std::tuple<WORD, bool, bool, CCellID, std::vector<std::string>> cases[] = {
        {VK_NEXT, false, false, {2 + nPage, 2}, {"v3", "v8"}},
        {VK_PRIOR, false, false, {2, 2}, {"v2", "v8"}},
        {VK_PRIOR, false, false, {1, 2}, {"v2", "v8"}},
        {VK_END, false, false, {1, nLastCol}, {"h7", "h8"}},
        {VK_TAB, false, false, {2, 1}, {"v1", "v8"}},
        {VK_TAB, true, false, {1, nLastCol}, {"v0", "v8"}},
        {VK_HOME, false, false, {1, 1}, {"h6", "h8"}},
        {VK_END, false, true, {nLastRow, nLastCol}, {"v7", "h7", "h8", "v8"}},
        {VK_NEXT, false, false, {nLastRow, nLastCol}, {"v3"}},
        {VK_HOME, false, true, {1, 1}, {"v6", "h6", "h8", "v8"}},
    };
    for (const auto& [key, shift, control, to, scrolls] : cases)
    {
        EXPECT_EQ(After(key, shift, control), to);
        EXPECT_TRUE(grid.IsCellVisible(CCellID(to)));
        EXPECT_EQ(std::exchange(grid.scrolls, {}), scrolls) << "key " << key;
    }
    EXPECT_EQ(grid.GetTopleftNonFixedCell(), CCellID(1, 1));
    FocusOn(5, 2);
    grid.SendMessage(WM_VSCROLL, SB_BOTTOM);
    EXPECT_EQ(After(VK_PRIOR), CCellID(1, 2));
    EXPECT_TRUE(grid.IsCellVisible(1, 2)) << "also if the old focus was out of view";
}

TEST_F(GridKeyboard, ControlASelectsAllAndDeleteDoesNothing)
{
    FocusOn(2, 3);
    owtest::Press('A', false, true);
    EXPECT_EQ(grid.GetSelectedCount(), (kRows - 1) * (kCols - 1));
    EXPECT_EQ(parent.Take(), (Calls{"changing 2,2", "changed 2,3"}));
    owtest::Press(VK_DELETE);
    EXPECT_EQ(Text(2, 3), L"2/3");
    EXPECT_EQ(parent.Take(), Calls{});
}

TEST_F(GridKeyboard, TypingReplacesTheTextAndEnterStoresIt)
{
    owtest::Type(L"abc");
    ASSERT_TRUE(EditorOpens(2, 2));
    EXPECT_EQ(parent.Take(), Calls{"begin 2,2"});
    parent.On(LVN_ENDLABELEDITW, [&] { grid.SetModified(FALSE); });
    EndByKey(VK_RETURN);
    EXPECT_EQ(Text(2, 2), L"abc");
    EXPECT_EQ(parent.Take(), Calls{"end 2,2"});
    EXPECT_TRUE(grid.GetModified(2, 2)) << "whatever the parent did about it";
    EXPECT_FALSE(grid.GetModified(2, 3));
    EXPECT_EQ(grid.GetFocusCell(), CCellID(2, 2));

    // From an input method, too.
    EXPECT_EQ(grid.SendMessage(WM_IME_CHAR, VK_ESCAPE), 0);
    EXPECT_EQ(parent.Take(), Calls{}) << "but Escape does not";
    EXPECT_EQ(grid.SendMessage(WM_IME_CHAR, L'\x5B57'), 0);
    ASSERT_TRUE(EditorOpens(2, 2));
    owtest::Pump();
    grid.EndEditing();
    EXPECT_EQ(Text(2, 2), L"\x5B57");
    ASSERT_TRUE(EditorCloses());

    for (const UINT wanted : {DLGC_WANTTAB, 0})
    {
        grid.SetHandleTabKey(wanted != 0);
        EXPECT_EQ(grid.SendMessage(WM_GETDLGCODE), DLGC_WANTARROWS | DLGC_WANTCHARS | wanted);
    }
}

TEST_F(GridKeyboard, EscapeALossOfTheFocusAndAScrollEndAnEdit)
{
    TypeInto(2, 2, L"x");
    EndByKey(VK_ESCAPE);
    EXPECT_EQ(Text(2, 2), L"2/2");
    EXPECT_EQ(parent.Take(), Calls{"begin 2,2"}) << "nothing has changed, so nobody is asked";
    TypeInto(2, 2, L"y");
    ClickCell(4, 4);
    ASSERT_TRUE(EditorCloses());
    EXPECT_EQ(Text(2, 2), L"y");
    EXPECT_EQ(grid.GetFocusCell(), CCellID(4, 4));
    TypeInto(4, 4, L"z");
    grid.SendMessage(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_TRUE(EditorCloses());
    EXPECT_EQ(Text(4, 4), L"z");
}

TEST_F(GridKeyboard, TheKeyThatEndsAnEditMovesOnAndEditsThere)
{
    const std::pair<WORD, CCellID> moves[] = {
        {VK_TAB, {2, 3}}, {VK_DOWN, {3, 2}}, {VK_UP, {1, 2}}, {VK_PRIOR, {1, 2}}};
    for (const auto& [key, next] : moves)
    {
        TypeInto(2, 2, L"1");
        owtest::Press(key);
        ASSERT_TRUE(EditorOpens(next.row, next.col));
        EXPECT_EQ(Text(2, 2), L"1");
        const std::wstring text = Text(next.row, next.col);
        EndByKey(VK_RETURN);
        EXPECT_EQ(Text(next.row, next.col), text) << "the key that moved is no text";
    }
}

TEST_F(GridKeyboard, EnterAsTabWalksTheCellsThatCanBeEdited)
{
    owtest::Press(VK_F2);
    EXPECT_FALSE(grid.IsItemEditing(2, 2)) << "F2 edits in this mode only";
    grid.SetEnterIsTab(TRUE);
    MakeReadOnly(2, 3);
    EXPECT_EQ(After(VK_RETURN), CCellID(2, 4));
    owtest::Press(VK_F2);
    ASSERT_TRUE(EditorOpens(2, 4));
    EndByKey(VK_ESCAPE);

    FocusOn(kRows - 1, kCols - 1);
    EXPECT_EQ(After(VK_TAB), CCellID(kRows - 1, 1)) << "the last row is gone around in";
    owtest::Pump();
}

TEST_F(GridKeyboard, TheParentMayForbidAnEditAndRefuseItsText)
{
    parent.On(LVN_BEGINLABELEDITW, nullptr, -1);
    owtest::Type(L"x");
    EXPECT_EQ(parent.Take(), Calls{"begin 2,2"});
    EXPECT_FALSE(grid.IsItemEditing(2, 2));
    std::wstring seen;
    const auto look = [&] { seen = Text(2, 2); };
    parent.On(LVN_ENDLABELEDITW, look, -1);
    TypeInto(2, 2, L"x");
    EndByKey(VK_RETURN);
    EXPECT_EQ(seen, L"x") << "the parent finds the new text in the cell";
    EXPECT_EQ(Text(2, 2), L"2/2");
    EXPECT_TRUE(grid.GetModified(2, 2)) << "the mark stays";
}

TEST_F(GridKeyboard, ClearCellsAsksForEachCellThatShows)
{
    grid.SetRowHeight(3, 0);
    MakeReadOnly(2, 1);
    parent.answer = [](NMHDR& header)
    { return header.code == LVN_ENDLABELEDITW && reinterpret_cast<GridNotify&>(header).iRow == 4 ? -1 : 0; };
    grid.ClearCells(CCellRange(2, 1, 4, 2));
    EXPECT_EQ(parent.Take(), (Calls{"begin 2,2", "end 2,2", "begin 4,1", "end 4,1", "begin 4,2", "end 4,2"}));
    EXPECT_EQ(Text(2, 2), L"");
    EXPECT_EQ(Text(2, 1), L"2/1");
    EXPECT_EQ(Text(3, 2), L"3/2");
    EXPECT_EQ(Text(4, 2), L"4/2") << "refused";
}
