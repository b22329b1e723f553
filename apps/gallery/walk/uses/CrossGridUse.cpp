#include <afxwin.h>

#include "Walk.h"

#include "resource.h"

namespace
{
void UseCrossGrid(CWnd& page)
{
    auto& grid = static_cast<CGridCtrl&>(*page.GetDlgItem(IDC_CROSS_GRID));
    owtest::Click(grid, CellIn(grid, 6, 3));
    owtest::Type(L"none");
    owtest::Press(VK_RETURN);
    owtest::Type(L"150");
    owtest::Press(VK_RETURN);
    Require(owtest::PumpUntil([&] { return grid.GetItemText(1, 3) == _T("150.0"); }),
            L"the band is not worked out");
    owtest::Press(VK_UP);
    Require(owtest::PumpUntil([&] { return grid.GetItemBkColour(5, 3) == grid.GetItemBkColour(5, 4); }),
            L"no cross");
}

const PageUse s_use(ePageCrossGrid, &UseCrossGrid);
} // namespace
