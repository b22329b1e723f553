// One direction of a grid, where cells stand, what shows, and what the bars and dividers make of it: without a
// window.

#include "grid/GridDivider.h"
#include "grid/GridPainter.h"
#include "grid/GridScrollBars.h"
#include "grid/GridView.h"

#include "GridWindow.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace
{
/// What an axis answers, by summing up.
struct Walk
{
    std::vector<int> sizes;
    int fixed = 0;

    int Count() const { return static_cast<int>(sizes.size()); }
    int Offset(int item) const
    {
        int sum = 0;
        for (int i = 0; i < item; ++i)
            sum += sizes[i];
        return sum;
    }
    /// Where an item begins in a view of the items from `first` on.
    std::optional<int> Start(int item, int first) const
    {
        if (item < 0 || item >= Count() || (item >= fixed && item < first))
            return {};
        return Offset(item) - (item < fixed ? 0 : Offset(first) - Offset(fixed));
    }
    int ItemAt(int pos, int first, bool fixedToo) const
    {
        const bool inFixed = pos < Offset(fixed);
        for (int item = inFixed ? 0 : first; pos >= 0 && item < (inFixed ? fixed : Count()); ++item)
            if (*Start(item, first) + sizes[item] > pos)
                return inFixed && !fixedToo ? -1 : item;
        return -1;
    }
    CGridAxis::SVisible Visible(int first, int end) const
    {
        int x = Offset(fixed);
        for (int item = first; item < Count(); ++item)
            if ((x += sizes[item]) >= end)
                return {item, x, true};
        return {Count() - 1, x, false};
    }
};
} // namespace

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

TEST_F(GridView, PlacesAreThoseOfTheWalksAlongBothWays)
{
    std::mt19937 random(7);
    const auto pick = [&](int below) { return static_cast<int>(random() % below); };
    for (int round = 0; round < 3000; ++round)
    {
        Walk down, right;
        for (const auto& [axis, walk, most] : {std::tuple(&rows, &down, 50), std::tuple(&cols, &right, 90)})
        {
            axis->SetCount(1 + pick(8), 0);
            axis->SetFixed(walk->fixed = pick(std::min(axis->Count(), 3)));
            for (int item = 0; item < axis->Count(); ++item)
                axis->SetSize(item, walk->sizes.emplace_back(pick(4) ? 5 * pick(most / 5) : 0));
        }
        topLeft = CCellID(down.fixed + pick(down.Count() - down.fixed), right.fixed);
        topLeft.col += pick(right.Count() - right.fixed);
        const CGridView view = View();

        const CPoint point(5 * pick(66) - 9 - pick(2), 5 * pick(46) - 9 - pick(2));
        for (const bool fixedToo : {true, false})
            ASSERT_EQ(view.CellAt(point, fixedToo), CCellID(down.ItemAt(point.y, topLeft.row, fixedToo),
                                                            right.ItemAt(point.x, topLeft.col, fixedToo)));
        const CCellID cell(pick(down.Count() + 2) - 1, pick(right.Count() + 2) - 1);
        const auto y = down.Start(cell.row, topLeft.row), x = right.Start(cell.col, topLeft.col);
        CPoint origin(-7, -7);
        CRect rect;
        ASSERT_EQ(view.Origin(cell, origin), x && y);
        ASSERT_EQ(origin, x && y ? CPoint(*x, *y) : CPoint(-7, -7));
        ASSERT_EQ(view.FromOrigin(cell, point), x && y ? CPoint(point - origin) : CPoint(0, 0));
        ASSERT_EQ(view.Shows(cell), x && y && *x < 300 && *y < 200);
        ASSERT_EQ(view.CellRect(cell, rect), x && y);
        if (x && y)
        {
            const CSize size(right.sizes[cell.col], down.sizes[cell.row]);
            ASSERT_EQ(rect, CRect(origin, size - CSize(1, 1))) << "with its last pixel";
        }

        const CGridAxis::SVisible rowsSeen = down.Visible(topLeft.row, 200),
                                  colsSeen = right.Visible(topLeft.col, 300);
        ASSERT_EQ(view.Visible(&rect), CCellRange(topLeft.row, topLeft.col, rowsSeen.nLast, colsSeen.nLast));
        ASSERT_EQ(rect, CRect(0, 0, colsSeen.bReachesEnd ? 300 : colsSeen.nEnd,
                              rowsSeen.bReachesEnd ? 200 : rowsSeen.nEnd));
        const auto whole = [](const CGridAxis::SVisible& seen, int end)
        { return seen.nLast - (seen.nLast > 0 && seen.nEnd > end); };
        ASSERT_EQ(view.VisibleWhole(),
                  CCellRange(topLeft.row, topLeft.col, whole(rowsSeen, 200), whole(colsSeen, 300)));
    }
}

TEST(GridAxis, KeepsCountOfItsSizesAlsoOfThoseThatAreAllAlike)
{
    std::mt19937 random(7);
    const auto pick = [&](int below) { return static_cast<int>(random() % below); };
    CGridAxis axis;
    Walk walk;
    for (int step = 0; step < 20000; ++step)
    {
        const int n = walk.Count(), at = pick(n + 1), other = pick(n + 1), what = n == 0 ? 0 : pick(6);
        const int size = step < 5000 ? 20 : pick(4) ? pick(40) : 0;
        if (what == 0)
        {
            walk.sizes.insert(walk.sizes.begin() + at, size);
            axis.Insert(at, size);
        }
        else if (what == 1)
            axis.SetFixed(walk.fixed = pick(std::min(n, 3) + 1));
        else if (at == n || other == n)
            continue;
        else if (what == 2)
        {
            walk.sizes.erase(walk.sizes.begin() + at);
            walk.fixed -= at < walk.fixed;
            axis.Remove(at);
        }
        else if (what == 3)
        {
            std::swap(walk.sizes[at], walk.sizes[other]);
            axis.Swap(at, other);
        }
        else if (what == 4 || n <= 30)
            axis.SetSize(at, walk.sizes[at] = size);
        else
        {
            walk.sizes.resize(at);
            walk.fixed = std::min(walk.fixed, at);
            axis.SetCount(at, 0);
        }
        ASSERT_EQ(std::pair(axis.Count(), axis.Fixed()), std::pair(walk.Count(), walk.fixed));
        ASSERT_EQ(axis.Extent(), walk.Offset(walk.Count()));
        ASSERT_EQ(axis.FixedExtent(), walk.Offset(walk.fixed));
        const int first = axis.FirstAt(pick(700) - 20), point = pick(700) - 20;
        ASSERT_EQ(axis.ItemAt(point, first, true), walk.ItemAt(point, first, true)) << "step " << step;
    }
}

TEST(GridAxis, SharesWhatIsLeftAmongThoseThatShow)
{
    using Sizes = std::vector<int>;
    struct Case
    {
        Sizes before;
        int nFirst, nPixels;
        Sizes after; ///< none: nothing to share it among
    };
    for (const Case& c : {Case{{60, 60, 60}, 0, 11, {64, 64, 63}},
                          {{60, 60, 60}, 0, -10, {56, 57, 57}},
                          {{60, 60, 60}, 1, 5, {60, 63, 62}},
                          {{60, 0, 60, 60}, 0, 5, {62, 0, 61, 61}}, // the hidden one takes up a place
                          {{5, 60}, 0, -20, {1, 50}},
                          {{60, 0, 0}, 1, 5, {}},
                          {{60, 60}, 2, 5, {}}})
    {
        CGridAxis axis;
        axis.SetCount(static_cast<int>(c.before.size()), 60);
        for (int item = 0; item < axis.Count(); ++item)
            axis.SetSize(item, c.before[item]);
        EXPECT_EQ(axis.Share(c.nFirst, c.nPixels), !c.after.empty());
        Sizes after;
        for (int item = 0; item < axis.Count(); ++item)
            after.push_back(axis.Size(item));
        EXPECT_EQ(after, c.after.empty() ? c.before : c.after);
    }
}

TEST_F(GridView, ARangeReachesFromItsFirstCellToItsLast)
{
    CRect rect;
    ASSERT_TRUE(View().RangeRect(CCellRange(1, 1, 2, 2), rect));
    EXPECT_EQ(rect, CRect(60, 20, 179, 59));
    EXPECT_FALSE(View().RangeRect(CCellRange(1, 1, kRows, 2), rect));
    EXPECT_FALSE(View().RangeRect(CCellRange(-1, 1, 2, 2), rect));
    EXPECT_EQ(View().ScrollingPart(EGridWay::eColumns), CRect(60, 0, 300, 200));
    EXPECT_EQ(View().ScrollingPart(EGridWay::eRows), CRect(0, 20, 300, 200));
}

TEST_F(GridView, ADragGoesOnFromTheEdgeThatItHasLeft)
{
    using Edge = std::optional<std::tuple<bool, int, int>>; // whether it goes on, and not back; from where
    const auto beyond = [&](EGridWay way, CPoint point)
    {
        const auto found = View().Beyond(way, point);
        return found ? Edge({found->bOn, found->edge.x, found->edge.y}) : Edge();
    };
    struct Case
    {
        CPoint point;
        Edge down, sideways;
    };
    for (const Case& c : {Case{{300, 200}, {}, {}},
                          {{60, 20}, {}, {}},
                          {{301, 201}, {{true, 300, 200}}, {{true, 300, 200}}},
                          {{59, 19}, {{false, 59, 21}}, {{false, 61, 19}}},
                          {{-5, 999}, {{true, 0, 200}}, {{false, 61, 200}}},
                          {{999, -5}, {{false, 300, 21}}, {{true, 300, 0}}}})
    {
        EXPECT_EQ(beyond(EGridWay::eRows, c.point), c.down) << c.point.x << ',' << c.point.y;
        EXPECT_EQ(beyond(EGridWay::eColumns, c.point), c.sideways) << c.point.x << ',' << c.point.y;
    }
}

TEST_F(GridView, ThePainterDrawsTheCellsThatTouchTheClipBoxInTheirPlaces)
{
    CDC dc;
    CBitmap bitmap;
    ASSERT_TRUE(dc.CreateCompatibleDC(nullptr) && bitmap.CreateBitmap(300, 200, 1, 1, nullptr));
    CBitmap* const pOld = dc.SelectObject(&bitmap);
    const CRect clip(30, 10, 170, 90);
    dc.IntersectClipRect(clip);
    topLeft = CCellID(4, 2);
    rows.SetFixed(2);
    int left = 0;
    for (int row = 0; row < kRows; ++row)
        for (int col = 0; col < kCols; ++col)
            if (CRect rect; View().CellRect(CCellID(row, col), rect))
                left += rect.left <= clip.right && rect.right >= clip.left && rect.top <= clip.bottom &&
                        rect.bottom >= clip.top;
    CGridPainter(dc, View())
        .DrawCells(
            [&](int nRow, int nCol, const CRect& rect)
            {
                CRect place;
                EXPECT_TRUE(View().CellRect(CCellID(nRow, nCol), place));
                EXPECT_EQ(rect, place) << nRow << ',' << nCol;
                --left;
            });
    EXPECT_EQ(left, 0);
    dc.SelectObject(pOld);
}

// ---- Dividers ---------------------------------------------------------------------------------------------

TEST_F(GridView, DividersAreAliveOverTheHeadersOnly)
{
    cols.SetCount(4, 0);
    const auto alive = [](int at, int size, int last)
    {
        const int next = (at + 2) / size; // the divider that this is before, or just behind
        return next > 0 && next <= last && std::abs(at - next * size) < 3 && at < last * size;
    };
    for (int x = 0; x < 300; ++x)
    {
        EXPECT_EQ(Dividers(EGridWay::eColumns).IsAt(CPoint(x, 19)), alive(x, kColWidth, 4)) << x;
        EXPECT_FALSE(Dividers(EGridWay::eColumns).IsAt(CPoint(x, 20))) << "in the body";
    }
    for (int y = 0; y < 200; ++y)
    {
        EXPECT_EQ(Dividers(EGridWay::eRows).IsAt(CPoint(59, y)), alive(y, kRowHeight, kRows)) << y;
        EXPECT_FALSE(Dividers(EGridWay::eRows).IsAt(CPoint(60, y)));
    }
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
                          {EGridWay::eColumns, {122, 5}, {0, 2}, {0, 1}, {61, 0, 301, 200}},
                          {EGridWay::eColumns, {123, 5}, {0, 2}, {0, 2}, {121, 0, 361, 200}},
                          {EGridWay::eRows, {9, 59}, {2, 0}, {2, 0}, {0, 41, 300, 221}},
                          {EGridWay::eRows, {9, 61}, {3, 0}, {2, 0}, {0, 41, 300, 221}}})
    {
        CCellID cell = c.pressed;
        const CGridDividers::STaken taken = Dividers(c.way).Take(cell, c.point, true);
        EXPECT_TRUE(taken.bMarked && taken.bHeld);
        EXPECT_EQ(cell, c.taken) << c.point.x << ',' << c.point.y;
        EXPECT_EQ(taken.rectHeld, c.held);
    }
    EXPECT_EQ(Dividers(EGridWay::eColumns).Marker(CPoint(119, 5)), CRect(119, 0, 121, 200));
    EXPECT_EQ(Dividers(EGridWay::eRows).Marker(CPoint(9, 61)), CRect(0, 61, 300, 63));

    topLeft = CCellID(4, 2);
    const auto take = [&](int nCol, int x)
    {
        CCellID cell(0, nCol);
        const auto taken = Dividers(EGridWay::eColumns).Take(cell, CPoint(x, 5), true);
        return std::tuple(taken.bMarked, taken.bHeld, cell.col);
    };
    EXPECT_EQ(take(3, 121), std::tuple(true, true, 2)) << "a column is looked up in the headings";
    EXPECT_EQ(take(2, 61), std::tuple(true, false, 1)) << "what is scrolled away is marked and not held";
    EXPECT_EQ(take(1, 61), std::tuple(false, false, 1));
}

TEST_F(GridView, AHiddenItemIsOpenedOrPassedOver)
{
    cols.SetSize(2, 0);
    const CGridDividers dividers = Dividers(EGridWay::eColumns);
    const auto take = [&](int nCol, int x, bool bOpens)
    {
        CCellID cell(0, nCol);
        return dividers.Take(cell, CPoint(x, 5), bOpens).bMarked ? cell.col : -9;
    };
    EXPECT_EQ(take(3, 121, true), 2);
    EXPECT_EQ(take(3, 121, false), 1);
    EXPECT_EQ(take(3, 178, false), 3);
    EXPECT_EQ(dividers.Fit(CCellID(0, 3), CPoint(122, 5)), 1) << "a double click means one that shows";
    EXPECT_EQ(dividers.Fit(CCellID(0, 3), CPoint(123, 5)), 3);
    cols.SetSize(1, 0);
    cols.SetSize(0, 0);
    EXPECT_EQ(take(3, 1, true), 2);
    EXPECT_EQ(take(3, 1, false), -9) << "none before it shows";
    EXPECT_EQ(dividers.Fit(CCellID(0, 3), CPoint(2, 5)), -1);
    topLeft = CCellID(1, 4);
    EXPECT_EQ(Dividers(EGridWay::eColumns).Fit(CCellID(0, 3), CPoint(2, 5)), -1) << "scrolled away";
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
        const auto taken = Dividers(EGridWay::eColumns).Take(cell, CPoint(c.x, 5), c.x % 2 != 0);
        EXPECT_TRUE(taken.bHeld);
        EXPECT_EQ(taken.rectHeld.left, 60 * c.nTaken + 1);
        EXPECT_EQ(cell.col, c.nTaken) << c.x << " at " << c.nSize;
    }
}

// ---- Bars -------------------------------------------------------------------------------------------------

TEST(GridBars, OneBarMayMakeTheOtherNecessary)
{
    struct Case
    {
        CSize all;
        SGridBar vertical, horizontal;
    };
    const CSize area(300, 200), fixed(60, 20), thickness(17, 15);
    const auto told = [](const SGridBar& bar) { return std::tuple(bar.bShows, bar.nMax, bar.nPage); };
    for (const Case& c : {Case{{300, 200}, {}, {}},
                          {{301, 180}, {}, {true, 240, 240}},
                          {{283, 201}, {true, 180, 180}, {}},
                          {{301, 185}, {}, {true, 240, 240}},
                          {{284, 201}, {true, 180, 165}, {true, 223, 223}},
                          {{301, 186}, {true, 165, 165}, {true, 240, 240}},
                          {{999, 999}, {true, 978, 165}, {true, 938, 223}}})
    {
        const SGridBarPlan plan = gfnPlanGridBars(area, fixed, c.all, thickness);
        EXPECT_FALSE(plan.bOnlyHeadersFit);
        EXPECT_EQ(told(plan.Of(EGridWay::eRows)), told(c.vertical)) << c.all.cx << ',' << c.all.cy;
        EXPECT_EQ(told(plan.Of(EGridWay::eColumns)), told(c.horizontal)) << c.all.cx << ',' << c.all.cy;
    }
    for (const CSize small : {CSize(60, 200), CSize(300, 20), CSize(61, 21)})
        EXPECT_EQ(gfnPlanGridBars(small, fixed, CSize(999, 999), thickness).bOnlyHeadersFit, small.cx != 61);
}

TEST(GridBars, LeaveTheAreaThatTheyTakeUp)
{
    for (const DWORD dwBars : {0L, WS_VSCROLL, WS_HSCROLL, WS_VSCROLL | WS_HSCROLL})
    {
        CWnd window;
        ASSERT_TRUE(
            window.CreateEx(0, L"STATIC", nullptr, WS_POPUP | dwBars, CRect(0, 0, 99, 99), nullptr, 0));
        const CGridScrollBars bars(window);
        const CSize freed(
            dwBars & WS_VSCROLL ? ::GetSystemMetrics(SM_CXVSCROLL) + ::GetSystemMetrics(SM_CXBORDER) : 0,
            dwBars & WS_HSCROLL ? ::GetSystemMetrics(SM_CYHSCROLL) + ::GetSystemMetrics(SM_CYBORDER) : 0);
        EXPECT_EQ(bars.AreaWithout(CSize(70, 50)), CSize(70, 50) + freed);
        EXPECT_EQ(bars.AreaWithout(CSize(0, 50)), CSize(0, 0));
        EXPECT_EQ(bars.AreaWithout(CSize(70, 0)), CSize(0, 0));
    }
}

TEST(GridBars, AskForAPaintWhenAThumbMoves)
{
    CWnd window;
    ASSERT_TRUE(window.CreateEx(0, L"STATIC", nullptr, WS_POPUP | WS_VISIBLE | WS_VSCROLL,
                                CRect(0, 0, 99, 99), nullptr, 0));
    CGridScrollBars bars(window);
    bars.SetRange(EGridWay::eRows, {true, 100000, 10});
    const auto asksFor = [&](int pos)
    {
        bars.Paint();
        window.RedrawWindow(nullptr, nullptr, RDW_VALIDATE | RDW_NOINTERNALPAINT);
        bars.SetPos(EGridWay::eRows, pos);
        MSG message;
        return ::PeekMessage(&message, window.m_hWnd, WM_PAINT, WM_PAINT, PM_NOREMOVE) != FALSE;
    };
    EXPECT_TRUE(asksFor(50000));
    EXPECT_FALSE(asksFor(50001)) << "by less than a pixel";
    EXPECT_TRUE(asksFor(90000));
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
