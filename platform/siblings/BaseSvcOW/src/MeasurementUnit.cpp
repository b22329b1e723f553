#include "MeasurementUnit.h"

#include "UnitTable.h"

bool CMeasurementUnit::IsValid() const
{
    return FindUnit(*this) != nullptr;
}

CString CMeasurementUnit::Symbol() const
{
    const SUnitRow* pRow = FindUnit(*this);
    return pRow ? pRow->pszSymbol : L"?";
}

int CMeasurementUnit::Count(int nKind)
{
    return static_cast<int>(UnitsOfKind(nKind).size());
}
