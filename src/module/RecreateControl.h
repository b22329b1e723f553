#pragma once
// Styles that the system's controls take only at their creation.

#include <afxwin.h>

/// Makes a control of a dialog anew with other styles, at `rect` in its parent's client area. Its id, text
/// and font stay; it comes last in the tab order, and what else it held is lost, so call it in OnInitDialog.
void gfnRecreateControl(CWnd& control, DWORD dwStyle, const CRect& rect);
