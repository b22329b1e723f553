#pragma once
// Random sequences of operations and input on a grid, checked after each step against what it must hold.

#include <DialogControlsOW.h>

#include "../soak/Sequence.h"
#include "Testing.h"

struct SequenceOptions
{
    bool withInput = false;  ///< also clicks, types and edits, which needs a visible window
    bool mixedCells = false; ///< cells of several kinds instead of plain ones only
    std::unique_ptr<CGridCtrl> (*makeGrid)() = [] { return std::make_unique<CGridCtrl>(); };
};

owtest::SequenceResult RunGridSequence(const owtest::Steps& steps, const SequenceOptions& options = {});

/// An extended grid for the model: the parent decides about an edit, as if there were no handler.
std::unique_ptr<CGridCtrl> MakeModelExtGrid();
std::unique_ptr<CGridCtrl> MakeModelExtGrid2();
