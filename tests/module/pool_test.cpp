// The pool of control ids.

#include <DialogControlsOW.h>

#include "FatalReport.h"

#include <gtest/gtest.h>

static ResourceIdPool& s_pool = ResourceIdPool::Object();

TEST(ResourceIdPool, IsAStackOfTwoHundredThatSurvivesBeingEmptied)
{
    for (int round = 0; round < 2; ++round)
    {
        for (unsigned int id = 11199; id >= 11000; --id)
            EXPECT_EQ(s_pool.AcquireId(), id) << "the highest first";
        for (unsigned int id = 11000; id <= 11199; ++id)
            s_pool.ReleaseId(id);
    }
    const unsigned int a = s_pool.AcquireId(), b = s_pool.AcquireId();
    s_pool.ReleaseId(a);
    EXPECT_EQ(s_pool.AcquireId(), a) << "the last one in comes out first";
    s_pool.ReleaseId(b);
    s_pool.ReleaseId(a);
}

OW_CHILD_SCENARIO(pool_exhausted)
{
    for (int i = 0; i < 201; ++i)
    {
        s_pool.AcquireId();
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
