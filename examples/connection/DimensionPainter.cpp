#include <afxwin.h>

#include "DimensionPainter.h"

#include "module/GdiScope.h"

#include <aced.h>

#include <algorithm>

namespace
{
// Of the pictures of dimension lines, in pixels.
constexpr int kLength = 48, kHeight = 16, kRow = 8;
constexpr int kHead = 22;                                ///< the ends; between them is the bare line
constexpr int kExtension = 5;                            ///< column of the first extension line
constexpr int kOutsideEnds = 19, kOutsideExtension = 13; ///< this one has its arrows outside

// Places of a text, by the index of the picker.
enum EPlace
{
    eAbove,
    eInLine,
    eBelow,
    eAboveBegin,
    eAboveEnd,
    eOutside,
    eClearOfEnds ///< of no picker: below, for a text that is longer than its line
};

/// A quarter turn: what ran to the right runs up.
void Turn(CDC& dc, HBITMAP hPicture, CBitmap& turned)
{
    CDC from, to;
    from.CreateCompatibleDC(&dc);
    to.CreateCompatibleDC(&dc);
    turned.CreateBitmap(kHeight, kLength, 1, 1, nullptr);
    const CGdiSelection fromScope(from, hPicture), toScope(to, turned);
    for (int x = 0; x < kLength; ++x)
        for (int y = 0; y < kHeight; ++y)
            to.SetPixel(y, kLength - 1 - x, from.GetPixel(x, y));
}

void MakeFont(CFont& font, const DrawingStyle& style, int nHeight, int nTenthsOfDegree)
{
    LOGFONT logFont{};
    logFont.lfHeight = -nHeight;
    logFont.lfWeight = style.bold ? FW_BOLD : FW_NORMAL;
    logFont.lfItalic = style.italic != 0;
    logFont.lfCharSet = DEFAULT_CHARSET;
    logFont.lfEscapement = logFont.lfOrientation = nTenthsOfDegree;
    lstrcpyn(logFont.lfFaceName, style.font.empty() ? _T("Arial") : style.font.c_str(), LF_FACESIZE);
    font.CreateFontIndirect(&logFont);
}
} // namespace

CDimensionPainter::CDimensionPainter(CDC& dc, const DrawingStyle& style) : m_dc(dc), m_style(style)
{
    constexpr double kInch_m = 0.0254;
    const double dOnPaper_m = std::clamp(style.textHeight_m, 0.001, 0.02); // as the page of fonts has it
    const int nHeight = static_cast<int>(dOnPaper_m / kInch_m * dc.GetDeviceCaps(LOGPIXELSY) + 0.5);
    MakeFont(m_font, style, nHeight, 0);
    MakeFont(m_fontTurned, style, nHeight, 900);
    const CGdiSelection font(dc, m_font);
    m_nTextHeight = dc.GetTextExtent(_T("0"), 1).cy;
    m_hPicture = CBitmapBtnSTKotnaLinija().GetBitmap(style.dimensionEnds);
    Turn(dc, m_hPicture, m_turned);
}

void CDimensionPainter::Horizontal(int nLeft, int nRight, int y, const CString& strText)
{
    Paint({CPoint(nLeft, y), false, nRight - nLeft}, strText);
}

void CDimensionPainter::Vertical(int nTop, int nBottom, int x, const CString& strText)
{
    Paint({CPoint(x, nBottom), true, nBottom - nTop}, strText);
}

CRect CDimensionPainter::Line::At(int nAlong, int nAcross, CSize size) const
{
    if (bUpright)
        return CRect(CPoint(origin.x + nAcross, origin.y - nAlong - size.cx + 1), CSize(size.cy, size.cx));
    return CRect(CPoint(origin.x + nAlong, origin.y + nAcross), size);
}

void CDimensionPainter::Paint(const Line& line, const CString& strText)
{
    const int nOver = m_style.dimensionEnds == kOutsideEnds ? kOutsideExtension : kExtension;
    const int nHead = std::min(kHead, nOver + (line.nLength + 1) / 2); // of a short one half each
    PaintPart(line, 0, nHead, -nOver);
    PaintPart(line, kLength - nHead, kLength, line.nLength + 1 + nOver - nHead);
    m_dc.FillSolidRect(
        line.At(nHead - nOver, 0, CSize(std::max(0, line.nLength + 1 + 2 * (nOver - nHead)), 1)),
        m_style.dimensionColor);
    PaintText(line, strText);
}

/// Columns of the picture, where it is black, in the colour of dimensions.
void CDimensionPainter::PaintPart(const Line& line, int nFirst, int nLast, int nAlong)
{
    CDC picture;
    picture.CreateCompatibleDC(&m_dc);
    const CGdiSelection scope(picture, line.bUpright ? static_cast<HGDIOBJ>(m_turned) : m_hPicture);
    const CBkColorScope white(m_dc, RGB(255, 255, 255));
    const CTextColorScope color(m_dc, m_style.dimensionColor);
    const CRect to = line.At(nAlong, -kRow, CSize(nLast - nFirst, kHeight));
    const CPoint from = line.bUpright ? CPoint(0, kLength - nLast) : CPoint(nFirst, 0);
    m_dc.BitBlt(to.left, to.top, to.Width(), to.Height(), &picture, from.x, from.y, SRCAND);
}

void CDimensionPainter::PaintText(const Line& line, const CString& strText)
{
    constexpr int kForeground = 7; // which the host draws in black on white
    const CGdiSelection font(m_dc, line.bUpright ? m_fontTurned : m_font);
    CSize size;
    {
        const CGdiSelection level(m_dc, m_font);
        size = m_dc.GetTextExtent(strText);
    }
    const int nMiddle = (line.nLength - size.cx) / 2, nAbove = -size.cy - 3;
    int nAlong = nMiddle, nAcross = nAbove;
    const bool bFits = size.cx + 4 <= line.nLength;
    switch (bFits ? m_style.dimensionText : eClearOfEnds)
    {
    case eInLine:
        nAcross = -size.cy / 2;
        m_dc.FillSolidRect(line.At(nAlong - 2, nAcross, CSize(size.cx + 4, size.cy)), RGB(255, 255, 255));
        break;
    case eBelow:
        nAcross = 2;
        break;
    case eClearOfEnds:
        nAcross = kRow;
        break;
    case eAboveBegin:
        nAlong = std::min(3, nMiddle);
        break;
    case eAboveEnd:
        nAlong = std::max<int>(line.nLength - size.cx - 3, nMiddle);
        break;
    case eOutside:
        nAlong = line.nLength + 8;
        m_dc.FillSolidRect(line.At(line.nLength, 0, CSize(size.cx + 8, 1)), m_style.dimensionColor);
        break;
    }
    const CRect place = line.At(nAlong, nAcross, size);
    const CBkModeScope transparent(m_dc, TRANSPARENT);
    const CTextColorScope color(m_dc, m_style.textColor == kForeground ? 0 : acedGetRGB(m_style.textColor));
    m_dc.TextOut(place.left, line.bUpright ? place.bottom : place.top, strText);
}
