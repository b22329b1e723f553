#pragma once
// The tool tips of windows, as the other sources see them.

#include <afxwin.h>

/// Lets the tips see a message before it is dispatched; costs nothing until some window has tips.
void FilterToolTips(CWnd& window, MSG* message);
/// To be called when a window goes.
void ForgetToolTips(const CWnd& window);
/// Gives back the thread's tip window.
void ReleaseToolTip();
