// Dialog data exchange and validation.

#include "HostWindow.h"

#include <type_traits>

namespace
{
constexpr int IDC_VALUE = 100;
constexpr int IDC_OTHER = 101;

/// A window with an edit IDC_VALUE that exchanges one member.
class ExchangeTest : public testing::Test
{
protected:
    HostWindow host;
    HWND edit = host.AddControl(WC_EDIT, IDC_VALUE);
    HWND other = host.AddControl(WC_EDIT, IDC_OTHER);

    CString Text() const
    {
        CString text;
        host.GetDlgItemText(IDC_VALUE, text);
        return text;
    }

    template <class Value>
    CString Load(Value value)
    {
        host.exchange = [&](CDataExchange* dx) { DDX_Text(dx, IDC_VALUE, value); };
        EXPECT_TRUE(host.UpdateData(FALSE));
        return Text();
    }

    /// Saves `text`, which is to be accepted as `expected`.
    template <class Value>
    void ExpectAccepted(LPCTSTR text, Value expected)
    {
        Value value{};
        host.exchange = [&](CDataExchange* dx) { DDX_Text(dx, IDC_VALUE, value); };
        ::SetWindowText(edit, text);
        EXPECT_TRUE(host.UpdateData(TRUE)) << CStringA(text).GetString();
        EXPECT_EQ(value, expected);
    }

    template <class Value>
    void ExpectRoundTrip(Value value, LPCTSTR text)
    {
        EXPECT_EQ(Load(value), text);
        ExpectAccepted(text, value);
    }

    /// Saves `text`, which is to be refused with one message box, the value and the text unchanged and the
    /// focus on the edit with its text selected.
    template <class Value>
    void ExpectRefused(LPCTSTR text)
    {
        SCOPED_TRACE(CStringA(text).GetString());
        Value value = 42;
        host.exchange = [&](CDataExchange* dx) { DDX_Text(dx, IDC_VALUE, value); };
        ::SetWindowText(edit, text);
        ::SetFocus(other);
        EXPECT_FALSE(host.Refusal().IsEmpty());
        EXPECT_EQ(value, Value(42));
        EXPECT_EQ(::GetFocus(), edit);
        EXPECT_EQ(Text(), text);
        EXPECT_EQ(::SendMessage(edit, EM_GETSEL, 0, 0), MAKELONG(0, ::lstrlen(text)));
    }
};
} // namespace

TEST_F(ExchangeTest, NumbersOfEveryTypeMakeTheRoundTripWithTheirDigits)
{
    ExpectRoundTrip<BYTE>(255, L"255");
    ExpectRoundTrip<short>(-32768, L"-32768");
    ExpectRoundTrip<int>(-2147483647 - 1, L"-2147483648");
    ExpectRoundTrip<UINT>(4294967295u, L"4294967295");
    ExpectRoundTrip<long>(-7, L"-7");
    ExpectRoundTrip<DWORD>(4294967295ul, L"4294967295");
    ExpectRoundTrip<LONGLONG>(-9223372036854775807ll, L"-9223372036854775807");
    ExpectRoundTrip<ULONGLONG>(18446744073709551615ull, L"18446744073709551615");
    ExpectAccepted<int>(L"  +7 ", 7);
    ExpectRoundTrip<float>(0.1f, L"0.1");
    ExpectRoundTrip<double>(0.1, L"0.1");
    ExpectRoundTrip<double>(-1234567.25, L"-1234567.25");
    ExpectRoundTrip<double>(1e100, L"1e+100");
    ExpectAccepted<double>(L" -1e-3 ", -1e-3);
}

TEST_F(ExchangeTest, WhatIsNoNumberOfTheTypeIsRefused)
{
    for (LPCTSTR text : {L"", L"12x", L"1.5", L"2147483648"})
        ExpectRefused<int>(text);
    for (LPCTSTR text : {L"256", L"-1"})
        ExpectRefused<BYTE>(text);
    ExpectRefused<short>(L"40000");
    ExpectRefused<UINT>(L"-1");
    ExpectRefused<DWORD>(L"4294967296");
    ExpectRefused<LONGLONG>(L"9223372036854775808");
    ExpectRefused<ULONGLONG>(L"-1");
    for (LPCTSTR text : {L"", L"2.5 m", L"wide"})
        ExpectRefused<double>(text);
}

TEST_F(ExchangeTest, StringsAreTakenAsTheyAreAndCutToTheBuffer)
{
    const CString blanks(L"  blanks stay ");
    EXPECT_EQ(Load(blanks), blanks);
    ExpectAccepted(blanks, blanks);
    TCHAR buffer[5] = L"none";
    host.exchange = [&](CDataExchange* dx) { DDX_Text(dx, IDC_VALUE, buffer, 5); };
    ::SetWindowText(edit, L"123456");
    EXPECT_TRUE(host.UpdateData(TRUE));
    EXPECT_STREQ(buffer, L"1234");

    CString text(L"abc");
    host.exchange = [&](CDataExchange* dx)
    {
        DDX_Text(dx, IDC_VALUE, text);
        DDV_MaxChars(dx, text, 4);
    };
    host.UpdateData(FALSE);
    EXPECT_EQ(::SendMessage(edit, EM_GETLIMITTEXT, 0, 0), 4);
    ::SetWindowText(edit, L"");
    EXPECT_TRUE(host.UpdateData(TRUE));
    EXPECT_TRUE(text.IsEmpty());
    ::SetWindowText(edit, L"abcde");
    EXPECT_FALSE(host.Refusal().IsEmpty());
}

TEST_F(ExchangeTest, AControlIsSubclassedOnceAndATextThatIsThereAlreadyIsNotSetAgain)
{
    struct CountingEdit : CEdit
    {
        int textsSet = 0;

        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            textsSet += message == WM_SETTEXT;
            return CEdit::WindowProc(message, wParam, lParam);
        }
    } object;
    int value = 5;
    host.exchange = [&](CDataExchange* dx)
    {
        DDX_Control(dx, IDC_VALUE, object);
        DDX_Text(dx, IDC_VALUE, value);
    };
    EXPECT_TRUE(host.UpdateData(FALSE));
    const auto procedure = ::GetWindowLongPtr(edit, GWLP_WNDPROC);
    EXPECT_EQ(CWnd::FromHandlePermanent(edit), &object);
    EXPECT_TRUE(host.UpdateData(FALSE));
    EXPECT_TRUE(host.UpdateData(TRUE));
    EXPECT_EQ(::GetWindowLongPtr(edit, GWLP_WNDPROC), procedure);
    EXPECT_EQ(object.m_hWnd, edit);
    EXPECT_EQ(object.textsSet, 1);

    CDataExchange exchange(&host, TRUE);
    EXPECT_THROW(exchange.PrepareCtrl(9999), CNotSupportedException*) << "a programmer's fault";
}

TEST_F(ExchangeTest, RangesIncludeTheirBoundsAndRefuseOutside)
{
    int value = 0;
    host.exchange = [&](CDataExchange* dx)
    {
        DDX_Text(dx, IDC_VALUE, value);
        DDV_MinMaxInt(dx, value, -5, 10);
    };
    for (LPCTSTR inside : {L"-5", L"10"})
    {
        ::SetWindowText(edit, inside);
        EXPECT_TRUE(host.UpdateData(TRUE));
    }
    ::SetFocus(other);
    ::SetWindowText(edit, L"11");
    const CString message = host.Refusal();
    EXPECT_GE(message.Find(L"-5"), 0);
    EXPECT_GE(message.Find(L"10"), 0);
    EXPECT_EQ(::GetFocus(), edit);
}

TEST_F(ExchangeTest, RangesOfOtherTypesAreComparedInTheirType)
{
    const std::pair<std::function<void(CDataExchange*)>, bool> cases[] = {
        {[](CDataExchange* dx) { DDV_MinMaxByte(dx, 9, 10, 20); }, true},
        {[](CDataExchange* dx) { DDV_MinMaxShort(dx, -3, -2, 2); }, true},
        {[](CDataExchange* dx) { DDV_MinMaxLong(dx, 2, -2, 2); }, false},
        {[](CDataExchange* dx) { DDV_MinMaxUInt(dx, 0xFFFFFFFFu, 0, 0x7FFFFFFFu); }, true},
        {[](CDataExchange* dx) { DDV_MinMaxDWord(dx, 0xFFFFFFFFul, 0, 0xFFFFFFFFul); }, false},
        {[](CDataExchange* dx) { DDV_MinMaxLongLong(dx, 1ll << 40, 0, 1ll << 39); }, true},
        {[](CDataExchange* dx) { DDV_MinMaxULongLong(dx, 1ull << 63, 0, ~0ull); }, false},
        {[](CDataExchange* dx) { DDV_MinMaxFloat(dx, 0.5f, 0.0f, 0.4f); }, true},
        {[](CDataExchange* dx) { DDV_MinMaxDouble(dx, 0.4, 0.0, 0.4); }, false},
    };
    for (const auto& [check, refused] : cases)
    {
        host.exchange = check;
        EXPECT_EQ(!host.Refusal().IsEmpty(), refused);
        EXPECT_TRUE(host.UpdateData(FALSE)) << "initial values pass";
    }
}

TEST_F(ExchangeTest, RadioButtonsOfAGroupAreOneNumber)
{
    host.AddControl(WC_BUTTON, 200, BS_AUTORADIOBUTTON | WS_GROUP);
    host.AddControl(WC_STATIC, 201);
    host.AddControl(WC_BUTTON, 202, BS_AUTORADIOBUTTON);
    host.AddControl(WC_BUTTON, 203, BS_AUTORADIOBUTTON | WS_GROUP);
    int choice = 1;
    host.exchange = [&](CDataExchange* dx) { DDX_Radio(dx, 200, choice); };
    host.UpdateData(FALSE);
    EXPECT_FALSE(host.IsDlgButtonChecked(200));
    EXPECT_TRUE(host.IsDlgButtonChecked(202));
    host.CheckDlgButton(203, BST_CHECKED);
    choice = -1;
    host.UpdateData(TRUE);
    EXPECT_EQ(choice, 1) << "windows between do not count, the next group does not take part";

    host.CheckDlgButton(202, BST_UNCHECKED);
    host.UpdateData(TRUE);
    EXPECT_EQ(choice, -1);
}

TEST_F(ExchangeTest, ChecksListsAndPositionsMakeTheRoundTrip)
{
    host.AddControl(WC_BUTTON, 300, BS_AUTO3STATE);
    const HWND list = host.AddControl(WC_LISTBOX, 301);
    const HWND combo = host.AddControl(WC_COMBOBOX, 302, CBS_DROPDOWN);
    for (LPCTSTR item : {L"beam 12", L"beam"})
    {
        ::SendMessage(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
        ::SendMessage(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item));
    }
    ::SetScrollRange(host.AddControl(WC_SCROLLBAR, 303, SBS_HORZ), SB_CTL, 0, 100, FALSE);
    const HWND slider = host.AddControl(TRACKBAR_CLASS, 304);

    const auto back = [&]<class Value>(void(AFXAPI * exchange)(CDataExchange*, int, Value&), int id,
                                       std::type_identity_t<Value> shown)
    {
        Value* value = &shown;
        host.exchange = [&](CDataExchange* dx) { exchange(dx, id, *value); };
        EXPECT_TRUE(host.UpdateData(FALSE));
        Value read{};
        value = &read;
        EXPECT_TRUE(host.UpdateData(TRUE));
        return read;
    };
    for (const int state : {BST_CHECKED, BST_UNCHECKED, BST_INDETERMINATE})
        EXPECT_EQ(back(DDX_Check, 300, state), state);
    EXPECT_EQ(back(DDX_Check, 300, 7), BST_UNCHECKED) << "no check state is unchecked";
    EXPECT_EQ(back(DDX_LBIndex, 301, 1), 1);
    EXPECT_EQ(back(DDX_LBString, 301, L"beam"), L"beam 12") << "the first that begins so";
    EXPECT_EQ(back(DDX_LBStringExact, 301, L"beam"), L"beam");
    EXPECT_EQ(back(DDX_LBIndex, 301, -1), -1);
    EXPECT_EQ(back(DDX_CBIndex, 302, 1), 1);
    EXPECT_EQ(back(DDX_CBString, 302, L"beam"), L"beam 12");
    EXPECT_EQ(back(DDX_CBStringExact, 302, L"beam"), L"beam");
    EXPECT_EQ(back(DDX_CBString, 302, L"not in the list"), L"not in the list");
    EXPECT_EQ(back(DDX_Scroll, 303, 33), 33);
    EXPECT_EQ(back(DDX_Slider, 304, 44), 44);
    host.exchange = [](CDataExchange* dx)
    {
        int value = 30;
        DDX_Slider(dx, 304, value);
        DDV_MinMaxSlider(dx, value, 10, 50);
    };
    host.UpdateData(FALSE);
    EXPECT_EQ(::SendMessage(slider, TBM_GETRANGEMIN, 0, 0) * 100 +
                  ::SendMessage(slider, TBM_GETRANGEMAX, 0, 0),
              1050);
}
