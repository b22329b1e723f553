#pragma once
// Handles of arguments that may be null pointers, which many Win32 calls take as "none".

#include <afxwin.h>

inline HWND SafeHwnd(const CWnd* window)
{
    return window == nullptr ? nullptr : window->m_hWnd;
}

inline HDC SafeHdc(const CDC* dc)
{
    return dc == nullptr ? nullptr : dc->m_hDC;
}

inline HMENU SafeMenu(const CMenu* menu)
{
    return menu == nullptr ? nullptr : menu->m_hMenu;
}

inline HGDIOBJ SafeObject(const CGdiObject* object)
{
    return object == nullptr ? nullptr : object->m_hObject;
}

inline HBRUSH SafeBrush(const CBrush* brush)
{
    return static_cast<HBRUSH>(SafeObject(brush));
}

inline HBITMAP SafeBitmap(const CBitmap* bitmap)
{
    return static_cast<HBITMAP>(SafeObject(bitmap));
}

inline HRGN SafeRgn(const CRgn* region)
{
    return static_cast<HRGN>(SafeObject(region));
}
