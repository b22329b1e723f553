// Cells for numbers and texts: what they accept, what becomes of it, and in which unit it is kept.

#include <DialogControlsOW.h>

#include "Testing.h"

#include <cfloat>
#include <clocale>
#include <limits>

namespace
{
constexpr int kCol = 2;

CComplexUnit Length(CMeasurementUnit::EUnit unit)
{
    return CComplexUnit(CMeasurementUnit(unit, CMeasurementUnit::eLength));
}

double ValueOf(CLimitedDoubleCell& cell)
{
    return cell.Get(kCol);
}
double ValueOf(CLimitedIntCell& cell)
{
    return cell.Get();
}

using Texts = std::initializer_list<const wchar_t*>;

/// Pairs of what a user could enter and what the cell shows then; its value is as much as is a number.
template <class Cell>
void Takes(Cell& cell, Texts pairs)
{
    for (auto pair = pairs.begin(); pair != pairs.end(); pair += 2)
    {
        EXPECT_TRUE(cell.ValidateEdit(pair[0])) << pair[0];
        EXPECT_STREQ(cell.GetText(), pair[1]) << pair[0];
        EXPECT_EQ(ValueOf(cell), std::wcstod(pair[0], nullptr)) << pair[0];
    }
}

template <class Cell>
void Refuses(Cell& cell, Texts texts)
{
    const CString text = cell.GetText();
    const double value = ValueOf(cell);
    EXPECT_FALSE(cell.ValidateEdit(nullptr));
    for (const wchar_t* entered : texts)
        EXPECT_FALSE(cell.ValidateEdit(entered)) << entered;
    EXPECT_STREQ(cell.GetText(), text);
    EXPECT_EQ(ValueOf(cell), value);
}

/// Takes a text as a number that it is not itself.
template <class Cell>
void TakesAs(Cell& cell, double value, const wchar_t* entered)
{
    EXPECT_TRUE(cell.ValidateEdit(entered)) << entered;
    EXPECT_EQ(ValueOf(cell), value) << entered;
}
} // namespace

TEST(LimitedDouble, ReadsATextAsFarAsItIsANumber)
{
    CLimitedDoubleCell cell;
    cell.SetBrojDecimala(3);
    Takes(cell, {L"+7",    L"7.000",   L".25", L"0.250",  L"1-2", L"1.000", L"1.2.3", L"1.200",
                 L"-12.6", L"-12.600", L"-",   L"0.000",  L"..",  L"0.000", L"-0",    L"-0.000",
                 L"--5",   L"0.000",   L"-.5", L"-0.500", L"8.",  L"8.000"});
    Refuses(cell, {L"", L"a", L"1 2", L"1,5", L"1E5", L"inf", L"0x1", L"5?"});

    // Long numbers go to the run-time library, which rounds once.
    for (const wchar_t* text :
         {L"0.1", L"123456.789", L"900719925474099", L"9007199254740993", L"0.30000000000000004",
          L"90071992547409.935", L"0.00000000000000000000001234", L"1234567890123.4567"})
        TakesAs(cell, std::wcstod(text, nullptr), text);
    const CString huge(L'9', 400);
    TakesAs(cell, DBL_MAX, huge);
    cell.SetLocalMax(1e300, TRUE);
    Refuses(cell, {huge}); // it is a number all the same
}

TEST(LimitedDouble, ValuesAreGlobalThroughAChangeOfUnit)
{
    CGridCtrl grid(2, kCol + 2);
    grid.SetCellType(1, kCol, RUNTIME_CLASS(CLimitedDoubleCell));
    auto& cell = static_cast<CLimitedDoubleCell&>(*grid.GetCell(1, kCol));
    grid.SetColComplexUnit(kCol, Length(CMeasurementUnit::eMillimetre));
    cell.SetLocalMax(6000.0, TRUE);
    cell.Set(kCol, 6.0);
    Refuses(cell, {L"6001"});
    TakesAs(cell, 2.5005, L"2500.5");
    grid.SetColComplexUnit(kCol, Length(CMeasurementUnit::eCentimetre));
    EXPECT_STREQ(cell.GetText(), L"2500.50") << "the cell does not follow by itself";
    cell.Set(kCol, 2.5005);
    EXPECT_STREQ(cell.GetText(), L"250.05");
    EXPECT_EQ(cell.Get(kCol), 2.5005);
    cell.Set(kCol + 1, 1.25);
    EXPECT_STREQ(cell.GetText(), L"1.25") << "a column without a unit changes nothing";
    EXPECT_EQ(cell.Get(kCol + 1), 1.25);

    grid.SetCellType(1, kCol, RUNTIME_CLASS(CLimitedQuestionMarkDoubleCell));
    grid.SetColComplexUnit(kCol, Length(CMeasurementUnit::eMillimetre));
    auto& mark = static_cast<CLimitedQuestionMarkDoubleCell&>(*grid.GetCell(1, kCol));
    mark.Set(kCol, 0.5);
    EXPECT_STREQ(mark.GetText(), L"500.00");
    TakesAs(mark, -0.001, L"?a"); // converted like any other value
}

TEST(LimitedDouble, ShowsAllItsDigitsBehindAPointAndTakesThemAgain)
{
    CLimitedDoubleCell cell;
    const std::pair<double, int> cases[] = {{-DBL_MAX, 2}, {1e50, 0}, {1e49, 40},  {9.9e49, 2}, {0.1, 40},
                                            {0.1, 41},     {0.5, 50}, {0.1, 1200}, {2.25, 2}};
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    for (const char* locale : {"German", before.c_str()}) // the one with a comma
    {
        ASSERT_TRUE(std::setlocale(LC_NUMERIC, locale));
        for (const auto& [value, decimals] : cases)
        {
            cell.SetBrojDecimala(decimals);
            cell.Set(kCol, 1.0);
            cell.Set(kCol, value);
            CString text;
            text.Format(L"%.*lf", decimals, value);
            text.Replace(L',', L'.');
            EXPECT_EQ(cell.GetText(), text);
            TakesAs(cell, value, text);
            EXPECT_EQ(cell.GetText(), text);
        }
    }
    constexpr double infinity = std::numeric_limits<double>::infinity();
    cell.Set(kCol, infinity);
    EXPECT_STREQ(cell.GetText(), L"inf");
    cell.SetBrojDecimala(-1);
    cell.Set(kCol, 1e50);
    EXPECT_EQ(wcslen(cell.GetText()), 51u) << "fewer than no decimals are none";
}

TEST(LimitedExponent, IsTypedAndShownWithFourDecimals)
{
    CLimitedExponentDoubleCell cell;
    cell.SetBrojDecimala(0);
    for (const double value : {0.0, 0.0123456, -2.5e3, 99999.5, DBL_MAX, 5e-324})
    {
        cell.Set(kCol, value);
        EXPECT_EQ(cell.Get(kCol), value);
        EXPECT_STREQ(cell.GetText(), gfnFormatDouble(L"%.4E", value)) << value;
    }
    cell.SetLocalMin(1e-2, FALSE);
    Takes(cell, {L"2.5e3", gfnFormatDouble(L"%.4E", 2500.0), L"1E-1", gfnFormatDouble(L"%.4E", 0.1)});
    Refuses(cell, {L"", L"1d5", L"1E5 ", L"?", L"e5", L"0.01"});
    TakesAs(cell, DBL_MAX, L"1e999");
    cell.Set(kCol, -std::numeric_limits<double>::infinity());
    EXPECT_STREQ(cell.GetText(), L"-INF") << "upper case, as the sign of an exponent";
}

TEST(LimitedQuestionMark, StandsForWhatIsNotPositive)
{
    CLimitedQuestionMarkDoubleCell cell;
    cell.SetLocalMin(100.0, TRUE); // bounds are not looked at
    Takes(cell, {L"3", L"3.00", L"-5", L"?", L"0", L"?", L"0.01", L"0.01"});
    Refuses(cell, {L"", L"a?", L"1e5"});
    TakesAs(cell, -1.0, L"12?");
    EXPECT_STREQ(cell.GetText(), L"?");
}

TEST(LimitedInt, ReadsATextAsFarAsItIsANumber)
{
    CLimitedIntCell cell;
    Takes(cell, {L"2147483647", L"2147483647", L"-2147483648", L"-2147483648", L"-", L"0", L"1-2", L"1",
                 L"+007", L"7", L"12345678", L"12345678", L"-100", L"-100"});
    Refuses(cell, {L"", L"1.5", L" 1", L"1e5", L"abc"});
    TakesAs(cell, INT_MAX, L"99999999999999999999");
    TakesAs(cell, INT_MIN, L"-2147483649");
}

TEST(LimitedCellsAlone, BoundsBindTheUserOnlyAndAreCopied)
{
    for (const bool inclusive : {false, true})
    {
        CLimitedDoubleCell length, sameLength;
        CLimitedIntCell count, sameCount;
        length.SetBrojDecimala(3);
        length.SetLocalMin(-2.0, inclusive);
        length.SetLocalMax(9.0, !inclusive);
        length.Set(kCol, -77.0);
        count.SetMin(-2, inclusive);
        count.SetMax(9, !inclusive);
        count.Set(-77);
        sameLength = length;
        sameCount = count;
        EXPECT_EQ(sameLength.Get(kCol), -77.0);
        EXPECT_EQ(sameCount.Get(), -77);
        Refuses(sameLength, {L"-2.1", inclusive ? L"9" : L"-2", L"9.1"});
        Refuses(sameCount, {L"-3", inclusive ? L"9" : L"-2", L"10"});
        Takes(sameLength, {L"-1.9999", L"-2.000"});
        Takes(sameLength, inclusive ? Texts{L"-2", L"-2.000"} : Texts{L"9", L"9.000"});
        Takes(sameCount, inclusive ? Texts{L"-2", L"-2"} : Texts{L"9", L"9"});
        length.SetLocalMin(11.0, TRUE);
        Refuses(length, {L"8", L"10.5", L"11"}); // nothing lies between crossed bounds
    }
    CLimitedDoubleCell length;
    CLimitedIntCell count;
    struct CTextCell : CLimitedTextCell
    {
        using CLimitedTextCell::m_bHasMax;
    } text, copy;
    for (CGridCell* cell : std::initializer_list<CGridCell*>{&length, &count, &text})
    {
        cell->SetFont(CGridDefaultCell().GetFont());
        EXPECT_TRUE(cell->IsDefaultFont());
    }
    EXPECT_EQ(text.GetMax(), 0u) << "a new cell has a limit, and has not been told it";
    text.SetMax(3);
    EXPECT_TRUE(text.ValidateEdit(L"longer") && text.ValidateEdit(L"")) << "and does not look at it";
    copy = text;
    EXPECT_EQ(copy.GetMax(), 3u);
    copy.m_bHasMax = FALSE;
    copy.SetText(L"HEA");
    text = copy;
    EXPECT_EQ(text.GetMax(), 100u);
    EXPECT_STREQ(text.GetText(), L"HEA");
    text.SetMax(4);
    EXPECT_EQ(text.GetMax(), 4u);
}
