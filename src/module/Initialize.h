#pragma once
// Start-up: the shared graphics of the library.

#include <windows.h>

/// Creates the theme helper, loads the picture tables of the picker buttons and the shared icons of
/// CButtonST. Run at every process attach. Icons that are there already are left alone; bitmaps are loaded
/// anew. A missing bitmap or theme library is tolerated; a missing icon is a failed assertion and ends the
/// process.
void gfnInitialize(HINSTANCE hInstance);
