#pragma once
// The pop-up menu of a button with a drop-down arrow: how it opens beside the button, and what follows a
// choice.

#include <afxwin.h>

/// Opens the menu at the button's top right corner and waits until the user has done with it. The button
/// looks unfocused meanwhile. The choice, if there is one, is posted to the button as a command. False if
/// the button has lost its window meanwhile: it may be gone itself.
bool gfnTrackDropMenu(CButton& button, CMenu& menu);

/// To be called when the handler has been told of a choice: the button shows its focus again, if it still
/// has it, and the parent is painted anew. False if the handler took the window `hWnd` away from the
/// button, which may be gone itself.
bool gfnEndDropChoice(CButton& button, HWND hWnd);
