#include <afxwin.h>

#include "buttons/MixedFontText.h"

#include "module/GdiScope.h"

bool gfnIsTransparent(const CWnd& control)
{
    return (control.GetExStyle() & WS_EX_TRANSPARENT) != 0;
}

void gfnSelectParentFont(CDC& dc, const CWnd& control)
{
    const CWnd* pParent = control.GetParent();
    if (CFont* pFont = pParent ? pParent->GetFont() : nullptr)
        dc.SelectObject(pFont);
}

void gfnBeginMixedFontText(CDC& dc, const CWnd& control, const CRect& rectText, BOOL& bTextDirty,
                           CRect& rectLastText)
{
    const bool bTransparent = gfnIsTransparent(control);
    if (!bTransparent && bTextDirty)
    {
        const CGdiSelection face(dc, ::GetSysColorBrush(COLOR_BTNFACE));
        dc.PatBlt(rectLastText.left, rectLastText.top, rectLastText.Width(), rectLastText.Height(), PATCOPY);
        rectLastText = rectText;
        bTextDirty = FALSE;
    }
    dc.SetBkMode(bTransparent ? TRANSPARENT : OPAQUE);
    dc.SetBkColor(::GetSysColor(COLOR_BTNFACE));
}
