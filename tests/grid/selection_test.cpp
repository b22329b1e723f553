// Focus, ranges and the books of what is selected.

#include "GridFixture.h"

using GridSelection = GridTest;

TEST_F(GridSelection, OnlyWhatChangesIsRepaintedAndItCanBeSwitchedOff)
{
    EXPECT_EQ(Repainted([&] { grid.SetSelectedRange(2, 2, 2, 2); }), CRect(120, 40, 180, 60));
    EXPECT_EQ(Repainted([&] { grid.SetSelectedRange(2, 2, 2, 3, TRUE); }), CRect()) << "by force at once";
    EXPECT_EQ(Repainted([&] { grid.InvalidateCellRect(CCellRange(3, 1, 4, 2)); }), CRect(60, 60, 180, 100));
    EXPECT_EQ(Repainted([&] { grid.InvalidateCellRect(CCellID(3, 1)); }), CRect(60, 60, 120, 80));
    CCellID none;
    EXPECT_EQ(grid.GetNextItem(none, GVNI_SELECTED | GVNI_ALL), CCellID(2, 2));

    // Switching selection off drops it.
    grid.SetFocusCell(2, 2);
    grid.SetSelectedRange(2, 2, 4, 4);
    EXPECT_EQ(Seen(), "2,2 [2,2-4,4]=9 changed 2,2");
    grid.EnableSelection(FALSE);
    EXPECT_EQ(Seen(), "-1,-1");
    grid.SetSelectedRange(2, 2, 4, 4);
    EXPECT_EQ(Seen(), "-1,-1");
    grid.SetItemState(2, 2, CELL_SELECTED);
    EXPECT_FALSE(grid.IsCellSelected(2, 2));
    EXPECT_EQ(grid.GetSelectedCount(), 1) << "the books take it all the same";
}

TEST_F(GridSelection, AChangeOfTheFocusIsToldAndShowsInTheHeadersAtOnce)
{
    for (int nItem = 0; nItem < 5; ++nItem)
    {
        grid.SetCellType(0, nItem, RUNTIME_CLASS(NotedCell));
        grid.SetCellType(nItem, 0, RUNTIME_CLASS(NotedCell));
    }
    grid.SetFocusCell(0, 0);
    EXPECT_EQ(parent.Take(), Calls{"changed 1,1"}) << "raised into the body";
    grid.SetFocusCell(2, 2);
    NotedCell::notesDraws = true;
    grid.SetFocusCell(2, 4);
    EXPECT_EQ(NotedCell::Take(), (Calls{"draw 0,2", "draw 0,4"}));
    parent.Take();
    grid.SetFocusCell(CCellID(3, 4), FALSE);
    EXPECT_EQ(NotedCell::Take(), (Calls{"draw 2,0", "draw 3,0"}));
    EXPECT_EQ(parent.Take(), Calls{}) << "quietly";
    grid.SetTrackFocusCell(FALSE);
    grid.SetFocusCell(4, 2);
    EXPECT_EQ(NotedCell::Take(), Calls{});
    parent.Take();
    NotedCell::notesDraws = false;
    grid.SetFocusCell(-1, -1);
    EXPECT_EQ(parent.Take(), Calls{});
}

TEST_F(GridSelection, AVirtualCellIsAskedForWithFocusAndSelection)
{
    grid.SetVirtualMode(TRUE);
    grid.SetColumnCount(4);
    grid.SetRowCount(9);
    grid.SetFocusCell(2, 2);
    grid.SetItemState(3, 2, CELL_SELECTED);
    for (int nRow = 1; nRow < 5; ++nRow)
        EXPECT_EQ(grid.GetItemState(nRow, 2), nRow == 2 ? CELL_FOCUSED : nRow == 3 ? CELL_SELECTED : 0u);
}

TEST(GridSelectionMap, KeepsTrueAddressesUnderSharedKeys)
{
    CGridSelectionMap map;
    EXPECT_EQ(map.Around(9, 8), CCellRange(9, 8, -1, -1));
    for (int nRow = 0; nRow < 200; ++nRow)
        map.Add(nRow, 1 + nRow % 3);
    map.Add(7, 2);
    EXPECT_EQ(map.Around(9, 8), CCellRange(0, 1, 199, 3));
    EXPECT_TRUE(map.Has(65536 + 7, 2) && !map.Has(7, 1) && !map.Has(7, 65536));
    map.Add(65536 + 7, 2);
    EXPECT_EQ(map.Count(), 200);
    map.Remove(9, 9);
    for (int nRow = 0; nRow < 199; ++nRow)
        map.Remove(nRow, 1 + nRow % 3);
    EXPECT_EQ(map.Cells(), std::vector<CCellID>{CCellID(199, 2)});
    map.RemoveAll();
    EXPECT_TRUE(map.IsEmpty() && map.Cells().empty());
}
