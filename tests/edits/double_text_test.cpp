// Numbers as text, and back.

#include <DialogControlsOW.h>

#include "Testing.h"

#include <cfloat>
#include <clocale>

namespace
{
constexpr double kNothing = 77.0; ///< stays where nothing is read

double Read(const std::wstring& text)
{
    double value = kNothing;
    const bool read = gfnParseDouble(text.c_str(), value);
    EXPECT_EQ(read, value != kNothing) << text.c_str();
    return value;
}

std::wstring Written(EDoubleFormat format, int decimals, double value)
{
    return gfnFormatDouble(gfnDoublePrintfFormat(format, decimals), value).GetString();
}

void ExpectSameFast(int decimals, double value)
{
    wchar_t text[kDoubleTextSize];
    EXPECT_EQ(gfnFormatFixed(text, decimals, value), Written(eDoubleFormatFixed, decimals, value));
    EXPECT_EQ(gfnFormatExponent(text, decimals, value), Written(eDoubleFormatExponent, decimals, value));
}
} // namespace

TEST(DoubleText, IsBoundedWhateverTheNumberAndTheDecimals)
{
    constexpr EDoubleFormat general = eDoubleFormatGeneral, fixed = eDoubleFormatFixed;
    constexpr EDoubleFormat exponent = eDoubleFormatExponent, none = static_cast<EDoubleFormat>(7);
    // clang-format off
    const std::tuple<EDoubleFormat, int, double, std::wstring> cases[] = {
        {fixed, 2, 1234.5678, L"1234.57"}, {general, 9, 1234.5678, L"1234.57"}, {none, 2, 1.5, L""},
        {fixed, -1, 1.5, L"2"}, {fixed, INT_MIN, 1.5, L"2"}, {fixed, 97, 1.5, L"1.5" + std::wstring(96, L'0')},
        {fixed, 98, 1.5, L"1.5"}, {fixed, INT_MAX, 1.5, L"1.5"}, {exponent, INT_MAX, 1.5, L"1.5"},
        {fixed, 2, HUGE_VAL, L"inf"}, {exponent, 2, -HUGE_VAL, L"-inf"}, {general, 2, std::nan(""), L"nan"}};
    // clang-format on
    for (const auto& [format, decimals, value, text] : cases)
        EXPECT_EQ(Written(format, decimals, value), text) << format << ' ' << decimals;
    EXPECT_EQ(Written(exponent, 3, 1250.0).substr(0, 7), L"1.250E+");
    for (const double value : {1e308, -DBL_MAX, 0.1 + 1e120})
    {
        EXPECT_LT(Written(fixed, 2, value).size(), 30u) << "309 digits have no room";
        EXPECT_EQ(Read(Written(fixed, 2, value)), value) << "and none is lost";
    }
    EXPECT_EQ(gfnFormatAllDigits(3, -DBL_MAX).GetLength(), 1 + 309 + 4);
    EXPECT_EQ(gfnFormatAllDigits(-1, 2.0), L"2");
    EXPECT_EQ(gfnFormatAllDigits(INT_MAX, 2.0).GetLength(), 2 + 65535);
    EXPECT_EQ(gfnFormatAllDigits(3, std::nan("")), L"nan");
}

TEST(DoubleText, IsReadFromItsBeginningAndHasAPointInALocaleWithAComma)
{
    const std::pair<const wchar_t*, double> cases[] = {
        {L"12em", 12.0}, {L"  -.5", -0.5},     {L"1e3", 1000.0},   {L"1,5", 1.0},     {L"abc", kNothing},
        {L"", kNothing}, {L"1e999", kNothing}, {L"nan", kNothing}, {L"inf", kNothing}};
    for (const auto& [text, value] : cases)
        EXPECT_EQ(Read(text), value) << text;

    // The same whatever the locale of the process, which its host may have set.
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    ASSERT_TRUE(std::setlocale(LC_NUMERIC, "German"));
    EXPECT_EQ(Written(eDoubleFormatFixed, 2, 3.75) + Written(eDoubleFormatGeneral, 2, 3.75), L"3.753.75");
    ExpectSameFast(2, 3.75);
    EXPECT_EQ(gfnFormatAllDigits(2, 3.75), L"3.75");
    EXPECT_TRUE(Read(L"2.25") == 2.25 && Read(L"7,5") == 7.0) << "a comma ends the number";
    std::setlocale(LC_NUMERIC, before.c_str());
}

TEST(DoubleText, IsTheSameWhereItIsWrittenFast)
{
    // clang-format off
    const double special[] = {0.0, -0.0, 0.5, 2.5, 0.125, 0.375, -0.001, 1.005, 2.675, 9.995, 99.5, 0.0000005, 1e22,
                              999999.9999995, 4503599627370495.5, 9007199254740993.0, DBL_MAX, DBL_MIN, -HUGE_VAL};
    // clang-format on
    for (const double value : special)
        for (const int decimals : {-1, 0, 1, 2, 3, 6, 7, 40, 1000})
            ExpectSameFast(decimals, value);
    std::mt19937_64 random(1);
    for (int i = 0; i < 20000 && !testing::Test::HasFailure(); ++i)
    {
        const int decimals = static_cast<int>(random() % 7);
        const double digits = static_cast<double>(random() % 2000000000000) - 1e12;
        ExpectSameFast(decimals, digits / std::pow(10.0, decimals + 1)); // every tenth is a tie, or nearly so
    }
}
