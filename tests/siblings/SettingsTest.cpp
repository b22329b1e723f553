// The records of drawing settings.

#include <FormatJedinice.h>
#include <FormatTekstaKote.h>

#include <gtest/gtest.h>

TEST(FormatJedinice, WritesLengthsInItsUnitWithTheNearestSenseOfItsFields)
{
    const std::tuple<CFormatJedinice, LPCWSTR, LPCWSTR> formats[] = {
        {{}, L"125", L"mm"},
        {{CMeasurementUnit::eCentimetre, 1, 1}, L"12.5 cm", L"cm"},
        {{-1, 0, -3}, L"125", L"mm"},
        {{-1, 0, 99}, L"125.000000000000000", L"mm"}};
    for (const auto& [format, text, unit] : formats)
    {
        EXPECT_STREQ(format.Format(0.125), text);
        EXPECT_STREQ(format.Unit().Symbol(), unit);
    }
}

TEST(FormatTekstaKote, IsNotSetUntilATextIsChosen)
{
    const CFormatTekstaKote unset;
    CFormatTekstaKote format;
    EXPECT_TRUE(!format.IsSet() && format == unset);
    format.nTekstKote = 0;
    format.strPrefiks = L"L=";
    format.strSufiks = L"*";
    EXPECT_TRUE(format.IsSet() && format != unset);
    EXPECT_STREQ(format.Format(1.25), L"L=1250*");
}
