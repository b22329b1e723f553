#pragma once
// Windows above a window.

#include <windows.h>

/// The parent of a child window, the owner of any other.
inline HWND ParentOrOwnerOf(HWND window)
{
    const bool isChild = (::GetWindowLong(window, GWL_STYLE) & WS_CHILD) != 0;
    return isChild ? ::GetParent(window) : ::GetWindow(window, GW_OWNER);
}
