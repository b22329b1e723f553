// The images of a button: what they are made from, who owns them, and what is left after a failure.

#include "Room.h"

namespace
{
constexpr COLORREF kColor = RGB(200, 100, 50);
constexpr COLORREF kGrey = RGB(124, 124, 124); // 0.299 of 200, 0.587 of 100 and 0.114 of 50
constexpr COLORREF kDarker = RGB(150, 75, 37);
constexpr int kNoResource = 31999;

template <class Handle>
Handle As(LONG_PTR value)
{
    return reinterpret_cast<Handle>(value);
}

HBITMAP Make(CSize size = CSize(16, 16))
{
    return MakeBitmap(size, kColor, kWhite);
}
bool HasImages(const Open<>& button)
{
    const auto& [in, out] = button.m_bitmaps;
    return button.m_icons[0].hIcon || button.m_icons[1].hIcon || in.hBitmap || out.hBitmap || in.hMask ||
           out.hMask;
}

/// The colours of a 16 by 16 bitmap in its frame and in its middle.
std::pair<DWORD, DWORD> ColorsOf(HBITMAP hBitmap)
{
    const Pixels pixels = PixelsOf(hBitmap);
    return {pixels[0] & kWhite, pixels[8 * 16 + 8] & kWhite};
}
} // namespace

TEST(ButtonImages, ComeFromHandlesOrFromWhicheverModuleHasThemAndReplaceEachOther)
{
    Lone<Open<>> lone(CSize(60, 30));
    Open<>& button = lone.button;
    const auto expectSized = [&](CSize size)
    {
        CRect rect;
        button.SizeToContent();
        button.GetClientRect(rect);
        EXPECT_EQ(rect.Size(), size);
    };
    expectSized({60, 30}); // without an image nothing happens
    EXPECT_EQ(button.m_ptImageOrigin, CPoint(3, 3));
    EXPECT_EQ(button.SetBitmaps(Make(CSize(16, 12)), kKey), 0u);
    expectSized({16, 12});
    EXPECT_EQ(button.m_ptImageOrigin, CPoint(0, 0));
    using Image = std::array<int, 3>; // id and size; of a copy the first one's
    const std::tuple<Image, Image, LONG, LONG> rows[] = {
        {{10000, 0, 0}, {10014, 0, 0}, 32, 24}, // hIconError and h24IconOpen
        {{10000, 16, 16}, {10014, 48, 48}, 16, 48},
        {{10000, 0, 0}, {CButtonST::copyGray, 0, 0}, 32, 32},
        {{10000, 0, 0}, {0, 0, 0}, 32, 0}};
    for (const auto& [in, out, cxIn, cxOut] : rows)
    {
        EXPECT_EQ(button.SetIcon(in[0], in[1], in[2], out[0], out[1], out[2]), 0u);
        EXPECT_TRUE(button.m_icons[1].size.cx == cxOut && !button.m_bitmaps[0].hBitmap) << cxOut;
        expectSized({cxIn, cxIn});
    }
    EXPECT_EQ(button.SetIcon(10000, 10014), 0u); // the sizes that they have
    EXPECT_TRUE(button.m_icons[0].size == CSize(32, 32) && button.m_icons[1].size == CSize(24, 24));
    for (const int nOut : {int(CButtonST::copyDarker), 10122})
    {
        EXPECT_EQ(button.SetBitmaps(10101, kWhite, nOut, kKey), 0u);
        EXPECT_EQ(button.m_bitmaps[1].size, button.m_bitmaps[0].size);
        EXPECT_EQ(button.m_bitmaps[1].crTransparent, nOut == 10122 ? kKey : kWhite);
    }
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
        ASSERT_EQ(button.SetIcon(icon.get(), As<HICON>(copy)), 0u);
        EXPECT_EQ(button.m_icons[1].size, CSize(16, 12));
        ICONINFO info{};
        ::GetIconInfo(button.m_icons[1].hIcon, &info);
        CBitmap color, mask;
        color.Attach(info.hbmColor);
        mask.Attach(info.hbmMask);
        EXPECT_EQ(PixelsOf(color), pixelsOf(16, cr)) << "mask, alpha and black stay";

        ASSERT_EQ(button.SetBitmaps(Make(), kWhite, As<HBITMAP>(copy), kRed), 0u);
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
    const HICON hBadIcon = As<HICON>(0x1234), hGray = As<HICON>(CButtonST::copyGray),
                hOk = CButtonST::hIconOk;
    const HBITMAP hBadBitmap = As<HBITMAP>(0x1234), hSecond = Make();
    const BYTE bits[2 * 2 * 32] = {};
    CBitmap both;
    both.CreateBitmap(16, 32, 1, 1, bits);
    ICONINFO info{TRUE, 0, 0, both, nullptr};
    const HICON hMonochrome = ::CreateIconIndirect(&info);
    EXPECT_EQ(button.SetIcon(hMonochrome, nullptr), 0u);
    // A bitmap that stands in another context can be read, and nothing more.
    Surface surface(8, 8);
    const auto hSelected = static_cast<HBITMAP>(::GetCurrentObject(surface.dc(), OBJ_BITMAP));
    const std::pair<DWORD, std::function<DWORD()>> failures[] = {
        {0, [&] { return button.SetIcon(HICON(nullptr), CButtonST::hIconOk); }}, // these take the images away
        {0, [&] { return button.SetIcon(0, 10014); }},
        {0, [&] { return button.SetBitmaps(HBITMAP(nullptr), 0); }},
        {0, [&] { return button.SetBitmaps(0, kKey, 10101); }},
        {1, [&] { return button.SetIcon(hBadIcon, hOk); }},
        {1, [&] { return button.SetIcon(hOk, hBadIcon); }},
        {1, [&] { return button.SetIcon(hBadIcon, hGray); }},
        {1, [&] { return button.SetIcon(hMonochrome, hGray); }}, // has no colours to copy
        {1, [&] { return button.SetIcon(10000, kNoResource); }},
        {1, [&] { return button.SetIcon(kNoResource, 10000); }},
        {1, [&] { return button.SetBitmaps(hBadBitmap, 0); }},
        {1, [&] { return button.SetBitmaps(Make(), kKey, hBadBitmap); }},
        {1, [&] { return button.SetBitmaps(10101, 0, kNoResource); }},
        {1, [&] { return button.SetBitmaps(kNoResource, 0, 10101); }},
        {2, [&] { return button.SetBitmaps(hSelected, 0); }},
        {2, [&] { return button.SetBitmaps(Make(), kKey, hSelected, 0); }},
        {2, [&] { return button.SetBitmaps(hSelected, 0, hBadBitmap); }}, // the first is made whole first
        {2, [&] { return button.SetBitmaps(hSelected, 0, hSecond); }}};
    owtest::HandleCount before;
    for (size_t i = 0; i < 2 * std::size(failures); ++i)
    {
        const auto& [result, set] = failures[i % std::size(failures)];
        before = i == std::size(failures) ? owtest::CountHandles() : before;
        button.SetIcon(hOk, CButtonST::hIconCancel);
        EXPECT_EQ(set(), result) << i;
        EXPECT_FALSE(HasImages(button)) << i;
    }
    EXPECT_EQ(owtest::CountHandles(), before);
    EXPECT_TRUE(IsIcon(hOk) && IsIcon(CButtonST::hIconCancel)) << "shared";
    EXPECT_TRUE(::DeleteObject(hSecond)) << "which stays the caller's";
    ::DestroyIcon(hMonochrome);
}
