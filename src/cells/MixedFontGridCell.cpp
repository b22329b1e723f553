#include <afxwin.h>

#include "cells/MixedFontGridCell.h"

#include "cells/CellTextScope.h"
#include "grid/GridCtrl.h"
#include "module/GdiScope.h"

#include <MixedFont.h>

#include <optional>

IMPLEMENT_DYNCREATE(CMixedFontGridCell, CGridCell)

namespace
{
/// `rect` holds its last pixel, which is not counted.
CPoint PlaceInCell(const CRect& rect, CSize size, DWORD nFormat)
{
    constexpr int kGap = 2; // pixels
    CPoint point(rect.left + kGap, rect.top + (rect.Height() - size.cy) / 2);
    if (nFormat & DT_RIGHT)
        point.x = rect.right - size.cx - kGap;
    else if (nFormat & DT_CENTER)
        point.x = rect.left + (rect.Width() - size.cx) / 2;
    return point;
}
} // namespace

void CMixedFontGridCell::operator=(const CMixedFontGridCell& cell)
{
    CGridCellBase::operator=(cell);
}

// All but the text is as in any cell.
BOOL CMixedFontGridCell::Draw(CDC* pDC, int nRow, int nCol, CRect rect, BOOL bEraseBkgnd)
{
    {
        const CCellTextScope withoutText(*this, L"");
        if (!CGridCellBase::Draw(pDC, nRow, nCol, rect, bEraseBkgnd))
            return FALSE;
    }
    DrawMixedText(*pDC, rect);
    return TRUE;
}

// The colour is that of an ordinary cell also where the cell is selected: this is wanted.
void CMixedFontGridCell::DrawMixedText(CDC& dc, const CRect& rect)
{
    const LRESULT nFont = ::SendMessage(GetGrid()->m_hWnd, WM_GETFONT, 0, 0); // 0 without a window
    const CFontSelection font(dc, reinterpret_cast<HGDIOBJ>(nFont));
    const CBkModeScope transparent(dc, TRANSPARENT);
    const COLORREF crOwn = GetTextClr();
    const CTextColorScope color(dc, crOwn == CLR_INHERIT ? GetDefaultCell()->GetTextClr() : crOwn);

    const LPCWSTR pszText = GetText();
    const CSize size = CMixedFont::GetTextExtent(&dc, pszText);
    const CPoint point = PlaceInCell(rect, size, GetFormat());
    std::optional<CSavedDC> clipped; // costs, and most texts fit
    if (size.cx > rect.Width() || size.cy > rect.Height())
    {
        clipped.emplace(dc);
        dc.IntersectClipRect(rect.left, rect.top, rect.right + 1, rect.bottom + 1);
    }
    CMixedFont::TextOut(&dc, point, pszText);
}
