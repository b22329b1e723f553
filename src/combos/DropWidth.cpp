#include <afxwin.h>

#include "combos/DropWidth.h"

#include "module/GdiScope.h"

#include <algorithm>

namespace
{
int TextWidth(HDC hDC, LPCTSTR pszText, int nLength)
{
    CSize size;
    ::GetTextExtentPoint32(hDC, pszText, nLength, &size);
    return size.cx;
}
} // namespace

int gfnMeasureDropWidth(CComboBox& combo)
{
    CClientDC dc(&combo);
    const CGdiSelection font(dc, reinterpret_cast<HFONT>(combo.SendMessage(WM_GETFONT)));
    const int nScrollBar = ::GetSystemMetrics(SM_CXVSCROLL);

    int nMax = 0;
    CString strItem;
    for (int i = 0, nCount = combo.GetCount(); i < nCount; ++i)
    {
        combo.GetLBText(i, strItem);
        nMax = std::max(nMax, TextWidth(dc, strItem, strItem.GetLength()) + nScrollBar);
    }
    return nMax + TextWidth(dc, _T("0"), 1);
}

void gfnGrowDropWidth(CComboBox& combo, int nBeside)
{
    const int nWidth = gfnMeasureDropWidth(combo) + nBeside;
    if (nWidth > combo.GetDroppedWidth())
        combo.SetDroppedWidth(nWidth);
}
