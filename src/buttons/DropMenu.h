#pragma once
// The pop-up menu of a button with a drop-down arrow: how it opens beside the button, and what follows a choice.

#include <afxwin.h>

/// Opens the menu at the button's top right corner and waits until the user has done with it. The button looks
/// unfocused meanwhile. The choice, if there is one, is posted to the button as a command.
void gfnTrackDropMenu(CButton& button, CMenu& menu);

/// To be called when a choice has been dealt with: the button shows its focus again, and the parent is painted anew.
/// Does nothing if the button has no window any more.
void gfnEndDropChoice(CButton& button);
