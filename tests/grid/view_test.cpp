// Without a window: where cells stand, what shows, bars and dividers, where keys and searches lead.

#include "GridFixture.h"

#include "grid/GridDivider.h"
#include "grid/GridKeyWalk.h"
#include "grid/GridPainter.h"
#include "grid/GridScrollBars.h"
#include "grid/GridStateWalk.h"
#include "grid/GridView.h"

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
using Sizes = std::vector<int>;

void SetSizes(CGridAxis& axis, const Sizes& sizes)
{
    axis.SetCount(static_cast<int>(sizes.size()), 0);
    for (int item = 0; item < axis.Count(); ++item)
        axis.SetSize(item, sizes[item]);
}
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
    /// What a press and, behind an f, a double click mean along the headers, as "58: 0 f0; 63; " from a pixel
    /// on; a press that is marked and not held as "0?".
    std::string Dividers(EGridWay way, bool opens) const
    {
        const CGridDividers dividers(way, View(), 3);
        const int end = gfnAlong(way, CSize(300, 200));
        std::string all, last;
        for (int pixel = 0; pixel <= end; ++pixel)
        {
            const CPoint point = gfnPointAlong(way, pixel, 5);
            CCellID cell = View().CellAt(point);
            std::ostringstream now;
            if (pixel < end && dividers.IsAt(point))
            {
                const int fit = dividers.Fit(cell, point);
                const auto taken = dividers.Take(cell, point, opens);
                now << ": " << (taken.bMarked ? gfnItemAlong(way, cell) : -1) << (taken.bHeld ? " f" : "? f")
                    << fit;
            }
            if (std::exchange(last, now.str()) != now.str())
                all += std::to_string(pixel) + now.str() + "; ";
        }
        return all;
    }

    CGridAxis rows, cols;
    CCellID topLeft{1, 1};
};

TEST_F(GridView, PlacesAreThoseOfTheWalksAlongBothWays)
{
    owtest::Surface context(300, 200);
    std::mt19937 random(7);
    const auto pick = [&](int below) { return static_cast<int>(random() % below); };
    for (int round = 0; round < 3000; ++round)
    {
        Walk down, right;
        for (const auto& [axis, walk, most] : {std::tuple(&rows, &down, 50), std::tuple(&cols, &right, 90)})
        {
            const int alike = pick(3) ? 0 : 20;
            axis->SetCount(0, 0);
            axis->SetCount(1 + pick(8), alike);
            axis->SetFixed(walk->fixed = pick(std::min(axis->Count(), 3) + 1));
            for (int item = 0; item < axis->Count(); ++item)
                axis->SetSize(item, walk->sizes.emplace_back(alike || !pick(4) ? alike : 5 * pick(most / 5)));
        }
        topLeft = CCellID(down.fixed, right.fixed); // which may be behind the last
        topLeft.row += pick(std::max(down.Count() - down.fixed, 1));
        topLeft.col += pick(std::max(right.Count() - right.fixed, 1));
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
        const CCellID last(pick(down.Count() + 2) - 1, pick(right.Count() + 2) - 1);
        const auto y2 = down.Start(last.row, topLeft.row), x2 = right.Start(last.col, topLeft.col);
        ASSERT_EQ(view.RangeRect(CCellRange(cell.row, cell.col, last.row, last.col), rect),
                  x && y && x2 && y2);
        if (x && y && x2 && y2)
        {
            const CPoint end(*x2 + right.sizes[last.col], *y2 + down.sizes[last.row]);
            ASSERT_EQ(rect, CRect(origin, end - CSize(1, 1))) << "with its last pixel";
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

        for (const EGridWay way : kGridWays)
        {
            const int at = gfnAlong(way, point), body = gfnAlong(way, view.Body());
            const int end = gfnAlong(way, CSize(300, 200));
            const auto beyond = view.Beyond(way, point); // a drag goes on from the edge that it has left
            ASSERT_EQ(beyond.has_value(), at > end || at < body);
            const CPoint edge = gfnPointAlong(way, at > end ? end : body + 1,
                                              std::clamp<int>(gfnAlong(gfnOtherWay(way), point), 0,
                                                              gfnAlong(gfnOtherWay(way), CSize(300, 200))));
            ASSERT_TRUE(!beyond || (beyond->bOn == (at > end) && beyond->edge == edge));
        }

        CRect clip(CPoint(pick(290), pick(190)), CSize(1 + pick(60), 1 + pick(40)));
        context.dc().SelectClipRgn(nullptr);
        context.dc().IntersectClipRect(clip);
        context.dc().GetClipBox(&clip);
        const auto overlaps = [&](int row, int col, int edge) // the corner is drawn without asking
        {
            return (row < down.fixed && col < right.fixed) ||
                   (rect.left < clip.right + edge && rect.right >= clip.left &&
                    rect.top < clip.bottom + edge && rect.bottom >= clip.top);
        };
        int left = 0;
        for (int row = 0; row < down.Count(); ++row)
            for (int col = 0; col < right.Count(); ++col)
                left += view.CellRect(CCellID(row, col), rect) && overlaps(row, col, 0);
        const auto drawn = [&](int row, int col, const CRect& place)
        {
            EXPECT_TRUE(view.CellRect(CCellID(row, col), rect) && rect == place) << row << ',' << col;
            EXPECT_TRUE(overlaps(row, col, 1));
            left -= overlaps(row, col, 0);
        };
        CGridPainter(context.dc(), view).DrawCells(drawn);
        ASSERT_EQ(left, 0);
    }
}

TEST(GridAxis, SharesWhatIsLeftAmongThoseThatShow)
{
    // The sizes, the first that takes part, the pixels; the sizes after, none where nothing can be shared.
    for (const auto& [before, first, pixels, after] :
         {std::tuple(Sizes{60, 60, 60}, 0, 11, Sizes{64, 64, 63}),
          std::tuple(Sizes{60, 60, 60}, 0, -10, Sizes{56, 57, 57}),
          std::tuple(Sizes{60, 60, 60}, 1, 5, Sizes{60, 63, 62}),
          std::tuple(Sizes{60, 0, 60, 60}, 0, 5, Sizes{62, 0, 61, 61}), // the hidden one takes up a place
          std::tuple(Sizes{5, 60}, 0, -20, Sizes{1, 50}), std::tuple(Sizes{60, 0, 0}, 1, 5, Sizes{}),
          std::tuple(Sizes{60, 60}, 2, 5, Sizes{}), std::tuple(Sizes{9, 9}, 0, 1, Sizes{10, 9})})
    {
        CGridAxis axis;
        SetSizes(axis, before);
        EXPECT_EQ(axis.Share(first, pixels), !after.empty());
        for (int item = 0; item < axis.Count(); ++item)
            EXPECT_EQ(axis.Size(item), (after.empty() ? before : after)[item]);
    }
    CGridAxis hidden;
    hidden.SetCount(3, 0);
    EXPECT_EQ(hidden.Visible(0, 0).nLast, 0) << "all hidden, and no room";
}

TEST_F(GridView, ADividerMeansTheItemBeforeIt)
{
    using enum EGridWay;
    // Sizes, the first that is not scrolled away, whether hidden ones are opened.
    const std::tuple<EGridWay, Sizes, int, bool, std::string> cases[] = {
        {eColumns, {60, 60, 60}, 1, true, "58: 0 f0; 63; 118: 1 f1; 123; 178: 2 f2; 180; "},
        // of rows a double click means the one under the pointer in all but the top pixels
        {eRows, {20, 20, 20}, 1, true, "18: 0 f0; 20: 0 f1; 23; 38: 1 f1; 40: 1 f2; 43; 58: 2 f2; 60; "},
        // what is scrolled away is marked and not held
        {eColumns, {60, 60, 60, 60}, 2, true, "58: 0 f0; 60: 1? f1; 63; 118: 2 f2; 123; 178: 3 f3; 180; "},
        {eRows, {20, 20, 20, 20}, 3, true, "18: 0 f0; 20: 2? f3; 23; 38: 3 f3; 40; "},
        {eColumns, {60, 60, 0, 60}, 1, true, "58: 0 f0; 63; 118: 1 f1; 120: 2 f1; 123; 178: 3 f3; 180; "},
        {eColumns, {60, 60, 0, 60}, 1, false, "58: 0 f0; 63; 118: 1 f1; 123; 178: 3 f3; 180; "},
        {eColumns, {60, 0, 0, 60}, 1, true, "58: 0 f0; 60: 2 f0; 63; 118: 3 f3; 120; "},
        {eColumns, {0, 0, 0, 60}, 1, true, "0: 2 f-1; 3; 58: 3 f3; 60; "},
        {eColumns, {0, 0, 0, 60}, 1, false, "0: -1? f-1; 3; 58: 3 f3; 60; "}, // none before it shows
        {eColumns, {0, 0, 0, 60, 60}, 4, true, "0: 3? f3; 3; 58: 4 f4; 60; "},
        // the last one can be taken though it is nearly closed
        {eColumns, {60, 60, 0}, 1, true, "58: 0 f0; 63; 118: 2 f1; 120; "},
        {eColumns, {60, 60, 1}, 1, true, "58: 0 f0; 63; 118: 1 f1; 119: 2 f1; 121; "},
        {eColumns, {60, 60, 3}, 1, false, "58: 0 f0; 63; 118: 1 f1; 123; "}};
    for (const auto& [way, sizes, first, opens, meant] : cases)
    {
        SetSizes(way == eColumns ? cols : rows, sizes);
        gfnItemAlong(way, topLeft = CCellID(2, 2)) = first;
        EXPECT_EQ(Dividers(way, opens), meant);
    }
    CCellID pressed(0, 1);
    EXPECT_EQ(CGridDividers(eColumns, View(), 3).Take(pressed, CPoint(119, 5), true).rectHeld,
              CRect(61, 0, 61 + 240, 200));
    EXPECT_EQ(CGridDividers(eColumns, View(), 3).Fit(CCellID(0, -1), CPoint(119, 5)), -1);
    EXPECT_FALSE(CGridDividers(eColumns, View(), 3).IsAt(CPoint(119, 20))) << "in the body";
    EXPECT_EQ(CGridDividers(eColumns, View(), 3).Marker(CPoint(119, 5)), CRect(119, 0, 121, 200));
}

TEST(GridBars, OneBarMayMakeTheOtherNecessary)
{
    const CSize area(300, 200), fixed(60, 20), thickness(17, 15);
    const auto told = [](const SGridBar& bar) { return std::tuple(bar.bShows, bar.nMax, bar.nPage); };
    for (const auto& [all, vertical, horizontal] : {std::tuple(CSize(300, 200), SGridBar(), SGridBar()),
                                                    {CSize(283, 201), {true, 180, 180}, {}},
                                                    {CSize(301, 185), {}, {true, 240, 240}},
                                                    {CSize(284, 201), {true, 180, 165}, {true, 223, 223}},
                                                    {CSize(301, 186), {true, 165, 165}, {true, 240, 240}},
                                                    {CSize(999, 999), {true, 978, 165}, {true, 938, 223}}})
    {
        const SGridBarPlan plan = gfnPlanGridBars(area, fixed, all, thickness);
        EXPECT_FALSE(plan.bOnlyHeadersFit);
        EXPECT_EQ(told(plan.vertical), told(vertical)) << all.cx << ',' << all.cy;
        EXPECT_EQ(told(plan.horizontal), told(horizontal)) << all.cx << ',' << all.cy;
    }
    for (const CSize small : {CSize(60, 200), CSize(300, 20), CSize(61, 21)})
        EXPECT_EQ(gfnPlanGridBars(small, fixed, CSize(999, 999), thickness).bOnlyHeadersFit, small.cx != 61);
}

TEST(GridBars, KeepTheirPagesAndLeaveTheAreaThatTheyTakeUp)
{
    CWnd window;
    ASSERT_TRUE(window.CreateEx(0, L"STATIC", nullptr, WS_POPUP | WS_VSCROLL | WS_HSCROLL,
                                CRect(0, 0, 99, 99), nullptr, 0));
    CGridScrollBars bars(window);
    const CSize vertical(::GetSystemMetrics(SM_CXVSCROLL) + ::GetSystemMetrics(SM_CXBORDER), 0);
    const CSize horizontal(0, ::GetSystemMetrics(SM_CYHSCROLL) + ::GetSystemMetrics(SM_CYBORDER));
    EXPECT_EQ(bars.AreaWithout(CSize(70, 50)), CSize(70, 50) + vertical + horizontal);
    EXPECT_EQ(bars.AreaWithout(CSize(0, 50)), CSize(0, 0));
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_PAGE;
    for (const int page : {10, 20})
        for (const EGridWay way : kGridWays)
            bars.SetRange(way, {true, 100, page});
    EXPECT_TRUE(::GetScrollInfo(window, SB_VERT, &info) && info.nPage == 20u);
    for (const EGridWay way : kGridWays)
        bars.SetRange(way, {});
    EXPECT_EQ(bars.AreaWithout(CSize(70, 50)), CSize(70, 50) + vertical) << "greyed, the other one gone";
}

TEST_F(GridView, ScrollMessagesMoveByLinesPagesAndEnds)
{
    rows.SetSize(3, 0);
    rows.SetSize(4, 30);
    rows.SetSize(7, 1);
    // The message, the position, the first item that scrolls, and the position then.
    using Row = std::tuple<UINT, int, int, std::optional<int>>;
    for (const auto& [code, pos, first, to] :
         {Row{SB_LINEDOWN, 20, 2, 40},   Row{SB_LINEDOWN, 40, 3, 70},   Row{SB_LINEDOWN, 100, 7, 101},
          Row{SB_LINEUP, 101, 8, 100},   Row{SB_LINEDOWN, 379, 19, {}}, Row{SB_LINEDOWN, 370, 20, 390},
          Row{SB_LINEUP, 40, 4, 20},     Row{SB_LINEUP, 0, 1, {}},      Row{SB_LINEUP, 5, 2, 0},
          Row{SB_LINEUP, 5, 1, {}},      Row{SB_PAGEDOWN, 0, 1, 180},   Row{SB_PAGEDOWN, 300, 16, 379},
          Row{SB_PAGEDOWN, 379, 20, {}}, Row{SB_PAGEUP, 200, 11, 20},   Row{SB_PAGEUP, 100, 6, 0},
          Row{SB_PAGEUP, 0, 1, {}},      Row{SB_TOP, 9, 2, 0},          Row{SB_TOP, 0, 1, {}},
          Row{SB_BOTTOM, 9, 2, 379},     Row{SB_BOTTOM, 379, 20, {}},   Row{SB_ENDSCROLL, 9, 2, {}}})
        EXPECT_EQ(gfnScrolledPos(code, rows, {pos, 379, 180, first}), to) << code << " at " << pos;
}

struct GridWalk : GridView
{
    GridWalk()
    {
        rows.SetCount(6, kRowHeight);
        cols.SetCount(5, kColWidth);
    }
};

TEST_F(GridWalk, TabPagesAndEnds)
{
    EXPECT_EQ(CGridKeyWalk(rows, cols).Tab(CCellID(3, 1), -1), CCellID(2, 4));
    EXPECT_EQ(CGridKeyWalk(rows, cols).Tab(CCellID(1, 1), -1), CCellID(1, 1));
    const auto mayStop = [](const CCellID& cell) {
        return cell == CCellID(2, 2) || cell == CCellID(2, 4) || cell == CCellID(5, 0) ||
               cell == CCellID(1, 3);
    };
    const CGridKeyWalk walk(rows, cols, mayStop);
    EXPECT_EQ(walk.Sideways(CCellID(2, 4), 1), CCellID(2, 2));
    EXPECT_EQ(walk.Sideways(CCellID(2, 2), -1), CCellID(2, 4));
    EXPECT_EQ(walk.Sideways(CCellID(3, 2), 1), CCellID(3, 2)) << "no stop at all";
    EXPECT_EQ(walk.Tab(CCellID(5, 4), 1), CCellID(5, 0)) << "around to the very first column";
    EXPECT_EQ(walk.Sideways(CCellID(5, 2), -1), CCellID(5, 2)) << "and never back to it";
    EXPECT_EQ(walk.Tab(CCellID(1, 1), -1), CCellID(1, 3));
    for (const auto& [nRow, nStep, nMoved, nTo] :
         {std::tuple(2, 1, 2, 4), {2, 1, 9, 5}, {4, -1, -9, 1}, {2, 1, 0, 5}, {4, -1, 0, 1}}) // to the end
        EXPECT_EQ(walk.ByPage(CCellID(nRow, 3), nStep, nMoved), CCellID(nTo, 3)) << nMoved;
    for (const int hidden : {1, 2, 3, 4, 5})
        rows.SetSize(hidden, 0);
    for (const int hidden : {1, 2, 3, 4})
        cols.SetSize(hidden, 0);
    EXPECT_EQ(walk.ToStart(CCellID(4, 3), true), CCellID(5, 4)) << "none shows";
    EXPECT_EQ(walk.ToEnd(CCellID(4, 3), true), CCellID(2, 2)) << "behind the second of the body";
}

TEST_F(GridWalk, ByState)
{
    static constexpr const char* kStates[] = {".s...", ".....", "..ss.", "s....", ".s...", "...m."};
    const std::map<char, UINT> states = {
        {'s', CELL_SELECTED | CELL_READONLY}, {'m', CELL_MODIFIED | CELL_FOCUSED}, {'.', 0}};
    const auto stateOf = [&](int nRow, int nCol) { return states.at(kStates[nRow][nCol]); };
    using Row = std::tuple<CCellID, int, CCellID>;
    for (const auto& [from, nFlags, found] :
         {Row{{-1, -1}, GVNI_SELECTED | GVNI_ALL, {2, 2}}, Row{{2, 3}, GVNI_SELECTED | GVNI_ALL, {4, 1}},
          Row{{2, 3}, GVNI_SELECTED | GVNI_AREA, {}}, Row{{1, 0}, GVNI_READONLY | GVNI_AREA, {2, 2}},
          Row{{4, 1}, GVNI_SELECTED | GVNI_ABOVE, {}}, Row{{2, 4}, GVNI_SELECTED | GVNI_TOLEFT, {2, 3}},
          Row{{3, 4}, GVNI_SELECTED | GVNI_TOLEFT, {}}, Row{{-1, 1}, GVNI_SELECTED | GVNI_BELOW, {0, 1}},
          Row{{3, -1}, GVNI_SELECTED | GVNI_TORIGHT, {3, 0}}, Row{{2, 0}, GVNI_TORIGHT, {}},
          Row{{2, 0}, GVNI_SELECTED, {}}, Row{{-1, -1}, GVNI_MODIFIED | GVNI_ALL, {5, 3}},
          Row{{0, 3}, GVNI_FOCUSED | GVNI_BELOW, {5, 3}},
          Row{{INT_MAX, 1}, GVNI_SELECTED | GVNI_ABOVE, {4, 1}},
          Row{{INT_MAX, INT_MAX}, GVNI_SELECTED | GVNI_ALL, {}},
          Row{{4, 3}, GVNI_SELECTED | GVNI_ABOVE | GVNI_TOLEFT, {2, 3}}})
        EXPECT_EQ(gfnNextCell(rows, cols, from, nFlags, stateOf), found)
            << from.row << ',' << from.col << " by " << nFlags;
    cols.SetFixed(0);
    EXPECT_EQ(gfnNextCell(rows, cols, CCellID(3, 0), GVNI_SELECTED | GVNI_ALL, stateOf), CCellID(4, 1))
        << "behind the first column of the body";
}

TEST(GridSelectionMap, RowsFarApartShareAKeyAndKeepTheirTrueAddresses)
{
    CGridSelectionMap map;
    for (const int nRow : {7, 100, 65536 + 7})
        map.Add(nRow, 2);
    EXPECT_TRUE(map.Has(65536 + 100, 2) && !map.Has(7, 65536));
    EXPECT_EQ(map.Cells(), (std::vector{CCellID(65536 + 7, 2), CCellID(100, 2)}));
}
