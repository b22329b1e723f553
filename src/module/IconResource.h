#pragma once
// Icons from resources, in their own size.

#include <afxwin.h>

/// The icon from the module of MFC's resource chain that has it; null if none has. It is the caller's, to
/// keep or to destroy.
inline HICON gfnLoadIconResource(int nId)
{
    const HINSTANCE hModule = AfxFindResourceHandle(MAKEINTRESOURCE(nId), RT_GROUP_ICON);
    return static_cast<HICON>(::LoadImage(hModule, MAKEINTRESOURCE(nId), IMAGE_ICON, 0, 0, 0));
}
