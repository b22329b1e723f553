#include "ComplexUnit.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace
{
/// Values below this magnitude are tried with six decimals: their millionths are still whole doubles.
constexpr double kDecimalLimit = 9e9;
constexpr double kDecimalScale = 1e6;

/// By repeated multiplication: std::pow need not be exact for whole numbers. The exponent is at least 1.
double Power(double dBase, int nExponent)
{
    double dResult = dBase;
    for (int i = 1; i < nExponent; ++i)
        dResult *= dBase;
    return dResult;
}

double ApplyRatio(double dValue, double dMultiplier, double dDivisor)
{
    const double dProduct = dValue * dMultiplier;
    return dDivisor == 1.0 ? dProduct : dProduct / dDivisor; // most units spare the division
}

/// std::nearbyint without the call, which costs more than the rest of a conversion. Above 2^52 there are no
/// fractions left, so that adding it and taking it off again rounds to a whole number.
double RoundToWhole(double dValue)
{
    constexpr double kNoFractions = 4503599627370496.0;
    const double dAbsolute = std::fabs(dValue);
    if (!(dAbsolute < kNoFractions))
        return dValue;
    return std::copysign((dAbsolute + kNoFractions) - kNoFractions, dValue);
}

/// The short decimal next to a value; values too large for that are rounded to whole ones.
double NearestDecimal(double dValue)
{
    if (std::fabs(dValue) >= kDecimalLimit)
        return RoundToWhole(dValue);
    return RoundToWhole(dValue * kDecimalScale) / kDecimalScale;
}

CString SuperscriptDigits(int nNumber)
{
    static constexpr wchar_t kDigits[] = L"⁰¹²³⁴⁵⁶⁷⁸⁹";
    CString strDigits;
    for (; nNumber > 0; nNumber /= 10)
        strDigits = CString(kDigits[nNumber % 10]) + strDigits;
    return strDigits;
}

CString Factor(const CMeasurementUnit& unit, int nExponent)
{
    CString strFactor = unit.Symbol();
    if (nExponent > 1)
        strFactor += SuperscriptDigits(nExponent);
    return strFactor;
}
} // namespace

CComplexUnit::CComplexUnit() : CComplexUnit(CMeasurementUnit())
{
}

CComplexUnit::CComplexUnit(const CMeasurementUnit& unit, int nExponent)
{
    MultiplyBy(unit, nExponent);
    m_ratio = Product(CUnitsConvertor::Object);
}

double CComplexUnit::ToLocal(double dGlobal, const CUnitsConvertor& convertor) const
{
    if (!std::isfinite(dGlobal))
        return dGlobal;
    const CUnitsConvertor::SRatio ratio = Ratio(convertor);
    const double dLocal = ApplyRatio(dGlobal, ratio.dDenominator, ratio.dNumerator);

    // Both ways round, so the way back may miss by a last bit the number that was typed. If the decimal
    // number next to the result leads to the very same global value, it is the one that was meant.
    const double dDecimal = NearestDecimal(dLocal);
    const bool bSameGlobal = ApplyRatio(dDecimal, ratio.dNumerator, ratio.dDenominator) == dGlobal;
    return bSameGlobal ? dDecimal : dLocal;
}

double CComplexUnit::ToGlobal(double dLocal, const CUnitsConvertor& convertor) const
{
    if (!std::isfinite(dLocal))
        return dLocal;
    const CUnitsConvertor::SRatio ratio = Ratio(convertor);
    return ApplyRatio(dLocal, ratio.dNumerator, ratio.dDenominator);
}

CString CComplexUnit::Symbol() const
{
    CString strAbove;
    CString strBelow;
    for (const STerm& term : Terms())
    {
        if (term.nExponent < 0)
            strBelow += L"/" + Factor(term.unit, -term.nExponent);
        else
            strAbove += (strAbove.IsEmpty() ? L"" : L"·") + Factor(term.unit, term.nExponent);
    }
    if (strAbove.IsEmpty() && !strBelow.IsEmpty())
        strAbove = L"1";
    return strAbove + strBelow;
}

CComplexUnit CComplexUnit::operator*(const CComplexUnit& other) const
{
    return Combined(other, +1);
}

CComplexUnit CComplexUnit::operator/(const CComplexUnit& other) const
{
    return Combined(other, -1);
}

bool CComplexUnit::operator==(const CComplexUnit& other) const
{
    if (m_nTerms != other.m_nTerms)
        return false;
    for (const STerm& term : Terms())
    {
        if (other.ExponentOf(term.unit) != term.nExponent)
            return false;
    }
    return true;
}

int CComplexUnit::ExponentOf(const CMeasurementUnit& unit) const
{
    for (const STerm& term : Terms())
    {
        if (term.unit == unit)
            return term.nExponent;
    }
    return 0;
}

void CComplexUnit::MultiplyBy(const CMeasurementUnit& unit, int nExponent)
{
    if (nExponent == 0)
        return;
    const auto end = m_terms.begin() + m_nTerms;
    const auto term = std::find_if(m_terms.begin(), end, [&](const STerm& has) { return has.unit == unit; });
    if (term == end)
    {
        if (m_nTerms == kMaxTerms)
            AfxThrowInvalidArgException();
        *term = {unit, 0};
        ++m_nTerms;
    }
    term->nExponent += nExponent;
    if (term->nExponent != 0)
        return;
    std::move(term + 1, end, term); // cancelled: the terms behind close up
    --m_nTerms;
}

CComplexUnit CComplexUnit::Combined(const CComplexUnit& other, int nSign) const
{
    CComplexUnit result(*this);
    for (const STerm& term : other.Terms())
        result.MultiplyBy(term.unit, nSign * term.nExponent);
    result.m_ratio = result.Product(CUnitsConvertor::Object);
    return result;
}

CUnitsConvertor::SRatio CComplexUnit::Ratio(const CUnitsConvertor& convertor) const
{
    return &convertor == &CUnitsConvertor::Object ? m_ratio : Product(convertor);
}

/// Of all terms, as one fraction.
CUnitsConvertor::SRatio CComplexUnit::Product(const CUnitsConvertor& convertor) const
{
    CUnitsConvertor::SRatio product;
    for (const STerm& term : Terms())
    {
        const CUnitsConvertor::SRatio ratio = convertor.Ratio(term.unit);
        const bool bAbove = term.nExponent > 0;
        const int nPower = std::abs(term.nExponent);
        product.dNumerator *= Power(bAbove ? ratio.dNumerator : ratio.dDenominator, nPower);
        product.dDenominator *= Power(bAbove ? ratio.dDenominator : ratio.dNumerator, nPower);
    }
    return product;
}
