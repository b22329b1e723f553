#include <afxwin.h>

#include "DlgPage/GradientFill.h"

#include "module/GdiScope.h"

#include <algorithm>

namespace
{
using GradientFillFunction = BOOL(WINAPI*)(HDC, PTRIVERTEX, ULONG, PVOID, ULONG, ULONG);

/// The system's function, or null. The library stays loaded if it has it.
GradientFillFunction LoadGradientFill()
{
    const HMODULE hLibrary = ::LoadLibraryW(L"Msimg32.dll");
    if (!hLibrary)
        return nullptr;
    const auto function = reinterpret_cast<GradientFillFunction>(
        reinterpret_cast<void*>(::GetProcAddress(hLibrary, "GradientFill")));
    if (!function)
        ::FreeLibrary(hLibrary);
    return function;
}

TRIVERTEX Vertex(CPoint point, COLORREF cr)
{
    const auto channel = [](BYTE value) { return static_cast<COLOR16>(value << 8); };
    return {point.x, point.y, channel(GetRValue(cr)), channel(GetGValue(cr)), channel(GetBValue(cr)), 0};
}

/// A colour that is `i` of `n` equal steps on the way from one to another.
COLORREF Between(COLORREF crFrom, COLORREF crTo, int i, int n)
{
    const auto channel = [&](int from, int to) { return from + i * (to - from) / n; };
    return RGB(channel(GetRValue(crFrom), GetRValue(crTo)), channel(GetGValue(crFrom), GetGValue(crTo)),
               channel(GetBValue(crFrom), GetBValue(crTo)));
}

/// How many different colours are worth a band of their own.
int StepsBetween(COLORREF crFrom, COLORREF crTo)
{
    const auto channel = [](int from, int to) { return (to - from + 1) / 2; };
    return std::max({1, channel(GetRValue(crFrom), GetRValue(crTo)),
                     channel(GetGValue(crFrom), GetGValue(crTo)),
                     channel(GetBValue(crFrom), GetBValue(crTo))});
}
} // namespace

void gfnFillGradient(CDC& dc, const CRect& rect, COLORREF crLeft)
{
    static const GradientFillFunction s_pGradientFill = LoadGradientFill();
    if (!s_pGradientFill)
    {
        gfnFillGradientBands(dc, rect, crLeft);
        return;
    }
    TRIVERTEX corners[] = {Vertex(rect.TopLeft(), crLeft),
                           Vertex(rect.BottomRight(), ::GetSysColor(COLOR_BTNFACE))};
    GRADIENT_RECT whole{0, 1};
    s_pGradientFill(dc.m_hDC, corners, 2, &whole, 1, GRADIENT_FILL_RECT_H);
}

void gfnFillGradientBands(CDC& dc, const CRect& rect, COLORREF crLeft)
{
    constexpr int kNarrowest = 4;
    const COLORREF crRight = ::GetSysColor(COLOR_BTNFACE);
    const int nWidth = rect.Width();
    const int nBand = std::max(nWidth / StepsBetween(crLeft, crRight), kNarrowest);
    const int nBands = (nWidth + nBand - 1) / nBand;
    for (int i = 0, x = rect.left; i < nBands; ++i, x += nBand)
    {
        CBrush brush(Between(crLeft, crRight, i, nBands));
        const CGdiSelection selection(dc, brush);
        dc.PatBlt(x, rect.top, std::min<int>(nBand, rect.right - x), rect.Height(), PATCOPY);
    }
}
