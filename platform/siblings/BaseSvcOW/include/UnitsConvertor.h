#pragma once
// CUnitsConvertor: how large a unit is, in the global unit of its kind (metre, newton, radian).
//
// `Object` knows the units of CMeasurementUnit. Derive from the class to give a unit another size, for
// example a foot of 1200/3937 m, and pass the derived object to CComplexUnit::ToLocal and ToGlobal.

#include "BaseSvcDef.h"
#include "MeasurementUnit.h"

class BASESVC_API CUnitsConvertor
{
public:
    /// The size of a unit as a fraction. Two whole numbers keep the sizes exact that binary fractions cannot
    /// hold: the inch is 254/10000 m.
    struct SRatio
    {
        double dNumerator = 1.0;
        double dDenominator = 1.0;
    };

    virtual ~CUnitsConvertor() = default;

    /// Both parts are positive. A unit that is not valid answers 1/1.
    virtual SRatio Ratio(const CMeasurementUnit& unit) const;

    /// The convertor that is used where no other is given.
    static const CUnitsConvertor Object;
};
