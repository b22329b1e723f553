// Where keys and searches lead, without a window.

#include "grid/GridKeyWalk.h"
#include "grid/GridStateWalk.h"

#include "GridWindow.h"

#include <gtest/gtest.h>

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
    CGridKeyWalk Walk() const { return CGridKeyWalk(rows, cols); }

    CGridAxis rows, cols;
};

TEST_F(GridWalk, ArrowsPassHiddenOnesAndStopAtTheEnds)
{
    cols.SetSize(3, 0);
    rows.SetSize(2, 0);
    const CGridKeyWalk walk = Walk();
    EXPECT_EQ(walk.Vertically(CCellID(1, 2), 1), CCellID(3, 2));
    EXPECT_EQ(walk.Vertically(CCellID(3, 2), -1), CCellID(1, 2));
    EXPECT_EQ(walk.Vertically(CCellID(1, 2), -1), CCellID(1, 2)) << "not into the headings";
    EXPECT_EQ(walk.Vertically(CCellID(5, 2), 1), CCellID(5, 2));
    EXPECT_EQ(walk.Sideways(CCellID(1, 2), 1), CCellID(1, 4));
    EXPECT_EQ(walk.Sideways(CCellID(1, 4), -1), CCellID(1, 2));
    EXPECT_EQ(walk.Sideways(CCellID(1, 4), 1), CCellID(1, 4));
    EXPECT_EQ(walk.Sideways(CCellID(1, 1), -1), CCellID(1, 1));
    rows.SetSize(5, 0);
    EXPECT_EQ(Walk().Vertically(CCellID(4, 2), 1), CCellID(4, 2)) << "nothing shows below";
}

TEST_F(GridWalk, TabGoesOnInTheNextRowAndBack)
{
    const CGridKeyWalk walk = Walk();
    EXPECT_EQ(walk.Tab(CCellID(2, 3), 1), CCellID(2, 4));
    EXPECT_FALSE(walk.TabWraps(CCellID(2, 3), 1) || walk.TabWraps(CCellID(2, 2), -1));
    EXPECT_EQ(walk.Tab(CCellID(2, 4), 1), CCellID(3, 1));
    EXPECT_EQ(walk.Tab(CCellID(3, 1), -1), CCellID(2, 4));
    EXPECT_TRUE(walk.TabWraps(CCellID(2, 4), 1) && walk.TabWraps(CCellID(3, 1), -1));
    EXPECT_EQ(walk.Tab(CCellID(5, 4), 1), CCellID(5, 4));
    EXPECT_EQ(walk.Tab(CCellID(1, 1), -1), CCellID(1, 1));
    EXPECT_FALSE(walk.TabWraps(CCellID(5, 4), 1) || walk.TabWraps(CCellID(1, 1), -1));
}

TEST_F(GridWalk, WithATestTheRowIsGoneAround)
{
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

TEST_F(GridWalk, PagesHomeAndEnd)
{
    const CGridKeyWalk walk = Walk();
    EXPECT_EQ(walk.ByPage(CCellID(2, 3), 1, 2), CCellID(4, 3));
    EXPECT_EQ(walk.ByPage(CCellID(2, 3), 1, 9), CCellID(5, 3));
    EXPECT_EQ(walk.ByPage(CCellID(2, 3), 1, 0), CCellID(5, 3)) << "where the view cannot move, the last row";
    EXPECT_EQ(walk.ByPage(CCellID(4, 3), -1, -2), CCellID(2, 3));
    EXPECT_EQ(walk.ByPage(CCellID(4, 3), -1, -9), CCellID(1, 3));
    EXPECT_EQ(walk.ByPage(CCellID(4, 3), -1, 0), CCellID(1, 3));

    EXPECT_EQ(walk.ToStart(CCellID(4, 3), false), CCellID(4, 1));
    EXPECT_EQ(walk.ToStart(CCellID(4, 3), true), CCellID(1, 1));
    EXPECT_EQ(walk.ToEnd(CCellID(2, 2), false), CCellID(2, 4));
    EXPECT_EQ(walk.ToEnd(CCellID(2, 2), true), CCellID(5, 4));
    cols.SetSize(1, 0);
    rows.SetSize(1, 0);
    EXPECT_EQ(Walk().ToStart(CCellID(4, 3), true), CCellID(2, 2));
    for (int nItem = 2; nItem < 6; ++nItem)
    {
        rows.SetSize(nItem, 0);
        if (nItem < 5)
            cols.SetSize(nItem, 0);
    }
    EXPECT_EQ(Walk().ToStart(CCellID(4, 3), true), CCellID(5, 4)) << "none shows";
    EXPECT_EQ(Walk().ToEnd(CCellID(4, 3), true), CCellID(2, 2)) << "behind the second of the body";
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
    struct Case
    {
        CCellID from;
        int nFlags;
        CCellID found;
    };
    for (const Case& c : {Case{{-1, -1}, GVNI_SELECTED | GVNI_ALL, {2, 2}},
                          Case{{2, 2}, GVNI_SELECTED | GVNI_ALL, {2, 3}},
                          Case{{2, 3}, GVNI_SELECTED | GVNI_ALL, {4, 1}},
                          Case{{2, 3}, GVNI_SELECTED | GVNI_AREA, {}},
                          Case{{1, 0}, GVNI_READONLY | GVNI_AREA, {2, 2}},
                          Case{{4, 3}, GVNI_SELECTED | GVNI_ABOVE, {2, 3}},
                          Case{{4, 1}, GVNI_SELECTED | GVNI_ABOVE, {}},
                          Case{{0, 1}, GVNI_SELECTED | GVNI_BELOW, {4, 1}},
                          Case{{4, 1}, GVNI_SELECTED | GVNI_BELOW, {}},
                          Case{{2, 4}, GVNI_SELECTED | GVNI_TOLEFT, {2, 3}},
                          Case{{3, 4}, GVNI_SELECTED | GVNI_TOLEFT, {}},
                          Case{{2, 0}, GVNI_SELECTED | GVNI_TORIGHT, {2, 2}},
                          Case{{2, 3}, GVNI_SELECTED | GVNI_TORIGHT, {}},
                          Case{{2, 0}, GVNI_TORIGHT, {}},
                          Case{{2, 0}, GVNI_SELECTED, {}},
                          Case{{-1, -1}, GVNI_MODIFIED | GVNI_ALL, {5, 3}},
                          Case{{0, 3}, GVNI_FOCUSED | GVNI_BELOW, {5, 3}},
                          Case{{INT_MAX, 1}, GVNI_SELECTED | GVNI_ABOVE, {4, 1}},
                          Case{{INT_MAX, INT_MAX}, GVNI_SELECTED | GVNI_ALL, {}},
                          Case{{4, 3}, GVNI_SELECTED | GVNI_ABOVE | GVNI_TOLEFT, {2, 3}}})
        EXPECT_EQ(gfnNextCell(rows, cols, c.from, c.nFlags, stateOf), c.found)
            << c.from.row << ',' << c.from.col << " by " << c.nFlags;
    cols.SetFixed(0);
    EXPECT_EQ(gfnNextCell(rows, cols, CCellID(3, 0), GVNI_SELECTED | GVNI_ALL, stateOf), CCellID(4, 1))
        << "behind the first column of the body";
}
