#include <afxwin.h>

#include "buttons/ColorSwatch.h"

#include "buttons/DropButton.h"
#include "module/GdiScope.h"

void gfnDrawColorFace(CDC& dc, const CRect& face, COLORREF cr, BOOL bDisabled)
{
    gfnDrawDropArrow(dc, face, bDisabled);
    if (bDisabled)
        return;
    CBrush brush;
    if (cr != CLR_INVALID)
        brush.CreateSolidBrush(cr);
    gfnDrawSwatchBox(dc, gfnDropPictureArea(face), ::GetStockObject(BLACK_PEN),
                     brush.m_hObject ? brush.m_hObject : ::GetStockObject(NULL_BRUSH));
}

// Of an area that is turned over the system would draw a rectangle all the same, across the arrow.
void gfnDrawSwatchBox(CDC& dc, const CRect& area, HGDIOBJ hPen, HGDIOBJ hBrush)
{
    if (area.IsRectEmpty())
        return;
    const CGdiSelection pen(dc, hPen);
    const CGdiSelection brush(dc, hBrush);
    dc.Rectangle(area);
}
