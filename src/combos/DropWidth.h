#pragma once
// How wide the drop-down list of a combo box must be.

#include <afxwin.h>

/// The width at which the longest entry fits beside a vertical scroll bar, in the control's font, with the
/// width of a "0" as margin; in pixels. Measures each entry once. Without entries it is the margin alone.
int gfnMeasureDropWidth(CComboBox& combo);
