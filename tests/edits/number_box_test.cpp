// The boxes for numbers. What they hold and show is what a simple model says, whatever is done to them in
// whatever order; beside that, what only one of the two has.

#include "Boxes.h"

#include <algorithm>
#include <climits>
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
    bool IsDataCurrentlyInGUIValid() const { return Typed() && Clamped(*Typed()) == *Typed(); }
    EDoubleFormat GetFormat() const { return m_format; }
    int GetDecimals() const { return m_decimals; }
    bool IsComplexUnitEnabled() const { return m_unit.has_value(); }
    std::wstring Symbol() const { return m_unit ? m_unit->Symbol().GetString() : L""; }

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
        if ((HasNumber() && Clamped(m_value) != m_value) || force)
            Show(m_value, m_empty);
    }
    void SetMinRange(Number min, bool force) { SetRange(min, std::numeric_limits<Number>::max(), force); }
    void SetMaxRange(Number max, bool force) { SetRange(std::numeric_limits<Number>::lowest(), max, force); }
    void DisableRangeChecking() { m_min = 0, m_max = -1; }
    void SetWindowText(const wchar_t* typed)
    {
        text = typed;
        Take();
    }
    void SetFormat(EDoubleFormat format, int decimals, bool force)
    {
        if (format == m_format && decimals == m_decimals && !force)
            return;
        m_format = format, m_decimals = decimals;
        Show(m_value, m_empty);
    }
    void SetComplexUnit(const CComplexUnit& unit) { ChangeUnit(unit); }
    void DisableComplexUnit() { m_unit ? ChangeUnit(std::nullopt) : void(); }
    /// A box for whole numbers keeps its last one while it is empty.
    bool HasNumber() const { return !m_empty || std::is_integral_v<Number>; }

private:
    Number Clamped(Number n) const
    {
        return !IsRangeCheckingEnabled() ? n : n < m_min ? m_min : n > m_max ? m_max : n;
    }
    std::optional<Number> Typed() const
    {
        wchar_t* end = nullptr;
        const double n = std::wcstod(text.c_str(), &end);
        if (end == text.c_str())
            return std::nullopt;
        return static_cast<Number>(m_unit ? m_unit->ToGlobal(n) : n);
    }
    void Take()
    {
        if (const std::optional<Number> typed = Typed())
            m_value = Clamped(*typed), m_empty = false;
    }
    /// What is typed stands there in the old unit.
    void ChangeUnit(const std::optional<CComplexUnit>& unit)
    {
        Take();
        m_unit = unit;
        Show(m_value, m_empty);
    }
    void Show(Number n, bool empty)
    {
        m_value = Clamped(n);
        m_empty = empty;
        const double shown = m_unit ? m_unit->ToLocal(m_value) : m_value;
        CString written;
        if (m_format == eDoubleFormatGeneral)
            written.Format(L"%G", shown);
        else
            written.Format(L"%.*f", m_decimals, shown);
        text = empty ? L"" : written.GetString();
    }

    Number m_value = 0, m_min = 0, m_max = -1;
    bool m_empty = false;
    EDoubleFormat m_format = eDoubleFormatFixed;
    int m_decimals = 0;
    std::optional<CComplexUnit> m_unit;
};

template <class Number>
void ExpectAsModel(auto& box)
{
    constexpr bool bWhole = std::is_integral_v<Number>;
    std::mt19937 random(5);
    Model<Number> model;
    EXPECT_EQ(TextOf(box), model.text);
    for (int step = 0; step < 1000 && !testing::Test::HasFailure(); ++step)
    {
        const int action = random() % (bWhole ? 7 : 10); // of few numbers: equal ones come often
        const int a = random() % 9 - 4, b = random() % 9 - 4;
        const bool force = random() % 4 == 0;
        const std::wstring shown =
            random() % 3 ? L"?" : std::to_wstring(7 * b); // "?" stays if nothing is written
        SCOPED_TRACE(testing::Message() << step << ": " << action << ' ' << a << ' ' << b << ' ' << force);
        const auto act = [&](auto& target)
        {
            if constexpr (!bWhole)
                if (action >= 7)
                    return action == 7 ? target.SetFormat(b > 2 ? eDoubleFormatGeneral : eDoubleFormatFixed,
                                                          std::max(a, 0), force)
                           : action == 8 ? target.SetComplexUnit(a > 0 ? kMillimetre : kCentimetre)
                                         : target.DisableComplexUnit();
            return action == 0   ? target.SetValue(a, force)
                   : action == 1 ? target.SetEmpty(force)
                   : action == 2 ? target.SetRange(a, b, force)
                   : action == 3 ? target.SetMinRange(a, force)
                   : action == 4 ? target.SetMaxRange(a, force)
                   : action == 5 ? target.DisableRangeChecking()
                                 : target.SetWindowText(std::to_wstring(a).c_str());
        };
        const auto state = [&](const auto& target, const std::wstring& text)
        {
            return std::tuple(text, model.HasNumber() ? target.GetValue() : Number(), target.IsEmpty(),
                              target.GetMinRange(), target.GetMaxRange(), target.IsRangeCheckingEnabled(),
                              target.IsDataCurrentlyInGUIValid());
        };
        box.SafeSetWindowText(shown.c_str());
        model.text = shown;
        act(box);
        act(model);
        EXPECT_EQ(state(box, TextOf(box)), state(model, model.text));
        if constexpr (!bWhole)
        {
            const auto look = [](const auto& target)
            { return std::tuple(target.GetFormat(), target.GetDecimals(), target.IsComplexUnitEnabled()); };
            EXPECT_EQ(look(box), look(model));
            EXPECT_EQ(TextOf(*box.GetParent()->GetDlgItem(box.GetComplexUnitStaticId())), model.Symbol());
        }
    }
}
} // namespace

TEST_F(Boxes, ForNumbersDoAsTheModelDoes)
{
    for (CEditDoubleWithRange* pBox : {static_cast<CEditDoubleWithRange*>(&dialog.own), &dialog.given})
    {
        pBox->SetFormat(eDoubleFormatFixed, 0);
        ExpectAsModel<double>(*pBox);
    }
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

TEST_F(Boxes, KeepEmptinessTheDigitsThatDoNotShowAndASelection)
{
    CEditDoubleWithRange& box = dialog.own;
    box.SetEmpty();
    const double marker = box.GetValue();
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double nan = std::numeric_limits<double>::quiet_NaN(); // that of std::nan may be the marker
    for (const auto& [value, text] : {std::pair(nan, L"nan"), {-infinity, L"-inf"}, {marker, L""}})
    {
        box.SetValue(value);
        EXPECT_EQ(TextOf(box), text);
        EXPECT_TRUE(box.IsEmpty() == !*text && CEditDoubleWithRange::IsEmptyValue(value) == !*text);
        EXPECT_FALSE(box.ValidateAndStoreDataFromGUI());
    }
    box.SetValue(1.5);
    box.SetRange(2.0, nan);
    EXPECT_EQ(box.GetValue(), 1.5) << "a range that is none limits nothing";

    box.SetValue(0.1234567);
    EXPECT_TRUE(box.GetValue() == 0.1234567 && TextOf(box) == L"0.12");
    box.SetComplexUnit(kMillimetre);
    EXPECT_TRUE(box.GetValue() == 0.12 && TextOf(box) == L"120.00");
    box.DisableComplexUnit();
    EXPECT_TRUE(box.GetComplexUnit() == kMillimetre) << "kept for the next time";
    box.SetValue(0.127);
    box.DisableComplexUnit(); // is already
    EXPECT_EQ(box.GetValue(), 0.127);
    EDoubleFormat format{};
    int decimals = 0, start = 0, end = 0;
    box.GetFormat(format, decimals);
    EXPECT_TRUE(format == eDoubleFormatFixed && decimals == 2);
    box.SetComplexUnit(
        CComplexUnit(CMeasurementUnit(CMeasurementUnit::eMeganewton, CMeasurementUnit::eForce)));
    box.SetValue(13.0);
    box.SetWindowText(L"1e305");
    EXPECT_EQ(box.GetValue(), 13.0) << "a number whose global value is beyond a double";
    box.DisableComplexUnit();

    const std::tuple<int, int, const wchar_t*, const wchar_t*> cases[] = {
        {2, 2, L"0.00", L""}, {0, -1, L"0.00", L"5.00"}, {1, 2, L"0.00", L"5.00"}, {0, 0, L"", L"5.00"}};
    for (const auto& [from, to, before, selected] : cases)
    {
        box.SafeSetWindowText(before);
        box.SetSel(from, to);
        box.SetValue(5.0, true);
        box.GetSel(start, end);
        EXPECT_EQ(TextOf(box).substr(start, end - start), selected) << from << ' ' << to;
    }
}
