// Cells that look different, by their pixels, and the one that is edited in another character set, by typing.

#include "../grid/GridFixture.h"

#include "Handles.h"
#include "Picture.h"
#include "SubLanguage.h"

#include <MixedFont.h>

#include <algorithm>
#include <set>

namespace
{
constexpr int kRow = 3, kCol = 2;
constexpr COLORREF kUntouched = RGB(255, 0, 255);
constexpr COLORREF kBack = RGB(255, 240, 200), kText = RGB(10, 20, 200);

/// A grid without a window, and a surface for one cell of it.
class DisplayCells : public ::testing::Test
{
protected:
    template <class Cell>
    Cell& Make()
    {
        EXPECT_TRUE(grid.SetCellType(kRow, kCol, RUNTIME_CLASS(Cell)));
        auto& cell = static_cast<Cell&>(*grid.GetCell(kRow, kCol));
        cell.SetBackClr(kBack);
        cell.SetTextClr(kText);
        return cell;
    }
    static BOOL Draw(owtest::Surface& to, CGridCellBase& cell, CRect rect, BOOL bErase = TRUE)
    {
        return cell.Draw(&to.dc(), kRow, kCol, rect, bErase);
    }
    /// What is said of missing things holds for every kind of cell.
    void ExpectNothingDrawn(CGridCell& cell)
    {
        owtest::Surface surface(60, 30);
        cell.SetText(L"text");
        EXPECT_FALSE(Draw(surface, cell, CRect(10, 10, 10, 20)));
        EXPECT_FALSE(Draw(surface, cell, CRect(10, 10, 20, 9)));
        EXPECT_FALSE(cell.Draw(nullptr, kRow, kCol, CRect(0, 0, 50, 20), TRUE));
        cell.SetGrid(nullptr);
        EXPECT_FALSE(Draw(surface, cell, CRect(0, 0, 50, 20)));
        EXPECT_EQ(surface.count(CRect(0, 0, 60, 30), kUntouched), 60 * 30);
        EXPECT_STREQ(cell.GetText(), L"text");
        cell.SetGrid(&grid);
    }
    CGridCtrl grid{6, 4, 1, 1};
};

template <class Cell>
class EveryDisplayCell : public DisplayCells
{
};
using Kinds = ::testing::Types<CAnsiGridCell, CPatternBkgndGridCell, CImageGridCell, CMarkedTextCell,
                               CMixedFontGridCell>;
TYPED_TEST_SUITE(EveryDisplayCell, Kinds);
} // namespace

TYPED_TEST(EveryDisplayCell, IsACellOfItsClassThatNeedsAGridAndRoom)
{
    auto& cell = this->template Make<TypeParam>();
    EXPECT_TRUE(cell.IsKindOf(RUNTIME_CLASS(TypeParam)));
    this->ExpectNothingDrawn(cell);
    cell.SetText(L"taken over");
    TypeParam copy;
    copy = cell;
    EXPECT_STREQ(copy.GetText(), L"taken over");
    EXPECT_EQ(copy.GetBackClr(), kBack);
}

// ---- Pattern ----------------------------------------------------------------------------------------------

class PatternCells : public DisplayCells
{
protected:
    static constexpr COLORREF kPattern = RGB(160, 200, 255), kLines = RGB(160, 185, 200);
    const CRect rect{8, 8, 47, 31}; // holds its last pixel

    void SetUp() override
    {
        cell = &Make<CPatternBkgndGridCell>();
        cell->SetPatternColor(kPattern);
        cell->SetPatternStyle(HS_BDIAGONAL);
    }
    std::set<COLORREF> Colours(BOOL bErase = TRUE)
    {
        owtest::Surface surface(60, 40);
        EXPECT_TRUE(Draw(surface, *cell, rect, bErase));
        std::set<COLORREF> found;
        for (int y = 0; y < 40; ++y)
            for (int x = 0; x < 60; ++x)
                found.insert(surface.at(x, y));
        found.erase(kUntouched);
        return found;
    }
    using Set = std::set<COLORREF>;
    CPatternBkgndGridCell* cell = nullptr;
};

TEST_F(PatternCells, LinesAreInTheMixAndGapsInTheBackground)
{
    for (const int style : {HS_HORIZONTAL, HS_VERTICAL, HS_FDIAGONAL, HS_BDIAGONAL, HS_CROSS, HS_DIAGCROSS})
    {
        owtest::Surface expected(60, 40), surface(60, 40);
        CBrush brush(style, kLines);
        expected.dc().SetBkColor(kBack);
        expected.dc().FillRect(CRect(8, 8, 48, 32), &brush);
        cell->SetPatternStyle(style);
        surface.dc().SetBkColor(RGB(1, 2, 3));
        EXPECT_TRUE(Draw(surface, *cell, rect, FALSE));
        EXPECT_TRUE(surface == expected) << style;
        EXPECT_EQ(surface.dc().GetBkColor(), RGB(1, 2, 3));
        EXPECT_EQ(surface.dc().GetBkMode(), OPAQUE);
        EXPECT_EQ(Colours(), (Set{kBack, kLines}));
    }
}

TEST_F(PatternCells, NeedColourAndStyle)
{
    EXPECT_EQ(cell->GetPatternColor(), kPattern);
    EXPECT_EQ(cell->GetPatternStyle(), HS_BDIAGONAL);
    cell->SetPatternStyle(77);
    EXPECT_EQ(Colours(), Set{kBack}) << "no such hatch";
    cell->SetPatternStyle(-1);
    EXPECT_EQ(Colours(), Set{kBack});
    cell->SetPatternStyle(HS_CROSS);
    cell->SetPatternColor(0xFFFFFFFF);
    EXPECT_EQ(Colours(), Set{kBack});
    CPatternBkgndGridCell fresh, copy;
    EXPECT_EQ(fresh.GetPatternStyle(), -1);
    EXPECT_EQ(fresh.GetPatternColor(), 0xFFFFFFFF);
    copy = *cell;
    EXPECT_EQ(copy.GetPatternStyle(), HS_CROSS);

    cell->SetPatternColor(kPattern);
    cell->SetBackClr(CLR_INHERIT);
    EXPECT_EQ(Colours(FALSE), Set{}) << "nothing to erase";
    EXPECT_EQ(Colours(), Set{RGB(0, 0, 0)}) << "an inherited background counts as black";
}

TEST_F(PatternCells, ShowInTheFocusAndNotInASelection)
{
    const COLORREF highlight = ::GetSysColor(COLOR_HIGHLIGHT);
    cell->SetState(CELL_SELECTED);
    EXPECT_EQ(Colours(), Set{highlight});
    cell->SetState(CELL_FOCUSED);
    EXPECT_EQ(Colours(), (Set{kBack, kLines, kText})) << "with the frame";
    cell->SetState(CELL_FOCUSED | CELL_SELECTED);
    EXPECT_EQ(Colours(), (Set{kBack, kLines, ::GetSysColor(COLOR_HIGHLIGHTTEXT)}));
    grid.SetFrameFocusCell(FALSE);
    cell->SetState(CELL_DROPHILITED);
    EXPECT_EQ(Colours(), (Set{kBack, kLines}));
}

// ---- Image ------------------------------------------------------------------------------------------------

class ImageCells : public DisplayCells
{
protected:
    static constexpr COLORREF kImage = RGB(200, 30, 30);
    static constexpr int kMargin = 4;

    void SetUp() override
    {
        CBitmap bitmap; // 10 by 6 pixels
        owtest::Surface picture(10, 6, kImage);
        CClientDC screen(nullptr);
        ASSERT_TRUE(bitmap.CreateCompatibleBitmap(&screen, 10, 6));
        CDC dc;
        dc.CreateCompatibleDC(&screen);
        CBitmap* const old = dc.SelectObject(&bitmap);
        dc.BitBlt(0, 0, 10, 6, &picture.dc(), 0, 0, SRCCOPY);
        dc.SelectObject(old);
        ASSERT_TRUE(images.Create(10, 6, ILC_COLOR32, 1, 1));
        images.Add(&bitmap, static_cast<CBitmap*>(nullptr));
        grid.SetImageList(&images);
        cell = &Make<CImageGridCell>();
        cell->SetImage(0);
        cell->SetMargin(kMargin);
    }
    CRect ImageIn(CRect rect)
    {
        owtest::Surface surface(100, 60);
        EXPECT_TRUE(Draw(surface, *cell, rect));
        return surface.extent(kImage);
    }
    CImageList images;
    CImageGridCell* cell = nullptr;
};

TEST_F(ImageCells, StandsWhereTheFormatSays)
{
    // In 51 by 39 pixels between the margins, an image of 11 by 7, as its size is counted here.
    const int left = 20 + kMargin, centre = left + 20, right = left + 40;
    const int top = 10, middle = 26, bottom = 42;
    const std::pair<DWORD, CPoint> cases[] = {
        {DT_LEFT, {left, top}},
        {DT_CENTER, {centre, top}},
        {DT_RIGHT, {right, top}},
        {DT_CENTER | DT_RIGHT, {centre, top}},
        {DT_VCENTER, {left, middle}},
        {DT_BOTTOM, {left, bottom}},
        {DT_VCENTER | DT_BOTTOM, {left, middle}},
        {DT_RIGHT | DT_BOTTOM, {right, bottom}},
        {DT_CENTER | DT_VCENTER | DT_SINGLELINE, {centre, middle}},
    };
    for (const auto& [format, place] : cases)
    {
        cell->SetFormat(format);
        EXPECT_EQ(ImageIn(CRect(20, 10, 79, 49)), CRect(place, CSize(10, 6))) << format;
    }
}

TEST_F(ImageCells, IsLeftOutWhereItDoesNotFit)
{
    cell->SetFormat(DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    EXPECT_FALSE(ImageIn(CRect(0, 0, 11, 40)).IsRectEmpty()) << "the margins are room, too";
    EXPECT_TRUE(ImageIn(CRect(0, 0, 10, 40)).IsRectEmpty());
    cell->SetMargin(0);
    EXPECT_FALSE(ImageIn(CRect(0, 0, 11, 7)).IsRectEmpty());
    EXPECT_TRUE(ImageIn(CRect(0, 0, 10, 7)).IsRectEmpty());
    EXPECT_TRUE(ImageIn(CRect(0, 0, 11, 6)).IsRectEmpty());

    for (const int missing : {-1, 1})
    {
        cell->SetImage(missing);
        EXPECT_TRUE(ImageIn(CRect(0, 0, 80, 40)).IsRectEmpty());
    }
    cell->SetImage(0);
    grid.SetImageList(nullptr);
    EXPECT_TRUE(ImageIn(CRect(0, 0, 80, 40)).IsRectEmpty());
}

TEST_F(ImageCells, LeavesRoomForItsTextOnTheRight)
{
    cell->SetText(L"\u2588\u2588"); // full blocks
    cell->SetFormat(DT_LEFT | DT_TOP | DT_SINGLELINE);
    owtest::Surface surface(100, 60);
    Draw(surface, *cell, CRect(0, 0, 99, 49));
    EXPECT_EQ(surface.extent(kImage), CRect(kMargin, 0, kMargin + 10, 6));
    EXPECT_GE(surface.extent(kText).left, 2 * kMargin + 11);
    EXPECT_LT(surface.extent(kText).left, 2 * kMargin + 11 + 4);
    EXPECT_LT(surface.extent(kText).top, 5) << "no margin at the top";
}

// ---- Mark -------------------------------------------------------------------------------------------------

namespace
{
/// Writes down the texts that it is given.
class CToldMarkedCell : public CMarkedTextCell
{
    DECLARE_DYNCREATE(CToldMarkedCell)

public:
    std::vector<std::wstring> told;
    void SetText(LPCWSTR pszText) override
    {
        told.push_back(pszText);
        CMarkedTextCell::SetText(pszText);
    }
};
IMPLEMENT_DYNCREATE(CToldMarkedCell, CMarkedTextCell)
} // namespace

TEST_F(DisplayCells, AMarkIsAStarBehindTheTextThatOnlyPaintingKnows)
{
    auto& cell = Make<CToldMarkedCell>();
    const CRect rect(0, 0, 79, 24);
    owtest::Surface plain(90, 30), marked(90, 30), withStar(90, 30);
    cell.SetText(L"B 500");
    Draw(plain, cell, rect);
    cell.SetText(L"B 500*");
    Draw(withStar, cell, rect);
    cell.SetText(L"B 500");
    cell.told.clear();
    cell.Mark(true);
    EXPECT_TRUE(cell.IsMarked());
    Draw(marked, cell, rect);
    EXPECT_TRUE(marked == withStar);
    EXPECT_FALSE(marked == plain);
    EXPECT_EQ(cell.told, (std::vector<std::wstring>{L"B 500*", L"B 500"}));
    EXPECT_STREQ(cell.GetText(), L"B 500");

    CMarkedTextCell copy;
    copy = cell;
    EXPECT_TRUE(copy.IsMarked());
    copy.SetGrid(nullptr);
    copy.Mark(false);
    EXPECT_FALSE(copy.IsMarked()) << "no grid to repaint";

    cell.Mark(false);
    owtest::Surface again(90, 30);
    Draw(again, cell, rect);
    EXPECT_TRUE(again == plain);
}

// ---- Mixed fonts ------------------------------------------------------------------------------------------

class MixedFontCells : public DisplayCells
{
protected:
    void SetUp() override
    {
        cell = &Make<CMixedFontGridCell>();
        cell->SetText(kMixed);
        font = grid.GetDefaultCell(FALSE, FALSE)->GetFontObject();
    }
    /// The text at a place in the grid's font, over the empty cell.
    void DrawExpected(owtest::Surface& to, CPoint point)
    {
        CGridCell empty;
        empty.SetGrid(&grid);
        empty.SetBackClr(kBack);
        Draw(to, empty, rect);
        CFont* const old = to.dc().SelectObject(font);
        to.dc().SetTextColor(kText);
        to.dc().SetBkMode(TRANSPARENT);
        CMixedFont::TextOut(&to.dc(), point, kMixed);
        to.dc().SelectObject(old);
    }
    CSize Extent()
    {
        CClientDC dc(nullptr);
        dc.SelectObject(font);
        return CMixedFont::GetTextExtent(&dc, kMixed);
    }
    static constexpr wchar_t kMixed[] = L"N<sub>Rd</sub> <b>[kN";
    const CRect rect{5, 5, 154, 44};
    CMixedFontGridCell* cell = nullptr;
    CFont* font = nullptr;
};

TEST_F(MixedFontCells, PlaceTheTextByTheFormat)
{
    const CSize size = Extent();
    const int y = rect.top + (rect.Height() - size.cy) / 2;
    const int right = rect.right - size.cx - 2, centre = rect.left + (rect.Width() - size.cx) / 2;
    const std::pair<DWORD, int> cases[] = {{DT_LEFT, rect.left + 2},
                                           {DT_RIGHT, right},
                                           {DT_RIGHT | DT_CENTER, right},
                                           {DT_CENTER | DT_BOTTOM | DT_SINGLELINE, centre}};
    LOGFONT own = *cell->GetFont();
    own.lfHeight = -40;
    for (const auto& [format, x] : cases)
    {
        owtest::Surface expected(170, 50), surface(170, 50);
        DrawExpected(expected, CPoint(x, y));
        cell->SetFormat(format);
        cell->SetFont(&own); // makes no difference
        cell->SetMargin(9);  // nor does this
        surface.dc().SetTextColor(RGB(1, 2, 3));
        const HGDIOBJ fontBefore = surface.dc().GetCurrentFont()->GetSafeHandle();
        EXPECT_TRUE(Draw(surface, *cell, rect));
        EXPECT_TRUE(surface == expected) << format;
        EXPECT_STREQ(cell->GetText(), kMixed);
        EXPECT_EQ(surface.dc().GetTextColor(), RGB(1, 2, 3));
        EXPECT_EQ(surface.dc().GetBkMode(), OPAQUE);
        EXPECT_EQ(surface.dc().GetCurrentFont()->GetSafeHandle(), fontBefore);
    }
}

TEST_F(MixedFontCells, InheritTheTextColourAndKeepItInASelection)
{
    grid.SetTextColor(RGB(0, 100, 0));
    cell->SetText(L"\u2588");
    cell->SetTextClr(CLR_INHERIT);
    cell->SetState(CELL_SELECTED);
    owtest::Surface surface(170, 50);
    Draw(surface, *cell, rect);
    EXPECT_GT(surface.count(rect, RGB(0, 100, 0)), 20);
    EXPECT_GT(surface.count(rect, ::GetSysColor(COLOR_HIGHLIGHT)), 1000);
}

TEST_F(MixedFontCells, CutOffWhatDoesNotFit)
{
    cell->SetText(L"<b>\u2588\u2588\u2588\u2588\u2588\u2588\u2588\u2588");
    for (const DWORD format : {DT_LEFT, DT_CENTER, DT_RIGHT})
        for (const CRect& small : {CRect(60, 10, 79, 40), CRect(60, 20, 200, 23)})
        {
            owtest::Surface surface(250, 50);
            cell->SetFormat(format);
            Draw(surface, *cell, small);
            EXPECT_EQ(surface.count(CRect(0, 0, 250, 50), kUntouched),
                      250 * 50 - (small.Width() + 1) * (small.Height() + 1));
            EXPECT_GT(surface.count(CRect(0, 0, 250, 50), kText), 40);
            surface.dc().FillSolidRect(0, 0, 5, 5, kText);
            EXPECT_EQ(surface.at(0, 0), kText) << "the clip box is back";
        }
}

// ---- On the screen ----------------------------------------------------------------------------------------

class ShownDisplayCells : public GridTest
{
protected:
    template <class Cell>
    Cell& Make()
    {
        EXPECT_TRUE(grid.SetCellType(kRow, kCol, RUNTIME_CLASS(Cell)));
        return static_cast<Cell&>(*grid.GetCell(kRow, kCol));
    }
    CEdit& Editor() { return static_cast<CEdit&>(*grid.GetDlgItem(InPlaceControlId)); }
};

TEST_F(ShownDisplayCells, AMarkRepaintsTheGridWhenItChanges)
{
    auto& cell = Make<CMarkedTextCell>();
    CRect client;
    grid.GetClientRect(&client);
    for (const bool mark : {true, false})
    {
        grid.UpdateWindow();
        cell.Mark(mark);
        CRect update;
        EXPECT_TRUE(grid.GetUpdateRect(&update));
        EXPECT_EQ(update, client);
        grid.UpdateWindow();
        cell.Mark(mark);
        EXPECT_FALSE(grid.GetUpdateRect(&update));
    }
}

TEST_F(ShownDisplayCells, APatternRunsThroughWhateverPartIsPaintedThroughABuffer)
{
    auto& cell = Make<CPatternBkgndGridCell>();
    cell.SetBackClr(kBack);
    cell.SetPatternColor(RGB(90, 90, 255));
    cell.SetPatternStyle(HS_DIAGCROSS);
    grid.SetDoubleBuffering(TRUE);
    grid.RedrawWindow();
    CRect rect;
    grid.GetCellRect(kRow, kCol, &rect);
    const auto pixels = [&]
    {
        CClientDC dc(&grid);
        std::vector<COLORREF> found;
        for (int y = rect.top; y < rect.bottom; ++y)
            for (int x = rect.left; x < rect.right; ++x)
                found.push_back(dc.GetPixel(x, y));
        return found;
    };
    const auto whole = pixels();
    EXPECT_GT(std::count(whole.begin(), whole.end(), kBack), 100);
    grid.InvalidateRect(CRect(rect.left + 3, rect.top + 5, rect.left + 40, rect.top + 12));
    grid.UpdateWindow();
    EXPECT_EQ(pixels(), whole);
}

TEST_F(ShownDisplayCells, MixedTextIsInTheFontOfTheGridsWindow)
{
    auto& cell = Make<CMixedFontGridCell>();
    cell.SetText(L"\u2588");
    CFont font;
    font.CreatePointFont(300, L"DejaVu Sans");
    const auto drawnHeight = [&]
    {
        owtest::Surface surface(200, 100);
        cell.SetTextClr(kText);
        cell.Draw(&surface.dc(), kRow, kCol, CRect(0, 0, 199, 99), TRUE);
        return surface.extent(kText).Height();
    };
    const int before = drawnHeight();
    grid.SetFont(&font);
    EXPECT_GT(drawnHeight(), 2 * before);
}

// ---- Another character set --------------------------------------------------------------------------------

class AnsiCells : public ShownDisplayCells
{
protected:
    static constexpr int kFonts = 0x0A; ///< type of a GDI object

    static BYTE CharSetOf(CGridCellBase& cell) { return cell.GetFont()->lfCharSet; }
    void Open()
    {
        grid.SetFocusCell(kRow, kCol);
        ClickCell(kRow, kCol);
        ASSERT_TRUE(EditorOpens(kRow, kCol));
    }
    void End(WORD key)
    {
        owtest::Press(key);
        ASSERT_TRUE(EditorCloses());
    }
    owtest::SubLanguage greek{LANG_GREEK};
};

TEST_F(AnsiCells, AGridIsPreparedWhereTheCharacterSetIsAnother)
{
    const auto row = [&] { return grid.InsertRow(L"new"); };
    ClTranslator display, hindi;
    hindi.SetCurrentLanguage(MAKELANGID(LANG_HINDI, SUBLANG_DEFAULT));
    CAnsiGridCell::InitializeAnsiGrid(grid, &display);
    EXPECT_FALSE(grid.GetCell(row(), 1)->IsKindOf(RUNTIME_CLASS(CAnsiGridCell)));
    CAnsiGridCell::InitializeAnsiGrid(grid, &hindi);
    EXPECT_EQ(CharSetOf(*grid.GetDefaultCell(FALSE, FALSE)), hindi.GetCurrentCharacterSet())
        << "a language without a code page";
    CAnsiGridCell::InitializeAnsiGrid(grid);
    for (const BOOL bRow : {FALSE, TRUE})
        for (const BOOL bCol : {FALSE, TRUE})
            EXPECT_EQ(CharSetOf(*grid.GetDefaultCell(bRow, bCol)), GREEK_CHARSET);
    EXPECT_TRUE(grid.GetCell(row(), 1)->IsKindOf(RUNTIME_CLASS(CAnsiGridCell)));
    EXPECT_FALSE(grid.GetCell(1, 1)->IsKindOf(RUNTIME_CLASS(CAnsiGridCell)))
        << "the cells that were there stay";
}

TEST_F(AnsiCells, TakeALongTextUndoneAndRedoneAndAgainInTheSameCell)
{
    Make<CAnsiGridCell>();
    const int fonts = owtest::CountGdiObjects(kFonts);
    std::wstring text = Text(kRow, kCol);
    for (int i = 0; i < 2; ++i)
    {
        ASSERT_NO_FATAL_FAILURE(Open());
        EXPECT_EQ(owtest::FontOf(Editor()).lfCharSet, GREEK_CHARSET) << i;
        EXPECT_EQ(gfnWholeText(Editor()), text.c_str()) << i;
        for (const wchar_t letter : {L'\u0394', L'\u03bf', L'\u03ba', L'x', L'7'})
            owtest::Type(std::wstring(12, letter));
        const CString typed = gfnWholeText(Editor());
        EXPECT_EQ(typed.GetLength(), static_cast<int>(text.size()) + 60);
        for (int toggle = 0; toggle < 2; ++toggle)
        {
            owtest::Press('Z', false, true);
            EXPECT_NE(gfnWholeText(Editor()), typed) << "undone " << i << toggle;
            owtest::Press('Z', false, true);
            EXPECT_EQ(gfnWholeText(Editor()), typed) << "redone";
        }
        End(VK_RETURN);
        EXPECT_EQ(Text(kRow, kCol), typed.GetString());
        text = typed.GetString();

        ASSERT_NO_FATAL_FAILURE(Open());
        owtest::Type(L"dropped");
        End(VK_ESCAPE);
        EXPECT_EQ(Text(kRow, kCol), text);
        EXPECT_EQ(owtest::CountGdiObjects(kFonts), fonts) << "a font for the length of an edit";
    }
}

TEST_F(AnsiCells, TheFirstKeyDoesWhatItDoesInAnyCell)
{
    Make<CAnsiGridCell>();
    grid.SetItemText(kRow, kCol, L"abc");
    const auto editBy = [&](auto press)
    {
        ClickCell(1, 1); // a click on the focus cell would begin the edit
        ClickCell(kRow, kCol);
        press();
        ASSERT_TRUE(EditorOpens(kRow, kCol));
        End(VK_RETURN);
    };
    editBy([] { owtest::Press(VK_BACK); });
    EXPECT_EQ(Text(kRow, kCol), L"ab");
    editBy([] { owtest::Type(L"\u03b1\u03b2"); });
    EXPECT_EQ(Text(kRow, kCol), L"\u03b1\u03b2") << "replaced";
}

TEST_F(AnsiCells, AskTheTranslatorWhenMadeAndTheOneForDrawingsWhenEdited)
{
    const auto editIn = [&](CGridCell& cell)
    {
        cell.Edit(kRow, kCol, CRect(10, 10, 90, 30), CPoint(), InPlaceControlId, VK_LBUTTON);
        const BYTE charSet = owtest::FontOf(*cell.GetEditWnd()).lfCharSet;
        cell.EndEdit();
        EXPECT_TRUE(EditorCloses());
        return charSet;
    };
    const BYTE usual = CharSetOf(*grid.GetDefaultCell(FALSE, FALSE));
    ClTranslator russian;
    russian.SetCurrentLanguage(MAKELANGID(LANG_RUSSIAN, SUBLANG_DEFAULT));
    CAnsiGridCell byRussian(&russian), byDrawings;
    CPatternBkgndGridCell pattern;
    owtest::SubLanguage::SetDisplays();
    CAnsiGridCell byDisplay;
    for (CGridCell* pCell : {static_cast<CGridCell*>(&byRussian), static_cast<CGridCell*>(&byDrawings)})
    {
        pCell->SetGrid(&grid);
        EXPECT_EQ(editIn(*pCell), usual) << "back to the display's by now";
    }
    owtest::SubLanguage::Set(LANG_GREEK);
    byDisplay.SetGrid(&grid);
    EXPECT_EQ(editIn(byDisplay), usual) << "was not needed when it was made";
    EXPECT_EQ(editIn(byRussian), GREEK_CHARSET);
    pattern.SetGrid(&grid);
    EXPECT_EQ(editIn(pattern), GREEK_CHARSET);
}

TEST_F(AnsiCells, AnEditBeginsBeforeTheEditorOfTheLastOneHasClosed)
{
    auto& cell = Make<CAnsiGridCell>();
    const auto edit = [&]
    { cell.Edit(kRow, kCol, CRect(10, 10, 90, 30), CPoint(), InPlaceControlId, VK_LBUTTON); };
    edit();
    EXPECT_TRUE(cell.Edit(kRow, kCol, CRect(), CPoint(), InPlaceControlId, L'+'))
        << "goes to the open editor";
    EXPECT_STREQ(gfnWholeText(*cell.GetEditWnd()), L"3/2+");
    cell.EndEdit(); // closes by a message in the queue
    cell.OnEndEdit();
    edit();
    EXPECT_EQ(owtest::FontOf(*cell.GetEditWnd()).lfCharSet, GREEK_CHARSET);
    grid.SetFocus();
    EXPECT_TRUE(EditorCloses());

    grid.DestroyWindow();
    EXPECT_TRUE(cell.Edit(kRow, kCol, CRect(0, 0, 9, 9), CPoint(), InPlaceControlId, VK_LBUTTON))
        << "no window";
    cell.OnEndEdit();
}
