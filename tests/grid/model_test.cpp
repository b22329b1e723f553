// Random sequences against the model, by fixed seeds: a run is always the same. The soak program has others.

#include "GridModel.h"

namespace
{
void RunAll(unsigned firstSeed, int seeds, int steps, SequenceOptions options)
{
    for (int i = 0; i < seeds; ++i)
    {
        options.mixedCells = i % 2 == 1; // cells of several kinds
        const auto result = RunGridSequence(owtest::StepsOf(firstSeed + i, steps), options);
        ASSERT_EQ(result.failure, "") << "seed " << firstSeed + i;
        ASSERT_EQ(result.stepsDone, steps);
    }
}
} // namespace

TEST(GridModel, HoldsThroughRandomOperationsClicksKeysAndEdits)
{
    RunAll(1, 100, 2000, {});
    RunAll(1001, 8, 1000, {.withInput = true});
}

TEST(GridModel, HoldsOnExtendedGrids)
{
    for (const auto makeGrid : {&MakeModelExtGrid, &MakeModelExtGrid2})
    {
        RunAll(2001, 10, 1000, {.makeGrid = makeGrid});
        RunAll(3001, 4, 500, {.withInput = true, .makeGrid = makeGrid});
    }
}
