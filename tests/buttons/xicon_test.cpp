// The icon label: what it measures, where it paints, and whose its fonts and icons are.

#include "ButtonsDialog.h"

#include "Handles.h"
#include "Images.h"
#include "Input.h"
#include "Picture.h"
#include "module/GdiScope.h"

#include "xicon_resource.h"

#include <gtest/gtest.h>

#include <memory>

namespace
{
constexpr COLORREF kBack = RGB(200, 220, 240);
constexpr COLORREF kText = RGB(255, 0, 0);
constexpr COLORREF kIcon = RGB(0, 0, 255);
const CSize kSize{120, 40};

class OpenXIcon : public CXIcon
{
public:
    using CXIcon::GetFontHeight;
    using CXIcon::GetFontPointSize;
    using CXIcon::GetSafeFont;
};

/// A label in a font whose strokes are of one colour.
class Label : Lone<OpenXIcon>
{
public:
    explicit Label(DWORD style = BS_OWNERDRAW | BS_LEFT) : Lone(kSize, L"", style)
    {
        LOGFONTW font{};
        if (icon.GetFont(&font) && icon.GetFont()->m_hObject)
        {
            font.lfQuality = NONANTIALIASED_QUALITY;
            icon.SetAutoResize(FALSE).SetFont(&font).SetTextColor(kText);
        }
    }
    ~Label() { ::DestroyIcon(m_solid); }

    HICON Solid() const { return m_solid; }
    int Width() const
    {
        CRect rect;
        icon.GetWindowRect(rect);
        return rect.Width();
    }
    void SetWidth(int width) { icon.SetWindowPos(nullptr, 0, 0, width, kSize.cy, SWP_NOMOVE | SWP_NOZORDER); }
    /// The width that Resize gives a window that is far too narrow.
    int WantedWidth()
    {
        SetWidth(0);
        icon.Resize();
        return Width();
    }
    int TextWidth(const wchar_t* text)
    {
        CClientDC dc(&icon);
        const CGdiSelection font(dc, icon.GetFont()->m_hObject);
        return dc.GetTextExtent(text, static_cast<int>(wcslen(text))).cx;
    }

    std::unique_ptr<owtest::Surface> Paint()
    {
        CRect client;
        icon.GetClientRect(client);
        auto surface = std::make_unique<owtest::Surface>(client.Width(), client.Height());
        surface->dc().SetBkColor(kBack);
        PaintButton(icon, *surface);
        return surface;
    }
    /// Where a colour stands in what the label paints; empty if nowhere.
    CRect Painted(COLORREF color) { return Paint()->extent(color); }

    OpenXIcon& icon = button;

private:
    HICON m_solid = testimages::MakeIcon(16, 16, [](int, int) { return testimages::Opaque(kIcon); });
};
} // namespace

TEST(XIcon, TakesNothingAmissBeforeItHasAWindow)
{
    CXIcon icon;
    EXPECT_EQ(icon.GetFontFaceName(), L"MS Sans Serif");
    icon.SetWindowText(nullptr).SetWindowText(L"lost").SetIcon(HICON(nullptr), 16).SetIcon(0u, 16);
    icon.SetBold(TRUE).SetFont(static_cast<LOGFONTW*>(nullptr)).SetFont(L"Arial", 10);
    icon.Resize();
    EXPECT_EQ(icon.GetFontFaceName(), L"Arial");
    EXPECT_EQ(icon.GetFont(nullptr), 0);
}

// ---- Width ----------------------------------------------------------------------------------------------

TEST(XIconWidth, AddsUpWhatIsThere)
{
    Label label;
    const int text = label.TextWidth(L"Saved");
    EXPECT_EQ(label.WantedWidth(), 2 + 2) << "both margins";
    label.icon.SetIcon(label.Solid(), 16);
    EXPECT_EQ(label.WantedWidth(), 2 + 16 + 2 + 2);
    label.icon.SetWindowText(L"Saved");
    EXPECT_EQ(label.WantedWidth(), 2 + text + 2 + 5 + 16 + 2 + 2);
    label.icon.SetIcon(HICON(nullptr), 16);
    EXPECT_EQ(label.WantedWidth(), 2 + text + 2 + 2);
    label.icon.SetMargins(10, 3).SetIcon(label.Solid(), 32).SetIconSpacing(0);
    EXPECT_EQ(label.WantedWidth(), 10 + text + 2 + 32 + 2 + 10);
}

TEST(XIconWidth, GrowsAtOnceAndShrinksOnlyToSaveMoreThanFivePixels)
{
    Label label;
    label.icon.SetIcon(label.Solid(), 16);
    const int wanted = label.WantedWidth();
    for (const auto& [before, after] : {std::pair(wanted - 1, wanted),
                                        {wanted + 4, wanted + 4},
                                        {wanted + 5, wanted + 5},
                                        {wanted + 6, wanted}})
    {
        label.SetWidth(before);
        label.icon.Resize();
        EXPECT_EQ(label.Width(), after) << before;
    }

    CRect rect;
    label.icon.GetWindowRect(rect);
    label.icon.GetParent()->ScreenToClient(rect);
    EXPECT_EQ(rect.TopLeft(), CPoint(10, 10)) << "it stays where it is";
    EXPECT_EQ(rect.Height(), kSize.cy);
}

TEST(XIconWidth, FollowsEverySetterWhileResizingIsAutomatic)
{
    Label label;
    label.icon.SetWindowText(L"Some text");
    EXPECT_EQ(label.Width(), kSize.cx) << "not yet";
    label.icon.SetAutoResize(TRUE);
    const int wide = label.Width();
    EXPECT_EQ(wide, 2 + label.TextWidth(L"Some text") + 2 + 2);
    label.icon.SetMargins(50, 0);
    EXPECT_EQ(label.Width(), wide + 96);
    label.icon.SetFont(L"", 30);
    EXPECT_EQ(label.Width(), 50 + label.TextWidth(L"Some text") + 2 + 50);
    label.icon.SetWindowText(nullptr);
    EXPECT_EQ(label.Width(), 100);
}

// ---- Painting -------------------------------------------------------------------------------------------

TEST(XIconPainting, PutsTheIconFirstOnlyWithPlainLeftAlignment)
{
    for (DWORD align : {BS_LEFT, BS_RIGHT, BS_CENTER, 0L})
    {
        Label label(BS_OWNERDRAW | align);
        label.icon.SetIcon(label.Solid(), 16).SetWindowText(L"HH");
        const int width = label.TextWidth(L"HH");
        const bool iconFirst = align == BS_LEFT;
        const int iconAt = iconFirst ? 2 : 2 + width + 2 + 5, textAt = iconFirst ? 2 + 16 + 5 : 2;
        EXPECT_EQ(label.Painted(kIcon), CRect(CPoint(iconAt, 12), CSize(16, 16))) << align;
        const CRect text = label.Painted(kText);
        EXPECT_FALSE(text.IsRectEmpty());
        EXPECT_GE(text.left, textAt) << align;
        EXPECT_LE(text.right, textAt + width) << align;
    }
}

TEST(XIconPainting, BeginsAtTheSpacingWhereTheFirstPartIsMissing)
{
    Label textOnly;
    textOnly.icon.SetMargins(40, 0).SetIconSpacing(9).SetWindowText(L"H");
    EXPECT_GE(textOnly.Painted(kText).left, 9);
    EXPECT_LT(textOnly.Painted(kText).left, 14) << "the margin does not count";

    Label iconOnly(BS_OWNERDRAW | BS_RIGHT);
    iconOnly.icon.SetMargins(40, 0).SetIconSpacing(9).SetIcon(iconOnly.Solid(), 16);
    EXPECT_EQ(iconOnly.Painted(kIcon).left, 9);
}

TEST(XIconPainting, CoversTheWholeAreaWithTheTargetsBackground)
{
    Label label;
    label.icon.SetIcon(label.Solid(), 16);
    EXPECT_EQ(label.Painted(kBack), CRect(CPoint(0, 0), kSize));
    EXPECT_TRUE(label.Painted(RGB(255, 0, 255)).IsRectEmpty()) << "nothing of what was there before is left";
    EXPECT_EQ(label.icon.SendMessage(WM_ERASEBKGND), 1);
}

TEST(XIconPainting, PlacesTheTextByTheVerticalStyleBelowTheTopMargin)
{
    const auto painted = [](DWORD vertical, int margin)
    {
        Label label(BS_OWNERDRAW | BS_LEFT | vertical);
        label.icon.SetMargins(2, margin).SetWindowText(L"H");
        return label.Painted(kText);
    };
    const CRect top = painted(BS_TOP, 0), middle = painted(BS_VCENTER, 0), bottom = painted(BS_BOTTOM, 0);
    EXPECT_LT(top.bottom, 16);
    EXPECT_GT(bottom.top, 24);
    EXPECT_LE(std::abs(middle.CenterPoint().y - 20), 2);
    EXPECT_EQ(painted(0, 0), middle);
    EXPECT_EQ(painted(BS_TOP, 6).top, top.top + 6);
    EXPECT_EQ(painted(BS_BOTTOM, 6), bottom);

    Label icon;
    icon.icon.SetMargins(2, 7).SetIcon(icon.Solid(), 16);
    EXPECT_EQ(icon.Painted(kIcon).top, 7 + ((40 - 16 - 7) >> 1)) << "the middle of what the margin leaves";
    icon.icon.SetMargins(2, 0).SetIcon(icon.Solid(), 45);
    EXPECT_EQ(icon.Painted(kIcon), CRect(2, 0, 47, 40)) << "drawn at the size asked for, and cut off";
}

// ---- Fonts ----------------------------------------------------------------------------------------------

TEST(XIconFont, IsACopyOfTheWindowsOwnOrOfTheGivenOne)
{
    Label label;
    LOGFONTW own{}, dialog{};
    ASSERT_EQ(label.icon.GetFont(&own), 1);
    label.icon.GetSafeFont()->GetLogFont(&dialog);
    EXPECT_STREQ(own.lfFaceName, dialog.lfFaceName);
    EXPECT_EQ(own.lfHeight, dialog.lfHeight);
    EXPECT_NE(label.icon.GetFont()->m_hObject, label.icon.GetSafeFont()->m_hObject);

    CFont given;
    given.CreatePointFont(140, L"Arial");
    label.icon.SetFont(&given);
    given.DeleteObject();
    EXPECT_EQ(label.icon.GetFontFaceName(), L"Arial");
    EXPECT_EQ(label.icon.GetFontPointSize(), 14);
    label.icon.SetFont(static_cast<CFont*>(nullptr));
    EXPECT_EQ(label.icon.GetFontFaceName(), dialog.lfFaceName) << "the window's again";

    Label ordinary(BS_PUSHBUTTON);
    EXPECT_EQ(ordinary.icon.GetFont()->m_hObject, nullptr) << "an ordinary button has none";
    EXPECT_EQ(ordinary.icon.GetStyle() & BS_TYPEMASK, BS_PUSHBUTTON);
}

TEST(XIconFont, ChangesOneThingAtATime)
{
    Label label;
    label.icon.SetBold(TRUE).SetFont(static_cast<LPCTSTR>(nullptr), 20);
    EXPECT_TRUE(label.icon.GetBold()) << "without a face all else stays";
    EXPECT_EQ(label.icon.GetFontPointSize(), 20);

    label.icon.SetFont(std::wstring(40, L'x').c_str(), 9);
    LOGFONTW font{};
    label.icon.GetFont(&font);
    EXPECT_EQ(std::wstring(font.lfFaceName), std::wstring(31, L'x'));
    EXPECT_EQ(font.lfHeight, label.icon.GetFontHeight(9));
    EXPECT_FALSE(label.icon.GetBold()) << "a new face has no weight";
    EXPECT_EQ(label.icon.GetFontHeight(72), -CWindowDC(nullptr).GetDeviceCaps(LOGPIXELSY));
    EXPECT_EQ(label.icon.GetFontPointSize(-label.icon.GetFontHeight(11)), 11) << "either sign";
}

// ---- Resources ------------------------------------------------------------------------------------------

TEST(XIconResources, LoadTextsAndIconsById)
{
    Label label;
    label.icon.SetWindowText(MAKEINTRESOURCE(IDS_STATE));
    EXPECT_EQ(owtest::TextOf(label.icon), L"State from the resources");
    label.icon.SetWindowText(MAKEINTRESOURCE(4711));
    EXPECT_EQ(owtest::TextOf(label.icon), L"") << "no such string";

    const auto isBare = [&]
    { return label.Paint()->count(CRect(CPoint(0, 0), kSize), kBack) == kSize.cx * kSize.cy; };
    label.icon.SetIcon(IDI_STATE, 16);
    EXPECT_FALSE(isBare());
    label.icon.SetIcon(0u, 16);
    EXPECT_TRUE(isBare());
}

TEST(XIconResources, OfTheCallerLiveOnAndItsOwnAreGivenBack)
{
    HICON given = testimages::MakeFramedIcon(16, kIcon);
    const auto round = [&]
    {
        Label label;
        label.icon.SetIcon(IDI_STATE, 16).SetIcon(given, 16).SetIcon(IDI_STATE, 32).SetIcon(IDI_STATE, 16);
        label.icon.SetBold(TRUE).SetFont(L"Arial", 12).SetWindowText(L"Text");
        label.Painted(kText);
    };
    round();
    const owtest::HandleCount before = owtest::CountHandles();
    for (int i = 0; i < 30; ++i)
        round();
    EXPECT_EQ(owtest::CountHandles(), before);
    EXPECT_TRUE(testimages::IsIcon(given));
    ::DestroyIcon(given);
}
