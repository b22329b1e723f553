#include <afxwin.h>

#include "Walk.h"

#include "resource.h"

namespace
{
void UseSteelSchedule(CWnd& page)
{
    auto& grid = static_cast<CGridCtrl&>(*page.GetDlgItem(IDC_SCHEDULE));
    constexpr int kProfile = 1, kLength = 2, kGalvanised = 5;
    owtest::Click(grid, CellIn(grid, 3, kLength));
    owtest::Type(L"19000");
    owtest::Press(VK_RETURN);
    owtest::Type(L"7250");
    owtest::Press(VK_RETURN);
    owtest::Click(*page.GetDlgItem(IDC_SCHEDULE_M));
    Require(owtest::PumpUntil([&] { return grid.GetItemText(3, kLength) == _T("7.250"); }),
            L"no length in metres");

    owtest::Click(grid, CellIn(grid, 4, kProfile));
    owtest::Type(L"IPE 220");
    owtest::Press(VK_RETURN);
    Require(owtest::PumpUntil([&] { return grid.GetItemText(4, kProfile) == _T("IPE 220"); }),
            L"no other profile");

    CRect cell;
    grid.GetCellRect(5, kGalvanised, &cell);
    owtest::Click(grid, cell.TopLeft() + CSize(10, 10));
    const CString strStored = _T("Stored: UPN 140, 3.1 m, 487 N, 10 pieces, not galvanised, colour 92");
    Require(owtest::PumpUntil([&] { return TextOf(page, IDC_SCHEDULE_STORED) == strStored; }),
            L"the box does not flip");
}

const PageUse s_use(ePageSteelSchedule, &UseSteelSchedule);
} // namespace
