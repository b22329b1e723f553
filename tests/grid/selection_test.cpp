// Focus, ranges, modes, and the walk by state.

#include "GridFixture.h"

class GridSelection : public GridTest
{
};

TEST_F(GridSelection, TheFocusIsRaisedIntoTheBody)
{
    EXPECT_EQ(grid.SetFocusCell(0, 0), CCellID());
    EXPECT_EQ(grid.GetFocusCell(), CCellID(1, 1));
    EXPECT_EQ(parent.Take(), Calls{"changed 1,1"});
    EXPECT_EQ(grid.SetFocusCell(CCellID(4, 4), FALSE), CCellID(1, 1));
    EXPECT_EQ(parent.Take(), Calls{}) << "quietly on request";
    EXPECT_TRUE(grid.GetItemState(4, 4) & CELL_FOCUSED);
    EXPECT_FALSE(grid.GetItemState(1, 1) & CELL_FOCUSED);
    grid.SetFocusCell(-1, -1);
    EXPECT_EQ(parent.Take(), Calls{});
}

TEST_F(GridSelection, RangesReplaceAndTakeAway)
{
    grid.SetSelectedRange(0, 0, 3, 3);
    EXPECT_EQ(Selected(), CCellRange(1, 1, 3, 3)) << "fixed cells are never selected";
    grid.SetSelectedRange(2, 2, 3, 3, FALSE, FALSE);
    EXPECT_EQ(grid.GetSelectedCount(), 5);
    grid.SetSelectedRange(CCellRange(5, 5, 5, 5), TRUE);
    EXPECT_EQ(Selected(), CCellRange(5, 5, 5, 5));
    grid.SetSelectedRange(5, 5, kRows, 5);
    EXPECT_EQ(grid.GetSelectedCount(), 0) << "a range that leaves the grid selects nothing";
    EXPECT_EQ(Selected(), CCellRange(kRows, kCols, -1, -1));
}

TEST_F(GridSelection, OnlyWhatChangesIsRepainted)
{
    grid.UpdateWindow();
    grid.SetSelectedRange(2, 2, 2, 2);
    CRect rect;
    EXPECT_TRUE(::GetUpdateRect(grid, &rect, FALSE));
    EXPECT_EQ(rect, CRect(120, 40, 180, 60));
    grid.UpdateWindow();
    grid.SetSelectedRange(2, 2, 2, 3, TRUE);
    EXPECT_FALSE(::GetUpdateRect(grid, nullptr, FALSE)) << "by force it is painted at once";
}

TEST_F(GridSelection, SwitchingSelectionOffDropsIt)
{
    grid.SetFocusCell(2, 2);
    grid.SetSelectedRange(2, 2, 4, 4);
    grid.EnableSelection(FALSE);
    EXPECT_EQ(grid.GetSelectedCount(), 0);
    EXPECT_EQ(grid.GetFocusCell(), CCellID());
    grid.SetSelectedRange(2, 2, 4, 4);
    EXPECT_EQ(grid.GetSelectedCount(), 0);
    grid.SetItemState(2, 2, CELL_SELECTED);
    EXPECT_FALSE(grid.IsCellSelected(2, 2));
    EXPECT_EQ(grid.GetSelectedCount(), 1) << "the books take it all the same";
}

TEST_F(GridSelection, ListModeSwitchesHeadersOff)
{
    grid.SetListMode(FALSE);
    EXPECT_FALSE(grid.GetFixedRowSelection()) << "whatever the argument";
}

TEST_F(GridSelection, WalksByState)
{
    const auto next = [&](int r, int c, int flags)
    {
        CCellID cell(r, c);
        return grid.GetNextItem(cell, flags);
    };
    grid.SetSelectedRange(3, 3, 3, 4);
    grid.SetItemState(6, 2, grid.GetItemState(6, 2) | CELL_SELECTED);
    EXPECT_EQ(next(-1, -1, GVNI_SELECTED | GVNI_ALL), CCellID(3, 3));
    EXPECT_EQ(next(3, 3, GVNI_SELECTED | GVNI_ALL), CCellID(3, 4));
    EXPECT_EQ(next(3, 4, GVNI_SELECTED | GVNI_ALL), CCellID(6, 2));
    EXPECT_EQ(next(3, 4, GVNI_SELECTED | GVNI_AREA), CCellID()) << "only right of the start column";
    EXPECT_EQ(next(6, 3, GVNI_SELECTED | GVNI_ABOVE), CCellID(3, 3));
    EXPECT_EQ(next(1, 2, GVNI_SELECTED | GVNI_BELOW), CCellID(6, 2));
    EXPECT_EQ(next(3, 6, GVNI_SELECTED | GVNI_TOLEFT), CCellID(3, 4));
    EXPECT_EQ(next(3, 1, GVNI_SELECTED | GVNI_TORIGHT), CCellID(3, 3));
    EXPECT_EQ(next(3, 1, GVNI_TORIGHT), CCellID()) << "no state asked for";
    grid.SetItemText(8, 4, L"x");
    EXPECT_EQ(next(-1, -1, GVNI_MODIFIED | GVNI_ALL), CCellID(8, 4));
    EXPECT_EQ(next(INT_MAX, 2, GVNI_SELECTED | GVNI_ABOVE), CCellID(6, 2));
    EXPECT_EQ(next(INT_MAX, INT_MAX, GVNI_SELECTED | GVNI_ALL), CCellID());
}
