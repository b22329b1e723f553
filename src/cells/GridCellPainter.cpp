#include <afxwin.h>

#include "cells/GridCellPainter.h"

#include "cells/PlainLine.h"
#include "grid/GridCtrl.h"
#include "module/GdiScope.h"

namespace
{
/// The fills do not paint the right and bottom edges that the rectangle of a cell holds.
CRect Grown(const CRect& rect)
{
    return CRect(rect.left, rect.top, rect.right + 1, rect.bottom + 1);
}

/// Three corners of the arrow head in a square of `size` at a point.
void DrawTriangle(CDC& dc, CPoint at, int size, bool up)
{
    const int base = up ? at.y + size : at.y;
    const int tip = up ? at.y : at.y + size;
    dc.MoveTo(at.x, base);
    dc.LineTo(at.x + size / 2, tip);
    dc.LineTo(at.x + size, base);
    dc.LineTo(at.x, base);
}

/// Most cells find the colour of their text on the context. Asking is next to free, setting calls the system.
void TakeTextColor(CDC& dc, COLORREF clr)
{
    if (dc.GetTextColor() != clr)
        dc.SetTextColor(clr);
}

/// What a cell changes on the context, put back at the end. SaveDC and RestoreDC would do the same for ten
/// times as much state, the font chosen anew among it, and take longer than all the rest of a plain cell.
class CTextState
{
public:
    explicit CTextState(CDC& dc)
        : m_dc(dc), m_nBkMode(dc.SetBkMode(TRANSPARENT)), m_crText(dc.GetTextColor()), m_crBk(dc.GetBkColor())
    {
    }
    ~CTextState()
    {
        if (m_dc.GetBkColor() != m_crBk)
            m_dc.SetBkColor(m_crBk);
        TakeTextColor(m_dc, m_crText);
        m_dc.SetBkMode(m_nBkMode);
    }
    CTextState(const CTextState&) = delete;
    CTextState& operator=(const CTextState&) = delete;

private:
    CDC& m_dc;
    int m_nBkMode;
    COLORREF m_crText;
    COLORREF m_crBk;
};
} // namespace

CGridCellPainter::CGridCellPainter(CGridCellBase& cell, int nRow, int nCol)
    : m_cell(cell), m_pGrid(cell.GetGrid()), m_nRow(nRow), m_nCol(nCol)
{
}

CGridCellPainter::~CGridCellPainter()
{
}

BOOL CGridCellPainter::Paint(CDC* pDC, CRect rect, BOOL bEraseBkgnd)
{
    if (!m_pGrid || !pDC)
        return FALSE;
    if (rect.Width() <= 0 || rect.Height() <= 0)
        return FALSE;

    CGridCellBase* const pDefault = m_cell.GetDefaultCell();
    if (!pDefault)
    {
        // A cell that has a grid and no default cell: the context stays as it is here, prepared for a text.
        pDC->SaveDC();
        pDC->SetBkMode(TRANSPARENT);
        return FALSE;
    }
    m_pDC = pDC;
    const CTextState state(*pDC);
    DrawBackground(rect, ResolveColors(*pDefault, bEraseBkgnd));
    if (m_cell.IsFixed() && Grid().GetGridLines() != GVL_NONE)
        DrawFixedEdge(rect);
    // The grid has the font of most cells on the context already.
    const CFontSelection font(*pDC, pDC->IsPrinting() ? nullptr : m_cell.GetFontObject()->GetSafeHandle());
    TakeMargin(rect);
    DrawImage(rect);
    if (Grid().GetSortColumn() == m_nCol && m_nRow == 0)
        DrawSortArrow(rect);
    DrawText(rect);
    return TRUE;
}

CGridCellPainter::SColors CGridCellPainter::ResolveColors(CGridCellBase& defaultCell, BOOL bEraseBkgnd) const
{
    SColors colors{m_cell.GetTextClr(), m_cell.GetBackClr(), bEraseBkgnd};
    if (colors.text == CLR_INHERIT)
        colors.text = defaultCell.GetTextClr();
    if (colors.back == CLR_INHERIT)
        colors.back = defaultCell.GetBackClr();
    else
        colors.erase = TRUE;
    return colors;
}

void CGridCellPainter::DrawBackground(CRect& rect, const SColors& colors)
{
    if (m_cell.IsFocused() || m_cell.IsDropHighlighted())
        DrawFocused(rect, colors);
    else if (m_cell.GetState() & CELL_SELECTED)
        DrawSelected(rect);
    else
        DrawPlain(rect, colors);
}

// Without grid lines the frame takes the pixels where the lines would be.
void CGridCellPainter::DrawFocused(CRect& rect, SColors colors)
{
    if (m_cell.GetState() & CELL_SELECTED)
        colors = {::GetSysColor(COLOR_HIGHLIGHTTEXT), ::GetSysColor(COLOR_HIGHLIGHT), TRUE};

    if (colors.erase)
        FillBackground(Grown(rect), colors.back);
    if (Grid().GetFrameFocusCell())
        FrameFocus(Grid().GetGridLines() != GVL_NONE ? rect : Grown(rect), colors.text);
    TakeTextColor(DC(), colors.text);
    rect.DeflateRect(1, 1);
}

// In the text's colour, so that the frame shows on a black background, too.
void CGridCellPainter::FrameFocus(const CRect& rect, COLORREF clr)
{
    CBrush brush;
    if (brush.CreateSolidBrush(clr))
        DC().FrameRect(&rect, &brush);
}

void CGridCellPainter::DrawSelected(const CRect& rect)
{
    DC().FillSolidRect(Grown(rect), ::GetSysColor(COLOR_HIGHLIGHT));
    TakeTextColor(DC(), ::GetSysColor(COLOR_HIGHLIGHTTEXT));
}

void CGridCellPainter::DrawPlain(const CRect& rect, const SColors& colors)
{
    if (colors.erase)
        FillBackground(Grown(rect), colors.back);
    TakeTextColor(DC(), colors.text);
}

void CGridCellPainter::FillBackground(const CRect& rect, COLORREF clr)
{
    CBrush brush;
    if (brush.CreateSolidBrush(clr))
        DC().FillRect(&rect, &brush);
}

// The headers of the focus cell look pressed in, all others raised.
void CGridCellPainter::DrawFixedEdge(CRect& rect)
{
    if (Grid().GetTrackFocusCell() && IsHeaderOfFocus())
    {
        rect = Grown(rect);
        DC().DrawEdge(&rect, BDR_SUNKENINNER, BF_RECT);
    }
    else
    {
        CPen light(PS_SOLID, 1, ::GetSysColor(COLOR_3DHIGHLIGHT));
        CPen dark(PS_SOLID, 1, ::GetSysColor(COLOR_3DDKSHADOW));
        CPen* const pOldPen = DC().SelectObject(&light);
        DC().MoveTo(rect.right, rect.top);
        DC().LineTo(rect.left, rect.top);
        DC().LineTo(rect.left, rect.bottom);
        DC().SelectObject(&dark);
        DC().MoveTo(rect.right, rect.top);
        DC().LineTo(rect.right, rect.bottom);
        DC().LineTo(rect.left, rect.bottom);
        DC().SelectObject(pOldPen);
    }
    rect.DeflateRect(1, 1);
}

bool CGridCellPainter::IsHeaderOfFocus() const
{
    const CCellID focus = Grid().GetFocusCell();
    return Grid().IsValid(focus) && (focus.row == m_nRow || focus.col == m_nCol);
}

// The bottom keeps its place: a text that is centred in height stands a little lower than the middle.
void CGridCellPainter::TakeMargin(CRect& rect)
{
    const int nMargin = static_cast<int>(m_cell.GetMargin());
    rect.DeflateRect(nMargin, 0);
    rect.top += nMargin;
}

void CGridCellPainter::DrawImage(const CRect& rect)
{
    CSize size;
    if (m_cell.GetImageSize(size))
        DrawImageAt(rect.TopLeft(), size + CSize(1, 1), rect);
}

void CGridCellPainter::DrawImageAt(CPoint point, CSize size, const CRect& rect)
{
    const int nMargin = static_cast<int>(m_cell.GetMargin());
    if (rect.left + size.cx <= rect.right + 2 * nMargin && rect.top + size.cy <= rect.bottom + 2 * nMargin)
        Grid().GetImageList()->Draw(m_pDC, m_cell.GetImage(), point, ILD_NORMAL);
}

// Two triangles one pixel apart look engraved. An arrow that would not fit is left out.
void CGridCellPainter::DrawSortArrow(CRect& rect)
{
    constexpr int kGap = 4;
    int size = DC().GetTextExtent(L"M", 1).cy - kGap;
    if (size >= rect.Height())
        size = rect.Height() - kGap;
    if (rect.left + size >= rect.right + 2 * static_cast<int>(m_cell.GetMargin()))
        return;

    const LOGFONTW* const plf = m_cell.GetFont();
    const bool vertical = plf && plf->lfEscapement == 900;
    const bool up = Grid().GetSortAscending() != FALSE;
    const CPoint at(vertical ? (rect.right + rect.left - size) / 2 : rect.right - size,
                    rect.bottom - size - 2);

    CPen shadow(PS_SOLID, 0, ::GetSysColor(COLOR_3DSHADOW));
    CPen light(PS_SOLID, 0, ::GetSysColor(COLOR_3DHIGHLIGHT));
    CPen* const pOldPen = DC().SelectObject(&light);
    DrawTriangle(DC(), at + CSize(1, 1), size, up);
    DC().SelectObject(&shadow);
    DrawTriangle(DC(), at, size, up);
    DC().SelectObject(pOldPen);
    if (!vertical)
        rect.right -= size;
}

void CGridCellPainter::DrawText(CRect rect)
{
    m_cell.GetTextRect(&rect);
    const LPCWSTR pszText = m_cell.GetText();
    if (!pszText)
        return;
    const UINT nFormat = m_cell.GetFormat() | DT_NOPREFIX;
    if (!gfnDrawPlainLine(DC(), pszText, rect, nFormat))
        DC().DrawText(pszText, -1, &rect, nFormat);
}
