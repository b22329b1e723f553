#pragma once
// The measurement units: symbols, and sizes in the global unit of their kind as exact fractions.

#include "MeasurementUnit.h"
#include "UnitsConvertor.h"

#include <span>

struct SUnitRow
{
    LPCWSTR pszSymbol;
    CUnitsConvertor::SRatio ratio;
};

/// The units of a kind by number; empty for an unknown kind.
std::span<const SUnitRow> UnitsOfKind(int nKind);

/// The row of a unit, or null if it is not valid.
const SUnitRow* FindUnit(const CMeasurementUnit& unit);
