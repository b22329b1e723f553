// What all boxes share: reports, keys, cursor, creation; and those for numbers, against a simple model.

#include "Boxes.h"

namespace
{
/// Counts its creations.
struct OddBox : CEditN
{
    using CEditN::CEditN, CEditN::DoesNotificationHandlerExist, CEditN::GetSafeNotificationHandler;
    int made = 0;

    void HandlerOnCreate() override { ++made; }
};

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

TEST_F(Boxes, TellWhatHappensWithTheirOwnStateAndValueSetBefore)
{
    CEditN& box = dialog.plain;
    handler.look = [&] { return box.HasChangedSinceLastSetFocus() ? " changed" : ""; };
    for (const std::string before : {"", " changed"})
    {
        owtest::Click(box);
        owtest::Type(L"ab");
        owtest::Press(VK_LEFT);
        owtest::Click(dialog.whole);
        EXPECT_EQ(handler.Take(), "leave 1001" + before +
                                      "; enter 1003; change 1003 changed; change 1003 changed; "
                                      "leave 1003 changed; enter 1001 changed; ");
    }
    EXPECT_EQ(dialog.changesSeen, 0) << "the handler is told, and not the parent";

    CEditIntegerWithRange& whole = dialog.whole;
    whole.SetRange(0, 99);
    handler.look = [&]
    {
        return ": " + std::to_string(whole.GetValue()) + " '" + CStringA(TextOf(whole).c_str()).GetString() +
               "'";
    };
    const std::tuple<const wchar_t*, const char*, std::string> texts[] = {
        {L"2x", "change 1001: 2 '2'; change 1001: 2 '2x'; ", "2 '2'"},
        {L"123", "change 1001: 1 '1'; change 1001: 12 '12'; change 1001: 99 '123'; ", "99 '99'"},
        {L"-\b", "change 1001: 99 '-'; change 1001: 99 ''; ", "99 '99'"}}; // which does not empty the box
    for (const auto& [text, told, shown] : texts)
    {
        EXPECT_EQ(TypeInto(whole, text), told);
        owtest::Press(VK_TAB);
        EXPECT_TRUE(HasFocus(dialog.lines) && !whole.IsEmpty());
        EXPECT_EQ(handler.Take(), "leave 1001: " + shown + "; enter 1002: " + shown + "; ");
    }
}

TEST_F(Boxes, HandOnTabEnterAndEscapeWhenTheirOwnMessageIsDoneAndShowTheIBeamUnlessReadOnly)
{
    CEditN& box = dialog.lines;
    const std::tuple<WORD, bool, CWnd*, int> pressed[] = {
        {VK_TAB, true, &dialog.whole, 0},
        {VK_RETURN, true, &dialog.plain, 0}, // Shift is nothing to this one
        {VK_ESCAPE, false, &box, 1}};
    for (const auto& [key, shift, pTo, cancels] : pressed)
    {
        box.SetFocus();
        dialog.cancels = 0;
        owtest::Press(key, shift);
        EXPECT_TRUE(HasFocus(*pTo));
        EXPECT_TRUE(owtest::PumpUntil([&, n = cancels] { return dialog.cancels == n; }));
        box.SetFocus();
        box.SendMessage(WM_KEYDOWN, key);
        EXPECT_TRUE(::GetFocus() == box.m_hWnd && dialog.cancels == cancels) << "posted, not sent";
        owtest::Pump();
        EXPECT_EQ(dialog.cancels, 2 * cancels);
    }
    EXPECT_EQ(TextOf(box), L"") << "none of the keys leaves a character";
    EXPECT_EQ(dialog.oks, 0) << "Enter does not press the default button";
    EXPECT_TRUE(box.SendMessage(WM_GETDLGCODE) & DLGC_HASSETSEL) << "what an edit answers stays";

    const std::tuple<CEditN*, int, LPCTSTR> cases[] = {{&dialog.plain, HTLEFT, IDC_IBEAM},
                                                       {&dialog.readOnly, HTCLIENT, IDC_ARROW},
                                                       {&dialog.readOnly, HTLEFT, IDC_SIZEWE}};
    for (const auto& [pBox, nHitTest, pszCursor] : cases)
    {
        ::SetCursor(nullptr);
        const auto nWindow = reinterpret_cast<WPARAM>(pBox->m_hWnd);
        pBox->SendMessage(WM_SETCURSOR, nWindow, MAKELPARAM(nHitTest, WM_MOUSEMOVE));
        EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, pszCursor)) << nHitTest;
    }
}

TEST_F(Boxes, AreSilentOnlyOfTextsThatAreSetTheSafeWay)
{
    for (const bool bInterface : {false, true})
    {
        dialog.plain.SetAnsiInterface(bInterface);
        dialog.plain.SafeSetWindowText(L"\u0160rafura \u010d");
        EXPECT_EQ(TextOf(dialog.plain), L"\u0160rafura \u010d") << "the texts stay wide";
        EXPECT_TRUE(handler.Take().empty() && dialog.plain.GetAnsiInterface() == bInterface);
        EXPECT_EQ(dialog.plain.HasChangedSinceLastSetFocus(), bInterface) << "by the loud one before";
        dialog.plain.SetWindowText(L"loud");
        EXPECT_TRUE(handler.Take() == "change 1003; " && dialog.plain.HasChangedSinceLastSetFocus());
    }
}

TEST_F(Boxes, RunTheirCreationHandlerOnceOnEachRoad)
{
    OddBox box(nullptr);
    const auto make = [&](CWnd* pParent) { return box.Create(WS_CHILD, CRect(), pParent, kFree) != FALSE; };
    EXPECT_FALSE(make(CWnd::FromHandle(reinterpret_cast<HWND>(0x1235))));
    EXPECT_EQ(box.made, 0);
    dialog.plain.UnsubclassWindow();
    EXPECT_TRUE(box.SubclassDlgItem(kPlain, &dialog));
    EXPECT_EQ(box.made, 1) << "what failed before leaves no trace";
    box.DestroyWindow();
    ASSERT_TRUE(make(&dialog) && box.SubclassWindow(box.UnsubclassWindow()));
    EXPECT_EQ(box.made, 3);
    dialog.Take();
    box.SetWindowText(L"x");
    EXPECT_EQ(dialog.Take(), "change 1010; ") << "the parent is told where no handler was given";
    EXPECT_EQ(box.GetSafeNotificationHandler(), &dialog);
    box.DestroyWindow();
    EXPECT_FALSE(box.DoesNotificationHandlerExist());
}

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
        {L"90", 90}, {L" -12\t", -12}, {L"  ", none}, {L"-", none}, {L"+5", none}, {L"5-", none},
        {L"--5", none}, {L"1.0", none}, {L"\u0663", none}, {L"2147483647", INT_MAX}, {L"-2147483648", INT_MIN},
        {L"2147483648", none}, {L"-2147483649", none}, {L"99999999999999999999", none}};
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
    OwnControlsBox& box = dialog.own;
    box.SetEmpty();
    const double marker = box.GetValue();
    constexpr double nan = std::numeric_limits<double>::quiet_NaN(); // that of std::nan may be the marker
    for (const auto& [value, text] : {std::pair(nan, L"nan"), {-HUGE_VAL, L"-inf"}, {marker, L""}})
    {
        box.SetValue(value);
        EXPECT_EQ(TextOf(box), text);
        EXPECT_TRUE(box.IsEmpty() == !*text && CEditDoubleWithRange::IsEmptyValue(value) == !*text);
        EXPECT_FALSE(box.ValidateAndStoreDataFromGUI());
    }
    box.SetValue(0.1234567);
    EXPECT_TRUE(box.GetValue() == 0.1234567 && TextOf(box) == L"0.12");
    box.SetComplexUnit(kMillimetre); // what stands there stands there in the old unit
    EXPECT_TRUE(box.GetValue() == 0.12 && TextOf(box) == L"120.00" && TextOf(box.Label()) == L"mm");
    box.SetRange(0.0, 0.1);
    double min = 7.0, max = 7.0;
    box.GetRange(min, max);
    EXPECT_TRUE(min == 0.0 && max == 0.1);
    box.SafeSetWindowText(L"50");
    EXPECT_TRUE(box.IsDataCurrentlyInGUIValid() && box.IsComplexUnitEnabled());
    box.SetComplexUnit(kCentimetre);
    EXPECT_TRUE(box.GetValue() == 0.05 && TextOf(box) == L"5.00");
    box.SafeSetWindowText(L"4");
    box.DisableComplexUnit();
    EXPECT_TRUE(box.GetValue() == 0.04 && TextOf(box) == L"0.04" && TextOf(box.Label()).empty());
    EXPECT_TRUE(box.ValidateAndStoreDataFromGUI() && box.GetScanfFormatString() == L"%lf");
    EXPECT_TRUE(box.GetComplexUnit() == kCentimetre && !box.IsComplexUnitEnabled());
    box.DisableRangeChecking();
    box.SetComplexUnit(
        CComplexUnit(CMeasurementUnit(CMeasurementUnit::eMeganewton, CMeasurementUnit::eForce)));
    box.SetWindowText(L"1e305");
    EXPECT_EQ(box.GetValue(), 0.04) << "a number whose global value is beyond a double";
    box.DisableComplexUnit();
    dialog.given.SetComplexUnit(kCentimetre);
    EXPECT_EQ(TextOf(*dialog.GetDlgItem(kGivenUnit)), L"cm");
    box.SetValue(0.127);
    box.DisableComplexUnit(); // is already
    EXPECT_EQ(box.GetValue(), 0.127);
    box.SetFormat(eDoubleFormatGeneral, 3);
    EXPECT_EQ(TextOf(box), L"0.127");
    auto [format, decimals] = std::pair(eDoubleFormatFixed, 0);
    box.GetFormat(format, decimals);
    EXPECT_TRUE(format == box.GetFormat() && format == eDoubleFormatGeneral && decimals == 3);
    box.SafeSetWindowText(L"?");
    box.SetFormat(eDoubleFormatGeneral, 3);
    EXPECT_EQ(TextOf(box), L"?");
    box.SetFormat(eDoubleFormatGeneral, 3, true);
    EXPECT_EQ(TextOf(box), L"0.127");
    box.SetFormat(eDoubleFormatFixed, 2);
    int start = 0, end = 0;
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
