// The box for a floating-point number: value, text, range, empty state, formats, units.

#include "NumbersDialog.h"

#include <clocale>

#include <cfloat>
#include <cmath>
#include <limits>

namespace
{
class DoubleBox : public Numbers
{
protected:
    CountedBox& box = dialog.own;
    std::wstring Text() const { return TextOf(box); }
};

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
} // namespace

TEST_F(DoubleBox, WorksWithoutAWindow)
{
    CEditDoubleWithRange unseen(nullptr);
    EXPECT_FALSE(unseen.IsEmpty());
    EXPECT_EQ(std::pair(unseen.GetMinRange(), unseen.GetMaxRange()), std::pair(0.0, -1.0)) << "no range";
    unseen.SetRange(1.0, 5.0);
    EXPECT_EQ(unseen.GetValue(), 1.0);
    unseen.SetValue(7.0);
    unseen.SetComplexUnit(kMillimetre);
    unseen.DisableComplexUnit();
    EXPECT_EQ(unseen.GetValue(), 5.0);
    EXPECT_FALSE(unseen.IsDataCurrentlyInGUIValid());
    EXPECT_FALSE(unseen.ValidateAndStoreDataFromGUI());
}

TEST_F(DoubleBox, BringsATypedNumberIntoTheRangeAtOnceAndTheTextOnLeaving)
{
    box.SetRange(1.0, 5.0);
    double seen = 0.0;
    handler.onChange = [&] { seen = box.GetValue(); };
    TypeInto(box, L"7");
    EXPECT_EQ(seen, 5.0) << "the handler finds it stored";
    EXPECT_EQ(Text(), L"7");
    EXPECT_FALSE(box.IsDataCurrentlyInGUIValid());
    EXPECT_EQ(handler.Take(), Calls{"change 1010"});
    Leave(box);
    EXPECT_EQ(Text(), L"5.00");
    EXPECT_EQ(handler.Take(), Calls{"leave 1010"});
    EXPECT_TRUE(box.IsDataCurrentlyInGUIValid());
}

TEST_F(DoubleBox, TakesTheNumberAtTheBeginningOfTheText)
{
    // clang-format off
    const struct
    {
        const wchar_t* text;
        double value;
    } parses[] = {
        {L"12", 12.0}, {L"12kN", 12.0}, {L"  -.5", -0.5}, {L"+5.", 5.0}, {L"1e3", 1000.0},
        {L"1,5", 1.0}, {L"12em", 12.0}, {L"3 4", 3.0}, {L"1e308", 1e308},
        {L"1234567890123456789012345678901234567890", 1234567890123456789012345678901234567890.0},
    };
    // clang-format on
    for (const auto& good : parses)
    {
        box.SetWindowText(good.text);
        EXPECT_TRUE(box.IsDataCurrentlyInGUIValid()) << good.text;
        EXPECT_EQ(box.GetValue(), good.value) << good.text;
    }
    box.SetValue(4.0);
    for (const wchar_t* bad :
         {L"", L" ", L"abc", L"-", L".", L"e5", L"--5", L"1e999", L"-1e999", L"nan", L"inf"})
    {
        box.SetWindowText(bad);
        EXPECT_FALSE(box.ValidateAndStoreDataFromGUI()) << bad;
        EXPECT_FALSE(box.IsDataCurrentlyInGUIValid()) << bad;
        EXPECT_EQ(box.GetValue(), 4.0) << bad;
    }
    TypeInto(box, L"abc");
    Leave(box);
    EXPECT_EQ(Text(), L"4.00");
}

// Whatever the locale of the process, which its host may have set.
TEST_F(DoubleBox, WritesAndReadsAPointInALocaleWithAComma)
{
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    ASSERT_TRUE(std::setlocale(LC_NUMERIC, "German"));
    for (const EDoubleFormat format : {eDoubleFormatFixed, eDoubleFormatGeneral})
    {
        box.SetFormat(format, 2);
        box.SetValue(0.0);
        box.SetWindowText(L"2.25");
        EXPECT_EQ(box.GetValue(), 2.25);
        box.SetWindowText(L"7,5");
        EXPECT_EQ(box.GetValue(), 7.0) << "a comma ends the number";
        box.SetValue(3.75);
        EXPECT_EQ(Text(), L"3.75");
    }
    std::setlocale(LC_NUMERIC, before.c_str());
}

TEST_F(DoubleBox, ChecksTheRangeOnlyWhileItIsNotInverted)
{
    box.SetValue(7.0);
    box.SetRange(5.0, 1.0);
    EXPECT_FALSE(box.IsRangeCheckingEnabled());
    EXPECT_EQ(box.GetValue(), 7.0);

    box.SetRange(1.0, 5.0);
    EXPECT_EQ(Text(), L"5.00");
    box.SetValue(-3.0);
    EXPECT_EQ(box.GetValue(), 1.0);

    box.SetMinRange(2.0);
    EXPECT_EQ(Text(), L"2.00");
    EXPECT_EQ(box.GetMaxRange(), DBL_MAX) << "the maximum of before is lost";
    box.SetMaxRange(1.5);
    EXPECT_EQ(box.GetMinRange(), -DBL_MAX);
    EXPECT_EQ(Text(), L"1.50");

    box.DisableRangeChecking();
    EXPECT_EQ(Text(), L"1.50");
    box.SetRange(2.0, kNaN);
    EXPECT_EQ(box.GetValue(), 1.5) << "a range that is no range limits nothing";
    EXPECT_EQ(handler.Take(), Calls{}) << "what the program does is not reported";
}

TEST_F(DoubleBox, IsEmptyOnlyByTheProgramsWord)
{
    box.SetValue(3.0);
    TypeInto(box, L"");
    owtest::Press(VK_DELETE);
    EXPECT_EQ(Text(), L"");
    EXPECT_FALSE(box.IsEmpty()) << "clearing the text does not empty the box";
    Leave(box);
    EXPECT_EQ(Text(), L"3.00");

    box.SetEmpty();
    EXPECT_EQ(Text(), L"");
    EXPECT_TRUE(CEditDoubleWithRange::IsEmptyValue(box.GetValue()));
    box.SetRange(1.0, 5.0);
    box.SetComplexUnit(kMillimetre);
    box.DisableComplexUnit();
    EXPECT_TRUE(box.IsEmpty()) << "neither range nor unit fills it";
    EXPECT_FALSE(box.IsDataCurrentlyInGUIValid());

    const double marker = box.GetValue();
    TypeInto(box, L"2");
    EXPECT_FALSE(box.IsEmpty()) << "the first number ends it";
    box.SetValue(marker);
    EXPECT_TRUE(box.IsEmpty()) << "the marker carries it over";
    box.SetValue(kNaN);
    EXPECT_FALSE(box.IsEmpty()) << "another NaN is not the marker";
    EXPECT_EQ(Text(), L"nan");
}

TEST_F(DoubleBox, WritesInThreeFormats)
{
    box.SetValue(1234.5678);
    EXPECT_EQ(Text(), L"1234.57");
    box.SetFormat(eDoubleFormatFixed, 0);
    EXPECT_EQ(Text(), L"1235");
    box.SetFormat(eDoubleFormatGeneral, 3);
    EXPECT_EQ(Text(), L"1234.57");
    box.SetFormat(eDoubleFormatExponent, 3);
    EXPECT_EQ(Text().substr(0, 7), L"1.235E+");
    EXPECT_EQ(box.GetValue(), 1234.5678) << "the value keeps its digits";

    box.SetFormat(static_cast<EDoubleFormat>(7), 2);
    EXPECT_EQ(Text(), L"") << "a format that is none writes nothing";
    EXPECT_EQ(box.GetValue(), 1234.5678);
}

TEST_F(DoubleBox, BoundsItsTextWhateverTheNumberAndTheDecimals)
{
    box.SetValue(1.5);
    for (int decimals : {-1, -100, INT_MIN})
    {
        box.SetFormat(eDoubleFormatFixed, decimals);
        EXPECT_EQ(Text(), L"2") << decimals;
        EXPECT_EQ(box.GetDecimals(), decimals);
    }
    box.SetFormat(eDoubleFormatFixed, 97);
    EXPECT_EQ(Text(), L"1.5" + std::wstring(96, L'0')) << "99 characters are the most";
    for (EDoubleFormat format : {eDoubleFormatFixed, eDoubleFormatExponent})
        for (int decimals : {98, 100, INT_MAX})
        {
            box.SetFormat(format, decimals);
            EXPECT_EQ(Text(), L"1.5") << decimals;
        }

    box.SetFormat(eDoubleFormatFixed, 2);
    for (double value : {1e308, -DBL_MAX, 0.1 + 1e120})
    {
        box.SetValue(value);
        EXPECT_LT(Text().size(), 30u) << "309 digits have no room";
        EXPECT_TRUE(box.ValidateAndStoreDataFromGUI());
        EXPECT_EQ(box.GetValue(), value) << "and none is lost";
    }
    box.SetValue(-kInfinity);
    EXPECT_EQ(Text(), L"-inf");
    EXPECT_FALSE(box.ValidateAndStoreDataFromGUI());
    EXPECT_EQ(box.GetValue(), -kInfinity);
}

TEST_F(DoubleBox, ShowsAGlobalValueInItsLocalUnit)
{
    CEditDoubleWithRange& unitBox = dialog.given;
    CWnd& label = *dialog.GetDlgItem(IDC_GIVEN_UNIT);
    unitBox.SetValue(0.25);
    EXPECT_EQ(TextOf(label), L"");
    unitBox.SetComplexUnit(kMillimetre);
    EXPECT_EQ(TextOf(unitBox), L"250.00");
    EXPECT_EQ(TextOf(label), L"mm");
    EXPECT_EQ(unitBox.GetValue(), 0.25);

    unitBox.SetRange(0.1, 0.3);
    TypeInto(unitBox, L"270");
    EXPECT_EQ(unitBox.GetValue(), 0.27);
    unitBox.SetComplexUnit(kCentimetre);
    EXPECT_EQ(TextOf(unitBox), L"27.00") << "what was typed was in millimetres";
    unitBox.SetWindowText(L"50");
    EXPECT_EQ(unitBox.GetValue(), 0.3) << "the range is in the global unit";

    unitBox.DisableComplexUnit();
    EXPECT_EQ(TextOf(unitBox), L"0.30");
    EXPECT_EQ(TextOf(label), L"");
    EXPECT_TRUE(unitBox.GetComplexUnit() == kCentimetre) << "kept for the next time";
    EXPECT_EQ(handler.Take(), Calls(4, "change 1011"))
        << "three keys and one plain text; the units are not reported";

    const CComplexUnit meganewton(CMeasurementUnit(CMeasurementUnit::eMeganewton, CMeasurementUnit::eForce));
    unitBox.DisableRangeChecking();
    unitBox.SetComplexUnit(meganewton);
    unitBox.SetWindowText(L"1e305");
    EXPECT_EQ(unitBox.GetValue(), 0.3) << "a number whose global value no double holds is refused";
}

TEST_F(DoubleBox, TakesTheTextBeforeTheUnitChanges)
{
    box.SetValue(0.127);
    box.SetComplexUnit(kMillimetre);
    EXPECT_EQ(Text(), L"130.00") << "0.13 is what the text showed";
    EXPECT_EQ(box.GetValue(), 0.13);
}

TEST_F(DoubleBox, KeepsTheSelectionOverAnUpdate)
{
    box.SetSel(2, 2);
    box.SetValue(12.0);
    EXPECT_EQ(SelectionOf(box), L"") << "a caret gains none";
    box.SetSel(0, -1);
    box.SetValue(3.0);
    EXPECT_EQ(SelectionOf(box), L"3.00");
    box.SetSel(1, 2);
    box.SetValue(4.0);
    EXPECT_EQ(SelectionOf(box), L"4.00") << "a part becomes the whole";
    box.SetEmpty();
    box.SetValue(5.0);
    EXPECT_EQ(SelectionOf(box), L"5.00") << "so does nothing, in a box that was empty";
}

TEST_F(DoubleBox, WritesAnUnchangedValueOnlyIfForced)
{
    const auto forcedToo = [&](const auto& set, const wchar_t* pszText)
    {
        set(false);
        box.SafeSetWindowText(L"typed");
        box.messages = 0;
        set(false);
        EXPECT_EQ(box.messages, 0);
        set(true);
        EXPECT_EQ(Text(), pszText);
    };
    forcedToo([&](bool bForce) { box.SetValue(2.5, bForce); }, L"2.50");
    forcedToo([&](bool bForce) { box.SetRange(1.0, 5.0, bForce); }, L"2.50");
    forcedToo([&](bool bForce) { box.SetFormat(eDoubleFormatFixed, 2, bForce); }, L"2.50");
    forcedToo([&](bool bForce) { box.SetEmpty(bForce); }, L"");
}
