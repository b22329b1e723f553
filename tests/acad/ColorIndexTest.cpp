// Colours by index, and where the colour dialog puts them.

#include <aced.h>

#include "../../platform/acad/src/ColorGridLayout.h"
#include "Testing.h"

TEST(ColorIndex, HasItsKnownColors)
{
    const std::pair<int, unsigned> cases[] = {
        // as 0xRRGGBB
        {1, 0xFF0000},   {2, 0xFFFF00},   {3, 0x00FF00},   {4, 0x00FFFF},   {5, 0x0000FF},   {6, 0xFF00FF},
        {7, 0xFFFFFF},   {8, 0x808080},   {9, 0xC0C0C0},   {10, 0xFF0000},  {11, 0xFF7F7F},  {12, 0xA50000},
        {15, 0x7F3F3F},  {19, 0x261313},  {20, 0xFF3F00},  {31, 0xFFBF7F},  {60, 0xBFFF00},  {90, 0x00FF00},
        {150, 0x007FFF}, {210, 0xFF00FF}, {240, 0xFF003F}, {250, 0x333333}, {251, 0x5B5B5B}, {254, 0xD6D6D6},
        {255, 0xFFFFFF}, {0, 0xFFFFFF},   {256, 0xFFFFFF}}; // the last two are the foreground
    for (const auto& [index, color] : cases)
        EXPECT_EQ(acedGetRGB(index), RGB(color >> 16, color >> 8, color)) << "index " << index;
    for (const int outside : {-1, 257})
        EXPECT_EQ(acedGetRGB(outside), CLR_INVALID);
}

TEST(ColorGrid, EveryColorHasAPlaceOfItsOwn)
{
    const CRect client(0, 0, 365, 181); // not a multiple of the cells
    const ColorGridLayout layout(client.Size());
    for (int color = 1; color <= 255; ++color)
    {
        const CRect cell = layout.CellRect(color);
        EXPECT_EQ(layout.HitTest(cell.CenterPoint()), color);
        EXPECT_EQ(CRect(cell & client), cell) << color << " lies inside";
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
