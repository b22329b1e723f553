// Units: sizes, symbols, products, values that come back as they were typed; records of drawing settings.

#include <ComplexUnit.h>
#include <FormatJedinice.h>
#include <FormatTekstaKote.h>

#include "Testing.h"

#include <numbers>

namespace
{
CComplexUnit Length(int number, int exponent = 1)
{
    return CComplexUnit(CMeasurementUnit(number, CMeasurementUnit::eLength), exponent);
}

const CComplexUnit kDimensionless(CMeasurementUnit(), 0);
} // namespace

TEST(ComplexUnit, LengthsHaveTheirSymbolsAndExactSizes)
{
    const std::pair<LPCWSTR, double> lengths[] = {{L"m", 1.0},  {L"cm", 0.01},   {L"mm", 0.001},
                                                  {L"dm", 0.1}, {L"in", 0.0254}, {L"ft", 0.3048}};
    ASSERT_EQ(CMeasurementUnit::Count(CMeasurementUnit::eLength), std::ssize(lengths));
    for (int number = 0; const auto& [symbol, metres] : lengths)
    {
        const CComplexUnit unit = Length(number++);
        EXPECT_STREQ(unit.Symbol(), symbol);
        EXPECT_EQ(unit.ToGlobal(1.0), metres);
        EXPECT_EQ(unit.ToLocal(metres), 1.0);
    }
    for (const auto& [number, kind] : {std::pair(6, 0), {-1, 0}, {0, 3}})
        EXPECT_FALSE(CMeasurementUnit(number, kind).IsValid());
    EXPECT_EQ(Length(6).Symbol(), CString(L"?"));
    EXPECT_EQ(Length(6).ToGlobal(2.5), 2.5);
}

TEST(ComplexUnit, TypedValuesComeBackAsTheyWereTyped)
{
    for (int number = 0; number < 6; ++number)
        for (int exponent : {1, 2, 3, -1})
        {
            const CComplexUnit unit = Length(number, exponent);
            for (int whole = -20000; whole <= 20000; ++whole)
                for (const double typed : {static_cast<double>(whole), whole / 1000.0})
                    ASSERT_EQ(unit.ToLocal(unit.ToGlobal(typed)), typed) << number << ", " << exponent;
        }
    const double large = 123456789012345.0, third = 1.0 / 3.0;
    EXPECT_EQ(Length(4).ToLocal(Length(4).ToGlobal(large)), large);
    EXPECT_EQ(Length(0).ToLocal(third), third) << "what is no short decimal is not rounded";
    EXPECT_DOUBLE_EQ(Length(2).ToLocal(third), 1000.0 / 3.0);
    EXPECT_EQ(Length(2).ToLocal(HUGE_VAL), HUGE_VAL);
}

TEST(ComplexUnit, PowersAndProductsConvertAndWriteThemselves)
{
    const CComplexUnit kN(CMeasurementUnit(CMeasurementUnit::eKilonewton, CMeasurementUnit::eForce)),
        degree(CMeasurementUnit(CMeasurementUnit::eDegree, CMeasurementUnit::eAngle)),
        moment = kN * Length(0);
    const std::tuple<CComplexUnit, LPCWSTR, double> cases[] = {
        {kN / Length(1, 2), L"kN/cm²", 1e7},
        {moment, L"kN·m", 1e3},
        {Length(0) * moment / Length(0, 2), L"kN", 1e3}, // a unit can cancel out
        {Length(2, 12), L"mm¹²", 1e-36},
        {Length(0, -1), L"1/m", 1.0},
        {kDimensionless, L"", 1.0},
        {degree, L"°", std::numbers::pi / 180}};
    for (const auto& [unit, symbol, size] : cases)
    {
        EXPECT_STREQ(unit.Symbol(), symbol);
        EXPECT_DOUBLE_EQ(unit.ToGlobal(2.5), 2.5 * size) << CStringA(symbol);
    }
    const CComplexUnit four = Length(0) * Length(1) * Length(2) * Length(3);
    EXPECT_THROW(four * Length(4), CInvalidArgException*) << "too many units";
    EXPECT_TRUE(CComplexUnit() == Length(0) && Length(0) != Length(1) && Length(0) != Length(0, 2));
    EXPECT_TRUE(moment == Length(0) * kN && Length(2) / Length(2) == kDimensionless);

    struct SurveyFoot : CUnitsConvertor
    {
        SRatio Ratio(const CMeasurementUnit& unit) const override
        {
            return unit.Symbol() == CString(L"ft") ? SRatio{1200.0, 3937.0} : CUnitsConvertor::Ratio(unit);
        }
    };
    EXPECT_EQ(Length(5).ToGlobal(3937.0, SurveyFoot()), 1200.0);
    EXPECT_EQ(Length(5).ToLocal(1200.0, SurveyFoot()), 3937.0);
}

TEST(FormatJedinice, WritesLengthsInItsUnitWithTheNearestSenseOfItsFields)
{
    const std::tuple<CFormatJedinice, LPCWSTR, LPCWSTR> formats[] = {
        {{CMeasurementUnit::eCentimetre, 1, 1}, L"12.5 cm", L"cm"},
        {{-1, 0, -3}, L"125", L"mm"},
        {{-1, 0, 99}, L"125.000000000000000", L"mm"}};
    for (const auto& [format, text, unit] : formats)
    {
        EXPECT_STREQ(format.Format(0.125), text);
        EXPECT_STREQ(format.Unit().Symbol(), unit);
    }
    const CFormatTekstaKote unset;
    CFormatTekstaKote written;
    EXPECT_TRUE(!written.IsSet() && written == unset) << "until a text is chosen";
    written.nTekstKote = 0;
    written.strPrefiks = L"L=";
    written.strSufiks = L"*";
    EXPECT_TRUE(written.IsSet() && written != unset);
    EXPECT_STREQ(written.Format(1.25), L"L=1250*");
}
