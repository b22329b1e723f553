// Date and time picker, month calendar, and their exchange.

#include "HostWindow.h"

#include <afxdtctl.h>

namespace
{
constexpr int IDC_DATE = 100;
const CTime leapDay(2024, 2, 29, 0, 0, 0), march(2024, 3, 10, 0, 0, 0);

/// A window with a control that exchanges `value`, and checks it against two bounds.
class DateExchange : public testing::Test
{
protected:
    HostWindow host;
    CTime value = leapDay;
    const CTime *first = nullptr, *last = nullptr;

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
    SYSTEMTIME parts{};
    EXPECT_TRUE(time.GetAsSystemTime(parts));
    TCHAR text[80] = L"";
    ::GetDateFormat(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &parts, nullptr, text, ARRAYSIZE(text));
    return text;
}
} // namespace

TEST(MonthCalendar, IsAsLargeAsAMonth)
{
    HostWindow host;
    CMonthCalCtrl calendar;
    ASSERT_TRUE(calendar.Create(0, CPoint(10, 20), &host, IDC_DATE));
    CRect placed, needed;
    calendar.GetWindowRect(&placed);
    host.ScreenToClient(&placed);
    ASSERT_TRUE(calendar.GetMinReqRect(&needed));
    EXPECT_EQ(placed, CRect(CPoint(10, 20), needed.Size()));
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
    EXPECT_TRUE(minimum == noon && maximum == CTime()) << "an open side is left alone";
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
    last = nullptr;
    const CString refusal = host.Refusal();
    EXPECT_TRUE(refusal.Find(L" not before ") > 0 && refusal.Find(L" and") < 0);
    Picker().SetTime(&evening);
    EXPECT_EQ(host.Refusal(), L"");
    first = nullptr;
    last = &noon;
    EXPECT_EQ(host.Refusal().Find(L"Please choose a date not after " + ShortDate(noon) + L" 12:00"), 0);
}

TEST_F(DateExchange, OfCalendarsGoesByDays)
{
    Add(MONTHCAL_CLASS, 0, &DDX_MonthCalCtrl, &DDV_MinMaxMonth);
    const CTime noon(2024, 2, 29, 12, 0, 0);
    first = last = &noon;
    EXPECT_TRUE(host.UpdateData(FALSE));
    CTime minimum, maximum;
    const auto& calendar = *static_cast<CMonthCalCtrl*>(host.GetDlgItem(IDC_DATE));
    EXPECT_EQ(calendar.GetRange(&minimum, &maximum), static_cast<DWORD>(GDTR_MIN | GDTR_MAX));
    EXPECT_EQ(minimum, maximum);
    value = march;
    EXPECT_EQ(host.Refusal(), L"");
    EXPECT_EQ(value, leapDay);
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
