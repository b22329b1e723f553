// What a button can be told, and what it answers; none of it needs a window.

#include "ButtonsDialog.h"

#include <gtest/gtest.h>

namespace
{
constexpr COLORREF kColor = RGB(240, 10, 10);

/// A system without visual styles: the library did not load.
class NoThemeHelper : public CThemeHelperST
{
public:
    NoThemeHelper()
    {
        ::FreeLibrary(m_hThemeModule);
        m_hThemeModule = nullptr;
    }
};

COLORREF ColorOf(const CButtonST& button, BYTE nIndex)
{
    COLORREF cr = CLR_INVALID;
    EXPECT_EQ(button.GetColor(nIndex, &cr), CButtonST::resultOk);
    return cr;
}
} // namespace

TEST(ButtonSettings, StartFlatAndWithoutBorderWhereTheThemeDraws)
{
    ASSERT_TRUE(CButtonST::pLocalTheme->IsAppThemed());
    OpenButton themed;
    EXPECT_EQ(themed.m_bIsFlat, 1);
    EXPECT_EQ(themed.m_bDrawBorder, 0);
    for (CThemeHelperST* pTheme : {static_cast<CThemeHelperST*>(nullptr), CButtonST::pLocalTheme})
    {
        themed.SetThemeHelper(pTheme);
        EXPECT_EQ(themed.m_bDrawBorder, 1) << "another helper brings the border and never takes it";
        EXPECT_EQ(themed.m_bIsFlat, 1) << "flat stays flat";
    }

    NoThemeHelper noTheme;
    CThemeHelperST* const pProcessTheme = CButtonST::pLocalTheme;
    for (CThemeHelperST* pTheme :
         {static_cast<CThemeHelperST*>(nullptr), static_cast<CThemeHelperST*>(&noTheme)})
    {
        CButtonST::pLocalTheme = pTheme;
        OpenButton plain;
        EXPECT_EQ(plain.m_bIsFlat, 0);
        EXPECT_EQ(plain.m_bDrawBorder, 1);
    }
    CButtonST::pLocalTheme = pProcessTheme;
}

TEST(ButtonSettings, ThemeHelperWithoutTheLibraryDoesNothing)
{
    const NoThemeHelper helper;
    RECT rect{0, 0, 10, 10};
    EXPECT_EQ(helper.IsAppThemed(), FALSE);
    EXPECT_EQ(helper.OpenThemeData(nullptr, L"BUTTON"), nullptr);
    EXPECT_EQ(helper.CloseThemeData(nullptr), E_FAIL);
    EXPECT_EQ(helper.DrawThemeBackground(nullptr, nullptr, 1, 1, &rect, nullptr), E_FAIL);
    helper.DrawThemeParentBackground(nullptr, nullptr, &rect);
}

TEST(ButtonSettings, ABadValueIsAnsweredWithItsCodeAndChangesNothing)
{
    CButtonST button;
    EXPECT_EQ(button.SetPressedStyle(2), 6u);
    button.SetAlign(CButtonST::alignNone);
    EXPECT_EQ(button.SetAlign(4), 4u);
    EXPECT_EQ(button.GetAlign(), CButtonST::alignNone);
    COLORREF cr = kColor;
    EXPECT_EQ(button.SetColor(6, kColor), 3u);
    EXPECT_EQ(button.OffsetColor(6, 1), 3u);
    EXPECT_EQ(button.GetColor(6, &cr), 3u);
    EXPECT_EQ(cr, kColor);
    EXPECT_EQ(button.GetColor(0, nullptr), 5u);
}

// Before a window is there a setter must not repaint either: invalidating no window means all windows.
TEST(ButtonSettings, MayBeMadeWithoutAWindow)
{
    OpenButton button;
    button.SetTooltipText(_T("tip"));
    button.SetTooltipText(IDS_TIP);
    button.SetTooltipText(nullptr);
    button.ActivateTooltip(TRUE);
    EXPECT_EQ(button.m_toolTip.m_hWnd, nullptr);
    button.SizeToContent();
    button.DrawTransparent();
    CDC dc;
    EXPECT_EQ(button.SetBk(&dc), 5u);
    EXPECT_EQ(button.SetIcon(CButtonST::hIconOk, nullptr), 0u);
    button.SizeToContent();
    EXPECT_EQ(button.m_ptImageOrigin, CPoint(3, 3)) << "without a window nothing is sized";
}

TEST(ButtonSettings, OffsetMovesTheChannelsTogetherUntilTheFirstIsAtItsEnd)
{
    CButtonST button;
    const auto offset = [&](COLORREF cr, short nShade)
    {
        button.SetColor(CButtonST::colorBackOut, cr);
        EXPECT_EQ(button.OffsetColor(CButtonST::colorBackOut, nShade), 0u);
        return ColorOf(button, CButtonST::colorBackOut);
    };
    EXPECT_EQ(offset(kColor, 40), RGB(255, 25, 25));
    EXPECT_EQ(offset(kColor, 5), RGB(245, 15, 15));
    EXPECT_EQ(offset(kColor, -40), RGB(230, 0, 0));
    EXPECT_EQ(offset(kColor, -255), RGB(230, 0, 0));
    EXPECT_EQ(offset(RGB(255, 0, 0), 255), RGB(255, 0, 0));
    EXPECT_EQ(button.OffsetColor(CButtonST::colorBackOut, 256), 5u);
    EXPECT_EQ(button.OffsetColor(CButtonST::colorBackOut, -256), 5u);
}

TEST(ButtonSettings, TheAddressFieldKeepsWhatFitsAndNeedsNoTerminator)
{
    OpenButton button;
    button.SetURL(L"x:\\nothing");
    EXPECT_STREQ(button.m_szUrl, L"x:\\nothing");
    button.SetURL(L"y");
    EXPECT_EQ(button.m_szUrl[2], L'\0') << "nothing of the former one is left";
    button.SetURL(nullptr);
    EXPECT_EQ(button.m_szUrl[0], L'\0');

    // Kept: a text that fills the field has no terminator, and the button works with it all the same.
    button.SetURL(std::wstring(300, L'?').c_str());
    EXPECT_EQ(button.m_szUrl[259], L'?');
    EXPECT_EQ(sizeof(button.m_szUrl), 260 * sizeof(wchar_t));
}

TEST(ButtonSettings, OnlyACheckBoxCanBeChecked)
{
    LoneButton push(CSize(40, 20));
    EXPECT_EQ(push.button.SetCheck(1), 0u);
    EXPECT_EQ(push.button.GetCheck(), 0);
    push.button.SendMessage(BM_SETCHECK, BST_CHECKED);
    EXPECT_EQ(push.button.SendMessage(BM_GETCHECK), 0);

    LoneButton box(CSize(40, 20), _T(""), BS_CHECKBOX);
    EXPECT_EQ(box.button.SetCheck(7), 0u);
    EXPECT_EQ(box.button.GetCheck(), 1);
    for (const auto& [set, expected] : {std::pair(0, 0), std::pair(1, 1), std::pair(2, 1), std::pair(3, 0)})
    {
        EXPECT_EQ(box.button.SendMessage(BM_SETCHECK, set), 0);
        EXPECT_EQ(box.button.SendMessage(BM_GETCHECK), expected) << set;
    }
}

TEST(ButtonSettings, ASettingRepaintsWhenItIsToldTo)
{
    LoneButton lone(CSize(40, 20));
    CButtonST& button = lone.button;
    button.GetParent()->ShowWindow(SW_SHOWNA);
    const auto repaints = [&](const auto& set)
    {
        button.ValidateRect(nullptr);
        set();
        return button.GetUpdateRect(nullptr) != FALSE;
    };
    EXPECT_TRUE(repaints([&] { button.SetFlat(TRUE, 2); }));
    EXPECT_FALSE(repaints([&] { button.SetFlat(TRUE, 0); }));
    EXPECT_TRUE(repaints([&] { button.SetIcon(static_cast<HICON>(nullptr)); })) << "always";

    // Kept: these look for exactly 1.
    for (const int repaint : {1, 2})
    {
        EXPECT_EQ(repaints([&] { button.SetFlatFocus(TRUE, repaint); }), repaint == 1);
        EXPECT_EQ(repaints([&] { button.SetColor(0, kColor, repaint); }), repaint == 1);
        EXPECT_EQ(repaints([&] { button.SetDefaultColors(repaint); }), repaint == 1);
        EXPECT_EQ(repaints([&] { button.DrawTransparent(repaint); }), repaint == 1);
    }
}

TEST(ButtonSettings, BecomesWhatTheTypeOfTheControlSays)
{
    struct Row
    {
        DWORD dwType;
        BOOL bCheckBox;
        BOOL bDefault;
        UINT nTypeStyle;
    };
    // clang-format off
    for (const Row& row : {Row{BS_PUSHBUTTON, 0, 0, BS_PUSHBUTTON}, {BS_DEFPUSHBUTTON, 0, 1, BS_PUSHBUTTON},
                           {BS_CHECKBOX, 1, 0, BS_CHECKBOX}, {BS_AUTOCHECKBOX, 1, 0, BS_AUTOCHECKBOX},
                           {BS_RADIOBUTTON, 0, 0, BS_RADIOBUTTON}, {BS_OWNERDRAW, 1, 0, BS_OWNERDRAW}})
    // clang-format on
    {
        LoneButton lone(CSize(40, 20), _T(""), row.dwType);
        EXPECT_EQ(lone.button.m_bIsCheckBox, row.bCheckBox) << row.dwType;
        EXPECT_EQ(lone.button.GetDefault(), row.bDefault) << row.dwType;
        EXPECT_EQ(lone.button.m_nTypeStyle, row.nTypeStyle) << row.dwType;
        EXPECT_EQ(lone.button.GetStyle() & 0x1F, static_cast<DWORD>(BS_OWNERDRAW)) << row.dwType;
    }
}

TEST(ButtonSettings, WhateverStyleIsSentTheButtonStaysOwnerDrawn)
{
    LoneButton lone(CSize(40, 20));
    const auto send = [&](DWORD dwStyle)
    {
        lone.button.SendMessage(BM_SETSTYLE, dwStyle, FALSE);
        EXPECT_EQ(lone.button.GetStyle() & 0xF, static_cast<DWORD>(BS_OWNERDRAW));
        return lone.button.GetDefault();
    };
    EXPECT_TRUE(send(BS_DEFPUSHBUTTON));
    EXPECT_TRUE(send(BS_CHECKBOX)) << "only the two push button styles say whether it is the default";
    EXPECT_FALSE(send(BS_PUSHBUTTON));
    EXPECT_FALSE(lone.button.m_bIsCheckBox);
}
