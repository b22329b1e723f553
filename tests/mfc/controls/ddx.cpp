// Dialog data exchange and validation.

#include "HostWindow.h"

namespace
{
constexpr int IDC_VALUE = 100, IDC_OTHER = 101;

/// A window with an edit IDC_VALUE that exchanges one member.
class ExchangeTest : public testing::Test
{
protected:
    HostWindow host;
    HWND edit = host.AddControl(WC_EDIT, IDC_VALUE), other = host.AddControl(WC_EDIT, IDC_OTHER);

    /// Puts a text into the edit and saves; answers what the value shows then, or the refusal, after which the
    /// text is as it was and selected, and the value too.
    template <class Value>
    CString Taken(LPCTSTR text, Value value = 42)
    {
        const Value before = value;
        host.exchange = [&](CDataExchange* dx) { DDX_Text(dx, IDC_VALUE, value); };
        ::SetWindowText(edit, text);
        ::SetFocus(other);
        const CString refusal = host.Refusal();
        if (!refusal.IsEmpty())
        {
            EXPECT_EQ(value, before);
            EXPECT_EQ(::GetFocus(), edit);
            EXPECT_EQ(Text(), text);
            EXPECT_EQ(::SendMessage(edit, EM_GETSEL, 0, 0), MAKELONG(0, ::lstrlen(text)));
            return refusal;
        }
        ::SetWindowText(edit, L"");
        EXPECT_TRUE(host.UpdateData(FALSE));
        return Text();
    }
    CString Text() const { return owtest::TextOf(*CWnd::FromHandle(edit)).c_str(); }
};
} // namespace

TEST_F(ExchangeTest, NumbersOfEveryTypeMakeTheRoundTripWithTheirDigitsOrAreRefused)
{
    EXPECT_EQ(Told(Taken<BYTE>(L"255"), Taken<short>(L"-32768"), Taken<int>(L" \t+7 \t"), Taken<long>(L"-7"),
                   Taken<int>(L"-2147483648"), Taken<UINT>(L"4294967295"), Taken<DWORD>(L"4294967295"),
                   Taken<LONGLONG>(L"-9223372036854775807"), Taken<ULONGLONG>(L"18446744073709551615")),
              "255,-32768,7,-7,-2147483648,4294967295,4294967295,-9223372036854775807,18446744073709551615");
    EXPECT_EQ(Told(Taken<float>(L"0.1"), Taken<double>(L"0.1"), Taken<double>(L"-1234567.25"),
                   Taken<double>(L"1e100"), Taken<double>(L" -1e-3 ")),
              "0.1,0.1,-1234567.25,1e+100,-0.001");

    for (const CString& refusal :
         {Taken<int>(L""), Taken<int>(L"12x"), Taken<int>(L"1.5"), Taken<int>(L"2147483648"),
          Taken<short>(L"40000"), Taken<LONGLONG>(L"9223372036854775808")})
        EXPECT_EQ(refusal, L"Please enter a whole number.");
    for (const CString& refusal : {Taken<BYTE>(L"256"), Taken<BYTE>(L"-1")})
        EXPECT_EQ(refusal, L"Please enter a whole number from 0 to 255.");
    for (const CString& refusal :
         {Taken<DWORD>(L"-1"), Taken<DWORD>(L"4294967296"), Taken<ULONGLONG>(L" -1")})
        EXPECT_EQ(refusal, L"Please enter a whole number that is not negative.");
    for (const CString& refusal : {Taken<double>(L""), Taken<double>(L"2.5 m"), Taken<double>(L"wide")})
        EXPECT_EQ(refusal, L"Please enter a number.");
}

TEST_F(ExchangeTest, StringsAreTakenAsTheyAreAndCutToTheBuffer)
{
    EXPECT_EQ(Taken<CString>(L"  blanks stay ", L""), L"  blanks stay ");
    TCHAR buffer[5] = L"none";
    host.exchange = [&](CDataExchange* dx) { DDX_Text(dx, IDC_VALUE, buffer, 5); };
    host.UpdateData(FALSE);
    EXPECT_EQ(Text(), L"none");
    ::SetWindowText(edit, L"123456");
    EXPECT_TRUE(host.UpdateData(TRUE));
    EXPECT_STREQ(buffer, L"1234");

    const HWND combo = host.AddControl(WC_COMBOBOX, 102, CBS_DROPDOWN);
    CString text(L"abc");
    host.exchange = [&](CDataExchange* dx)
    {
        DDX_CBString(dx, 102, text);
        DDV_MaxChars(dx, text, 5);
        DDX_Text(dx, IDC_VALUE, text);
        DDV_MaxChars(dx, text, 4);
    };
    host.UpdateData(FALSE);
    EXPECT_EQ(::SendMessage(edit, EM_GETLIMITTEXT, 0, 0), 4);
    EXPECT_EQ(::SendMessage(::GetWindow(combo, GW_CHILD), EM_GETLIMITTEXT, 0, 0), 5);
    ::SetWindowText(edit, L"abcd");
    EXPECT_EQ(host.Refusal(), L"");
    ::SetWindowText(edit, L"abcde");
    EXPECT_EQ(host.Refusal(), L"Please enter no more than 4 characters.");
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
    EXPECT_TRUE(host.UpdateData(FALSE) && host.UpdateData(TRUE));
    EXPECT_EQ(::GetWindowLongPtr(edit, GWLP_WNDPROC), procedure);
    EXPECT_EQ(object.textsSet, 1);
}

TEST_F(ExchangeTest, AFailureGoesToTheLastControlOfASave)
{
    for (const bool saves : {false, true})
    {
        ::SetFocus(other);
        CDataExchange exchange(&host, saves);
        EXPECT_THROW(exchange.PrepareCtrl(9999), CNotSupportedException*) << "a programmer's fault";
        EXPECT_THROW(exchange.Fail(), CUserException*) << "without a control";
        EXPECT_EQ(::GetFocus(), other);
        ::SetWindowText(edit, L"text");
        exchange.PrepareEditCtrl(IDC_OTHER);
        exchange.PrepareCtrl(IDC_VALUE);
        EXPECT_THROW(exchange.Fail(), CUserException*);
        EXPECT_EQ(::GetFocus(), saves ? edit : other);
        EXPECT_EQ(::SendMessage(edit, EM_GETSEL, 0, 0), 0) << "no edit as far as the exchange knows";
    }
}

TEST_F(ExchangeTest, RangesIncludeTheirBoundsAndAreComparedInTheirType)
{
    const std::pair<std::function<void(CDataExchange*)>, CString> cases[] = {
        {[](CDataExchange* dx) { DDV_MinMaxInt(dx, -5, -5, 10); }, L""},
        {[](CDataExchange* dx) { DDV_MinMaxInt(dx, 11, -5, 10); }, L" whole number from -5 to 10."},
        {[](CDataExchange* dx) { DDV_MinMaxByte(dx, 9, 10, 20); }, L" whole number from 10 to 20."},
        {[](CDataExchange* dx) { DDV_MinMaxULongLong(dx, 1ull << 63, 0, ~0ull); }, L""},
        {[](CDataExchange* dx) { DDV_MinMaxFloat(dx, 0.5f, 0.1f, 0.4f); }, L" number from 0.1 to 0.4."},
        {[](CDataExchange* dx) { DDV_MinMaxDouble(dx, 0.4, 0.4, 0.4); }, L""},
        {[](CDataExchange* dx) { DDV_MinMaxDouble(dx, 0.1, 0.123456789, 1); },
         L" number from 0.123456789 to 1."},
        {[](CDataExchange* dx) { DDV_MinMaxDouble(dx, std::numeric_limits<double>::quiet_NaN(), 0, 1); },
         L" number from 0 to 1."},
    };
    for (const auto& [check, refusal] : cases)
    {
        host.exchange = check;
        EXPECT_EQ(host.Refusal(), refusal.IsEmpty() ? L"" : L"Please enter a" + refusal);
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
    host.CheckDlgButton(200, BST_CHECKED);
    host.CheckDlgButton(203, BST_CHECKED);
    host.UpdateData(FALSE);
    EXPECT_FALSE(host.IsDlgButtonChecked(200));
    EXPECT_TRUE(host.IsDlgButtonChecked(202) && host.IsDlgButtonChecked(203));
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
    for (const int state : {BST_CHECKED, BST_UNCHECKED, BST_INDETERMINATE, -1, 7})
        EXPECT_EQ(back(DDX_Check, 300, state), state < 0 || state > 2 ? BST_UNCHECKED : state);
    EXPECT_EQ(back(DDX_LBString, 301, L"beam"), L"beam 12") << "the first that begins so";
    EXPECT_EQ(back(DDX_LBStringExact, 301, L"beam"), L"beam");
    EXPECT_EQ(back(DDX_LBIndex, 301, -1), -1);
    EXPECT_EQ(back(DDX_LBString, 301, L"other"), L"") << "nothing is selected";
    EXPECT_EQ(back(DDX_CBString, 302, L"beam"), L"beam 12");
    EXPECT_EQ(back(DDX_CBStringExact, 302, L"beam"), L"beam");
    EXPECT_EQ(back(DDX_CBString, 302, L"not in the list"), L"not in the list");
    EXPECT_EQ(Told(back(DDX_LBIndex, 301, 1), back(DDX_CBIndex, 302, 1)), "1,1");
    EXPECT_EQ(Told(back(DDX_Scroll, 303, 33), back(DDX_Slider, 304, 44)), "33,44");
    host.exchange = [](CDataExchange* dx)
    {
        int value = 30;
        DDX_Slider(dx, 304, value);
        DDV_MinMaxSlider(dx, value, 10, 50);
    };
    host.UpdateData(FALSE);
    EXPECT_EQ(
        Told(::SendMessage(slider, TBM_GETRANGEMIN, 0, 0), ::SendMessage(slider, TBM_GETRANGEMAX, 0, 0)),
        "10,50");
}
