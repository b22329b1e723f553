// Colours by index, and where the colour dialog puts them.

#include <aced.h>

#include "../../platform/acad/src/ColorGridLayout.h"

#include <gtest/gtest.h>

#include <set>

TEST(ColorIndex, HasItsKnownColors)
{
    struct
    {
        int index;
        COLORREF color;
    } const cases[] = {
        // clang-format off
        {1, RGB(255, 0, 0)},          {2, RGB(255, 255, 0)},        {3, RGB(0, 255, 0)},
        {4, RGB(0, 255, 255)},        {5, RGB(0, 0, 255)},          {6, RGB(255, 0, 255)},
        {7, RGB(255, 255, 255)},      {8, RGB(128, 128, 128)},      {9, RGB(192, 192, 192)},
        {10, RGB(255, 0, 0)},         {11, RGB(255, 127, 127)},     {12, RGB(165, 0, 0)},
        {15, RGB(127, 63, 63)},       {19, RGB(38, 19, 19)},        {20, RGB(255, 63, 0)},
        {31, RGB(255, 191, 127)},     {90, RGB(0, 255, 0)},         {150, RGB(0, 127, 255)},
        {210, RGB(255, 0, 255)},      {240, RGB(255, 0, 63)},       {250, RGB(51, 51, 51)},
        {251, RGB(91, 91, 91)},       {254, RGB(214, 214, 214)},    {255, RGB(255, 255, 255)},
        // clang-format on
    };
    for (const auto& [index, color] : cases)
        EXPECT_EQ(acedGetRGB(index), color) << "index " << index;
}

TEST(ColorIndex, WithoutAColorOfItsOwnAnswersTheForegroundAndBeyondThoseNone)
{
    for (int index : {0, 256})
        EXPECT_EQ(acedGetRGB(index), RGB(255, 255, 255));
    for (int index : {-1, 257})
        EXPECT_EQ(acedGetRGB(index), CLR_INVALID);
}

TEST(ColorGrid, EveryColorHasAPlaceOfItsOwn)
{
    const CSize client(365, 181); // not a multiple of the cells
    const ColorGridLayout layout(client);
    for (int color = 1; color <= 255; ++color)
    {
        const CRect cell = layout.CellRect(color);
        EXPECT_EQ(layout.HitTest(cell.CenterPoint()), color);
        CRect common;
        common.IntersectRect(cell, CRect(CPoint(0, 0), client));
        EXPECT_EQ(common, cell) << color << " lies inside";
    }
    EXPECT_TRUE(layout.CellRect(0).IsRectEmpty());
    EXPECT_TRUE(layout.CellRect(256).IsRectEmpty());
    EXPECT_EQ(layout.HitTest(CPoint(-1, 0)), c_nNoColor);
    EXPECT_EQ(layout.HitTest(layout.CellRect(9).CenterPoint() + CSize(30, 0)), c_nNoColor) << "in the gap";
}

TEST(ColorGrid, ArrowsReachEveryColor)
{
    std::set<int> reached = {1};
    std::vector<int> open = {1};
    while (!open.empty())
    {
        const int color = open.back();
        open.pop_back();
        for (int next : {ColorGridLayout::Sideways(color, -1), ColorGridLayout::Sideways(color, +1),
                         ColorGridLayout::Vertically(color, -1), ColorGridLayout::Vertically(color, +1)})
        {
            if (reached.insert(next).second)
                open.push_back(next);
        }
    }
    EXPECT_EQ(reached.size(), 255u);
}

TEST(ColorGrid, ArrowsGoToTheNeighbour)
{
    EXPECT_EQ(ColorGridLayout::Sideways(10, +1), 20);
    EXPECT_EQ(ColorGridLayout::Sideways(10, -1), 10) << "stays at the border";
    EXPECT_EQ(ColorGridLayout::Vertically(10, -1), 12);
    EXPECT_EQ(ColorGridLayout::Vertically(10, +1), 11);
    EXPECT_EQ(ColorGridLayout::Vertically(18, -1), 18);

    EXPECT_EQ(ColorGridLayout::Sideways(9, +1), 250) << "over the gap";
    EXPECT_EQ(ColorGridLayout::Sideways(250, -1), 9);
    EXPECT_EQ(ColorGridLayout::Sideways(255, +1), 255);
    EXPECT_EQ(ColorGridLayout::Vertically(19, +1), 1);
    EXPECT_EQ(ColorGridLayout::Vertically(249, +1), 255);
    EXPECT_EQ(ColorGridLayout::Vertically(119, +1), 9) << "above the gap, nearer to the standard colours";
    EXPECT_EQ(ColorGridLayout::Vertically(179, +1), 250) << "above the gap, nearer to the greys";
    EXPECT_EQ(ColorGridLayout::Vertically(1, +1), 1);
}
