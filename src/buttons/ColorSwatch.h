#pragma once
// What the two colour buttons share: what stands on their face, and what follows a choice.
//
//     CButtonST::OnDrawBackground(pDC, rect);
//     gfnDrawColorFace(*pDC, gfnDropFace(rect, m_bIsPressed), *m_pCurrentColor, m_bIsDisabled);
//
// Private to the library.

#include <afxwin.h>

/// Draws the arrow and, unless the button is disabled, the swatch on a face of gfnDropFace. A colour of
/// CLR_INVALID shows as an empty swatch.
void gfnDrawColorFace(CDC& dc, const CRect& face, COLORREF cr, BOOL bDisabled);

/// Outlines and fills a swatch area of gfnDropPictureArea. Does nothing on a button that has no room for one.
void gfnDrawSwatchBox(CDC& dc, const CRect& area, HGDIOBJ hPen, HGDIOBJ hBrush);

/// To be called when another value stands in the variable: the parent is painted anew, the class's own hook
/// runs, and the handler, if there is one, is told what stands in the variable now.
template <class Hook, class Handler, class Value>
void gfnTellColorChosen(CButton& button, Hook hook, Handler* pHandler, void (Handler::*pTell)(int, int),
                        const Value& value)
{
    button.GetParent()->Invalidate(FALSE);
    hook();
    if (pHandler)
        (pHandler->*pTell)(button.GetDlgCtrlID(), static_cast<int>(value));
}
