// CTime and CTimeSpan.

#include "Answers.h"

#include <atltime.h>

namespace
{
constexpr LONG day = 24 * 3600;
}

TEST(TimeSpan, IsTakenApartAndFormatted)
{
    const std::pair<CTimeSpan, LPCTSTR> cases[] = {
        {CTimeSpan(), L"0 0 0 0: 0 0 0, 0d 00:00:00 %"},
        {CTimeSpan(3, 25, 61, 5), L"4 98 5881 352865: 2 1 5, 4d 02:01:05 %"},
        {CTimeSpan(40000, 0, 0, 0), L"40000 960000 57600000 3456000000: 0 0 0, 40000d 00:00:00 %"},
        {CTimeSpan(-(day + 3661)), L"-1 -25 -1501 -90061: -1 -1 -1, -1d -1:-1:-1 %"},
    };
    for (const auto& [span, told] : cases)
    {
        CString text;
        text.Format(L"%I64d %I64d %I64d %I64d: %d %d %d, ", span.GetDays(), span.GetTotalHours(),
                    span.GetTotalMinutes(), span.GetTotalSeconds(), span.GetHours(), span.GetMinutes(),
                    span.GetSeconds());
        EXPECT_EQ(text + span.Format(L"%Dd %H:%M:%S %%"), told);
    }
}

TEST(Time, IsMadeOfLocalPartsAndGivesThemBack)
{
    const CTime time(2024, 2, 29, 13, 45, 59);
    SYSTEMTIME parts{0, 0, 0, 0, 0, 0, 0, 999};
    ASSERT_TRUE(time.GetAsSystemTime(parts));
    FILETIME file{}, utc{};
    ASSERT_TRUE(::SystemTimeToFileTime(&parts, &file) && ::LocalFileTimeToFileTime(&file, &utc));
    for (const CTime& same : {time, CTime(parts), CTime(utc), CTime(time.GetTime()),
                              CTime((44 << 9) | (2 << 5) | 29, (13 << 11) | (45 << 5) | 29) + CTimeSpan(1)})
    {
        CString text;
        text.Format(L"%d %d %d, %d %d %d, %d, ", same.GetYear(), same.GetMonth(), same.GetDay(),
                    same.GetHour(), same.GetMinute(), same.GetSecond(), same.GetDayOfWeek());
        EXPECT_EQ(text + same.Format(L"%Y-%m-%d %H:%M:%S"), L"2024 2 29, 13 45 59, 5, 2024-02-29 13:45:59");
    }
    EXPECT_EQ(parts.wDayOfWeek * 10 + parts.wMilliseconds, 40);
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
    EXPECT_EQ((time += CTimeSpan(day)).GetMonth(), 2);
    EXPECT_EQ((time -= CTimeSpan(day)).GetDay(), 31);
    CTimeSpan span(10);
    EXPECT_EQ(span += CTimeSpan(5), CTimeSpan(15));
    EXPECT_EQ((span -= CTimeSpan(20)) + CTimeSpan(6) - CTimeSpan(1), CTimeSpan(0));
}

TEST(Time, ThatDoesNotExistIsRefusedOrAnswersNothing)
{
    constexpr int wrong[][2] = {{0, 1899}, {1, 0},  {1, 13}, {2, 0},  {2, 32}, {3, 24},
                                {3, -1},   {4, 60}, {4, -1}, {5, 60}, {5, -1}};
    for (const auto& [part, value] : wrong)
    {
        int t[] = {2024, 1, 1, 0, 0, 0};
        t[part] = value;
        EXPECT_TRUE(RefusesArgument([&] { CTime(t[0], t[1], t[2], t[3], t[4], t[5]); }))
            << part << ' ' << value;
    }
    EXPECT_TRUE(RefusesArgument([] { CTime().GetLocalTm(nullptr); }));
    EXPECT_EQ(CTime(SYSTEMTIME{}), CTime());

    const CTime never(static_cast<__time64_t>(1) << 60);
    SYSTEMTIME parts{};
    tm local{};
    EXPECT_FALSE(never.GetAsSystemTime(parts));
    EXPECT_TRUE(never.GetLocalTm(&local) == nullptr && never.GetGmtTm(&local) == nullptr);
    EXPECT_EQ(never.GetYear() + never.GetDayOfWeek(), 0);
    EXPECT_TRUE(never.Format(L"%Y").IsEmpty());
}
