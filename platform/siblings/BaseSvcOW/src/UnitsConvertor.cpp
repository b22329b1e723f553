#include "UnitsConvertor.h"

#include "UnitTable.h"

const CUnitsConvertor CUnitsConvertor::Object;

CUnitsConvertor::SRatio CUnitsConvertor::Ratio(const CMeasurementUnit& unit) const
{
    const SUnitRow* pRow = FindUnit(unit);
    return pRow ? pRow->ratio : SRatio{};
}
