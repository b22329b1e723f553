#include <afxwin.h>

#include "Walk.h"

#include "resource.h"

namespace
{
void UseGrid(CWnd& page)
{
    auto& grid = static_cast<CGridCtrl&>(*page.GetDlgItem(IDC_GRID));
    constexpr int kLength = 2, kPieces = 3, kWeight = 4;
    owtest::Click(grid, CellIn(grid, 3, kLength));
    owtest::Type(L"5000");
    owtest::Press(VK_TAB);
    owtest::Type(L"9");
    owtest::Press(VK_RETURN);
    Require(owtest::PumpUntil([&] { return grid.GetItemText(3, kWeight) == _T("1368.0"); }), L"no weight");
    owtest::Click(grid, CellIn(grid, 0, kPieces));
    Require(owtest::PumpUntil([&] { return grid.GetSortColumn() == kPieces; }), L"the heading does not sort");
    owtest::ButtonDown(grid, CellIn(grid, 2, 1));
    owtest::MoveTo(grid, CellIn(grid, 4, kPieces));
    owtest::ButtonUp();
    Require(owtest::PumpUntil([&] { return grid.GetSelectedCount() == 9; }), L"the drag does not select");
}

const PageUse s_use(ePageGrid, &UseGrid);
} // namespace
