// GDI objects: the handle map, and the classes of pens, brushes, fonts, bitmaps and regions.

#include <afxwin.h>

#include "handlemap.h"
#include "safehandle.h"

template <>
struct CHandleTraits<CGdiObject>
{
    using Handle = HGDIOBJ;
    static void Assign(CGdiObject& object, HGDIOBJ handle) { object.m_hObject = handle; }
};

namespace
{
using CGdiMap = CHandleMap<CGdiObject>;
} // namespace

// ---------------------------------------------------------------------------------------------------------
// CGdiObject

IMPLEMENT_DYNCREATE(CGdiObject, CObject)

CGdiObject::CGdiObject() = default;

HGDIOBJ CGdiObject::GetSafeHandle() const
{
    return SafeObject(this);
}

CGdiObject* PASCAL CGdiObject::FromHandle(HGDIOBJ hObject)
{
    return CGdiMap::OfThread().FromHandle(hObject);
}

void PASCAL CGdiObject::DeleteTempMap()
{
    DeleteTempOfThread<CGdiObject>();
}

BOOL CGdiObject::Attach(HGDIOBJ hObject)
{
    return AttachHandle(*this, m_hObject, hObject);
}

HGDIOBJ CGdiObject::Detach()
{
    return DetachHandle(*this, m_hObject);
}

BOOL CGdiObject::DeleteObject()
{
    if (m_hObject == nullptr)
        return FALSE;
    return ::DeleteObject(Detach());
}

// ---------------------------------------------------------------------------------------------------------
// CPen

IMPLEMENT_DYNAMIC(CPen, CGdiObject)

CPen::CPen() = default;

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor)
{
    if (!CreatePen(nPenStyle, nWidth, crColor))
        AfxThrowResourceException();
}

CPen::CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount, const DWORD* lpStyle)
{
    if (!CreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle))
        AfxThrowResourceException();
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, COLORREF crColor)
{
    return Attach(::CreatePen(nPenStyle, nWidth, crColor));
}

BOOL CPen::CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount,
                     const DWORD* lpStyle)
{
    return Attach(::ExtCreatePen(nPenStyle, nWidth, pLogBrush, nStyleCount, lpStyle));
}

int CPen::GetExtLogPen(EXTLOGPEN* pLogPen)
{
    return ::GetObject(m_hObject, sizeof(EXTLOGPEN), pLogPen);
}

// ---------------------------------------------------------------------------------------------------------
// CBrush

IMPLEMENT_DYNAMIC(CBrush, CGdiObject)

CBrush::CBrush() = default;

CBrush::CBrush(COLORREF crColor)
{
    if (!CreateSolidBrush(crColor))
        AfxThrowResourceException();
}

CBrush::CBrush(int nIndex, COLORREF crColor)
{
    if (!CreateHatchBrush(nIndex, crColor))
        AfxThrowResourceException();
}

CBrush::CBrush(CBitmap* pBitmap)
{
    if (!CreatePatternBrush(pBitmap))
        AfxThrowResourceException();
}

CBrush* PASCAL CBrush::FromHandle(HBRUSH hBrush)
{
    return static_cast<CBrush*>(CGdiObject::FromHandle(hBrush));
}

BOOL CBrush::CreateHatchBrush(int nIndex, COLORREF crColor)
{
    return Attach(::CreateHatchBrush(nIndex, crColor));
}

BOOL CBrush::CreatePatternBrush(CBitmap* pBitmap)
{
    return Attach(::CreatePatternBrush(SafeBitmap(pBitmap)));
}

BOOL CBrush::CreateDIBPatternBrush(HGLOBAL hPackedDIB, UINT nUsage)
{
    const void* packed = ::GlobalLock(hPackedDIB);
    if (packed == nullptr)
        return FALSE;
    const BOOL created = CreateDIBPatternBrush(packed, nUsage);
    ::GlobalUnlock(hPackedDIB);
    return created;
}

BOOL CBrush::CreateDIBPatternBrush(const void* lpPackedDIB, UINT nUsage)
{
    return Attach(::CreateDIBPatternBrushPt(lpPackedDIB, nUsage));
}

int CBrush::GetLogBrush(LOGBRUSH* pLogBrush)
{
    return ::GetObject(m_hObject, sizeof(LOGBRUSH), pLogBrush);
}

// ---------------------------------------------------------------------------------------------------------
// CFont

IMPLEMENT_DYNAMIC(CFont, CGdiObject)

CFont::CFont() = default;

CFont* PASCAL CFont::FromHandle(HFONT hFont)
{
    return static_cast<CFont*>(CGdiObject::FromHandle(hFont));
}

BOOL CFont::CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                       BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision,
                       BYTE nClipPrecision, BYTE nQuality, BYTE nPitchAndFamily, LPCTSTR lpszFacename)
{
    return Attach(::CreateFont(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic, bUnderline,
                               cStrikeOut, nCharSet, nOutPrecision, nClipPrecision, nQuality, nPitchAndFamily,
                               lpszFacename));
}

BOOL CFont::CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC)
{
    LOGFONT font = {};
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfHeight = nPointSize;
    ::lstrcpyn(font.lfFaceName, lpszFaceName, LF_FACESIZE);
    return CreatePointFontIndirect(&font, pDC);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC)
{
    constexpr int tenthsOfPointPerInch = 720;
    const HDC screen = pDC == nullptr ? ::GetDC(nullptr) : nullptr;
    const HDC dc = pDC == nullptr ? screen : pDC->m_hAttribDC;

    // The height is the distance of two points, so that neither origin nor direction of the mapping matter.
    POINT points[2] = {
        {0, ::MulDiv(::GetDeviceCaps(dc, LOGPIXELSY), lpLogFont->lfHeight, tenthsOfPointPerInch)}, {0, 0}};
    ::DPtoLP(dc, points, 2);
    LOGFONT font = *lpLogFont;
    font.lfHeight = -abs(points[0].y - points[1].y);

    if (screen != nullptr)
        ::ReleaseDC(nullptr, screen);
    return CreateFontIndirect(&font);
}

int CFont::GetLogFont(LOGFONT* pLogFont)
{
    return ::GetObject(m_hObject, sizeof(LOGFONT), pLogFont);
}

// ---------------------------------------------------------------------------------------------------------
// CBitmap

IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)

CBitmap::CBitmap() = default;

CBitmap* PASCAL CBitmap::FromHandle(HBITMAP hBitmap)
{
    return static_cast<CBitmap*>(CGdiObject::FromHandle(hBitmap));
}

BOOL CBitmap::LoadBitmap(LPCTSTR lpszResourceName)
{
    return Attach(::LoadBitmap(AfxFindResourceHandle(lpszResourceName, RT_BITMAP), lpszResourceName));
}

BOOL CBitmap::LoadMappedBitmap(UINT nIDBitmap, UINT nFlags, LPCOLORMAP lpColorMap, int nMapSize)
{
    const HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCE(nIDBitmap), RT_BITMAP);
    return Attach(::CreateMappedBitmap(module, nIDBitmap, nFlags, lpColorMap, nMapSize));
}

BOOL CBitmap::CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits)
{
    return Attach(::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight)
{
    return Attach(::CreateCompatibleBitmap(SafeHdc(pDC), nWidth, nHeight));
}

BOOL CBitmap::CreateDiscardableBitmap(CDC* pDC, int nWidth, int nHeight)
{
    return Attach(::CreateDiscardableBitmap(SafeHdc(pDC), nWidth, nHeight));
}

DWORD CBitmap::GetBitmapBits(DWORD dwCount, LPVOID lpBits) const
{
    return ::GetBitmapBits(*this, dwCount, lpBits);
}

CSize CBitmap::SetBitmapDimension(int nWidth, int nHeight)
{
    CSize before;
    ::SetBitmapDimensionEx(*this, nWidth, nHeight, &before);
    return before;
}

CSize CBitmap::GetBitmapDimension() const
{
    CSize size;
    ::GetBitmapDimensionEx(*this, &size);
    return size;
}

// ---------------------------------------------------------------------------------------------------------
// CRgn

IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

CRgn::CRgn() = default;

BOOL CRgn::CreateEllipticRgn(int x1, int y1, int x2, int y2)
{
    return Attach(::CreateEllipticRgn(x1, y1, x2, y2));
}

BOOL CRgn::CreatePolygonRgn(LPPOINT lpPoints, int nCount, int nMode)
{
    return Attach(::CreatePolygonRgn(lpPoints, nCount, nMode));
}

BOOL CRgn::CreatePolyPolygonRgn(LPPOINT lpPoints, LPINT lpPolyCounts, int nCount, int nPolyFillMode)
{
    return Attach(::CreatePolyPolygonRgn(lpPoints, lpPolyCounts, nCount, nPolyFillMode));
}

BOOL CRgn::CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3)
{
    return Attach(::CreateRoundRectRgn(x1, y1, x2, y2, x3, y3));
}

BOOL CRgn::CreateFromPath(CDC* pDC)
{
    return Attach(::PathToRegion(SafeHdc(pDC)));
}

BOOL CRgn::CreateFromData(const XFORM* lpXForm, int nCount, const RGNDATA* pRgnData)
{
    return Attach(::ExtCreateRegion(lpXForm, nCount, pRgnData));
}

void CRgn::SetRectRgn(LPCRECT lpRect)
{
    ::SetRectRgn(*this, lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CRgn::CombineRgn(CRgn* pRgn1, CRgn* pRgn2, int nCombineMode)
{
    return ::CombineRgn(*this, SafeRgn(pRgn1), SafeRgn(pRgn2), nCombineMode);
}

int CRgn::CopyRgn(CRgn* pRgnSrc)
{
    return ::CombineRgn(*this, SafeRgn(pRgnSrc), nullptr, RGN_COPY);
}

BOOL CRgn::EqualRgn(CRgn* pRgn) const
{
    return ::EqualRgn(*this, SafeRgn(pRgn));
}

int CRgn::GetRegionData(LPRGNDATA lpRgnData, int nDataSize) const
{
    return static_cast<int>(::GetRegionData(*this, nDataSize, lpRgnData));
}
