// What reaches the pixels.

#include <afxcmn.h>

#include "Picture.h"

#include <gtest/gtest.h>

namespace
{
constexpr COLORREF BACK = RGB(255, 255, 255);
constexpr COLORREF RED = RGB(255, 0, 0);
constexpr COLORREF BLUE = RGB(0, 0, 255);
} // namespace

TEST(Drawing, Draw3dRectGivesTheSharedCornersToRightAndBottom)
{
    owtest::Surface surface(20, 20, BACK);
    surface.dc().Draw3dRect(CRect(2, 2, 12, 10), RED, BLUE);
    EXPECT_EQ(surface.at(2, 2), RED);
    EXPECT_EQ(surface.at(11, 2), BLUE);
    EXPECT_EQ(surface.at(2, 9), BLUE);
    EXPECT_EQ(surface.count(CRect(3, 3, 11, 9), BACK), 8 * 6) << "the inside is left alone";
    EXPECT_EQ(surface.count(CRect(0, 0, 20, 20), RED), 9 + 6);
    EXPECT_EQ(surface.count(CRect(0, 0, 20, 20), BLUE), 10 + 7);
}

TEST(Drawing, DrawStateTakesTheKindOfPictureFromTheCall)
{
    owtest::Surface source(8, 8, BACK);
    CBitmap picture;
    ASSERT_TRUE(picture.CreateCompatibleBitmap(&source.dc(), 8, 8));
    CDC memory;
    memory.CreateCompatibleDC(&source.dc());
    CBitmap* before = memory.SelectObject(&picture);
    memory.FillSolidRect(0, 0, 8, 8, BLUE);
    memory.SelectObject(before);

    owtest::Surface surface(20, 20, BACK);
    // The flags name text; the bitmap decides all the same.
    EXPECT_TRUE(surface.dc().DrawState(CPoint(5, 5), CSize(8, 8), &picture, DSS_NORMAL | DST_TEXT));
    EXPECT_EQ(surface.count(CRect(5, 5, 13, 13), BLUE), 64);
    EXPECT_EQ(surface.count(CRect(0, 0, 20, 20), BLUE), 64);
}

TEST(Drawing, ADragFrameVanishesWhenItIsDrawnOverItself)
{
    owtest::Surface surface(40, 40, BACK);
    const CRect whole(0, 0, 40, 40);
    CBrush brush(RGB(255, 255, 255));
    CDC& dc = surface.dc();
    const CRect first(5, 5, 25, 25);
    const CRect second(10, 10, 30, 30);
    dc.DrawDragRect(first, CSize(2, 2), nullptr, CSize(0, 0), &brush);
    EXPECT_EQ(surface.count(whole, RGB(0, 0, 0)), 20 * 20 - 16 * 16);
    dc.DrawDragRect(second, CSize(2, 2), first, CSize(2, 2), &brush, &brush);
    EXPECT_EQ(surface.at(5, 5), BACK);
    EXPECT_EQ(surface.at(29, 29), RGB(0, 0, 0));
    EXPECT_EQ(surface.count(whole, RGB(0, 0, 0)), 20 * 20 - 16 * 16);
}

TEST(Drawing, TextIsMeasuredAndShortenedInPlace)
{
    owtest::Surface surface(200, 30, BACK);
    CDC& dc = surface.dc();
    CString text(L"a rather long text that does not fit");
    const CSize whole = dc.GetTextExtent(text);
    EXPECT_GT(whole.cx, 60);

    const CString before = text;
    CRect box(0, 0, 60, 30);
    dc.DrawText(text, box, DT_SINGLELINE | DT_END_ELLIPSIS);
    EXPECT_EQ(text, before);
    dc.DrawText(text, box, DT_SINGLELINE | DT_END_ELLIPSIS | DT_MODIFYSTRING);
    EXPECT_EQ(text.Right(3), L"...");
    EXPECT_LE(dc.GetTextExtent(text).cx, 60);
}

TEST(ImageList, PicturesAreCopiedAndMasked)
{
    owtest::Surface screen(32, 16, BACK);
    CBitmap strip;
    ASSERT_TRUE(strip.CreateCompatibleBitmap(&screen.dc(), 16, 8));
    CDC memory;
    memory.CreateCompatibleDC(&screen.dc());
    CBitmap* before = memory.SelectObject(&strip);
    memory.FillSolidRect(0, 0, 8, 8, RED);
    memory.FillSolidRect(8, 0, 8, 8, BLUE);
    memory.FillSolidRect(8, 0, 4, 8, RGB(255, 0, 255));
    memory.SelectObject(before);

    CImageList images;
    ASSERT_TRUE(images.Create(8, 8, ILC_COLOR24 | ILC_MASK, 0, 4));
    EXPECT_EQ(images.Add(&strip, RGB(255, 0, 255)), 0);
    EXPECT_EQ(images.GetImageCount(), 2) << "a strip is cut into pictures";
    strip.DeleteObject();

    EXPECT_TRUE(images.Draw(&screen.dc(), 0, CPoint(0, 0), ILD_NORMAL));
    EXPECT_TRUE(images.Draw(&screen.dc(), 1, CPoint(10, 0), ILD_TRANSPARENT));
    EXPECT_EQ(screen.count(CRect(0, 0, 8, 8), RED), 64);
    EXPECT_EQ(screen.count(CRect(10, 0, 14, 8), BACK), 32);
    EXPECT_EQ(screen.count(CRect(14, 0, 18, 8), BLUE), 32);

    EXPECT_EQ(CImageList::FromHandle(images), &images);
    const HIMAGELIST handle = images.Detach();
    EXPECT_EQ(CImageList::FromHandlePermanent(handle), nullptr);
    EXPECT_TRUE(::ImageList_Destroy(handle));
}
