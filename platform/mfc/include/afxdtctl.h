#pragma once
#define __AFXDTCTL_H__ // asked for by the headers that wizards make
// The date and time picker and the month calendar, and their exchange with a dialog's members.
//
//     DDX_DateTimeCtrl(pDX, IDC_DUE, m_dueTime); // CTime
//     DDV_MinMaxDateTime(pDX, m_dueTime, &m_firstTime, &m_lastTime);
//
// Members send the control's message of the same name and answer what it answers. Times are local. A null time sets a
// picker with DTS_SHOWNONE to no date, and a null bound leaves that side open. A CTime knows the years 1970 to 3000
// only; SYSTEMTIME goes as far as the control. The forms that take an OLE date are no part of this MFC.

#include <afxwin.h>
#include <atltime.h>

#include <commctrl.h>

/// A calendar that shows one or several months.
class AFX_CORE_CLASS CMonthCalCtrl : public CWnd
{
    DECLARE_DYNAMIC(CMonthCalCtrl)
    using CWnd::Create;

public:
    CMonthCalCtrl();
    ~CMonthCalCtrl() override { DestroyWindow(); }

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    /// As large as one month wants it.
    virtual BOOL Create(DWORD dwStyle, const POINT& pt, CWnd* pParentWnd, UINT nID);

    DWORD HitTest(PMCHITTESTINFO pMCHitTest) { return AfxSend<DWORD>(MCM_HITTEST, 0, pMCHitTest); }
    /// Changes the size, not the place, to one month.
    BOOL SizeMinReq(BOOL bRepaint = TRUE);
    BOOL GetMinReqRect(RECT* pRect) const { return AfxSend<BOOL>(MCM_GETMINREQRECT, 0, pRect); }

    /// `nRegion` is an MCSC_ value.
    COLORREF GetColor(int nRegion) const { return AfxSend<COLORREF>(MCM_GETCOLOR, nRegion); }
    COLORREF SetColor(int nRegion, COLORREF ref) { return AfxSend<COLORREF>(MCM_SETCOLOR, nRegion, ref); }
    /// 0 is Monday; `pbLocal` tells whether the day is another than the user's settings say.
    int GetFirstDayOfWeek(BOOL* pbLocal = nullptr) const;
    BOOL SetFirstDayOfWeek(int iDay, int* lpnOld = nullptr);
    int GetMonthDelta() const { return AfxSend<int>(MCM_GETMONTHDELTA); }
    int SetMonthDelta(int iDelta) { return AfxSend<int>(MCM_SETMONTHDELTA, iDelta); }
    /// Bold days: for each month that GetMonthRange counts with GMR_DAYSTATE, a bit for each day.
    BOOL SetDayState(int nMonths, LPMONTHDAYSTATE pStates);
    /// The first and last day that show, `dwFlags` GMR_VISIBLE or GMR_DAYSTATE; answers the count of months.
    int GetMonthRange(CTime& refMinRange, CTime& refMaxRange, DWORD dwFlags) const;
    int GetMonthRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange, DWORD dwFlags) const;

    BOOL GetToday(CTime& refDateTime) const;
    BOOL GetToday(LPSYSTEMTIME pDateTime) const { return AfxSend<BOOL>(MCM_GETTODAY, 0, pDateTime); }
    void SetToday(const CTime& refDateTime);
    void SetToday(const LPSYSTEMTIME pDateTime) { AfxSend(MCM_SETTODAY, 0, pDateTime); }

    /// The chosen day, at midnight. Not with MCS_MULTISELECT, for which there are the ranges below.
    BOOL GetCurSel(CTime& refDateTime) const;
    BOOL GetCurSel(LPSYSTEMTIME pDateTime) const;
    BOOL SetCurSel(const CTime& refDateTime);
    BOOL SetCurSel(const LPSYSTEMTIME pDateTime) { return AfxSend<BOOL>(MCM_SETCURSEL, 0, pDateTime); }
    int GetMaxSelCount() const { return AfxSend<int>(MCM_GETMAXSELCOUNT); }
    BOOL SetMaxSelCount(int nMax) { return AfxSend<BOOL>(MCM_SETMAXSELCOUNT, nMax); }
    BOOL GetSelRange(CTime& refMinRange, CTime& refMaxRange) const;
    BOOL GetSelRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const;
    BOOL SetSelRange(const CTime& refMinRange, const CTime& refMaxRange);
    BOOL SetSelRange(const LPSYSTEMTIME pMinRange, const LPSYSTEMTIME pMaxRange);

    /// The days that can be chosen. GetRange answers GDTR_MIN and GDTR_MAX for the sides that are bounded, and
    /// leaves the time of an open side alone.
    DWORD GetRange(CTime* pMinRange, CTime* pMaxRange) const;
    DWORD GetRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const;
    BOOL SetRange(const CTime* pMinRange, const CTime* pMaxRange);
    BOOL SetRange(const LPSYSTEMTIME pMinRange, const LPSYSTEMTIME pMaxRange);
};

/// A box with a date or a time, with a calendar that drops down or a spin button.
class AFX_CORE_CLASS CDateTimeCtrl : public CWnd
{
    DECLARE_DYNAMIC(CDateTimeCtrl)
    using CWnd::Create;

public:
    CDateTimeCtrl();
    ~CDateTimeCtrl() override { DestroyWindow(); }

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// `iColor` is an MCSC_ value.
    COLORREF GetMonthCalColor(int iColor) const { return AfxSend<COLORREF>(DTM_GETMCCOLOR, iColor); }
    COLORREF SetMonthCalColor(int iColor, COLORREF ref);
    BOOL SetFormat(LPCTSTR pstrFormat) { return AfxSend<BOOL>(DTM_SETFORMAT, 0, pstrFormat); }
    /// The calendar while it is dropped down, else null.
    CMonthCalCtrl* GetMonthCalCtrl() const;
    CFont* GetMonthCalFont() const { return CFont::FromHandle(AfxSend<HFONT>(DTM_GETMCFONT)); }
    void SetMonthCalFont(HFONT hFont, BOOL bRedraw = TRUE) { AfxSend(DTM_SETMCFONT, hFont, bRedraw); }

    /// As for CMonthCalCtrl.
    DWORD GetRange(CTime* pMinRange, CTime* pMaxRange) const;
    DWORD GetRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const;
    BOOL SetRange(const CTime* pMinRange, const CTime* pMaxRange);
    BOOL SetRange(const LPSYSTEMTIME pMinRange, const LPSYSTEMTIME pMaxRange);

    /// GDT_VALID, or GDT_NONE, which leaves the time alone.
    DWORD GetTime(CTime& timeDest) const;
    DWORD GetTime(LPSYSTEMTIME pTimeDest) const { return AfxSend<DWORD>(DTM_GETSYSTEMTIME, 0, pTimeDest); }
    BOOL SetTime(const CTime* pTimeNew);
    BOOL SetTime(LPSYSTEMTIME pTimeNew = nullptr);
};

// Dialog data exchange, see afxdd_.h. The text form exchanges what the picker shows.
AFX_CORE_API void AFXAPI DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, CTime& value);
AFX_CORE_API void AFXAPI DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, CString& value);
AFX_CORE_API void AFXAPI DDX_MonthCalCtrl(CDataExchange* pDX, int nIDC, CTime& value);

// Give the control the range while loading, and check the value while saving. A null bound leaves that side open.
AFX_CORE_API void AFXAPI DDV_MinMaxDateTime(CDataExchange* pDX, CTime& refValue, const CTime* pMinRange,
                                            const CTime* pMaxRange);
AFX_CORE_API void AFXAPI DDV_MinMaxMonth(CDataExchange* pDX, CTime& refValue, const CTime* pMinRange,
                                         const CTime* pMaxRange);
