#pragma once
// GDI objects, device contexts and menus.
//
//     void CMyWnd::OnPaint()
//     {
//         CPaintDC dc(this);
//         CPen pen(PS_SOLID, 1, RGB(200, 0, 0));
//         CPen* old = dc.SelectObject(&pen);
//         dc.MoveTo(0, 0);
//         dc.LineTo(50, 50);
//         dc.SelectObject(old);            // before the pen goes out of scope
//     }
//
// Ownership: a GDI object, device context or menu object owns its handle and destroys it in its destructor;
// `Detach` gives the handle away. What `FromHandle` and `SelectObject` return is either the object that the
// handle is attached to or a temporary one. A temporary object owns nothing and lives until the thread's next
// idle time: it may be used at once and must not be kept.
//
// Failures: the Create functions answer FALSE and leave the object empty. Constructors that create throw
// CResourceException. Everything else answers as the Win32 function of the same name does.

#include <afx.h>
#include <atltypes.h>

#include <commctrl.h>

class CBitmap;
class CDC;
class CWnd;

/// What every GDI object has: the handle, and the map between handles and objects.
class AFX_CORE_CLASS CGdiObject : public CObject
{
    DECLARE_DYNCREATE(CGdiObject)

public:
    CGdiObject();
    ~CGdiObject() override { DeleteObject(); }
    CGdiObject(const CGdiObject&) = delete;
    CGdiObject& operator=(const CGdiObject&) = delete;

    HGDIOBJ m_hObject = nullptr;

    operator HGDIOBJ() const { return GetSafeHandle(); }
    /// The handle; null also if `this` is null.
    HGDIOBJ GetSafeHandle() const;

    /// The object of a handle, made temporarily if the handle has none. A temporary one is a plain CGdiObject
    /// whatever the handle is, so the FromHandle of CPen and the others may be used for calls only.
    static CGdiObject* PASCAL FromHandle(HGDIOBJ hObject);
    static void PASCAL DeleteTempMap();
    /// Takes the handle over; FALSE for a null one.
    BOOL Attach(HGDIOBJ hObject);
    HGDIOBJ Detach();

    /// Destroys the GDI object; FALSE if there is none or it is still selected somewhere.
    BOOL DeleteObject();
    int GetObject(int nCount, LPVOID lpObject) const { return ::GetObject(m_hObject, nCount, lpObject); }
    /// OBJ_PEN, OBJ_BRUSH, ...
    UINT GetObjectType() const { return ::GetObjectType(m_hObject); }
    /// Attaches a stock object, which is never destroyed, whoever tries.
    BOOL CreateStockObject(int nIndex) { return Attach(::GetStockObject(nIndex)); }
    BOOL UnrealizeObject() { return ::UnrealizeObject(m_hObject); }

    bool operator==(const CGdiObject& obj) const { return m_hObject == obj.m_hObject; }
    bool operator!=(const CGdiObject& obj) const { return m_hObject != obj.m_hObject; }
};

class AFX_CORE_CLASS CPen : public CGdiObject
{
    DECLARE_DYNAMIC(CPen)

public:
    CPen();
    CPen(int nPenStyle, int nWidth, COLORREF crColor);
    CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0,
         const DWORD* lpStyle = nullptr);

    static CPen* PASCAL FromHandle(HPEN hPen) { return static_cast<CPen*>(CGdiObject::FromHandle(hPen)); }
    operator HPEN() const { return static_cast<HPEN>(GetSafeHandle()); }

    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor);
    BOOL CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0,
                   const DWORD* lpStyle = nullptr);
    BOOL CreatePenIndirect(LPLOGPEN lpLogPen) { return Attach(::CreatePenIndirect(lpLogPen)); }

    int GetLogPen(LOGPEN* pLogPen) { return ::GetObject(m_hObject, sizeof(LOGPEN), pLogPen); }
    int GetExtLogPen(EXTLOGPEN* pLogPen);
};

class AFX_CORE_CLASS CBrush : public CGdiObject
{
    DECLARE_DYNAMIC(CBrush)

public:
    CBrush();
    CBrush(COLORREF crColor);
    CBrush(int nIndex, COLORREF crColor);
    explicit CBrush(CBitmap* pBitmap);

    static CBrush* PASCAL FromHandle(HBRUSH hBrush);
    operator HBRUSH() const { return static_cast<HBRUSH>(GetSafeHandle()); }

    BOOL CreateSolidBrush(COLORREF crColor) { return Attach(::CreateSolidBrush(crColor)); }
    BOOL CreateHatchBrush(int nIndex, COLORREF crColor);
    BOOL CreateBrushIndirect(const LOGBRUSH* lpLogBrush) { return Attach(::CreateBrushIndirect(lpLogBrush)); }
    BOOL CreatePatternBrush(CBitmap* pBitmap);
    BOOL CreateDIBPatternBrush(HGLOBAL hPackedDIB, UINT nUsage);
    BOOL CreateDIBPatternBrush(const void* lpPackedDIB, UINT nUsage);
    /// The system's own brush of a COLOR_ index; it is not destroyed.
    BOOL CreateSysColorBrush(int nIndex) { return Attach(::GetSysColorBrush(nIndex)); }

    int GetLogBrush(LOGBRUSH* pLogBrush);
};

class AFX_CORE_CLASS CFont : public CGdiObject
{
    DECLARE_DYNAMIC(CFont)

public:
    CFont();

    static CFont* PASCAL FromHandle(HFONT hFont);
    operator HFONT() const { return static_cast<HFONT>(GetSafeHandle()); }

    BOOL CreateFontIndirect(const LOGFONT* lpLogFont) { return Attach(::CreateFontIndirect(lpLogFont)); }
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                    BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision, BYTE nClipPrecision,
                    BYTE nQuality, BYTE nPitchAndFamily, LPCTSTR lpszFacename);
    /// A font of `nPointSize` tenths of a point for the context, or for the screen without one.
    BOOL CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC = nullptr);
    /// As CreateFontIndirect with lfHeight in tenths of a point.
    BOOL CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC = nullptr);

    int GetLogFont(LOGFONT* pLogFont);
};

class AFX_CORE_CLASS CBitmap : public CGdiObject
{
    DECLARE_DYNAMIC(CBitmap)

public:
    CBitmap();

    static CBitmap* PASCAL FromHandle(HBITMAP hBitmap);
    operator HBITMAP() const { return static_cast<HBITMAP>(GetSafeHandle()); }

    /// Loads from the module that has the resource, searched along the chain of extension modules.
    BOOL LoadBitmap(LPCTSTR lpszResourceName);
    BOOL LoadBitmap(UINT nIDResource) { return LoadBitmap(MAKEINTRESOURCE(nIDResource)); }
    /// One of the system's bitmaps, OBM_...
    BOOL LoadOEMBitmap(UINT nIDBitmap) { return Attach(::LoadBitmap(nullptr, MAKEINTRESOURCE(nIDBitmap))); }
    /// Loads with colours exchanged; without a table the 3D greys become the system's.
    BOOL LoadMappedBitmap(UINT nIDBitmap, UINT nFlags = 0, LPCOLORMAP lpColorMap = nullptr, int nMapSize = 0);
    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits);
    BOOL CreateBitmapIndirect(LPBITMAP lpBitmap) { return Attach(::CreateBitmapIndirect(lpBitmap)); }
    BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);
    BOOL CreateDiscardableBitmap(CDC* pDC, int nWidth, int nHeight);

    int GetBitmap(BITMAP* pBitMap) { return ::GetObject(m_hObject, sizeof(BITMAP), pBitMap); }
    DWORD SetBitmapBits(DWORD dwCount, const void* lpBits) { return ::SetBitmapBits(*this, dwCount, lpBits); }
    DWORD GetBitmapBits(DWORD dwCount, LPVOID lpBits) const;
    /// The dimensions in tenths of a millimetre that a program noted with the bitmap; the old ones come back.
    CSize SetBitmapDimension(int nWidth, int nHeight);
    CSize GetBitmapDimension() const;
};

class AFX_CORE_CLASS CRgn : public CGdiObject
{
    DECLARE_DYNAMIC(CRgn)

public:
    CRgn();

    static CRgn* PASCAL FromHandle(HRGN hRgn) { return static_cast<CRgn*>(CGdiObject::FromHandle(hRgn)); }
    operator HRGN() const { return static_cast<HRGN>(GetSafeHandle()); }

    BOOL CreateRectRgn(int x1, int y1, int x2, int y2) { return Attach(::CreateRectRgn(x1, y1, x2, y2)); }
    BOOL CreateRectRgnIndirect(LPCRECT lpRect) { return Attach(::CreateRectRgnIndirect(lpRect)); }
    BOOL CreateEllipticRgn(int x1, int y1, int x2, int y2);
    BOOL CreateEllipticRgnIndirect(LPCRECT lpRect) { return Attach(::CreateEllipticRgnIndirect(lpRect)); }
    BOOL CreatePolygonRgn(LPPOINT lpPoints, int nCount, int nMode);
    BOOL CreatePolyPolygonRgn(LPPOINT lpPoints, LPINT lpPolyCounts, int nCount, int nPolyFillMode);
    BOOL CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3);
    BOOL CreateFromPath(CDC* pDC);
    BOOL CreateFromData(const XFORM* lpXForm, int nCount, const RGNDATA* pRgnData);

    void SetRectRgn(int x1, int y1, int x2, int y2) { ::SetRectRgn(*this, x1, y1, x2, y2); }
    void SetRectRgn(LPCRECT lpRect);
    /// This region, which must exist, becomes the combination; answers its complexity or ERROR.
    int CombineRgn(CRgn* pRgn1, CRgn* pRgn2, int nCombineMode);
    int CopyRgn(CRgn* pRgnSrc);
    BOOL EqualRgn(CRgn* pRgn) const;
    int OffsetRgn(int x, int y) { return ::OffsetRgn(*this, x, y); }
    int OffsetRgn(POINT point) { return OffsetRgn(point.x, point.y); }
    int GetRgnBox(LPRECT lpRect) const { return ::GetRgnBox(*this, lpRect); }
    BOOL PtInRegion(int x, int y) const { return ::PtInRegion(*this, x, y); }
    BOOL PtInRegion(POINT point) const { return PtInRegion(point.x, point.y); }
    BOOL RectInRegion(LPCRECT lpRect) const { return ::RectInRegion(*this, lpRect); }
    int GetRegionData(LPRGNDATA lpRgnData, int nDataSize) const;
};

/// A device context. Output goes to `m_hDC`, questions go to `m_hAttribDC`; the two differ only for contexts
/// that record or preview what another device will print.
class AFX_CORE_CLASS CDC : public CObject
{
    DECLARE_DYNCREATE(CDC)

public:
    CDC();
    /// Deletes the context. An attached context that came from GetDC must be detached first.
    ~CDC() override { DeleteDC(); }
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;

    HDC m_hDC = nullptr;
    HDC m_hAttribDC = nullptr;
    BOOL m_bPrinting = FALSE;

    operator HDC() const { return GetSafeHdc(); }
    /// The output context; null also if `this` is null.
    HDC GetSafeHdc() const;
    CWnd* GetWindow() const;

    static CDC* PASCAL FromHandle(HDC hDC);
    static void PASCAL DeleteTempMap();
    BOOL Attach(HDC hDC);
    HDC Detach();

    virtual void SetAttribDC(HDC hDC) { m_hAttribDC = hDC; }
    virtual void SetOutputDC(HDC hDC) { m_hDC = hDC; }
    virtual void ReleaseAttribDC() { m_hAttribDC = nullptr; }
    virtual void ReleaseOutputDC() { m_hDC = nullptr; }
    BOOL IsPrinting() const { return m_bPrinting; }

    // Creation
    BOOL CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData);
    BOOL CreateIC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput, const void* lpInitData);
    /// A memory context; of the screen if `pDC` is null.
    BOOL CreateCompatibleDC(CDC* pDC);
    BOOL DeleteDC();

    // State as a whole
    CPoint GetBrushOrg() const;
    CPoint SetBrushOrg(int x, int y);
    CPoint SetBrushOrg(POINT point) { return SetBrushOrg(point.x, point.y); }
    int EnumObjects(int nObjectType, int(CALLBACK* lpfn)(LPVOID, LPARAM), LPARAM lpData);
    virtual int SaveDC();
    virtual BOOL RestoreDC(int nSavedDC);
    int GetDeviceCaps(int nIndex) const { return ::GetDeviceCaps(m_hAttribDC, nIndex); }
    UINT SetBoundsRect(LPCRECT lpRectBounds, UINT flags);
    UINT GetBoundsRect(LPRECT lpRectBounds, UINT flags);
    BOOL ResetDC(const DEVMODE* lpDevMode) { return ::ResetDC(m_hAttribDC, lpDevMode) != nullptr; }

    // Selection. Each answers what was selected before, perhaps as a temporary object; null on failure.
    CPen* SelectObject(CPen* pPen);
    CBrush* SelectObject(CBrush* pBrush);
    virtual CFont* SelectObject(CFont* pFont);
    CBitmap* SelectObject(CBitmap* pBitmap);
    /// Becomes the clipping region, of which the context keeps a copy; answers its complexity or ERROR.
    int SelectObject(CRgn* pRgn) { return SelectClipRgn(pRgn); }
    CGdiObject* SelectObject(CGdiObject* pObject);
    virtual CGdiObject* SelectStockObject(int nIndex);
    CPen* GetCurrentPen() const;
    CBrush* GetCurrentBrush() const;
    CFont* GetCurrentFont() const;
    CBitmap* GetCurrentBitmap() const;

    // Colours
    COLORREF GetNearestColor(COLORREF crColor) const { return ::GetNearestColor(m_hAttribDC, crColor); }
    COLORREF GetDCBrushColor() const { return ::GetDCBrushColor(m_hDC); }
    COLORREF SetDCBrushColor(COLORREF crColor) { return ::SetDCBrushColor(m_hDC, crColor); }
    COLORREF GetDCPenColor() const { return ::GetDCPenColor(m_hDC); }
    COLORREF SetDCPenColor(COLORREF crColor) { return ::SetDCPenColor(m_hDC, crColor); }
    int SetICMMode(int nMode) { return ::SetICMMode(m_hDC, nMode); }

    // Drawing attributes
    COLORREF GetBkColor() const { return ::GetBkColor(m_hAttribDC); }
    int GetBkMode() const { return ::GetBkMode(m_hAttribDC); }
    int GetPolyFillMode() const { return ::GetPolyFillMode(m_hAttribDC); }
    int GetROP2() const { return ::GetROP2(m_hAttribDC); }
    int GetStretchBltMode() const { return ::GetStretchBltMode(m_hAttribDC); }
    COLORREF GetTextColor() const { return ::GetTextColor(m_hAttribDC); }
    virtual COLORREF SetBkColor(COLORREF crColor);
    int SetBkMode(int nBkMode);
    int SetPolyFillMode(int nPolyFillMode);
    int SetROP2(int nDrawMode);
    int SetStretchBltMode(int nStretchMode);
    virtual COLORREF SetTextColor(COLORREF crColor);
    int GetGraphicsMode() const { return ::GetGraphicsMode(m_hDC); }
    int SetGraphicsMode(int iMode);
    BOOL GetWorldTransform(XFORM* pXform) const { return ::GetWorldTransform(m_hAttribDC, pXform); }
    BOOL SetWorldTransform(const XFORM* pXform);
    BOOL ModifyWorldTransform(const XFORM* pXform, DWORD iMode);
    BOOL GetColorAdjustment(LPCOLORADJUSTMENT lpColorAdjust) const;
    BOOL SetColorAdjustment(const COLORADJUSTMENT* lpColorAdjust);

    // Mapping
    int GetMapMode() const { return ::GetMapMode(m_hAttribDC); }
    CPoint GetViewportOrg() const;
    virtual int SetMapMode(int nMapMode);
    virtual CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(POINT point) { return SetViewportOrg(point.x, point.y); }
    virtual CPoint OffsetViewportOrg(int nWidth, int nHeight);
    CSize GetViewportExt() const;
    virtual CSize SetViewportExt(int cx, int cy);
    CSize SetViewportExt(SIZE size) { return SetViewportExt(size.cx, size.cy); }
    virtual CSize ScaleViewportExt(int xNum, int xDenom, int yNum, int yDenom);
    CPoint GetWindowOrg() const;
    CPoint SetWindowOrg(int x, int y);
    CPoint SetWindowOrg(POINT point) { return SetWindowOrg(point.x, point.y); }
    CPoint OffsetWindowOrg(int nWidth, int nHeight);
    CSize GetWindowExt() const;
    virtual CSize SetWindowExt(int cx, int cy);
    CSize SetWindowExt(SIZE size) { return SetWindowExt(size.cx, size.cy); }
    virtual CSize ScaleWindowExt(int xNum, int xDenom, int yNum, int yDenom);
    DWORD GetLayout() const { return ::GetLayout(m_hAttribDC); }
    DWORD SetLayout(DWORD dwLayout);

    // Coordinates. DP is device, LP logical; HIMETRIC is hundredths of a millimetre.
    void DPtoLP(LPPOINT lpPoints, int nCount = 1) const { ::DPtoLP(m_hAttribDC, lpPoints, nCount); }
    void DPtoLP(LPRECT lpRect) const { ::DPtoLP(m_hAttribDC, reinterpret_cast<LPPOINT>(lpRect), 2); }
    void DPtoLP(LPSIZE lpSize) const;
    void LPtoDP(LPPOINT lpPoints, int nCount = 1) const { ::LPtoDP(m_hAttribDC, lpPoints, nCount); }
    void LPtoDP(LPRECT lpRect) const { ::LPtoDP(m_hAttribDC, reinterpret_cast<LPPOINT>(lpRect), 2); }
    void LPtoDP(LPSIZE lpSize) const;
    void DPtoHIMETRIC(LPSIZE lpSize) const;
    void LPtoHIMETRIC(LPSIZE lpSize) const;
    void HIMETRICtoDP(LPSIZE lpSize) const;
    void HIMETRICtoLP(LPSIZE lpSize) const;

    // Regions
    BOOL FillRgn(CRgn* pRgn, CBrush* pBrush);
    BOOL FrameRgn(CRgn* pRgn, CBrush* pBrush, int nWidth, int nHeight);
    BOOL InvertRgn(CRgn* pRgn);
    BOOL PaintRgn(CRgn* pRgn);

    // Clipping
    virtual int GetClipBox(LPRECT lpRect) const { return ::GetClipBox(m_hAttribDC, lpRect); }
    virtual BOOL PtVisible(int x, int y) const { return ::PtVisible(m_hAttribDC, x, y); }
    BOOL PtVisible(POINT point) const { return PtVisible(point.x, point.y); }
    virtual BOOL RectVisible(LPCRECT lpRect) const { return ::RectVisible(m_hAttribDC, lpRect); }
    int SelectClipRgn(CRgn* pRgn);
    int SelectClipRgn(CRgn* pRgn, int nMode);
    int ExcludeClipRect(int x1, int y1, int x2, int y2);
    int ExcludeClipRect(LPCRECT lpRect);
    int ExcludeUpdateRgn(CWnd* pWnd);
    int IntersectClipRect(int x1, int y1, int x2, int y2);
    int IntersectClipRect(LPCRECT lpRect);
    int OffsetClipRgn(int x, int y);
    int OffsetClipRgn(SIZE size) { return OffsetClipRgn(size.cx, size.cy); }

    // Lines
    CPoint GetCurrentPosition() const;
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    BOOL LineTo(int x, int y);
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    BOOL Arc(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL Arc(LPCRECT lpRect, POINT ptStart, POINT ptEnd);
    BOOL ArcTo(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL ArcTo(LPCRECT lpRect, POINT ptStart, POINT ptEnd);
    BOOL AngleArc(int x, int y, int nRadius, float fStartAngle, float fSweepAngle);
    int GetArcDirection() const { return ::GetArcDirection(m_hAttribDC); }
    int SetArcDirection(int nArcDirection);
    BOOL Polyline(LPPOINT lpPoints, int nCount) { return ::Polyline(m_hDC, lpPoints, nCount); }
    BOOL PolylineTo(const POINT* lpPoints, int nCount);
    BOOL PolyPolyline(const POINT* lpPoints, const DWORD* lpPolyPoints, int nCount);
    BOOL PolyDraw(const POINT* lpPoints, const BYTE* lpTypes, int nCount);
    BOOL PolyBezier(const POINT* lpPoints, int nCount) { return ::PolyBezier(m_hDC, lpPoints, nCount); }
    BOOL PolyBezierTo(const POINT* lpPoints, int nCount);

    // Areas
    void FillRect(LPCRECT lpRect, CBrush* pBrush);
    void FrameRect(LPCRECT lpRect, CBrush* pBrush);
    void InvertRect(LPCRECT lpRect) { ::InvertRect(m_hDC, lpRect); }
    BOOL DrawIcon(int x, int y, HICON hIcon) { return ::DrawIcon(m_hDC, x, y, hIcon); }
    BOOL DrawIcon(POINT point, HICON hIcon) { return DrawIcon(point.x, point.y, hIcon); }
    BOOL DrawState(CPoint pt, CSize size, HBITMAP hBitmap, UINT nFlags, HBRUSH hBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, CBitmap* pBitmap, UINT nFlags, CBrush* pBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, HBRUSH hBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, HICON hIcon, UINT nFlags, CBrush* pBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText = TRUE,
                   int nTextLen = 0, HBRUSH hBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, LPCTSTR lpszText, UINT nFlags, BOOL bPrefixText = TRUE,
                   int nTextLen = 0, CBrush* pBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags,
                   HBRUSH hBrush = nullptr);
    BOOL DrawState(CPoint pt, CSize size, DRAWSTATEPROC lpDrawProc, LPARAM lData, UINT nFlags,
                   CBrush* pBrush = nullptr);
    BOOL Chord(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL Chord(LPCRECT lpRect, POINT ptStart, POINT ptEnd);
    void DrawFocusRect(LPCRECT lpRect) { ::DrawFocusRect(m_hDC, lpRect); }
    BOOL Ellipse(int x1, int y1, int x2, int y2) { return ::Ellipse(m_hDC, x1, y1, x2, y2); }
    BOOL Ellipse(LPCRECT lpRect) { return Ellipse(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom); }
    BOOL Pie(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    BOOL Pie(LPCRECT lpRect, POINT ptStart, POINT ptEnd);
    BOOL Polygon(LPPOINT lpPoints, int nCount) { return ::Polygon(m_hDC, lpPoints, nCount); }
    BOOL PolyPolygon(LPPOINT lpPoints, LPINT lpPolyCounts, int nCount);
    BOOL Rectangle(int x1, int y1, int x2, int y2) { return ::Rectangle(m_hDC, x1, y1, x2, y2); }
    BOOL Rectangle(LPCRECT lpRect);
    BOOL RoundRect(int x1, int y1, int x2, int y2, int x3, int y3);
    BOOL RoundRect(LPCRECT lpRect, POINT point);
    BOOL GradientFill(TRIVERTEX* pVertices, ULONG nVertices, void* pMesh, ULONG nMeshElements, DWORD dwMode);
    /// Fills with one colour, and leaves it as the background colour of the context.
    void FillSolidRect(LPCRECT lpRect, COLORREF clr);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF clr);
    /// A frame one pixel wide inside the rectangle: left and top in one colour, right and bottom in the
    /// other.
    void Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight);
    void Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight);
    BOOL DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags) { return ::DrawEdge(m_hDC, lpRect, nEdge, nFlags); }
    BOOL DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState);
    /// Erases the drag frame of `lpRectLast` (null the first time) and draws that of `lpRect`, `size` being
    /// the thickness of the frame. Without brushes a halftone one is used.
    void DrawDragRect(LPCRECT lpRect, SIZE size, LPCRECT lpRectLast, SIZE sizeLast, CBrush* pBrush = nullptr,
                      CBrush* pBrushLast = nullptr);
    /// A shared grey chequered brush, owned by the library.
    static CBrush* PASCAL GetHalftoneBrush();

    // Bitmaps
    BOOL PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop);
    BOOL BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop);
    BOOL StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                    int nSrcHeight, DWORD dwRop);
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
    COLORREF GetPixel(POINT point) const { return GetPixel(point.x, point.y); }
    COLORREF SetPixel(int x, int y, COLORREF crColor) { return ::SetPixel(m_hDC, x, y, crColor); }
    COLORREF SetPixel(POINT point, COLORREF crColor) { return SetPixel(point.x, point.y, crColor); }
    BOOL SetPixelV(int x, int y, COLORREF crColor) { return ::SetPixelV(m_hDC, x, y, crColor); }
    BOOL SetPixelV(POINT point, COLORREF crColor) { return SetPixelV(point.x, point.y, crColor); }
    BOOL FloodFill(int x, int y, COLORREF crColor) { return ::FloodFill(m_hDC, x, y, crColor); }
    BOOL ExtFloodFill(int x, int y, COLORREF crColor, UINT nFillType);
    BOOL MaskBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, CBitmap& maskBitmap,
                 int xMask, int yMask, DWORD dwRop);
    BOOL PlgBlt(LPPOINT lpPoint, CDC* pSrcDC, int xSrc, int ySrc, int nWidth, int nHeight,
                CBitmap& maskBitmap, int xMask, int yMask);
    BOOL TransparentBlt(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc,
                        int ySrc, int nSrcWidth, int nSrcHeight, UINT clrTransparent);
    BOOL AlphaBlend(int xDest, int yDest, int nDestWidth, int nDestHeight, CDC* pSrcDC, int xSrc, int ySrc,
                    int nSrcWidth, int nSrcHeight, BLENDFUNCTION blend);

    // Text
    virtual BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount);
    BOOL TextOut(int x, int y, const CString& str) { return TextOut(x, y, str, str.GetLength()); }
    virtual BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount,
                            LPINT lpDxWidths);
    BOOL ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, const CString& str, LPINT lpDxWidths);
    virtual CSize TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions,
                                LPINT lpnTabStopPositions, int nTabOrigin);
    CSize TabbedTextOut(int x, int y, const CString& str, int nTabPositions, LPINT lpnTabStopPositions,
                        int nTabOrigin);
    virtual int DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat);
    /// With DT_MODIFYSTRING the string receives the text as it was drawn.
    int DrawText(const CString& str, LPRECT lpRect, UINT nFormat);
    virtual int DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat,
                           LPDRAWTEXTPARAMS lpDTParams);
    int DrawTextEx(const CString& str, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams);
    CSize GetTextExtent(LPCTSTR lpszString, int nCount) const;
    CSize GetTextExtent(const CString& str) const;
    CSize GetOutputTextExtent(LPCTSTR lpszString, int nCount) const;
    CSize GetOutputTextExtent(const CString& str) const;
    CSize GetTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions,
                              LPINT lpnTabStopPositions) const;
    CSize GetTabbedTextExtent(const CString& str, int nTabPositions, LPINT lpnTabStopPositions) const;
    CSize GetOutputTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions,
                                    LPINT lpnTabStopPositions) const;
    CSize GetOutputTabbedTextExtent(const CString& str, int nTabPositions, LPINT lpnTabStopPositions) const;
    BOOL GetTextExtentPointI(LPWORD pgiIn, int cgi, LPSIZE lpSize) const;
    BOOL GetTextExtentExPointI(LPWORD pgiIn, int cgi, int nMaxExtent, LPINT lpnFit, LPINT alpDx,
                               LPSIZE lpSize) const;
    virtual BOOL GrayString(CBrush* pBrush, BOOL(CALLBACK* lpfnOutput)(HDC, LPARAM, int), LPARAM lpData,
                            int nCount, int x, int y, int nWidth, int nHeight);
    UINT GetTextAlign() const { return ::GetTextAlign(m_hAttribDC); }
    UINT SetTextAlign(UINT nFlags);
    int GetTextFace(int nCount, LPTSTR lpszFacename) const;
    int GetTextFace(CString& rString) const;
    BOOL GetTextMetrics(LPTEXTMETRIC lpMetrics) const { return ::GetTextMetrics(m_hAttribDC, lpMetrics); }
    BOOL GetOutputTextMetrics(LPTEXTMETRIC lpMetrics) const { return ::GetTextMetrics(m_hDC, lpMetrics); }
    int SetTextJustification(int nBreakExtra, int nBreakCount);
    int GetTextCharacterExtra() const { return ::GetTextCharacterExtra(m_hAttribDC); }
    int SetTextCharacterExtra(int nCharExtra);
    DWORD GetCharacterPlacement(LPCTSTR lpString, int nCount, int nMaxExtent, LPGCP_RESULTS lpResults,
                                DWORD dwFlags) const;
    DWORD GetCharacterPlacement(CString& str, int nMaxExtent, LPGCP_RESULTS lpResults, DWORD dwFlags) const;
    BOOL GetAspectRatioFilterEx(LPSIZE lpsizeAspect) const;
    CSize GetAspectRatioFilter() const;

    // Fonts
    BOOL GetCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const;
    BOOL GetCharWidth(UINT nFirstChar, UINT nLastChar, float* lpFloatBuffer) const;
    BOOL GetOutputCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const;
    BOOL GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABC lpabc) const;
    BOOL GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABCFLOAT lpABCF) const;
    BOOL GetCharWidthI(UINT giFirst, UINT cgi, LPWORD pgi, LPINT lpBuffer) const;
    BOOL GetCharABCWidthsI(UINT giFirst, UINT cgi, LPWORD pgi, LPABC lpabc) const;
    DWORD SetMapperFlags(DWORD dwFlag);
    DWORD GetFontData(DWORD dwTable, DWORD dwOffset, LPVOID lpData, DWORD cbData) const;
    DWORD GetFontLanguageInfo() const { return ::GetFontLanguageInfo(m_hDC); }
    int GetKerningPairs(int nPairs, LPKERNINGPAIR lpkrnpair) const;
    UINT GetOutlineTextMetrics(UINT cbData, LPOUTLINETEXTMETRIC lpotm) const;
    DWORD GetGlyphOutline(UINT nChar, UINT nFormat, LPGLYPHMETRICS lpgm, DWORD cbBuffer, LPVOID lpBuffer,
                          const MAT2* lpmat2) const;

    // Scrolling
    BOOL ScrollDC(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* pRgnUpdate,
                  LPRECT lpRectUpdate);

    // Printing
    virtual int Escape(int nEscape, int nCount, LPCSTR lpszInData, LPVOID lpOutData);
    int Escape(int nEscape, int nInputSize, LPCSTR lpszInputData, int nOutputSize, LPSTR lpszOutputData);
    int DrawEscape(int nEscape, int nInputSize, LPCSTR lpszInputData);
    int StartDoc(LPCTSTR lpszDocName);
    int StartDoc(LPDOCINFO lpDocInfo) { return ::StartDoc(m_hDC, lpDocInfo); }
    int StartPage() { return ::StartPage(m_hDC); }
    int EndPage() { return ::EndPage(m_hDC); }
    int SetAbortProc(BOOL(CALLBACK* lpfn)(HDC, int));
    int AbortDoc() { return ::AbortDoc(m_hDC); }
    int EndDoc() { return ::EndDoc(m_hDC); }

    // Metafiles
    BOOL PlayMetaFile(HMETAFILE hMF) { return ::PlayMetaFile(m_hDC, hMF); }
    BOOL PlayMetaFile(HENHMETAFILE hEnhMetaFile, LPCRECT lpBounds);
    BOOL AddMetaFileComment(UINT nDataSize, const BYTE* pCommentData);

    // Paths
    BOOL AbortPath() { return ::AbortPath(m_hDC); }
    BOOL BeginPath() { return ::BeginPath(m_hDC); }
    BOOL CloseFigure() { return ::CloseFigure(m_hDC); }
    BOOL EndPath() { return ::EndPath(m_hDC); }
    BOOL FillPath() { return ::FillPath(m_hDC); }
    BOOL FlattenPath() { return ::FlattenPath(m_hDC); }
    BOOL StrokeAndFillPath() { return ::StrokeAndFillPath(m_hDC); }
    BOOL StrokePath() { return ::StrokePath(m_hDC); }
    BOOL WidenPath() { return ::WidenPath(m_hDC); }
    float GetMiterLimit() const;
    BOOL SetMiterLimit(float fMiterLimit) { return ::SetMiterLimit(m_hDC, fMiterLimit, nullptr); }
    int GetPath(LPPOINT lpPoints, LPBYTE lpTypes, int nCount) const;
    BOOL SelectClipPath(int nMode);

protected:
    /// Selects into both contexts and answers the object that was selected.
    static CGdiObject* PASCAL SelectGdiObject(HDC hDC, HGDIOBJ h);
};

/// The client area of a window, or the screen for a null window. Released by the destructor.
class AFX_CORE_CLASS CClientDC : public CDC
{
    DECLARE_DYNAMIC(CClientDC)

public:
    explicit CClientDC(CWnd* pWnd);
    ~CClientDC() override { ::ReleaseDC(m_hWnd, Detach()); }

protected:
    HWND m_hWnd;
};

/// A window with its frame, or the screen for a null window. Released by the destructor.
class AFX_CORE_CLASS CWindowDC : public CDC
{
    DECLARE_DYNAMIC(CWindowDC)

public:
    explicit CWindowDC(CWnd* pWnd);
    ~CWindowDC() override { ::ReleaseDC(m_hWnd, Detach()); }

protected:
    HWND m_hWnd;
};

/// The update area of a window while it answers WM_PAINT: BeginPaint in the constructor, EndPaint in the
/// destructor.
class AFX_CORE_CLASS CPaintDC : public CDC
{
    DECLARE_DYNAMIC(CPaintDC)

public:
    explicit CPaintDC(CWnd* pWnd);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps;

protected:
    HWND m_hWnd;
};

/// A menu. The object owns the menu and destroys it; a menu that was given to a window or to another menu as
/// a pop-up belongs there, and the object that it came from must be detached.
class AFX_CORE_CLASS CMenu : public CObject
{
    DECLARE_DYNCREATE(CMenu)

public:
    CMenu();
    ~CMenu() override { DestroyMenu(); }
    CMenu(const CMenu&) = delete;
    CMenu& operator=(const CMenu&) = delete;

    HMENU m_hMenu = nullptr;

    operator HMENU() const { return GetSafeHmenu(); }
    /// The handle; null also if `this` is null.
    HMENU GetSafeHmenu() const;
    bool operator==(const CMenu& menu) const { return m_hMenu == menu.m_hMenu; }
    bool operator!=(const CMenu& menu) const { return m_hMenu != menu.m_hMenu; }

    static CMenu* PASCAL FromHandle(HMENU hMenu);
    static void PASCAL DeleteTempMap();
    BOOL Attach(HMENU hMenu);
    HMENU Detach();

    BOOL CreateMenu() { return Attach(::CreateMenu()); }
    BOOL CreatePopupMenu() { return Attach(::CreatePopupMenu()); }
    BOOL LoadMenu(LPCTSTR lpszResourceName);
    BOOL LoadMenu(UINT nIDResource) { return LoadMenu(MAKEINTRESOURCE(nIDResource)); }
    BOOL LoadMenuIndirect(const void* lpMenuTemplate) { return Attach(::LoadMenuIndirect(lpMenuTemplate)); }
    BOOL DestroyMenu();

    BOOL DeleteMenu(UINT nPosition, UINT nFlags) { return ::DeleteMenu(m_hMenu, nPosition, nFlags); }
    /// Shows the menu at a point of the screen. A click outside `lpRect` closes it; null stands for the whole
    /// screen. With TPM_RETURNCMD it answers the command chosen, 0 for none.
    BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect = nullptr);
    /// `lptpm->rcExclude` is an area of the screen that the menu does not cover.
    BOOL TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm);

    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr);
    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    UINT CheckMenuItem(UINT nIDCheckItem, UINT nCheck);
    UINT EnableMenuItem(UINT nIDEnableItem, UINT nEnable);
    UINT GetMenuItemCount() const { return ::GetMenuItemCount(m_hMenu); }
    UINT GetMenuItemID(int nPos) const { return ::GetMenuItemID(m_hMenu, nPos); }
    UINT GetMenuState(UINT nID, UINT nFlags) const { return ::GetMenuState(m_hMenu, nID, nFlags); }
    int GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const;
    int GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const;
    BOOL GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE);
    BOOL SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE);
    /// The pop-up below an item, which stays the menu's own.
    CMenu* GetSubMenu(int nPos) const { return FromHandle(::GetSubMenu(m_hMenu, nPos)); }
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr);
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    BOOL InsertMenuItem(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE);
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr);
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    BOOL RemoveMenu(UINT nPosition, UINT nFlags) { return ::RemoveMenu(m_hMenu, nPosition, nFlags); }
    BOOL SetMenuItemBitmaps(UINT nPosition, UINT nFlags, const CBitmap* pBmpUnchecked,
                            const CBitmap* pBmpChecked);
    BOOL CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags);
    BOOL SetDefaultItem(UINT uItem, BOOL fByPos = FALSE);
    UINT GetDefaultItem(UINT gmdiFlags, BOOL fByPos = FALSE);
    BOOL SetMenuContextHelpId(DWORD dwContextHelpId);
    DWORD GetMenuContextHelpId() const { return ::GetMenuContextHelpId(m_hMenu); }
    BOOL SetMenuInfo(LPCMENUINFO lpcmi) { return ::SetMenuInfo(m_hMenu, lpcmi); }
    BOOL GetMenuInfo(LPMENUINFO lpcmi) const { return ::GetMenuInfo(m_hMenu, lpcmi); }

    /// For menus with owner-drawn items, which must override both.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
};
