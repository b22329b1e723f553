// Painting, by its pixels.

#include "GridFixture.h"

class GridDrawing : public GridTest
{
protected:
    static constexpr COLORREF kBack = RGB(250, 251, 252), kBehind = RGB(10, 90, 10), kLine = RGB(200, 30, 30);
    static constexpr COLORREF kRowHead = RGB(30, 60, 220), kColHead = RGB(60, 160, 220),
                              kCorner = RGB(220, 60, 160), kText = RGB(1, 2, 3);

    void SetUp() override
    {
        GridTest::SetUp();
        for (int nRow = 0; nRow < kRows; ++nRow)
            for (int nCol = 0; nCol < kCols; ++nCol)
                grid.SetItemText(nRow, nCol, L"");
        grid.SetTextBkColor(kBack);
        grid.SetGridBkColor(kBehind);
        grid.SetGridLineColor(kLine);
        grid.GetDefaultCell(TRUE, FALSE)->SetBackClr(kRowHead);
        grid.GetDefaultCell(FALSE, TRUE)->SetBackClr(kColHead);
        grid.GetDefaultCell(TRUE, TRUE)->SetBackClr(kCorner);
        grid.SetRowCount(6);
        grid.SetColumnCount(4);
        SetSizes(grid);
    }
    struct Picture : public owtest::Surface
    {
        Picture() : Surface(300, 200) {}
        explicit Picture(CGridCtrl& grid) : Picture() { Draw(grid); }
        void Draw(CGridCtrl& grid) { static_cast<OpenGrid&>(grid).OnDraw(&dc()); }
        using Surface::count;
        int count(COLORREF color) const { return count(CRect(0, 0, 300, 200), color); }
    };
    /// Pixels of the headings, of the cells (1, 1) and (2, 2), and behind, by rows: 'R' row heading, 'C'
    /// column heading, 'X' corner, '.' cell, '-' line, ' ' behind, 's' selected, 't' text, 'h' highlight, 'd'
    /// shadow, 'o' any other.
    std::string Map()
    {
        const std::string letters = ". -RCXtshd";
        const COLORREF selected = ::GetSysColor(COLOR_HIGHLIGHT), light = ::GetSysColor(COLOR_3DHIGHLIGHT),
                       dark = ::GetSysColor(COLOR_3DDKSHADOW);
        const COLORREF colors[] = {kBack,   kBehind, kLine,    kRowHead, kColHead,
                                   kCorner, kText,   selected, light,    dark};
        const Picture picture(grid);
        std::string map;
        for (const int y : {0, 10, 19, 20, 21, 30, 38, 39, 50, 180})
        {
            for (const int x : {0, 30, 59, 60, 61, 90, 118, 119, 150, 270})
            {
                const auto found = std::find(std::begin(colors), std::end(colors), picture.at(x, y));
                map += found == std::end(colors) ? 'o' : letters[found - colors];
            }
            map += '/';
        }
        return map;
    }
};

TEST_F(GridDrawing, RegionsLinesFocusAndSelectionHaveTheirPlaces)
{
    grid.SetTextColor(kText);
    // The fixed columns are painted over the corner, as its cells are empty. Headers draw their own edges.
    EXPECT_EQ(Map(), "hhdhhhhdh /hCdhRRRdR /CddRddddd /hhd....-. /hCd....-. /hCd....-. /hCd....-. /Cdd------ "
                     "/hCd....-. /          /");
    grid.SetGridLines(GVL_VERT);
    EXPECT_EQ(Map(), "hhdhhhhdh /hCdhRRRdR /CddRddddd /hhd....-. /hCd....-. /hCd....-. /hCd....-. /Cdd....-. "
                     "/hCd....-. /          /");
    grid.SetFocusCell(1, 1);
    grid.SetGridLines(GVL_NONE);
    EXPECT_EQ(Map(), "CCRRRRRRR /CCRRRRRRR /CCRRRRRRR /CCCttttt. /CCCt...t. /CCCt...t. /CCCt...t. /CCCttttt. "
                     "/CCC...... /          /")
        << "the frame in place of the lines";
    grid.SetGridLines(GVL_BOTH);
    EXPECT_EQ(Map(), "hhdddddoh /hCddRRRoR /Cddoooood /ddotttt-. /dCot..t-. /dCot..t-. /dCotttt-. /ooo------ "
                     "/hCd....-. /          /")
        << "the frame inside the lines, and the headings pressed in";
    grid.SetSelectedRange(1, 1, 1, 2);
    EXPECT_EQ(Map(), "hhdddddoh /hCddRRRoR /Cddoooood /ddohhhh-s /dCohssh-s /dCohssh-s /dCohhhh-s /ooo------ "
                     "/hCd....-. /          /")
        << "the lines are over it, and the frame follows the text's colour";
    grid.SetTrackFocusCell(FALSE);
    grid.SetFrameFocusCell(FALSE);
    EXPECT_EQ(Map(), "hhdhhhhdh /hCdhRRRdR /CddRddddd /hhdssss-s /hCdssss-s /hCdssss-s /hCdssss-s /Cdd------ "
                     "/hCd....-. /          /");
    grid.SetRedraw(FALSE);
    EXPECT_EQ(Picture(grid).count(RGB(255, 0, 255)), 300 * 200) << "nothing is painted while drawing is off";
    EXPECT_EQ(Repainted([&] { grid.SetRedraw(TRUE); }), Client());
    EXPECT_EQ(Repainted([&] { grid.SetRedraw(TRUE); }), CRect()) << "it was on";
    grid.DeleteAllItems();
    EXPECT_EQ(Picture(grid).count(kBehind), 300 * 200);
}

TEST_F(GridDrawing, APartIsPaintedAsTheWholeIsAlsoThroughABuffer)
{
    FillWithPlaces(grid);
    grid.SetCellType(2, 2, RUNTIME_CLASS(CPatternBkgndGridCell));
    auto& hatched = static_cast<CPatternBkgndGridCell&>(*grid.GetCell(2, 2));
    hatched.SetBackClr(kBack);
    hatched.SetPatternColor(kRowHead);
    hatched.SetPatternStyle(HS_DIAGCROSS);
    std::mt19937 random(2);
    for (int round = 0; round < 300; ++round)
    {
        const CPoint at(random() % 280, random() % 180);
        const CRect clip(at, CSize(1 + random() % 60, 1 + random() % 40));
        Picture part, expected;
        expected.Draw(grid);
        for (const CRect& outside : {CRect(0, 0, 300, clip.top), CRect(0, clip.bottom, 300, 200),
                                     CRect(0, 0, clip.left, 200), CRect(clip.right, 0, 300, 200)})
            expected.dc().FillSolidRect(outside, RGB(255, 0, 255));
        part.dc().IntersectClipRect(clip);
        if (round % 2)
            part.Draw(grid);
        else
        {
            CMemDC buffer(&part.dc());
            grid.OnDraw(&buffer);
        }
        ASSERT_TRUE(part == expected)
            << clip.left << ',' << clip.top << ' ' << clip.right << ',' << clip.bottom;
    }
}

TEST_F(GridDrawing, TheGroundAloneHasTheColoursOfItsRegions)
{
    Picture ground;
    grid.EraseBkgnd(&ground.dc());
    // Kept: the ground of the fixed columns covers the corner, and that of the fixed rows one pixel of it.
    const std::tuple<int, int, COLORREF> places[] = {
        {58, 19, kColHead}, {59, 19, kRowHead},  {59, 20, kColHead}, {60, 20, kBack},
        {239, 119, kBack},  {240, 119, kBehind}, {239, 120, kBehind}};
    for (const auto& [x, y, color] : places)
        EXPECT_EQ(ground.at(x, y), color) << x << ' ' << y;
}

TEST_F(GridDrawing, LinesRunAlongTheLastPixelsOfTheBody)
{
    for (const auto& [lines, extent] :
         {std::pair(GVL_VERT, CRect(119, 20, 240, 120)), std::pair(GVL_HORZ, CRect(60, 39, 240, 120))})
    {
        grid.SetGridLines(lines);
        EXPECT_EQ(Picture(grid).extent(kLine), extent);
    }
    for (const auto& [lines, count] :
         {std::pair(GVL_BOTH, 60 + 20 - 1), std::pair(GVL_HORZ, 60), std::pair(GVL_NONE, 0)})
    {
        Picture one;
        grid.SetGridLines(lines);
        EXPECT_TRUE(grid.RedrawCell(2, 2, &one.dc()));
        EXPECT_EQ(one.extent(kBack), CRect(120, 40, lines == GVL_BOTH ? 179 : 180, lines ? 59 : 60));
        EXPECT_EQ(one.count(kLine), count);
        EXPECT_TRUE(grid.RedrawCell(2, 0, &one.dc()));
        EXPECT_EQ(one.count(CRect(0, 40, 60, 60), kLine), 0);
    }
    EXPECT_TRUE(grid.RedrawColumn(2) && !grid.RedrawColumn(9));
}

TEST_F(GridDrawing, ACellsOwnColourIsPaintedAlways)
{
    grid.SetItemBkColour(2, 2, RGB(5, 200, 5));
    EXPECT_EQ(Picture(grid).at(150, 50), RGB(5, 200, 5));
    CGridCellBase& plain = *grid.GetCell(3, 2);
    owtest::Surface bare(100, 40);
    EXPECT_TRUE(plain.Draw(&bare.dc(), 3, 2, CRect(0, 0, 59, 19), FALSE));
    EXPECT_EQ(bare.at(30, 10), RGB(255, 0, 255)) << "an inherited one is the grid's business";
    for (const CSize size : {CSize(0, 19), CSize(59, 0), CSize(1, 1)})
        EXPECT_EQ(plain.Draw(&bare.dc(), 3, 2, CRect(CPoint(0, 0), size), TRUE), size == CSize(1, 1));
    EXPECT_FALSE(plain.Draw(nullptr, 3, 2, CRect(0, 0, 59, 19), TRUE));
    EXPECT_FALSE(CGridCell().Draw(&bare.dc(), 3, 2, CRect(0, 0, 59, 19), TRUE)) << "no grid";

    struct OrphanCell : CGridCell
    {
        CGridCellBase* GetDefaultCell() override { return nullptr; }
    } orphan;
    orphan.SetGrid(&grid);
    EXPECT_FALSE(orphan.Draw(&bare.dc(), 3, 2, CRect(0, 0, 59, 19), TRUE));
    EXPECT_EQ(bare.dc().GetBkMode(), TRANSPARENT) << "prepared for a text";
    EXPECT_TRUE(bare.dc().RestoreDC(-1));
    EXPECT_EQ(bare.dc().GetBkMode(), OPAQUE);
}

TEST_F(GridDrawing, TheSortArrowStandsInTheFirstHeaderOnlyAndMakesTheTextMove)
{
    const COLORREF light = ::GetSysColor(COLOR_3DHIGHLIGHT), shadow = ::GetSysColor(COLOR_3DSHADOW);
    const int margin = static_cast<int>(grid.GetDefCellMargin());
    const int high = grid.GetTextExtent(0, 1, L"M").cy - 2 * margin - 4;
    LOGFONT font = *grid.GetItemFont(0, 1);
    grid.SetItemFormat(0, 1, DT_RIGHT | DT_SINGLELINE | DT_VCENTER);
    grid.SetItemFgColour(0, 1, kText);
    for (const int round : {0, 1, 2, 3})
        for (const int width : {60, 16, 14, 13, 12, 11, 10, 2}) // in the last ones there is no room
        {
            const bool vertical = round / 2 != 0, up = round % 2 != 0;
            font.lfEscapement = font.lfOrientation = vertical ? 900 : 0;
            grid.SetItemFont(0, 1, &font);
            grid.SetColumnWidth(1, width, TRUE);
            grid.SetItemText(0, 1, width == 60 ? L"H" : L""); // takes the arrow away, too
            const Picture without(grid);
            grid.SetSortColumn(1);
            grid.SetSortAscending(up);
            const Picture arrow(grid);
            const CRect room(61 + margin, 1 + margin, 58 + width - margin, 18);
            const int size = high < room.Height() ? high : room.Height() - 4;
            const bool fits = room.left + size < room.right + 2 * margin;
            const CRect place(CPoint(vertical ? (room.left + room.right - size) / 2 : room.right - size,
                                     room.bottom - size - 2),
                              CSize(size + 1, size + 1));
            EXPECT_EQ(arrow.extent(shadow), fits ? place : CRect()) << "round " << round << ", " << width;
            if (!fits)
                continue;
            const int base = up ? place.bottom - 1 : place.top;
            EXPECT_EQ(arrow.count(CRect(place.left, base, place.right, base + 1), shadow), size + 1);
            EXPECT_EQ(arrow.at(place.right, base + 1), light) << "engraved";
            EXPECT_EQ(without.extent(kText).right - arrow.extent(kText).right,
                      width == 60 && !vertical ? size : 0);
        }
    grid.SetColumnWidth(1, kColWidth, TRUE);
    EXPECT_EQ(Repainted([&] { grid.SetSortColumn(0); }), CRect(0, 0, 120, 20));
    for (const int nCol : {0, -1})
        EXPECT_EQ(Repainted([&] { grid.SetSortColumn(nCol); }), CRect(0, 0, 60, 20));
}

TEST_F(GridDrawing, TheImageMakesRoomForTheText)
{
    CImageList images;
    images.Create(12, 40, ILC_COLOR32, 1, 1);
    owtest::Surface red(12, 40, RGB(255, 0, 0));
    images.Add(CBitmap::FromHandle(static_cast<HBITMAP>(::GetCurrentObject(red.dc(), OBJ_BITMAP))),
               static_cast<CBitmap*>(nullptr));
    grid.SetImageList(&images);
    grid.SetItemImage(2, 2, 0);
    const CRect cell = CellRect(2, 2);
    CRect text;
    EXPECT_TRUE(grid.GetTextRect(2, 2, &text));
    CGridCellBase& imaged = *grid.GetCell(2, 2);
    const int margin = static_cast<int>(imaged.GetMargin());
    EXPECT_EQ(text.left, cell.left + 12 + 1 + margin);
    EXPECT_EQ(imaged.GetCellExtent(nullptr), CSize(imaged.GetTextExtent(imaged.GetText()).cx + 13, 41));
    // It is left out where it does not fit, the margin counted in on all sides.
    for (const auto& [size, shows] : {std::pair(CSize(14, 60), true),
                                      {{13, 60}, false},
                                      {{60, 42 - margin}, true},
                                      {{60, 41 - margin}, false}})
    {
        owtest::Surface drawn(80, 60, kBack);
        imaged.Draw(&drawn.dc(), 2, 2, CRect(CPoint(2, 2), size - CSize(1, 1)), FALSE);
        EXPECT_EQ(drawn.count(CRect(0, 0, 80, 60), RGB(255, 0, 0)) > 0, shows) << size.cx << ',' << size.cy;
    }
    grid.SetItemImage(2, 2, 9); // there is none, which takes no room
    EXPECT_EQ(imaged.GetCellExtent(nullptr), imaged.GetTextExtent(imaged.GetText()));
}

TEST_F(GridDrawing, ATextStandsWhereDrawTextPutsIt)
{
    grid.SetGridLines(GVL_NONE);
    CGridCellBase& cell = *grid.GetCell(3, 2);
    const int margin = static_cast<int>(cell.GetMargin());
    CFont font;
    const auto stateOf = [](CDC& dc) {
        return std::tuple(dc.GetTextColor(), dc.GetBkColor(), dc.GetBkMode(),
                          ::GetCurrentObject(dc, OBJ_FONT));
    };
    const auto compare = [&](const wchar_t* text, UINT format, CSize size)
    {
        const CRect place(CPoint(3, 2), size);
        cell.SetText(text);
        cell.SetFormat(format);
        owtest::Surface drawn(90, 30, kBack), expected(90, 30, kBack);
        drawn.dc().SetTextColor(RGB(1, 2, 3));
        drawn.dc().SetBkColor(RGB(4, 5, 6));
        const auto before = stateOf(drawn.dc());
        cell.Draw(&drawn.dc(), 3, 2, place, FALSE);
        EXPECT_EQ(stateOf(drawn.dc()), before);
        CRect inner(place.left + margin, place.top + margin, place.right - margin, place.bottom);
        expected.dc().SelectObject(&font);
        expected.dc().SetBkMode(TRANSPARENT);
        expected.dc().SetTextColor(grid.GetTextColor());
        expected.dc().DrawText(text, -1, &inner, format | DT_NOPREFIX);
        EXPECT_TRUE(drawn == expected) << CStringA(text).GetString() << " format " << format;
    };
    LOGFONT lf = *cell.GetFont(), told;
    for (lf.lfHeight = -13; lf.lfHeight < -10; ++lf.lfHeight) // even and odd heights of a line
    {
        font.DeleteObject();
        font.CreateFontIndirect(&lf);
        grid.SetFont(&font);
        cell.SetMargin(margin); // which is the font's otherwise
        ASSERT_TRUE(grid.GetFont() && grid.GetFont()->GetLogFont(&told));
        EXPECT_EQ(told.lfHeight, lf.lfHeight);
        EXPECT_EQ(grid.GetDefaultCell(TRUE, TRUE)->GetFont()->lfHeight, lf.lfHeight);
        for (const wchar_t* text : {L"12", L"IPE 200", L"fi\x0160 \x0428", L"e\x0301 \x05D0\x05D1",
                                    L"much too long for the width of its column", L"two\nlines"})
            for (const UINT align : {UINT(DT_LEFT), UINT(DT_CENTER), UINT(DT_RIGHT)})
                for (const UINT vertical : {UINT(DT_TOP), UINT(DT_VCENTER), UINT(DT_BOTTOM)})
                    for (const CSize size :
                         {CSize(59, 21), CSize(60, 20), CSize(75, 9), CSize(14 + 2 * margin, 20)})
                        compare(text, align | vertical | DT_SINGLELINE | DT_END_ELLIPSIS, size);
    }
}

TEST_F(GridDrawing, SystemColoursAreFollowedWhereTheUserSetNone)
{
    const int elements[] = {COLOR_WINDOW, COLOR_WINDOWTEXT, COLOR_3DSHADOW};
    COLORREF colors[][3] = {{RGB(240, 255, 240), RGB(9, 9, 9), RGB(90, 90, 90)}, {}};
    std::transform(std::begin(elements), std::end(elements), colors[1], ::GetSysColor);
    grid.SetTextBkColor(colors[1][0]);
    grid.SetTextColor(colors[1][1]);
    grid.SetGridBkColor(colors[1][2]);
    grid.SetFixedBkColor(RGB(1, 1, 1));
    grid.SetFixedTextColor(RGB(2, 2, 2));
    for (const auto& [back, text, behind] : colors)
    {
        ::SetSysColors(3, elements, &back);
        grid.SendMessage(WM_SYSCOLORCHANGE);
        EXPECT_EQ(std::tuple(grid.GetTextBkColor(), grid.GetTextColor(), grid.GetGridBkColor()),
                  std::tuple(back, text, behind));
    }
    grid.SetGridBkColor(RGB(3, 3, 3));
    grid.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(std::tuple(grid.GetFixedBkColor(), grid.GetFixedTextColor(), grid.GetGridBkColor()),
              std::tuple(RGB(1, 1, 1), RGB(2, 2, 2), RGB(3, 3, 3)));
}

TEST_F(GridDrawing, NothingPaintsOverAnOpenEditor)
{
    constexpr COLORREF kGreen = RGB(5, 200, 5);
    grid.SetItemBkColour(2, 2, kGreen);
    grid.SetFocusCell(2, 2);
    grid.StartEditCell();
    CWnd* const editor = grid.GetDlgItem(InPlaceControlId);
    ASSERT_NE(editor, nullptr);
    editor->UpdateWindow();
    CClientDC own(&grid);
    EXPECT_TRUE(grid.RedrawRow(2));
    EXPECT_TRUE(grid.RedrawCell(2, 2, &own));
    EXPECT_NE(CClientDC(editor).GetPixel(40, 8), kGreen);
    EXPECT_EQ(own.GetPixel(2 * kColWidth + 40, 2 * kRowHeight + 8), CClientDC(editor).GetPixel(40, 8));
    EndByFocus();
}
