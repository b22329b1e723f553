// Cells that look different, by their pixels, and the one that is edited in another character set, by typing.

#include "../grid/GridFixture.h"

#include "Handles.h"
#include "Picture.h"
#include "SubLanguage.h"

#include <MixedFont.h>

#include <set>

namespace
{
constexpr int kRow = 3, kCol = 2;
constexpr COLORREF kUntouched = RGB(255, 0, 255), kBack = RGB(255, 240, 200), kText = RGB(10, 20, 200);

struct Canvas : owtest::Surface
{
    Canvas() : Surface(200, 60) {}
    int Count(COLORREF color) const { return count(CRect(0, 0, 200, 60), color); }
};

class DisplayCells : public GridTest
{
protected:
    template <class Cell = CGridCell>
    Cell& Make(CRuntimeClass* pClass)
    {
        EXPECT_TRUE(grid.SetCellType(kRow, kCol, pClass));
        auto& cell = static_cast<Cell&>(*grid.GetCell(kRow, kCol));
        cell.SetBackClr(kBack);
        cell.SetTextClr(kText);
        return cell;
    }
    static BOOL Draw(owtest::Surface& to, CGridCellBase& cell, CRect rect, BOOL bErase = TRUE)
    {
        return cell.Draw(&to.dc(), kRow, kCol, rect, bErase);
    }
};
} // namespace

TEST_F(DisplayCells, NeedAGridAndRoomAndAContext)
{
    for (CRuntimeClass* pClass :
         {RUNTIME_CLASS(CAnsiGridCell), RUNTIME_CLASS(CPatternBkgndGridCell), RUNTIME_CLASS(CImageGridCell),
          RUNTIME_CLASS(CMarkedTextCell), RUNTIME_CLASS(CMixedFontGridCell)})
    {
        CGridCell& cell = Make(pClass);
        Canvas canvas;
        EXPECT_FALSE(Draw(canvas, cell, CRect(10, 10, 10, 20)));
        EXPECT_FALSE(cell.Draw(nullptr, kRow, kCol, CRect(0, 0, 50, 20), TRUE));
        cell.SetGrid(nullptr);
        EXPECT_FALSE(Draw(canvas, cell, CRect(0, 0, 50, 20)));
        EXPECT_EQ(canvas.Count(kUntouched), 200 * 60);
        EXPECT_STREQ(cell.GetText(), L"3/2");
        cell.SetGrid(&grid);
    }
}

// ---- Pattern ----------------------------------------------------------------------------------------------

class PatternCells : public DisplayCells
{
protected:
    static constexpr COLORREF kPattern = RGB(160, 200, 255), kLines = RGB(160, 185, 200);
    using Set = std::set<COLORREF>;

    void SetUp() override
    {
        DisplayCells::SetUp();
        cell = &Make<CPatternBkgndGridCell>(RUNTIME_CLASS(CPatternBkgndGridCell));
        cell->SetText(L"");
        cell->SetPatternColor(kPattern);
        cell->SetPatternStyle(HS_DIAGCROSS);
    }
    Set Colours(BOOL bErase = TRUE)
    {
        Canvas canvas;
        EXPECT_TRUE(Draw(canvas, *cell, CRect(8, 8, 47, 31), bErase));
        Set found;
        for (int i = 0; i < 200 * 60; ++i)
            found.insert(canvas.at(i % 200, i / 200));
        found.erase(kUntouched);
        return found;
    }
    CPatternBkgndGridCell* cell = nullptr;
};

TEST_F(PatternCells, LinesAreInTheMixAndGapsInTheBackground)
{
    for (int style = HS_HORIZONTAL; style <= HS_DIAGCROSS; ++style)
    {
        Canvas expected, canvas;
        CBrush brush(style, kLines);
        expected.dc().SetBkColor(kBack);
        expected.dc().FillRect(CRect(8, 8, 48, 32), &brush);
        cell->SetPatternStyle(style);
        canvas.dc().SetBkColor(RGB(1, 2, 3));
        EXPECT_TRUE(Draw(canvas, *cell, CRect(8, 8, 47, 31), FALSE))
            << "its own background is always painted";
        EXPECT_TRUE(canvas == expected) << style;
        EXPECT_EQ(canvas.dc().GetBkColor(), RGB(1, 2, 3));
        EXPECT_EQ(canvas.dc().GetBkMode(), OPAQUE);
    }
}

TEST_F(PatternCells, NeedColourAndStyleAndAreNotInASelection)
{
    const std::pair<DWORD, Set> states[] = {
        {CELL_SELECTED, {::GetSysColor(COLOR_HIGHLIGHT)}},
        {CELL_FOCUSED, {kBack, kLines, kText}}, // with the frame
        {CELL_FOCUSED | CELL_SELECTED, {kBack, kLines, ::GetSysColor(COLOR_HIGHLIGHTTEXT)}},
        {0, {kBack, kLines}}};
    for (const auto& [state, colours] : states)
    {
        cell->SetState(state);
        EXPECT_EQ(Colours(), colours) << state;
    }
    CPatternBkgndGridCell copy;
    EXPECT_EQ(copy.GetPatternStyle(), -1);
    EXPECT_EQ(copy.GetPatternColor(), 0xFFFFFFFF);
    copy = *cell;
    EXPECT_EQ(copy.GetPatternStyle(), HS_DIAGCROSS);
    EXPECT_EQ(copy.GetPatternColor(), kPattern);
    EXPECT_EQ(copy.GetBackClr(), kBack);

    cell->SetBackClr(CLR_INHERIT);
    EXPECT_EQ(Colours(FALSE), Set{}) << "nothing to erase";
    EXPECT_EQ(Colours(), Set{RGB(0, 0, 0)}) << "an inherited background counts as black";
    cell->SetBackClr(kBack);
    const std::pair<COLORREF, int> incomplete[] = {{kPattern, 77}, {kPattern, -1}, {0xFFFFFFFF, HS_CROSS}};
    for (const auto& [color, style] : incomplete)
    {
        cell->SetPatternColor(color);
        cell->SetPatternStyle(style);
        for (const COLORREF back : {CLR_INHERIT, kBack})
        {
            cell->SetBackClr(back);
            EXPECT_EQ(Colours(), Set{back == kBack ? kBack : grid.GetTextBkColor()}) << color << ' ' << style;
        }
    }
}

TEST_F(PatternCells, RunThroughWhateverPartIsPaintedThroughABuffer)
{
    grid.SetDoubleBuffering(TRUE);
    CRect rect;
    grid.GetCellRect(kRow, kCol, &rect);
    const auto paint = [&](const CRect& part, Canvas& into)
    {
        grid.InvalidateRect(part);
        grid.UpdateWindow();
        CClientDC dc(&grid);
        into.dc().BitBlt(0, 0, rect.Width(), rect.Height(), &dc, rect.left, rect.top, SRCCOPY);
    };
    Canvas whole, part;
    paint(CRect(0, 0, 300, 200), whole);
    paint(CRect(rect.left + 3, rect.top + 5, rect.right - 9, rect.bottom - 8), part);
    EXPECT_TRUE(part == whole);
}

// ---- Image ------------------------------------------------------------------------------------------------

TEST_F(DisplayCells, AnImageStandsWhereTheFormatSaysIfItFits)
{
    constexpr COLORREF kImage = RGB(200, 30, 30);
    constexpr int kMargin = 4;
    CClientDC screen(nullptr);
    CBitmap bitmap; // 10 by 6 pixels
    CDC dc;
    ASSERT_TRUE(bitmap.CreateCompatibleBitmap(&screen, 10, 6) && dc.CreateCompatibleDC(&screen));
    CBitmap* const old = dc.SelectObject(&bitmap);
    dc.FillSolidRect(0, 0, 10, 6, kImage);
    dc.SelectObject(old);
    CImageList images;
    ASSERT_TRUE(images.Create(10, 6, ILC_COLOR24, 1, 1));
    images.Add(&bitmap, static_cast<CBitmap*>(nullptr));
    grid.SetImageList(&images);
    CImageGridCell cell;
    cell = Make<CImageGridCell>(RUNTIME_CLASS(CImageGridCell));
    cell.SetImage(0);
    cell.SetMargin(kMargin);
    const auto imageIn = [&](CRect rect)
    {
        Canvas canvas;
        EXPECT_TRUE(Draw(canvas, cell, rect));
        return canvas.extent(kImage);
    };
    // In 51 by 39 pixels between the margins, an image of 11 by 7, as its size is counted here.
    const int left = 20 + kMargin, centre = left + 20, right = left + 40, top = 10, middle = 26, bottom = 42;
    const std::pair<DWORD, CPoint> cases[] = {{DT_LEFT, {left, top}},
                                              {DT_CENTER | DT_RIGHT, {centre, top}},
                                              {DT_VCENTER | DT_BOTTOM, {left, middle}},
                                              {DT_RIGHT | DT_BOTTOM, {right, bottom}},
                                              {DT_CENTER | DT_VCENTER | DT_SINGLELINE, {centre, middle}}};
    for (const auto& [format, place] : cases)
    {
        cell.SetFormat(format);
        EXPECT_EQ(imageIn(CRect(20, 10, 79, 49)), CRect(place, CSize(10, 6))) << format;
    }
    EXPECT_FALSE(imageIn(CRect(0, 0, 11, 40)).IsRectEmpty()) << "the margins are room, too";
    EXPECT_TRUE(imageIn(CRect(0, 0, 10, 40)).IsRectEmpty());
    cell.SetMargin(0);
    EXPECT_FALSE(imageIn(CRect(0, 0, 11, 7)).IsRectEmpty());
    EXPECT_TRUE(imageIn(CRect(0, 0, 10, 7)).IsRectEmpty());
    EXPECT_TRUE(imageIn(CRect(0, 0, 11, 6)).IsRectEmpty());
    cell.SetImage(1); // there is none
    EXPECT_TRUE(imageIn(CRect(0, 0, 80, 40)).IsRectEmpty());
    cell.SetImage(0);
    grid.SetImageList(nullptr);
    EXPECT_TRUE(imageIn(CRect(0, 0, 80, 40)).IsRectEmpty());
}

// ---- Mark -------------------------------------------------------------------------------------------------

TEST_F(DisplayCells, AMarkIsAStarBehindTheTextThatOnlyPaintingKnows)
{
    auto& cell = Make<CMarkedTextCell>(RUNTIME_CLASS(CMarkedTextCell));
    Canvas withStar, marked, unmarked;
    cell.SetText(L"B 500*");
    Draw(withStar, cell, CRect(0, 0, 79, 24));
    cell.SetText(L"B 500");
    Draw(unmarked, cell, CRect(0, 0, 79, 24));
    for (const bool mark : {true, true, false, false, true})
    {
        const bool changes = cell.IsMarked() != mark;
        CRect client, update;
        grid.GetClientRect(&client);
        grid.UpdateWindow();
        cell.Mark(mark);
        EXPECT_EQ(grid.GetUpdateRect(&update) != FALSE, changes);
        EXPECT_EQ(update, changes ? client : CRect());
    }
    Draw(marked, cell, CRect(0, 0, 79, 24));
    EXPECT_TRUE(marked == withStar);
    EXPECT_FALSE(unmarked == withStar);
    EXPECT_STREQ(cell.GetText(), L"B 500");
    CMarkedTextCell copy;
    copy = cell;
    EXPECT_TRUE(copy.IsMarked());
    EXPECT_STREQ(copy.GetText(), L"B 500");
    grid.DestroyWindow();
    copy.Mark(false); // no window, and then no grid to repaint
    copy.SetGrid(nullptr);
    copy.Mark(true);
}

// ---- Mixed fonts ------------------------------------------------------------------------------------------

TEST_F(DisplayCells, MixedTextStandsByTheFormatInTheFontOfTheGridsWindow)
{
    constexpr wchar_t kMixed[] = L"N<sub>Rd</sub> <b>[kN"; // one mark is left open
    const CRect rect(5, 5, 154, 44);
    CFont font;
    font.CreatePointFont(150, L"DejaVu Sans");
    CMixedFontGridCell cell;
    cell = Make<CMixedFontGridCell>(RUNTIME_CLASS(CMixedFontGridCell));
    LOGFONT own = *cell.GetFont();
    own.lfHeight = -40;
    cell.SetFont(&own); // makes no difference
    cell.SetMargin(9);  // nor does this
    cell.SetText(kMixed);
    grid.SetFont(&font);
    const auto showIn = [&font](CDC& dc)
    {
        dc.SelectObject(&font);
        dc.SetTextColor(kText);
        dc.SetBkMode(TRANSPARENT);
    };
    CClientDC screen(nullptr);
    showIn(screen);
    const CSize size = CMixedFont::GetTextExtent(&screen, kMixed);
    const int y = rect.top + (rect.Height() - size.cy) / 2;
    const int right = rect.right - size.cx - 2, centre = rect.left + (rect.Width() - size.cx) / 2;
    for (const auto& [format, x] : {std::pair<DWORD, int>{DT_LEFT, rect.left + 2},
                                    {DT_RIGHT | DT_CENTER, right},
                                    {DT_CENTER | DT_BOTTOM | DT_SINGLELINE, centre}})
    {
        Canvas expected, canvas;
        expected.dc().FillSolidRect(5, 5, 150, 40, kBack);
        const HGDIOBJ before = canvas.dc().GetCurrentFont()->GetSafeHandle();
        showIn(expected.dc());
        CMixedFont::TextOut(&expected.dc(), CPoint(x, y), kMixed);
        cell.SetFormat(format);
        canvas.dc().SetTextColor(RGB(1, 2, 3));
        EXPECT_TRUE(Draw(canvas, cell, rect));
        EXPECT_TRUE(canvas == expected) << format;
        EXPECT_STREQ(cell.GetText(), kMixed);
        EXPECT_EQ(canvas.dc().GetTextColor(), RGB(1, 2, 3));
        EXPECT_EQ(canvas.dc().GetBkMode(), OPAQUE);
        EXPECT_EQ(canvas.dc().GetCurrentFont()->GetSafeHandle(), before);
    }
}

TEST_F(DisplayCells, MixedTextKeepsTheInheritedColourAndIsCutOff)
{
    auto& cell = Make<CMixedFontGridCell>(RUNTIME_CLASS(CMixedFontGridCell));
    grid.SetTextColor(RGB(0, 100, 0));
    cell.SetTextClr(CLR_INHERIT);
    cell.SetState(CELL_SELECTED);
    cell.SetText(L"<b>\u2588\u2588\u2588\u2588\u2588\u2588\u2588\u2588"); // full blocks
    for (const DWORD format : {DT_LEFT, DT_CENTER, DT_RIGHT})
        for (const CRect& small : {CRect(60, 10, 79, 40), CRect(60, 20, 180, 23)})
        {
            Canvas canvas;
            cell.SetFormat(format);
            Draw(canvas, cell, small);
            EXPECT_EQ(canvas.Count(kUntouched), 200 * 60 - (small.Width() + 1) * (small.Height() + 1));
            const bool flat = small.Height() < 10;
            const CRect last(flat ? small.left : small.right, flat ? small.bottom : small.top,
                             small.right + 1, small.bottom + 1);
            EXPECT_EQ(canvas.count(last, RGB(0, 100, 0)) > 4, flat || format != DT_RIGHT)
                << "the last pixels";
            EXPECT_GT(canvas.Count(::GetSysColor(COLOR_HIGHLIGHT)), 40);
            canvas.dc().FillSolidRect(0, 0, 5, 5, kText);
            EXPECT_EQ(canvas.at(0, 0), kText) << "the clip box is back";
        }
}

// ---- Another character set --------------------------------------------------------------------------------

class AnsiCells : public DisplayCells
{
protected:
    CEdit& Editor() { return static_cast<CEdit&>(*grid.GetDlgItem(InPlaceControlId)); }
    /// Edits past the grid, and answers the character set of the editor.
    BYTE EditAlone(CGridCell& cell)
    {
        cell.SetGrid(&grid);
        EXPECT_TRUE(cell.Edit(kRow, kCol, CRect(10, 10, 90, 30), CPoint(), InPlaceControlId, VK_LBUTTON));
        return owtest::FontOf(*cell.GetEditWnd()).lfCharSet;
    }
    BYTE CharSetOf(BOOL bRow, BOOL bCol) { return grid.GetDefaultCell(bRow, bCol)->GetFont()->lfCharSet; }
    owtest::SubLanguage greek{LANG_GREEK};
};

TEST_F(AnsiCells, AGridIsPreparedWhereTheCharacterSetIsAnother)
{
    const auto newIsAnsi = [&]
    { return grid.GetCell(grid.InsertRow(L"new"), 1)->IsKindOf(RUNTIME_CLASS(CAnsiGridCell)) != FALSE; };
    ClTranslator display, hindi;
    hindi.SetCurrentLanguage(MAKELANGID(LANG_HINDI, SUBLANG_DEFAULT));
    CAnsiGridCell::InitializeAnsiGrid(grid, &display);
    EXPECT_FALSE(newIsAnsi());
    CAnsiGridCell::InitializeAnsiGrid(grid, &hindi);
    EXPECT_EQ(CharSetOf(FALSE, FALSE), hindi.GetCurrentCharacterSet()) << "a language without a code page";
    CAnsiGridCell::InitializeAnsiGrid(grid);
    for (const int i : {0, 1, 2, 3})
        EXPECT_EQ(CharSetOf(i / 2, i % 2), GREEK_CHARSET);
    EXPECT_TRUE(newIsAnsi());
}

TEST_F(AnsiCells, TakeALongTextAndAgainInTheSameCell)
{
    Make(RUNTIME_CLASS(CAnsiGridCell));
    constexpr int kFonts = 0x0A; // type of a GDI object
    const int fonts = owtest::CountGdiObjects(kFonts);
    grid.SetFocusCell(kRow, kCol);
    for (int i = 0; i < 2; ++i)
    {
        const std::wstring expected = Text(kRow, kCol) + std::wstring(60, L'\u0394');
        ClickCell(kRow, kCol);
        ASSERT_TRUE(EditorOpens(kRow, kCol));
        EXPECT_EQ(owtest::FontOf(Editor()).lfCharSet, GREEK_CHARSET) << i;
        owtest::Type(std::wstring(60, L'\u0394'));
        EXPECT_STREQ(gfnWholeText(Editor()), expected.c_str()) << i;
        EndByKey(VK_RETURN);
        EXPECT_EQ(Text(kRow, kCol), expected);
        EXPECT_EQ(owtest::CountGdiObjects(kFonts), fonts) << "a font for the length of an edit";
    }
    ClickCell(1, 1); // a click on the focus cell would begin the edit
    ClickCell(kRow, kCol);
    owtest::Type(L"\u03b1\u03b2");
    ASSERT_TRUE(EditorOpens(kRow, kCol));
    EXPECT_STREQ(gfnWholeText(Editor()), L"\u03b1\u03b2") << "the first key replaces, as in any cell";
    EndByKey(VK_ESCAPE);
}

TEST_F(AnsiCells, AskTheTranslatorWhenMadeAndTheOneForDrawingsWhenEdited)
{
    const auto edit = [&](CGridCell& cell)
    {
        const BYTE charSet = EditAlone(cell);
        cell.EndEdit(); // closes by a message in the queue; the next edit may begin before
        cell.OnEndEdit();
        return charSet;
    };
    const BYTE usual = CharSetOf(FALSE, FALSE);
    ClTranslator russian;
    russian.SetCurrentLanguage(MAKELANGID(LANG_RUSSIAN, SUBLANG_DEFAULT));
    CPatternBkgndGridCell byGreek;
    owtest::SubLanguage::SetDisplays();
    CAnsiGridCell byRussian(&russian), byDisplay, copy;
    EXPECT_EQ(edit(byGreek), usual) << "back to the display's by now";
    owtest::SubLanguage::Set(LANG_GREEK);
    EXPECT_EQ(edit(byDisplay), usual) << "was not needed when it was made";
    for (CAnsiGridCell* pCell : {&byRussian, static_cast<CAnsiGridCell*>(&byGreek)})
        for (int i = 0; i < 2; ++i)
            EXPECT_EQ(edit(*pCell), GREEK_CHARSET);
    EXPECT_TRUE(EditorCloses());

    byGreek.SetText(L"3");
    EditAlone(byGreek);
    EXPECT_TRUE(byGreek.Edit(kRow, kCol, CRect(), CPoint(), InPlaceControlId, L'+'));
    EXPECT_STREQ(gfnWholeText(*byGreek.GetEditWnd()), L"3+") << "the key goes to the open editor";
    copy = byRussian;
    grid.DestroyWindow();
    EXPECT_TRUE(copy.Edit(kRow, kCol, CRect(0, 0, 9, 9), CPoint(), InPlaceControlId, VK_LBUTTON))
        << "no window";
}
