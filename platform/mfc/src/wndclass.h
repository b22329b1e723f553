#pragma once
// The framework's own window classes; each is registered at its first use. Null if that fails.

#include <afxwin.h>

LPCTSTR RegisterChildClass(); ///< for a CWnd that names no class
LPCTSTR RegisterFrameClass(); ///< for a CFrameWnd that names no class

/// Registers the classes of the common controls, which dialog templates name; once for the process.
void InitializeCommonControls();
