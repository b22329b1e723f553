#include <afxwin.h>

#include "NotificationLog.h"

#include <Translator.h>

void CNotificationLog::MakeColumns()
{
    SetExtendedStyle(LVS_EX_FULLROWSELECT);
    CRect rect;
    GetClientRect(rect);
    const int nControl = rect.Width() * 3 / 10;
    InsertColumn(0, gOtLang.Do(_T("Control")), LVCFMT_LEFT, nControl);
    InsertColumn(1, gOtLang.Do(_T("Handler call")), LVCFMT_LEFT,
                 rect.Width() - nControl - ::GetSystemMetrics(SM_CXVSCROLL));
}

void CNotificationLog::Write(LPCTSTR pszControl, LPCTSTR pszCall)
{
    constexpr int kMost = 1000;
    if (GetItemCount() == kMost)
        DeleteItem(0);
    const int nItem = InsertItem(GetItemCount(), pszControl);
    SetItemText(nItem, 1, pszCall);
    EnsureVisible(nItem, FALSE);
}
