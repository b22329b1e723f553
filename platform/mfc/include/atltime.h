#pragma once
#define __ATLTIME_H__ // asked for by the headers that wizards make
// Absolute times and their differences, in whole seconds.
//
//     CTime dueTime = CTime::GetCurrentTime() + CTimeSpan(7, 0, 0, 0);
//     m_strDue = dueTime.Format(_T("%Y-%m-%d %H:%M"));
//
// A time is kept as the seconds since 1970-01-01 00:00 UTC; years, hours and so on are those of the local clock
// unless a name says Gmt. Local times before 1970 and after 3000 do not exist: what is asked of such a time is
// 0, an empty text, null or false.

#include <afx.h>

#include <ctime>

#undef GetCurrentTime // a macro of the Windows headers that hides the member

/// A difference of times; negative where the earlier is taken less the later.
class AFX_CORE_CLASS CTimeSpan
{
public:
    CTimeSpan() noexcept = default;
    CTimeSpan(__time64_t time) noexcept : m_timeSpan(time) {}
    CTimeSpan(LONG lDays, int nHours, int nMins, int nSecs) noexcept;

    LONGLONG GetDays() const noexcept { return m_timeSpan / 86400; }
    LONGLONG GetTotalHours() const noexcept { return m_timeSpan / 3600; }
    LONGLONG GetTotalMinutes() const noexcept { return m_timeSpan / 60; }
    LONGLONG GetTotalSeconds() const noexcept { return m_timeSpan; }
    /// What is left beside the whole days, hours, minutes.
    LONG GetHours() const noexcept { return static_cast<LONG>(GetTotalHours() % 24); }
    LONG GetMinutes() const noexcept { return static_cast<LONG>(GetTotalMinutes() % 60); }
    LONG GetSeconds() const noexcept { return static_cast<LONG>(GetTotalSeconds() % 60); }
    __time64_t GetTimeSpan() const noexcept { return m_timeSpan; }

    CTimeSpan operator+(CTimeSpan span) const noexcept { return m_timeSpan + span.m_timeSpan; }
    CTimeSpan operator-(CTimeSpan span) const noexcept { return m_timeSpan - span.m_timeSpan; }
    CTimeSpan& operator+=(CTimeSpan span) noexcept { return *this = *this + span; }
    CTimeSpan& operator-=(CTimeSpan span) noexcept { return *this = *this - span; }
    bool operator==(CTimeSpan span) const noexcept { return m_timeSpan == span.m_timeSpan; }
    bool operator!=(CTimeSpan span) const noexcept { return m_timeSpan != span.m_timeSpan; }
    bool operator<(CTimeSpan span) const noexcept { return m_timeSpan < span.m_timeSpan; }
    bool operator>(CTimeSpan span) const noexcept { return m_timeSpan > span.m_timeSpan; }
    bool operator<=(CTimeSpan span) const noexcept { return m_timeSpan <= span.m_timeSpan; }
    bool operator>=(CTimeSpan span) const noexcept { return m_timeSpan >= span.m_timeSpan; }

    /// %D all days, %H, %M and %S what is left beside them in two digits, %% a percent sign. Others are a
    /// fault of the program: asserted, and left out.
    CString Format(LPCTSTR pszFormat) const;
    CString Format(UINT nID) const; ///< by a string resource

private:
    __time64_t m_timeSpan = 0;
};

/// A point in time.
class AFX_CORE_CLASS CTime
{
public:
    static CTime WINAPI GetCurrentTime() noexcept { return CTime(::_time64(nullptr)); }

    CTime() noexcept = default; ///< the beginning of 1970, UTC
    CTime(__time64_t time) noexcept : m_time(time) {}
    /// `nDST` says whether the time is in the summer: 0 no, above 0 yes, below 0 as the system knows. Throw
    /// CInvalidArgException for a month, day, hour... that does not exist, or a year before 1900.
    CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDST = -1);
    CTime(WORD wDosDate, WORD wDosTime, int nDST = -1);
    CTime(const SYSTEMTIME& st, int nDST = -1); ///< a year before 1900 makes the default time
    CTime(const FILETIME& ft, int nDST = -1);   ///< of the UTC clock, as files carry it

    CTime& operator+=(CTimeSpan span) noexcept { return *this = *this + span; }
    CTime& operator-=(CTimeSpan span) noexcept { return *this = *this - span; }
    CTimeSpan operator-(CTime time) const noexcept { return m_time - time.m_time; }
    CTime operator-(CTimeSpan span) const noexcept { return m_time - span.GetTimeSpan(); }
    CTime operator+(CTimeSpan span) const noexcept { return m_time + span.GetTimeSpan(); }
    bool operator==(CTime time) const noexcept { return m_time == time.m_time; }
    bool operator!=(CTime time) const noexcept { return m_time != time.m_time; }
    bool operator<(CTime time) const noexcept { return m_time < time.m_time; }
    bool operator>(CTime time) const noexcept { return m_time > time.m_time; }
    bool operator<=(CTime time) const noexcept { return m_time <= time.m_time; }
    bool operator>=(CTime time) const noexcept { return m_time >= time.m_time; }

    /// Fill `ptm` and answer it; null when the time does not exist there.
    struct tm* GetGmtTm(struct tm* ptm) const;
    struct tm* GetLocalTm(struct tm* ptm) const;
    bool GetAsSystemTime(SYSTEMTIME& st) const noexcept; ///< of the local clock, milliseconds 0

    __time64_t GetTime() const noexcept { return m_time; }
    int GetYear() const noexcept;
    int GetMonth() const noexcept; ///< 1 is January
    int GetDay() const noexcept;
    int GetHour() const noexcept;
    int GetMinute() const noexcept;
    int GetSecond() const noexcept;
    int GetDayOfWeek() const noexcept; ///< 1 is Sunday

    /// By the codes of strftime, from a text or a string resource.
    CString Format(LPCTSTR pszFormat) const;
    CString Format(UINT nFormatID) const;
    CString FormatGmt(LPCTSTR pszFormat) const;
    CString FormatGmt(UINT nFormatID) const;

private:
    __time64_t m_time = 0;
};
