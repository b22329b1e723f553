// Image lists.

#include <afxcmn.h>

#include "commctl.h"
#include "handlemap.h"

template <>
struct CHandleTraits<CImageList>
{
    using Handle = HIMAGELIST;
    static void Assign(CImageList& list, HIMAGELIST handle) { list.m_hImageList = handle; }
};

namespace
{
using CImageListMap = CHandleMap<CImageList>;
}

IMPLEMENT_DYNCREATE(CImageList, CObject)

CImageList::CImageList() = default;

HIMAGELIST CImageList::GetSafeHandle() const
{
    return SafeImages(this);
}

CImageList* PASCAL CImageList::FromHandle(HIMAGELIST hImageList)
{
    return CImageListMap::OfThread().FromHandle(hImageList);
}

CImageList* PASCAL CImageList::FromHandlePermanent(HIMAGELIST hImageList)
{
    return CImageListMap::OfThread().FromHandlePermanent(hImageList);
}

void PASCAL CImageList::DeleteTempMap()
{
    DeleteTempOfThread<CImageList>();
}

BOOL CImageList::Attach(HIMAGELIST hImageList)
{
    return AttachHandle(*this, m_hImageList, hImageList);
}

HIMAGELIST CImageList::Detach()
{
    return DetachHandle(*this, m_hImageList);
}

// ---------------------------------------------------------------------------------------------------------
// Creation

BOOL CImageList::Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow)
{
    return Attach(::ImageList_Create(cx, cy, nFlags, nInitial, nGrow));
}

BOOL CImageList::Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask)
{
    return Create(MAKEINTRESOURCE(nBitmapID), cx, nGrow, crMask);
}

BOOL CImageList::Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask)
{
    const HINSTANCE module = AfxFindResourceHandle(lpszBitmapID, RT_BITMAP);
    return Attach(::ImageList_LoadBitmap(module, lpszBitmapID, cx, nGrow, crMask));
}

BOOL CImageList::Create(CImageList& imagelist1, int nImage1, CImageList& imagelist2, int nImage2, int dx,
                        int dy)
{
    return Attach(::ImageList_Merge(imagelist1, nImage1, imagelist2, nImage2, dx, dy));
}

BOOL CImageList::DeleteImageList()
{
    if (m_hImageList == nullptr)
        return FALSE;
    return ::ImageList_Destroy(Detach());
}

// ---------------------------------------------------------------------------------------------------------
// Pictures

BOOL CImageList::GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const
{
    return ::ImageList_GetImageInfo(m_hImageList, nImage, pImageInfo);
}

int CImageList::Add(CBitmap* pbmImage, CBitmap* pbmMask)
{
    return ::ImageList_Add(m_hImageList, SafeBitmap(pbmImage), SafeBitmap(pbmMask));
}

int CImageList::Add(CBitmap* pbmImage, COLORREF crMask)
{
    return ::ImageList_AddMasked(m_hImageList, SafeBitmap(pbmImage), crMask);
}

BOOL CImageList::Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask)
{
    return ::ImageList_Replace(m_hImageList, nImage, SafeBitmap(pbmImage), SafeBitmap(pbmMask));
}

BOOL CImageList::SetOverlayImage(int nImage, int nOverlay)
{
    return ::ImageList_SetOverlayImage(m_hImageList, nImage, nOverlay);
}

BOOL CImageList::Copy(int iDst, int iSrc, UINT uFlags)
{
    return ::ImageList_Copy(m_hImageList, iDst, m_hImageList, iSrc, uFlags);
}

BOOL CImageList::Copy(int iDst, CImageList* pSrc, int iSrc, UINT uFlags)
{
    return ::ImageList_Copy(m_hImageList, iDst, SafeImages(pSrc), iSrc, uFlags);
}

// ---------------------------------------------------------------------------------------------------------
// Drawing

BOOL CImageList::Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle)
{
    return ::ImageList_Draw(m_hImageList, nImage, SafeHdc(pDC), pt.x, pt.y, nStyle);
}

BOOL CImageList::DrawEx(CDC* pDC, int nImage, POINT pt, SIZE sz, COLORREF clrBk, COLORREF clrFg, UINT nStyle)
{
    return ::ImageList_DrawEx(m_hImageList, nImage, SafeHdc(pDC), pt.x, pt.y, sz.cx, sz.cy, clrBk, clrFg,
                              nStyle);
}

BOOL CImageList::DrawIndirect(IMAGELISTDRAWPARAMS* pimldp)
{
    pimldp->cbSize = sizeof(*pimldp);
    pimldp->himl = m_hImageList;
    return ::ImageList_DrawIndirect(pimldp);
}

BOOL CImageList::DrawIndirect(CDC* pDC, int nImage, POINT pt, SIZE sz, POINT ptOrigin, UINT fStyle,
                              DWORD dwRop, COLORREF rgbBack, COLORREF rgbFore, DWORD fState, DWORD Frame,
                              COLORREF crEffect)
{
    IMAGELISTDRAWPARAMS params = {};
    params.i = nImage;
    params.hdcDst = SafeHdc(pDC);
    params.x = pt.x;
    params.y = pt.y;
    params.cx = sz.cx;
    params.cy = sz.cy;
    params.xBitmap = ptOrigin.x;
    params.yBitmap = ptOrigin.y;
    params.rgbBk = rgbBack;
    params.rgbFg = rgbFore;
    params.fStyle = fStyle;
    params.dwRop = dwRop;
    params.fState = fState;
    params.Frame = Frame;
    params.crEffect = crEffect;
    return DrawIndirect(&params);
}

// ---------------------------------------------------------------------------------------------------------
// Dragging

BOOL CImageList::BeginDrag(int nImage, CPoint ptHotSpot)
{
    return ::ImageList_BeginDrag(m_hImageList, nImage, ptHotSpot.x, ptHotSpot.y);
}

BOOL CImageList::SetDragCursorImage(int nDrag, CPoint ptHotSpot)
{
    return ::ImageList_SetDragCursorImage(m_hImageList, nDrag, ptHotSpot.x, ptHotSpot.y);
}

CImageList* PASCAL CImageList::GetDragImage(LPPOINT lpPoint, LPPOINT lpPointHotSpot)
{
    return FromHandle(::ImageList_GetDragImage(lpPoint, lpPointHotSpot));
}

BOOL PASCAL CImageList::DragEnter(CWnd* pWndLock, CPoint point)
{
    return ::ImageList_DragEnter(SafeHwnd(pWndLock), point.x, point.y);
}

BOOL PASCAL CImageList::DragLeave(CWnd* pWndLock)
{
    return ::ImageList_DragLeave(SafeHwnd(pWndLock));
}
