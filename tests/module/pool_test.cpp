// The pool of control ids.

#include <DialogControlsOW.h>

#include "FatalReport.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace
{
ResourceIdPool& Pool()
{
    return ResourceIdPool::Object();
}
} // namespace

TEST(ResourceIdPool, HandsOutTheHighestFirstAndWorksAsAStack)
{
    const unsigned int a = Pool().AcquireId(), b = Pool().AcquireId();
    EXPECT_EQ(a, 11199u);
    EXPECT_EQ(b, 11198u);
    Pool().ReleaseId(b);
    Pool().ReleaseId(a);
    EXPECT_EQ(Pool().AcquireId(), a) << "the last one in comes out first";
    Pool().ReleaseId(a);
}

TEST(ResourceIdPool, HoldsTwoHundredDifferentIdsAndSurvivesBeingEmptied)
{
    for (int round = 0; round < 2; ++round)
    {
        std::vector<unsigned int> taken;
        for (int i = 0; i < 200; ++i)
            taken.push_back(Pool().AcquireId());
        const std::set<unsigned int> ids(taken.begin(), taken.end());
        EXPECT_EQ(ids.size(), 200u);
        EXPECT_EQ(*ids.begin(), 11000u);
        EXPECT_EQ(*ids.rbegin(), 11199u);
        for (auto id = taken.rbegin(); id != taken.rend(); ++id)
            Pool().ReleaseId(*id);
    }
}

OW_CHILD_SCENARIO(pool_exhausted)
{
    for (int i = 0; i < 201; ++i)
    {
        Pool().AcquireId();
        std::printf("%d ", i);
        std::fflush(stdout);
    }
}

TEST(ResourceIdPool, RunningDryIsFatal)
{
    const owtest::ChildResult result = owtest::RunChild("pool_exhausted");
    EXPECT_TRUE(result.output.ends_with("199 ")) << result.output;
    owtest::ExpectFailedAssert(result, L"ASSERT(!m_listId.IsEmpty())\n[.\\ResourceIdPool : 37]\n");
}
