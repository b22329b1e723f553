// Cells that know their kind, beside plain texts.

#include <DialogControlsOW.h>

#include "Bench.h"

#include <string>
#include <vector>

namespace
{
constexpr int kRows = 10000;

/// One column of one kind of cell, in millimetres.
class CColumn : public CGridCtrl
{
public:
    explicit CColumn(CRuntimeClass* pClass)
    {
        SetDefaultCellType(pClass);
        SetColumnCount(1);
        SetRowCount(kRows);
        SetColComplexUnit(0, CComplexUnit(CMeasurementUnit(2, 0)));
    }
};

/// In metres, with two decimals in millimetres.
double LengthAt(int nRow)
{
    return (nRow * 7919 % 1000003) / 100000.0;
}
} // namespace

static void MeasureLimitedSet(Comparison& compare, const Benchmark::Measure& measure)
{
    CColumn numbers(RUNTIME_CLASS(CLimitedDoubleCell));
    CColumn texts(RUNTIME_CLASS(CGridCell));
    const auto fill = [&]
    {
        for (int nRow = 0; nRow < kRows; ++nRow)
            static_cast<CLimitedDoubleCell&>(*numbers.GetCell(nRow, 0)).Set(0, LengthAt(nRow));
    };
    fill();
    std::vector<std::wstring> same;
    for (int nRow = 0; nRow < kRows; ++nRow)
        same.push_back(numbers.GetItemText(nRow, 0).GetString());
    compare.Ours(fill);
    compare.Bare(
        [&]
        {
            for (int nRow = 0; nRow < kRows; ++nRow)
                texts.SetItemText(nRow, 0, same[nRow].c_str());
        });
    measure();
}
static const Benchmark limitedSet("cells/limited_set", 2, MeasureLimitedSet);
