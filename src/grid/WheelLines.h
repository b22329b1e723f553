#pragma once

/// For the grid's own sources: lines for one notch of the mouse wheel, as the user has set it for the system; -1
/// stands for a page, and 3 for a system that does not tell.
int gfnMouseWheelLines();
