#include "UnitTable.h"

#include <numbers>

// clang-format off
static constexpr SUnitRow kLengths[] = {
    {L"m",  {1.0,   1.0}},
    {L"cm", {1.0,   100.0}},
    {L"mm", {1.0,   1000.0}},
    {L"dm", {1.0,   10.0}},
    {L"in", {254.0, 10000.0}},
    {L"ft", {3048.0, 10000.0}},
};

static constexpr SUnitRow kForces[] = {
    {L"N",  {1.0, 1.0}},
    {L"kN", {1000.0, 1.0}},
    {L"MN", {1000000.0, 1.0}},
};

static constexpr SUnitRow kAngles[] = {
    {L"rad", {1.0, 1.0}},
    {L"°",   {std::numbers::pi, 180.0}},
};
// clang-format on

std::span<const SUnitRow> UnitsOfKind(int nKind)
{
    switch (nKind)
    {
    case CMeasurementUnit::eLength:
        return kLengths;
    case CMeasurementUnit::eForce:
        return kForces;
    case CMeasurementUnit::eAngle:
        return kAngles;
    default:
        return {};
    }
}

const SUnitRow* FindUnit(const CMeasurementUnit& unit)
{
    const std::span<const SUnitRow> rows = UnitsOfKind(unit.GetKind());
    const size_t number = static_cast<size_t>(unit.GetUnit()); // a negative number becomes a huge one
    return number < rows.size() ? &rows[number] : nullptr;
}
