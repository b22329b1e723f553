// Where keys and searches lead, without a window.

#include "grid/GridKeyWalk.h"
#include "grid/GridStateWalk.h"

#include "GridWindow.h"

/// 6 rows and 5 columns, the first of each fixed.
class GridWalk : public ::testing::Test
{
protected:
    GridWalk()
    {
        rows.SetCount(6, kRowHeight);
        cols.SetCount(5, kColWidth);
        rows.SetFixed(1);
        cols.SetFixed(1);
    }
    CGridAxis rows, cols;
};

// The arrows and Tab on are the model's (GridModel.h).
TEST_F(GridWalk, TabGoesBackAndWithATestAroundInItsRow)
{
    const CGridKeyWalk plain(rows, cols);
    EXPECT_EQ(plain.Tab(CCellID(3, 1), -1), CCellID(2, 4));
    EXPECT_EQ(plain.Tab(CCellID(3, 2), -1), CCellID(3, 1));
    EXPECT_EQ(plain.Tab(CCellID(1, 1), -1), CCellID(1, 1));
    std::vector<CCellID> stops{CCellID(2, 2), CCellID(2, 4), CCellID(5, 1), CCellID(1, 3)};
    const CGridKeyWalk walk(rows, cols,
                            [&](const CCellID& cell)
                            { return std::find(stops.begin(), stops.end(), cell) != stops.end(); });
    EXPECT_EQ(walk.Sideways(CCellID(2, 2), 1), CCellID(2, 4));
    EXPECT_EQ(walk.Sideways(CCellID(2, 4), 1), CCellID(2, 2));
    EXPECT_EQ(walk.Sideways(CCellID(2, 2), -1), CCellID(2, 4));
    EXPECT_EQ(walk.Sideways(CCellID(3, 2), 1), CCellID(3, 2)) << "no stop at all";
    EXPECT_EQ(walk.Tab(CCellID(5, 4), 1), CCellID(5, 1)) << "from the last cell in its row";
    EXPECT_EQ(walk.Tab(CCellID(1, 1), -1), CCellID(1, 3));
    stops = {CCellID(3, 0)};
    EXPECT_EQ(walk.Sideways(CCellID(3, 2), 1), CCellID(3, 0)) << "from the very first column";
    EXPECT_EQ(walk.Sideways(CCellID(3, 2), -1), CCellID(3, 2));
}

TEST_F(GridWalk, PagesAndEndsWhereNoneShows)
{
    const CGridKeyWalk walk(rows, cols);
    for (const auto& [nRow, nStep, nMoved, nTo] :
         {std::tuple(2, 1, 2, 4), std::tuple(2, 1, 9, 5), std::tuple(4, -1, -2, 2), std::tuple(4, -1, -9, 1),
          // where the view cannot move, to the end
          std::tuple(2, 1, 0, 5), std::tuple(4, -1, 0, 1)})
        EXPECT_EQ(walk.ByPage(CCellID(nRow, 3), nStep, nMoved), CCellID(nTo, 3)) << nMoved;

    for (const int hidden : {1, 2, 3, 4, 5})
        rows.SetSize(hidden, 0);
    for (const int hidden : {1, 2, 3, 4})
        cols.SetSize(hidden, 0);
    EXPECT_EQ(walk.ToStart(CCellID(4, 3), true), CCellID(5, 4)) << "none shows";
    EXPECT_EQ(walk.ToEnd(CCellID(4, 3), true), CCellID(2, 2)) << "behind the second of the body";
    rows.SetCount(2, 0);
    cols.SetCount(2, 0);
    EXPECT_EQ(walk.ToEnd(CCellID(1, 1), true), CCellID(1, 1));
}

TEST_F(GridWalk, ByState)
{
    const auto stateOf = [&](int nRow, int nCol) -> UINT
    {
        const CCellID cell(nRow, nCol);
        if (cell == CCellID(5, 3))
            return CELL_MODIFIED | CELL_FOCUSED;
        const bool selected = cell == CCellID(2, 2) || cell == CCellID(2, 3) || cell == CCellID(4, 1) ||
                              cell == CCellID(0, 1) || cell == CCellID(3, 0);
        return selected ? CELL_SELECTED | CELL_READONLY : 0;
    };
    const std::tuple<CCellID, int, CCellID> cases[] = {
        {{-1, -1}, GVNI_SELECTED | GVNI_ALL, {2, 2}},
        {{2, 2}, GVNI_SELECTED | GVNI_ALL, {2, 3}},
        {{2, 3}, GVNI_SELECTED | GVNI_ALL, {4, 1}},
        {{2, 3}, GVNI_SELECTED | GVNI_AREA, {}},
        {{1, 0}, GVNI_READONLY | GVNI_AREA, {2, 2}},
        {{4, 3}, GVNI_SELECTED | GVNI_ABOVE, {2, 3}},
        {{4, 1}, GVNI_SELECTED | GVNI_ABOVE, {}},
        {{0, 1}, GVNI_SELECTED | GVNI_BELOW, {4, 1}},
        {{4, 1}, GVNI_SELECTED | GVNI_BELOW, {}},
        {{2, 4}, GVNI_SELECTED | GVNI_TOLEFT, {2, 3}},
        {{3, 4}, GVNI_SELECTED | GVNI_TOLEFT, {}},
        {{2, 0}, GVNI_SELECTED | GVNI_TORIGHT, {2, 2}},
        {{2, 3}, GVNI_SELECTED | GVNI_TORIGHT, {}},
        {{-1, 1}, GVNI_SELECTED | GVNI_BELOW, {0, 1}},
        {{3, -1}, GVNI_SELECTED | GVNI_TORIGHT, {3, 0}},
        {{2, 0}, GVNI_TORIGHT, {}},
        {{2, 0}, GVNI_SELECTED, {}},
        {{-1, -1}, GVNI_MODIFIED | GVNI_ALL, {5, 3}},
        {{0, 3}, GVNI_FOCUSED | GVNI_BELOW, {5, 3}},
        {{INT_MAX, 1}, GVNI_SELECTED | GVNI_ABOVE, {4, 1}},
        {{INT_MAX, INT_MAX}, GVNI_SELECTED | GVNI_ALL, {}},
        {{4, 3}, GVNI_SELECTED | GVNI_ABOVE | GVNI_TOLEFT, {2, 3}}};
    for (const auto& [from, nFlags, found] : cases)
        EXPECT_EQ(gfnNextCell(rows, cols, from, nFlags, stateOf), found)
            << from.row << ',' << from.col << " by " << nFlags;
    cols.SetFixed(0);
    EXPECT_EQ(gfnNextCell(rows, cols, CCellID(3, 0), GVNI_SELECTED | GVNI_ALL, stateOf), CCellID(4, 1))
        << "behind the first column of the body";
}
