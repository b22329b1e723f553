#pragma once
// What the tests of this folder share: small windows, and the message that ends a program.

#include <afxwin.h>

/// A hidden top-level window without a frame.
inline BOOL CreatePopup(CWnd& window, CWnd* owner = nullptr, DWORD style = 0)
{
    return window.CreateEx(0, nullptr, L"", WS_POPUP | style, CRect(0, 0, 50, 50), owner, 0);
}

inline BOOL CreateChild(CWnd& child, CWnd& parent, UINT id)
{
    return child.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 20, 20), &parent, id);
}

/// Whether the end of the program was asked for; takes the message out of the queue.
inline bool TakeQuitMessage()
{
    MSG message;
    return ::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != FALSE;
}
