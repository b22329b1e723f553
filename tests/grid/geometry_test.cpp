// From cells to pixels and back; scrolling; sizing to fit.

#include "GridFixture.h"

class GridGeometry : public GridTest
{
protected:
    void Scroll(UINT message, UINT code, int times = 1)
    {
        for (; times > 0; --times)
            grid.SendMessage(message, code);
    }
    CRect RepaintedBy(UINT message, UINT code)
    {
        return Repainted([&] { Scroll(message, code); });
    }
};

TEST_F(GridGeometry, AThumbScrollsWhileItIsDraggedAndStaysWhereItIsReleased)
{
    for (const bool rows : {true, false})
    {
        SCROLLBARINFO bar{};
        bar.cbSize = sizeof bar;
        ASSERT_TRUE(::GetScrollBarInfo(grid, rows ? OBJID_VSCROLL : OBJID_HSCROLL, &bar));
        const int at = (bar.xyThumbTop + bar.xyThumbBottom) / 2, by = 40;
        const CPoint thumb = CRect(bar.rcScrollBar).TopLeft() + (rows ? CSize(5, at) : CSize(at, 5));
        const CCellID before = grid.GetTopleftNonFixedCell();
        owtest::QueueDrag(thumb, thumb + (rows ? CSize(0, by) : CSize(by, 0)));
        owtest::Pump();
        const CCellID after = grid.GetTopleftNonFixedCell();
        EXPECT_TRUE(rows ? after.row > before.row : after.col > before.col);
        EXPECT_EQ(grid.tracked, after);
    }
}

TEST_F(GridGeometry, TheBarsFollowTheContents)
{
    const auto bars = [&] { return std::pair(grid.IsVisibleVScroll(), grid.IsVisibleHScroll()); };
    grid.SetRowHeight(2, kRowHeight + 30);
    EXPECT_EQ(CSize(grid.m_nHScrollMax, grid.m_nVScrollMax), CSize(6 * 60 - 1, 20 * 20 + 30 - 1));
    EXPECT_EQ(Repainted([&] { grid.SetRowCount(kRows - 1); }), Client());
    grid.SetColumnCount(3);
    EXPECT_EQ(bars(), std::pair(TRUE, FALSE));
    EXPECT_EQ(grid.m_nHScrollMax, 0);
    // Only the headers fit: both bars go, and the books stay.
    grid.SetColumnCount(kCols);
    grid.SetColumnWidth(0, 400, TRUE);
    EXPECT_TRUE(grid.IsVisibleVScroll());
    EXPECT_FALSE(grid.GetStyle() & (WS_VSCROLL | WS_HSCROLL));
    grid.SetColumnWidth(0, kColWidth, TRUE);
    EXPECT_TRUE(grid.GetStyle() & WS_VSCROLL) << "as before, and so must the bar be";
    const auto resize = [&](int cx, int cy)
    { grid.SetWindowPos(nullptr, 0, 0, cx, cy, SWP_NOMOVE | SWP_NOZORDER); };
    resize(304, 0);
    EXPECT_TRUE(grid.GetStyle() & WS_HSCROLL) << "without height the bars stay";
    for (const int size : {600, 204, 600})
    {
        resize(size, size);
        EXPECT_EQ(bars(), std::pair(BOOL(size < 600), BOOL(size < 600)));
    }
}

TEST_F(GridGeometry, ScrollMessagesAndTheWheelMoveABarAndRepaintWhatScrolls)
{
    EXPECT_EQ(grid.GetUnobstructedNonFixedCellRange(),
              CCellRange(1, 1, (Client().bottom - 20) / 20, (Client().right - 60) / 60));
    grid.SetRowHeight(1, 500);
    EXPECT_EQ(grid.GetUnobstructedNonFixedCellRange().maxRow, 0) << "not one";
    grid.SetRowHeight(1, kRowHeight);
    EXPECT_EQ(RepaintedBy(WM_HSCROLL, SB_LINERIGHT), CRect(60, 0, Client().right, Client().bottom));
    EXPECT_EQ(grid.GetScrollPos32(SB_HORZ), 60);
    EXPECT_EQ(grid.GetTopleftNonFixedCell(), CCellID(1, 2));
    EXPECT_EQ(RepaintedBy(WM_VSCROLL, SB_PAGEDOWN), CRect(0, 20, Client().right, Client().bottom));
    EXPECT_EQ(grid.GetScrollPos32(SB_VERT), Client().bottom - 20);
    Scroll(WM_VSCROLL, SB_TOP);
    EXPECT_EQ(RepaintedBy(WM_VSCROLL, SB_LINEUP), CRect()) << "nothing moves";
    grid.scrolls.clear(); // the wheel posts lines or pages
    using Row = std::tuple<int, int, const char*>;
    for (const auto& [nLines, nDelta, scrolls] :
         {Row{3, 60, " v0"}, Row{3, -120, " v1 v1 v1"}, Row{-1, 60, ""}, Row{-1, -240, " v3 v3"}})
    {
        grid.m_nWheelLines = nLines;
        grid.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, nDelta), 0);
        EXPECT_TRUE(grid.scrolls.empty()) << "not in the midst of the message";
        EXPECT_EQ(Seen(), std::string("-1,-1") + scrolls);
    }
    grid.SetRowCount(1);
    EXPECT_EQ(grid.GetCellFromPt(CPoint(90, 5), FALSE), CCellID()) << "there is no body";
}

TEST_F(GridGeometry, ABarIsPaintedWithTheWindowAndOnlyWhenItsThumbHasMoved)
{
    grid.SetRowCount(50000);
    grid.UpdateWindow();
    const auto barOnScreen = [&]
    {
        CRect window;
        grid.GetWindowRect(&window);
        CWindowDC dc(&grid);
        std::vector<COLORREF> pixels;
        for (int y = 20; y < 180; ++y)
            pixels.push_back(dc.GetPixel(window.Width() - 8, y));
        return pixels;
    };
    const auto atTop = barOnScreen();
    Scroll(WM_VSCROLL, SB_LINEDOWN, 3);
    EXPECT_TRUE(barOnScreen() == atTop);
    Scroll(WM_VSCROLL, SB_BOTTOM);
    EXPECT_TRUE(barOnScreen() == atTop) << "not before the paint";
    grid.UpdateWindow();
    EXPECT_FALSE(barOnScreen() == atTop);
    // A change of the range alone repaints nothing of the client area, and yet the bar.
    Scroll(WM_VSCROLL, SB_TOP);
    grid.SetRowCount(100);
    grid.UpdateWindow();
    const auto shorter = barOnScreen();
    EXPECT_FALSE(shorter == atTop);
    grid.SetRowHeight(30, 9999);
    owtest::Pump();
    const auto longer = barOnScreen();
    EXPECT_FALSE(longer == shorter);
    EXPECT_EQ(Repainted([&] { grid.DeleteRow(30); }), CRect());
    owtest::Pump();
    EXPECT_FALSE(barOnScreen() == longer);
}

TEST_F(GridGeometry, EnsureVisibleScrollsAsFarAsNeeded)
{
    grid.EnsureVisible(15, 6);
    const CRect shown = CellRect(15, 6);
    EXPECT_TRUE(shown.right <= Client().right && shown.bottom <= Client().bottom);
    grid.EnsureVisible(2, 1);
    EXPECT_EQ(grid.GetTopleftNonFixedCell(), CCellID(2, 1));
    grid.SetColumnWidth(3, 1000, TRUE);
    grid.EnsureVisible(2, 3); // wider than the window: its start shows
    EXPECT_EQ(CellRect(2, 3).left, kColWidth);
    grid.SetColumnWidth(0, 290, TRUE);
    grid.EnsureVisible(20, 6); // comes back even where nothing fits
    grid.SetRowHeight(0, 250);
    grid.EnsureVisible(20, 6);
    OpenGrid(9, 9, 1, 1).EnsureVisible(8, 8);
    SetSizes(grid);
    grid.EnsureVisible(INT_MAX, INT_MIN);
    EXPECT_GT(grid.GetTopleftNonFixedCell().row, 1) << "as far as there are rows";
}

TEST_F(GridGeometry, CellsSizeTheirRowsAndColumns)
{
    grid.SetItemText(0, 2, L"a heading that is wider than the rest");
    const int nHeading = grid.GetCellTextExtent(0, 2).cx, nBody = grid.GetCellTextExtent(10, 2).cx;
    for (const auto& [nStyle, nWidth] : {std::pair(1, nHeading), {2, nBody}, {3, nHeading}})
    {
        EXPECT_TRUE(grid.AutoSizeColumn(2, nStyle));
        EXPECT_EQ(grid.GetColumnWidth(2), nWidth);
    }
    grid.SetColumnWidth(3, 0, TRUE);
    EXPECT_FALSE(grid.AutoSizeColumn(3));
    grid.AutoSizeColumns();
    const int nRange = grid.m_nHScrollMax;
    grid.ResetScrollBars();
    EXPECT_EQ(grid.m_nHScrollMax, nRange) << "that of the new widths";
    for (const int nCol : {0, kCols - 1})
        EXPECT_LT(grid.GetColumnWidth(nCol), kColWidth) << "of the narrow ones each";
    grid.SetRowHeight(4, 0);
    LOGFONT big = *grid.GetItemFont(5, 2);
    big.lfHeight *= 2;
    for (const CCellID cell : {CCellID(5, 2), CCellID(kRows - 1, 0)})
        grid.SetItemFont(cell.row, cell.col, &big);
    for (const bool rowsOnly : {false, true})
    {
        grid.SetColumnWidth(2, 10, TRUE);
        for (const int nRow : {0, 5, kRows - 1})
            grid.SetRowHeight(nRow, 90);
        rowsOnly ? grid.AutoSizeRows() : grid.AutoSize();
        for (const int nRow : {0, 4, 5, kRows - 1})
        {
            const int nHeight =
                std::max(grid.GetCellTextExtent(nRow, 0).cy, grid.GetCellTextExtent(nRow, 2).cy);
            EXPECT_EQ(grid.GetRowHeight(nRow), nRow == 4 ? 0 : nHeight);
        }
        EXPECT_EQ(grid.GetColumnWidth(2), rowsOnly ? 10 : nHeading);
    }
}

TEST_F(GridGeometry, ExpandingSharesTheWindowOut)
{
    grid.SetRedraw(FALSE);
    for (const int nFixed : {kCols, 1})
    {
        grid.SetFixedColumnCount(nFixed);
        grid.ExpandColumnsToFit(FALSE);
        EXPECT_EQ(grid.IsVisibleHScroll(), nFixed == kCols)
            << "the bar goes first, if there is what to expand";
    }
    grid.SetRedraw(TRUE);
    SetSizes(grid);
    grid.SetRowCount(4);
    grid.SetColumnCount(3);
    grid.ExpandColumnsToFit();
    EXPECT_EQ(grid.GetColumnWidth(0), 100);
    grid.SetColumnWidth(1, 50, TRUE);
    grid.ExpandColumnsToFit(FALSE);
    EXPECT_EQ(grid.GetColumnWidth(0), 100);
    EXPECT_EQ(grid.GetColumnWidth(1), 75);
    grid.SetColumnWidth(1, 70, TRUE);
    grid.ExpandLastColumn();
    EXPECT_EQ(grid.GetColumnWidth(2), 130);
    grid.ExpandRowsToFit();
    EXPECT_EQ(grid.GetVirtualHeight(), 200);
    grid.SetColumnWidth(1, 2000, TRUE);
    grid.ExpandLastColumn();
    EXPECT_EQ(grid.GetColumnWidth(2), 1) << "one that shows keeps a pixel, whatever room there is";
    grid.SetColumnWidth(1, 20, TRUE);
    grid.SetRowHeight(1, 150); // its bar takes room from the columns, until the rows fit
    grid.ExpandToFit(FALSE);
    EXPECT_EQ(CSize(grid.GetVirtualWidth(), grid.GetVirtualHeight()), CSize(300, 200));
}

TEST_F(GridGeometry, SizesBeyondAllBoundsKeepTheBars)
{
    grid.SetRowHeight(3, INT_MAX);
    grid.SetRowHeight(4, INT_MAX);
    grid.SetColumnWidth(2, INT_MAX, TRUE);
    EXPECT_EQ(grid.GetVirtualHeight(), INT_MAX);
    EXPECT_EQ(grid.m_nHScrollMax, INT_MAX - kColWidth - 1);
    EXPECT_TRUE(grid.IsVisibleVScroll() && grid.IsVisibleHScroll());
    EXPECT_EQ(CellRect(4, 2).BottomRight(), CPoint(INT_MAX - 1, INT_MAX - 1));
    EXPECT_EQ(grid.GetCellFromPt(CPoint(290, 190)), CCellID(3, 2));
    grid.RedrawWindow();
    Scroll(WM_HSCROLL, SB_LINERIGHT, 2);
    EXPECT_GT(grid.GetScrollPos32(SB_HORZ), kColWidth);
}

TEST_F(GridGeometry, EachWindowOfAnObjectScrollsForItself)
{
    OpenGrid bound(kRows, kCols, 1, 1);
    SetSizes(bound);
    EXPECT_EQ(bound.GetScrollPos32(SB_VERT) + bound.GetScrollPos32(SB_HORZ, TRUE), 0) << "no window";
    for (const bool draws : {true, true, false})
    {
        bound.SetRedraw(draws);
        bound.SubclassWindow(::CreateWindowEx(0, L"MFCGridCtrl", L"", WS_CHILD | WS_VISIBLE, 10, 10, 300, 200,
                                              parent, nullptr, AfxGetInstanceHandle(), nullptr));
        EXPECT_EQ((bound.GetStyle() & WS_VSCROLL) != 0, draws)
            << "for rows that were there before the window";
        EXPECT_EQ(bound.GetTopleftNonFixedCell(), CCellID(1, 1));
        EXPECT_EQ(bound.m_nVScrollMax, draws ? (kRows - 1) * kRowHeight - 1 : 0);
        EXPECT_EQ(bound.m_nHScrollMax, draws ? (kCols - 1) * kColWidth - 1 : 0);
        bound.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(90, 90));
        EXPECT_EQ(bound.GetMouseMode(), 0) << "no press is left over";
        bound.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(90, 90));
        bound.SendMessage(WM_VSCROLL, SB_BOTTOM);
        EXPECT_EQ(bound.GetTopleftNonFixedCell().row > 1, draws);
        bound.DestroyWindow();
    }
}
