#pragma once
// How wide the drop-down list of a combo box must be.

#include <afxwin.h>

/// The width at which the longest entry fits beside a vertical scroll bar, in the control's font, with the
/// width of a "0" as margin; in pixels. Measures each entry once. Without entries it is the margin alone.
int gfnMeasureDropWidth(CComboBox& combo);

/// Widens the list to that, and `nBeside` pixels for what stands beside the text. It never becomes narrower.
/// For the moment at which the list opens.
void gfnGrowDropWidth(CComboBox& combo, int nBeside = 0);
