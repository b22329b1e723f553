// Cells that know their kind, beside plain texts.

#include <DialogControlsOW.h>

#include "Bench.h"
#include "module/GdiScope.h"
#include "module/MemorySurface.h"

#include <string>
#include <vector>

namespace
{
constexpr int kRows = 10000;
constexpr int kPainted = 1000;

/// One column of one kind of cell, in millimetres.
class CColumn : public CGridCtrl
{
public:
    explicit CColumn(CRuntimeClass* pClass, int nRows = kRows)
    {
        SetDefaultCellType(pClass);
        SetColumnCount(1);
        SetRowCount(nRows);
        SetColComplexUnit(0, CComplexUnit(CMeasurementUnit(2, 0)));
    }
};

/// In metres, with two decimals in millimetres. Made beforehand, as the texts are, so that only setting them is
/// measured.
std::vector<double> Lengths()
{
    std::vector<double> lengths;
    for (int nRow = 0; nRow < kRows; ++nRow)
        lengths.push_back((nRow * 7919 % 1000003) / 100000.0);
    return lengths;
}
} // namespace

/// `set` gives each cell of a kind its value; beside it, plain cells get the same texts.
template <class Cell, class Set>
static void MeasureSet(Comparison& compare, const Benchmark::Measure& measure, Set set)
{
    CColumn numbers(RUNTIME_CLASS(Cell));
    CColumn texts(RUNTIME_CLASS(CGridCell));
    const auto fill = [&]
    {
        for (int nRow = 0; nRow < kRows; ++nRow)
            set(static_cast<Cell&>(*numbers.GetCell(nRow, 0)), nRow);
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

static void MeasureLimitedSet(Comparison& compare, const Benchmark::Measure& measure)
{
    const std::vector<double> lengths = Lengths();
    MeasureSet<CLimitedDoubleCell>(compare, measure,
                                   [&](CLimitedDoubleCell& cell, int nRow) { cell.Set(0, lengths[nRow]); });
}
static const Benchmark limitedSet("cells/limited_set", 1.9, MeasureLimitedSet);

// Eighths: every other one lies in the middle between two texts.
static void MeasureTiesSet(Comparison& compare, const Benchmark::Measure& measure)
{
    MeasureSet<CLimitedDoubleCell>(compare, measure,
                                   [](CLimitedDoubleCell& cell, int nRow) { cell.Set(1, nRow + 0.125); });
}
static const Benchmark tiesSet("cells/limited_set_ties", 2, MeasureTiesSet);

static void MeasureIntSet(Comparison& compare, const Benchmark::Measure& measure)
{
    MeasureSet<CLimitedIntCell>(compare, measure,
                                [](CLimitedIntCell& cell, int nRow) { cell.Set(nRow * 7919 - 1000000); });
}
static const Benchmark intSet("cells/int_set", 2, MeasureIntSet);

static void MeasureExponentSet(Comparison& compare, const Benchmark::Measure& measure)
{
    const std::vector<double> lengths = Lengths();
    MeasureSet<CLimitedExponentDoubleCell>(
        compare, measure, [&](CLimitedExponentDoubleCell& cell, int nRow) { cell.Set(0, lengths[nRow]); });
}
static const Benchmark exponentSet("cells/exponent_set", 12, MeasureExponentSet);

static void MeasureValidate(Comparison& compare, const Benchmark::Measure& measure)
{
    std::vector<CString> typed;
    for (const double length : Lengths())
        typed.emplace_back().Format(L"%.3f", 1000 * length);
    MeasureSet<CLimitedDoubleCell>(
        compare, measure, [&](CLimitedDoubleCell& cell, int nRow) { cell.ValidateEdit(typed[nRow]); });
}
static const Benchmark validate("cells/validate_edit", 12, MeasureValidate);

/// A thousand cells of a kind beside a thousand plain ones with the same texts, each painted once. `prepare` is
/// called for all of them.
template <class Cell, class Prepare>
static void MeasurePaint(Comparison& compare, const Benchmark::Measure& measure, Prepare prepare)
{
    const CRect rectCell(0, 0, 200, 18);
    CClientDC screen(nullptr);
    ow::CMemorySurface surface;
    surface.Create(screen, CSize(210, 30));
    CColumn ours(RUNTIME_CLASS(Cell), kPainted);
    CColumn plain(RUNTIME_CLASS(CGridCell), kPainted);
    for (CColumn* const pColumn : {&ours, &plain})
    {
        pColumn->SetImageList(&CGridCtrl::GridImageList);
        for (int nRow = 0; nRow < kPainted; ++nRow)
        {
            pColumn->SetItemTextFmt(nRow, 0, L"HEA %d", 100 + nRow);
            prepare(*pColumn->GetCell(nRow, 0), nRow);
        }
    }
    const auto paint = [&](CColumn& column)
    {
        // As a grid paints them: with the font of most cells on the context.
        CFont* const pFont = column.GetDefaultCell(FALSE, FALSE)->GetFontObject();
        const CGdiSelection font(surface.DC(), pFont->GetSafeHandle());
        for (int nRow = 0; nRow < kPainted; ++nRow)
            column.GetCell(nRow, 0)->Draw(&surface.DC(), nRow, 0, rectCell, TRUE);
    };
    compare.Ours([&] { paint(ours); });
    compare.Bare([&] { paint(plain); });
    measure();
}

static void MeasurePaintAnsi(Comparison& compare, const Benchmark::Measure& measure)
{
    MeasurePaint<CAnsiGridCell>(compare, measure, [](CGridCellBase&, int) {});
}
static const Benchmark paintAnsi("cells/paint_ansi", 1.5, MeasurePaintAnsi);

static void MeasurePaintPattern(Comparison& compare, const Benchmark::Measure& measure)
{
    MeasurePaint<CPatternBkgndGridCell>(compare, measure,
                                        [](CGridCellBase& cell, int nRow)
                                        {
                                            cell.SetBackClr(RGB(255, 250, 230));
                                            auto* const pPattern =
                                                dynamic_cast<CPatternBkgndGridCell*>(&cell);
                                            if (!pPattern)
                                                return;
                                            pPattern->SetPatternColor(RGB(180, 200, 255));
                                            pPattern->SetPatternStyle(nRow % (HS_DIAGCROSS + 1));
                                        });
}
static const Benchmark paintPattern("cells/paint_pattern", 1.5, MeasurePaintPattern);

static void MeasurePaintImage(Comparison& compare, const Benchmark::Measure& measure)
{
    MeasurePaint<CImageGridCell>(
        compare, measure, [](CGridCellBase& cell, int) { cell.SetImage(CGridCtrl::nFirstGridIconIdx); });
}
static const Benchmark paintImage("cells/paint_image", 1.5, MeasurePaintImage);

static void MeasurePaintMarked(Comparison& compare, const Benchmark::Measure& measure)
{
    MeasurePaint<CMarkedTextCell>(compare, measure,
                                  [](CGridCellBase& cell, int)
                                  {
                                      if (auto* const pMarked = dynamic_cast<CMarkedTextCell*>(&cell))
                                          pMarked->Mark(true);
                                  });
}
static const Benchmark paintMarked("cells/paint_marked", 1.5, MeasurePaintMarked);

static void MeasurePaintMixedFont(Comparison& compare, const Benchmark::Measure& measure)
{
    MeasurePaint<CMixedFontGridCell>(compare, measure,
                                     [](CGridCellBase& cell, int)
                                     { cell.SetText(CString(L"N<sub>Rd</sub> = ") + cell.GetText()); });
}
static const Benchmark paintMixedFont("cells/paint_mixed_font", 3, MeasurePaintMixedFont);
