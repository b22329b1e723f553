#include "FormatJedinice.h"

#include <algorithm>

CComplexUnit CFormatJedinice::Unit() const
{
    const CMeasurementUnit unit(nUnitIndex, CMeasurementUnit::eLength);
    return CComplexUnit(unit.IsValid() ? unit : CMeasurementUnit(CMeasurementUnit::eMillimetre, 0));
}

CString CFormatJedinice::Format(double dLength) const
{
    const CComplexUnit unit = Unit();
    CString strLength;
    strLength.Format(L"%.*f", std::clamp(nEditValue, 0, kMaxDecimals), unit.ToLocal(dLength));
    if (nCheckFlag == 1)
        strLength += L" " + unit.Symbol();
    return strLength;
}
