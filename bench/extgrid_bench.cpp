// Moving the current row or cell of an extended grid beside a repaint of its window, which each move brings
// with it: what the colours of the cells cost on top.

#include <DialogControlsOW.h>

#include "Bench.h"

namespace
{
constexpr int kRows = 10000;
constexpr int kCols = 20;
constexpr int kColWidth = 60;

class CSilentHandler : public AExtGridCtrlNotificationHandler, public AExtGridCtrl2NotificationHandler
{
public:
    void OnExtGridRowChanged(int, int, int) override {}
    bool OnExtGridEndEdit(int, int, int, const CString*) override { return true; }
    void OnExtGridRClick(int, int) override {}
    void OnExtGrid2CellChanged(int, CCellID, CCellID) override {}
    bool OnExtGrid2EndEdit(int, CCellID, const CString*) override { return true; }
    void OnExtGrid2RClick(int, CCellID) override {}
};

/// `move` makes the row of the given index current, and a column that goes with it.
template <class Move>
void CompareMove(Comparison& compare, const std::function<void()>& measure, CGridCtrl& grid, Move move)
{
    CWnd stage;
    stage.CreateEx(WS_EX_TOOLWINDOW, AfxRegisterWndClass(0), L"stage", WS_POPUP | WS_VISIBLE,
                   CRect(0, 0, 1240, 900), nullptr, 0);
    grid.SetRowCount(kRows);
    grid.SetColumnCount(kCols);
    grid.SetFixedRowCount(1);
    grid.SetFixedColumnCount(1);
    grid.Create(CRect(0, 0, 1240, 900), &stage, 1);
    for (int nCol = 0; nCol < kCols; ++nCol)
        grid.SetColumnWidth(nCol, kColWidth, TRUE);
    for (int nRow = 0; nRow < kRows; ++nRow)
        for (int nCol = 0; nCol < kCols; ++nCol)
            grid.SetItemTextFmt(nRow, nCol, L"%d", nRow * kCols + nCol);

    int nTurn = 0;
    compare.Ours(
        [&]
        {
            move(5 + nTurn++ % 10);
            grid.UpdateWindow();
        });
    compare.Bare([&] { grid.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW); });
    measure();
    grid.DestroyWindow();
    stage.DestroyWindow();
}
} // namespace

static void MeasureMoveRow(Comparison& compare, const Benchmark::Measure& measure)
{
    CSilentHandler handler;
    CExtGridCtrl grid(&handler);
    CompareMove(compare, measure, grid, [&](int nPlace) { grid.SelectRowEx(nPlace, 1); });
}
static const Benchmark moveRow("grid/ext/move_row", 2, MeasureMoveRow);

static void MeasureMoveCell(Comparison& compare, const Benchmark::Measure& measure)
{
    CSilentHandler handler;
    CExtGridCtrl2 grid(&handler, nullptr);
    CompareMove(compare, measure, grid, [&](int nPlace) { grid.SelectCellEx(nPlace, nPlace); });
}
static const Benchmark moveCell("grid/ext2/move_cell", 2, MeasureMoveCell);
