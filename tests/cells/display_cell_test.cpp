// Cells that look different, by their pixels, and the one that is edited in another character set, by typing.

#include "CellTest.h"

#include "Texts.h"

#include <MixedFont.h>

namespace
{
constexpr COLORREF kUntouched = RGB(255, 0, 255);

struct Canvas : owtest::Surface
{
    Canvas() : Surface(200, 60) {}
    int Count(COLORREF color) const { return count(CRect(0, 0, 200, 60), color); }
};

using DisplayCells = CellTest;
} // namespace

TEST_F(DisplayCells, APatternIsInTheMixOnTheBackgroundWhereNothingIsSelected)
{
    constexpr COLORREF kPattern = RGB(160, 200, 255), kMix = RGB(160, 185, 200), kNone = 0xFFFFFFFF;
    const COLORREF selected = ::GetSysColor(COLOR_HIGHLIGHT),
                   selectedText = ::GetSysColor(COLOR_HIGHLIGHTTEXT);
    // The state, the colours of cell and pattern, the style; the colour that fills it, whether there are
    // lines in the mix on it, and the frame.
    using Case = std::tuple<DWORD, COLORREF, COLORREF, int, COLORREF, bool, COLORREF>;
    std::vector<Case> cases = {
        {CELL_SELECTED, kBack, kPattern, HS_CROSS, selected, false, kUntouched},
        {CELL_FOCUSED, kBack, kPattern, HS_CROSS, kBack, true, kText},
        {CELL_FOCUSED | CELL_SELECTED, kBack, kPattern, HS_CROSS, kBack, true, selectedText},
        {0, CLR_INHERIT, kPattern, HS_CROSS, RGB(0, 0, 0), false, kUntouched}, // which counts as black
        {0, kBack, kPattern, 77, kBack, false, kUntouched},
        {0, kBack, kNone, HS_CROSS, kBack, false, kUntouched},
        {0, CLR_INHERIT, kNone, HS_CROSS, grid.GetTextBkColor(), false, kUntouched}};
    for (int style = HS_HORIZONTAL; style <= HS_DIAGCROSS; ++style)
        cases.push_back({0, kBack, kPattern, style, kBack, true, kUntouched});
    auto& cell = Make<CPatternBkgndGridCell>(RUNTIME_CLASS(CPatternBkgndGridCell));
    EXPECT_EQ(std::pair(cell.GetPatternColor(), cell.GetPatternStyle()), std::pair(kNone, -1));
    cell.SetText(L"");
    for (const auto& [state, back, pattern, style, filled, hasLines, frameColor] : cases)
    {
        Canvas expected, canvas;
        CBrush lines(hasLines ? style : HS_CROSS, kMix), frame(frameColor);
        expected.dc().FillSolidRect(CRect(8, 8, 48, 32), filled); // which is the brush's background then
        if (hasLines)
            expected.dc().FillRect(CRect(8, 8, 48, 32), &lines);
        if (frameColor != kUntouched)
            expected.dc().FrameRect(CRect(8, 8, 47, 31), &frame);
        cell.SetState(state);
        cell.SetBackClr(back);
        cell.SetPatternColor(pattern);
        cell.SetPatternStyle(style);
        CPatternBkgndGridCell copy;
        copy = cell;
        canvas.dc().SetBkColor(RGB(1, 2, 3));
        EXPECT_TRUE(Draw(canvas, copy, CRect(8, 8, 47, 31), back == CLR_INHERIT)) << "others always erase";
        EXPECT_TRUE(canvas == expected) << state << ' ' << pattern << ' ' << style;
        EXPECT_EQ(canvas.dc().GetBkColor(), RGB(1, 2, 3));
        EXPECT_EQ(canvas.dc().GetBkMode(), OPAQUE);
    }
    cell.SetBackClr(CLR_INHERIT);
    Canvas untouched;
    EXPECT_TRUE(Draw(untouched, cell, CRect(8, 8, 47, 31), FALSE));
    EXPECT_EQ(untouched.Count(kUntouched), 200 * 60) << "nothing to erase";
}

TEST_F(DisplayCells, AnImageStandsWhereTheFormatSaysIfItFits)
{
    constexpr COLORREF kImage = RGB(200, 30, 30);
    owtest::Surface image(10, 6, kImage);
    CImageList images;
    ASSERT_TRUE(images.Create(10, 6, ILC_COLOR32, 1, 1));
    images.Add(CBitmap::FromHandle(static_cast<HBITMAP>(::GetCurrentObject(image.dc(), OBJ_BITMAP))),
               static_cast<CBitmap*>(nullptr));
    CImageGridCell cell;
    cell = Make<CImageGridCell>(RUNTIME_CLASS(CImageGridCell));
    // In 51 by 39 pixels between the margins, which are room, too, an image of 11 by 7, as it is counted.
    // The format, the margin, the cell, where the image is drawn, and which one.
    const CRect roomy(20, 10, 79, 49), none;
    using Row = std::tuple<DWORD, UINT, CRect, CRect, int>;
    for (const auto& [format, margin, rect, drawn, index] :
         {Row{DT_LEFT, 4, roomy, {24, 10, 34, 16}, 0},
          Row{DT_CENTER | DT_RIGHT, 4, roomy, {44, 10, 54, 16}, 0},
          Row{DT_VCENTER | DT_BOTTOM, 4, roomy, {24, 26, 34, 32}, 0},
          Row{DT_RIGHT | DT_BOTTOM, 4, roomy, {64, 42, 74, 48}, 0},
          Row{DT_CENTER | DT_VCENTER | DT_SINGLELINE, 4, roomy, {44, 26, 54, 32}, 0},
          Row{DT_LEFT, 4, {0, 0, 11, 40}, {4, 0, 14, 6}, 0}, Row{DT_LEFT, 4, {0, 0, 10, 40}, none, 0},
          Row{DT_LEFT, 0, {0, 0, 11, 7}, {0, 0, 10, 6}, 0}, Row{DT_LEFT, 0, {0, 0, 10, 7}, none, 0},
          Row{DT_LEFT, 0, {0, 0, 11, 6}, none, 0}, Row{DT_LEFT, 0, roomy, none, 1},
          Row{DT_LEFT, 0, roomy, none, -1}})
    {
        grid.SetImageList(index < 0 ? nullptr : &images);
        cell.SetImage(std::abs(index));
        cell.SetFormat(format);
        cell.SetMargin(margin);
        Canvas canvas;
        EXPECT_TRUE(Draw(canvas, cell, rect));
        EXPECT_EQ(canvas.extent(kImage), drawn) << format << ' ' << margin << ' ' << rect.right;
    }
}

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
        EXPECT_EQ(Repainted([&] { cell.Mark(mark); }), changes ? Client() : CRect());
    }
    CMarkedTextCell copy;
    copy = cell;
    Draw(marked, copy, CRect(0, 0, 79, 24));
    EXPECT_TRUE(marked == withStar);
    EXPECT_FALSE(unmarked == withStar);
    EXPECT_STREQ(copy.GetText(), L"B 500");
    grid.DestroyWindow();
    copy.Mark(false); // no window, and then no grid to repaint
    copy.SetGrid(nullptr);
    copy.Mark(true);
}

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
    const auto stateOf = [](CDC& dc)
    { return std::tuple(dc.GetTextColor(), dc.GetBkMode(), dc.GetCurrentFont()->GetSafeHandle()); };
    for (const DWORD format : {DT_LEFT, DT_RIGHT | DT_CENTER, DT_CENTER | DT_BOTTOM | DT_SINGLELINE})
    {
        Canvas expected, canvas;
        expected.dc().FillSolidRect(5, 5, 150, 40, kBack);
        expected.dc().SelectObject(&font);
        expected.dc().SetTextColor(kText);
        expected.dc().SetBkMode(TRANSPARENT);
        const CSize free = rect.Size() - CMixedFont::GetTextExtent(&expected.dc(), kMixed);
        const int x = format == DT_LEFT ? 2 : format & DT_RIGHT ? free.cx - 2 : free.cx / 2;
        CMixedFont::TextOut(&expected.dc(), rect.TopLeft() + CSize(x, free.cy / 2), kMixed);
        cell.SetFormat(format);
        canvas.dc().SetTextColor(RGB(1, 2, 3));
        const auto before = stateOf(canvas.dc());
        EXPECT_TRUE(Draw(canvas, cell, rect));
        EXPECT_TRUE(canvas == expected) << format;
        EXPECT_EQ(stateOf(canvas.dc()), before);
    }
    EXPECT_FALSE(cell.Draw(nullptr, kRow, kCol, rect, TRUE));
    Canvas none;
    EXPECT_FALSE(Draw(none, cell, CRect(10, 10, 10, 20)));
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

class AnsiCells : public DisplayCells
{
protected:
    CEdit& Editor() { return static_cast<CEdit&>(*grid.GetDlgItem(InPlaceControlId)); }
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
        const std::wstring expected = CellText() + std::wstring(60, L'\u0394');
        ClickCell(kRow, kCol);
        ASSERT_TRUE(EditorOpens(kRow, kCol));
        EXPECT_EQ(owtest::FontOf(Editor()).lfCharSet, GREEK_CHARSET) << i;
        owtest::Type(std::wstring(60, L'\u0394'));
        EXPECT_STREQ(gfnWholeText(Editor()), expected.c_str()) << i;
        EndByKey(VK_RETURN);
        EXPECT_EQ(CellText(), expected);
        EXPECT_LE(owtest::CountGdiObjects(kFonts), fonts) << "a font for the length of an edit";
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
    const auto charSetOf = [&](CGridCell& cell)
    {
        cell.SetGrid(&grid);
        EXPECT_TRUE(cell.Edit(kRow, kCol, CRect(10, 10, 90, 30), CPoint(), InPlaceControlId, VK_LBUTTON));
        return owtest::FontOf(*cell.GetEditWnd()).lfCharSet;
    };
    const BYTE usual = CharSetOf(FALSE, FALSE);
    ClTranslator russian;
    russian.SetCurrentLanguage(MAKELANGID(LANG_RUSSIAN, SUBLANG_DEFAULT));
    CPatternBkgndGridCell byGreek;
    owtest::SubLanguage::SetDisplays();
    CAnsiGridCell byRussian(&russian), byDisplay, copy;
    for (const auto& [pCell, language, charSet] :
         {std::tuple<CAnsiGridCell*, WORD, BYTE>(&byGreek, LANG_NEUTRAL, usual), // the display's by now
          {&byDisplay, LANG_GREEK, usual}, // was not needed when it was made
          {&byRussian, LANG_GREEK, GREEK_CHARSET},
          {&byGreek, LANG_GREEK, GREEK_CHARSET}})
    {
        if (language != LANG_NEUTRAL)
            owtest::SubLanguage::Set(language);
        EXPECT_EQ(charSetOf(*pCell), charSet);
        pCell->EndEdit(); // closes by a message in the queue; the next edit may begin before
        pCell->OnEndEdit();
    }
    EXPECT_TRUE(EditorCloses());

    byGreek.SetText(L"3");
    charSetOf(byGreek);
    EXPECT_TRUE(byGreek.Edit(kRow, kCol, CRect(), CPoint(), InPlaceControlId, L'+'));
    EXPECT_STREQ(gfnWholeText(*byGreek.GetEditWnd()), L"3+") << "the key goes to the open editor";
    copy = byRussian;
    grid.DestroyWindow();
    EXPECT_TRUE(copy.Edit(kRow, kCol, CRect(0, 0, 9, 9), CPoint(), InPlaceControlId, VK_LBUTTON))
        << "no window";
}
