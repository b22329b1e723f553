#pragma once
// One cell of any class in a visible grid.

#include "../grid/GridFixture.h"

constexpr int kRow = 3, kCol = 2;
constexpr COLORREF kBack = RGB(255, 240, 200), kText = RGB(10, 20, 200);

class CellTest : public GridTest
{
protected:
    template <class Cell = CGridCell>
    Cell& Make(CRuntimeClass* pClass = RUNTIME_CLASS(Cell))
    {
        grid.SetRowHeight(kRow, 30);
        grid.SetColumnWidth(kCol, 80, TRUE);
        EXPECT_TRUE(grid.SetCellType(kRow, kCol, pClass));
        auto& cell = static_cast<Cell&>(*grid.GetCell(kRow, kCol));
        cell.SetBackClr(kBack);
        cell.SetTextClr(kText);
        grid.RedrawWindow();
        return cell;
    }
    CRect CellRect() { return GridTest::CellRect(kRow, kCol); }
    std::wstring CellText() { return Text(kRow, kCol); }
    static BOOL Draw(owtest::Surface& to, CGridCellBase& cell, CRect rect, BOOL bErase = TRUE)
    {
        return cell.Draw(&to.dc(), kRow, kCol, rect, bErase);
    }
};
