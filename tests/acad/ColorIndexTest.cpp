// Colours by index, and where the colour dialog puts them.

#include <aced.h>

#include "../../platform/acad/src/ColorGridLayout.h"

#include <gtest/gtest.h>

TEST(ColorIndex, HasItsKnownColors)
{
    const std::pair<int, COLORREF> cases[] = {
        // clang-format off
        {1, RGB(255, 0, 0)},          {2, RGB(255, 255, 0)},        {3, RGB(0, 255, 0)},
        {4, RGB(0, 255, 255)},        {5, RGB(0, 0, 255)},          {6, RGB(255, 0, 255)},
        {7, RGB(255, 255, 255)},      {8, RGB(128, 128, 128)},      {9, RGB(192, 192, 192)},
        {10, RGB(255, 0, 0)},         {11, RGB(255, 127, 127)},     {12, RGB(165, 0, 0)},
        {15, RGB(127, 63, 63)},       {19, RGB(38, 19, 19)},        {20, RGB(255, 63, 0)},
        {31, RGB(255, 191, 127)},     {90, RGB(0, 255, 0)},         {150, RGB(0, 127, 255)},
        {210, RGB(255, 0, 255)},      {240, RGB(255, 0, 63)},       {250, RGB(51, 51, 51)},
        {251, RGB(91, 91, 91)},       {254, RGB(214, 214, 214)},    {255, RGB(255, 255, 255)},
        {0, RGB(255, 255, 255)},      {256, RGB(255, 255, 255)}, // the foreground
        {-1, CLR_INVALID},            {257, CLR_INVALID},         {60, RGB(191, 255, 0)},
        // clang-format on
    };
    for (const auto& [index, color] : cases)
        EXPECT_EQ(acedGetRGB(index), color) << "index " << index;
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
    EXPECT_TRUE(layout.CellRect(0).IsRectEmpty() && layout.CellRect(256).IsRectEmpty());
    EXPECT_EQ(layout.HitTest(CPoint(-1, 0)), kNoColor);
    EXPECT_EQ(layout.HitTest(layout.CellRect(9).CenterPoint() + CSize(30, 0)), kNoColor) << "in the gap";
}

TEST(ColorGrid, ArrowsGoToTheNeighbour)
{
    constexpr auto sideways = &ColorGridLayout::Sideways, vertically = &ColorGridLayout::Vertically;
    const std::tuple<int (*)(int, int), int, int, int> cases[] = {
        {sideways, 10, +1, 20},     {sideways, 10, -1, 10}, // stays at the border
        {vertically, 10, -1, 12},   {vertically, 10, +1, 11}, {vertically, 18, -1, 18},
        {sideways, 9, +1, 250}, // over the gap
        {sideways, 250, -1, 9},     {sideways, 255, +1, 255}, {vertically, 19, +1, 1},
        {vertically, 249, +1, 255}, {vertically, 119, +1, 9}, // above the gap, nearer to the standard colours
        {vertically, 179, +1, 250},                           // above the gap, nearer to the greys
        {vertically, 1, +1, 1}};
    for (const auto& [arrow, from, step, to] : cases)
        EXPECT_EQ(arrow(from, step), to) << from;
}
