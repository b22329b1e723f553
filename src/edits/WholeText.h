#pragma once
// Reads the text of a box, all of it, whoever else answers for the box.
//
// ```cpp
//     const CString strTyped = gfnWholeText(m_edit);
// ```
//
// A CEditCtrlAnsiMsgHook in front of an edit control fills only half of the buffer that a reader offers, so
// that GetWindowText gives half of the text. Whoever needs what the user has typed reads it here: there is
// room for twice the text, and so the half holds it. A box without a hook gives the same text. Boxes of one
// line and of many are read alike; a window that is not there has an empty text.

#include <afxwin.h>

#include "module/Export.h"

/// All that stands in the box.
OW_DIALOGCONTROLS_API CString gfnWholeText(const CWnd& wnd);
