#pragma once
// Whether a control is still there after it has called out.
//
//     const HWND hWnd = m_hWnd;
//     m_pHandler->OnButtonClicked(GetDlgCtrlID()); // may close the dialog, which may delete itself
//     if (!gfnHasWindow(this, hWnd))
//         return TRUE;

#include <afxwin.h>

/// Whether an object still has the window that it had before. The object may be gone: it is not looked at.
inline bool gfnHasWindow(const CWnd* pObject, HWND hWnd)
{
    return CWnd::FromHandlePermanent(hWnd) == pObject;
}
