// One direction of a grid against a walk over its sizes.

#include <DialogControlsOW.h>

#include "Handles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace
{
/// The same questions, answered by summing up.
struct Walk
{
    std::vector<int> sizes;
    int fixed = 0;

    int Count() const { return static_cast<int>(sizes.size()); }
    int Offset(int item) const
    {
        int sum = 0;
        for (int i = 0; i < item; ++i)
            sum += sizes[i];
        return sum;
    }
    int FirstAt(int pos) const
    {
        int item = fixed;
        for (int x = 0; x < pos && item < Count() - 1; ++item)
            x += sizes[item];
        return item;
    }
    int ItemAt(int pos, int first, bool fixedToo) const
    {
        if (pos < 0)
            return -1;
        if (pos < Offset(fixed))
        {
            if (!fixedToo)
                return -1;
            for (int item = 0, x = 0; item < fixed; ++item)
                if ((x += sizes[item]) > pos)
                    return item;
        }
        for (int item = first, x = Offset(fixed); item < Count(); ++item)
            if ((x += sizes[item]) > pos)
                return item;
        return -1;
    }
    CGridAxis::SVisible Visible(int first, int end) const
    {
        int x = Offset(fixed);
        for (int item = first; item < Count(); ++item)
            if ((x += sizes[item]) >= end)
                return {item, x, true};
        return {Count() - 1, x, false};
    }
};
} // namespace

TEST(GridAxis, AnswersAsAWalkOverTheSizesDoes)
{
    std::mt19937 random(7);
    const auto pick = [&](int below) { return static_cast<int>(random() % below); };
    CGridAxis axis;
    Walk walk;
    for (int step = 0; step < 20000; ++step)
    {
        const int n = walk.Count();
        const int size = pick(4) ? pick(40) : 0;
        const int at = pick(n + 1), other = pick(n + 1), what = n == 0 ? 1 : pick(6);
        if (what == 1)
        {
            walk.sizes.insert(walk.sizes.begin() + at, size);
            axis.Insert(at, size);
        }
        else if (what == 3)
        {
            walk.fixed = pick(std::min(n, 3) + 1);
            axis.SetFixed(walk.fixed);
        }
        else if (at == n || other == n)
            continue;
        else if (what == 0 && n > 30)
        {
            walk.sizes.resize(at);
            walk.fixed = std::min(walk.fixed, at);
            axis.SetCount(at, 0);
        }
        else if (what == 2)
        {
            walk.sizes.erase(walk.sizes.begin() + at);
            walk.fixed -= at < walk.fixed;
            axis.Remove(at);
        }
        else if (what == 4)
        {
            std::swap(walk.sizes[at], walk.sizes[other]);
            axis.Swap(at, other);
        }
        else
        {
            walk.sizes[at] = size;
            axis.SetSize(at, size);
        }
        ASSERT_EQ(axis.Count(), walk.Count());
        ASSERT_EQ(axis.Fixed(), walk.fixed);
        ASSERT_EQ(axis.Extent(), walk.Offset(walk.Count()));
        ASSERT_EQ(axis.FixedExtent(), walk.Offset(walk.fixed));
        const int pos = pick(700) - 20;
        const int first = axis.FirstAt(pos);
        ASSERT_EQ(first, walk.FirstAt(pos)) << "step " << step;
        const int point = pick(700) - 20;
        ASSERT_EQ(axis.ItemAt(point, first, true), walk.ItemAt(point, first, true)) << "step " << step;
        ASSERT_EQ(axis.ItemAt(point, first, false), walk.ItemAt(point, first, false)) << "step " << step;
        const CGridAxis::SVisible visible = axis.Visible(first, point), expected = walk.Visible(first, point);
        ASSERT_EQ(visible.nLast, expected.nLast) << "step " << step;
        ASSERT_EQ(visible.nEnd, expected.nEnd);
        ASSERT_EQ(visible.bReachesEnd, expected.bReachesEnd);
    }
}

TEST(GridAxis, ReservesAheadAlsoForTheFirstItems)
{
    constexpr int kMany = 100000;
    CGridAxis axis;
    axis.Reserve(kMany);
    const size_t reserved = owtest::CountHeapBytes();
    axis.SetCount(kMany - 1, 7);
    axis.Insert(0, 1);
    EXPECT_LT(owtest::CountHeapBytes(), reserved + kMany);
    EXPECT_EQ(axis.Extent(), 7 * (kMany - 1) + 1);
    axis.SetCount(0, 0);
    EXPECT_LT(owtest::CountHeapBytes() + kMany, reserved) << "what is not needed is given back";
}
