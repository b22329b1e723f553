#include "ColorPreview.h"

#include <commctrl.h>

static void DrawHalf(CDC& dc, const CRect& rect, COLORREF color)
{
    dc.FillSolidRect(rect, color == CLR_NONE ? ::GetSysColor(COLOR_BTNFACE) : color);
    if (color != CLR_NONE)
        return;
    dc.MoveTo(rect.left, rect.bottom); // a stroke for: no colour
    dc.LineTo(rect.right, rect.top);
}

BEGIN_MESSAGE_MAP(CColorPreview, CStatic)
    ON_WM_PAINT()
END_MESSAGE_MAP()

void CColorPreview::SetColors(COLORREF crOld, COLORREF crNew)
{
    m_crOld = crOld;
    m_crNew = crNew;
    Invalidate(FALSE);
}

void CColorPreview::OnPaint()
{
    CPaintDC dc(this);
    CRect rect;
    GetClientRect(&rect);
    dc.DrawEdge(rect, BDR_SUNKENOUTER, BF_RECT | BF_ADJUST);
    const int nMiddle = rect.CenterPoint().x;
    DrawHalf(dc, CRect(rect.left, rect.top, nMiddle, rect.bottom), m_crOld);
    DrawHalf(dc, CRect(nMiddle, rect.top, rect.right, rect.bottom), m_crNew);
}
