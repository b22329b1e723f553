// Units: sizes, symbols, products, and values that come back as they were typed.

#include <ComplexUnit.h>

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <numbers>
#include <utility>

namespace
{
CComplexUnit Length(int number, int exponent = 1)
{
    return CComplexUnit(CMeasurementUnit(number, CMeasurementUnit::eLength), exponent);
}

CComplexUnit Force(int number)
{
    return CComplexUnit(CMeasurementUnit(number, CMeasurementUnit::eForce));
}

const CComplexUnit c_dimensionless(CMeasurementUnit(), 0);
} // namespace

TEST(MeasurementUnit, UnknownNumberIsNotValidAndConvertsAsTheGlobalUnit)
{
    for (const CMeasurementUnit& unit :
         {CMeasurementUnit(6, 0), CMeasurementUnit(-1, 0), CMeasurementUnit(0, 3)})
    {
        EXPECT_FALSE(unit.IsValid());
        EXPECT_STREQ(unit.Symbol(), L"?");
        EXPECT_EQ(CComplexUnit(unit).ToGlobal(2.5), 2.5);
        EXPECT_EQ(CComplexUnit(unit).ToLocal(2.5), 2.5);
    }
    EXPECT_EQ(CMeasurementUnit::Count(3), 0);
}

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
}

TEST(ComplexUnit, TypedValuesComeBackAsTheyWereTyped)
{
    for (int number = 0; number < 6; ++number)
    {
        for (int exponent : {1, 2, 3, -1})
        {
            const CComplexUnit unit = Length(number, exponent);
            for (int whole = -20000; whole <= 20000; ++whole)
            {
                ASSERT_EQ(unit.ToLocal(unit.ToGlobal(whole)), whole)
                    << number << " to the power of " << exponent;
                const double decimal = whole / 1000.0;
                ASSERT_EQ(unit.ToLocal(unit.ToGlobal(decimal)), decimal) << number << ", " << exponent;
            }
        }
    }
    const double large = 123456789012345.0;
    EXPECT_EQ(Length(4).ToLocal(Length(4).ToGlobal(large)), large);
}

TEST(ComplexUnit, ValueThatIsNoShortDecimalIsNotRounded)
{
    const double third = 1.0 / 3.0;
    EXPECT_EQ(Length(0).ToLocal(third), third);
    EXPECT_DOUBLE_EQ(Length(2).ToLocal(third), 1000.0 / 3.0);
}

TEST(ComplexUnit, NotANumberAndInfinityPassUnchanged)
{
    const double marker = std::bit_cast<double>(0xFFF8000000001234ull);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(Length(2).ToLocal(marker)), 0xFFF8000000001234ull);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(Length(2).ToGlobal(marker)), 0xFFF8000000001234ull);
    EXPECT_EQ(Length(2).ToLocal(std::numeric_limits<double>::infinity()),
              std::numeric_limits<double>::infinity());
}

TEST(ComplexUnit, PowersAndProductsConvertAndWriteThemselves)
{
    const CComplexUnit load = Force(CMeasurementUnit::eKilonewton) / Length(0, 2);
    EXPECT_STREQ(load.Symbol(), L"kN/m²");
    EXPECT_EQ(load.ToGlobal(2.5), 2500.0);

    const CComplexUnit stress = Force(CMeasurementUnit::eKilonewton) / Length(1, 2);
    EXPECT_STREQ(stress.Symbol(), L"kN/cm²");
    EXPECT_EQ(stress.ToGlobal(24.0), 240e6);

    const CComplexUnit moment = Force(CMeasurementUnit::eKilonewton) * Length(0);
    EXPECT_STREQ(moment.Symbol(), L"kN·m");
    EXPECT_STREQ(Length(1, 4).Symbol(), L"cm⁴");
    EXPECT_STREQ(Length(2, 12).Symbol(), L"mm¹²");
    EXPECT_STREQ(Length(0, -1).Symbol(), L"1/m");
    EXPECT_STREQ((moment / Length(0)).Symbol(), L"kN") << "a unit can cancel out";
    EXPECT_STREQ(c_dimensionless.Symbol(), L"");
    EXPECT_EQ(c_dimensionless.ToGlobal(3.0), 3.0);

    const CComplexUnit degree(CMeasurementUnit(CMeasurementUnit::eDegree, CMeasurementUnit::eAngle));
    EXPECT_STREQ(degree.Symbol(), L"°");
    EXPECT_DOUBLE_EQ(degree.ToGlobal(180.0), std::numbers::pi);
}

TEST(ComplexUnit, ProductOfTooManyUnitsIsRefused)
{
    const CComplexUnit four = Length(0) * Length(1) * Length(2) * Length(3);
    EXPECT_THROW(four * Length(4), CInvalidArgException*);
}

TEST(ComplexUnit, EqualityLooksAtUnitsAndPowersOnly)
{
    EXPECT_TRUE(CComplexUnit() == Length(0));
    EXPECT_TRUE(Length(0) != Length(1));
    EXPECT_TRUE(Length(0) != Length(0, 2));
    EXPECT_TRUE(Force(1) * Length(0) == Length(0) * Force(1));
    EXPECT_TRUE(Length(2) / Length(2) == c_dimensionless);
}

TEST(ComplexUnit, CustomConvertorChangesTheSizeOfAUnit)
{
    struct SurveyFoot : CUnitsConvertor
    {
        SRatio Ratio(const CMeasurementUnit& unit) const override
        {
            if (unit == CMeasurementUnit(CMeasurementUnit::eFoot, CMeasurementUnit::eLength))
                return {1200.0, 3937.0};
            return CUnitsConvertor::Ratio(unit);
        }
    };
    EXPECT_EQ(Length(5).ToGlobal(3937.0, SurveyFoot()), 1200.0);
    EXPECT_EQ(Length(5).ToLocal(1200.0, SurveyFoot()), 3937.0);
    EXPECT_EQ(Length(4).ToGlobal(1.0, SurveyFoot()), 0.0254);
}
