// The images of a button: what they are made from, who owns them, and what is left after a failure.

#include "ButtonsDialog.h"
#include "Images.h"

#include "Handles.h"

#include <gtest/gtest.h>

using namespace testimages;

namespace
{
constexpr COLORREF kKey = RGB(255, 0, 255);
constexpr COLORREF kColor = RGB(200, 100, 50);
constexpr COLORREF kGrey = RGB(124, 124, 124); // 0.299 of 200, 0.587 of 100 and 0.114 of 50
constexpr COLORREF kDarker = RGB(150, 75, 37);
const HICON kGrayIcon = reinterpret_cast<HICON>(CButtonST::copyGray);
const HICON kDarkerIcon = reinterpret_cast<HICON>(CButtonST::copyDarker);
const HBITMAP kGrayBitmap = reinterpret_cast<HBITMAP>(CButtonST::copyGray);
const HBITMAP kDarkerBitmap = reinterpret_cast<HBITMAP>(CButtonST::copyDarker);

bool HasImages(const OpenButton& button)
{
    return button.m_icons[0].hIcon || button.m_icons[1].hIcon || button.m_bitmaps[0].hBitmap ||
           button.m_bitmaps[1].hBitmap || button.m_bitmaps[0].hMask || button.m_bitmaps[1].hMask;
}

DWORD MiddleOf(const Pixels& pixels)
{
    return pixels[pixels.size() / 2 + 8]; // of a 16 by 16 image
}

HICON MakeMonochromeIcon()
{
    const Pixels mask(16, 0);
    CBitmap both;
    both.CreateBitmap(16, 32, 1, 1, mask.data());
    ICONINFO info{TRUE, 0, 0, both, nullptr};
    return ::CreateIconIndirect(&info);
}
} // namespace

TEST(ButtonImages, OfEitherKindReplaceTheOtherAndAreRemovedByNull)
{
    OpenButton button;
    EXPECT_EQ(button.SetBitmaps(MakeFramedBitmap(16, 12, kColor, kKey), kKey), 0u);
    EXPECT_EQ(button.m_bitmaps[0].size, CSize(16, 12));
    EXPECT_EQ(button.SetIcon(CButtonST::hIconOk), 0u);
    EXPECT_EQ(button.m_bitmaps[0].hBitmap, nullptr);
    EXPECT_EQ(button.SetBitmaps(static_cast<HBITMAP>(nullptr), 0), 0u);
    EXPECT_FALSE(HasImages(button));
    EXPECT_EQ(button.SetIcon(static_cast<HICON>(nullptr), CButtonST::hIconOk), 0u);
    EXPECT_FALSE(HasImages(button));
}

TEST(ButtonIcons, ComeFromTheResourcesOfWhicheverModuleHasThem)
{
    OpenButton button;
    const auto sizes = [&] { return std::pair(button.m_icons[0].size.cx, button.m_icons[1].size.cx); };
    EXPECT_EQ(button.SetIcon(10000, 10014), 0u); // hIconError and h24IconOpen
    EXPECT_EQ(sizes(), std::pair(32L, 24L));
    EXPECT_EQ(button.SetIcon(10000, 16, 16, 10014, 48, 48), 0u);
    EXPECT_EQ(sizes(), std::pair(16L, 48L));
    EXPECT_EQ(button.SetIcon(10000, CButtonST::copyGray), 0u);
    EXPECT_EQ(sizes(), std::pair(32L, 32L));

    EXPECT_EQ(button.SetBitmaps(10101, RGB(255, 255, 255), CButtonST::copyDarker), 0u);
    EXPECT_EQ(button.m_bitmaps[1].size, button.m_bitmaps[0].size);
    EXPECT_EQ(button.m_bitmaps[1].crTransparent, RGB(255, 255, 255));
}

TEST(ButtonIcons, MayBeGreyOrDarkerCopiesUnderTheSameMaskAndAlpha)
{
    const HICON hIcon =
        MakeIcon(16, 16,
                 [](int x, int y) -> DWORD
                 {
                     if (x < 4)
                         return 0;
                     const DWORD alpha = y < 4 ? 0x80000000 : 0xFF000000;
                     return x < 12 ? alpha | (Opaque(kColor) & 0xFFFFFF) : 0xFF000000; // black at the right
                 });
    const Pixels source = PixelsOf(hIcon);
    for (const auto& [copy, cr] : {std::pair(kGrayIcon, kGrey), std::pair(kDarkerIcon, kDarker)})
    {
        OpenButton button;
        ASSERT_EQ(button.SetIcon(hIcon, copy), 0u);
        ASSERT_NE(button.m_icons[1].hIcon, hIcon);
        EXPECT_EQ(button.m_icons[1].size, CSize(16, 16));
        const Pixels pixels = PixelsOf(button.m_icons[1].hIcon);
        ASSERT_EQ(pixels.size(), source.size());
        for (size_t i = 0; i < pixels.size(); ++i)
        {
            const DWORD color = source[i] & 0xFFFFFF ? Opaque(cr) & 0xFFFFFF : 0;
            ASSERT_EQ(pixels[i], (source[i] & 0xFF000000) | color) << i;
        }
    }
    ::DestroyIcon(hIcon);
}

TEST(ButtonBitmaps, MayBeGreyOrDarkerCopiesWithTheTransparentColorLeftOut)
{
    for (const auto& [copy, cr] : {std::pair(kGrayBitmap, kGrey), std::pair(kDarkerBitmap, kDarker)})
    {
        OpenButton button;
        ASSERT_EQ(button.SetBitmaps(MakeFramedBitmap(16, 16, kColor, kKey), kKey, copy, RGB(1, 2, 3)), 0u);
        EXPECT_EQ(button.m_bitmaps[1].crTransparent, kKey) << "the first one's counts";
        const Pixels first = PixelsOf(button.m_bitmaps[0].hBitmap),
                     second = PixelsOf(button.m_bitmaps[1].hBitmap);
        EXPECT_EQ(MiddleOf(first) & 0xFFFFFF, Opaque(kColor) & 0xFFFFFF);
        EXPECT_EQ(MiddleOf(second) & 0xFFFFFF, Opaque(cr) & 0xFFFFFF);
        EXPECT_EQ(first[0] & 0xFFFFFF, 0u) << "the transparent pixels of a bitmap are made black in it";
        EXPECT_EQ(second[0] & 0xFFFFFF, 0u);
        EXPECT_EQ(PixelsOf(button.m_bitmaps[0].hMask)[0] & 0xFFFFFF, 0xFFFFFFu);
        EXPECT_EQ(MiddleOf(PixelsOf(button.m_bitmaps[0].hMask)) & 0xFFFFFF, 0u);
    }
}

TEST(ButtonImages, PaintingMakesNothingThatStays)
{
    LoneButton lone(CSize(60, 30), _T("T"));
    const auto paintAllStates = [&]
    {
        owtest::Surface surface(60, 30);
        for (UINT state : {0, ODS_FOCUS, ODS_SELECTED, ODS_DISABLED})
            for (BOOL bHover : {FALSE, TRUE})
            {
                lone.button.m_bMouseOnButton = bHover;
                lone.button.PaintOn(surface, state);
            }
    };
    lone.button.SetIcon(CButtonST::hIconError, kGrayIcon);
    paintAllStates();
    const HICON hCopy = lone.button.m_icons[1].hIcon;
    const auto handles = owtest::CountHandles();
    for (int i = 0; i < 20; ++i)
        paintAllStates();
    EXPECT_EQ(lone.button.m_icons[1].hIcon, hCopy) << "the copy is made once";
    EXPECT_EQ(owtest::CountHandles(), handles);
}

TEST(ButtonImages, BitmapsBelongToTheButtonFromTheCallOn)
{
    const auto make = [] { return MakeFramedBitmap(8, 8, kColor, kKey); };
    const HBITMAP hFirst = make(), hSecond = make(), hThird = make();
    {
        OpenButton button;
        button.SetBitmaps(hFirst, kKey, hSecond, kKey);
        EXPECT_TRUE(IsBitmap(hFirst) && IsBitmap(hSecond));
        const HBITMAP hMask = button.m_bitmaps[0].hMask;
        button.SetBitmaps(hThird, kKey);
        EXPECT_FALSE(IsBitmap(hFirst) || IsBitmap(hSecond) || IsBitmap(hMask));
        EXPECT_TRUE(IsBitmap(hThird));
    }
    EXPECT_FALSE(IsBitmap(hThird)) << "the destructor deletes them";
}

TEST(ButtonImages, AFailureIsToldAndLeavesNoImages)
{
    OpenButton button;
    const HICON hBadIcon = reinterpret_cast<HICON>(0x1234);
    const HBITMAP hBadBitmap = reinterpret_cast<HBITMAP>(0x1234);
    const auto fails = [&](const auto& set)
    {
        button.SetIcon(CButtonST::hIconOk, CButtonST::hIconCancel);
        const DWORD result = set();
        EXPECT_FALSE(HasImages(button));
        return result;
    };
    const auto bitmap = [] { return MakeFramedBitmap(8, 8, kColor, kKey); };
    EXPECT_EQ(fails([&] { return button.SetIcon(hBadIcon, CButtonST::hIconOk); }), 1u);
    EXPECT_EQ(fails([&] { return button.SetIcon(CButtonST::hIconOk, hBadIcon); }), 1u);
    EXPECT_EQ(fails([&] { return button.SetIcon(hBadIcon, kGrayIcon); }), 1u);
    EXPECT_EQ(fails([&] { return button.SetIcon(10000, 31999); }), 1u);
    EXPECT_EQ(fails([&] { return button.SetBitmaps(hBadBitmap, 0); }), 1u);
    EXPECT_EQ(fails([&] { return button.SetBitmaps(bitmap(), kKey, hBadBitmap); }), 1u);
    EXPECT_EQ(fails([&] { return button.SetBitmaps(10101, 0, 31999); }), 1u);

    const HICON hMonochrome = MakeMonochromeIcon();
    EXPECT_EQ(button.SetIcon(hMonochrome, nullptr), 0u);
    EXPECT_EQ(fails([&] { return button.SetIcon(hMonochrome, kGrayIcon); }), 1u) << "has no colours to copy";
    ::DestroyIcon(hMonochrome);

    // A bitmap that stands in another context can be read, and nothing more.
    owtest::Surface surface(8, 8);
    const auto hSelected = static_cast<HBITMAP>(::GetCurrentObject(surface.dc(), OBJ_BITMAP));
    EXPECT_EQ(fails([&] { return button.SetBitmaps(hSelected, 0); }), 2u);
    EXPECT_EQ(fails([&] { return button.SetBitmaps(bitmap(), kKey, hSelected, 0); }), 2u);
    const HBITMAP hSecond = bitmap();
    EXPECT_EQ(fails([&] { return button.SetBitmaps(hSelected, 0, hBadBitmap); }), 2u)
        << "the first is whole before the second is looked at";
    EXPECT_EQ(fails([&] { return button.SetBitmaps(hSelected, 0, hSecond); }), 2u);
    EXPECT_TRUE(::DeleteObject(hSecond)) << "which stays the caller's";
}
