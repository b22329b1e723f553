// The icon label: what it measures, where it paints, and whose its fonts and icons are.

#include <DialogControlsOW.h>

#include "Handles.h"
#include "Images.h"
#include "Picture.h"

#include "xicon_resource.h"

#include <gtest/gtest.h>

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

    void PaintOn(owtest::Surface& surface)
    {
        DRAWITEMSTRUCT item{};
        item.CtlType = ODT_BUTTON;
        item.hwndItem = m_hWnd;
        item.hDC = surface.dc().m_hDC;
        GetClientRect(&item.rcItem);
        DrawItem(&item);
    }
};

/// A label on a parent that is not shown, in a font whose strokes are of one colour.
class Label
{
public:
    explicit Label(DWORD style = BS_OWNERDRAW | BS_LEFT, CSize size = kSize)
    {
        m_parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 600, 200), nullptr, 0);
        HWND window = ::CreateWindowW(L"BUTTON", L"", WS_CHILD | WS_VISIBLE | style, 10, 10, size.cx, size.cy,
                                      m_parent, nullptr, nullptr, nullptr);
        icon.SubclassWindow(window);
        LOGFONTW font{};
        if (icon.GetFont(&font) && icon.GetFont()->m_hObject)
        {
            font.lfQuality = NONANTIALIASED_QUALITY;
            icon.SetAutoResize(FALSE).SetFont(&font).SetTextColor(kText);
        }
    }
    ~Label()
    {
        m_parent.DestroyWindow();
        ::DestroyIcon(m_solid);
    }

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

    /// Where a colour stands in what the label paints; empty if nowhere.
    CRect Painted(COLORREF color)
    {
        CRect client;
        icon.GetClientRect(client);
        owtest::Surface surface(client.Width(), client.Height());
        surface.dc().SetBkColor(kBack);
        icon.PaintOn(surface);
        CRect found(client.right, client.bottom, 0, 0);
        for (int y = 0; y < client.bottom; ++y)
        {
            for (int x = 0; x < client.right; ++x)
            {
                if (surface.at(x, y) == color)
                    found = CRect(std::min<int>(found.left, x), std::min<int>(found.top, y),
                                  std::max<int>(found.right, x + 1), std::max<int>(found.bottom, y + 1));
            }
        }
        return found.left < found.right ? found : CRect(0, 0, 0, 0);
    }

    OpenXIcon icon;

private:
    CWnd m_parent;
    HICON m_solid = testimages::MakeIcon(16, 16, [](int, int) { return testimages::Opaque(kIcon); });
};
} // namespace

TEST(XIcon, BeginsAsDocumentedAndKeepsWhatItIsGiven)
{
    CXIcon icon;
    int x = 0, y = 0;
    icon.GetMargins(x, y);
    EXPECT_EQ(CPoint(x, y), CPoint(2, 0));
    EXPECT_EQ(icon.GetIconSpacing(), 5);
    EXPECT_EQ(icon.GetTextColor(), ::GetSysColor(COLOR_BTNTEXT));
    EXPECT_EQ(icon.GetAutoResize(), 1);
    EXPECT_EQ(icon.GetFontFaceName(), L"MS Sans Serif");

    CXIcon& answered = icon.SetMargins(7, 8).SetIconSpacing(9).SetTextColor(kText).SetAutoResize(FALSE);
    EXPECT_EQ(&answered, &icon);
    icon.GetMargins(x, y);
    EXPECT_EQ(CPoint(x, y), CPoint(7, 8));
    EXPECT_EQ(icon.GetIconSpacing(), 9);
    EXPECT_EQ(icon.GetTextColor(), kText);
    EXPECT_EQ(icon.GetAutoResize(), 0);
}

TEST(XIcon, TakesNothingAmissBeforeItHasAWindow)
{
    CXIcon icon;
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
        const CRect icon = label.Painted(kIcon), text = label.Painted(kText);
        const int width = label.TextWidth(L"HH");
        ASSERT_FALSE(text.IsRectEmpty());
        if (align == BS_LEFT)
        {
            EXPECT_EQ(icon, CRect(CPoint(2, 12), CSize(16, 16)));
            EXPECT_GE(text.left, 2 + 16 + 5);
            EXPECT_LE(text.right, 2 + 16 + 5 + width);
        }
        else
        {
            EXPECT_GE(text.left, 2);
            EXPECT_LE(text.right, 2 + width);
            EXPECT_EQ(icon, CRect(CPoint(2 + width + 2 + 5, 12), CSize(16, 16))) << align;
        }
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
    EXPECT_EQ(label.Painted(kBack), CRect(CPoint(0, 0), kSize));
    EXPECT_TRUE(label.Painted(RGB(255, 0, 255)).IsRectEmpty()) << "nothing of what was there before is left";
    label.icon.SetIcon(label.Solid(), 16);
    EXPECT_EQ(label.Painted(kBack), CRect(CPoint(0, 0), kSize));
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

TEST(XIconFont, IsACopyOfTheWindowsOwn)
{
    Label label;
    LOGFONTW own{}, dialog{};
    ASSERT_EQ(label.icon.GetFont(&own), 1);
    label.icon.GetSafeFont()->GetLogFont(&dialog);
    EXPECT_STREQ(own.lfFaceName, dialog.lfFaceName);
    EXPECT_EQ(own.lfHeight, dialog.lfHeight);
    EXPECT_EQ(own.lfCharSet, DEFAULT_CHARSET);
    EXPECT_NE(label.icon.GetFont()->m_hObject, label.icon.GetSafeFont()->m_hObject);

    CFont given;
    given.CreatePointFont(140, L"Arial");
    label.icon.SetFont(&given);
    given.DeleteObject();
    EXPECT_EQ(label.icon.GetFontFaceName(), L"Arial");
    EXPECT_EQ(label.icon.GetFontPointSize(), 14);

    label.icon.SetFont(static_cast<CFont*>(nullptr));
    EXPECT_EQ(label.icon.GetFontFaceName(), dialog.lfFaceName) << "the window's again";
    label.icon.SetFont(static_cast<LOGFONTW*>(nullptr));
    EXPECT_EQ(label.icon.GetFontFaceName(), dialog.lfFaceName);
}

TEST(XIconFont, ChangesOneThingAtATime)
{
    Label label;
    label.icon.SetBold(TRUE);
    EXPECT_TRUE(label.icon.GetBold());
    label.icon.SetFont(static_cast<LPCTSTR>(nullptr), 20);
    EXPECT_TRUE(label.icon.GetBold()) << "without a face all else stays";
    EXPECT_EQ(label.icon.GetFontPointSize(), 20);

    const std::wstring longFace(40, L'x');
    label.icon.SetFont(longFace.c_str(), 9);
    LOGFONTW font{};
    label.icon.GetFont(&font);
    EXPECT_EQ(std::wstring(font.lfFaceName), std::wstring(31, L'x'));
    EXPECT_EQ(font.lfHeight, label.icon.GetFontHeight(9));
    EXPECT_EQ(font.lfWeight, 0) << "a new face has no weight, and so";
    EXPECT_FALSE(label.icon.GetBold());

    label.icon.SetBold(FALSE).GetFont(&font);
    EXPECT_EQ(font.lfWeight, FW_NORMAL);
    EXPECT_EQ(label.icon.GetFontHeight(72), -CWindowDC(nullptr).GetDeviceCaps(LOGPIXELSY));
    EXPECT_EQ(label.icon.GetFontPointSize(label.icon.GetFontHeight(11)), 11);
    EXPECT_EQ(label.icon.GetFontPointSize(-label.icon.GetFontHeight(11)), 11);
}

TEST(XIconFont, IsNoneOnAnOrdinaryButton)
{
    Label label(BS_PUSHBUTTON);
    EXPECT_EQ(label.icon.GetFont()->m_hObject, nullptr);
    EXPECT_EQ(label.icon.GetStyle() & BS_TYPEMASK, BS_PUSHBUTTON);
}

// ---- Resources ------------------------------------------------------------------------------------------

TEST(XIconResources, LoadTextsAndIconsById)
{
    Label label;
    CString text;
    label.icon.SetWindowText(MAKEINTRESOURCE(IDS_STATE)).GetWindowText(text);
    EXPECT_EQ(text, L"State from the resources");
    label.icon.SetWindowText(MAKEINTRESOURCE(4711)).GetWindowText(text);
    EXPECT_EQ(text, L"") << "no such string";

    label.icon.SetIcon(IDI_STATE, 16);
    owtest::Surface with(kSize.cx, kSize.cy), without(kSize.cx, kSize.cy);
    with.dc().SetBkColor(kBack);
    label.icon.PaintOn(with);
    without.dc().SetBkColor(kBack);
    label.icon.SetIcon(0u, 16);
    label.icon.PaintOn(without);
    EXPECT_LT(with.count(CRect(CPoint(2, 12), CSize(16, 16)), kBack), 256);
    EXPECT_EQ(without.count(CRect(CPoint(0, 0), kSize), kBack), kSize.cx * kSize.cy);
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
    for (int i = 0; i < 50; ++i)
        round();
    const owtest::HandleCount after = owtest::CountHandles();
    EXPECT_EQ(after.gdi, before.gdi);
    EXPECT_LE(after.user - before.user, 3);
    EXPECT_TRUE(testimages::IsIcon(given));
    ::DestroyIcon(given);
}
