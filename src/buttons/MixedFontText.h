#pragma once
// What CMixedFontButton and CMixedFontStatic share when they draw their text.

#include <afxwin.h>

/// Whether the control draws over what lies behind it (WS_EX_TRANSPARENT) and wipes nothing by itself.
bool gfnIsTransparent(const CWnd& control);

/// Selects the font of the control's parent; without one the context's own font stays.
void gfnSelectParentFont(CDC& dc, const CWnd& control);

/// Before the text is drawn: an opaque control whose text is dirty wipes where it stood last and notes where
/// it is to stand; then background mode and colour are set for the text.
void gfnBeginMixedFontText(CDC& dc, const CWnd& control, const CRect& rectText, BOOL& bTextDirty,
                           CRect& rectLastText);
