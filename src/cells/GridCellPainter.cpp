#include <afxwin.h>

#include "cells/GridCellPainter.h"

#include "grid/GridCtrl.h"
#include "module/GdiScope.h"

#include <algorithm>

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
        m_dc.SetBkColor(m_crBk);
        m_dc.SetTextColor(m_crText);
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

/// The formats whose text is one line at a place that its extent alone decides.
constexpr UINT kPlainFormat =
    DT_CENTER | DT_RIGHT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS;

/// Characters that each stand by themselves, one behind the other: Latin, Greek and Cyrillic letters, digits
/// and signs. No accents to be put over another, nothing that is joined or written from the right, no control
/// characters and no soft hyphen.
bool IsPlain(wchar_t ch)
{
    constexpr wchar_t kSoftHyphen = 0xAD;
    return (ch >= L' ' && ch < 0x7F) || (ch >= 0xA0 && ch < 0x300 && ch != kSoftHyphen) ||
           (ch >= 0x370 && ch < 0x483);
}

/// The length of a text of plain characters, or -1.
int PlainLength(LPCWSTR pszText)
{
    int nLength = 0;
    for (; pszText[nLength]; ++nLength)
        if (!IsPlain(pszText[nLength]))
            return -1;
    return nLength;
}

/// A line that is cut off, with three points in place of its end, as DrawText cuts it.
class CShortLine
{
public:
    /// False if not even two characters and the points fit: what is to be done then, DrawText knows.
    bool Make(CDC& dc, LPCWSTR pszText, int nLength, int nWidth)
    {
        SIZE dots, all;
        int ends[kMostChars];
        const int nMeasured = std::min(nLength, kMostChars);
        if (!::GetTextExtentPoint32W(dc.m_hDC, L"...", kDots, &dots) ||
            !::GetTextExtentExPointW(dc.m_hDC, pszText, nMeasured, 0, nullptr, ends, &all))
            return false;
        const int nKept = static_cast<int>(
            std::upper_bound(ends, ends + nMeasured, nWidth - static_cast<int>(dots.cx)) - ends);
        if (nKept <= 1 || nKept == kMostChars)
            return false;
        std::copy_n(pszText, nKept, m_text);
        std::fill_n(m_text + nKept, kDots, L'.');
        m_nLength = nKept + kDots;
        m_nWidth = ends[nKept - 1] + dots.cx;
        return true;
    }

    LPCWSTR Text() const { return m_text; }
    int Length() const { return m_nLength; }
    int Width() const { return m_nWidth; }

private:
    static constexpr int kDots = 3;
    static constexpr int kMostChars = 256; ///< more do not show in a cell

    wchar_t m_text[kMostChars + kDots];
    int m_nLength = 0;
    int m_nWidth = 0;
};

/// A line put where DrawText would put it, for less than half of its cost: it is not searched for letters that
/// change their order or shape, and not measured anew for each character that does not fit. False if it is not
/// plain.
bool DrawPlainLine(CDC& dc, LPCWSTR pszText, const CRect& rect, UINT nFormat)
{
    if ((nFormat & ~kPlainFormat) || !(nFormat & DT_SINGLELINE) || ::GetTextAlign(dc.m_hDC) != TA_LEFT)
        return false;
    int nLength = PlainLength(pszText);
    if (nLength <= 0)
        return nLength == 0;
    SIZE size;
    if (!::GetTextExtentPoint32W(dc.m_hDC, pszText, nLength, &size))
        return false;
    CShortLine shortened;
    if (size.cx > rect.Width() && (nFormat & DT_END_ELLIPSIS))
    {
        if (!shortened.Make(dc, pszText, nLength, rect.Width()))
            return false;
        pszText = shortened.Text();
        nLength = shortened.Length();
        size.cx = shortened.Width();
    }

    int x = rect.left;
    if (nFormat & DT_RIGHT)
        x = rect.right - size.cx;
    else if (nFormat & DT_CENTER)
        x = (rect.left + rect.right - size.cx) / 2;
    const int y = nFormat & DT_VCENTER ? rect.top + rect.Height() / 2 - size.cy / 2 : rect.top;
    dc.ExtTextOut(x, y, ETO_CLIPPED | ETO_IGNORELANGUAGE, &rect, pszText, nLength, nullptr);
    return true;
}
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
    DC().SetTextColor(colors.text);
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
    DC().SetTextColor(::GetSysColor(COLOR_HIGHLIGHTTEXT));
}

void CGridCellPainter::DrawPlain(const CRect& rect, const SColors& colors)
{
    if (colors.erase)
        FillBackground(Grown(rect), colors.back);
    DC().SetTextColor(colors.text);
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
    if (!DrawPlainLine(DC(), pszText, rect, nFormat))
        DC().DrawText(pszText, -1, &rect, nFormat);
}
