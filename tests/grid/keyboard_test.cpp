// Keys, edits from the first key to the last, focus and selection.

#include "GridFixture.h"

class GridKeyboard : public GridTest
{
protected:
    void SetUp() override
    {
        GridTest::SetUp();
        ClickCell(2, 2);
        Seen();
    }
    /// What a key does with Shift, 's', or Control, 'c'.
    std::string After(WORD key, std::string_view with = "")
    {
        owtest::Press(key, with == "s", with == "c");
        return Seen();
    }
    void FocusOn(int nRow, int nCol)
    {
        grid.SetFocusCell(nRow, nCol);
        Seen();
    }
    void TypeInto(int nRow, int nCol, const wchar_t* text)
    {
        FocusOn(nRow, nCol);
        owtest::Type(text);
        ASSERT_TRUE(EditorOpens(nRow, nCol));
    }
};

TEST_F(GridKeyboard, EachKeyMovesSelectsTellsAndScrollsInItsWay)
{
    const std::tuple<WORD, const char*, const char*> story[] = {
        {VK_DOWN, "", "3,2 [3,2-3,2]=1 changed 3,2"},
        {VK_DOWN, "s", "4,2 [3,2-4,2]=2 changed 4,2"},
        {VK_RIGHT, "s", "4,3 [3,2-4,3]=4 changed 4,3"},
        {VK_TAB, "s", "4,2 [4,2-4,2]=1 changed 4,2"}, // does not extend
        {VK_NEXT, "", "13,2 [13,2-13,2]=1 changed 13,2 v3 v8"},
        {VK_PRIOR, "", "4,2 [4,2-4,2]=1 changed 4,2 v2 v8"},
        {VK_PRIOR, "", "1,2 [1,2-1,2]=1 changed 1,2 v2 v8"},
        {VK_END, "", "1,6 [1,6-1,6]=1 changed 1,6 h7 h8"},
        {VK_TAB, "", "2,1 [2,1-2,1]=1 changed 2,1 v1 v8"},
        {VK_TAB, "s", "1,6 [1,6-1,6]=1 changed 1,6 v0 v8"},
        {VK_HOME, "", "1,1 [1,1-1,1]=1 changed 1,1 h6 h8"},
        {VK_END, "c", "20,6 [20,6-20,6]=1 changed 20,6 v7 h7 h8 v8"},
        {VK_NEXT, "", "20,6 [20,6-20,6]=1 v3"},
        {VK_HOME, "c", "1,1 [1,1-1,1]=1 changed 1,1 v6 h6 h8 v8"},
        {'A', "c", "1,1 [1,1-20,6]=120 changing 2,2 changed 1,1"},
        {VK_DELETE, "", "1,1 [1,1-20,6]=120"}};
    for (const auto& [key, with, seen] : story)
    {
        EXPECT_EQ(After(key, with), seen) << "key " << key;
        EXPECT_TRUE(grid.IsCellVisible(CCellID(grid.GetFocusCell())));
    }
    EXPECT_EQ(Text(1, 1), L"1/1") << "Delete clears nothing";
    EXPECT_EQ(grid.GetTopleftNonFixedCell(), CCellID(1, 1));
    for (const int hidden : {1, kRows - 1})
        grid.SetRowHeight(hidden, 0);
    for (const int hidden : {1, kCols - 1})
        grid.SetColumnWidth(hidden, 0, TRUE);
    EXPECT_TRUE(After(VK_END, "c").starts_with("19,5 [19,5-19,5]=1")) << "the last one that shows";
    EXPECT_TRUE(After(VK_HOME, "c").starts_with("2,2 [2,2-2,2]=1"));
    SetSizes(grid);
    FocusOn(8, 2);
    EXPECT_EQ(After(VK_DOWN), "9,2 [9,2-9,2]=1 changed 9,2 v1") << "it was cut off";
    grid.SetListMode();
    FocusOn(5, 2);
    grid.SendMessage(WM_VSCROLL, SB_BOTTOM);
    EXPECT_EQ(After(VK_PRIOR), "1,2 [1,1-1,6]=6 changed 1,2 v7 v2 v0 v0 v0 v0 v8");
    EXPECT_TRUE(grid.IsCellVisible(1, 2)) << "also if the old focus was out of view";
}

TEST_F(GridKeyboard, AnEditFromItsFirstKeyToItsLast)
{
    parent.On(LVN_BEGINLABELEDITW, nullptr, -1);
    EXPECT_EQ(After('X'), "2,2 [2,2-2,2]=1 begin 2,2") << "forbidden";
    EXPECT_FALSE(grid.IsItemEditing(2, 2));
    std::wstring seen;
    parent.On(LVN_ENDLABELEDITW, [&] { seen = Text(2, 2), grid.SetModified(FALSE); });
    TypeInto(2, 2, L"abc");
    EndByKey(VK_RETURN);
    EXPECT_EQ(seen, L"abc") << "the parent finds the new text in the cell";
    EXPECT_EQ(Seen(), "2,2 [2,2-2,2]=1 begin 2,2 end 2,2");
    EXPECT_TRUE(grid.GetModified(2, 2)) << "whatever the parent did about it";
    TypeInto(2, 2, L"x");
    EndByKey(VK_ESCAPE);
    EXPECT_EQ(Seen(), "2,2 [2,2-2,2]=1 begin 2,2") << "nothing has changed, so nobody is asked";
    TypeInto(2, 2, L"z");
    grid.SendMessage(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_TRUE(EditorCloses());
    EXPECT_EQ(Text(2, 2), L"z");

    Seen(); // from an input method, too
    EXPECT_EQ(grid.SendMessage(WM_IME_CHAR, VK_ESCAPE), 0);
    EXPECT_EQ(parent.Take(), Calls{}) << "but Escape does not";
    EXPECT_EQ(grid.SendMessage(WM_IME_CHAR, L'\x5B57'), 0);
    ASSERT_TRUE(EditorOpens(2, 2));
    owtest::Pump();
    grid.EndEditing();
    EXPECT_EQ(Text(2, 2), L"\x5B57");
    for (const UINT wanted : {DLGC_WANTTAB, 0})
    {
        grid.SetHandleTabKey(wanted != 0);
        EXPECT_EQ(grid.SendMessage(WM_GETDLGCODE), DLGC_WANTARROWS | DLGC_WANTCHARS | wanted);
    }
}

TEST_F(GridKeyboard, TheKeyThatEndsAnEditMovesOnAndEditsThere)
{
    for (const auto& [key, next] : {std::pair(WORD(VK_TAB), CCellID(2, 3)), {VK_PRIOR, {1, 2}}})
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
    owtest::Press(VK_F2);
    ASSERT_TRUE(EditorOpens(2, 2));
    EndByKey(VK_ESCAPE);
    MakeReadOnly(2, 3);
    Seen();
    EXPECT_EQ(After(VK_RETURN), "2,4 [2,4-2,4]=1 changed 2,4 begin 2,4 h1");
    EndByKey(VK_ESCAPE);
    FocusOn(kRows - 1, kCols - 1);
    EXPECT_TRUE(After(VK_TAB).starts_with("20,1 [20,1-20,1]=1 changed 20,1")) << "around in the last row";
}

TEST_F(GridKeyboard, ClearCellsAsksForEachCellThatShows)
{
    grid.SetRowHeight(3, 0);
    MakeReadOnly(2, 1);
    grid.SetCellType(4, 1, RUNTIME_CLASS(CLimitedIntCell)); // takes no empty text: nobody is asked
    parent.answer = [](NMHDR& header)
    { return header.code == LVN_ENDLABELEDITW && reinterpret_cast<GridNotify&>(header).iRow == 4 ? -1 : 0; };
    grid.ClearCells(CCellRange(2, 1, 4, 2));
    EXPECT_EQ(parent.Take(), (Calls{"begin 2,2", "end 2,2", "begin 4,1", "begin 4,2", "end 4,2"}));
    EXPECT_EQ(Text(2, 1) + Text(2, 2) + Text(3, 2) + Text(4, 2), L"2/13/24/2") << "the last one refused";
}

TEST_F(GridTest, OnlyWhatChangesIsRepaintedAndItCanBeSwitchedOff)
{
    EXPECT_EQ(Repainted([&] { grid.SetSelectedRange(2, 2, 2, 2); }), CRect(120, 40, 180, 60));
    EXPECT_EQ(Repainted([&] { grid.SetSelectedRange(2, 2, 2, 3, TRUE); }), CRect()) << "by force at once";
    EXPECT_EQ(Repainted([&] { EXPECT_TRUE(grid.InvalidateCellRect(CCellRange(3, 1, 4, 2))); }),
              CRect(60, 60, 180, 100));
    EXPECT_EQ(Repainted([&] { EXPECT_TRUE(grid.InvalidateCellRect(CCellID(3, 1))); }),
              CRect(60, 60, 120, 80));

    grid.SetFocusCell(2, 2);
    EXPECT_EQ(Seen(), "2,2 [2,2-2,3]=2 changed 2,2");
    grid.EnableSelection(FALSE);
    EXPECT_EQ(Seen(), "-1,-1");
    grid.SetSelectedRange(2, 2, 4, 4);
    EXPECT_EQ(Seen(), "-1,-1");
    grid.SetItemState(2, 2, CELL_SELECTED);
    EXPECT_FALSE(grid.IsCellSelected(2, 2));
    EXPECT_EQ(grid.GetSelectedCount(), 1) << "the books take it all the same";
}

TEST_F(GridTest, AChangeOfTheFocusIsToldAndShowsInTheHeadersAtOnce)
{
    for (int nItem = 0; nItem < 5; ++nItem)
    {
        grid.SetCellType(0, nItem, RUNTIME_CLASS(NotedCell));
        grid.SetCellType(nItem, 0, RUNTIME_CLASS(NotedCell));
    }
    grid.SetFocusCell(0, 0);
    EXPECT_EQ(parent.Take(), Calls{"changed 1,1"}) << "raised into the body";
    grid.SetFocusCell(2, 2);
    parent.Take();
    NotedCell::notesDraws = true;
    grid.SetFocusCell(2, 4);
    EXPECT_EQ(parent.Take(), (Calls{"draw 0,2", "draw 0,4", "changed 2,4"}));
    grid.SetFocusCell(CCellID(3, 4), FALSE);
    EXPECT_EQ(parent.Take(), (Calls{"draw 2,0", "draw 3,0"})) << "quietly";
    grid.SetTrackFocusCell(FALSE);
    grid.SetFocusCell(4, 2);
    NotedCell::notesDraws = false;
    grid.SetFocusCell(-1, -1);
    EXPECT_EQ(parent.Take(), Calls{"changed 4,2"});
}
