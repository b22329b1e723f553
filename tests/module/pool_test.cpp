// The pool of control ids.

#include <DialogControlsOW.h>

#include "FatalReport.h"

#include <gtest/gtest.h>

namespace
{
ResourceIdPool& Pool()
{
    return ResourceIdPool::Object();
}
} // namespace

TEST(ResourceIdPool, IsAStackOfTwoHundredThatSurvivesBeingEmptied)
{
    for (int round = 0; round < 2; ++round)
    {
        for (unsigned int id = 11199; id >= 11000; --id)
            EXPECT_EQ(Pool().AcquireId(), id) << "the highest first";
        for (unsigned int id = 11000; id <= 11199; ++id)
            Pool().ReleaseId(id);
    }
    const unsigned int a = Pool().AcquireId(), b = Pool().AcquireId();
    Pool().ReleaseId(a);
    EXPECT_EQ(Pool().AcquireId(), a) << "the last one in comes out first";
    Pool().ReleaseId(b);
    Pool().ReleaseId(a);
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
