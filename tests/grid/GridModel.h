#pragma once
// Random sequences of operations and input messages on a grid, checked after each step against a small model
// of what the grid must hold.
//
//     RunGridSequence(owtest::StepsOf(seed, 1000), {.withInput = true});
//     RunGridSequence(steps, {.mixedCells = true, .makeGrid = &MakeModelGrid<CMyGrid>});

#include <DialogControlsOW.h>

#include "../soak/Sequence.h"

#include <functional>
#include <memory>

/// A grid of whatever class, with what the model asks beyond its public operations.
class ModelGrid
{
public:
    virtual ~ModelGrid() = default;
    virtual CGridCtrl& Grid() = 0;
    virtual int MouseMode() const = 0;
    virtual CCellID TopLeft(BOOL bForceRecalculation) = 0;
};

template <class GridClass>
std::unique_ptr<ModelGrid> MakeModelGrid()
{
    class CGrid : public ModelGrid, public GridClass
    {
    public:
        CGridCtrl& Grid() override { return *this; }
        int MouseMode() const override { return this->GetMouseMode(); }
        CCellID TopLeft(BOOL bForce) override { return this->GetTopleftNonFixedCell(bForce); }
    };
    return std::make_unique<CGrid>();
}

struct SequenceOptions
{
    bool withInput = false;  ///< also clicks, types and edits, which needs a visible window
    bool mixedCells = false; ///< cells of all kinds instead of plain ones only
    std::function<std::unique_ptr<ModelGrid>()> makeGrid = &MakeModelGrid<CGridCtrl>;
};

owtest::SequenceResult RunGridSequence(const owtest::Steps& steps, const SequenceOptions& options = {});

/// An extended grid for the model: the parent decides about an edit, as if there were no handler.
std::unique_ptr<ModelGrid> MakeModelExtGrid();
std::unique_ptr<ModelGrid> MakeModelExtGrid2();
