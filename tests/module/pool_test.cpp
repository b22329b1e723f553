// The pool of control ids.

#include <DialogControlsOW.h>

#include "ChildProcess.h"

#include <gtest/gtest.h>

#include <set>

namespace
{
ResourceIdPool& Pool()
{
    return ResourceIdPool::Object();
}

/// Gives back what a test took, in the order in which a full pool held it.
class TakenIds
{
public:
    ~TakenIds()
    {
        for (auto id = m_ids.rbegin(); id != m_ids.rend(); ++id)
            Pool().ReleaseId(*id);
    }
    unsigned int Take() { return m_ids.emplace_back(Pool().AcquireId()); }

private:
    std::vector<unsigned int> m_ids;
};
} // namespace

TEST(ResourceIdPool, HandsOutTheHighestFirstAndWorksAsAStack)
{
    {
        TakenIds taken;
        EXPECT_EQ(taken.Take(), 11199u);
        EXPECT_EQ(taken.Take(), 11198u);
    }
    const unsigned int a = Pool().AcquireId();
    const unsigned int b = Pool().AcquireId();
    Pool().ReleaseId(a);
    EXPECT_EQ(Pool().AcquireId(), a);
    Pool().ReleaseId(b);
    Pool().ReleaseId(a);
    EXPECT_EQ(Pool().AcquireId(), a) << "the last one in comes out first";
    Pool().ReleaseId(a);
}

TEST(ResourceIdPool, HoldsTwoHundredDifferentIdsAndSurvivesBeingEmptied)
{
    for (int round = 0; round < 2; ++round)
    {
        TakenIds taken;
        std::set<unsigned int> ids;
        for (int i = 0; i < 200; ++i)
            ids.insert(taken.Take());
        EXPECT_EQ(ids.size(), 200u);
        EXPECT_EQ(*ids.begin(), 11000u);
        EXPECT_EQ(*ids.rbegin(), 11199u);
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
    EXPECT_EQ(result.boxText, L"ASSERT(!m_listId.IsEmpty())\n[.\\ResourceIdPool : 37]\n");
    EXPECT_TRUE(result.brokeIntoDebugger);
    EXPECT_EQ(result.exitCode, 0u);
}
