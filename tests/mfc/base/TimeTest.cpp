// CTime and CTimeSpan.

#include "Thrown.h"

#include <atltime.h>

#include <gtest/gtest.h>

namespace
{
constexpr LONG day = 24 * 3600;
}

TEST(TimeSpan, IsTakenApartAndFormatted)
{
    const struct
    {
        CTimeSpan span;
        LONGLONG days, totalHours, totalMinutes, totalSeconds;
        LONG hours, minutes, seconds;
        LPCTSTR text;
    } cases[] = {
        {CTimeSpan(), 0, 0, 0, 0, 0, 0, 0, L"0d 00:00:00 %"},
        {CTimeSpan(3, 25, 61, 5), 4, 98, 5881, 352865, 2, 1, 5, L"4d 02:01:05 %"},
        {CTimeSpan(40000, 0, 0, 0), 40000, 960000, 57600000, 3456000000, 0, 0, 0, L"40000d 00:00:00 %"},
        {CTimeSpan(-(day + 3661)), -1, -25, -1501, -90061, -1, -1, -1, L"-1d -1:-1:-1 %"},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(CStringA(c.text).GetString());
        EXPECT_EQ(c.span.GetDays(), c.days);
        EXPECT_EQ(c.span.GetTotalHours(), c.totalHours);
        EXPECT_EQ(c.span.GetTotalMinutes(), c.totalMinutes);
        EXPECT_EQ(c.span.GetTotalSeconds(), c.totalSeconds);
        EXPECT_EQ(c.span.GetTimeSpan(), c.totalSeconds);
        EXPECT_EQ(c.span.GetHours(), c.hours);
        EXPECT_EQ(c.span.GetMinutes(), c.minutes);
        EXPECT_EQ(c.span.GetSeconds(), c.seconds);
        EXPECT_EQ(c.span.Format(L"%Dd %H:%M:%S %%"), c.text);
    }
}

TEST(Time, IsMadeOfLocalPartsAndGivesThemBack)
{
    const CTime time(2024, 2, 29, 13, 45, 59);
    SYSTEMTIME parts{};
    ASSERT_TRUE(time.GetAsSystemTime(parts));
    FILETIME file{}, utc{};
    ASSERT_TRUE(::SystemTimeToFileTime(&parts, &file) && ::LocalFileTimeToFileTime(&file, &utc));
    for (const CTime& same : {time, CTime(parts), CTime(utc), CTime(time.GetTime()),
                              CTime((44 << 9) | (2 << 5) | 29, (13 << 11) | (45 << 5) | 29) + CTimeSpan(1)})
    {
        EXPECT_EQ(same.GetYear(), 2024);
        EXPECT_EQ(same.GetMonth(), 2);
        EXPECT_EQ(same.GetDay(), 29);
        EXPECT_EQ(same.GetHour(), 13);
        EXPECT_EQ(same.GetMinute(), 45);
        EXPECT_EQ(same.GetSecond(), 59);
        EXPECT_EQ(same.GetDayOfWeek(), 5); // Thursday
        EXPECT_EQ(same.Format(L"%Y-%m-%d %H:%M:%S"), L"2024-02-29 13:45:59");
    }
    EXPECT_EQ(parts.wDayOfWeek, 4);
    EXPECT_EQ(parts.wMilliseconds, 0);
    EXPECT_EQ(CTime(86400 * 365).FormatGmt(L"%Y-%m-%d %H"), L"1971-01-01 00");
    tm gmt{};
    EXPECT_EQ(CTime(5).GetGmtTm(&gmt), &gmt);
    EXPECT_EQ(gmt.tm_sec, 5);
    EXPECT_LE(CTime::GetCurrentTime() - CTime(::_time64(nullptr)), CTimeSpan(0));
}

TEST(Time, IsCountedWithSpansAndCompared)
{
    CTime time(2024, 1, 31, 12, 0, 0);
    const CTime later = time + CTimeSpan(1, 2, 3, 4);
    EXPECT_EQ(later - time, CTimeSpan(day + 7384));
    EXPECT_EQ(later - CTimeSpan(1, 2, 3, 4), time);
    EXPECT_TRUE(time < later && time <= later && later > time && later >= time && time != later);
    EXPECT_FALSE(later < time || later <= time || time > later || time >= later || time == later);
    time += CTimeSpan(day);
    EXPECT_EQ(time.GetMonth(), 2);
    time -= CTimeSpan(day);
    EXPECT_EQ(time.GetDay(), 31);

    CTimeSpan span(10);
    span += CTimeSpan(5);
    EXPECT_EQ(span, CTimeSpan(15));
    span -= CTimeSpan(20);
    EXPECT_EQ(span + CTimeSpan(6) - CTimeSpan(1), CTimeSpan(0));
    EXPECT_TRUE(span < CTimeSpan() && span <= CTimeSpan() && CTimeSpan() > span && CTimeSpan() >= span);
    EXPECT_FALSE(span > CTimeSpan() || span >= CTimeSpan() || CTimeSpan() < span || CTimeSpan() <= span);
    EXPECT_TRUE(span != CTimeSpan());
}

TEST(Time, ThatDoesNotExistIsRefusedOrAnswersNothing)
{
    for (const auto& make : {+[] { CTime(1899, 1, 1, 0, 0, 0); }, +[] { CTime(2024, 0, 1, 0, 0, 0); },
                             +[] { CTime(2024, 13, 1, 0, 0, 0); }, +[] { CTime(2024, 1, 0, 0, 0, 0); },
                             +[] { CTime(2024, 1, 32, 0, 0, 0); }, +[] { CTime(2024, 1, 1, 24, 0, 0); },
                             +[] { CTime(2024, 1, 1, 0, 60, 0); }, +[] { CTime(2024, 1, 1, 0, 0, 60); },
                             +[] { CTime(2024, 1, 1, -1, 0, 0); }, +[] { CTime(2024, 1, 1, 0, -1, 0); },
                             +[] { CTime(2024, 1, 1, 0, 0, -1); }, +[] { CTime().GetLocalTm(nullptr); }})
        EXPECT_TRUE(RefusesArgument(make));
    EXPECT_EQ(CTime(SYSTEMTIME{}), CTime());

    const CTime never(static_cast<__time64_t>(1) << 60);
    SYSTEMTIME parts{};
    tm local{};
    EXPECT_FALSE(never.GetAsSystemTime(parts));
    EXPECT_EQ(never.GetLocalTm(&local), nullptr);
    EXPECT_EQ(never.GetGmtTm(&local), nullptr);
    EXPECT_EQ(never.GetYear(), 0);
    EXPECT_EQ(never.GetDayOfWeek(), 0);
    EXPECT_TRUE(never.Format(L"%Y").IsEmpty());
}
