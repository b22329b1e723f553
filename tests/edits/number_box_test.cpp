// The boxes for numbers do as a simple model does; beside that, what only one of the two has.

#include "Boxes.h"

namespace
{
/// What a box holds and shows, by the rules alone.
template <class Number>
struct Model
{
    static constexpr bool kWhole = std::is_integral_v<Number>; ///< keeps its number while it is empty

    std::wstring text = L"0";
    Number value = 0, min = 0, max = -1;
    bool empty = false;

    Number Clamped(Number n) const { return min > max ? n : n < min ? min : n > max ? max : n; }
    void Show(Number n, bool isEmpty)
    {
        value = Clamped(n);
        empty = isEmpty;
        text = empty ? L"" : std::to_wstring(static_cast<int>(value));
    }
    void SetValue(Number n, bool force) { n != value || empty || force ? Show(n, false) : void(); }
    void SetEmpty(bool force) { !empty || force ? Show(value, true) : void(); }
    void SetRange(Number newMin, Number newMax, bool force)
    {
        if (newMin == min && newMax == max && !force)
            return;
        min = newMin, max = newMax;
        if (((kWhole || !empty) && Clamped(value) != value) || force)
            Show(value, empty);
    }
    void SetMinRange(Number n, bool force) { SetRange(n, std::numeric_limits<Number>::max(), force); }
    void SetMaxRange(Number n, bool force) { SetRange(std::numeric_limits<Number>::lowest(), n, force); }
    void DisableRangeChecking() { min = 0, max = -1; }
    void SetWindowText(const wchar_t* typed)
    {
        text = typed;
        value = Clamped(static_cast<Number>(std::stod(text)));
        empty = false;
    }
    auto State() const
    {
        const bool valid =
            !text.empty() && text != L"?" && Clamped(static_cast<Number>(std::stod(text))) == std::stod(text);
        return std::tuple(text, kWhole || !empty ? value : 0, empty, min, max, min <= max, valid);
    }
};

template <class Number>
void ExpectAsModel(auto& box)
{
    std::mt19937 random(5);
    Model<Number> model;
    EXPECT_EQ(TextOf(box), model.text);
    for (int step = 0; step < 1000 && !testing::Test::HasFailure(); ++step)
    {
        const int action = random() % 7, a = random() % 9 - 4, b = random() % 9 - 4; // equal ones come often
        const bool force = random() % 4 == 0;
        const std::wstring shown =
            random() % 3 ? L"?" : std::to_wstring(7 * b); // stays if nothing is written
        const auto act = [&](auto& target)
        {
            return action == 0   ? target.SetValue(a, force)
                   : action == 1 ? target.SetEmpty(force)
                   : action == 2 ? target.SetRange(a, b, force)
                   : action == 3 ? target.SetMinRange(a, force)
                   : action == 4 ? target.SetMaxRange(a, force)
                   : action == 5 ? target.DisableRangeChecking()
                                 : target.SetWindowText(std::to_wstring(a).c_str());
        };
        box.SafeSetWindowText(shown.c_str());
        model.text = shown;
        act(box);
        act(model);
        EXPECT_EQ(std::tuple(TextOf(box), model.kWhole || !model.empty ? box.GetValue() : 0, box.IsEmpty(),
                             box.GetMinRange(), box.GetMaxRange(), box.IsRangeCheckingEnabled(),
                             box.IsDataCurrentlyInGUIValid()),
                  model.State())
            << step << ": " << action << ' ' << a << ' ' << b << ' ' << force;
    }
}
} // namespace

TEST_F(Boxes, ForNumbersDoAsTheModelDoes)
{
    dialog.own.SetFormat(eDoubleFormatFixed, 0);
    ExpectAsModel<double>(dialog.own);
    ExpectAsModel<int>(dialog.whole);
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
    constexpr double nan = std::numeric_limits<double>::quiet_NaN(); // that of std::nan may be the marker
    for (const auto& [value, text] : {std::pair(nan, L"nan"), {-kInfinity, L"-inf"}, {marker, L""}})
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
    const auto unit = [](CEditDoubleWithRange& seen)
    { return TextOf(*seen.GetParent()->GetDlgItem(seen.GetComplexUnitStaticId())); };
    for (CEditDoubleWithRange* pBox : {&box, &dialog.given})
    {
        pBox->SetValue(0.1234567);
        pBox->SetComplexUnit(kMillimetre); // what stands there stands there in the old unit
        EXPECT_TRUE(pBox->GetValue() == 0.12 && TextOf(*pBox) == L"120.00" && unit(*pBox) == L"mm");
        pBox->SetRange(0.0, 0.1);
        pBox->SafeSetWindowText(L"50");
        EXPECT_TRUE(pBox->IsDataCurrentlyInGUIValid() && pBox->IsComplexUnitEnabled());
        pBox->SetComplexUnit(kCentimetre);
        EXPECT_TRUE(pBox->GetValue() == 0.05 && TextOf(*pBox) == L"5.00" && unit(*pBox) == L"cm");
        pBox->SafeSetWindowText(L"4");
        pBox->DisableComplexUnit();
        EXPECT_TRUE(pBox->GetValue() == 0.04 && TextOf(*pBox) == L"0.04" && unit(*pBox).empty());
        EXPECT_TRUE(pBox->GetComplexUnit() == kCentimetre && !pBox->IsComplexUnitEnabled());
        pBox->DisableRangeChecking();
    }
    box.SetValue(0.127);
    box.DisableComplexUnit(); // is already
    EXPECT_EQ(box.GetValue(), 0.127);
    box.SetFormat(eDoubleFormatGeneral, 3);
    EXPECT_EQ(TextOf(box), L"0.127");
    for (const bool bForce : {false, true})
    {
        box.SafeSetWindowText(L"?");
        box.SetFormat(eDoubleFormatGeneral, 3, bForce);
        EXPECT_EQ(TextOf(box), bForce ? L"0.127" : L"?");
    }
    box.SetFormat(eDoubleFormatFixed, 2);
    int start = 0, end = 0;
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
