#pragma once
// CComplexUnit: a unit that may be a power of a measurement unit, or a product of several. It converts values
// between the program's global unit, in which they are stored, and this unit, the local one, in which the
// user sees them.
//
//     CComplexUnit mm(CMeasurementUnit(2, 0));
//     mm.ToLocal(0.02);                                        // 20.0
//     CComplexUnit area(CMeasurementUnit(1, 0), 2);            // cm²
//     area.ToGlobal(1.0);                                      // 0.0001 m²
//     CComplexUnit load = CComplexUnit(CMeasurementUnit(1, CMeasurementUnit::eForce))
//                         / CComplexUnit(CMeasurementUnit(0, 0), 2);
//     load.Symbol();                                           // "kN/m²"
//
// Conversions round once to the nearest double, and ToLocal gives back exactly what went into ToGlobal for
// values with up to six decimals (of magnitude below nine thousand million), so that a typed number comes
// back as it was typed. Not-a-number and infinity come back as they are, bit by bit.

#include "BaseSvcDef.h"
#include "MeasurementUnit.h"
#include "UnitsConvertor.h"

#include <array>

class BASESVC_API CComplexUnit
{
public:
    /// How many different measurement units a product can hold.
    static constexpr int kMaxTerms = 4;

    /// The metre.
    CComplexUnit();

    /// A measurement unit to a power. The exponent 0 gives the unit without a dimension.
    explicit CComplexUnit(const CMeasurementUnit& unit, int nExponent = 1);

    /// From a value in the global unit to one in this unit.
    double ToLocal(double dGlobal, const CUnitsConvertor& convertor = CUnitsConvertor::Object) const;

    /// From a value in this unit to one in the global unit.
    double ToGlobal(double dLocal, const CUnitsConvertor& convertor = CUnitsConvertor::Object) const;

    /// What is written behind a number: "mm", "cm²", "kN/m²"; empty without a dimension.
    CString Symbol() const;

    /// Product and quotient. Throws an MFC invalid-argument exception if the result needs more than
    /// kMaxTerms measurement units.
    CComplexUnit operator*(const CComplexUnit& other) const;
    CComplexUnit operator/(const CComplexUnit& other) const;

    /// Equal if the same measurement units stand in the same powers, in whatever order.
    bool operator==(const CComplexUnit& other) const;
    bool operator!=(const CComplexUnit& other) const { return !(*this == other); }

private:
    struct STerm
    {
        CMeasurementUnit unit;
        int nExponent = 0;
    };

    /// Those terms that there are, for a loop.
    struct STerms
    {
        const STerm *pBegin, *pEnd;
        const STerm* begin() const { return pBegin; }
        const STerm* end() const { return pEnd; }
    };

    STerms Terms() const { return {m_terms.data(), m_terms.data() + m_nTerms}; }
    int ExponentOf(const CMeasurementUnit& unit) const;
    void MultiplyBy(const CMeasurementUnit& unit, int nExponent);
    CComplexUnit Combined(const CComplexUnit& other, int nSign) const;
    CUnitsConvertor::SRatio Ratio(const CUnitsConvertor& convertor) const;
    CUnitsConvertor::SRatio Product(const CUnitsConvertor& convertor) const;

    std::array<STerm, kMaxTerms> m_terms; ///< in the order in which they are written
    int m_nTerms = 0;
    CUnitsConvertor::SRatio m_ratio; ///< by CUnitsConvertor::Object, which nearly every conversion asks
};
