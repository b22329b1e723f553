// The boxes for numbers. What they hold and show is what a simple model says, whatever is done to them in
// whatever order; beside that, what only one of the two has.

#include "Boxes.h"

#include <cfloat>
#include <climits>
#include <cmath>
#include <limits>
#include <random>

namespace
{
/// What a box holds and shows, by the rules alone.
template <class Number>
class Model
{
public:
    std::wstring text = L"0";

    Number GetValue() const { return m_value; }
    Number GetMinRange() const { return m_min; }
    Number GetMaxRange() const { return m_max; }
    bool IsEmpty() const { return m_empty; }
    bool IsRangeCheckingEnabled() const { return m_min <= m_max; }
    bool IsDataCurrentlyInGUIValid() const
    {
        int n = 0;
        return swscanf(text.c_str(), L"%d", &n) == 1 && Clamped(n) == n;
    }

    void SetValue(Number n, bool force)
    {
        if (n != m_value || m_empty || force)
            Show(n, false);
    }
    void SetEmpty(bool force)
    {
        if (!m_empty || force)
            Show(m_value, true);
    }
    void SetRange(Number min, Number max, bool force)
    {
        if (min == m_min && max == m_max && !force)
            return;
        m_min = min, m_max = max;
        const bool moves = HasNumber() && Clamped(m_value) != m_value;
        if (moves || force)
            Show(m_value, m_empty);
    }
    void SetMinRange(Number min, bool force) { SetRange(min, std::numeric_limits<Number>::max(), force); }
    void SetMaxRange(Number max, bool force) { SetRange(std::numeric_limits<Number>::lowest(), max, force); }
    void DisableRangeChecking() { m_min = 0, m_max = -1; }
    void SetWindowText(const wchar_t* typed)
    {
        Show(_wtoi(typed), false);
        text = typed;
    }
    /// A box for whole numbers keeps its last one while it is empty.
    bool HasNumber() const { return !m_empty || std::is_integral_v<Number>; }

private:
    Number Clamped(Number n) const
    {
        return !IsRangeCheckingEnabled() ? n : n < m_min ? m_min : n > m_max ? m_max : n;
    }
    void Show(Number n, bool empty)
    {
        m_value = Clamped(n);
        m_empty = empty;
        text = empty ? L"" : std::to_wstring(static_cast<int>(m_value));
    }

    Number m_value = 0, m_min = 0, m_max = -1;
    bool m_empty = false;
};

template <class Number>
void ExpectAsModel(auto& box)
{
    std::mt19937 random(5);
    Model<Number> model;
    EXPECT_EQ(TextOf(box), model.text);
    for (int step = 0; step < 500 && !testing::Test::HasFailure(); ++step)
    {
        const int action = random() % 7, a = random() % 9 - 4,
                  b = random() % 9 - 4; // few: equal ones come often
        const bool force = random() % 4 == 0;
        SCOPED_TRACE(testing::Message() << step << ": " << action << ' ' << a << ' ' << b << ' ' << force);
        const auto act = [&](auto& target)
        {
            switch (action)
            {
            case 0:
                return target.SetValue(a, force);
            case 1:
                return target.SetEmpty(force);
            case 2:
                return target.SetRange(a, b, force);
            case 3:
                return target.SetMinRange(a, force);
            case 4:
                return target.SetMaxRange(a, force);
            case 5:
                return target.DisableRangeChecking();
            default:
                return target.SetWindowText(std::to_wstring(a).c_str());
            }
        };
        const auto state = [&](const auto& target, const std::wstring& text)
        {
            return std::tuple(text, model.HasNumber() ? target.GetValue() : Number(), target.IsEmpty(),
                              target.GetMinRange(), target.GetMaxRange(), target.IsRangeCheckingEnabled(),
                              target.IsDataCurrentlyInGUIValid());
        };
        box.SafeSetWindowText(L"?"); // stays where nothing is written
        model.text = L"?";
        act(box);
        act(model);
        EXPECT_EQ(state(box, TextOf(box)), state(model, model.text));
    }
}
} // namespace

TEST_F(Boxes, ForNumbersDoAsTheModelDoes)
{
    dialog.own.SetFormat(eDoubleFormatFixed, 0);
    ExpectAsModel<double>(dialog.own);
    ExpectAsModel<int>(dialog.whole);

    CEditDoubleWithRange unseen(nullptr);
    unseen.SetRange(1.0, 5.0);
    unseen.SetComplexUnit(kMillimetre);
    unseen.SetValue(7.0);
    EXPECT_EQ(unseen.GetValue(), 5.0) << "a box needs no window for that";
    EXPECT_FALSE(unseen.IsDataCurrentlyInGUIValid() || unseen.ValidateAndStoreDataFromGUI());
}

TEST_F(Boxes, ForWholeNumbersTakeDigitsWithAnOptionalMinus)
{
    constexpr int none = 4; // stands in the box before
    // clang-format off
    const std::pair<const wchar_t*, int> cases[] = {
        {L"7", 7}, {L" -12\t", -12}, {L"007", 7}, {L"-0", 0}, {L"90", 90}, {L"", none}, {L"  ", none},
        {L"-", none}, {L"+5", none}, {L"5-", none}, {L"--5", none}, {L"- 5", none}, {L"1 2", none},
        {L"1.0", none}, {L"1e3", none}, {L"0x1", none}, {L"12x", none}, {L"\u0663", none},
        {L"2147483647", INT_MAX}, {L"-2147483648", INT_MIN},
        {L"2147483648", none}, {L"-2147483649", none}, {L"99999999999999999999", none},
        {L"00000000000000000000000000000000000000005", 5}};
    // clang-format on
    CEditIntegerWithRange& box = dialog.whole;
    for (const auto& [text, value] : cases)
    {
        box.SetValue(none);
        box.SetWindowText(text);
        EXPECT_EQ(box.GetValue(), value) << text;
        EXPECT_EQ(box.IsDataCurrentlyInGUIValid(), value != none) << text;
        EXPECT_EQ(box.ValidateAndStoreDataFromGUI(), value != none) << text;
    }
    TypeInto(box, L"-21474836489");
    EXPECT_EQ(TextOf(box), L"-2147483648") << "eleven characters can be typed";
}

TEST_F(Boxes, KeepTheEmptyMarkerApartFromOtherNumbersThatAreNone)
{
    CEditDoubleWithRange& box = dialog.own;
    box.SetEmpty();
    const double marker = box.GetValue();
    box.SetComplexUnit(kMillimetre);
    box.DisableComplexUnit();
    EXPECT_TRUE(box.IsEmpty()) << "a unit does not fill it";
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const auto& [value, text] : {std::pair(std::nan(""), L"nan"), {-infinity, L"-inf"}, {marker, L""}})
    {
        box.SetValue(value);
        EXPECT_EQ(TextOf(box), text);
        EXPECT_TRUE(box.IsEmpty() == !*text && CEditDoubleWithRange::IsEmptyValue(value) == !*text);
        EXPECT_FALSE(box.ValidateAndStoreDataFromGUI());
    }
    box.SetValue(1.5);
    box.SetRange(2.0, std::nan(""));
    EXPECT_EQ(box.GetValue(), 1.5) << "a range that is none limits nothing";
}

TEST_F(Boxes, KeepTheDigitsThatTheirFormatDoesNotShow)
{
    CEditDoubleWithRange& box = dialog.own;
    box.SetValue(1234.5678);
    const auto shown = [&](EDoubleFormat format, int decimals, bool force = false)
    {
        box.SafeSetWindowText(L"typed");
        box.SetFormat(format, decimals, force);
        return TextOf(box);
    };
    EXPECT_EQ(shown(eDoubleFormatFixed, 3), L"1234.568");
    EXPECT_EQ(shown(eDoubleFormatFixed, 3), L"typed") << "nothing changes";
    EXPECT_EQ(shown(eDoubleFormatFixed, 3, true), L"1234.568");
    EXPECT_EQ(shown(eDoubleFormatGeneral, 3), L"1234.57");
    EDoubleFormat format{};
    int decimals = 0;
    box.GetFormat(format, decimals);
    EXPECT_TRUE(format == eDoubleFormatGeneral && box.GetFormat() == format);
    EXPECT_TRUE(decimals == 3 && box.GetDecimals() == 3);
    EXPECT_EQ(box.GetValue(), 1234.5678);
}

TEST_F(Boxes, ShowAGlobalValueInItsLocalUnit)
{
    CEditDoubleWithRange& box = dialog.given;
    const auto expect = [&](double value, const wchar_t* text, const wchar_t* symbol)
    {
        EXPECT_EQ(box.GetValue(), value) << symbol;
        EXPECT_EQ(TextOf(box), text) << symbol;
        EXPECT_EQ(TextOf(*dialog.GetDlgItem(kGivenUnit)), symbol) << text;
    };
    box.SetValue(0.25);
    expect(0.25, L"0.25", L"");
    box.SetComplexUnit(kMillimetre);
    expect(0.25, L"250.00", L"mm");
    box.SetRange(0.1, 0.3);
    TypeInto(box, L"270");
    EXPECT_EQ(handler.Take(), "change 1006; change 1006; change 1006; ");
    box.SetComplexUnit(kCentimetre);
    expect(0.27, L"27.00", L"cm"); // what was typed was in millimetres
    box.SafeSetWindowText(L"28");
    EXPECT_TRUE(box.IsDataCurrentlyInGUIValid());
    box.SetComplexUnit(kMillimetre);
    expect(0.28, L"280.00", L"mm"); // a text that was only shown is taken, too
    box.SetWindowText(L"500");
    expect(0.3, L"500", L"mm"); // the range is in the global unit

    box.SetValue(0.1234567);
    box.DisableComplexUnit();
    expect(0.12346, L"0.12", L""); // what the text showed
    EXPECT_FALSE(box.IsComplexUnitEnabled());
    box.SetValue(0.127);
    box.DisableComplexUnit(); // is already
    expect(0.127, L"0.13", L"");
    EXPECT_TRUE(box.GetComplexUnit() == kMillimetre) << "kept for the next time";
    box.SetComplexUnit(kMillimetre);
    expect(0.13, L"130.00", L"mm");

    box.DisableRangeChecking();
    box.SetComplexUnit(
        CComplexUnit(CMeasurementUnit(CMeasurementUnit::eMeganewton, CMeasurementUnit::eForce)));
    box.SetValue(13.0);
    box.SetWindowText(L"1e305");
    EXPECT_EQ(box.GetValue(), 13.0) << "a number whose global value is beyond a double";
}

TEST_F(Boxes, KeepASelectionOverAnUpdate)
{
    CEditDoubleWithRange& box = dialog.own;
    const std::tuple<int, int, const wchar_t*, const wchar_t*> cases[] = {
        {2, 2, L"0.00", L""}, {0, -1, L"0.00", L"5.00"}, {1, 2, L"0.00", L"5.00"}, {0, 0, L"", L"5.00"}};
    for (const auto& [from, to, before, selected] : cases)
    {
        box.SafeSetWindowText(before);
        box.SetSel(from, to);
        box.SetValue(5.0, true);
        int start = 0, end = 0;
        box.GetSel(start, end);
        EXPECT_EQ(TextOf(box).substr(start, end - start), selected) << from << ' ' << to;
    }
}
