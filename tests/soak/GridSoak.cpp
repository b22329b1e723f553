// The grid against its model: plain and extended, with cells of one kind and of several, by calls and by keys.

#include "../grid/GridModel.h"

namespace
{
owtest::SoakSubject Grid(const char* name, const SequenceOptions& options)
{
    return {name, 2000, [options](const owtest::Steps& steps) { return RunGridSequence(steps, options); }};
}

const owtest::SoakSubject s_subjects[] = {
    Grid("grid", {}),
    Grid("grid-mixed", {.mixedCells = true}),
    Grid("grid-input", {.withInput = true}),
    Grid("grid-mixed-input", {.withInput = true, .mixedCells = true}),
    Grid("extgrid", {.withInput = true, .mixedCells = true, .makeGrid = &MakeModelExtGrid}),
    Grid("extgrid2", {.withInput = true, .mixedCells = true, .makeGrid = &MakeModelExtGrid2}),
};
} // namespace
