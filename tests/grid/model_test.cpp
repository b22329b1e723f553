// Random sequences against the model. The seeds are fixed, so that a run is the same every time; the soak
// program goes on with others.

#include "GridModel.h"

#include <gtest/gtest.h>

TEST(GridModel, HoldsThroughRandomOperations)
{
    constexpr int kSeeds = 100, kSteps = 2000;
    int done = 0;
    for (unsigned seed = 1; seed <= kSeeds; ++seed)
    {
        const SequenceResult result = RunGridSequence(seed, kSteps, false);
        ASSERT_EQ(result.failure, "");
        done += result.stepsDone;
    }
    EXPECT_EQ(done, kSeeds * kSteps);
}

TEST(GridModel, HoldsThroughRandomClicksKeysAndEdits)
{
    constexpr int kSeeds = 8, kSteps = 1000;
    for (unsigned seed = 1001; seed <= 1000 + kSeeds; ++seed)
    {
        const SequenceResult result = RunGridSequence(seed, kSteps, true);
        ASSERT_EQ(result.failure, "");
        ASSERT_EQ(result.stepsDone, kSteps);
    }
}
