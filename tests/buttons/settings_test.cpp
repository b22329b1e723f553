// What a button can be told, and what it answers: settings, and images, who owns them and what a failure leaves.

#include "Room.h"

namespace
{
constexpr COLORREF kColor = RGB(200, 100, 50);
constexpr COLORREF kGrey = RGB(124, 124, 124); // 0.299 of 200, 0.587 of 100 and 0.114 of 50
constexpr COLORREF kDarker = RGB(150, 75, 37);
constexpr int kNoResource = 31999;
const CSize kSize(40, 20);

HBITMAP Make(CSize size = CSize(16, 16))
{
    return MakeBitmap(size, kColor, kWhite);
}

/// The colours of a 16 by 16 bitmap in its frame and in its middle.
std::pair<DWORD, DWORD> ColorsOf(HBITMAP hBitmap)
{
    const Pixels pixels = PixelsOf(hBitmap);
    return {pixels[0] & kWhite, pixels[8 * 16 + 8] & kWhite};
}
} // namespace

TEST(ButtonSettings, StartFlatAndWithoutBorderWhereTheThemeDraws)
{
    CThemeHelperST* const pProcessTheme = CButtonST::pLocalTheme;
    Open themed;
    for (const auto& [pTheme, bBorder] : {std::pair(pProcessTheme, 0), {nullptr, 1}, {pProcessTheme, 1}})
    {
        themed.SetThemeHelper(pTheme); // which may bring the border, and never takes it
        EXPECT_TRUE(themed.m_bDrawBorder == bBorder && themed.GetFlat());
    }
    CButtonST::pLocalTheme = nullptr;
    Open plain;
    CButtonST::pLocalTheme = pProcessTheme;
    EXPECT_TRUE(plain.m_bDrawBorder && !plain.GetFlat());
    COLORREF cr = CLR_INVALID;
    for (BYTE i = 0; i < CButtonST::colorCount; ++i)
        EXPECT_TRUE(plain.GetColor(i, &cr) == 0 &&
                    cr == ::GetSysColor(i % 2 ? COLOR_BTNTEXT : COLOR_BTNFACE));
}

TEST(ButtonSettings, HaveNoThemeWithoutItsLibrary)
{
    const owtest::ImportStandIn missing(
        L"DialogControlsOW.dll", "LoadLibraryW", +[](LPCWSTR) -> HMODULE { return nullptr; });
    const CThemeHelperST none;
    const RECT rect{};
    EXPECT_FALSE(none.IsAppThemed() || none.OpenThemeData(nullptr, L"BUTTON"));
    EXPECT_EQ(none.CloseThemeData(nullptr), E_FAIL);
    EXPECT_EQ(none.DrawThemeBackground(nullptr, nullptr, 1, 1, &rect, nullptr), E_FAIL);
    none.DrawThemeParentBackground(::GetDesktopWindow(), nullptr, &rect);
}

TEST(ButtonSettings, MayBeMadeWithoutAWindowAnswerABadValueWithItsCodeAndShiftColoursTogether)
{
    Open button;
    COLORREF cr = kColor;
    CDC dc;
    const std::pair<DWORD, DWORD> results[] = {
        {4, button.SetAlign(4)},          {6, button.SetPressedStyle(2)},
        {3, button.SetColor(6, kColor)},  {3, button.OffsetColor(6, 1)},
        {3, button.GetColor(6, &cr)},     {5, button.OffsetColor(0, 256)},
        {5, button.GetColor(0, nullptr)}, {0, button.SetIcon(CButtonST::hIconOk)}};
    for (const auto& [expected, result] : results)
        EXPECT_EQ(result, expected);
    EXPECT_TRUE(button.GetAlign() == CButtonST::alignLeft && cr == kColor);
    // Invalidating no window would mean all windows.
    button.SetTooltipText(IDS_TEXT);
    button.ActivateTooltip(TRUE);
    button.DrawTransparent();
    EXPECT_EQ(button.SetBk(&dc), 5u);
    button.SizeToContent();
    EXPECT_EQ(button.m_ptImageOrigin, CPoint(3, 3)) << "without a window nothing is sized";

    using Row = std::tuple<COLORREF, short, COLORREF>; // before, shade, after
    for (const auto& [before, nShade, after] :
         {Row{kColor, 60, RGB(255, 155, 105)}, Row{kColor, -255, RGB(150, 50, 0)},
          Row{RGB(30, 20, 10), -5, RGB(25, 15, 5)}, Row{kBlack, 255, kWhite}, Row{kWhite, -255, kBlack}})
    {
        button.SetColor(CButtonST::colorBackOut, before);
        EXPECT_EQ(button.OffsetColor(CButtonST::colorBackOut, nShade), 0u);
        button.GetColor(CButtonST::colorBackOut, &cr);
        EXPECT_EQ(cr, after) << nShade;
    }
}

TEST(ButtonSettings, ASettingRepaintsWhenItIsToldTo)
{
    Lone<CButtonST> lone(kSize, L"", BS_CHECKBOX);
    CButtonST& button = lone.button;
    lone.parent.ShowWindow(SW_SHOWNA);
    const std::function<void(BOOL)> settings[] = {
        [&](BOOL bRepaint) { button.SetFlat(TRUE, bRepaint); },
        [&](BOOL bRepaint) { button.SetAlign(CButtonST::alignTop, bRepaint); },
        [&](BOOL bRepaint) { button.SetCheck(1, bRepaint); },
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
                      i > 7 || bRepaint == 1 || (bRepaint == 2 && i < 4))
                << "setting " << i << ", " << bRepaint;

    CClientDC dc(&button);
    const LRESULT hBrush = lone.parent.SendMessage(WM_CTLCOLORBTN, reinterpret_cast<WPARAM>(dc.m_hDC),
                                                   reinterpret_cast<LPARAM>(button.m_hWnd));
    EXPECT_EQ(reinterpret_cast<HGDIOBJ>(hBrush), ::GetStockObject(NULL_BRUSH));
}

TEST(ButtonSettings, BecomesWhatTheTypeOfTheControlSaysAndOnlyACheckBoxCanBeChecked)
{
    for (const auto& [dwType, bCheckBox] : {std::pair(BS_DEFPUSHBUTTON, false),
                                            {BS_CHECKBOX, true},
                                            {BS_RADIOBUTTON, false},
                                            {BS_OWNERDRAW, true}})
    {
        Lone<Open<>> lone(kSize, L"", dwType);
        Open<>& button = lone.button;
        EXPECT_EQ(button.GetDefault(), dwType == BS_DEFPUSHBUTTON);
        EXPECT_EQ(button.m_nTypeStyle, UINT(button.GetDefault() ? BS_PUSHBUTTON : dwType));
        for (const auto& [style, bNow] :
             {std::pair(BS_DEFPUSHBUTTON, 1), {BS_CHECKBOX, 1}, {BS_PUSHBUTTON, 0}})
        {
            button.SendMessage(BM_SETSTYLE, style, FALSE);
            EXPECT_EQ(button.GetDefault(), bNow) << "only the push button styles say so";
            EXPECT_EQ(button.GetStyle() & 0x1F, static_cast<DWORD>(BS_OWNERDRAW)) << dwType;
        }
        button.SetCheck(7);
        EXPECT_EQ(button.GetCheck(), bCheckBox) << dwType;
        for (const auto& [set, bChecked] : {std::pair(2, true), {3, false}})
        {
            EXPECT_EQ(button.SendMessage(BM_SETCHECK, set), 0);
            EXPECT_EQ(button.SendMessage(BM_GETCHECK), bCheckBox && bChecked) << set;
        }
    }
}

TEST(ButtonImages, ComeFromHandlesOrFromWhicheverModuleHasThemAndReplaceEachOther)
{
    Lone<Open<>> lone(CSize(60, 30));
    Open<>& button = lone.button;
    const auto sized = [&]
    {
        CRect rect;
        button.SizeToContent();
        button.GetClientRect(rect);
        return rect.Size();
    };
    EXPECT_EQ(sized(), CSize(60, 30)) << "without an image nothing happens";
    EXPECT_EQ(button.SetBitmaps(Make(CSize(16, 12)), kKey), 0u);
    EXPECT_EQ(sized(), CSize(16, 12));
    EXPECT_EQ(button.m_ptImageOrigin, CPoint(0, 0));
    const std::tuple<int, int, int, LONG, LONG> rows[] = {
        // size asked for, second image and its size asked for, the sizes that they get
        {0, 10014, 0, 32, 24},
        {16, 10014, 48, 16, 48},
        {0, CButtonST::copyGray, 0, 32, 32},
        {0, 0, 0, 32, 0}};
    for (const auto& [cx, nOut, cxOut, in, out] : rows)
    {
        EXPECT_EQ(button.SetIcon(10000, cx, cx, nOut, cxOut, cxOut), 0u);
        EXPECT_TRUE(button.m_icons[1].size.cx == out && !button.m_bitmaps[0].hBitmap) << nOut;
        EXPECT_EQ(sized(), CSize(in, in));
    }
    EXPECT_EQ(button.SetBitmaps(10101, kWhite, 10122, kKey), 0u);
    EXPECT_EQ(button.m_bitmaps[1].crTransparent, kKey);
}

TEST(ButtonImages, MayBeGreyOrDarkerCopiesOfWhatIsNotTransparent)
{
    // From left to right transparent, coloured and black; above half transparent. Of an odd width a copy has one
    // column less.
    const auto pixelsOf = [](int width, COLORREF cr)
    {
        Pixels pixels;
        for (int i = 0; i < width * 12; ++i)
        {
            const int x = i % width, alpha = i / width < 4 ? 0x80 : 0xFF;
            pixels.push_back(x < 4 ? 0 : alpha << 24 | (x < 12 ? PixelOf(cr) : 0));
        }
        return pixels;
    };
    const Icon icon = MakeIcon(CSize(17, 12), pixelsOf(17, kColor));
    owtest::HandleCount before;
    for (const auto& [copy, cr] : {std::pair(CButtonST::copyGray, kGrey), {CButtonST::copyDarker, kDarker}})
    {
        before = owtest::CountHandles();
        Open button;
        button.SetBtnCursor(IDC_CROSSHAIR);
        ASSERT_EQ(button.SetIcon(icon.get(), reinterpret_cast<HICON>(LONG_PTR(copy))), 0u);
        EXPECT_EQ(button.m_icons[1].size, CSize(16, 12));
        ICONINFO info{};
        ::GetIconInfo(button.m_icons[1].hIcon, &info);
        CBitmap color, mask;
        color.Attach(info.hbmColor);
        mask.Attach(info.hbmMask);
        EXPECT_EQ(PixelsOf(color), pixelsOf(16, cr)) << "mask, alpha and black stay";

        ASSERT_EQ(button.SetBitmaps(Make(), kWhite, reinterpret_cast<HBITMAP>(LONG_PTR(copy)), kRed), 0u);
        const auto& [first, second] = button.m_bitmaps; // black where they are transparent
        EXPECT_EQ(ColorsOf(first.hBitmap), std::pair(DWORD(0), PixelOf(kColor)));
        EXPECT_EQ(ColorsOf(second.hBitmap), std::pair(DWORD(0), PixelOf(cr)));
        EXPECT_EQ(ColorsOf(first.hMask), std::pair(DWORD(kWhite), DWORD(0)));
        EXPECT_EQ(ColorsOf(second.hMask), ColorsOf(first.hMask)) << "the first one's transparent colour";
    }
    // Wanted: an icon that a button made itself is let go of with DeleteObject, which does nothing to an icon.
    EXPECT_EQ(owtest::CountHandles().user, before.user + 1);
}

TEST(ButtonImages, AFailureIsToldAndLeavesNoImagesAsARemovalDoes)
{
    Open button;
    const auto hBadIcon = reinterpret_cast<HICON>(0x1234), hOk = CButtonST::hIconOk;
    const auto hBadBitmap = reinterpret_cast<HBITMAP>(0x1234), hSecond = Make();
    // A bitmap that stands in another context can be read, and nothing more.
    Surface surface(8, 8);
    const auto hSelected = static_cast<HBITMAP>(::GetCurrentObject(surface.dc(), OBJ_BITMAP));
    const std::pair<DWORD, std::function<DWORD()>> failures[] = {
        {0, [&] { return button.SetIcon(0, 10014); }}, // these take the images away
        {0, [&] { return button.SetBitmaps(0, kKey, 10101); }},
        {1, [&] { return button.SetIcon(hBadIcon, hOk); }},
        {1, [&] { return button.SetIcon(hOk, hBadIcon); }},
        {1, [&] { return button.SetIcon(10000, kNoResource); }},
        {1, [&] { return button.SetIcon(kNoResource, 10000); }},
        {1, [&] { return button.SetBitmaps(hBadBitmap, 0); }},
        {1, [&] { return button.SetBitmaps(Make(), kKey, hBadBitmap); }},
        {1, [&] { return button.SetBitmaps(10101, 0, kNoResource); }},
        {1, [&] { return button.SetBitmaps(kNoResource, 0, 10101); }},
        {2, [&] { return button.SetBitmaps(hSelected, 0); }},
        {2, [&] { return button.SetBitmaps(Make(), kKey, hSelected, 0); }},
        {2, [&] { return button.SetBitmaps(hSelected, 0, hSecond); }}};
    owtest::HandleCount before;
    for (size_t i = 0; i < 2 * std::size(failures); ++i)
    {
        const auto& [result, set] = failures[i % std::size(failures)];
        before = i == std::size(failures) ? owtest::CountHandles() : before;
        button.SetIcon(hOk, CButtonST::hIconCancel);
        EXPECT_EQ(set(), result) << i;
        for (const int n : {0, 1})
            EXPECT_FALSE(button.m_icons[n].hIcon || button.m_bitmaps[n].hBitmap || button.m_bitmaps[n].hMask);
    }
    EXPECT_EQ(owtest::CountHandles(), before);
    EXPECT_TRUE(::DestroyIcon(::CopyIcon(hOk))) << "shared";
    EXPECT_TRUE(::DeleteObject(hSecond)) << "which stays the caller's";
}
