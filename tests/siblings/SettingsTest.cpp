// The records of drawing settings.

#include <FormatJedinice.h>
#include <FormatTekstaKote.h>

#include <gtest/gtest.h>

TEST(FormatJedinice, WritesLengthsInItsUnitWithTheNearestSenseOfItsFields)
{
    CFormatJedinice format;
    EXPECT_STREQ(format.Format(1.25), L"1250");
    format.nUnitIndex = CMeasurementUnit::eCentimetre;
    format.nEditValue = 1;
    format.nCheckFlag = 1;
    EXPECT_STREQ(format.Format(0.125), L"12.5 cm");

    format = {};
    format.nUnitIndex = -1;
    EXPECT_STREQ(format.Unit().Symbol(), L"mm");
    format.nEditValue = -3;
    EXPECT_STREQ(format.Format(0.001), L"1");
    format.nEditValue = 99;
    EXPECT_STREQ(format.Format(0.001), L"1.000000000000000");
}

TEST(FormatTekstaKote, IsNotSetUntilATextIsChosen)
{
    CFormatTekstaKote format;
    EXPECT_FALSE(format.IsSet());
    EXPECT_TRUE(format == CFormatTekstaKote());

    format.nTekstKote = 0;
    format.strPrefiks = L"L=";
    format.strSufiks = L"*";
    EXPECT_TRUE(format.IsSet());
    EXPECT_TRUE(format != CFormatTekstaKote());
    EXPECT_STREQ(format.Format(1.25), L"L=1250*");
}
