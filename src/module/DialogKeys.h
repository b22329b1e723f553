#pragma once
// The three keys that mean the same in every text box and combo box of the library: Tab and Enter go to the
// next control (Shift+Tab to the one before), Escape cancels the dialog.

#include <afxwin.h>

/// Carries out a WM_KEYDOWN of Tab, Enter or Escape for the control; false if it is another key.
/// What it causes is posted to the control's parent, so that the control finishes its own message first.
bool gfnHandleDialogKey(const CWnd& control, UINT nChar);

/// Whether a WM_CHAR belongs to one of the three keys, and so must not reach the control.
bool gfnIsDialogKeyChar(UINT nChar);
