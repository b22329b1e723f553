// The grid against its model: plain and extended, with cells of one kind and of all, by calls and by input.

#include "Soak.h"

#include "../grid/GridModel.h"

namespace
{
constexpr int kSteps = 2000;

struct GridSubject : owtest::SoakSubject
{
    GridSubject(std::string name, SequenceOptions options)
        : SoakSubject(std::move(name), kSteps,
                      [options](const owtest::Steps& steps) { return RunGridSequence(steps, options); })
    {
    }
};

const GridSubject s_subjects[] = {
    {"grid", {}},
    {"grid-mixed", {.mixedCells = true}},
    {"grid-input", {.withInput = true}},
    {"grid-mixed-input", {.withInput = true, .mixedCells = true}},
    {"extgrid", {.withInput = true, .mixedCells = true, .makeGrid = &MakeModelExtGrid}},
    {"extgrid2", {.withInput = true, .mixedCells = true, .makeGrid = &MakeModelExtGrid2}},
};
} // namespace
