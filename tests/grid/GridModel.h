#pragma once
// Random sequences of operations and input messages on a grid, checked after each step against a small model
// of what the grid must hold.
//
//     RunGridSequence(seed, 1000, {.withInput = true});
//     RunGridSequence(seed, 1000, {.mixedCells = true, .makeGrid = &MakeModelGrid<CMyGrid>});
//
// A sequence is its seed: the same seed gives the same steps. A sequence that fails tells its steps, so that
// it can be read as well as run again.

#include <DialogControlsOW.h>

#include <functional>
#include <memory>
#include <string>

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

struct SequenceResult
{
    int stepsDone = 0;
    /// Empty if all went well; otherwise what differed, the seed and the steps up to there.
    std::string failure;
};

SequenceResult RunGridSequence(unsigned seed, int steps, const SequenceOptions& options = {});
