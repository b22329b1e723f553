// Date and time picker, month calendar, and their exchange.

#include "HostWindow.h"

#include <afxdtctl.h>

namespace
{
constexpr int IDC_DATE = 100;
const CTime leapDay(2024, 2, 29, 0, 0, 0);
const CTime march(2024, 3, 10, 0, 0, 0);

SYSTEMTIME PartsOf(const CTime& time)
{
    SYSTEMTIME parts{};
    EXPECT_TRUE(time.GetAsSystemTime(parts));
    return parts;
}

/// What both controls do with the range of what can be chosen.
template <class Control>
void CheckRangeOf(Control& control)
{
    CTime minimum, maximum;
    EXPECT_EQ(control.GetRange(&minimum, &maximum), 0u);
    EXPECT_TRUE(control.SetRange(&leapDay, nullptr));
    EXPECT_EQ(control.GetRange(&minimum, &maximum), static_cast<DWORD>(GDTR_MIN));
    EXPECT_EQ(minimum, leapDay);
    EXPECT_EQ(maximum, CTime());

    SYSTEMTIME first = PartsOf(leapDay), last = PartsOf(march);
    EXPECT_TRUE(control.SetRange(&first, &last));
    SYSTEMTIME readFirst{}, readLast{};
    EXPECT_EQ(control.GetRange(&readFirst, &readLast), static_cast<DWORD>(GDTR_MIN | GDTR_MAX));
    EXPECT_EQ(CTime(readFirst), leapDay);
    EXPECT_EQ(CTime(readLast), march);
    control.GetRange(static_cast<CTime*>(nullptr), &maximum);
    EXPECT_EQ(maximum, march);
}

/// A window with a control that exchanges `value`, and checks it against two bounds.
class DateExchange : public testing::Test
{
protected:
    HostWindow host;
    CTime value = leapDay;
    const CTime* first = nullptr;
    const CTime* last = nullptr;

    /// Adds the control; `exchange` is DDX, `check` DDV.
    void Add(LPCTSTR className, DWORD style, void(AFXAPI* exchange)(CDataExchange*, int, CTime&),
             void(AFXAPI* check)(CDataExchange*, CTime&, const CTime*, const CTime*))
    {
        host.AddControl(className, IDC_DATE, style);
        host.exchange = [=, this](CDataExchange* dx)
        {
            exchange(dx, IDC_DATE, value);
            check(dx, value, first, last);
        };
    }
    CDateTimeCtrl& Picker() { return *static_cast<CDateTimeCtrl*>(host.GetDlgItem(IDC_DATE)); }
};

CString ShortDate(const CTime& time)
{
    const SYSTEMTIME parts = PartsOf(time);
    TCHAR text[80] = L"";
    ::GetDateFormat(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &parts, nullptr, text, ARRAYSIZE(text));
    return text;
}
} // namespace

TEST(DateTimePicker, HoldsATimeOrNone)
{
    HostWindow host;
    CDateTimeCtrl picker;
    ASSERT_TRUE(picker.Create(DTS_SHOWNONE, CRect(0, 0, 150, 24), &host, IDC_DATE));
    const CTime time(2024, 2, 29, 13, 14, 15);
    EXPECT_TRUE(picker.SetFormat(L"yyyy'/'MM'/'dd HH':'mm':'ss"));
    EXPECT_TRUE(picker.SetTime(&time));
    EXPECT_EQ(owtest::TextOf(picker), L"2024/02/29 13:14:15");
    CTime read;
    EXPECT_EQ(picker.GetTime(read), static_cast<DWORD>(GDT_VALID));
    EXPECT_EQ(read, time);
    EXPECT_TRUE(picker.SetTime(static_cast<const CTime*>(nullptr)));
    EXPECT_EQ(picker.GetTime(read), static_cast<DWORD>(GDT_NONE));
    EXPECT_EQ(read, time);
    CheckRangeOf(picker);
}

TEST(MonthCalendar, HoldsDaysRangesAndItsSettings)
{
    HostWindow host;
    CMonthCalCtrl calendar;
    ASSERT_TRUE(calendar.Create(0, CPoint(10, 20), &host, IDC_DATE));
    CRect placed, needed;
    calendar.GetWindowRect(&placed);
    host.ScreenToClient(&placed);
    ASSERT_TRUE(calendar.GetMinReqRect(&needed));
    EXPECT_EQ(placed, CRect(CPoint(10, 20), needed.Size()));

    EXPECT_TRUE(calendar.SetCurSel(leapDay + CTimeSpan(0, 13, 0, 0)));
    CTime day, minimum, maximum;
    EXPECT_TRUE(calendar.GetCurSel(day));
    EXPECT_EQ(day, leapDay);
    calendar.SetToday(march);
    EXPECT_TRUE(calendar.GetToday(day));
    EXPECT_EQ(day, march);
    EXPECT_EQ(calendar.GetMonthRange(minimum, maximum, GMR_VISIBLE), 1);
    EXPECT_EQ(minimum, CTime(2024, 2, 1, 0, 0, 0));
    EXPECT_EQ(maximum, leapDay);
    EXPECT_EQ(calendar.GetMonthRange(minimum, maximum, GMR_DAYSTATE), 3);
    CheckRangeOf(calendar);

    CMonthCalCtrl several;
    ASSERT_TRUE(several.Create(MCS_MULTISELECT, CRect(0, 0, 300, 250), &host, IDC_DATE + 1));
    EXPECT_TRUE(several.SetMaxSelCount(20));
    EXPECT_TRUE(several.SetSelRange(leapDay + CTimeSpan(0, 5, 0, 0), march));
    EXPECT_TRUE(several.GetSelRange(minimum, maximum));
    EXPECT_EQ(minimum, leapDay);
    EXPECT_EQ(maximum, march);
}

TEST_F(DateExchange, OfPickersGoesByDaysUnlessTheyShowTheTime)
{
    const CTime noon(2024, 2, 29, 12, 0, 0), evening(2024, 2, 29, 20, 0, 0),
        yesterday = noon - CTimeSpan(1, 0, 0, 0);
    Add(DATETIMEPICK_CLASS, 0, &DDX_DateTimeCtrl, &DDV_MinMaxDateTime);
    first = &noon; // later than the value, on the same day
    EXPECT_TRUE(host.UpdateData(FALSE));
    CTime minimum, maximum;
    EXPECT_EQ(Picker().GetRange(&minimum, &maximum), static_cast<DWORD>(GDTR_MIN));
    Picker().SetRange(static_cast<CTime*>(nullptr), nullptr);
    Picker().SetTime(&leapDay);
    EXPECT_EQ(host.Refusal(), L"");
    EXPECT_EQ(value, leapDay);
    Picker().SetTime(&yesterday);
    last = &march;
    EXPECT_EQ(host.Refusal(), L"Please choose a date not before " + ShortDate(noon) + L" and not after " +
                                  ShortDate(march) + L".");
    EXPECT_TRUE(host.UpdateData(FALSE)); // the program's own value is let through
    EXPECT_EQ(Picker().GetRange(&minimum, &maximum), 0u);

    Picker().ModifyStyle(0, DTS_TIMEFORMAT);
    Picker().SetTime(&leapDay);
    EXPECT_EQ(host.Refusal().Left(32), L"Please choose a date not before ");
    Picker().SetTime(&evening);
    EXPECT_EQ(host.Refusal(), L"");
    first = nullptr;
    last = &noon;
    EXPECT_EQ(host.Refusal().Find(L"Please choose a date not after " + ShortDate(noon) + L" 12:00"), 0);
}

TEST_F(DateExchange, OfCalendarsGoesByDays)
{
    Add(MONTHCAL_CLASS, 0, &DDX_MonthCalCtrl, &DDV_MinMaxMonth);
    auto& calendar = *static_cast<CMonthCalCtrl*>(host.GetDlgItem(IDC_DATE));
    const CTime noon(2024, 2, 29, 12, 0, 0);
    first = &noon;
    EXPECT_TRUE(host.UpdateData(FALSE));
    calendar.GetCurSel(value);
    EXPECT_EQ(value, leapDay);
    calendar.SetRange(static_cast<CTime*>(nullptr), nullptr);
    calendar.SetCurSel(march);
    last = &march;
    EXPECT_EQ(host.Refusal(), L"");
    EXPECT_EQ(value, march);
    first = std::exchange(last, nullptr);
    calendar.SetCurSel(noon);
    EXPECT_EQ(host.Refusal(), L"Please choose a date not before " + ShortDate(march) + L".");
}

TEST_F(DateExchange, ReadsThePickersText)
{
    host.AddControl(DATETIMEPICK_CLASS, IDC_DATE);
    CString text;
    host.exchange = [&](CDataExchange* dx) { DDX_DateTimeCtrl(dx, IDC_DATE, text); };
    Picker().SetFormat(L"yyyy");
    Picker().SetTime(&march);
    EXPECT_TRUE(host.UpdateData(TRUE));
    EXPECT_EQ(text, L"2024");
}
