#pragma once
// For programs that play the CAD host: making and ending its main window. Add-ons do not need this header.
//
//     BOOL CGalleryApp::InitInstance()
//     {
//         m_pMainWnd = acadhostCreateFrame(L"Gallery", SW_SHOW);
//         return m_pMainWnd != nullptr;
//     }

#include "acadhostdef.h"

#include <afxwin.h>

/// Makes the frame that acedGetAcadFrame answers, and shows it by `nCmdShow` (SW_ constant). If there is a
/// frame already, it gets the title and is shown. Null if the window cannot be made.
ACADHOST_API CFrameWnd* acadhostCreateFrame(LPCTSTR lpszTitle, int nCmdShow);

/// Makes a window of the program's own the host's frame; the program keeps owning it and withdraws it with
/// null before it goes. A frame made by acadhostCreateFrame is destroyed first.
ACADHOST_API void acadhostUseFrame(CFrameWnd* pFrame);

/// Destroys the frame made by acadhostCreateFrame or acedGetAcadFrame; without one it does nothing. A later
/// acedGetAcadFrame makes a new one.
ACADHOST_API void acadhostDestroyFrame();

/// Whether there is a frame, without making one.
ACADHOST_API bool acadhostHasFrame();
