#include <afxwin.h>

#include "Walk.h"

#include "resource.h"

namespace
{
void Choose(CWnd& page, int id, int nDown)
{
    auto& combo = static_cast<CComboBox&>(*page.GetDlgItem(id));
    combo.SetFocus();
    const int nWanted = combo.GetCurSel() + nDown;
    for (int i = 0; i < nDown; ++i)
        owtest::Press(VK_DOWN);
    Require(owtest::PumpUntil([&] { return combo.GetCurSel() == nWanted; }), L"the keys do not choose");
}

void UseDisplayCells(CWnd& page)
{
    auto& grid = static_cast<CGridCtrl&>(*page.GetDlgItem(IDC_DISPLAY_GRID));
    constexpr int kName = 1, kSection = 2, kPlan = 4;
    const CString strName = L"\u0394\u03bf\u03ba\u03cc\u03c2 \u03b2\u03cc\u03c1\u03b5\u03b9\u03b1";
    Choose(page, IDC_DISPLAY_LANGUAGE, 1);
    owtest::Click(grid, CellIn(grid, 3, kName));
    owtest::Type(strName.GetString());
    owtest::Press(VK_RETURN);
    Require(owtest::PumpUntil([&] { return grid.GetItemText(3, kName) == strName; }), L"no Greek name");

    owtest::Click(grid, CellIn(grid, 5, kSection));
    Choose(page, IDC_DISPLAY_HATCH, 5);
    auto& section = static_cast<CPatternBkgndGridCell&>(*grid.GetCell(5, kSection));
    Require(section.GetPatternStyle() == HS_CROSS, L"no hatch");
    owtest::Click(*page.GetDlgItem(IDC_DISPLAY_CHANGED));
    auto& plan = static_cast<CMarkedTextCell&>(*grid.GetCell(5, kPlan));
    Require(owtest::PumpUntil([&] { return plan.IsMarked(); }), L"no mark");
    owtest::Click(*page.GetDlgItem(IDC_DISPLAY_RIGHT));

    auto& title = static_cast<CEdit&>(*page.GetDlgItem(IDC_DISPLAY_TITLE));
    Focus(page, IDC_DISPLAY_TITLE);
    owtest::Press(VK_END);
    owtest::Type(L" \u03ba\u03b1\u03b9 4");
    Require(gfnWholeText(title).Right(6) == L" \u03ba\u03b1\u03b9 4", L"the title cannot be typed");
    owtest::Click(grid, CellIn(grid, 3, kName));
}

const PageUse s_use(ePageDisplayCells, &UseDisplayCells);
} // namespace
