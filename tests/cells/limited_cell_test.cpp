// Cells for numbers and texts: what they accept, what becomes of it, and in which unit it is kept.

#include "../grid/GridFixture.h"

#include <clocale>
#include <cfloat>
#include <climits>
#include <limits>

namespace
{
constexpr int kRow = 1, kCol = 2;

CComplexUnit Length(CMeasurementUnit::EUnit unit)
{
    return CComplexUnit(CMeasurementUnit(unit, CMeasurementUnit::eLength));
}
} // namespace

class LimitedCells : public GridTest
{
protected:
    template <class Cell>
    Cell& Make()
    {
        ClickCell(kRow, kCol);
        parent.Take();
        EXPECT_TRUE(grid.SetCellType(kRow, kCol, RUNTIME_CLASS(Cell)));
        return static_cast<Cell&>(*grid.GetCell(kRow, kCol));
    }
    /// Types over the cell's text; what it shows then.
    std::wstring Typed(std::wstring_view text)
    {
        owtest::Type(text);
        EXPECT_TRUE(grid.IsItemEditing(kRow, kCol));
        owtest::Press(VK_RETURN);
        EXPECT_TRUE(EditorCloses());
        return Shown();
    }
    std::wstring Shown() { return Text(kRow, kCol); }
    void ExpectRefused(std::initializer_list<const wchar_t*> texts)
    {
        CGridCellBase& cell = *grid.GetCell(kRow, kCol);
        EXPECT_FALSE(cell.ValidateEdit(nullptr));
        for (const wchar_t* text : texts)
            EXPECT_FALSE(cell.ValidateEdit(text)) << text;
    }
};

TEST_F(LimitedCells, ATypedNumberIsKeptAndWrittenInTheCellsForm)
{
    auto& cell = Make<CLimitedDoubleCell>();
    EXPECT_EQ(Typed(L"3"), L"3.00");
    EXPECT_EQ(parent.Take(), (Calls{"begin 1,2", "end 1,2"}));
    cell.SetBrojDecimala(0);
    EXPECT_EQ(Shown(), L"3.00") << "not before the next edit";
    EXPECT_EQ(Typed(L"-12.6"), L"-13");
    EXPECT_EQ(cell.Get(kCol), -12.6);

    parent.Take();
    EXPECT_EQ(Typed(L"1e5"), L"-13") << "the old text comes back";
    EXPECT_EQ(parent.Take(), Calls{"begin 1,2"}) << "without a word";
    grid.ClearCells(CCellRange(kRow, kCol, kRow, kCol));
    EXPECT_EQ(Shown(), L"-13");
    EXPECT_EQ(cell.Get(kCol), -12.6);
}

TEST_F(LimitedCells, ADoubleReadsATextAsFarAsItIsANumber)
{
    auto& cell = Make<CLimitedDoubleCell>();
    const std::pair<const wchar_t*, double> cases[] = {{L"+7", 7.0},    {L".25", 0.25}, {L"1-2", 1.0},
                                                       {L"1.2.3", 1.2}, {L"-", 0.0},    {L"..", 0.0},
                                                       {L"--5", 0.0}};
    for (const auto& [text, value] : cases)
    {
        cell.Set(kCol, 9.0);
        EXPECT_TRUE(cell.ValidateEdit(text)) << text;
        EXPECT_EQ(cell.Get(kCol), value) << text;
    }
    ExpectRefused({L"", L"a", L"1 2", L"1,5", L"1E5", L"inf", L"0x1", L"5?"});

    const CString huge(L'9', 400);
    EXPECT_TRUE(cell.ValidateEdit(huge));
    EXPECT_EQ(cell.Get(kCol), DBL_MAX);
    cell.SetLocalMax(1e300, TRUE);
    EXPECT_FALSE(cell.ValidateEdit(huge)) << "it is a number all the same";
}

TEST_F(LimitedCells, ADoubleHasAPointInALocaleWithAComma)
{
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    ASSERT_TRUE(std::setlocale(LC_NUMERIC, "German"));
    auto& cell = Make<CLimitedDoubleCell>();
    EXPECT_EQ(Typed(L"2.25"), L"2.25");
    EXPECT_EQ(cell.Get(kCol), 2.25);
    for (const auto& [value, decimals] : {std::pair{1e60, 2}, std::pair{0.5, 50}})
    {
        cell.SetBrojDecimala(decimals);
        cell.Set(kCol, value);
        const CString text = cell.GetText();
        EXPECT_EQ(text.Find(L'.'), text.GetLength() - 1 - decimals) << "long texts, too";
        EXPECT_TRUE(cell.ValidateEdit(text));
        EXPECT_EQ(cell.Get(kCol), value);
    }
    std::setlocale(LC_NUMERIC, before.c_str());
}

TEST_F(LimitedCells, BoundsOfADoubleBindTheUserOnly)
{
    auto& cell = Make<CLimitedDoubleCell>();
    cell.Set(kCol, 5.0);
    cell.SetLocalMin(0.0, FALSE);
    cell.SetLocalMax(10.0, FALSE);
    EXPECT_EQ(Typed(L"0"), L"5.00");
    EXPECT_EQ(Typed(L"10"), L"5.00");
    EXPECT_EQ(Typed(L"9.99"), L"9.99");
    EXPECT_EQ(Typed(L"0.0001"), L"0.00");
    cell.SetLocalMin(0.0, TRUE);
    cell.SetLocalMax(10.0, TRUE);
    EXPECT_EQ(Typed(L"10"), L"10.00");
    EXPECT_EQ(Typed(L"10.01"), L"10.00");
    EXPECT_EQ(Typed(L"0"), L"0.00");
    EXPECT_EQ(cell.Get(kCol), 0.0);
    EXPECT_EQ(Typed(L"-0.01"), L"0.00");
    EXPECT_EQ(cell.Get(kCol), 0.0);
    cell.Set(kCol, -77.0);
    EXPECT_EQ(Shown(), L"-77.00");

    cell.SetLocalMin(11.0, TRUE);
    ExpectRefused({L"10", L"10.5", L"11"}); // nothing lies between crossed bounds
}

TEST_F(LimitedCells, ValuesAreGlobalThroughAChangeOfUnit)
{
    auto& cell = Make<CLimitedDoubleCell>();
    grid.SetColComplexUnit(kCol, Length(CMeasurementUnit::eMillimetre));
    cell.SetLocalMax(6000.0, TRUE);
    cell.Set(kCol, 6.0);
    EXPECT_EQ(Shown(), L"6000.00");
    EXPECT_EQ(Typed(L"6001"), L"6000.00") << "the bound is in the column's unit";
    EXPECT_EQ(Typed(L"2500.5"), L"2500.50");
    EXPECT_EQ(cell.Get(kCol), 2.5005);

    const double length = cell.Get(kCol);
    grid.SetColComplexUnit(kCol, Length(CMeasurementUnit::eCentimetre));
    EXPECT_EQ(Shown(), L"2500.50") << "the cell does not follow by itself";
    cell.Set(kCol, length);
    EXPECT_EQ(Shown(), L"250.05");
    EXPECT_EQ(cell.Get(kCol), length);

    cell.Set(kCol + 1, 1.25);
    EXPECT_EQ(Shown(), L"1.25") << "a column without a unit changes nothing";
    EXPECT_EQ(cell.Get(kCol + 1), 1.25);
    CLimitedDoubleCell alone;
    alone.Set(kCol, 1.25);
    EXPECT_EQ(alone.Get(kCol), 1.25) << "nor does a cell without a grid";
}

TEST_F(LimitedCells, AnExponentIsTypedAndShown)
{
    auto& cell = Make<CLimitedExponentDoubleCell>();
    grid.SetColComplexUnit(kCol, Length(CMeasurementUnit::eMillimetre));
    cell.SetBrojDecimala(0);
    cell.Set(kCol, 0.0123456);
    EXPECT_EQ(Shown().substr(0, 8), L"1.2346E+") << "four decimals, whatever was set";
    EXPECT_EQ(Typed(L"2.5e3").substr(0, 8), L"2.5000E+");
    EXPECT_EQ(cell.Get(kCol), 2.5);
    EXPECT_EQ(Typed(L"1E-2").substr(0, 8), L"1.0000E-");
    EXPECT_TRUE(cell.ValidateEdit(L"e5"));
    EXPECT_EQ(cell.Get(kCol), 0.0);
    cell.SetLocalMin(1e-2, FALSE);
    ExpectRefused({L"", L"1d5", L"1E5 ", L"?", L"0.01"});
    EXPECT_TRUE(cell.ValidateEdit(L"1e999"));
    EXPECT_STREQ(cell.GetText(), gfnFormatDouble(L"%.4E", DBL_MAX));
}

TEST_F(LimitedCells, AQuestionMarkStandsForWhatIsNotPositive)
{
    auto& cell = Make<CLimitedQuestionMarkDoubleCell>();
    cell.SetLocalMin(100.0, TRUE);
    EXPECT_EQ(Typed(L"3"), L"3.00") << "bounds are not looked at";
    EXPECT_EQ(Typed(L"12?"), L"?");
    EXPECT_EQ(cell.Get(kCol), -1.0);
    EXPECT_EQ(Typed(L"-5"), L"?");
    EXPECT_EQ(cell.Get(kCol), -5.0);
    EXPECT_TRUE(cell.ValidateEdit(L"0"));
    EXPECT_STREQ(cell.GetText(), L"?");
    ExpectRefused({L"", L"a?", L"1e5"});

    grid.SetColComplexUnit(kCol, Length(CMeasurementUnit::eMillimetre));
    cell.Set(kCol, 0.5);
    EXPECT_EQ(Shown(), L"500.00");
    EXPECT_TRUE(cell.ValidateEdit(L"?a"));
    EXPECT_EQ(cell.Get(kCol), -0.001) << "converted like any other value";
}

TEST_F(LimitedCells, AWholeNumberHasItsBounds)
{
    auto& cell = Make<CLimitedIntCell>();
    const std::pair<const wchar_t*, int> cases[] = {
        {L"99999999999999999999", INT_MAX}, {L"-2147483649", INT_MIN}, {L"-", 0}, {L"1-2", 1}};
    for (const auto& [text, value] : cases)
    {
        EXPECT_TRUE(cell.ValidateEdit(text)) << text;
        EXPECT_EQ(cell.Get(), value) << text;
    }
    ExpectRefused({L"", L" 1", L"1e5", L"abc"});
    EXPECT_EQ(Typed(L"+007"), L"7");
    EXPECT_EQ(Typed(L"1.5"), L"7");

    for (const int inclusive : {0, 1})
    {
        cell.SetMin(2, inclusive);
        cell.SetMax(6, inclusive);
        cell.Set(-100);
        EXPECT_EQ(Typed(inclusive ? L"1" : L"2"), L"-100") << "bounds bind the user only";
        EXPECT_EQ(Typed(inclusive ? L"7" : L"6"), L"-100");
        EXPECT_EQ(Typed(inclusive ? L"2" : L"3"), inclusive ? L"2" : L"3");
        EXPECT_EQ(Typed(inclusive ? L"6" : L"5"), inclusive ? L"6" : L"5");
        EXPECT_EQ(cell.Get(), inclusive ? 6 : 5);
    }
}

TEST_F(LimitedCells, ATextTakesWhateverIsTyped)
{
    auto& cell = Make<CLimitedTextCell>();
    EXPECT_EQ(cell.GetMax(), 0u) << "a new cell has a limit, and has not been told it";
    cell.SetMax(3);
    EXPECT_EQ(cell.GetMax(), 3u);
    EXPECT_EQ(Typed(L"longer"), L"longer");
    grid.ClearCells(CCellRange(kRow, kCol, kRow, kCol));
    EXPECT_EQ(Shown(), L"");
}

TEST_F(LimitedCells, ACopyHasValueAndBoundsAndNoCellHasAFont)
{
    auto& length = Make<CLimitedDoubleCell>();
    length.SetBrojDecimala(1);
    length.SetLocalMin(1.0, TRUE);
    length.Set(kCol, 4.0);
    CLimitedDoubleCell other;
    other = length;
    EXPECT_EQ(other.Get(kCol), 4.0);
    EXPECT_FALSE(other.ValidateEdit(L"0.9"));
    EXPECT_TRUE(other.ValidateEdit(L"6"));
    EXPECT_STREQ(other.GetText(), L"6.0");

    CLimitedIntCell count, sameCount;
    count.SetMax(9, FALSE);
    count.Set(3);
    sameCount = count;
    EXPECT_EQ(sameCount.Get(), 3);
    EXPECT_FALSE(sameCount.ValidateEdit(L"9"));
    CLimitedTextCell mark, sameMark;
    mark.SetMax(8);
    sameMark = mark;
    EXPECT_EQ(sameMark.GetMax(), 8u);

    const LOGFONT lf = *grid.GetItemFont(kRow, kCol);
    for (CGridCell* cell :
         {static_cast<CGridCell*>(&other), static_cast<CGridCell*>(&count), static_cast<CGridCell*>(&mark)})
    {
        cell->SetFont(&lf);
        EXPECT_TRUE(cell->IsDefaultFont());
    }
}

namespace
{
/// Reads what the cells keep, as a kind of cell of one's own may.
struct OpenDouble : public CLimitedDoubleCell
{
    bool Holds(double min, double max, int decimals) const
    {
        return m_bHasMin && m_dLocalMin == min && !m_bMinInclusive && m_bHasMax && m_dLocalMax == max &&
               m_bMaxInclusive && m_nBrojDecimala == decimals;
    }
};
struct OpenInt : public CLimitedIntCell
{
    bool Holds(int min, int max) const
    {
        return m_bHasMin && m_nMin == min && m_bMinInclusive && m_bHasMax && m_nMax == max &&
               !m_bMaxInclusive;
    }
};
} // namespace

TEST(LimitedCellsAlone, ADoubleShowsAllItsDigitsAndTakesThemAgain)
{
    OpenDouble cell;
    const std::pair<double, int> cases[] = {{-DBL_MAX, 2}, {1e50, 0}, {1e49, 40}, {0.1, 60}, {0.1, 1200}};
    for (const auto& [value, decimals] : cases)
    {
        cell.SetBrojDecimala(decimals);
        cell.Set(kCol, value);
        CString text;
        text.Format(L"%.*lf", decimals, value);
        EXPECT_EQ(cell.GetText(), text);
        cell.Set(kCol, 0.0);
        EXPECT_TRUE(cell.ValidateEdit(text));
        EXPECT_EQ(cell.Get(kCol), value);
        EXPECT_EQ(cell.GetText(), text);
    }
    constexpr double infinity = std::numeric_limits<double>::infinity();
    cell.Set(kCol, infinity);
    EXPECT_STREQ(cell.GetText(), L"inf");
    cell.SetBrojDecimala(-1);
    cell.Set(kCol, 1e50);
    EXPECT_EQ(wcslen(cell.GetText()), 51u) << "fewer than no decimals are none";
    CLimitedExponentDoubleCell exponent;
    exponent.Set(kCol, -infinity);
    EXPECT_STREQ(exponent.GetText(), L"-INF") << "upper case, as the sign of an exponent";

    cell.SetBrojDecimala(7);
    cell.SetLocalMin(-2.0, FALSE);
    cell.SetLocalMax(9.0, TRUE);
    EXPECT_TRUE(cell.Holds(-2.0, 9.0, 7));
    OpenDouble copy;
    copy = cell;
    EXPECT_TRUE(copy.Holds(-2.0, 9.0, 7));
    OpenInt count;
    count.SetMin(-2, TRUE);
    count.SetMax(9, FALSE);
    EXPECT_TRUE(count.Holds(-2, 9));
    OpenInt sameCount;
    sameCount = count;
    EXPECT_TRUE(sameCount.Holds(-2, 9));
}
