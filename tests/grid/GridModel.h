#pragma once
// Random sequences of operations and input messages on a grid, checked after each step against a small model
// of what the grid must hold.
//
// A sequence is its seed: the same seed gives the same steps. A sequence that fails tells its steps, so that
// it can be read as well as run again.

#include <string>

struct SequenceResult
{
    int stepsDone = 0;
    std::string
        failure; ///< empty if all went well; otherwise what differed, the seed and the steps up to there
};

/// `withInput` also clicks, types and edits, which needs a visible window.
SequenceResult RunGridSequence(unsigned seed, int steps, bool withInput);
