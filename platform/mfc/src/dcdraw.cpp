// Device contexts: lines, areas, bitmaps, text, printing and paths.

#include <afxwin.h>

#include <algorithm>
#include <vector>

#include "dcboth.h"
#include "safehandle.h"

// ---------------------------------------------------------------------------------------------------------
// Regions

BOOL CDC::FillRgn(CRgn* pRgn, CBrush* pBrush)
{
    return ::FillRgn(m_hDC, SafeRgn(pRgn), SafeBrush(pBrush));
}

BOOL CDC::FrameRgn(CRgn* pRgn, CBrush* pBrush, int nWidth, int nHeight)
{
    return ::FrameRgn(m_hDC, SafeRgn(pRgn), SafeBrush(pBrush), nWidth, nHeight);
}

BOOL CDC::InvertRgn(CRgn* pRgn)
{
    return ::InvertRgn(m_hDC, SafeRgn(pRgn));
}

BOOL CDC::PaintRgn(CRgn* pRgn)
{
    return ::PaintRgn(m_hDC, SafeRgn(pRgn));
}

// ---------------------------------------------------------------------------------------------------------
// Lines

CPoint CDC::GetCurrentPosition() const
{
    CPoint position;
    ::GetCurrentPositionEx(m_hAttribDC, &position);
    return position;
}

CPoint CDC::MoveTo(int x, int y)
{
    CPoint before;
    InBoth<BOOL>(*this, [&](HDC dc) { return ::MoveToEx(dc, x, y, &before); });
    return before;
}

BOOL CDC::LineTo(int x, int y)
{
    // The attribute context does not draw, but has to know the position.
    if (m_hAttribDC != nullptr && m_hDC != m_hAttribDC)
        ::MoveToEx(m_hAttribDC, x, y, nullptr);
    return ::LineTo(m_hDC, x, y);
}

BOOL CDC::Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Arc(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Arc(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return Arc(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x,
               ptEnd.y);
}

namespace
{
/// Tells the attribute context where drawing has ended, after functions that move the position.
BOOL FollowPosition(const CDC& dc, BOOL drawn)
{
    POINT position;
    if (dc.m_hDC != dc.m_hAttribDC && dc.m_hAttribDC != nullptr &&
        ::GetCurrentPositionEx(dc.m_hDC, &position))
        ::MoveToEx(dc.m_hAttribDC, position.x, position.y, nullptr);
    return drawn;
}
} // namespace

BOOL CDC::ArcTo(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return FollowPosition(*this, ::ArcTo(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4));
}

BOOL CDC::ArcTo(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return ArcTo(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x,
                 ptEnd.y);
}

BOOL CDC::AngleArc(int x, int y, int nRadius, float fStartAngle, float fSweepAngle)
{
    return FollowPosition(*this, ::AngleArc(m_hDC, x, y, nRadius, fStartAngle, fSweepAngle));
}

int CDC::SetArcDirection(int nArcDirection)
{
    return InBoth<int>(*this, [=](HDC dc) { return ::SetArcDirection(dc, nArcDirection); });
}

BOOL CDC::PolylineTo(const POINT* lpPoints, int nCount)
{
    return FollowPosition(*this, ::PolylineTo(m_hDC, lpPoints, nCount));
}

BOOL CDC::PolyPolyline(const POINT* lpPoints, const DWORD* lpPolyPoints, int nCount)
{
    return ::PolyPolyline(m_hDC, lpPoints, lpPolyPoints, nCount);
}

BOOL CDC::PolyDraw(const POINT* lpPoints, const BYTE* lpTypes, int nCount)
{
    return FollowPosition(*this, ::PolyDraw(m_hDC, lpPoints, lpTypes, nCount));
}

BOOL CDC::PolyBezierTo(const POINT* lpPoints, int nCount)
{
    return FollowPosition(*this, ::PolyBezierTo(m_hDC, lpPoints, nCount));
}

// ---------------------------------------------------------------------------------------------------------
// Areas

void CDC::FillRect(LPCRECT lpRect, CBrush* pBrush)
{
    ::FillRect(m_hDC, lpRect, SafeBrush(pBrush));
}

void CDC::FrameRect(LPCRECT lpRect, CBrush* pBrush)
{
    ::FrameRect(m_hDC, lpRect, SafeBrush(pBrush));
}

namespace
{
/// The type of a DrawState picture stands in the low four bits; the kind of call decides it, not the caller.
constexpr UINT drawStateTypeMask = 0x000F;

BOOL DrawStateOf(HDC dc, UINT type, LPARAM picture, WPARAM extra, CPoint pt, CSize size, UINT flags,
                 HBRUSH brush, DRAWSTATEPROC procedure = nullptr)
{
    return ::DrawState(dc, brush, procedure, picture, extra, pt.x, pt.y, size.cx, size.cy,
                       (flags & ~drawStateTypeMask) | type);
}
} // namespace

BOOL CDC::DrawState(CPoint pt, CSize size, HBITMAP hBitmap, UINT nFlags, HBRUSH hBrush)
{
    return DrawStateOf(m_hDC, DST_BITMAP, reinterpret_cast<LPARAM>(hBitmap), 0, pt, size, nFlags, hBrush);
}

BOOL CDC::DrawState(CPoint pt, CSize size, CBitmap* pBitmap, UINT nFlags, CBrush* pBrush)
{
    return DrawState(pt, size, SafeBitmap(pBitmap), nFlags, SafeBrush(pBrush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, HBRUSH hBrush)
{
    return DrawStateOf(m_hDC, DST_ICON, reinterpret_cast<LPARAM>(hIcon), 0, pt, size, nFlags, hBrush);
}

BOOL CDC::DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, CBrush* pBrush)
{
    return DrawState(pt, size, hIcon, nFlags, SafeBrush(pBrush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText, int nTextLen,
                    HBRUSH hBrush)
{
    return DrawStateOf(m_hDC, bPrefixText ? DST_PREFIXTEXT : DST_TEXT, reinterpret_cast<LPARAM>(lpszText),
                       nTextLen, pt, size, nFlags, hBrush);
}

BOOL CDC::DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText, int nTextLen,
                    CBrush* pBrush)
{
    return DrawState(pt, size, lpszText, nFlags, bPrefixText, nTextLen, SafeBrush(pBrush));
}

BOOL CDC::DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags, HBRUSH hBrush)
{
    return DrawStateOf(m_hDC, DST_COMPLEX, lData, 0, pt, size, nFlags, hBrush, lpDrawProc);
}

BOOL CDC::DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags,
                    CBrush* pBrush)
{
    return DrawState(pt, size, lpDrawProc, lData, nFlags, SafeBrush(pBrush));
}

BOOL CDC::Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Chord(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Chord(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return Chord(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x,
                 ptEnd.y);
}

BOOL CDC::Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4)
{
    return ::Pie(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
}

BOOL CDC::Pie(LPCRECT lpRect, POINT ptStart, POINT ptEnd)
{
    return Pie(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, ptStart.x, ptStart.y, ptEnd.x,
               ptEnd.y);
}

BOOL CDC::PolyPolygon(LPPOINT lpPoints, LPINT lpPolyCounts, int nCount)
{
    return ::PolyPolygon(m_hDC, lpPoints, lpPolyCounts, nCount);
}

BOOL CDC::Rectangle(LPCRECT lpRect)
{
    return Rectangle(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

BOOL CDC::RoundRect(int x1, int y1, int x2, int y2, int x3, int y3)
{
    return ::RoundRect(m_hDC, x1, y1, x2, y2, x3, y3);
}

BOOL CDC::RoundRect(LPCRECT lpRect, POINT point)
{
    return RoundRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom, point.x, point.y);
}

BOOL CDC::GradientFill(TRIVERTEX* pVertices, ULONG nVertices, void* pMesh, ULONG nMeshElements, DWORD dwMode)
{
    return ::GradientFill(m_hDC, pVertices, nVertices, pMesh, nMeshElements, dwMode);
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr)
{
    ::SetBkColor(m_hDC, clr);
    ::ExtTextOut(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr)
{
    FillSolidRect(CRect(x, y, x + cx, y + cy), clr);
}

void CDC::Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight)
{
    Draw3dRect(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top,
               clrTopLeft, clrBottomRight);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight)
{
    // The right and bottom edges own the two corners that they share with the others.
    FillSolidRect(x, y, cx - 1, 1, clrTopLeft);
    FillSolidRect(x, y, 1, cy - 1, clrTopLeft);
    FillSolidRect(x + cx - 1, y, 1, cy, clrBottomRight);
    FillSolidRect(x, y + cy - 1, cx, 1, clrBottomRight);
}

BOOL CDC::DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState)
{
    return ::DrawFrameControl(m_hDC, lpRect, nType, nState);
}

// ---------------------------------------------------------------------------------------------------------
// Drag frames

namespace
{
/// A brush of alternating black and white pixels.
class CHalftone
{
public:
    CHalftone()
    {
        WORD rows[8];
        for (int row = 0; row < 8; ++row)
            rows[row] = row % 2 == 0 ? 0x5555 : 0xAAAA;
        const HBITMAP pattern = ::CreateBitmap(8, 8, 1, 1, rows);
        m_brush = ::CreatePatternBrush(pattern);
        ::DeleteObject(pattern);
    }
    ~CHalftone() { ::DeleteObject(m_brush); }
    CHalftone(const CHalftone&) = delete;
    CHalftone& operator=(const CHalftone&) = delete;
    HBRUSH brush() const { return m_brush; }

private:
    HBRUSH m_brush;
};

/// The region between a rectangle and the same one deflated by the frame's thickness.
void CreateFrameRgn(CRgn& frame, LPCRECT outer, SIZE thickness)
{
    CRect inner(outer);
    inner.DeflateRect(thickness);
    inner.IntersectRect(inner, outer);
    CRgn hole;
    hole.CreateRectRgnIndirect(inner);
    frame.CreateRectRgnIndirect(outer);
    frame.CombineRgn(&frame, &hole, RGN_XOR);
}

void InvertRgnWith(CDC& dc, CRgn& region, CBrush* brush)
{
    dc.SelectClipRgn(&region);
    CRect box;
    dc.GetClipBox(box);
    CBrush* before = dc.SelectObject(brush);
    dc.PatBlt(box.left, box.top, box.Width(), box.Height(), PATINVERT);
    dc.SelectObject(before);
    dc.SelectClipRgn(nullptr);
}
} // namespace

CBrush* PASCAL CDC::GetHalftoneBrush()
{
    static const CHalftone halftone;
    return CBrush::FromHandle(halftone.brush());
}

void CDC::DrawDragRect(LPCRECT lpRect, SIZE size, LPCRECT lpRectLast, SIZE sizeLast, CBrush* pBrush,
                       CBrush* pBrushLast)
{
    if (pBrush == nullptr)
        pBrush = GetHalftoneBrush();
    if (pBrushLast == nullptr)
        pBrushLast = pBrush;

    CRgn frame;
    CreateFrameRgn(frame, lpRect, size);
    if (lpRectLast != nullptr)
    {
        CRgn last;
        CreateFrameRgn(last, lpRectLast, sizeLast);
        // Where both frames are drawn with one brush nothing has to change: this keeps the frame from
        // flickering while it is dragged.
        if (*pBrush == *pBrushLast)
            frame.CombineRgn(&frame, &last, RGN_XOR);
        else
            InvertRgnWith(*this, last, pBrushLast);
    }
    InvertRgnWith(*this, frame, pBrush);
}

// ---------------------------------------------------------------------------------------------------------
// Bitmaps

BOOL CDC::PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop)
{
    return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop);
}

BOOL CDC::BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop)
{
    return ::BitBlt(m_hDC, x, y, nWidth, nHeight, SafeHdc(pSrcDC), xSrc, ySrc, dwRop);
}

BOOL CDC::StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                     int nSrcHeight, DWORD dwRop)
{
    return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, SafeHdc(pSrcDC), xSrc, ySrc, nSrcWidth, nSrcHeight,
                        dwRop);
}

BOOL CDC::ExtFloodFill(int x, int y, COLORREF crColor, UINT nFillType)
{
    return ::ExtFloodFill(m_hDC, x, y, crColor, nFillType);
}

BOOL CDC::MaskBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, CBitmap& maskBitmap,
                  int xMask, int yMask, DWORD dwRop)
{
    return ::MaskBlt(m_hDC, x, y, nWidth, nHeight, SafeHdc(pSrcDC), xSrc, ySrc, maskBitmap, xMask, yMask,
                     dwRop);
}

BOOL CDC::PlgBlt(LPPOINT lpPoint, CDC* pSrcDC, int xSrc, int ySrc, int nWidth, int nHeight,
                 CBitmap& maskBitmap, int xMask, int yMask)
{
    return ::PlgBlt(m_hDC, lpPoint, SafeHdc(pSrcDC), xSrc, ySrc, nWidth, nHeight, maskBitmap, xMask, yMask);
}

BOOL CDC::TransparentBlt(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc,
                         int ySrc, int nSrcWidth, int nSrcHeight, UINT clrTransparent)
{
    return ::TransparentBlt(m_hDC, xDest, yDest, nDestWidth, nDestHeight, SafeHdc(pSrcDC), xSrc, ySrc,
                            nSrcWidth, nSrcHeight, clrTransparent);
}

BOOL CDC::AlphaBlend(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc, int ySrc,
                     int nSrcWidth, int nSrcHeight, BLENDFUNCTION blend)
{
    return ::AlphaBlend(m_hDC, xDest, yDest, nDestWidth, nDestHeight, SafeHdc(pSrcDC), xSrc, ySrc, nSrcWidth,
                        nSrcHeight, blend);
}

// ---------------------------------------------------------------------------------------------------------
// Text

BOOL CDC::TextOut(int x, int y, LPCTSTR lpszString, int nCount)
{
    return ::TextOut(m_hDC, x, y, lpszString, nCount);
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                     LPINT lpDxWidths)
{
    return ::ExtTextOut(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, const CString& str, LPINT lpDxWidths)
{
    return ExtTextOut(x, y, nOptions, lpRect, str, str.GetLength(), lpDxWidths);
}

CSize CDC::TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                         LPINT lpnTabStopPositions, int nTabOrigin)
{
    return CSize(static_cast<DWORD>(
        ::TabbedTextOut(m_hDC, x, y, lpszString, nCount, nTabPositions, lpnTabStopPositions, nTabOrigin)));
}

CSize CDC::TabbedTextOut(int x, int y, const CString& str, int nTabPositions, LPINT lpnTabStopPositions,
                         int nTabOrigin)
{
    return TabbedTextOut(x, y, str, str.GetLength(), nTabPositions, lpnTabStopPositions, nTabOrigin);
}

int CDC::DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat)
{
    return ::DrawText(m_hDC, lpszString, nCount, lpRect, nFormat);
}

namespace
{
/// Room that DT_MODIFYSTRING may need beyond the text, for an ellipsis.
constexpr int modifyStringExtra = 4;

/// Draws from a copy of the string with room to be shortened in place, and gives the string what was drawn.
template <class Draw>
int DrawModifiable(const CString& str, UINT format, Draw draw)
{
    const int length = str.GetLength();
    if ((format & DT_MODIFYSTRING) == 0)
        return draw(const_cast<LPTSTR>(str.GetString()), length);

    std::vector<TCHAR> buffer(length + modifyStringExtra + 1);
    std::copy_n(str.GetString(), length, buffer.begin());
    const int height = draw(buffer.data(), length);
    const_cast<CString&>(str) = buffer.data();
    return height;
}
} // namespace

int CDC::DrawText(const CString& str, LPRECT lpRect, UINT nFormat)
{
    return DrawModifiable(str, nFormat,
                          [&](LPTSTR text, int length) { return DrawText(text, length, lpRect, nFormat); });
}

int CDC::DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams)
{
    return ::DrawTextEx(m_hDC, lpszString, nCount, lpRect, nFormat, lpDTParams);
}

int CDC::DrawTextEx(const CString& str, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams)
{
    return DrawModifiable(str, nFormat,
                          [&](LPTSTR text, int length)
                          { return DrawTextEx(text, length, lpRect, nFormat, lpDTParams); });
}

namespace
{
CSize TextExtent(HDC dc, LPCTSTR text, int count)
{
    CSize extent;
    ::GetTextExtentPoint32(dc, text, count, &extent);
    return extent;
}

CSize TabbedTextExtent(HDC dc, LPCTSTR text, int count, int tabs, LPINT stops)
{
    return CSize(static_cast<DWORD>(::GetTabbedTextExtent(dc, text, count, tabs, stops)));
}
} // namespace

CSize CDC::GetTextExtent(LPCTSTR lpszString, int nCount) const
{
    return TextExtent(m_hAttribDC, lpszString, nCount);
}

CSize CDC::GetTextExtent(const CString& str) const
{
    return TextExtent(m_hAttribDC, str, str.GetLength());
}

CSize CDC::GetOutputTextExtent(LPCTSTR lpszString, int nCount) const
{
    return TextExtent(m_hDC, lpszString, nCount);
}

CSize CDC::GetOutputTextExtent(const CString& str) const
{
    return TextExtent(m_hDC, str, str.GetLength());
}

CSize CDC::GetTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions,
                               LPINT lpnTabStopPositions) const
{
    return TabbedTextExtent(m_hAttribDC, lpszString, nCount, nTabPositions, lpnTabStopPositions);
}

CSize CDC::GetTabbedTextExtent(const CString& str, int nTabPositions, LPINT lpnTabStopPositions) const
{
    return TabbedTextExtent(m_hAttribDC, str, str.GetLength(), nTabPositions, lpnTabStopPositions);
}

CSize CDC::GetOutputTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions,
                                     LPINT lpnTabStopPositions) const
{
    return TabbedTextExtent(m_hDC, lpszString, nCount, nTabPositions, lpnTabStopPositions);
}

CSize CDC::GetOutputTabbedTextExtent(const CString& str, int nTabPositions, LPINT lpnTabStopPositions) const
{
    return TabbedTextExtent(m_hDC, str, str.GetLength(), nTabPositions, lpnTabStopPositions);
}

BOOL CDC::GetTextExtentPointI(LPWORD pgiIn, int cgi, LPSIZE lpSize) const
{
    return ::GetTextExtentPointI(m_hAttribDC, pgiIn, cgi, lpSize);
}

BOOL CDC::GetTextExtentExPointI(LPWORD pgiIn, int cgi, int nMaxExtent, LPINT lpnFit, LPINT alpDx,
                                LPSIZE lpSize) const
{
    return ::GetTextExtentExPointI(m_hAttribDC, pgiIn, cgi, nMaxExtent, lpnFit, alpDx, lpSize);
}

BOOL CDC::GrayString(CBrush* pBrush, BOOL(CALLBACK* lpfnOutput)(HDC, LPARAM, int), LPARAM lpData, int nCount,
                     int x, int y, int nWidth, int nHeight)
{
    return ::GrayString(m_hDC, SafeBrush(pBrush), lpfnOutput, lpData, nCount, x, y, nWidth, nHeight);
}

UINT CDC::SetTextAlign(UINT nFlags)
{
    return InBoth<UINT>(
        *this, [=](HDC dc) { return ::SetTextAlign(dc, nFlags); }, GDI_ERROR);
}

int CDC::GetTextFace(int nCount, LPTSTR lpszFacename) const
{
    return ::GetTextFace(m_hAttribDC, nCount, lpszFacename);
}

int CDC::GetTextFace(CString& rString) const
{
    const int length = ::GetTextFace(m_hAttribDC, LF_FACESIZE, rString.GetBuffer(LF_FACESIZE));
    rString.ReleaseBuffer();
    return length;
}

int CDC::SetTextJustification(int nBreakExtra, int nBreakCount)
{
    return InBoth<int>(*this, [=](HDC dc) { return ::SetTextJustification(dc, nBreakExtra, nBreakCount); });
}

int CDC::SetTextCharacterExtra(int nCharExtra)
{
    constexpr int failure = static_cast<int>(0x80000000);
    return InBoth<int>(
        *this, [=](HDC dc) { return ::SetTextCharacterExtra(dc, nCharExtra); }, failure);
}

DWORD CDC::GetCharacterPlacement(LPCTSTR lpString, int nCount, int nMaxExtent, LPGCP_RESULTS lpResults,
                                 DWORD dwFlags) const
{
    return ::GetCharacterPlacement(m_hAttribDC, lpString, nCount, nMaxExtent, lpResults, dwFlags);
}

DWORD CDC::GetCharacterPlacement(CString& str, int nMaxExtent, LPGCP_RESULTS lpResults, DWORD dwFlags) const
{
    return GetCharacterPlacement(str, str.GetLength(), nMaxExtent, lpResults, dwFlags);
}

BOOL CDC::GetAspectRatioFilterEx(LPSIZE lpsizeAspect) const
{
    return ::GetAspectRatioFilterEx(m_hAttribDC, lpsizeAspect);
}

CSize CDC::GetAspectRatioFilter() const
{
    CSize aspect;
    ::GetAspectRatioFilterEx(m_hAttribDC, &aspect);
    return aspect;
}

// ---------------------------------------------------------------------------------------------------------
// Fonts

BOOL CDC::GetCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const
{
    return ::GetCharWidth(m_hAttribDC, nFirstChar, nLastChar, lpBuffer);
}

BOOL CDC::GetCharWidth(UINT nFirstChar, UINT nLastChar, float* lpFloatBuffer) const
{
    return ::GetCharWidthFloat(m_hAttribDC, nFirstChar, nLastChar, lpFloatBuffer);
}

BOOL CDC::GetOutputCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const
{
    return ::GetCharWidth(m_hDC, nFirstChar, nLastChar, lpBuffer);
}

BOOL CDC::GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABC lpabc) const
{
    return ::GetCharABCWidths(m_hAttribDC, nFirstChar, nLastChar, lpabc);
}

BOOL CDC::GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABCFLOAT lpABCF) const
{
    return ::GetCharABCWidthsFloat(m_hAttribDC, nFirstChar, nLastChar, lpABCF);
}

BOOL CDC::GetCharWidthI(UINT giFirst, UINT cgi, LPWORD pgi, LPINT lpBuffer) const
{
    return ::GetCharWidthI(m_hAttribDC, giFirst, cgi, pgi, lpBuffer);
}

BOOL CDC::GetCharABCWidthsI(UINT giFirst, UINT cgi, LPWORD pgi, LPABC lpabc) const
{
    return ::GetCharABCWidthsI(m_hAttribDC, giFirst, cgi, pgi, lpabc);
}

DWORD CDC::SetMapperFlags(DWORD dwFlag)
{
    return InBoth<DWORD>(
        *this, [=](HDC dc) { return ::SetMapperFlags(dc, dwFlag); }, GDI_ERROR);
}

DWORD CDC::GetFontData(DWORD dwTable, DWORD dwOffset, LPVOID lpData, DWORD cbData) const
{
    return ::GetFontData(m_hAttribDC, dwTable, dwOffset, lpData, cbData);
}

int CDC::GetKerningPairs(int nPairs, LPKERNINGPAIR lpkrnpair) const
{
    return ::GetKerningPairs(m_hAttribDC, nPairs, lpkrnpair);
}

UINT CDC::GetOutlineTextMetrics(UINT cbData, LPOUTLINETEXTMETRIC lpotm) const
{
    return ::GetOutlineTextMetrics(m_hAttribDC, cbData, lpotm);
}

DWORD CDC::GetGlyphOutline(UINT nChar, UINT nFormat, LPGLYPHMETRICS lpgm, DWORD cbBuffer, LPVOID lpBuffer,
                           const MAT2* lpmat2) const
{
    return ::GetGlyphOutline(m_hAttribDC, nChar, nFormat, lpgm, cbBuffer, lpBuffer, lpmat2);
}

// ---------------------------------------------------------------------------------------------------------
// Scrolling, printing, metafiles

BOOL CDC::ScrollDC(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* pRgnUpdate,
                   LPRECT lpRectUpdate)
{
    return ::ScrollDC(m_hDC, dx, dy, lpRectScroll, lpRectClip, SafeRgn(pRgnUpdate), lpRectUpdate);
}

int CDC::Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData)
{
    return ::Escape(m_hDC, nEscape, nCount, lpszInData, lpOutData);
}

int CDC::Escape(int nEscape, int nInputSize, LPCSTR lpszInputData, int nOutputSize, LPSTR lpszOutputData)
{
    return ::ExtEscape(m_hDC, nEscape, nInputSize, lpszInputData, nOutputSize, lpszOutputData);
}

int CDC::DrawEscape(int nEscape, int nInputSize, LPCSTR lpszInputData)
{
    return ::DrawEscape(m_hDC, nEscape, nInputSize, lpszInputData);
}

int CDC::StartDoc(LPCTSTR lpszDocName)
{
    DOCINFO document = {};
    document.cbSize = sizeof(document);
    document.lpszDocName = lpszDocName;
    return StartDoc(&document);
}

int CDC::SetAbortProc(BOOL(CALLBACK* lpfn)(HDC, int))
{
    return ::SetAbortProc(m_hDC, lpfn);
}

BOOL CDC::PlayMetaFile(HENHMETAFILE hEnhMetaFile, LPCRECT lpBounds)
{
    return ::PlayEnhMetaFile(m_hDC, hEnhMetaFile, lpBounds);
}

BOOL CDC::AddMetaFileComment(UINT nDataSize, const BYTE* pCommentData)
{
    return ::GdiComment(m_hDC, nDataSize, pCommentData);
}

// ---------------------------------------------------------------------------------------------------------
// Paths

float CDC::GetMiterLimit() const
{
    float limit = 0;
    ::GetMiterLimit(m_hDC, &limit);
    return limit;
}

int CDC::GetPath(LPPOINT lpPoints, LPBYTE lpTypes, int nCount) const
{
    return ::GetPath(m_hDC, lpPoints, lpTypes, nCount);
}

BOOL CDC::SelectClipPath(int nMode)
{
    if (!::SelectClipPath(m_hDC, nMode))
        return FALSE;
    if (m_hAttribDC == nullptr || m_hDC == m_hAttribDC)
        return TRUE;

    // The path lives in the output context; the attribute context receives the clipping that came of it.
    CRgn clip;
    clip.CreateRectRgn(0, 0, 0, 0);
    const bool has = ::GetClipRgn(m_hDC, clip) == 1;
    return ::SelectClipRgn(m_hAttribDC, has ? static_cast<HRGN>(clip) : nullptr) != ERROR;
}
