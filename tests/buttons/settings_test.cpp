// What a button can be told, and what it answers.

#include "Room.h"

namespace
{
constexpr COLORREF kColor = RGB(240, 10, 10);
const CSize kSize(40, 20);

/// A system without visual styles: the library did not load.
struct NoThemeHelper : CThemeHelperST
{
    NoThemeHelper() { ::FreeLibrary(std::exchange(m_hThemeModule, nullptr)); }
};
} // namespace

TEST(ButtonSettings, StartFlatAndWithoutBorderWhereTheThemeDraws)
{
    NoThemeHelper noTheme;
    CThemeHelperST* const pProcessTheme = CButtonST::pLocalTheme;
    for (CThemeHelperST* pNone : std::initializer_list<CThemeHelperST*>{nullptr, &noTheme})
    {
        Open themed;
        for (const auto& [pTheme, bBorder] : {std::pair(pProcessTheme, 0), {pNone, 1}, {pProcessTheme, 1}})
        {
            themed.SetThemeHelper(pTheme); // which may bring the border, and never takes it
            EXPECT_TRUE(themed.m_bDrawBorder == bBorder && themed.GetFlat());
        }
        CButtonST::pLocalTheme = pNone;
        Open plain;
        CButtonST::pLocalTheme = pProcessTheme;
        EXPECT_TRUE(plain.m_bDrawBorder && !plain.GetFlat());
        for (BYTE i = 0; i < CButtonST::colorCount; ++i)
            EXPECT_EQ(ColorOf(plain, i), ::GetSysColor(i % 2 ? COLOR_BTNTEXT : COLOR_BTNFACE));
    }
    RECT rect{0, 0, 10, 10};
    EXPECT_EQ(noTheme.IsAppThemed(), FALSE);
    EXPECT_EQ(noTheme.OpenThemeData(nullptr, L"BUTTON"), nullptr);
    EXPECT_EQ(noTheme.CloseThemeData(nullptr), E_FAIL);
    EXPECT_EQ(noTheme.DrawThemeBackground(nullptr, nullptr, 1, 1, &rect, nullptr), E_FAIL);
    noTheme.DrawThemeParentBackground(::GetDesktopWindow(), nullptr, &rect);
    pProcessTheme->DrawThemeParentBackground(nullptr, nullptr, &rect);
}

TEST(ButtonSettings, MayBeMadeWithoutAWindowAnswerABadValueWithItsCodeAndShiftColoursTogether)
{
    Open button;
    COLORREF cr = kColor;
    CDC dc;
    const std::pair<DWORD, DWORD> results[] = {{0, button.SetAlign(CButtonST::alignNone)},
                                               {4, button.SetAlign(4)},
                                               {6, button.SetPressedStyle(2)},
                                               {3, button.SetColor(6, kColor)},
                                               {3, button.OffsetColor(6, 1)},
                                               {3, button.GetColor(6, &cr)},
                                               {5, button.OffsetColor(0, 256)},
                                               {5, button.OffsetColor(0, -256)},
                                               {5, button.GetColor(0, nullptr)},
                                               {0, button.SetIcon(CButtonST::hIconOk)}};
    for (const auto& [expected, result] : results)
        EXPECT_EQ(result, expected);
    EXPECT_TRUE(button.GetAlign() == CButtonST::alignNone && cr == kColor);
    EXPECT_EQ(CButtonST::GetVersionI(), 12);
    // Invalidating no window would mean all windows.
    button.SetTooltipText(L"tip");
    button.SetTooltipText(IDS_TEXT);
    button.ActivateTooltip(TRUE);
    EXPECT_EQ(button.m_toolTip.m_hWnd, nullptr);
    button.DrawTransparent();
    EXPECT_EQ(button.SetBk(&dc), 5u);
    button.SizeToContent();
    EXPECT_EQ(button.m_ptImageOrigin, CPoint(3, 3)) << "without a window nothing is sized";

    using Row = std::tuple<COLORREF, short, COLORREF>; // before, shade, after
    for (const auto& [before, nShade, after] :
         {Row{kColor, 40, RGB(255, 25, 25)}, Row{kColor, 5, RGB(245, 15, 15)},
          Row{kColor, -255, RGB(230, 0, 0)}, Row{RGB(30, 20, 10), -5, RGB(25, 15, 5)},
          Row{RGB(10, 20, 240), 255, RGB(25, 35, 255)}, Row{kBlack, 255, kWhite}, Row{kWhite, -255, kBlack}})
    {
        button.SetColor(CButtonST::colorBackOut, before);
        EXPECT_EQ(button.OffsetColor(CButtonST::colorBackOut, nShade), 0u);
        EXPECT_EQ(ColorOf(button), after) << nShade;
    }
}

TEST(ButtonSettings, ASettingRepaintsWhenItIsToldTo)
{
    Lone<CButtonST> lone(kSize, L"", BS_CHECKBOX);
    CButtonST& button = lone.button;
    lone.parent.ShowWindow(SW_SHOWNA);
    const std::function<void(BOOL)> settings[] = {
        [&](BOOL bRepaint) { button.SetFlat(TRUE, bRepaint); },
        [&](BOOL bRepaint) { button.DrawBorder(TRUE, bRepaint); },
        [&](BOOL bRepaint) { button.DrawFlatFocus(TRUE, bRepaint); },
        [&](BOOL bRepaint) { button.DrawAsToolbar(FALSE, bRepaint); },
        [&](BOOL bRepaint) { button.SetAlign(CButtonST::alignTop, bRepaint); },
        [&](BOOL bRepaint) { button.SetPressedStyle(CButtonST::pressedDown, bRepaint); },
        [&](BOOL bRepaint) { button.SetCheck(1, bRepaint); },
        [&](BOOL bRepaint) { button.OffsetColor(0, 1, bRepaint); },
        [&](BOOL bRepaint) { button.SetBtnCursor(IDC_CROSSHAIR, bRepaint); },
        // Kept: these look for exactly 1.
        [&](BOOL bRepaint) { button.SetFlatFocus(TRUE, bRepaint); },
        [&](BOOL bRepaint) { button.SetColor(0, kColor, bRepaint); },
        [&](BOOL bRepaint) { button.SetDefaultColors(bRepaint); },
        [&](BOOL bRepaint) { button.DrawTransparent(bRepaint); },
        // And these repaint in any case.
        [&](BOOL) { button.SetIcon(static_cast<HICON>(nullptr)); },
        [&](BOOL) { button.SetBitmaps(static_cast<HBITMAP>(nullptr), 0); },
        [&](BOOL) { button.SetBitmaps(10101, 0); }, [&](BOOL) { button.SendMessage(BM_SETCHECK, 1); },
        [&](BOOL) { button.SendMessage(WM_SYSCOLORCHANGE); }};
    for (size_t i = 0; i < std::size(settings); ++i)
        for (const BOOL bRepaint : {0, 1, 2})
            EXPECT_EQ(Repaints(button, [&] { settings[i](bRepaint); }),
                      i > 12 || bRepaint == 1 || (bRepaint == 2 && i < 9))
                << "setting " << i << ", " << bRepaint;

    // A button that shows its pixels as they were unless it is told otherwise.
    button.UpdateWindow();
    CClientDC(&button).SetPixel(9, 9, kKey);
    button.EnableWindow(FALSE);
    button.UpdateWindow();
    EXPECT_NE(CClientDC(&button).GetPixel(9, 9), kKey) << "the system's button paints itself";
}

TEST(ButtonSettings, BecomesWhatTheTypeOfTheControlSaysAndOnlyACheckBoxCanBeChecked)
{
    using Row = std::tuple<DWORD, bool, BOOL, UINT>; // type, check box, default, and what is kept of the type
    // clang-format off
    for (const auto& [dwType, bCheckBox, bDefault, nTypeStyle] : {
             Row{BS_PUSHBUTTON, false, 0, BS_PUSHBUTTON}, Row{BS_DEFPUSHBUTTON, false, 1, BS_PUSHBUTTON},
             Row{BS_CHECKBOX, true, 0, BS_CHECKBOX}, Row{BS_AUTOCHECKBOX, true, 0, BS_AUTOCHECKBOX},
             Row{BS_RADIOBUTTON, false, 0, BS_RADIOBUTTON}, Row{BS_OWNERDRAW, true, 0, BS_OWNERDRAW}})
    // clang-format on
    {
        Lone<Open<>> lone(kSize, L"", dwType);
        Open<>& button = lone.button;
        EXPECT_TRUE(button.GetDefault() == bDefault && button.m_nTypeStyle == nTypeStyle) << dwType;
        for (const auto& [style, bNow] :
             {std::pair(BS_DEFPUSHBUTTON, 1), {BS_CHECKBOX, 1}, {BS_PUSHBUTTON, 0}})
        {
            button.SendMessage(BM_SETSTYLE, style, FALSE);
            EXPECT_EQ(button.GetDefault(), bNow) << "only the push button styles say so";
            EXPECT_EQ(button.GetStyle() & 0x1F, static_cast<DWORD>(BS_OWNERDRAW)) << dwType;
        }
        button.SetCheck(7);
        EXPECT_EQ(button.GetCheck(), bCheckBox) << dwType;
        for (const auto& [set, bChecked] : {std::pair(0, false), {1, true}, {2, true}, {3, false}})
        {
            EXPECT_EQ(button.SendMessage(BM_SETCHECK, set), 0);
            EXPECT_EQ(button.SendMessage(BM_GETCHECK), bCheckBox && bChecked) << set;
        }
    }
}
