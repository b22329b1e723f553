// Cells to choose in: the check box, the list and the colour.

#include "CellTest.h"

#include "../../platform/acad/src/resource.h"

#include <aced.h>

class CheckCells : public CellTest
{
protected:
    void SetUp() override
    {
        CellTest::SetUp();
        cell = &Make<CGridCellCheck>();
        margin = static_cast<int>(cell->GetMargin());
    }
    CGridCellCheck* cell = nullptr;
    int margin = 0;
    static constexpr int kBoxSize = 13;
};

TEST_F(CheckCells, AClickIntoTheBoxFlipsItAndTells)
{
    const CPoint box = CellRect().TopLeft() + CSize(margin + kBoxSize / 2, margin + kBoxSize / 2);
    owtest::Click(grid, box);
    EXPECT_EQ(cell->GetCheck(), 1) << "the first click, which also brings the focus";
    EXPECT_EQ(Seen(), "3,2 [3,2-3,2]=1 changed 3,2 changing 3,2 check 3,2 click 3,2 #");
    grid.SetEditable(FALSE);
    owtest::Click(grid, box);
    EXPECT_EQ(cell->GetCheck(), 0) << "it flips without being editable";
    grid.SetEditable(TRUE);
    owtest::Click(grid, CPoint(CellRect().right - 3, CellRect().CenterPoint().y));
    EXPECT_TRUE(EditorOpens(kRow, kCol)) << "beside the box the text is edited";
    EndByKey(VK_ESCAPE);
    EXPECT_EQ(Seen(), "3,2 [3,2-3,2]=1 changing 3,2 check 3,2 click 3,2 begin 3,2 # #");

    grid.SetFocusCell(5, 4); // which the record names
    parent.Take();
    const int last = margin + kBoxSize - 1;
    for (const auto& [point, hit] : {std::pair(CPoint(margin, margin), true),
                                     {{last, last}, true},
                                     {{margin - 1, margin}, false},
                                     {{margin, margin - 1}, false},
                                     {{last + 1, last}, false},
                                     {{last, last + 1}, false}})
    {
        cell->SetCheck(0);
        cell->OnClick(point);
        EXPECT_EQ(cell->GetCheck(), hit) << point.x << ',' << point.y;
        EXPECT_EQ(parent.Take(), Calls(hit, "check 5,4"));
    }
}

TEST_F(CheckCells, AChangeRepaintsWhatWasDrawn)
{
    const CPoint box(margin, margin);
    EXPECT_EQ(Repainted([&] { EXPECT_EQ(cell->SetCheck(1), 0) << "the old state"; }), CellRect());
    EXPECT_EQ(parent.Take(), Calls{});
    CGridCellCheck copy, undrawn;
    copy = *cell;
    EXPECT_EQ(Repainted([&] { copy.SetCheck(0); }), CellRect()) << "a copy stands where the other was drawn";
    EXPECT_EQ(Repainted([&] { copy.OnClick(box); }), CellRect());
    undrawn.SetGrid(&grid);
    EXPECT_EQ(Repainted([&] { undrawn.SetCheck(-1); }), CRect());
    undrawn.OnClick(box);
    EXPECT_EQ(undrawn.GetCheck(), 0) << "a click counts from the origin then";
    copy.SetGrid(nullptr);
    copy.OnClick(box);
    EXPECT_EQ(copy.GetCheck(), 0) << "no grid to tell";
}

TEST_F(CheckCells, TheTextStandsClearOfTheBox)
{
    const int room = ::GetSystemMetrics(SM_CXHSCROLL) + 2 * margin;
    const auto textIn = [&](int right, int image)
    {
        CRect rect(100, 10, right, 40);
        cell->SetImage(image);
        EXPECT_TRUE(cell->GetTextRect(&rect));
        return rect;
    };
    grid.SetImageList(&CGridCtrl::GridImageList);
    EXPECT_EQ(textIn(180, -1), CRect(100 + room, 10, 180, 40));
    EXPECT_EQ(textIn(110, -1).left, 110) << "never past the right edge";
    EXPECT_EQ(textIn(180, 0).left, 100 + room + 17 + margin) << "nor under its image";
    cell->SetImage(-1);
    EXPECT_EQ(cell->GetCellExtent(nullptr), cell->GetTextExtent(cell->GetText()) + CSize(room, room));

    const CRect box(margin, margin, margin + kBoxSize, margin + kBoxSize);
    const auto darkInBox = [&](int check)
    {
        owtest::Surface surface(120, 40);
        cell->SetCheck(check);
        Draw(surface, *cell, CRect(0, 0, 100, 30));
        EXPECT_NE(surface.at(box.left, box.top), kBack);
        EXPECT_EQ(surface.at(box.right, box.bottom), kBack);
        return surface.count(box, RGB(0, 0, 0));
    };
    EXPECT_GT(darkInBox(1), darkInBox(0));
    EXPECT_EQ(darkInBox(-1), darkInBox(0)) << "a negative state is not checked";
}

class ComboCells : public CellTest
{
protected:
    struct OpenCombo : CGridCellCombo
    {
        using CGridCellCombo::m_dwStyle;
    };
    CGridCellCombo& MakeCombo()
    {
        auto& cell = Make<CGridCellCombo>();
        CStringArray options;
        for (const wchar_t* option : {L"HEA 240", L"IPE 200", L"UPN 120"})
            options.Add(option);
        cell.SetOptions(options);
        grid.SetItemText(kRow, kCol, L"IPE 200");
        grid.SetFocus();
        grid.SetFocusCell(kRow, kCol);
        return cell;
    }
    /// Painted where it belongs, so that painting it again changes nothing.
    bool ShowsArrow(CSize size)
    {
        const CSize arrow(::GetSystemMetrics(SM_CXVSCROLL), ::GetSystemMetrics(SM_CYHSCROLL));
        const CRect place(CPoint(size.cx - arrow.cx, 0), arrow);
        owtest::Surface once(120, 60), again(120, 60);
        for (owtest::Surface* to : {&once, &again})
            EXPECT_TRUE(Draw(*to, *grid.GetCell(kRow, kCol), CRect(CPoint(0, 0), size)));
        again.dc().IntersectClipRect(place.left + 1, 0, place.right, place.bottom); // the cell takes a pixel
        again.dc().DrawFrameControl(CRect(place), DFC_SCROLL, DFCS_SCROLLDOWN);
        return once == again;
    }
};

TEST_F(ComboCells, KeysTypeAndChoose)
{
    auto& cell = MakeCombo();
    EXPECT_EQ(cell.GetEditWnd(), nullptr);
    owtest::Type(L"RHS 80");
    ASSERT_NE(cell.DajKomboBoks(), nullptr);
    auto& edit = static_cast<CEdit&>(*cell.GetEditWnd());
    owtest::Press(VK_LEFT);
    EXPECT_EQ(edit.GetSel(), MAKELONG(5, 5)) << "without Ctrl it moves inside the text";
    for (const UINT message : {WM_SYSCHAR, WM_KEYDOWN, WM_KEYUP})
    {
        MSG msg{edit.m_hWnd, message, VK_SHIFT, 0, 0, {}};
        EXPECT_TRUE(static_cast<CWnd&>(edit).PreTranslateMessage(&msg)) << "no dialog sees it";
    }
    EndByKey(VK_RETURN);
    EXPECT_EQ(CellText(), L"RHS 80") << "what the list lacks can be typed";
    owtest::Type(L"x");
    owtest::Press(VK_LEFT, false, true);
    EXPECT_TRUE(EditorOpens(kRow, kCol - 1)) << "and with it to the next cell";
    EndByKey(VK_ESCAPE);
    grid.SetFocusCell(kRow, kCol);
    owtest::Type(L"x");
    owtest::Press(VK_DOWN);
    EXPECT_TRUE(EditorCloses()) << "a choice ends the edit at once";
    EXPECT_EQ(CellText(), L"HEA 240");
    for (const auto& [key, text] : {std::pair(UINT('x'), L"x"), std::pair(UINT(VK_BACK), L"HEA 24"),
                                    std::pair(UINT(VK_DOWN), L"HEA 240"), std::pair(UINT(VK_SPACE), L" ")})
    {
        grid.OnEditCell(kRow, kCol, CPoint(), key);
        EXPECT_EQ(owtest::TextOf(*cell.GetEditWnd()), text) << key;
        EndByKey(VK_ESCAPE);
        EXPECT_EQ(CellText(), L"HEA 240");
    }
}

TEST_F(ComboCells, TheMouseOpensTheListAndChooses)
{
    auto& cell = MakeCombo();
    owtest::Click(grid, CellRect().CenterPoint()); // the focus cell: an edit
    ASSERT_TRUE(owtest::PumpUntil([&] { return cell.DajKomboBoks() != nullptr; }));
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    ASSERT_TRUE(::GetComboBoxInfo(*cell.DajKomboBoks(), &info));
    owtest::Click(*cell.DajKomboBoks(), CRect(info.rcButton).CenterPoint());
    ASSERT_TRUE(owtest::PumpUntil([&] { return ::IsWindowVisible(info.hwndList); }));
    CRect item;
    ::SendMessage(info.hwndList, LB_GETITEMRECT, 2, reinterpret_cast<LPARAM>(&item));
    owtest::Click(info.hwndList, item.CenterPoint());
    EXPECT_TRUE(EditorCloses()) << "a choice ends the edit";
    EXPECT_EQ(CellText(), L"UPN 120");
}

TEST_F(ComboCells, AListWithoutAnEditPartOpensAtOnceAndACopyIsOneToo)
{
    auto& cell = MakeCombo();
    (cell.*&OpenCombo::m_dwStyle) = CBS_DROPDOWNLIST;
    grid.StartEditCell();
    ASSERT_NE(cell.DajKomboBoks(), nullptr);
    EXPECT_TRUE(cell.DajKomboBoks()->GetDroppedState());
    EXPECT_EQ(cell.GetEditWnd(), nullptr);
    owtest::Press(VK_UP);
    EndByKey(VK_ESCAPE);
    EXPECT_EQ(CellText(), L"IPE 200");
    grid.StartEditCell();
    owtest::Press(VK_UP);
    EndByKey(VK_RETURN);
    EXPECT_EQ(CellText(), L"HEA 240");
    CGridCellCombo copy;
    copy = cell;
    EXPECT_EQ(copy.GetStyle(), static_cast<DWORD>(CBS_DROPDOWNLIST));
    EXPECT_TRUE(copy.Edit(kRow, kCol, CellRect(), CPoint(), InPlaceControlId, VK_LBUTTON));
    EXPECT_EQ(copy.DajKomboBoks()->GetCount(), 3);
    EndByFocus();
}

TEST_F(ComboCells, TheKeyThatOpensAListEndsItWithItsNextRelease)
{
    for (const bool enterIsTab : {false, true})
    {
        const WORD key = enterIsTab ? VK_RETURN : VK_TAB;
        auto& cell = MakeCombo();
        grid.SetEnterIsTab(enterIsTab);
        grid.SetFocusCell(kRow, kCol - 1);
        owtest::Type(L"a");
        owtest::Press(key);
        owtest::Pump();
        EXPECT_TRUE(cell.IsEditing()) << "the walk stops at the list";
        owtest::Press(key);
        EXPECT_TRUE(EditorOpens(kRow, kCol + 1));
        EXPECT_FALSE(cell.IsEditing());
        EndByKey(VK_ESCAPE);
    }
}

TEST_F(ComboCells, AnArrowTellsOfTheListWhereItCanBeUsed)
{
    auto& cell = MakeCombo();
    cell.SetText(L"");
    grid.SetFocusCell(-1, -1); // whose frame would show
    const int arrow = ::GetSystemMetrics(SM_CYHSCROLL);
    EXPECT_TRUE(ShowsArrow(CSize(arrow + 1, arrow + 1)));
    EXPECT_FALSE(ShowsArrow(CSize(arrow, arrow + 1))) << "no room";
    EXPECT_FALSE(ShowsArrow(CSize(arrow + 1, arrow)));
    for (const bool readOnly : {true, false})
    {
        grid.SetItemState(kRow, kCol, readOnly ? CELL_READONLY : 0);
        grid.SetEditable(readOnly);
        EXPECT_FALSE(ShowsArrow(CSize(90, 30)));
    }
    const CSize text = cell.GetTextExtent(L"");
    EXPECT_EQ(cell.GetCellExtent(nullptr),
              CSize(text.cx + ::GetSystemMetrics(SM_CXVSCROLL), std::max<int>(text.cy, arrow)));
}

TEST_F(ComboCells, AnEditBegunAnewEndsTheOldOne)
{
    auto& cell = MakeCombo();
    owtest::Type(L"RHS 80");
    CComboBox* const pFirst = cell.DajKomboBoks();
    ASSERT_NE(pFirst, nullptr);
    owtest::Surface surface(120, 60);
    Draw(surface, cell, CRect(0, 0, 110, 30));
    const CRect insideFrame(2, 2, 108, 28);
    EXPECT_EQ(surface.count(insideFrame, kBack), insideFrame.Width() * insideFrame.Height())
        << "while editing neither arrow nor text show";
    EXPECT_STREQ(cell.GetText(), L"IPE 200") << "the text is kept all the same";
    grid.StartEditCell();
    EXPECT_EQ(CellText(), L"RHS 80");
    EXPECT_NE(cell.DajKomboBoks(), pFirst);
    EndByKey(VK_RETURN);

    owtest::Type(L"IPE 80");
    parent.On(LVN_ENDLABELEDITW, [&] { return grid.GetRowCount() == kRows && grid.DeleteRow(kRow); });
    grid.StartEditCell(); // the cell goes before the second edit begins
    parent.answer = nullptr;
    EXPECT_EQ(grid.GetRowCount(), kRows - 1);
    EXPECT_TRUE(EditorCloses());
    EXPECT_FALSE(CGridCellCombo().Edit(0, 0, CRect(0, 0, 50, 20), CPoint(), 8, 'x')) << "no grid";
}

class ColourCells : public CellTest
{
protected:
    void SetUp() override
    {
        CellTest::SetUp();
        cell = &Make<CGridCellColorCombo>();
    }
    /// How many dialogs a click opens, in each of which a number is typed and a key pressed.
    int Answered(
        const std::function<void()>& click, std::wstring_view number, WORD key,
        const std::function<void()>& whileOpen = [] {})
    {
        owtest::ModalVisit visit(
            [&](CWnd& dialog)
            {
                whileOpen();
                dialog.GetDlgItem(IDC_COLOR_TEXT)->SetFocus();
                dialog.GetDlgItem(IDC_COLOR_TEXT)->SendMessage(EM_SETSEL, 0, -1);
                owtest::Type(number);
                owtest::Press(key);
            });
        click();
        owtest::Pump();
        return visit.Count();
    }
    COLORREF ShownSwatch() { return CClientDC(&grid).GetPixel(CellRect().TopLeft() + CSize(20, 8)); }
    CGridCellColorCombo* cell = nullptr;
};

TEST_F(ColourCells, AClickOpensTheDialogAndTakesTheChoice)
{
    const auto click = [&] { owtest::Click(grid, CellRect().CenterPoint()); };
    EXPECT_EQ(cell->DajMastAci(), 252);
    EXPECT_EQ(ShownSwatch(), acedGetRGB(252));
    EXPECT_EQ(Answered(click, L"30", VK_RETURN), 1);
    EXPECT_EQ(cell->DajMastAci(), 30);
    EXPECT_EQ(ShownSwatch(), acedGetRGB(30)) << "at once";
    EXPECT_EQ(grid.GetDlgItem(InPlaceControlId), nullptr);
    cell->PostaviMastAci(5);
    EXPECT_EQ(ShownSwatch(), acedGetRGB(30)) << "a colour by program is not redrawn";
    grid.SetEditable(FALSE);
    EXPECT_EQ(Answered(click, L"142", VK_ESCAPE), 1) << "in a grid that is not editable, too";
    EXPECT_EQ(cell->DajMastAci(), 5);
    const auto clickBeside = [&]
    {
        cell->OnClick(CPoint(-1, 5));
        cell->OnClick(CPoint(5, -1));
        CGridCellColorCombo().OnClick(CPoint(5, 5));
    };
    EXPECT_EQ(Answered(clickBeside, L"1", VK_RETURN), 0) << "only a click inside a grid's cell";
}

TEST_F(ColourCells, TheCellMayGoWhileTheDialogIsOpen)
{
    const auto click = [&] { cell->OnClick(CPoint(0, 0)); };
    const auto replace = [&]
    {
        grid.DeleteRow(kRow);
        cell = &Make<CGridCellColorCombo>(); // in the same memory
    };
    EXPECT_EQ(Answered(click, L"30", VK_RETURN, replace), 1);
    EXPECT_EQ(cell->DajMastAci(), 252);
    EXPECT_EQ(Answered(click, L"30", VK_RETURN, [&] { grid.DestroyWindow(); }), 1);
    EXPECT_EQ(cell->DajMastAci(), 30) << "the cell outlives the grid's window";
}

TEST_F(ColourCells, TheSwatchNeedsRoom)
{
    const COLORREF red = acedGetRGB(1), black = RGB(0, 0, 0);
    // The colour, the size; reds, blacks beside the swatch (a list's mark has 9), its corner and its frame.
    for (const auto& [color, size, reds, blacks, swatch, frame] :
         {std::tuple(1, CSize(54, 17), 39 * 10, 9, red, black),
          std::tuple(1, CSize(53, 30), 0, 0, kBack, kBack), // the cell itself is painted
          std::tuple(1, CSize(80, 16), 0, 0, kBack, kBack),
          std::tuple(999, CSize(80, 30), 0, 9, kBack, black)}) // no such colour: an empty swatch
    {
        CGridCellColorCombo copy;
        cell->PostaviMastAci(color);
        copy = *cell;
        owtest::Surface drawn(100, 40);
        EXPECT_EQ(Draw(drawn, copy, CRect(CPoint(0, 0), size)), frame == black);
        EXPECT_EQ(drawn.count(CRect(0, 0, 100, 40), red), reds);
        EXPECT_EQ(drawn.count(CRect(49, 0, 100, 40), black), blacks) << size.cx;
        EXPECT_EQ(drawn.at(8, 4), swatch);
        for (const CPoint corner : {CPoint(7, 3), CPoint(47, 14)})
            EXPECT_EQ(drawn.at(corner.x, corner.y), frame);
        for (const CPoint ofMark : {CPoint(58, 7), CPoint(60, 9)}) // where it begins, and its tip
            EXPECT_EQ(drawn.at(ofMark.x, ofMark.y) == black, frame == black);
    }
    EXPECT_FALSE(cell->Draw(nullptr, kRow, kCol, CRect(0, 0, 80, 30), TRUE));
}
