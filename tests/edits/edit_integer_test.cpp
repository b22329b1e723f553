// The box for a whole number.

#include "NumbersDialog.h"

#include <climits>

namespace
{
class IntegerBox : public Numbers
{
protected:
    CEditIntegerWithRange& box = dialog.count;
    std::wstring Text() const { return TextOf(box); }
};
} // namespace

TEST_F(IntegerBox, TakesDigitsWithAnOptionalMinusAndNothingElse)
{
    // clang-format off
    const std::pair<const wchar_t*, int> parses[] = {
        {L"7", 7}, {L" -12\t", -12}, {L"007", 7}, {L"-0", 0},
        {L"2147483647", INT_MAX}, {L"-2147483648", INT_MIN},
        {L"00000000000000000000000000000000000000005", 5},
    };
    // clang-format on
    for (const auto& [text, value] : parses)
    {
        box.SetWindowText(text);
        EXPECT_TRUE(box.IsDataCurrentlyInGUIValid()) << text;
        EXPECT_EQ(box.GetValue(), value) << text;
    }
    box.SetValue(4);
    for (const wchar_t* bad : {L"", L"  ", L"-", L"+5", L"5-", L"--5", L"- 5", L"1 2", L"1.0", L"1e3", L"0x1",
                               L"12x", L"\u0663", L"2147483648", L"-2147483649", L"99999999999999999999",
                               L"1234567890123456789012345678901234567890"})
    {
        box.SetWindowText(bad);
        EXPECT_FALSE(box.ValidateAndStoreDataFromGUI()) << bad;
        EXPECT_FALSE(box.IsDataCurrentlyInGUIValid()) << bad;
        EXPECT_EQ(box.GetValue(), 4) << bad;
    }
}

TEST_F(IntegerBox, GivesTheValueBackForATextThatIsNone)
{
    TypeInto(box, L"12x");
    EXPECT_EQ(handler.Take(), Calls(3, "change 1014")) << "each keystroke is told";
    EXPECT_EQ(box.GetValue(), 12) << "the last text that was a number";
    Leave(box);
    EXPECT_EQ(Text(), L"12");

    TypeInto(box, L"-");
    owtest::Press(VK_BACK);
    Leave(box);
    EXPECT_EQ(Text(), L"12");
    EXPECT_FALSE(box.IsEmpty()) << "clearing the text does not empty the box";
}

TEST_F(IntegerBox, LetsElevenCharactersBeTyped)
{
    TypeInto(box, L"-21474836489");
    EXPECT_EQ(Text(), L"-2147483648");
    EXPECT_EQ(box.GetValue(), INT_MIN);
    TypeInto(box, L"2147483648");
    EXPECT_EQ(box.GetValue(), 214748364) << "the last digit is one too many";
    EXPECT_EQ(box.GetLimitText(), 11u);
}

TEST_F(IntegerBox, BringsNumbersIntoTheRange)
{
    box.SetRange(1, 5);
    TypeInto(box, L"9");
    EXPECT_EQ(box.GetValue(), 5);
    EXPECT_EQ(Text(), L"9") << "the text stays until the user leaves";
    EXPECT_FALSE(box.IsDataCurrentlyInGUIValid());
    Leave(box);
    EXPECT_EQ(Text(), L"5");

    box.SetMinRange(7);
    EXPECT_EQ(box.GetMaxRange(), INT_MAX) << "the maximum of before is lost";
    EXPECT_EQ(Text(), L"7");
    box.SetMaxRange(-2);
    EXPECT_EQ(box.GetMinRange(), INT_MIN);
    EXPECT_EQ(Text(), L"-2");
    box.SetRange(5, 1);
    EXPECT_FALSE(box.IsRangeCheckingEnabled());
    box.SetValue(100);
    EXPECT_EQ(Text(), L"100");
}

TEST_F(IntegerBox, IsEmptyUntilANumberComes)
{
    box.SetValue(8);
    box.SetEmpty();
    EXPECT_EQ(Text(), L"");
    EXPECT_EQ(box.GetValue(), 8) << "the last number stays";
    box.SetRange(0, 6);
    EXPECT_EQ(box.GetValue(), 6);
    EXPECT_TRUE(box.IsEmpty()) << "a range does not fill it";

    box.SetValue(6);
    EXPECT_FALSE(box.IsEmpty()) << "the same number as before ends it";
    EXPECT_EQ(Text(), L"6");
    box.SetEmpty();
    TypeInto(box, L"5");
    EXPECT_FALSE(box.IsEmpty());
}

TEST_F(IntegerBox, WritesAnUnchangedValueOnlyIfForced)
{
    box.SetRange(0, 9);
    box.SafeSetWindowText(L"typed");
    box.SetValue(0);
    box.SetRange(0, 9);
    EXPECT_EQ(Text(), L"typed");
    box.SetValue(0, true);
    EXPECT_EQ(Text(), L"0");
    EXPECT_EQ(handler.Take(), Calls{}) << "what the program does is not reported";
}
