#pragma once
// A horizontal gradient, by the system where it can do it and in bands where not.

#include <afxwin.h>

#include "module/Export.h"

/// Fills a rectangle with a gradient from a colour at its left to COLOR_BTNFACE at its right. Uses
/// "GradientFill" of "Msimg32.dll", which is looked for once in the life of the process, or else the bands
/// below.
OW_DIALOGCONTROLS_API void gfnFillGradient(CDC& dc, const CRect& rect, COLORREF crLeft);

/// The same in solid bands, at least 4 pixels wide and as many as there are steps between the colours.
OW_DIALOGCONTROLS_API void gfnFillGradientBands(CDC& dc, const CRect& rect, COLORREF crLeft);
