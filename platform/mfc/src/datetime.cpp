// Date and time picker, month calendar, and their exchange with members.

#include <afxdtctl.h>

#include "commctl.h"

IMPLEMENT_DYNAMIC(CMonthCalCtrl, CWnd)
IMPLEMENT_DYNAMIC(CDateTimeCtrl, CWnd)

CMonthCalCtrl::CMonthCalCtrl() = default;
CDateTimeCtrl::CDateTimeCtrl() = default;

// ---------------------------------------------------------------------------------------------------------
// Times as the controls take them, and as programs do

namespace
{
void Assign(SYSTEMTIME& to, const SYSTEMTIME& from)
{
    to = from;
}

void Assign(CTime& to, const SYSTEMTIME& from)
{
    to = CTime(from);
}

/// All zero, which the controls refuse, where the time does not exist.
void Assign(SYSTEMTIME& to, const CTime& from)
{
    if (!from.GetAsSystemTime(to))
        to = SYSTEMTIME{};
}

/// The calendar leaves the time of day as it happens to be.
SYSTEMTIME Midnight(SYSTEMTIME time)
{
    time.wHour = time.wMinute = time.wSecond = time.wMilliseconds = 0;
    return time;
}

/// By DTM_GETRANGE or MCM_GETRANGE.
template <class Time>
DWORD ReadRange(HWND control, UINT message, Time* minimum, Time* maximum)
{
    SYSTEMTIME range[2] = {};
    const auto bounds =
        static_cast<DWORD>(::SendMessage(control, message, 0, reinterpret_cast<LPARAM>(range)));
    if ((bounds & GDTR_MIN) != 0 && minimum != nullptr)
        Assign(*minimum, range[0]);
    if ((bounds & GDTR_MAX) != 0 && maximum != nullptr)
        Assign(*maximum, range[1]);
    return bounds;
}

/// By DTM_SETRANGE or MCM_SETRANGE.
template <class Time>
BOOL WriteRange(HWND control, UINT message, const Time* minimum, const Time* maximum)
{
    SYSTEMTIME range[2] = {};
    if (minimum != nullptr)
        Assign(range[0], *minimum);
    if (maximum != nullptr)
        Assign(range[1], *maximum);
    const WPARAM bounds = (minimum != nullptr ? GDTR_MIN : 0) | (maximum != nullptr ? GDTR_MAX : 0);
    return static_cast<BOOL>(::SendMessage(control, message, bounds, reinterpret_cast<LPARAM>(range)));
}
} // namespace

// ---------------------------------------------------------------------------------------------------------
// CMonthCalCtrl

BOOL CMonthCalCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return RegisterCommonControls(ICC_DATE_CLASSES) &&
           CWnd::Create(MONTHCAL_CLASS, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CMonthCalCtrl::Create(DWORD dwStyle, const POINT& pt, CWnd* pParentWnd, UINT nID)
{
    return Create(dwStyle, CRect(pt, CSize(0, 0)), pParentWnd, nID) && SizeMinReq();
}

BOOL CMonthCalCtrl::SizeMinReq(BOOL bRepaint)
{
    CRect rect;
    if (!GetMinReqRect(&rect))
        return FALSE;
    const UINT flags = SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE;
    return SetWindowPos(nullptr, 0, 0, rect.Width(), rect.Height(), bRepaint ? flags : flags | SWP_NOREDRAW);
}

int CMonthCalCtrl::GetFirstDayOfWeek(BOOL* pbLocal) const
{
    const auto answer = AfxSend<DWORD>(MCM_GETFIRSTDAYOFWEEK);
    if (pbLocal != nullptr)
        *pbLocal = HIWORD(answer);
    return LOWORD(answer);
}

BOOL CMonthCalCtrl::SetFirstDayOfWeek(int iDay, int* lpnOld)
{
    const auto answer = AfxSend<DWORD>(MCM_SETFIRSTDAYOFWEEK, 0, iDay);
    if (lpnOld != nullptr)
        *lpnOld = LOWORD(answer);
    return HIWORD(answer);
}

BOOL CMonthCalCtrl::SetDayState(int nMonths, LPMONTHDAYSTATE pStates)
{
    return AfxSend<BOOL>(MCM_SETDAYSTATE, nMonths, pStates);
}

int CMonthCalCtrl::GetMonthRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange, DWORD dwFlags) const
{
    SYSTEMTIME range[2] = {};
    const auto months = AfxSend<int>(MCM_GETMONTHRANGE, dwFlags, &range[0]);
    *pMinRange = range[0];
    *pMaxRange = range[1];
    return months;
}

int CMonthCalCtrl::GetMonthRange(CTime& refMinRange, CTime& refMaxRange, DWORD dwFlags) const
{
    SYSTEMTIME minimum, maximum;
    const int months = GetMonthRange(&minimum, &maximum, dwFlags);
    Assign(refMinRange, Midnight(minimum));
    Assign(refMaxRange, Midnight(maximum));
    return months;
}

BOOL CMonthCalCtrl::GetToday(CTime& refDateTime) const
{
    SYSTEMTIME today;
    const BOOL known = GetToday(&today);
    if (known)
        Assign(refDateTime, Midnight(today));
    return known;
}

void CMonthCalCtrl::SetToday(const CTime& refDateTime)
{
    SYSTEMTIME today;
    Assign(today, refDateTime);
    SetToday(&today);
}

BOOL CMonthCalCtrl::GetCurSel(LPSYSTEMTIME pDateTime) const
{
    ASSERT((GetStyle() & MCS_MULTISELECT) == 0);
    return AfxSend<BOOL>(MCM_GETCURSEL, 0, pDateTime);
}

BOOL CMonthCalCtrl::GetCurSel(CTime& refDateTime) const
{
    SYSTEMTIME chosen;
    const BOOL known = GetCurSel(&chosen);
    if (known)
        Assign(refDateTime, Midnight(chosen));
    return known;
}

BOOL CMonthCalCtrl::SetCurSel(const CTime& refDateTime)
{
    SYSTEMTIME chosen;
    Assign(chosen, refDateTime);
    return SetCurSel(&chosen);
}

BOOL CMonthCalCtrl::GetSelRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const
{
    SYSTEMTIME range[2] = {};
    const auto known = AfxSend<BOOL>(MCM_GETSELRANGE, 0, &range[0]);
    *pMinRange = range[0];
    *pMaxRange = range[1];
    return known;
}

BOOL CMonthCalCtrl::GetSelRange(CTime& refMinRange, CTime& refMaxRange) const
{
    SYSTEMTIME minimum, maximum;
    const BOOL known = GetSelRange(&minimum, &maximum);
    if (known)
    {
        Assign(refMinRange, Midnight(minimum));
        Assign(refMaxRange, Midnight(maximum));
    }
    return known;
}

BOOL CMonthCalCtrl::SetSelRange(const LPSYSTEMTIME pMinRange, const LPSYSTEMTIME pMaxRange)
{
    SYSTEMTIME range[2] = {*pMinRange, *pMaxRange};
    return AfxSend<BOOL>(MCM_SETSELRANGE, 0, &range[0]);
}

BOOL CMonthCalCtrl::SetSelRange(const CTime& refMinRange, const CTime& refMaxRange)
{
    SYSTEMTIME minimum, maximum;
    Assign(minimum, refMinRange);
    Assign(maximum, refMaxRange);
    return SetSelRange(&minimum, &maximum);
}

DWORD CMonthCalCtrl::GetRange(CTime* pMinRange, CTime* pMaxRange) const
{
    return ReadRange(m_hWnd, MCM_GETRANGE, pMinRange, pMaxRange);
}

DWORD CMonthCalCtrl::GetRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const
{
    return ReadRange(m_hWnd, MCM_GETRANGE, pMinRange, pMaxRange);
}

BOOL CMonthCalCtrl::SetRange(const CTime* pMinRange, const CTime* pMaxRange)
{
    return WriteRange(m_hWnd, MCM_SETRANGE, pMinRange, pMaxRange);
}

BOOL CMonthCalCtrl::SetRange(const LPSYSTEMTIME pMinRange, const LPSYSTEMTIME pMaxRange)
{
    return WriteRange(m_hWnd, MCM_SETRANGE, pMinRange, pMaxRange);
}

// ---------------------------------------------------------------------------------------------------------
// CDateTimeCtrl

BOOL CDateTimeCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return RegisterCommonControls(ICC_DATE_CLASSES) &&
           CWnd::Create(DATETIMEPICK_CLASS, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

COLORREF CDateTimeCtrl::SetMonthCalColor(int iColor, COLORREF ref)
{
    return AfxSend<COLORREF>(DTM_SETMCCOLOR, iColor, ref);
}

CMonthCalCtrl* CDateTimeCtrl::GetMonthCalCtrl() const
{
    return static_cast<CMonthCalCtrl*>(CWnd::FromHandle(AfxSend<HWND>(DTM_GETMONTHCAL)));
}

DWORD CDateTimeCtrl::GetRange(CTime* pMinRange, CTime* pMaxRange) const
{
    return ReadRange(m_hWnd, DTM_GETRANGE, pMinRange, pMaxRange);
}

DWORD CDateTimeCtrl::GetRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const
{
    return ReadRange(m_hWnd, DTM_GETRANGE, pMinRange, pMaxRange);
}

BOOL CDateTimeCtrl::SetRange(const CTime* pMinRange, const CTime* pMaxRange)
{
    return WriteRange(m_hWnd, DTM_SETRANGE, pMinRange, pMaxRange);
}

BOOL CDateTimeCtrl::SetRange(const LPSYSTEMTIME pMinRange, const LPSYSTEMTIME pMaxRange)
{
    return WriteRange(m_hWnd, DTM_SETRANGE, pMinRange, pMaxRange);
}

DWORD CDateTimeCtrl::GetTime(CTime& timeDest) const
{
    SYSTEMTIME time;
    const DWORD answer = GetTime(&time);
    if (answer == GDT_VALID)
        Assign(timeDest, time);
    return answer;
}

BOOL CDateTimeCtrl::SetTime(const CTime* pTimeNew)
{
    SYSTEMTIME time;
    if (pTimeNew != nullptr)
        Assign(time, *pTimeNew);
    return SetTime(pTimeNew != nullptr ? &time : nullptr);
}

BOOL CDateTimeCtrl::SetTime(LPSYSTEMTIME pTimeNew)
{
    if (pTimeNew != nullptr)
        return AfxSend<BOOL>(DTM_SETSYSTEMTIME, GDT_VALID, pTimeNew);
    SYSTEMTIME unread{}; // some systems want an address even so
    return AfxSend<BOOL>(DTM_SETSYSTEMTIME, GDT_NONE, &unread);
}

// ---------------------------------------------------------------------------------------------------------
// Exchange

namespace
{
/// The object of the control, permanent or temporary; the classes add no data to CWnd.
template <class Control>
Control& ControlOf(HWND control)
{
    return *static_cast<Control*>(CWnd::FromHandle(control));
}

template <class Control>
Control& LastControl(const CDataExchange* exchange)
{
    return ControlOf<Control>(::GetDlgItem(exchange->m_pDlgWnd->m_hWnd, exchange->m_idLastControl));
}

enum class Precision
{
    day, ///< the time of day is none of the user's choice
    second
};

/// A number that grows with what of the time counts.
LONGLONG Rank(const CTime& time, Precision precision)
{
    return precision == Precision::second ? time.GetTime()
                                          : (time.GetYear() * 100 + time.GetMonth()) * 100 + time.GetDay();
}

bool IsWithin(const CTime& value, const CTime* minimum, const CTime* maximum, Precision precision)
{
    return (minimum == nullptr || Rank(*minimum, precision) <= Rank(value, precision)) &&
           (maximum == nullptr || Rank(value, precision) <= Rank(*maximum, precision));
}

/// As the user writes dates and times.
CString TextOf(const CTime& time, Precision precision)
{
    SYSTEMTIME parts;
    Assign(parts, time);
    TCHAR date[80] = L"", clock[80] = L" ";
    ::GetDateFormat(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &parts, nullptr, date, ARRAYSIZE(date));
    if (precision == Precision::day)
        return date;
    ::GetTimeFormat(LOCALE_USER_DEFAULT, 0, &parts, nullptr, clock + 1, ARRAYSIZE(clock) - 1);
    return CString(date) + clock;
}

/// Gives the control its range before the user chooses, unless the program's own value is outside; tells the
/// user afterwards and ends the exchange, if that is what was chosen.
template <class Control>
void CheckRange(CDataExchange* exchange, const CTime& value, const CTime* minimum, const CTime* maximum,
                Precision precision)
{
    const bool within = IsWithin(value, minimum, maximum, precision);
    if (within && !exchange->m_bSaveAndValidate)
        LastControl<Control>(exchange).SetRange(minimum, maximum);
    if (within)
        return;
    if (!exchange->m_bSaveAndValidate)
    {
        TRACE(L"The time of control %u is outside its range.\n", exchange->m_idLastControl);
        return;
    }
    CString prompt = L"Please choose a date";
    if (minimum != nullptr)
        prompt += L" not before " + TextOf(*minimum, precision);
    if (minimum != nullptr && maximum != nullptr)
        prompt += L" and";
    if (maximum != nullptr)
        prompt += L" not after " + TextOf(*maximum, precision);
    AfxMessageBox(prompt + L".", MB_ICONEXCLAMATION);
    exchange->Fail();
}
} // namespace

void AFXAPI DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, CTime& value)
{
    auto& picker = ControlOf<CDateTimeCtrl>(pDX->PrepareCtrl(nIDC));
    if (pDX->m_bSaveAndValidate)
        picker.GetTime(value);
    else
        picker.SetTime(&value);
}

void AFXAPI DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, CString& value)
{
    auto& picker = ControlOf<CDateTimeCtrl>(pDX->PrepareCtrl(nIDC));
    if (pDX->m_bSaveAndValidate)
        picker.GetWindowText(value);
    else
        picker.SetWindowText(value);
}

void AFXAPI DDX_MonthCalCtrl(CDataExchange* pDX, int nIDC, CTime& value)
{
    auto& calendar = ControlOf<CMonthCalCtrl>(pDX->PrepareCtrl(nIDC));
    if (pDX->m_bSaveAndValidate)
        calendar.GetCurSel(value);
    else
        calendar.SetCurSel(value);
}

void AFXAPI DDV_MinMaxDateTime(CDataExchange* pDX, CTime& refValue, const CTime* pMinRange,
                               const CTime* pMaxRange)
{
    const DWORD style = LastControl<CDateTimeCtrl>(pDX).GetStyle();
    const bool showsTime = (style & DTS_TIMEFORMAT) == DTS_TIMEFORMAT;
    CheckRange<CDateTimeCtrl>(pDX, refValue, pMinRange, pMaxRange,
                              showsTime ? Precision::second : Precision::day);
}

void AFXAPI DDV_MinMaxMonth(CDataExchange* pDX, CTime& refValue, const CTime* pMinRange,
                            const CTime* pMaxRange)
{
    CheckRange<CMonthCalCtrl>(pDX, refValue, pMinRange, pMaxRange, Precision::day);
}
