// The fast fixed format writes what the general one does.

#include <DialogControlsOW.h>

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <random>

namespace
{
void ExpectSame(double value, int decimals)
{
    wchar_t text[c_nDoubleTextSize];
    const CString expected = gfnFormatDouble(gfnDoublePrintfFormat(eDoubleFormatFixed, decimals), value);
    ASSERT_STREQ(gfnFormatFixed(text, decimals, value), expected) << value << ", " << decimals;
}
} // namespace

TEST(DoubleText, FixedIsTheSameAtTiesAndAtTheEndsOfADouble)
{
    // clang-format off
    for (const double value : {0.0, -0.0, 0.5, 2.5, 0.125, 0.375, -0.001, 1.005, 2.675, 9.995, 99.5, 0.0000005,
                               999999.9999995, 4503599627370495.5, 9007199254740993.0, 1e22, DBL_MAX, DBL_MIN,
                               std::nan(""), -HUGE_VAL})
        // clang-format on
        for (const int decimals : {-1, 0, 1, 2, 3, 6, 7, 40, 1000})
            ExpectSame(value, decimals);
}

TEST(DoubleText, FixedIsTheSameForRandomNumbers)
{
    std::mt19937_64 random(1);
    for (int i = 0; i < 20000; ++i)
    {
        const int decimals = static_cast<int>(random() % 7);
        const double digits = static_cast<double>(random() % 2000000000000) - 1e12;
        ExpectSame(digits / std::pow(10.0, decimals + 1), decimals); // every tenth is a tie, or nearly so
    }
}
