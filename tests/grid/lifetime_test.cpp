// Receivers that change or destroy the grid in the middle of a notification; leaks.

#include "GridFixture.h"

/// A grid on the heap, so that a receiver can delete it.
class GridLife : public ::testing::Test
{
protected:
    void SetUp() override { Make(); }
    void TearDown() override { parent.answer = nullptr; }
    void Make()
    {
        parent.answer = nullptr;
        grid = nullptr;
        grid = std::make_unique<OpenGrid>(12, 4, 1, 1);
        ASSERT_TRUE(PlaceGrid(*grid, parent));
        FillWithPlaces(*grid);
        grid->SetFocusCell(2, 2);
        hGrid = grid->m_hWnd;
    }
    void Send(UINT message, WPARAM wParam, CPoint point = {})
    {
        ::SendMessage(hGrid, message, wParam, MAKELPARAM(point.x, point.y));
    }
    /// All that a user can do to a grid, once for each kind of notification, with the harm done in it.
    void Torment(const std::function<void()>& harm)
    {
        for (const UINT code : {NM_CLICK, NM_DBLCLK, NM_RCLICK, LVN_ITEMCHANGING, LVN_ITEMCHANGED,
                                LVN_BEGINLABELEDITW, LVN_ENDLABELEDITW})
        {
            Make();
            bool done = false;
            parent.On(code, [&] { std::exchange(done, true) ? void() : harm(); });
            UseGrid();
            EXPECT_TRUE(done) << "notification " << static_cast<int>(code) << " was not sent";
        }
    }
    void UseGrid()
    {
        const CPoint point = MiddleOf(*grid, 3, 2), header = MiddleOf(*grid, 0, 2);
        for (const CPoint pressed : {point, header})
        {
            Send(WM_LBUTTONDOWN, MK_LBUTTON, pressed);
            Send(WM_LBUTTONUP, 0, pressed);
        }
        Send(WM_KEYDOWN, VK_RIGHT);
        Send(WM_KEYDOWN, 'A');
        Send(WM_CHAR, 'x');
        EditAndEnd(VK_TAB);
        Send(WM_LBUTTONDBLCLK, MK_LBUTTON, point);
        EditAndEnd(VK_RETURN);
        Send(WM_RBUTTONUP, 0, point);
        if (::IsWindow(hGrid))
            ::SetFocus(hGrid);
        owtest::Pump();
    }
    void EditAndEnd(UINT key)
    {
        if (const HWND editor = ::GetDlgItem(hGrid, InPlaceControlId))
        {
            ::SetWindowText(editor, L"another text");
            ::SendMessage(editor, WM_CHAR, key, 0);
            owtest::Pump();
        }
    }

    using Calls = GridParent::Calls;
    void TypeInto(int nRow, int nCol, const std::function<void()>& harm = nullptr, LRESULT answer = 0)
    {
        grid->SetFocusCell(nRow, nCol);
        parent.Take();
        grid->StartEditCell();
        ::SetWindowText(::GetDlgItem(hGrid, InPlaceControlId), L"typed");
        parent.On(LVN_ENDLABELEDITW, harm, answer);
    }
    std::wstring Text(int nRow, int nCol) { return grid->GetItemText(nRow, nCol).GetString(); }
    CCellID FindTyped()
    {
        CCellID found;
        grid->GetCellRange().ForEach([&](int nRow, int nCol)
                                     { found = Text(nRow, nCol) == L"typed" ? CCellID(nRow, nCol) : found; });
        return found;
    }

    /// What moves or takes cells, and where a text in (2, 2) is afterwards.
    static inline const std::pair<void (*)(CGridCtrl&), CCellID> kChanges[] = {
        {[](CGridCtrl& g) { g.DeleteRow(1); }, {1, 2}},
        {[](CGridCtrl& g) { g.DeleteRow(2); }, {}},
        {[](CGridCtrl& g) { g.DeleteNonFixedRows(); }, {}},
        {[](CGridCtrl& g) { g.DeleteColumn(1); }, {2, 1}},
        {[](CGridCtrl& g) { g.InsertRow(L"", 1); }, {3, 2}},
        {[](CGridCtrl& g) { g.InsertColumn(L"", 0, 2); }, {2, 3}},
        {[](CGridCtrl& g) { g.SetRowCount(30); }, {2, 2}},
        {[](CGridCtrl& g) { g.SetColumnCount(2); }, {}},
        {[](CGridCtrl& g) { g.SetFixedRowCount(3); }, {2, 2}},
        {[](CGridCtrl& g) { g.SetFixedColumnCount(0); }, {2, 2}},
        {[](CGridCtrl& g) { g.SortItems(2, FALSE); }, {1, 2}},
        {[](CGridCtrl& g) { g.SortTextItems(2, FALSE); }, {1, 2}},
        {[](CGridCtrl& g) { g.SortItems(CGridCtrl::pfnCellNumericCompare, 2, TRUE); }, {1, 2}},
        {[](CGridCtrl& g) { g.AutoFill(); }, {2, 2}},
        {[](CGridCtrl& g) { g.SetVirtualMode(TRUE); }, {}},
    };

    GridParent& parent = SharedParent();
    std::unique_ptr<OpenGrid> grid;
    HWND hGrid = nullptr;
};

TEST_F(GridLife, AReceiverMayDoWhatItLikes)
{
    Torment([&] { grid->DeleteNonFixedRows(); });
    Torment([&] { grid->SetRowCount(12); });
    Torment([&] { grid->DeleteAllItems(); });
    Torment([&] { grid->DestroyWindow(); });
    Torment([&] { grid.reset(); });
    Torment([&] { grid->EndEditing(); });
    Torment([&] { grid->SetFocusCell(5, 3), grid->StartEditCell(); });
    Make();
    grid->SetVirtualMode(TRUE);
    grid->SetColumnCount(4);
    grid->SetRowCount(50);
    parent.On(LVN_GETDISPINFOW, [&] { grid->SetRowCount(std::max(grid->GetRowCount() - 3, 5)); });
    grid->RedrawWindow();
    EXPECT_LT(grid->GetRowCount(), 50);
}

TEST_F(GridLife, AChangeEndsTheEditFirstAndIsMadeOnWhatTheParentHasLeft)
{
    for (const auto& [change, cell] : kChanges)
    {
        Make();
        if (!cell.IsValid())
            grid->SetCellType(2, 2, RUNTIME_CLASS(CGridCellCombo));
        TypeInto(2, 2);
        if (cell.IsValid())
            grid->SetFocusCell(CCellID(5, 1), FALSE); // the edit goes on
        change(*grid);
        EXPECT_EQ(parent.Take(), (Calls{"begin 2,2", "end 2,2"}));
        ::SetFocus(parent);
        EXPECT_TRUE(owtest::PumpUntil([&] { return grid->GetDlgItem(InPlaceControlId) == nullptr; }));
        EXPECT_EQ(FindTyped(), cell);
        EXPECT_EQ(parent.Take(), Calls{}) << "told once";

        Make();
        TypeInto(2, 2, [&] { grid->DeleteAllItems(); });
        change(*grid);
        EXPECT_EQ(FindTyped(), CCellID());
        Make();
        TypeInto(2, 2, [&] { grid.reset(); });
        change(*grid);
        EXPECT_EQ(grid, nullptr);
    }
}

TEST_F(GridLife, ARefusedTextIsTakenBackFromItsOwnCellOnly)
{
    // What the parent does, and the texts of the rows 4 and 5 then.
    const std::tuple<void (*)(CGridCtrl&), const wchar_t*, const wchar_t*> cases[] = {
        {[](CGridCtrl& g) { g.InsertRow(L"", 1); }, L"3/2", L"4/2"},
        {[](CGridCtrl& g) { g.DeleteRow(4); }, L"5/2", L"6/2"},
        {[](CGridCtrl& g) { g.SetCellType(4, 2, RUNTIME_CLASS(CGridCellCheck)); }, L"4/2", L"5/2"}};
    for (const auto& [change, row4, row5] : cases)
    {
        Make();
        CGridCtrl& anyGrid = *grid; // a dialog may end an edit
        TypeInto(
            4, 2, [&, change = change] { change(anyGrid); }, -1);
        anyGrid.EndEditing();
        EXPECT_EQ(Text(4, 2), row4);
        EXPECT_EQ(Text(5, 2), row5);
        owtest::Pump();
        EXPECT_EQ(parent.Take(), (Calls{"begin 4,2", "end 4,2"})) << "and asked about once";
    }
}

TEST_F(GridLife, EndsWhereItBegan)
{
    LOGFONT lf{};
    const auto live = [&](int times)
    {
        for (int i = 0; i < times; ++i)
        {
            Make();
            grid->SetItemFont(3, 3, &lf);
            grid->UpdateWindow();
            UseGrid();
            if (i % 2) // and destroyed in the middle of it
            {
                grid->SetCellType(2, 2,
                                  i % 4 == 1 ? RUNTIME_CLASS(CGridCell) : RUNTIME_CLASS(CGridCellCombo));
                grid->SetFocusCell(2, 2);
                grid->StartEditCell();
            }
            grid->SortTextItems(1, FALSE);
        }
        grid = nullptr;
        owtest::Pump();
        parent.Take();
        for (LONG idle = 0; AfxGetApp()->OnIdle(idle); ++idle) // what MFC keeps until then
            ;
    };
    live(20);
    const owtest::HandleCount handles = owtest::CountHandles();
    const size_t bytes = owtest::CountHeapBytes();
    live(80);
    EXPECT_EQ(owtest::CountHandles().gdi, handles.gdi);
    EXPECT_EQ(owtest::CountHandles().windows, handles.windows);
    EXPECT_LT(owtest::CountHeapBytes(), bytes + 2048) << "a fraction of what one life takes";
}
