// Points, sizes and rectangles.

#include <afxwin.h>

#include <gtest/gtest.h>

TEST(Geometry, OperatorsMoveByPointsAndInflateByRectangles)
{
    const CRect rect(10, 20, 30, 50);
    EXPECT_TRUE(rect + CPoint(1, 2) == CRect(11, 22, 31, 52));
    EXPECT_TRUE(rect + CRect(1, 2, 3, 4) == CRect(9, 18, 33, 54));
    EXPECT_TRUE(rect - CRect(1, 2, 3, 4) == CRect(11, 22, 27, 46));
    EXPECT_TRUE((rect & CRect(0, 0, 15, 100)) == CRect(10, 20, 15, 50));
    EXPECT_TRUE((rect | CRect(0, 0, 5, 5)) == CRect(0, 0, 30, 50));

    CRect same(rect);
    same &= same;
    EXPECT_TRUE(same == rect) << "an operand may be the target";
}

TEST(Geometry, NormalizeExchangesOnlyEdgesThatStandTheWrongWayRound)
{
    CRect rect(30, 20, 10, 50);
    EXPECT_TRUE(rect.IsRectEmpty());
    rect.NormalizeRect();
    EXPECT_TRUE(rect == CRect(10, 20, 30, 50));
    rect.SetRect(10, 50, 30, 20);
    rect.NormalizeRect();
    EXPECT_TRUE(rect == CRect(10, 20, 30, 50));
}

TEST(Geometry, PackedCoordinatesAreSigned)
{
    const CPoint point(static_cast<LPARAM>(MAKELONG(-3, 7)));
    EXPECT_EQ(point.x, -3);
    EXPECT_EQ(point.y, 7);
    const CSize size(static_cast<DWORD>(MAKELONG(5, -9)));
    EXPECT_EQ(size.cx, 5);
    EXPECT_EQ(size.cy, -9);
}
