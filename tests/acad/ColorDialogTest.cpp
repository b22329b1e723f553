// Colours by index, where the colour dialog puts them, and the dialog as a user works it.

#include <aced.h>

#include "../../platform/acad/src/ColorGridLayout.h"
#include "../../platform/acad/src/resource.h"
#include "Testing.h"

using owtest::Press;
using owtest::Type;

namespace
{
/// The open dialog in a user's hands.
struct ColorDialog : testing::Test
{
    static inline HWND s_dialog;

    static bool IsOpen() { return ::IsWindowVisible(s_dialog) != FALSE; }
    static HWND Item(int id) { return ::GetDlgItem(s_dialog, id); }
    static std::wstring Text(int id = IDC_COLOR_TEXT) { return owtest::TextOf(*CWnd::FromHandle(Item(id))); }
    static std::wstring Index() { return Text(IDC_COLOR_INDEX); }
    static void Click(int id) { owtest::Click(Item(id)); }
    static void Hover(CPoint point) { owtest::MoveTo(Item(IDC_COLOR_GRID), point); }
    static void MoveOff() { owtest::MoveTo(s_dialog, CPoint(1, 1)); }
    static CRect ClientOf(int id)
    {
        CRect client;
        ::GetClientRect(Item(id), &client);
        return client;
    }
    /// A colour's swatch in the grid's client area.
    static CRect Cell(int color) { return ColorGridLayout(ClientOf(IDC_COLOR_GRID).Size()).CellRect(color); }
    static void ClickSwatch(int color) { owtest::Click(Item(IDC_COLOR_GRID), Cell(color).CenterPoint()); }

    static COLORREF Pixel(int id, CPoint point)
    {
        CWnd* const control = CWnd::FromHandle(Item(id));
        control->UpdateWindow();
        return CClientDC(control).GetPixel(point);
    }
    /// In the preview: at 1 is the old colour, at 3 the new one.
    static COLORREF Preview(int quarter)
    {
        const CRect client = ClientOf(IDC_COLOR_PREVIEW);
        return Pixel(IDC_COLOR_PREVIEW, CPoint(client.Width() * quarter / 4, client.Height() / 2));
    }

    /// Opens the dialog on a colour and lets the script work it until it is closed. Whether it was accepted, and
    /// the colour afterwards.
    using Outcome = std::pair<bool, int>;
    Outcome Choose(int color, void (*script)(), bool metaColors = false, int layerColor = 0)
    {
        const owtest::ModalVisit visit(
            [&](CWnd& window)
            {
                s_dialog = window;
                MoveOff();
                script();
                EXPECT_TRUE(owtest::PumpUntil([] { return !IsOpen(); }, 1000))
                    << "the script has not closed it";
            });
        const bool accepted = acedSetColorDialog(color, metaColors, layerColor) == Adesk::kTrue;
        EXPECT_EQ(visit.Count(), 1);
        return {accepted, color};
    }
};
} // namespace

TEST_F(ColorDialog, TakesTheSwatchThatWasClicked)
{
    const auto enter = []
    {
        EXPECT_EQ(Text(), L"5") << "it opens on the start value";
        const auto isPlain = [](int color)
        {
            const CRect cell = Cell(color);
            return Pixel(IDC_COLOR_GRID, cell.TopLeft() + CSize(0, 1)) == ::GetSysColor(COLOR_BTNFACE) &&
                   Pixel(IDC_COLOR_GRID, cell.TopLeft() + CSize(1, 0)) == ::GetSysColor(COLOR_BTNFACE) &&
                   Pixel(IDC_COLOR_GRID, cell.TopLeft() + CSize(1, 1)) == acedGetRGB(color) &&
                   Pixel(IDC_COLOR_GRID, cell.BottomRight() - CSize(2, 2)) == acedGetRGB(color);
        };
        for (int color = 1; color <= 255; ++color)
            EXPECT_EQ(isPlain(color), color != 5) << color;
        ClickSwatch(30);
        EXPECT_TRUE(isPlain(5));
        EXPECT_EQ(Text(), L"30");
        EXPECT_EQ(Index(), L"Index color: 30");
        EXPECT_EQ(Text(IDC_COLOR_RGB), L"Red, green, blue: 255, 127, 0");
        EXPECT_EQ(Preview(1), RGB(0, 0, 255));
        EXPECT_EQ(Preview(3), RGB(255, 127, 0));

        const CRect cell = Cell(30);
        EXPECT_EQ(Pixel(IDC_COLOR_GRID, cell.TopLeft()), RGB(0, 0, 0)) << "framed";
        EXPECT_EQ(Pixel(IDC_COLOR_GRID, cell.TopLeft() + CSize(1, 1)), RGB(255, 255, 255));
        for (const bool focused : {true, false, true})
        {
            const CPoint mark = cell.TopLeft() + CSize(2, 2); // every other pixel
            EXPECT_NE(Pixel(IDC_COLOR_GRID, mark) == Pixel(IDC_COLOR_GRID, mark + CSize(1, 0)), focused);
            Press(VK_TAB, !focused);
        }
        ::SetFocus(Item(IDC_COLOR_GRID));
        Press(VK_RETURN);
    };
    EXPECT_EQ(Choose(5, enter), Outcome(true, 30));
    const auto cancel = []
    {
        ClickSwatch(30);
        Click(IDCANCEL);
    };
    EXPECT_EQ(Choose(5, cancel), Outcome(false, 5));
    const auto doubleClick = [] { owtest::DoubleClick(Item(IDC_COLOR_GRID), Cell(252).CenterPoint()); };
    EXPECT_EQ(Choose(1, doubleClick), Outcome(true, 252));
}

TEST_F(ColorDialog, IsWorkedByKeys)
{
    const auto arrows = []
    {
        EXPECT_EQ(::GetFocus(), Item(IDC_COLOR_GRID));
        for (WORD key : {VK_RIGHT, VK_RIGHT, VK_LEFT, VK_DOWN, VK_UP, VK_UP})
            Press(key);
        EXPECT_EQ(Text(), L"22");
        Click(IDOK);
    };
    EXPECT_EQ(Choose(10, arrows), Outcome(true, 22));
    const auto number = []
    {
        Type(L"142");
        EXPECT_EQ(::GetFocus(), Item(IDC_COLOR_TEXT)) << "a number typed over the swatches goes to the box";
        EXPECT_EQ(Index(), L"Index color: 142");
        Press(VK_RETURN);
    };
    EXPECT_EQ(Choose(7, number, true), Outcome(true, 142));
    const auto wrongNumbers = []
    {
        ::SetFocus(Item(IDC_COLOR_TEXT));
        ::SendMessage(Item(IDC_COLOR_TEXT), EM_SETSEL, 0, -1);
        for (const wchar_t* text : {L"256", L"byblock"}) // each wrong text is selected, so it is replaced
        {
            Type(text);
            EXPECT_EQ(Index(), L"");
            Press(VK_RETURN);
            EXPECT_TRUE(IsOpen());
        }
        Type(L"9\r");
    };
    EXPECT_EQ(Choose(7, wrongNumbers), Outcome(true, 9));
    const auto noChoice = []
    {
        EXPECT_EQ(Text(), L"");
        EXPECT_NE(Preview(3), ::GetSysColor(COLOR_BTNFACE)) << "struck out";
        Press(VK_RETURN);
        EXPECT_TRUE(IsOpen()) << "there is nothing to accept";
        Press(VK_ESCAPE);
    };
    EXPECT_EQ(Choose(999, noChoice), Outcome(false, 999));
}

TEST_F(ColorDialog, LayerAndBlockAreOfferedOnlyWhereAllowed)
{
    const auto lookForThem = []
    {
        EXPECT_FALSE(::IsWindowVisible(Item(IDC_COLOR_BYLAYER)) ||
                     ::IsWindowVisible(Item(IDC_COLOR_BYBLOCK)));
        Press(VK_ESCAPE);
    };
    EXPECT_EQ(Choose(7, lookForThem), Outcome(false, 7));
    const auto chooseLayer = []
    {
        Click(IDC_COLOR_BYLAYER);
        EXPECT_EQ(Text(), L"ByLayer");
        EXPECT_EQ(Preview(3), RGB(0, 255, 0)) << "in the layer's colour";
        Click(IDOK);
    };
    EXPECT_EQ(Choose(7, chooseLayer, true, 3), Outcome(true, 256));
    EXPECT_EQ(Choose(
                  256, [] { Press(VK_TAB), Type(L"byblock\r"); }, true),
              Outcome(true, 0));
}

TEST_F(ColorDialog, ReadoutFollowsTheMouse)
{
    const auto readout = []
    {
        const CPoint swatch = Cell(50).CenterPoint();
        ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
        Hover(swatch);
        EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, IDC_ARROW));
        EXPECT_EQ(Index(), L"Index color: 50");
        EXPECT_EQ(Pixel(IDC_COLOR_GRID, Cell(50).TopLeft()), ::GetSysColor(COLOR_HIGHLIGHT));
        EXPECT_EQ(Text(), L"1") << "the choice stays";
        Press(VK_RIGHT);
        EXPECT_EQ(Index(), L"Index color: 2") << "a new choice counts more";
        Hover(swatch + CSize(40, 0));
        MoveOff();
        EXPECT_TRUE(owtest::PumpUntil([] { return Index() == L"Index color: 2"; })) << "it has left";
        Press(VK_ESCAPE);
    };
    EXPECT_EQ(Choose(1, readout), Outcome(false, 1));
}

TEST(ColorIndex, HasItsKnownColors)
{
    const std::pair<int, unsigned> cases[] = {
        // as 0xRRGGBB
        {1, 0xFF0000},   {4, 0x00FFFF},   {9, 0xC0C0C0},   {10, 0xFF0000},  {12, 0xA50000}, {15, 0x7F3F3F},
        {19, 0x261313},  {20, 0xFF3F00},  {31, 0xFFBF7F},  {60, 0xBFFF00},  {90, 0x00FF00}, {150, 0x007FFF},
        {210, 0xFF00FF}, {240, 0xFF003F}, {250, 0x333333}, {255, 0xFFFFFF}, {0, 0xFFFFFF},  {256, 0xFFFFFF}};
    for (const auto& [index, color] : cases)
        EXPECT_EQ(acedGetRGB(index), RGB(color >> 16, color >> 8, color)) << "index " << index;
    for (const int outside : {-1, 257})
        EXPECT_EQ(acedGetRGB(outside), CLR_INVALID);
}

TEST(ColorGrid, EveryColorHasAPlaceOfItsOwn)
{
    const CRect client(0, 0, 365, 181); // not a multiple of the cells
    const ColorGridLayout layout(client.Size());
    for (int color = 1; color <= 255; ++color)
    {
        const CRect cell = layout.CellRect(color);
        EXPECT_EQ(layout.HitTest(cell.CenterPoint()), color);
        EXPECT_EQ(CRect(cell & client), cell) << color << " lies inside";
    }
    EXPECT_TRUE(layout.CellRect(0).IsRectEmpty() && layout.CellRect(256).IsRectEmpty());
    EXPECT_EQ(layout.HitTest(CPoint(-1, 0)), kNoColor);
    EXPECT_EQ(layout.HitTest(layout.CellRect(9).CenterPoint() + CSize(30, 0)), kNoColor) << "in the gap";
}

TEST(ColorGrid, ArrowsGoToTheNeighbour)
{
    constexpr auto sideways = &ColorGridLayout::Sideways, vertically = &ColorGridLayout::Vertically;
    const std::tuple<int (*)(int, int), int, int, int> cases[] = {
        {sideways, 10, +1, 20},     {sideways, 10, -1, 10}, // stays at the border
        {vertically, 10, -1, 12},   {vertically, 10, +1, 11}, {vertically, 18, -1, 18},
        {sideways, 9, +1, 250}, // over the gap
        {sideways, 250, -1, 9},     {sideways, 255, +1, 255}, {vertically, 19, +1, 1},
        {vertically, 249, +1, 255}, {vertically, 119, +1, 9}, // above the gap, nearer to the standard colours
        {vertically, 179, +1, 250},                           // above the gap, nearer to the greys
        {vertically, 1, +1, 1}};
    for (const auto& [arrow, from, step, to] : cases)
        EXPECT_EQ(arrow(from, step), to) << from;
}
