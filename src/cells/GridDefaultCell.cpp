#include <afxwin.h>

#include "cells/GridDefaultCell.h"

IMPLEMENT_DYNCREATE(CGridDefaultCell, CGridCell)

namespace
{
/// The part of NONCLIENTMETRICS that every version of Windows knows, in bytes.
constexpr UINT kMetricsSize = 500;

/// The text whose extent is the size of a cell, with half a line of air.
constexpr wchar_t kTypicalText[] = L" XXXXXXXXXXXX ";
} // namespace

CGridDefaultCell::CGridDefaultCell()
{
    m_nFormat = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS;

    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = kMetricsSize;
    ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, kMetricsSize, &metrics, 0);
    CGridDefaultCell::SetFont(&metrics.lfMessageFont);
}

CGridDefaultCell::~CGridDefaultCell()
{
}

void CGridDefaultCell::SetData(LPARAM /*lParam*/)
{
}

void CGridDefaultCell::SetState(DWORD /*nState*/)
{
}

void CGridDefaultCell::SetCoords(int /*nRow*/, int /*nCol*/)
{
}

void CGridDefaultCell::SetFont(const LOGFONTW* plf)
{
    if (!plf)
        return;
    m_Font.DeleteObject();
    m_Font.CreateFontIndirect(plf);
    CGridCell::SetFont(plf);

    CDC dc;
    if (!dc.CreateCompatibleDC(nullptr))
    {
        SetMargin(3);
        m_Size = CSize(40, 16);
        return;
    }
    CFont* const pOldFont = dc.SelectObject(&m_Font);
    SetMargin(dc.GetTextExtent(L" ", 1).cx);
    m_Size = dc.GetTextExtent(kTypicalText, static_cast<int>(wcslen(kTypicalText)));
    m_Size.cy = m_Size.cy * 3 / 2;
    dc.SelectObject(pOldFont);
}

DWORD CGridDefaultCell::GetState()
{
    return m_nState | CELL_READONLY;
}

LOGFONTW* CGridDefaultCell::GetFont()
{
    return m_plfFont;
}

CFont* CGridDefaultCell::GetFontObject()
{
    return &m_Font;
}

DWORD CGridDefaultCell::GetStyle() const
{
    return m_dwStyle;
}

void CGridDefaultCell::SetStyle(DWORD dwStyle)
{
    m_dwStyle = dwStyle;
}

int CGridDefaultCell::GetWidth() const
{
    return m_Size.cx;
}

int CGridDefaultCell::GetHeight() const
{
    return m_Size.cy;
}

void CGridDefaultCell::SetWidth(int nWidth)
{
    m_Size.cx = nWidth;
}

void CGridDefaultCell::SetHeight(int nHeight)
{
    m_Size.cy = nHeight;
}
