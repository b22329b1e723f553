// The in-place editors in a grid: first key, keys that end an edit, growth, looks.

#include "CellTest.h"

namespace
{
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
    void EndByFocus()
    {
        grid.SetFocus();
        EXPECT_TRUE(EditorCloses());
    }
    CRect RectOf(CWnd& window)
    {
        CRect rect;
        window.GetWindowRect(&rect);
        grid.ScreenToClient(&rect);
        return rect;
    }
};
} // namespace

TEST_F(Editors, TheFirstKeyDecidesWhatHappensToTheText)
{
    using Row = std::tuple<UINT, const wchar_t*, int, int>; // the key, the text then, and its selection
    for (const auto& [key, text, from, to] :
         {Row{VK_LBUTTON, L"text", 4, 4}, Row{VK_RETURN, L"text", 4, 4}, Row{VK_BACK, L"tex", 3, 3},
          Row{VK_TAB, L"text", 0, 4}, Row{VK_SPACE, L"text", 0, 4}, Row{VK_PRIOR, L"text", 0, 4},
          Row{VK_DOWN, L"text", 0, 4}, Row{L'q', L"q", 1, 1}, Row{0x448, L"\x448", 1, 1}})
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
    EXPECT_FALSE(grid.IsItemEditing(kRow, kCol));
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
    EXPECT_EQ(RectOf(edit), cell);
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
    CRect rect(10, 10, 110, 30);
    CStringArray items;
    items.Add(L"alpha");
    auto* const list =
        new CInPlaceList(&grid, rect, CBS_DROPDOWN, InPlaceControlId, 3, 4, 0, 0, items, L"beta", VK_LBUTTON);
    const int width = list->GetCorrectDropWidth();
    EXPECT_GT(width, ::GetSystemMetrics(SM_CXVSCROLL));
    EXPECT_LT(width, 200);
    list->AddString(CString(L'W', 60));
    EXPECT_EQ(list->GetCorrectDropWidth(), 200);
    EndByFocus();
}
