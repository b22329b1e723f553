// Random sequences against the model. The seeds are fixed, so that a run is the same every time; the soak
// program goes on with others.

#include "GridModel.h"

#include "GridWindow.h"

#include <gtest/gtest.h>

namespace
{
/// What the parent would have answered if there were no handler: the model decides there about an edit.
bool ParentAccepts(CWnd& grid)
{
    const auto& parent = static_cast<GridParent&>(*grid.GetParent());
    NMHDR header{grid.m_hWnd, kGridId, static_cast<UINT>(LVN_ENDLABELEDITW)};
    return !parent.answer || parent.answer(header) >= 0;
}

class CModelExtGrid : public CExtGridCtrl, public AExtGridCtrlNotificationHandler
{
public:
    CModelExtGrid() : CExtGridCtrl(this) {}
    void OnExtGridRowChanged(int, int, int) override {}
    bool OnExtGridEndEdit(int, int, int, const CString*) override { return ParentAccepts(*this); }
    void OnExtGridRClick(int, int) override {}
};

class CModelExtGrid2 : public CExtGridCtrl2, public AExtGridCtrl2NotificationHandler
{
public:
    CModelExtGrid2() : CExtGridCtrl2(this, nullptr) {}
    void OnExtGrid2CellChanged(int, CCellID, CCellID) override {}
    bool OnExtGrid2EndEdit(int, CCellID, const CString*) override { return ParentAccepts(*this); }
    void OnExtGrid2RClick(int, CCellID) override {}
};

void RunAll(unsigned firstSeed, int seeds, int steps, SequenceOptions options)
{
    for (int i = 0; i < seeds; ++i)
    {
        options.mixedCells = i % 2 == 1;
        const SequenceResult result = RunGridSequence(firstSeed + i, steps, options);
        ASSERT_EQ(result.failure, "");
        ASSERT_EQ(result.stepsDone, steps);
    }
}
} // namespace

// Every other sequence has cells of all kinds.

TEST(GridModel, HoldsThroughRandomOperations)
{
    RunAll(1, 100, 2000, {});
}

TEST(GridModel, HoldsThroughRandomClicksKeysAndEdits)
{
    RunAll(1001, 8, 1000, {.withInput = true});
}

TEST(GridModel, HoldsOnExtendedGrids)
{
    for (const auto makeGrid : {&MakeModelGrid<CModelExtGrid>, &MakeModelGrid<CModelExtGrid2>})
    {
        RunAll(2001, 10, 1000, {.makeGrid = makeGrid});
        RunAll(3001, 4, 500, {.withInput = true, .makeGrid = makeGrid});
    }
}
