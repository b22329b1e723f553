// Device contexts: the handle map, creation, selection, state and coordinates. Drawing stands in dcdraw.cpp.

#include <afxwin.h>

#include "dcboth.h"
#include "handlemap.h"
#include "safehandle.h"

template <>
struct CHandleTraits<CDC>
{
    using Handle = HDC;
    static void Assign(CDC& dc, HDC handle) { dc.m_hDC = dc.m_hAttribDC = handle; }
};

namespace
{
using CDCMap = CHandleMap<CDC>;

template <class Object>
Object* CurrentObject(HDC dc, UINT type)
{
    return static_cast<Object*>(CGdiObject::FromHandle(::GetCurrentObject(dc, type)));
}
} // namespace

IMPLEMENT_DYNCREATE(CDC, CObject)

CDC::CDC() = default;

HDC CDC::GetSafeHdc() const
{
    return SafeHdc(this);
}

CWnd* CDC::GetWindow() const
{
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

CDC* PASCAL CDC::FromHandle(HDC hDC)
{
    return CDCMap::OfThread().FromHandle(hDC);
}

void PASCAL CDC::DeleteTempMap()
{
    DeleteTempOfThread<CDC>();
}

BOOL CDC::Attach(HDC hDC)
{
    ASSERT(m_hAttribDC == nullptr);
    if (!AttachHandle(*this, m_hDC, hDC))
        return FALSE;
    SetAttribDC(hDC);
    return TRUE;
}

HDC CDC::Detach()
{
    ReleaseAttribDC();
    return DetachHandle(*this, m_hDC);
}

// ---------------------------------------------------------------------------------------------------------
// Creation

BOOL CDC::CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData)
{
    return Attach(
        ::CreateDC(lpszDriverName, lpszDeviceName, lpszOutput, static_cast<const DEVMODE*>(lpInitData)));
}

BOOL CDC::CreateIC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData)
{
    return Attach(
        ::CreateIC(lpszDriverName, lpszDeviceName, lpszOutput, static_cast<const DEVMODE*>(lpInitData)));
}

BOOL CDC::CreateCompatibleDC(CDC* pDC)
{
    return Attach(::CreateCompatibleDC(pDC == nullptr ? nullptr : pDC->m_hDC));
}

BOOL CDC::DeleteDC()
{
    if (m_hDC == nullptr)
        return FALSE;
    return ::DeleteDC(Detach());
}

// ---------------------------------------------------------------------------------------------------------
// State as a whole

CPoint CDC::GetBrushOrg() const
{
    CPoint origin;
    ::GetBrushOrgEx(m_hDC, &origin);
    return origin;
}

CPoint CDC::SetBrushOrg(int x, int y)
{
    CPoint before;
    ::SetBrushOrgEx(m_hDC, x, y, &before);
    return before;
}

int CDC::EnumObjects(int nObjectType, int(CALLBACK* lpfn)(LPVOID, LPARAM), LPARAM lpData)
{
    return ::EnumObjects(m_hAttribDC, nObjectType, lpfn, lpData);
}

int CDC::SaveDC()
{
    int saved = 0;
    if (m_hAttribDC != nullptr)
        saved = ::SaveDC(m_hAttribDC);
    // The two contexts count their saved states apart, so only "the last one" means the same to both.
    if (m_hDC != m_hAttribDC && ::SaveDC(m_hDC) != 0)
        saved = -1;
    return saved;
}

BOOL CDC::RestoreDC(int nSavedDC)
{
    BOOL restored = TRUE;
    if (m_hDC != m_hAttribDC)
        restored = ::RestoreDC(m_hDC, nSavedDC);
    if (m_hAttribDC != nullptr)
        restored = ::RestoreDC(m_hAttribDC, nSavedDC) && restored;
    return restored;
}

UINT CDC::SetBoundsRect(LPCRECT lpRectBounds, UINT flags)
{
    return ::SetBoundsRect(m_hDC, lpRectBounds, flags);
}

UINT CDC::GetBoundsRect(LPRECT lpRectBounds, UINT flags)
{
    return ::GetBoundsRect(m_hAttribDC, lpRectBounds, flags);
}

// ---------------------------------------------------------------------------------------------------------
// Selection

CGdiObject* PASCAL CDC::SelectGdiObject(HDC hDC, HGDIOBJ h)
{
    return CGdiObject::FromHandle(::SelectObject(hDC, h));
}

CGdiObject* CDC::SelectObject(CGdiObject* pObject)
{
    const HGDIOBJ object = SafeObject(pObject);
    return CGdiObject::FromHandle(InBoth<HGDIOBJ>(*this, [=](HDC dc) { return ::SelectObject(dc, object); }));
}

CPen* CDC::SelectObject(CPen* pPen)
{
    return static_cast<CPen*>(SelectObject(static_cast<CGdiObject*>(pPen)));
}

CBrush* CDC::SelectObject(CBrush* pBrush)
{
    return static_cast<CBrush*>(SelectObject(static_cast<CGdiObject*>(pBrush)));
}

CFont* CDC::SelectObject(CFont* pFont)
{
    return static_cast<CFont*>(SelectObject(static_cast<CGdiObject*>(pFont)));
}

CBitmap* CDC::SelectObject(CBitmap* pBitmap)
{
    // A bitmap can be selected in one context only.
    return static_cast<CBitmap*>(SelectGdiObject(m_hDC, SafeObject(pBitmap)));
}

CGdiObject* CDC::SelectStockObject(int nIndex)
{
    const HGDIOBJ object = ::GetStockObject(nIndex);
    return CGdiObject::FromHandle(InBoth<HGDIOBJ>(*this, [=](HDC dc) { return ::SelectObject(dc, object); }));
}

CPen* CDC::GetCurrentPen() const
{
    return CurrentObject<CPen>(m_hAttribDC, OBJ_PEN);
}

CBrush* CDC::GetCurrentBrush() const
{
    return CurrentObject<CBrush>(m_hAttribDC, OBJ_BRUSH);
}

CFont* CDC::GetCurrentFont() const
{
    return CurrentObject<CFont>(m_hAttribDC, OBJ_FONT);
}

CBitmap* CDC::GetCurrentBitmap() const
{
    return CurrentObject<CBitmap>(m_hDC, OBJ_BITMAP);
}

// ---------------------------------------------------------------------------------------------------------
// Drawing attributes

COLORREF CDC::SetBkColor(COLORREF crColor)
{
    return InBoth<COLORREF>(
        *this, [=](HDC dc) { return ::SetBkColor(dc, crColor); }, CLR_INVALID);
}

int CDC::SetBkMode(int nBkMode)
{
    return InBoth<int>(*this, [=](HDC dc) { return ::SetBkMode(dc, nBkMode); });
}

int CDC::SetPolyFillMode(int nPolyFillMode)
{
    return InBoth<int>(*this, [=](HDC dc) { return ::SetPolyFillMode(dc, nPolyFillMode); });
}

int CDC::SetROP2(int nDrawMode)
{
    return InBoth<int>(*this, [=](HDC dc) { return ::SetROP2(dc, nDrawMode); });
}

int CDC::SetStretchBltMode(int nStretchMode)
{
    return InBoth<int>(*this, [=](HDC dc) { return ::SetStretchBltMode(dc, nStretchMode); });
}

COLORREF CDC::SetTextColor(COLORREF crColor)
{
    return InBoth<COLORREF>(
        *this, [=](HDC dc) { return ::SetTextColor(dc, crColor); }, CLR_INVALID);
}

int CDC::SetGraphicsMode(int iMode)
{
    return InBoth<int>(*this, [=](HDC dc) { return ::SetGraphicsMode(dc, iMode); });
}

BOOL CDC::SetWorldTransform(const XFORM* pXform)
{
    return InBoth<BOOL>(*this, [=](HDC dc) { return ::SetWorldTransform(dc, pXform); });
}

BOOL CDC::ModifyWorldTransform(const XFORM* pXform, DWORD iMode)
{
    return InBoth<BOOL>(*this, [=](HDC dc) { return ::ModifyWorldTransform(dc, pXform, iMode); });
}

BOOL CDC::GetColorAdjustment(LPCOLORADJUSTMENT lpColorAdjust) const
{
    return ::GetColorAdjustment(m_hAttribDC, lpColorAdjust);
}

BOOL CDC::SetColorAdjustment(const COLORADJUSTMENT* lpColorAdjust)
{
    return InBoth<BOOL>(*this, [=](HDC dc) { return ::SetColorAdjustment(dc, lpColorAdjust); });
}

// ---------------------------------------------------------------------------------------------------------
// Mapping

CPoint CDC::GetViewportOrg() const
{
    CPoint origin;
    ::GetViewportOrgEx(m_hAttribDC, &origin);
    return origin;
}

int CDC::SetMapMode(int nMapMode)
{
    return InBoth<int>(*this, [=](HDC dc) { return ::SetMapMode(dc, nMapMode); });
}

CPoint CDC::SetViewportOrg(int x, int y)
{
    CPoint before;
    InBoth<BOOL>(*this, [&](HDC dc) { return ::SetViewportOrgEx(dc, x, y, &before); });
    return before;
}

CPoint CDC::OffsetViewportOrg(int nWidth, int nHeight)
{
    CPoint before;
    InBoth<BOOL>(*this, [&](HDC dc) { return ::OffsetViewportOrgEx(dc, nWidth, nHeight, &before); });
    return before;
}

CSize CDC::GetViewportExt() const
{
    CSize extent;
    ::GetViewportExtEx(m_hAttribDC, &extent);
    return extent;
}

CSize CDC::SetViewportExt(int cx, int cy)
{
    CSize before;
    InBoth<BOOL>(*this, [&](HDC dc) { return ::SetViewportExtEx(dc, cx, cy, &before); });
    return before;
}

CSize CDC::ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom)
{
    CSize before;
    InBoth<BOOL>(*this,
                 [&](HDC dc) { return ::ScaleViewportExtEx(dc, xNum, xDenom, yNum, yDenom, &before); });
    return before;
}

CPoint CDC::GetWindowOrg() const
{
    CPoint origin;
    ::GetWindowOrgEx(m_hAttribDC, &origin);
    return origin;
}

CPoint CDC::SetWindowOrg(int x, int y)
{
    CPoint before;
    InBoth<BOOL>(*this, [&](HDC dc) { return ::SetWindowOrgEx(dc, x, y, &before); });
    return before;
}

CPoint CDC::OffsetWindowOrg(int nWidth, int nHeight)
{
    CPoint before;
    InBoth<BOOL>(*this, [&](HDC dc) { return ::OffsetWindowOrgEx(dc, nWidth, nHeight, &before); });
    return before;
}

CSize CDC::GetWindowExt() const
{
    CSize extent;
    ::GetWindowExtEx(m_hAttribDC, &extent);
    return extent;
}

CSize CDC::SetWindowExt(int cx, int cy)
{
    CSize before;
    InBoth<BOOL>(*this, [&](HDC dc) { return ::SetWindowExtEx(dc, cx, cy, &before); });
    return before;
}

CSize CDC::ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom)
{
    CSize before;
    InBoth<BOOL>(*this, [&](HDC dc) { return ::ScaleWindowExtEx(dc, xNum, xDenom, yNum, yDenom, &before); });
    return before;
}

DWORD CDC::SetLayout(DWORD dwLayout)
{
    return InBoth<DWORD>(
        *this, [=](HDC dc) { return ::SetLayout(dc, dwLayout); }, GDI_ERROR);
}

// ---------------------------------------------------------------------------------------------------------
// Coordinates

void CDC::DPtoLP(LPSIZE lpSize) const
{
    const CSize window = GetWindowExt();
    const CSize viewport = GetViewportExt();
    lpSize->cx = ::MulDiv(lpSize->cx, abs(window.cx), abs(viewport.cx));
    lpSize->cy = ::MulDiv(lpSize->cy, abs(window.cy), abs(viewport.cy));
}

void CDC::LPtoDP(LPSIZE lpSize) const
{
    const CSize window = GetWindowExt();
    const CSize viewport = GetViewportExt();
    lpSize->cx = ::MulDiv(lpSize->cx, abs(viewport.cx), abs(window.cx));
    lpSize->cy = ::MulDiv(lpSize->cy, abs(viewport.cy), abs(window.cy));
}

namespace
{
constexpr int himetricPerInch = 2540;

/// Whether the mapping mode has physical units of its own, which then decide, and not the logical inch.
bool IsPhysicalMode(int mode)
{
    return mode != MM_TEXT && mode < MM_ISOTROPIC;
}

/// Switches a context to hundredths of a millimetre for the lifetime of the object.
class CHimetricMode
{
public:
    explicit CHimetricMode(const CDC& dc) : m_dc(const_cast<CDC&>(dc)), m_before(m_dc.SetMapMode(MM_HIMETRIC))
    {
    }
    ~CHimetricMode() { m_dc.SetMapMode(m_before); }
    CHimetricMode(const CHimetricMode&) = delete;
    CHimetricMode& operator=(const CHimetricMode&) = delete;

private:
    CDC& m_dc;
    int m_before;
};
} // namespace

void CDC::DPtoHIMETRIC(LPSIZE lpSize) const
{
    if (IsPhysicalMode(GetMapMode()))
    {
        const CHimetricMode himetric(*this);
        DPtoLP(lpSize);
        return;
    }
    lpSize->cx = ::MulDiv(lpSize->cx, himetricPerInch, GetDeviceCaps(LOGPIXELSX));
    lpSize->cy = ::MulDiv(lpSize->cy, himetricPerInch, GetDeviceCaps(LOGPIXELSY));
}

void CDC::HIMETRICtoDP(LPSIZE lpSize) const
{
    if (IsPhysicalMode(GetMapMode()))
    {
        const CHimetricMode himetric(*this);
        LPtoDP(lpSize);
        return;
    }
    lpSize->cx = ::MulDiv(lpSize->cx, GetDeviceCaps(LOGPIXELSX), himetricPerInch);
    lpSize->cy = ::MulDiv(lpSize->cy, GetDeviceCaps(LOGPIXELSY), himetricPerInch);
}

void CDC::LPtoHIMETRIC(LPSIZE lpSize) const
{
    LPtoDP(lpSize);
    DPtoHIMETRIC(lpSize);
}

void CDC::HIMETRICtoLP(LPSIZE lpSize) const
{
    HIMETRICtoDP(lpSize);
    DPtoLP(lpSize);
}

// ---------------------------------------------------------------------------------------------------------
// Clipping

int CDC::SelectClipRgn(CRgn* pRgn)
{
    const HRGN region = SafeRgn(pRgn);
    return InBoth<int>(
        *this, [=](HDC dc) { return ::SelectClipRgn(dc, region); }, ERROR);
}

int CDC::SelectClipRgn(CRgn* pRgn, int nMode)
{
    const HRGN region = SafeRgn(pRgn);
    return InBoth<int>(
        *this, [=](HDC dc) { return ::ExtSelectClipRgn(dc, region, nMode); }, ERROR);
}

int CDC::ExcludeClipRect(int x1, int y1, int x2, int y2)
{
    return InBoth<int>(
        *this, [=](HDC dc) { return ::ExcludeClipRect(dc, x1, y1, x2, y2); }, ERROR);
}

int CDC::ExcludeClipRect(LPCRECT lpRect)
{
    return ExcludeClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CDC::ExcludeUpdateRgn(CWnd* pWnd)
{
    return ::ExcludeUpdateRgn(m_hDC, SafeHwnd(pWnd));
}

int CDC::IntersectClipRect(int x1, int y1, int x2, int y2)
{
    return InBoth<int>(
        *this, [=](HDC dc) { return ::IntersectClipRect(dc, x1, y1, x2, y2); }, ERROR);
}

int CDC::IntersectClipRect(LPCRECT lpRect)
{
    return IntersectClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

int CDC::OffsetClipRgn(int x, int y)
{
    return InBoth<int>(
        *this, [=](HDC dc) { return ::OffsetClipRgn(dc, x, y); }, ERROR);
}

// ---------------------------------------------------------------------------------------------------------
// Contexts of windows

IMPLEMENT_DYNAMIC(CClientDC, CDC)

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(SafeHwnd(pWnd))
{
    if (!Attach(::GetDC(m_hWnd)))
        AfxThrowResourceException();
}

IMPLEMENT_DYNAMIC(CWindowDC, CDC)

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(SafeHwnd(pWnd))
{
    if (!Attach(::GetWindowDC(m_hWnd)))
        AfxThrowResourceException();
}

IMPLEMENT_DYNAMIC(CPaintDC, CDC)

CPaintDC::CPaintDC(CWnd* pWnd) : m_ps(), m_hWnd(SafeHwnd(pWnd))
{
    if (!Attach(::BeginPaint(m_hWnd, &m_ps)))
        AfxThrowResourceException();
}

CPaintDC::~CPaintDC()
{
    ::EndPaint(m_hWnd, &m_ps);
    Detach();
}
