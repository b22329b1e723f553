// Where cells stand, what shows, and what the bars and dividers make of it: without a window.

#include "grid/GridDivider.h"
#include "grid/GridScrollBars.h"
#include "grid/GridView.h"

#include "GridWindow.h"

#include <gtest/gtest.h>

/// 21 rows of 20 and 7 columns of 60 pixels, the first of each fixed, seen through 300 by 200 pixels.
class GridView : public ::testing::Test
{
protected:
    GridView()
    {
        rows.SetCount(kRows, kRowHeight);
        cols.SetCount(kCols, kColWidth);
        rows.SetFixed(1);
        cols.SetFixed(1);
    }
    CGridView View() const { return CGridView(rows, cols, topLeft, CSize(300, 200)); }
    CGridDividers Dividers(EGridWay way) const { return CGridDividers(way, View(), 3); }

    CGridAxis rows, cols;
    CCellID topLeft{1, 1};
};

TEST_F(GridView, PlacesHoldTheLastPixel)
{
    CRect rect;
    ASSERT_TRUE(View().CellRect(CCellID(2, 3), rect));
    EXPECT_EQ(rect, CRect(180, 40, 239, 59));
    EXPECT_EQ(View().CellAt(CPoint(239, 59)), CCellID(2, 3));
    EXPECT_EQ(View().CellAt(CPoint(240, 60)), CCellID(3, 4));
    ASSERT_TRUE(View().RangeRect(CCellRange(1, 1, 2, 2), rect));
    EXPECT_EQ(rect, CRect(60, 20, 179, 59));
    EXPECT_EQ(View().FromOrigin(CCellID(2, 2), CPoint(125, 43)), CPoint(5, 3));
    cols.SetSize(3, 0);
    ASSERT_TRUE(View().CellRect(CCellID(2, 3), rect));
    EXPECT_EQ(rect.right, rect.left - 1) << "hidden";
}

TEST_F(GridView, PointsOutsideGiveNoCellInTheirDirection)
{
    EXPECT_EQ(View().CellAt(CPoint(-1, 45)), CCellID(2, -1));
    EXPECT_EQ(View().CellAt(CPoint(5000, 45)), CCellID(2, -1));
    EXPECT_EQ(View().CellAt(CPoint(30, 45), false), CCellID(2, -1)) << "fixed cells are not asked for";
    EXPECT_EQ(View().CellAt(CPoint(30, 5)), CCellID(0, 0));
}

TEST_F(GridView, ACellScrolledAwayHasNoPlaceAndOneFarBelowHas)
{
    topLeft = CCellID(4, 2);
    const CGridView view = View();
    EXPECT_EQ(view.Visible(), CCellRange(4, 2, 12, 5));
    EXPECT_EQ(view.VisibleWhole(), CCellRange(4, 2, 12, 5));
    CPoint origin(-7, -7);
    for (const CCellID cell : {CCellID(3, 2), CCellID(3, 0), CCellID(4, 1), CCellID(0, 1), CCellID(kRows, 2),
                               CCellID(4, kCols), CCellID(-1, 2), CCellID(4, -1)})
    {
        EXPECT_FALSE(view.Origin(cell, origin)) << cell.row << ',' << cell.col;
        EXPECT_EQ(view.FromOrigin(cell, CPoint(90, 90)), CPoint(0, 0));
    }
    EXPECT_TRUE(view.Origin(CCellID(0, 2), origin));
    EXPECT_EQ(origin, CPoint(60, 0));
    EXPECT_TRUE(view.Origin(CCellID(20, 0), origin));
    EXPECT_EQ(origin, CPoint(0, 20 + 16 * 20));
    EXPECT_FALSE(view.Shows(CCellID(20, 2)));
    EXPECT_TRUE(view.Shows(CCellID(12, 5)) && view.Shows(CCellID(0, 0)));
    EXPECT_FALSE(view.Shows(CCellID(13, 5)) || view.Shows(CCellID(12, 6)) || view.Shows(CCellID(3, 3)));
}

TEST_F(GridView, VisibleCountsPartsAndWholeDoesNot)
{
    CRect covered;
    EXPECT_EQ(View().Visible(&covered), CCellRange(1, 1, 9, 4));
    EXPECT_EQ(covered, CRect(0, 0, 300, 200));
    EXPECT_EQ(View().VisibleWhole(), CCellRange(1, 1, 9, 4)) << "all end on the edge";
    rows.SetSize(3, 21);
    cols.SetSize(2, 61);
    EXPECT_EQ(View().Visible(), CCellRange(1, 1, 9, 4));
    EXPECT_EQ(View().VisibleWhole(), CCellRange(1, 1, 8, 3));
    rows.SetCount(3, 0);
    View().Visible(&covered);
    EXPECT_EQ(covered.BottomRight(), CPoint(300, 60));
    EXPECT_EQ(View().ScrollingPart(EGridWay::eColumns), CRect(60, 0, 300, 200));
    EXPECT_EQ(View().ScrollingPart(EGridWay::eRows), CRect(0, 20, 300, 200));
}

// ---- Dividers ---------------------------------------------------------------------------------------------

TEST_F(GridView, DividersAreAliveOverTheHeadersOnly)
{
    const CGridDividers between = Dividers(EGridWay::eColumns), below = Dividers(EGridWay::eRows);
    for (const int at : {117, 118, 120, 122})
        EXPECT_EQ(between.IsAt(CPoint(at, 19)), at != 117) << at;
    EXPECT_FALSE(between.IsAt(CPoint(120, 20))) << "in the body";
    EXPECT_FALSE(between.IsAt(CPoint(123, 5)));
    EXPECT_FALSE(between.IsAt(CPoint(1, 5))) << "nothing is before the first";
    EXPECT_TRUE(below.IsAt(CPoint(59, 38)) && below.IsAt(CPoint(59, 42)));
    EXPECT_FALSE(below.IsAt(CPoint(60, 38)) || below.IsAt(CPoint(59, 37)) || below.IsAt(CPoint(59, 1)));
    cols.SetCount(4, 0);
    EXPECT_FALSE(Dividers(EGridWay::eColumns).IsAt(CPoint(250, 5))) << "behind the last";
}

TEST_F(GridView, APressTakesTheItemBeforeTheDivider)
{
    struct Case
    {
        EGridWay way;
        CPoint point;
        CCellID pressed, taken;
        CRect held;
    };
    for (const Case& c : {Case{EGridWay::eColumns, {119, 5}, {0, 1}, {0, 1}, {61, 0, 301, 200}},
                          Case{EGridWay::eColumns, {122, 5}, {0, 2}, {0, 1}, {61, 0, 301, 200}},
                          Case{EGridWay::eColumns, {123, 5}, {0, 2}, {0, 2}, {121, 0, 361, 200}},
                          Case{EGridWay::eRows, {9, 59}, {2, 0}, {2, 0}, {0, 41, 300, 221}},
                          Case{EGridWay::eRows, {9, 61}, {3, 0}, {2, 0}, {0, 41, 300, 221}}})
    {
        CCellID cell = c.pressed;
        const CGridDividers::STaken taken = Dividers(c.way).Take(cell, c.point, true);
        EXPECT_TRUE(taken.bMarked && taken.bHeld);
        EXPECT_EQ(cell, c.taken) << c.point.x << ',' << c.point.y;
        EXPECT_EQ(taken.rectHeld, c.held);
    }
    EXPECT_EQ(Dividers(EGridWay::eColumns).Marker(CPoint(119, 5)), CRect(119, 0, 121, 200));
    EXPECT_EQ(Dividers(EGridWay::eRows).Marker(CPoint(9, 61)), CRect(0, 61, 300, 63));
}

TEST_F(GridView, AHiddenItemIsOpenedOrPassedOver)
{
    cols.SetSize(2, 0);
    const CGridDividers dividers = Dividers(EGridWay::eColumns);
    const auto take = [&](int nCol, int x, bool bOpens)
    {
        CCellID cell(0, nCol);
        return dividers.Take(cell, CPoint(x, 5), bOpens).bMarked ? cell.col : -1;
    };
    EXPECT_EQ(take(3, 121, true), 2);
    EXPECT_EQ(take(3, 121, false), 1);
    EXPECT_EQ(take(3, 178, false), 3);
    cols.SetSize(1, 0);
    cols.SetSize(0, 0);
    EXPECT_EQ(take(3, 1, true), 2);
    EXPECT_EQ(take(3, 1, false), -1) << "none before it shows";
}

TEST_F(GridView, ANearlyClosedLastItemCanStillBeTaken)
{
    cols.SetCount(4, 0);
    struct Case
    {
        int nSize, x, nTaken;
    };
    for (const Case& c : {Case{0, 179, 3}, Case{0, 178, 3}, Case{0, 177, 2}, Case{1, 179, 3}, Case{1, 178, 2},
                          Case{2, 181, 3}, Case{2, 180, 3}, Case{2, 179, 2}, Case{3, 181, 2}})
    {
        cols.SetSize(3, c.nSize);
        CCellID cell(0, c.x < 180 ? 2 : 3);
        EXPECT_TRUE(Dividers(EGridWay::eColumns).Take(cell, CPoint(c.x, 5), true).bHeld);
        EXPECT_EQ(cell.col, c.nTaken) << c.x << " at " << c.nSize;
    }
}

TEST_F(GridView, WhatIsScrolledAwayIsMarkedAndNotHeld)
{
    topLeft = CCellID(4, 2);
    CCellID cell(0, 3);
    EXPECT_TRUE(Dividers(EGridWay::eColumns).Take(cell, CPoint(121, 5), true).bHeld)
        << "a column is looked up in the headings";
    cell = CCellID(0, 2);
    const CGridDividers::STaken taken = Dividers(EGridWay::eColumns).Take(cell, CPoint(61, 5), true);
    EXPECT_TRUE(taken.bMarked && !taken.bHeld);
    EXPECT_EQ(cell, CCellID(0, 1));
    cell = CCellID(0, 1);
    EXPECT_FALSE(Dividers(EGridWay::eColumns).Take(cell, CPoint(61, 5), true).bMarked);
}

TEST_F(GridView, AReleaseGivesTheSize)
{
    int nSize = -7;
    EXPECT_TRUE(Dividers(EGridWay::eColumns).Drop(CCellID(0, 1), CPoint(150, 10), true, nSize));
    EXPECT_EQ(nSize, 90);
    EXPECT_TRUE(Dividers(EGridWay::eRows).Drop(CCellID(2, 0), CPoint(30, 10), true, nSize));
    EXPECT_EQ(nSize, 0);
    EXPECT_TRUE(Dividers(EGridWay::eRows).Drop(CCellID(2, 0), CPoint(30, 10), false, nSize));
    EXPECT_EQ(nSize, 1);
    topLeft = CCellID(3, 1);
    EXPECT_FALSE(Dividers(EGridWay::eRows).Drop(CCellID(2, 0), CPoint(30, 10), true, nSize));
}

// ---- Bars -------------------------------------------------------------------------------------------------

TEST(GridBars, OneBarMayMakeTheOtherNecessary)
{
    struct Case
    {
        CSize all;
        int nVMax, nVPage, nHMax, nHPage;
    };
    const CSize area(300, 200), fixed(60, 20), thickness(17, 15);
    for (const Case& c :
         {Case{{300, 200}, 0, 0, 0, 0}, Case{{301, 180}, 0, 0, 240, 240}, Case{{283, 201}, 180, 180, 0, 0},
          Case{{301, 185}, 164, 165, 240, 240}, Case{{284, 201}, 180, 165, 223, 223},
          Case{{301, 186}, 165, 165, 240, 240}, Case{{999, 999}, 978, 165, 938, 223}})
    {
        const SGridBarPlan plan = gfnPlanGridBars(area, fixed, c.all, thickness);
        EXPECT_FALSE(plan.bOnlyHeadersFit);
        const bool bVertical = c.nVMax > 0 && c.nVMax + 1 > c.nVPage;
        EXPECT_EQ(plan.Of(EGridWay::eRows).bShows, bVertical) << c.all.cx << ',' << c.all.cy;
        EXPECT_EQ(plan.vertical.nMax, bVertical ? c.nVMax : 0);
        EXPECT_EQ(plan.vertical.nPage, bVertical ? c.nVPage : 0);
        EXPECT_EQ(plan.Of(EGridWay::eColumns).bShows, c.nHMax > 0);
        EXPECT_EQ(plan.horizontal.nMax, c.nHMax);
        EXPECT_EQ(plan.horizontal.nPage, c.nHPage);
    }
    EXPECT_TRUE(gfnPlanGridBars(CSize(60, 200), fixed, CSize(999, 999), thickness).bOnlyHeadersFit);
    EXPECT_TRUE(gfnPlanGridBars(CSize(300, 20), fixed, CSize(999, 999), thickness).bOnlyHeadersFit);
    EXPECT_FALSE(gfnPlanGridBars(CSize(61, 21), fixed, CSize(999, 999), thickness).bOnlyHeadersFit);
}

TEST_F(GridView, ScrollMessagesMoveByLinesPagesAndEnds)
{
    rows.SetSize(3, 0);
    rows.SetSize(7, 1);
    struct Case
    {
        UINT nCode;
        int nPos, nFirst;
        std::optional<int> nNewPos;
    };
    for (const Case& c :
         {Case{SB_LINEDOWN, 20, 2, 40},   Case{SB_LINEDOWN, 40, 3, 60},   Case{SB_LINEDOWN, 100, 7, 101},
          Case{SB_LINEUP, 101, 8, 100},   Case{SB_LINEDOWN, 379, 19, {}}, Case{SB_LINEDOWN, 370, 20, 390},
          Case{SB_LINEUP, 40, 4, 20},     Case{SB_LINEUP, 0, 1, {}},      Case{SB_LINEUP, 5, 2, 0},
          Case{SB_LINEUP, 5, 1, {}},      Case{SB_PAGEDOWN, 0, 1, 180},   Case{SB_PAGEDOWN, 300, 16, 379},
          Case{SB_PAGEDOWN, 379, 20, {}}, Case{SB_PAGEUP, 200, 11, 20},   Case{SB_PAGEUP, 100, 6, 0},
          Case{SB_PAGEUP, 0, 1, {}},      Case{SB_TOP, 9, 2, 0},          Case{SB_TOP, 0, 1, {}},
          Case{SB_BOTTOM, 9, 2, 379},     Case{SB_BOTTOM, 379, 20, {}},   Case{SB_ENDSCROLL, 9, 2, {}}})
        EXPECT_EQ(gfnScrolledPos(c.nCode, rows, {c.nPos, 379, 180, c.nFirst}), c.nNewPos)
            << c.nCode << " at " << c.nPos;
}
