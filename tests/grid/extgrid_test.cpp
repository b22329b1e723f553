// The extended grids: what their handlers are told, and the colours of the cells after each move.

#include "GridFixture.h"

#include "grid/ExtGridParts.h"

namespace
{
using Calls = GridParent::Calls;

constexpr COLORREF kWhite = RGB(255, 255, 255), kBlue = RGB(0xE0, 0xE0, 0xFF);
constexpr COLORREF kBand = RGB(255, 240, 200), kBandCrossed = RGB(0xE0, 0xD1, 200);
constexpr COLORREF kBody = RGB(250, 250, 240), kBodyCrossed = RGB(0xDB, 0xDB, 0xF0);

/// Hears for both kinds of grid, and writes down each call as "77 row 2 after -1; ".
class Handler : public AExtGridCtrlNotificationHandler,
                public AExtGridCtrl2NotificationHandler,
                public AExtGridCtrl2ExtraHeaderSupport
{
public:
    std::string Take() { return std::exchange(m_told, {}); }

    std::function<bool(const CString&)> accepts = [](const CString&) { return true; };
    std::function<void()> onChange = [] {};
    int bandRows = 0;

    void OnExtGridRowChanged(int nId, int nRow, int nPrevRow) override
    {
        Note("%d row %d after %d", nId, nRow, nPrevRow);
        onChange();
    }
    bool OnExtGridEndEdit(int nId, int nRow, int nCol, const CString* pText) override
    {
        Note("%d text %d,%d %ls", nId, nRow, nCol, pText->GetString());
        return accepts(*pText);
    }
    void OnExtGridRClick(int nId, int nRow) override { Note("%d rclick %d", nId, nRow); }

    void OnExtGrid2CellChanged(int nId, CCellID cell, CCellID prevCell) override
    {
        Note("%d cell %d,%d after %d,%d", nId, cell.row, cell.col, prevCell.row, prevCell.col);
        onChange();
    }
    bool OnExtGrid2EndEdit(int nId, CCellID cell, const CString* pText) override
    {
        return OnExtGridEndEdit(nId, cell.row, cell.col, pText);
    }
    void OnExtGrid2RClick(int nId, CCellID cell) override
    {
        Note("%d rclick %d,%d", nId, cell.row, cell.col);
    }

    std::string asked; ///< about the extra header: 'n', 'h', 'b'
    int GetExtraHeaderColor() override { return asked += 'h', kBand; }
    int GetExtraHeaderCount() override { return asked += 'n', bandRows; }
    int GetBodyColor() override { return asked += 'b', kBody; }

private:
    template <class... Parts>
    void Note(const char* format, Parts... parts)
    {
        CStringA text;
        text.Format(format, parts...);
        m_told += text.GetString() + std::string("; ");
    }

    std::string m_told;
};

Handler s_handler; ///< of all grids below

struct RowGrid : CExtGridCtrl
{
    RowGrid() : CExtGridCtrl(&s_handler) {}
    using CExtGridCtrl::IsVisibleVScroll;
    using CExtGridCtrl::m_crSelectedRow;
};
struct CrossGrid : CExtGridCtrl2
{
    CrossGrid() : CExtGridCtrl2(&s_handler, &s_handler) {}
    using CExtGridCtrl2::m_crSelected;
};

/// The background of each cell, row by row: '.' inherited, 'w' white, '#' the plain colour of what is current,
/// 'B' band, 'G' body, 'b' and 'g' the same under the cross.
std::string ColoursOf(const CGridCtrl& grid)
{
    const std::map<COLORREF, char> letters = {{CLR_INHERIT, '.'}, {kWhite, 'w'},       {kBlue, '#'},
                                              {kBand, 'B'},       {kBandCrossed, 'b'}, {kBody, 'G'},
                                              {kBodyCrossed, 'g'}};
    std::string text;
    for (int nRow = 0; nRow < grid.GetRowCount(); ++nRow, text += ' ')
        for (int nCol = 0; nCol < grid.GetColumnCount(); ++nCol)
            text += letters.at(grid.GetItemBkColour(nRow, nCol));
    return text;
}

/// Five rows and four columns, the first of each fixed. Row 1 and column 1 are the first of the body.
template <class Grid>
class ExtTest : public GridTestOf<Grid>
{
protected:
    void SetUp() override
    {
        GridTestOf<Grid>::SetUp();
        grid.SetRowCount(5);
        grid.SetColumnCount(4);
        handler = {};
    }
    std::string Enter(const wchar_t* text)
    {
        handler.Take();
        grid.SetFocus();
        owtest::Type(text);
        this->EndByKey(VK_RETURN);
        return handler.Take();
    }
    LRESULT Notify(UINT nCode, int nRow, int nCol)
    {
        GridNotify record{{grid.m_hWnd, kGridId, nCode}, nRow, nCol};
        return this->parent.SendMessage(WM_NOTIFY, kGridId, reinterpret_cast<LPARAM>(&record));
    }
    std::string Colours() const { return ColoursOf(grid); }
    std::string Told() { return handler.Take() + Colours(); }

    using GridTestOf<Grid>::grid;
    Handler& handler = s_handler;
};
using ExtGrid = ExtTest<RowGrid>;
using ExtGrid2 = ExtTest<CrossGrid>;
} // namespace

TEST_F(ExtGrid, AUserMovesTheCurrentRow)
{
    grid.SetItemBkColour(2, 1, RGB(1, 2, 3));
    ClickCell(2, 2);
    EXPECT_EQ(Told(), "77 row 2 after -1; .... .... .### .... .... ");

    ClickCell(2, 3);
    EXPECT_EQ(handler.Take(), "") << "another cell of the same row";
    owtest::Press(VK_DOWN);
    EXPECT_EQ(Told(), "77 row 3 after 2; .... .... .www .### .... ")
        << "white, whatever the row's colours were";
    ClickCell(0, 2);
    EXPECT_EQ(Told(), "77 row 1 after 3; .... .### .www .www .... ") << "a heading stands for the first row";

    EXPECT_EQ(parent.Take(),
              (Calls{"changing 2,2", "click 2,2", "changing 2,3", "click 2,3", "changing 0,2", "click 0,2"}))
        << "what the handler is not told reaches the parent";
}

TEST_F(ExtGrid, TheHandlerDecidesAboutAnEdit)
{
    grid.SetFocusCell(2, 2);
    EXPECT_EQ(Enter(L"IPE 200"), "77 text 2,2 IPE 200; ");
    EXPECT_EQ(grid.GetItemText(2, 2), L"IPE 200");
    handler.accepts = [&](const CString& text) { return grid.GetItemText(2, 2) != text; };
    EXPECT_EQ(Enter(L"x"), "77 text 2,2 x; ");
    EXPECT_EQ(grid.GetItemText(2, 2), L"IPE 200")
        << "refused; the cell held it already when the handler was asked";
    EXPECT_EQ(parent.Take(), Calls(2, "begin 2,2")) << "of the end only the handler hears";
}

TEST_F(ExtGrid, SelectRowExMakesARowCurrentOnce)
{
    grid.SelectRowEx(3, 1);
    grid.SelectRowEx(3, 2);
    grid.SelectRowEx(5, 1);
    EXPECT_EQ(handler.Take(), "77 row 3 after -1; ");
    EXPECT_EQ(grid.GetFocusCell(), CCellID()) << "the focus is another matter";

    grid.SelectRowEx(0, 1); // is remembered as it is, and loses its colour as if it had been painted
    EXPECT_EQ(Colours(), ".... .### .... .www .... ");
    grid.SelectRowEx(1, 1);
    EXPECT_EQ(Told(), "77 row 1 after 3; 77 row 1 after 0; .www .### .... .www .... ");
}

TEST_F(ExtGrid, AChangeSwitchesDrawingOnAndScrollsNothing)
{
    grid.SetRedraw(FALSE);
    grid.SetRowCount(100);
    EXPECT_FALSE(grid.IsVisibleVScroll());
    const CRect repainted = Repainted([&] { grid.SelectRowEx(90, 1); });
    EXPECT_TRUE(grid.IsVisibleVScroll()) << "the bars are brought up to date, too";
    EXPECT_EQ(repainted, Client());
    EXPECT_EQ(grid.GetScrollPos(SB_VERT), 0);
    EXPECT_TRUE(grid.RedrawCell(1, 1)) << "which it does not do while drawing is off";
}

TEST_F(ExtGrid, AHandlerMayTakeRowsOrTheWindowAway)
{
    handler.onChange = [] { AfxThrowUserException(); }; // which shows no box
    grid.SetFocusCell(3, 1);
    handler.onChange = [&] { grid.SetRowCount(2); };
    grid.SetFocusCell(4, 1);
    EXPECT_EQ(Told(), "77 row 3 after -1; 77 row 4 after -1; .... .... ")
        << "the exception is not the caller's";

    handler.onChange = [&] { grid.DestroyWindow(); };
    grid.SetFocusCell(1, 1);
    EXPECT_EQ(Told(), "77 row 1 after 4; .... .### ");
    grid.SetRowCount(3);
    grid.SelectRowEx(2, 1);
    EXPECT_EQ(handler.Take(), "0 row 2 after 1; ") << "without a window there is no id";
    GridNotify foreign{{nullptr, 0, NM_RCLICK}, 1, 1};
    parent.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&foreign));
    EXPECT_EQ(handler.Take(), "") << "and nobody else's notification is the grid's";
}

TEST_F(ExtGrid, TheHookAnswersForTheParent)
{
    parent.answer = [](NMHDR&) { return 77; };
    handler.accepts = [](const CString& text) { return text == L"2/1"; };
    EXPECT_EQ(Notify(LVN_ENDLABELEDITW, 2, 1), 0);
    EXPECT_EQ(Notify(LVN_ENDLABELEDITW, 2, 2), -1);
    for (const UINT nCode : {LVN_ITEMCHANGED, NM_RCLICK})
        for (const int nRow : {3, 0, 5})
            EXPECT_EQ(Notify(nCode, nRow, 1), 1);
    Send(WM_RBUTTONUP, CPoint(290, 190)); // outside all cells
    EXPECT_EQ(Notify(NM_CLICK, 2, 1), 77) << "of all others the parent's answer";
    EXPECT_EQ(handler.Take(), "77 text 2,1 2/1; 77 text 2,2 2/2; 77 row 3 after -1; 77 row 1 after 3; 77 "
                              "rclick 3; 77 rclick 1; 77 rclick 1; ");
    const std::string before = Colours();
    grid.m_crSelectedRow = CLR_NONE;
    grid.SelectRowEx(4, 1);
    EXPECT_EQ(Colours(), before) << "told, and not painted";
}

TEST(ExtGridHook, GridsOfOneParentComeAndGoInAnyOrder)
{
    GridParent& parent = SharedParent();
    for (const int goesFirst : {0, 1})
    {
        Handler handlers[2];
        auto* const pOfTemplate = new CExtGridCtrl(&handlers[0]);
        std::unique_ptr<CGridCtrl> grids[] = {std::unique_ptr<CGridCtrl>(pOfTemplate),
                                              std::make_unique<CExtGridCtrl2>(&handlers[1], nullptr),
                                              std::make_unique<CGridCtrl>()};
        pOfTemplate->InstallMessageHook(); // neither a window nor a parent
        for (const auto& pGrid : grids)
        {
            pGrid->SetRowCount(3);
            pGrid->SetColumnCount(2);
        }
        for (const UINT id : {1, 2})
            ASSERT_TRUE(grids[id]->Create(CRect(0, 0, 100, 100), &parent, id));
        ASSERT_TRUE(
            pOfTemplate->SubclassWindow(::CreateWindowEx(0, L"MFCGridCtrl", L"", WS_CHILD, 0, 0, 100, 60,
                                                         parent, nullptr, AfxGetInstanceHandle(), nullptr)));
        pOfTemplate->SetFocusCell(1, 1);
        pOfTemplate->InstallMessageHook();
        pOfTemplate->InstallMessageHook(); // hooks once
        for (const auto& pGrid : grids)
            pGrid->SetFocusCell(2, 1);
        EXPECT_EQ(handlers[0].Take(), "0 row 2 after -1; ");
        EXPECT_EQ(handlers[1].Take(), "1 cell 2,1 after -1,-1; ");
        EXPECT_EQ(ColoursOf(*grids[1]), ".# .# ## ") << "without an extra header";
        EXPECT_EQ(parent.Take(), (Calls{"changed 1,1", "changed 2,1"})) << "unhooked, and of the plain grid";
        const int stays = 1 - goesFirst;
        grids[goesFirst].reset();
        grids[stays]->SetFocusCell(0, 0);
        EXPECT_EQ(handlers[stays].Take() + ColoursOf(*grids[stays]),
                  stays ? "1 cell 0,0 after 2,1; ## #w #w " : "0 row 0 after 2; ## .. ww ");
    }
}

TEST(ExtGridHook, AParentWithoutAnObjectIsNamedByOneThatLasts)
{
    struct TellingGrid : public CGridCtrl
    {
        using CGridCtrl::CGridCtrl;
        void OnGridEndEdit(NMHDR*, LRESULT*) {}
        void OnGridRClick(NMHDR*, LRESULT*) {}
        void OnGridSelChanged(NMHDR*, LRESULT*) { ++changes; }
        int changes = 0;
    } grid(2, 2);
    const HWND parent =
        ::CreateWindowEx(0, L"STATIC", L"", WS_POPUP, 0, 0, 300, 200, nullptr, nullptr, nullptr, nullptr);
    ASSERT_TRUE(grid.Create(CRect(0, 0, 200, 100), CWnd::FromHandle(parent), kGridId));
    auto pHook = std::make_unique<CExtGridHook<TellingGrid>>(&grid);
    pHook->HookParent();
    EXPECT_NE(pHook->GetHookedWindow(), CWnd::FromHandle(parent)) << "which goes with the next idle turn";
    grid.SetFocusCell(1, 1);
    EXPECT_EQ(grid.changes, 1);
    pHook = nullptr;
    EXPECT_TRUE(::DestroyWindow(parent)) << "it is there yet";
}

TEST_F(ExtGrid2, ACrossStandsOnBandAndBody)
{
    handler.bandRows = 2;
    ClickCell(2, 2);
    EXPECT_EQ(Told(), "77 cell 2,2 after -1,-1; .... ..b. .bbb ..g. ..g. ");
    owtest::Press(VK_DOWN);
    EXPECT_EQ(Told(), "77 cell 3,2 after 2,2; .... ..b. .BbB .ggg ..g. ");
    owtest::Press(VK_LEFT);
    EXPECT_EQ(Colours(), ".... .bB. .bBB .ggg .gG. ")
        << "both old directions rest, both new ones are crossed";
    ClickCell(3, 1);
    EXPECT_EQ(handler.Take(), "77 cell 3,1 after 3,2; ") << "a click on the current cell is no change";
    EXPECT_EQ(handler.asked, "nhbnhbnhb") << "once for each change, the count first";
    grid.m_crSelected = CLR_NONE;
    grid.SelectCellEx(1, 3);
    EXPECT_EQ(Told(), "77 cell 1,3 after 3,1; .... .bB. .bBB .ggg .gG. ") << "told, and not painted";
}

TEST_F(ExtGrid2, EditsAndRightClicksComeWithTheirCell)
{
    grid.SetFocusCell(2, 3);
    EXPECT_EQ(Enter(L"7"), "77 text 2,3 7; ");
    for (const CPoint point : {MiddleOf(grid, 0, 2), MiddleOf(grid, 3, 0)})
        Send(WM_RBUTTONUP, point);
    EXPECT_EQ(handler.Take(), "77 cell 1,2 after 2,3; 77 rclick 1,2; 77 cell 3,1 after 1,2; 77 rclick 3,1; ");
    for (const auto& [nCode, cell] : {std::pair(NM_RCLICK, CCellID(5, 1)),
                                      {NM_RCLICK, {1, 4}},
                                      {LVN_ITEMCHANGED, {1, 4}},
                                      {LVN_ITEMCHANGED, {2, 2}}})
        EXPECT_EQ(Notify(nCode, cell.row, cell.col), 1);
    EXPECT_EQ(handler.Take(), "77 cell 2,2 after 3,1; ") << "none past the end";
}

TEST_F(ExtGrid2, SelectCellExTellsTheSameCellAgain)
{
    grid.SelectCellEx(2, 2);
    grid.SelectCellEx(2, 2);
    grid.SelectCellEx(2, 4);
    grid.SelectCellEx(5, 2);
    EXPECT_EQ(handler.Take(), "77 cell 2,2 after -1,-1; 77 cell 2,2 after -1,-1; ");

    // A fixed address is remembered as it is, and rests in its turn, in the band, be it empty.
    handler.bandRows = 0;
    grid.SelectCellEx(0, 0);
    EXPECT_EQ(Told(), "77 cell 1,1 after 2,2; .... .ggg .gGG .gG. .gG. ");
    grid.SelectCellEx(3, 3);
    EXPECT_EQ(Told(), "77 cell 3,3 after 0,0; .BBB Gggg GgGg Gggg GgGg ");
}
