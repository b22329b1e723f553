#include <afxwin.h>

#include "grid/NotifyOwner.h"

#include "grid/GridTypes.h"

LRESULT gfnNotifyOwner(const CWnd* pSender, NMHDR& header, UINT nCode)
{
    if (!pSender || !::IsWindow(pSender->m_hWnd))
        return 0;
    const CWnd* const pReceiver = pSender->GetOwner();
    if (!pReceiver || !::IsWindow(pReceiver->m_hWnd))
        return 0;

    header.hwndFrom = pSender->m_hWnd;
    header.idFrom = pSender->GetDlgCtrlID();
    header.code = nCode;
    return ::SendMessage(pReceiver->m_hWnd, WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
}

LRESULT gfnNotifyOwner(const CWnd* pSender, int nRow, int nCol, UINT nCode)
{
    GridNotify record{{}, nRow, nCol};
    return gfnNotifyOwner(pSender, record.hdr, nCode);
}
