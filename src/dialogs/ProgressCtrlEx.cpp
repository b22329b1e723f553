#include <afxwin.h>

#include "dialogs/ProgressCtrlEx.h"

#include "module/GdiScope.h"
#include "module/MemorySurface.h"

namespace
{
constexpr int kMargin = 2;

COLORREF FaceColor()
{
    return ::GetSysColor(COLOR_3DFACE);
}

/// Where a text begins: in the middle, or at the margin if there is no room for it.
int TextOrigin(int nExtent, int nText)
{
    if (nText >= nExtent - 2 * kMargin)
        return kMargin;
    return (nExtent - kMargin - nText - kMargin) / 2 + kMargin;
}
} // namespace

CProgressCtrlEx::CProgressCtrlEx() : m_crBar(FaceColor())
{
}

BEGIN_MESSAGE_MAP(CProgressCtrlEx, CProgressCtrl)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

void CProgressCtrlEx::OnPaint()
{
    CPaintDC dc(this);
    CRect rect;
    GetClientRect(rect);
    ow::CMemorySurface surface;
    if (rect.IsRectEmpty() || !surface.Create(dc, rect.Size()))
        return;
    Draw(surface.DC(), rect.Size());
    dc.BitBlt(0, 0, rect.Width(), rect.Height(), &surface.DC(), 0, 0, SRCCOPY);
}

// A paint covers everything.
BOOL CProgressCtrlEx::OnEraseBkgnd(CDC*)
{
    return TRUE;
}

// The system repaints only as far as the bar moves, and not at all beyond the range; the text is in the middle.
void CProgressCtrlEx::Show(int nPos, const CString& strText)
{
    m_strText = strText;
    Invalidate(FALSE);
    SetPos(nPos);
    UpdateWindow();
}

CProgressCtrlEx::SParts CProgressCtrlEx::Split(CSize client) const
{
    constexpr int kWhole = 100;
    const CRect rectInner(kMargin, kMargin, client.cx - kMargin, client.cy - kMargin);
    SParts parts{rectInner, rectInner};
    if (m_bVertical)
        parts.done.top = parts.rest.bottom = rectInner.bottom - rectInner.Height() * GetPos() / kWhole;
    else
        parts.done.right = parts.rest.left = rectInner.left + rectInner.Width() * GetPos() / kWhole;
    return parts;
}

void CProgressCtrlEx::Draw(CDC& dc, CSize client) const
{
    dc.FillSolidRect(CRect(CPoint(0, 0), client), FaceColor());
    if (client.cx <= 2 * kMargin || client.cy <= 2 * kMargin)
        return; // nothing but margin
    const SParts parts = Split(client);
    dc.FillSolidRect(parts.done, m_crBar);
    if (!m_strText.IsEmpty())
        DrawText(dc, client, parts);
}

void CProgressCtrlEx::DrawText(CDC& dc, CSize client, const SParts& parts) const
{
    const CGdiSelection font(dc, m_hFont);
    const CSize text = dc.GetTextExtent(m_strText);
    const CPoint origin(TextOrigin(client.cx, text.cx), TextOrigin(client.cy, text.cy));
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(FaceColor());
    dc.ExtTextOut(origin.x, origin.y, ETO_CLIPPED, parts.done, m_strText, nullptr);
    dc.SetTextColor(m_crBar);
    dc.ExtTextOut(origin.x, origin.y, ETO_CLIPPED, parts.rest, m_strText, nullptr);
}
