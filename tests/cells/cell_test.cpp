// What a cell holds, inherits and measures; the in-place editors in a grid.

#include "CellTest.h"

class GridCell : public ::testing::Test
{
protected:
    GridCell() : grid(3, 3, 1, 1), cell(*grid.GetCell(1, 1)) {}
    CGridCtrl grid;
    CGridCellBase& cell;
};

TEST(GridCellBase, IsAnEmptyContract)
{
    CGridCellBase cell;
    EXPECT_TRUE(!cell.GetText() && !cell.GetTipText() && cell.GetImage() == -1);
    EXPECT_FALSE(cell.Edit(0, 0, CRect(), CPoint(), 8, 'x') || cell.PrintCell(nullptr, 0, 0, CRect()));
    EXPECT_TRUE(cell.ValidateEdit(L"anything"));
    cell.SetState(CELL_FIXEDCOL | CELL_MODIFIED);
    EXPECT_EQ(cell.IsFixedCol() + cell.IsModified(), 64 + 128) << "the bits, and not 1";
    cell.Reset();
    EXPECT_EQ(cell.SendMessageToParent(0, 0, NM_CLICK) + cell.GetData() + cell.GetState(), 0u);
}

TEST_F(GridCell, InheritsUntilItIsGivenAValue)
{
    CGridDefaultCell& body = *grid.GetDefaultCell(FALSE, FALSE);
    cell.SetFormat(GV_INHERIT);
    EXPECT_EQ(cell.GetFormat(), static_cast<DWORD>(0x8824));
    EXPECT_EQ(cell.GetMargin(), body.GetMargin());
    EXPECT_EQ(cell.GetFont(), body.GetFont());
    EXPECT_EQ(cell.GetTextClr(), CLR_INHERIT) << "colours are resolved by drawing only";
    cell.SetMargin(9);
    EXPECT_EQ(cell.GetMargin(), 9u);
    body.SetFormat(GV_INHERIT); // its own default cell: it does not ask itself for ever
    EXPECT_EQ(body.GetFormat(), 0u);
    body.SetStyle(7); // the program's own
    EXPECT_EQ(body.GetStyle(), 7u);
    CGridCell alone;
    EXPECT_EQ(alone.GetFormat() + alone.GetMargin(), 0u);
    EXPECT_EQ(alone.GetFont(), nullptr);
    EXPECT_EQ(alone.GetTextExtent(L"text"), CSize(0, 0)) << "nothing to measure on";
}

TEST_F(GridCell, CopiesWhatTheOtherShows)
{
    CGridCell copy;
    cell.SetText(L"text");
    cell.SetData(5);
    cell.SetImage(3);
    cell.SetFormat(GV_INHERIT);
    copy = cell;
    EXPECT_STREQ(copy.GetText(), L"text");
    EXPECT_EQ(copy.GetImage(), 3);
    EXPECT_EQ(copy.GetGrid(), &grid);
    grid.GetDefaultCell(FALSE, FALSE)->SetFormat(DT_LEFT);
    EXPECT_EQ(copy.GetFormat(), static_cast<DWORD>(0x8824)) << "an inherited format arrives as a value";

    LOGFONT lf = *cell.GetFont();
    lf.lfHeight = -33;
    cell.SetFont(&lf);
    copy = cell;
    EXPECT_EQ(copy.GetFont()->lfHeight, -33);
    EXPECT_EQ(copy.GetFontObject(), cell.GetFontObject())
        << "one object for all cells with fonts of their own";
    copy.SetTextClr(RGB(1, 2, 3));
    copy.SetBackClr(RGB(1, 2, 3));
    copy.Reset();
    EXPECT_EQ(copy.GetData(), 5) << "the one thing that Reset leaves";
    EXPECT_TRUE(!copy.GetGrid() && !copy.GetFont() && copy.GetImage() == -1);
    EXPECT_TRUE(copy.GetTextClr() == CLR_INHERIT && copy.GetBackClr() == CLR_INHERIT);
}

TEST_F(GridCell, MeasuresTextWithItsMargins)
{
    CClientDC dc(nullptr);
    dc.SelectObject(cell.GetFontObject());
    const int margin = static_cast<int>(cell.GetMargin());
    const CSize bare = dc.GetTextExtent(L"IPE 200", 7);
    EXPECT_EQ(cell.GetTextExtent(L"IPE 200"), bare + CSize(4 * margin, 2 * margin));
    const CGridDefaultCell& body = *grid.GetDefaultCell(FALSE, FALSE);
    EXPECT_EQ(cell.GetTextExtent(nullptr, &dc), CSize(body.GetWidth(), body.GetHeight()));

    cell.SetFormat(DT_WORDBREAK);
    EXPECT_EQ(cell.GetTextExtent(L"IPE\nIPE").cy, 2 * bare.cy + 2 * margin);
    LOGFONT lf = *cell.GetFont();
    lf.lfEscapement = lf.lfOrientation = 900;
    cell.SetFormat(DT_SINGLELINE);
    const CSize flat = cell.GetTextExtent(L"IPE 200");
    cell.SetFont(&lf);
    EXPECT_EQ(cell.GetTextExtent(L"IPE 200"), CSize(flat.cy, flat.cx + 4 * margin));
}

TEST(GridDefaultCell, DerivesSizeAndMarginFromItsFont)
{
    CGridDefaultCell cell;
    LOGFONT lf = *cell.GetFont();
    lf.lfHeight *= 3;
    cell.SetFont(&lf);
    constexpr int kFonts = 0x0A; // type of a GDI object
    const int fonts = owtest::CountGdiObjects(kFonts);
    cell.SetFont(&lf);
    EXPECT_EQ(owtest::CountGdiObjects(kFonts), fonts);
    CClientDC dc(nullptr);
    dc.SelectObject(cell.GetFontObject());
    EXPECT_EQ(cell.GetMargin(), static_cast<UINT>(dc.GetTextExtent(L" ", 1).cx));
    EXPECT_EQ(cell.GetHeight(), dc.GetTextExtent(L"X", 1).cy * 3 / 2);
    cell.SetData(7);
    cell.SetState(CELL_SELECTED);
    EXPECT_EQ(cell.GetData() + cell.GetState(), CELL_READONLY);
    cell.SetFont(nullptr);
    EXPECT_EQ(cell.GetFont()->lfHeight, lf.lfHeight);
}

class Editors : public CellTest
{
protected:
    /// Begins an edit as a key does.
    CEdit& Edit(UINT firstChar, const wchar_t* text = L"text")
    {
        grid.SetItemText(kRow, kCol, text);
        grid.SetFocusCell(kRow, kCol);
        grid.OnEditCell(kRow, kCol, CPoint(), firstChar);
        owtest::Pump(); // the first character is posted
        return static_cast<CEdit&>(*grid.GetDlgItem(InPlaceControlId));
    }
    CRect RectOf(CWnd& window)
    {
        CRect rect;
        window.GetWindowRect(&rect);
        grid.ScreenToClient(&rect);
        return rect;
    }
};

TEST_F(Editors, TheFirstKeyDecidesWhatHappensToTheText)
{
    using Row = std::tuple<UINT, const wchar_t*, int, int>; // the key, the text then, and its selection
    for (const auto& [key, text, from, to] :
         {Row{VK_LBUTTON, L"text", 4, 4}, Row{VK_RETURN, L"text", 4, 4}, Row{VK_BACK, L"tex", 3, 3},
          Row{VK_TAB, L"text", 0, 4}, Row{VK_SPACE, L"text", 0, 4}, Row{L'q', L"q", 1, 1},
          Row{0x448, L"\x448", 1, 1}})
    {
        CEdit& edit = Edit(key);
        EXPECT_EQ(owtest::TextOf(edit), text) << key;
        EXPECT_EQ(edit.GetSel(), MAKELONG(from, to)) << key;
        edit.SendMessage(WM_CHAR, VK_ESCAPE);
        EXPECT_TRUE(EditorCloses());
        EXPECT_EQ(CellText(), L"text") << "what it began with";
        EXPECT_EQ(grid.GetFocusCell(), CCellID(kRow, kCol));
    }
}

TEST_F(Editors, AnEditByMouseKeepsTheArrowsUnlessControlIsHeld)
{
    Edit(VK_LBUTTON);
    owtest::Press(VK_LEFT);
    owtest::Press(VK_HOME);
    EXPECT_TRUE(grid.IsItemEditing(kRow, kCol));
    owtest::Press(VK_LEFT, false, true);
    EXPECT_TRUE(EditorOpens(kRow, kCol - 1));
    EndByFocus();

    CGridCell loose;
    loose.SetGrid(&grid);
    EXPECT_TRUE(loose.Edit(1, 1, CRect(10, 10, 60, 30), CPoint(), InPlaceControlId, VK_LBUTTON));
    loose.Reset();
    EXPECT_FALSE(loose.IsEditing());
    EndByFocus();
}

TEST_F(Editors, AnEditIsAlignedAsItsTextAndGrowsToTheGridsEdge)
{
    for (const auto& [format, style] : {std::pair(DT_RIGHT, ES_RIGHT), std::pair(DT_CENTER, ES_CENTER)})
    {
        grid.SetItemFormat(kRow, kCol, format);
        EXPECT_EQ(Edit(VK_LBUTTON).GetStyle() & 3, static_cast<DWORD>(style));
        EndByFocus();
    }
    grid.SetItemFormat(kRow, kCol, DT_LEFT);
    CEdit& edit = Edit(VK_LBUTTON, L"");
    EXPECT_EQ(edit.GetStyle() & 3, static_cast<DWORD>(ES_LEFT));
    const CRect cell = CellRect();
    owtest::Type(L"abcdefghijklmnop");
    const int wide = RectOf(edit).right;
    CClientDC dc(&edit);
    dc.SelectObject(edit.GetFont());
    EXPECT_EQ(wide, cell.left + dc.GetTextExtent(L"abcdefghijklmnop  ", 18).cx);
    owtest::Press(VK_BACK);
    EXPECT_EQ(RectOf(edit).right, wide) << "it never shrinks";
    owtest::Type(L"abcdefghijklmnopqrstuvwxyzabcdefghijklmnopqrstuvwxyz");
    EXPECT_EQ(RectOf(edit), CRect(cell.left, cell.top, Client().right, cell.bottom));
    MSG msg{edit.m_hWnd, WM_SYSCHAR, 'x', 0, 0, {}};
    EXPECT_TRUE(static_cast<CWnd&>(edit).PreTranslateMessage(&msg)) << "Alt with a character is swallowed";
    EXPECT_EQ(edit.SendMessage(WM_GETDLGCODE), DLGC_WANTALLKEYS);
    EndByFocus();
}

TEST_F(Editors, AListIsAsWideAsItsLongestEntryWithinLimits)
{
    CRect rect(10, 10, 110, 60);
    CStringArray items;
    items.Add(L"alpha");
    auto* const list =
        new CInPlaceList(&grid, rect, CBS_DROPDOWN, InPlaceControlId, 3, 4, 0, 0, items, L"beta", VK_LBUTTON);
    const int width = list->GetCorrectDropWidth();
    EXPECT_TRUE(width > ::GetSystemMetrics(SM_CXVSCROLL) && width < 200);
    EXPECT_GE(RectOf(*list).Height(), rect.Height());
    list->AddString(CString(L'W', 60));
    list->ShowDropDown(); // which measures anew
    EXPECT_EQ(list->GetDroppedWidth(), 200);
    EndByFocus();
}
