#include <afxwin.h>

#include "edits/WholeText.h"

CString gfnWholeText(const CWnd& wnd)
{
    CString strText;
    if (!::IsWindow(wnd.m_hWnd))
        return strText;
    const int nRoom = 2 * (wnd.GetWindowTextLength() + 1);
    wnd.GetWindowText(strText.GetBuffer(nRoom), nRoom);
    strText.ReleaseBuffer();
    return strText;
}
