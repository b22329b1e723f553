// Rows, columns, cells: counts, addresses, items, defaults.

#include "GridFixture.h"

namespace
{
/// A grid without a window, 4 by 3 with one fixed row and column, each cell with its place as text.
class GridStorage : public ::testing::Test
{
protected:
    GridStorage() : grid(4, 3, 1, 1) { FillWithPlaces(grid); }
    std::wstring Text(int nRow, int nCol) { return grid.GetItemText(nRow, nCol).GetString(); }
    OpenGrid grid;
};

constexpr UINT kPieces = 41; ///< a format in grid.rc

/// What cell (2, 1) could be given, of each kind.
GV_ITEM FullItem()
{
    GV_ITEM item{.row = 2,
                 .col = 1,
                 .mask = GV_MASK_ALL,
                 .nState = CELL_SELECTED,
                 .nFormat = DT_RIGHT,
                 .iImage = 5,
                 .crBkClr = RGB(9, 8, 7),
                 .crFgClr = RGB(6, 5, 4),
                 .lParam = 42,
                 .nMargin = 11,
                 .strText = L"text"};
    item.lfFont.lfHeight = -33;
    return item;
}

std::vector<LONGLONG> ValuesOf(const GV_ITEM& i)
{
    return {i.strText.GetLength(), i.iImage, i.lParam, i.nState, i.crBkClr, i.crFgClr, i.nFormat,
            i.lfFont.lfHeight,     i.nMargin};
}
} // namespace

TEST_F(GridStorage, NewColumnsAndRowsTakeTheirSizesFromFormatAndHeading)
{
    grid.GetDefaultCell(FALSE, FALSE)->SetWidth(33);
    grid.GetDefaultCell(FALSE, TRUE)->SetWidth(44);
    grid.SetColumnCount(5);
    EXPECT_EQ(grid.GetColumnWidth(4), 44) << "from the fixed columns";
    EXPECT_EQ(grid.InsertColumn(L"new", DT_RIGHT, 3), 3);
    EXPECT_EQ(grid.GetItemFormat(2, 3), static_cast<UINT>(DT_RIGHT));
    EXPECT_EQ(grid.GetColumnWidth(3), grid.GetTextExtent(0, 3, L"new").cx);
    grid.GetDefaultCell(TRUE, FALSE)->SetHeight(55);
    EXPECT_EQ(grid.InsertRow(L"", 2), 2);
    EXPECT_EQ(grid.GetRowHeight(2), 55);
    EXPECT_EQ(grid.InsertRow(L"new", 2), 2);
    EXPECT_EQ(grid.GetRowHeight(2), grid.GetTextExtent(2, 0, L"new").cy);
}

TEST_F(GridStorage, CellsThatBecomeFixedLoseTheirColoursAndTheirsAloneComeBack)
{
    grid.SetItemBkColour(2, 0, RGB(1, 2, 3));
    grid.SetItemBkColour(2, 1, RGB(1, 2, 3));
    grid.SetFixedRowCount(3);
    EXPECT_EQ(grid.GetItemBkColour(2, 1), CLR_INHERIT);
    grid.SetItemBkColour(2, 0, RGB(1, 2, 3));
    grid.SetItemBkColour(2, 1, RGB(1, 2, 3));
    grid.SetFixedRowCount(1);
    EXPECT_EQ(grid.GetItemState(2, 0), CELL_FIXED | CELL_FIXEDCOL) << "still a cell of a fixed column";
    EXPECT_EQ(grid.GetItemBkColour(2, 0), RGB(1, 2, 3));
    EXPECT_EQ(grid.GetItemState(2, 1), 0u);
    EXPECT_EQ(grid.GetItemBkColour(2, 1), CLR_INHERIT);
}

TEST_F(GridStorage, AnAddressOutOfRangeAnswersNothing)
{
    for (const auto& [r, c] : {std::pair(-1, 0), {0, -1}, {4, 0}, {0, 3}, {INT_MAX, INT_MIN}})
    {
        for (const LONGLONG answer : std::initializer_list<LONGLONG>{
                 grid.SetItemImage(r, c, 1), grid.SetItemFont(r, c, nullptr), grid.RedrawCell(r, c),
                 grid.IsCellVisible(r, c), grid.GetCellRect(r, c, CRect()), grid.IsItemEditing(r, c),
                 grid.GetItemText(r, c).GetLength(), grid.GetItemData(r, c), grid.GetItemImage(r, c) + 1,
                 grid.GetCellTextExtent(r, c).cx})
            EXPECT_EQ(answer, 0);
        EXPECT_NE(grid.GetItemFont(r, c), nullptr) << "never fails";
        EXPECT_TRUE(grid.IsCellEditable(r, c)) << "a missing cell has no state";
        grid.OnEditCell(r, c, CPoint(), 'x');
    }
    EXPECT_EQ(grid.GetRowHeight(4), -1);
    for (const BOOL done :
         {grid.SetRowHeight(1, -5), grid.SetRowCount(-1), grid.SetFixedColumnCount(-1), grid.AutoSizeRow(9),
          grid.SetCellType(2, 1, RUNTIME_CLASS(CObject)), grid.SetDefaultCellType(RUNTIME_CLASS(CObject)),
          grid.IsValid(CCellRange(0, 0, 4, 2)), grid.IsValid(CCellRange(2, 0, 1, 2))})
        EXPECT_FALSE(done);
    grid.AutoFill(); // there is no window to fill
    EXPECT_TRUE(grid.IsValid(CCellRange(0, 0, 3, 2)));
}

TEST_F(GridStorage, ItemsGoInAndOutByMask)
{
    GV_ITEM item = FullItem();
    const auto values = [&]
    {
        GV_ITEM all = FullItem();
        EXPECT_TRUE(grid.GetItem(&all));
        return ValuesOf(all);
    };
    for (int bit = 0; bit <= 8; ++bit)
    {
        grid.SetCellType(2, 1, RUNTIME_CLASS(CGridCell));
        std::vector<LONGLONG> expected = values();
        item.mask = 1 << bit;
        EXPECT_TRUE(grid.SetItem(&item));
        expected[bit] = ValuesOf(item)[bit];
        if (item.mask != GV_MASK_STATE) // marked first, and then given a state without the mark
            expected[3] |= CELL_MODIFIED;
        EXPECT_EQ(values(), expected) << bit;
    }
    EXPECT_TRUE(grid.IsCellSelected(2, 1));
    EXPECT_FALSE(grid.SetItem(nullptr) || grid.GetItem(nullptr));

    grid.SetModified(FALSE, 2, -1); // of no cell: of all
    grid.SetItemBkColour(2, 1, 0);
    EXPECT_FALSE(grid.GetModified(2, 1) || grid.GetModified());
    item.mask = 0;
    grid.SetItem(&item);
    EXPECT_TRUE(grid.GetModified(2, 1)) << "whatever the mask holds";
    grid.SetModified(FALSE, 2, 1);
    EXPECT_TRUE(grid.GetModified(-1, 1) && !grid.GetModified(2, 1)) << "as far as the grid knows";
    grid.SetItemTextFmtID(2, 1, kPieces, 3, L"IPE 200");
    EXPECT_EQ(Text(2, 1), L"3 of IPE 200");
}

TEST(GridCells, MayKeepNothingAtAll)
{
    OpenGrid grid;
    ASSERT_TRUE(PlaceGrid(grid, SharedParent()));
    EXPECT_TRUE(grid.SetDefaultCellType(RUNTIME_CLASS(CGridCellBase)));
    grid.SetRowCount(5);
    grid.SetColumnCount(3);
    grid.SetFixedRowCount(1);
    EXPECT_EQ(grid.InsertRow(L"lost"), 5);
    EXPECT_TRUE(grid.SetCellType(3, 1, RUNTIME_CLASS(CGridCell)));
    grid.SetItemText(3, 1, L"-7");
    grid.RedrawWindow();
    grid.SetFocusCell(2, 1);
    grid.StartEditCell();
    EXPECT_NE(grid.GetItemFont(2, 1), nullptr);
    EXPECT_TRUE(grid.SortTextItems(1, TRUE));
    EXPECT_EQ(grid.GetItemText(5, 1), L"-7") << "no text sorts as an empty one";
    EXPECT_TRUE(grid.SortItems(CGridCtrl::pfnCellNumericCompare, 1, TRUE));
    EXPECT_EQ(grid.GetItemText(1, 1), L"-7");
    grid.AutoSize();
    EXPECT_FALSE(CGridCell().Edit(1, 1, CRect(0, 0, 50, 20), CPoint(), InPlaceControlId, 'x'));
}

TEST(GridDefaults, CreateForgetsSizesAndGivesASunkenEdge)
{
    OpenGrid grid(3, 3, 1, 1);
    grid.SetRowHeight(1, 77);
    grid.SetDefCellHeight(23);
    grid.SetDefCellWidth(71);
    grid.SetDefCellMargin(9);
    ASSERT_TRUE(PlaceGrid(grid, SharedParent()));
    EXPECT_TRUE(grid.GetRowHeight(1) == 23 && grid.GetColumnWidth(1) == 71 && grid.GetDefCellMargin() == 9);
    for (const bool bRow : {true, false})
        EXPECT_EQ(grid.GetDefaultCell(bRow, !bRow)->GetMargin(), 9u);
    EXPECT_TRUE(grid.GetExStyle() & WS_EX_CLIENTEDGE);
    EXPECT_FALSE(OpenGrid().Create(CRect(), std::make_unique<CWnd>().get(), kGridId)) << "in no window";
    EXPECT_EQ(CGridCtrl::nFirstGridIconIdx, 11) << "behind the marks";
    grid.AutoFill();
    EXPECT_EQ(grid.GetRowCount(), 200 / 23 + 1);
    EXPECT_EQ(grid.GetVirtualWidth(), 300);
    EXPECT_TRUE(grid.IsCellFixed(0, 1) && grid.IsCellFixed(1, 0) && !grid.IsCellFixed(1, 1));
}

TEST(GridVirtual, CellsAreMadeUpForEachCall)
{
    OpenGrid grid;
    grid.SetVirtualMode(TRUE);
    EXPECT_FALSE(grid.IsEditable() || grid.GetHeaderSort() || grid.GetFixedRowSelection() ||
                 grid.GetFixedColumnSelection());
    EXPECT_EQ(grid.GetAutoSizeStyle(), 1);
    grid.SetColumnCount(3);
    grid.SetRowCount(1000000);
    grid.SetFixedRowCount(1);
    grid.SetCallbackFunc([](GV_DISPINFO* info, LPARAM) { return info->item = FullItem(), 0; }, 0);
    GV_ITEM item;
    item.row = 2;
    item.col = 1;
    item.mask = GV_MASK_ALL;
    EXPECT_TRUE(grid.GetItem(&item));
    EXPECT_EQ(ValuesOf(item), ValuesOf(FullItem()));
    grid.SetCallbackFunc(
        [](GV_DISPINFO* info, LPARAM param)
        {
            EXPECT_EQ(std::exchange(info->item.mask, 0u), UINT(GV_MASK_ALL)) << "each time anew";
            EXPECT_EQ(info->item.strText, L"");
            info->item.strText.Format(L"%d.%d.%d", info->item.row, info->item.col, static_cast<int>(param));
            return 0;
        },
        7);
    EXPECT_TRUE(grid.GetItem(&item)); // of what was said before nothing is left
    CGridDefaultCell& body = *grid.GetDefaultCell(FALSE, FALSE);
    EXPECT_EQ(ValuesOf(item), (std::vector<LONGLONG>{5, body.GetImage(), body.GetData(), 0, body.GetBackClr(),
                                                     body.GetTextClr(), body.GetFormat(),
                                                     body.GetFont()->lfHeight, body.GetMargin()}));
    EXPECT_EQ(grid.GetItemText(999999, 2), L"999999.2.7");
    EXPECT_TRUE(grid.GetCell(0, 1)->IsFixedRow());
    EXPECT_EQ(grid.GetItemFont(0, 1)->lfHeight, grid.GetDefaultCell(TRUE, FALSE)->GetFont()->lfHeight);
    EXPECT_FALSE(grid.SetItemText(5, 1, L"x"));
    EXPECT_FALSE(grid.SetItemState(5, 1, CELL_SELECTED));
    EXPECT_TRUE(grid.GetCell(5, 1)->IsSelected()) << "the answer is 0, and the selection has changed";
    grid.SetFocusCell(CCellID(2, 2), FALSE);
    EXPECT_EQ(grid.GetItemState(2, 2), CELL_FOCUSED);
}

TEST(GridVirtual, WithoutACallbackTheParentIsAskedAndToldAhead)
{
    GridParent& parent = SharedParent();
    std::vector<CCellRange> hints;
    parent.answer = [&](NMHDR& header) -> LRESULT
    {
        GV_ITEM& item = reinterpret_cast<GV_DISPINFO&>(header).item;
        if (header.code == LVN_GETDISPINFOW)
            item.strText.Format(L"%d|%d", item.row, item.col);
        else if (header.code == LVN_ODCACHEHINT)
            hints.push_back(reinterpret_cast<GridCacheHint&>(header).range);
        return 0;
    };
    OpenGrid grid;
    grid.SetVirtualMode(TRUE);
    grid.SetRowCount(50);
    grid.SetColumnCount(4);
    ASSERT_TRUE(PlaceGrid(grid, parent));
    EXPECT_EQ(grid.GetItemText(7, 3), L"7|3");
    hints.clear();
    grid.RedrawWindow();
    EXPECT_EQ(hints, (std::vector{grid.GetVisibleNonFixedCellRange(), CCellRange()}));
    hints.clear();
    grid.AutoSizeRow(3);
    grid.AutoSizeColumn(2, GVS_DATA);
    grid.AutoSize(GVS_BOTH);
    const CCellRange done = hints.at(1);
    EXPECT_EQ(hints, (std::vector{CCellRange(3, 0, 3, 4), done, CCellRange(0, 2, 49, 2), done,
                                  CCellRange(0, 0, 49, 4), done}))
        << "one column too many for rows, which receivers bear";
    parent.answer = nullptr;
}
