// CTime and CTimeSpan.

#include <atltime.h>

namespace
{
CString FormatResource(UINT id)
{
    CString format;
    VERIFY(format.LoadString(id));
    return format;
}
} // namespace

// ---------------------------------------------------------------------------------------------------------
// CTimeSpan

CTimeSpan::CTimeSpan(LONG lDays, int nHours, int nMins, int nSecs) noexcept
    : m_timeSpan(nSecs + 60 * (nMins + 60 * (nHours + 24 * static_cast<__time64_t>(lDays))))
{
}

CString CTimeSpan::Format(LPCTSTR pszFormat) const
{
    CString text;
    for (; *pszFormat != 0; ++pszFormat)
    {
        if (*pszFormat != '%')
        {
            text += *pszFormat;
            continue;
        }
        switch (*++pszFormat)
        {
        case '%':
            text += '%';
            break;
        case 'D':
            text.AppendFormat(L"%I64d", GetDays());
            break;
        case 'H':
            text.AppendFormat(L"%02ld", GetHours());
            break;
        case 'M':
            text.AppendFormat(L"%02ld", GetMinutes());
            break;
        case 'S':
            text.AppendFormat(L"%02ld", GetSeconds());
            break;
        default:
            ASSERT(FALSE);
            if (*pszFormat == 0)
                return text;
        }
    }
    return text;
}

CString CTimeSpan::Format(UINT nID) const
{
    return Format(FormatResource(nID));
}

// ---------------------------------------------------------------------------------------------------------
// CTime: made of the parts of a local time

CTime::CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDST)
{
    ENSURE_ARG(nYear >= 1900);
    ENSURE_ARG(nMonth >= 1 && nMonth <= 12);
    ENSURE_ARG(nDay >= 1 && nDay <= 31);
    ENSURE_ARG(nHour >= 0 && nHour <= 23);
    ENSURE_ARG(nMin >= 0 && nMin <= 59);
    ENSURE_ARG(nSec >= 0 && nSec <= 59);
    struct tm parts
    {
    };
    parts.tm_year = nYear - 1900;
    parts.tm_mon = nMonth - 1;
    parts.tm_mday = nDay;
    parts.tm_hour = nHour;
    parts.tm_min = nMin;
    parts.tm_sec = nSec;
    parts.tm_isdst = nDST;
    m_time = ::_mktime64(&parts);
}

CTime::CTime(WORD wDosDate, WORD wDosTime, int nDST)
    : CTime((wDosDate >> 9) + 1980, (wDosDate >> 5) & 0x0F, wDosDate & 0x1F, wDosTime >> 11,
            (wDosTime >> 5) & 0x3F, (wDosTime & 0x1F) * 2, nDST)
{
}

CTime::CTime(const SYSTEMTIME& st, int nDST)
{
    if (st.wYear >= 1900)
        *this = CTime(st.wYear, st.wMonth, st.wDay, st.wHour, st.wMinute, st.wSecond, nDST);
}

CTime::CTime(const FILETIME& ft, int nDST)
{
    FILETIME local{};
    SYSTEMTIME parts{};
    if (::FileTimeToLocalFileTime(&ft, &local) && ::FileTimeToSystemTime(&local, &parts))
        *this = CTime(parts, nDST);
}

// ---------------------------------------------------------------------------------------------------------
// CTime: taken apart

struct tm* CTime::GetGmtTm(struct tm* ptm) const
{
    ENSURE_ARG(ptm != nullptr);
    return ::_gmtime64_s(ptm, &m_time) == 0 ? ptm : nullptr;
}

struct tm* CTime::GetLocalTm(struct tm* ptm) const
{
    ENSURE_ARG(ptm != nullptr);
    return ::_localtime64_s(ptm, &m_time) == 0 ? ptm : nullptr;
}

bool CTime::GetAsSystemTime(SYSTEMTIME& st) const noexcept
{
    struct tm parts;
    if (GetLocalTm(&parts) == nullptr)
        return false;
    st.wYear = static_cast<WORD>(parts.tm_year + 1900);
    st.wMonth = static_cast<WORD>(parts.tm_mon + 1);
    st.wDayOfWeek = static_cast<WORD>(parts.tm_wday);
    st.wDay = static_cast<WORD>(parts.tm_mday);
    st.wHour = static_cast<WORD>(parts.tm_hour);
    st.wMinute = static_cast<WORD>(parts.tm_min);
    st.wSecond = static_cast<WORD>(parts.tm_sec);
    st.wMilliseconds = 0;
    return true;
}

namespace
{
/// A part of the local time; 0 for a time that does not exist.
int PartOf(const CTime& time, int tm::*part, int offset)
{
    struct tm parts;
    return time.GetLocalTm(&parts) != nullptr ? parts.*part + offset : 0;
}

CString FormatParts(const struct tm* parts, LPCTSTR format)
{
    CString text;
    if (parts == nullptr || format == nullptr)
        return text;
    const int size =
        64 * (1 + ::lstrlen(format)); // a code of two characters makes at most a long date and time
    ::wcsftime(text.GetBufferSetLength(size), size, format, parts);
    text.ReleaseBuffer();
    return text;
}
} // namespace

int CTime::GetYear() const noexcept
{
    return PartOf(*this, &tm::tm_year, 1900);
}

int CTime::GetMonth() const noexcept
{
    return PartOf(*this, &tm::tm_mon, 1);
}

int CTime::GetDay() const noexcept
{
    return PartOf(*this, &tm::tm_mday, 0);
}

int CTime::GetHour() const noexcept
{
    return PartOf(*this, &tm::tm_hour, 0);
}

int CTime::GetMinute() const noexcept
{
    return PartOf(*this, &tm::tm_min, 0);
}

int CTime::GetSecond() const noexcept
{
    return PartOf(*this, &tm::tm_sec, 0);
}

int CTime::GetDayOfWeek() const noexcept
{
    return PartOf(*this, &tm::tm_wday, 1);
}

CString CTime::Format(LPCTSTR pszFormat) const
{
    struct tm parts;
    return FormatParts(GetLocalTm(&parts), pszFormat);
}

CString CTime::FormatGmt(LPCTSTR pszFormat) const
{
    struct tm parts;
    return FormatParts(GetGmtTm(&parts), pszFormat);
}

CString CTime::Format(UINT nFormatID) const
{
    return Format(FormatResource(nFormatID));
}

CString CTime::FormatGmt(UINT nFormatID) const
{
    return FormatGmt(FormatResource(nFormatID));
}
