#include <afxwin.h>

#include "Walk.h"

#include "resource.h"

namespace
{
void UseVirtualGrid(CWnd& page)
{
    auto& grid = static_cast<CGridCtrl&>(*page.GetDlgItem(IDC_VIRTUAL_GRID));
    owtest::Click(*page.GetDlgItem(IDC_VIRTUAL_GO));
    Require(owtest::PumpUntil([&] { return grid.GetFocusCell().row == 500000; }), L"the row does not show");
    owtest::Press(VK_NEXT);
    owtest::Press(VK_DOWN);
    Require(owtest::PumpUntil([&] { return grid.GetFocusCell().row > 500005; }),
            L"the page key does not move");
}

const PageUse s_use(ePageVirtualGrid, &UseVirtualGrid);
} // namespace
