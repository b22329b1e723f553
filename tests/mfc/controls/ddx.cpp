// Dialog data exchange and validation.

#include "HostWindow.h"

#include "ModalVisit.h"

#include <gtest/gtest.h>

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

    /// Exchanges, and expects one message box, whose text it answers, and the refusal of the data.
    CString TextOfRefusal()
    {
        CString message;
        const owtest::ModalVisit visit(
            [&](CWnd& box)
            {
                constexpr int messageId = 0xFFFF;
                box.GetDlgItemText(messageId, message);
                box.SendMessage(WM_COMMAND, IDOK);
            });
        EXPECT_FALSE(host.UpdateData(TRUE));
        EXPECT_EQ(visit.Count(), 1);
        return message;
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
        TextOfRefusal();
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
    TextOfRefusal();
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
    const CString message = TextOfRefusal();
    EXPECT_GE(message.Find(L"-5"), 0);
    EXPECT_GE(message.Find(L"10"), 0);
    EXPECT_EQ(::GetFocus(), edit);
}

TEST_F(ExchangeTest, RangesOfOtherTypesAreComparedInTheirType)
{
    struct Case
    {
        std::function<void(CDataExchange*)> check;
        bool refused;
    };
    const Case cases[] = {
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
    for (size_t i = 0; i < std::size(cases); ++i)
    {
        SCOPED_TRACE(i);
        host.exchange = cases[i].check;
        if (cases[i].refused)
            TextOfRefusal();
        else
            EXPECT_TRUE(host.UpdateData(TRUE));
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

TEST_F(ExchangeTest, ChecksListsAndPositions)
{
    host.AddControl(WC_BUTTON, 300, BS_AUTO3STATE);
    CListBox* list = static_cast<CListBox*>(CWnd::FromHandle(host.AddControl(WC_LISTBOX, 301)));
    list->AddString(L"beam 12");
    list->AddString(L"beam");
    const HWND combo = host.AddControl(WC_COMBOBOX, 302, CBS_DROPDOWN);
    ::SendMessage(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"slab"));
    host.AddControl(WC_SCROLLBAR, 303, SBS_HORZ);
    ::SetScrollRange(host.GetDlgItem(303)->m_hWnd, SB_CTL, 0, 100, FALSE);
    host.AddControl(TRACKBAR_CLASS, 304);

    int check = 7;
    CString prefix(L"beam 1");
    CString exact(L"beam");
    CString typed(L"not in the list");
    int index = -1;
    int scroll = 33;
    int slider = 44;
    host.exchange = [&](CDataExchange* dx)
    {
        DDX_Check(dx, 300, check);
        DDX_LBString(dx, 301, prefix);
        DDX_LBStringExact(dx, 301, exact);
        DDX_LBIndex(dx, 301, index);
        DDX_CBString(dx, 302, typed);
        DDX_Scroll(dx, 303, scroll);
        DDX_Slider(dx, 304, slider);
        if (!dx->m_bSaveAndValidate)
            DDV_MinMaxSlider(dx, slider, 10, 50);
    };
    host.CheckDlgButton(300, BST_CHECKED);
    host.UpdateData(FALSE);
    EXPECT_EQ(check, BST_UNCHECKED) << "no check state is unchecked";
    EXPECT_EQ(host.IsDlgButtonChecked(300), UINT{BST_UNCHECKED});
    EXPECT_EQ(list->GetCurSel(), -1) << "the index is exchanged last";
    index = 0;
    scroll = slider = 0;
    typed.Empty();
    list->SetCurSel(1);
    host.CheckDlgButton(300, BST_INDETERMINATE);
    host.UpdateData(TRUE);
    EXPECT_EQ(check, BST_INDETERMINATE);
    EXPECT_EQ(index, 1);
    EXPECT_EQ(prefix, exact);
    EXPECT_EQ(typed, L"not in the list");
    EXPECT_EQ(scroll, 33);
    EXPECT_EQ(slider, 44);

    typed = L"sl";
    host.exchange = [&](CDataExchange* dx) { DDX_CBString(dx, 302, typed); };
    host.UpdateData(FALSE);
    CString shown;
    host.GetDlgItemText(302, shown);
    EXPECT_EQ(shown, L"slab") << "the item that begins so";
    host.exchange = [&](CDataExchange* dx) { DDX_LBStringExact(dx, 301, exact); };
    exact = L"beam";
    host.UpdateData(FALSE);
    CString selected;
    list->GetText(list->GetCurSel(), selected);
    EXPECT_EQ(selected, L"beam");
}
