// Tree views.

#include <afxcmn.h>

#include "commctl.h"

// ---------------------------------------------------------------------------------------------------------
// CTreeCtrl

IMPLEMENT_COMMON_CONTROL(CTreeCtrl, ICC_TREEVIEW_CLASSES, WC_TREEVIEW)

// clang-format off
BEGIN_MESSAGE_MAP(CTreeCtrl, CWnd)
    ON_WM_DESTROY()
END_MESSAGE_MAP()
// clang-format on

void CTreeCtrl::OnDestroy()
{
    ReleaseImageLists(m_hWnd, TVM_GETIMAGELIST, TVM_SETIMAGELIST, {TVSIL_NORMAL, TVSIL_STATE});
    CWnd::OnDestroy();
}

CImageList* CTreeCtrl::GetImageList(UINT nImageList) const
{
    return CImageList::FromHandle(AfxSend<HIMAGELIST>(TVM_GETIMAGELIST, nImageList));
}

CImageList* CTreeCtrl::SetImageList(CImageList* pImageList, int nImageListType)
{
    const HIMAGELIST images = SafeImages(pImageList);
    return CImageList::FromHandle(AfxSend<HIMAGELIST>(TVM_SETIMAGELIST, nImageListType, images));
}

CToolTipCtrl* CTreeCtrl::GetToolTips() const
{
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(AfxSend<HWND>(TVM_GETTOOLTIPS)));
}

CToolTipCtrl* CTreeCtrl::SetToolTips(CToolTipCtrl* pWndTip)
{
    const HWND before = AfxSend<HWND>(TVM_SETTOOLTIPS, SafeHwnd(pWndTip));
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(before));
}

COLORREF CTreeCtrl::SetInsertMarkColor(COLORREF clrNew)
{
    return AfxSend<COLORREF>(TVM_SETINSERTMARKCOLOR, 0, clrNew);
}

COLORREF CTreeCtrl::SetLineColor(COLORREF clrNew)
{
    return AfxSend<COLORREF>(TVM_SETLINECOLOR, 0, clrNew);
}

CEdit* CTreeCtrl::GetEditControl() const
{
    return static_cast<CEdit*>(CWnd::FromHandle(AfxSend<HWND>(TVM_GETEDITCONTROL)));
}

// ---------------------------------------------------------------------------------------------------------
// Walking

HTREEITEM CTreeCtrl::GetNextItem(HTREEITEM hItem, UINT nCode) const
{
    return AfxSend<HTREEITEM>(TVM_GETNEXTITEM, nCode, hItem);
}

// ---------------------------------------------------------------------------------------------------------
// Items

CString CTreeCtrl::GetItemText(HTREEITEM hItem) const
{
    TVITEM item = {};
    item.mask = TVIF_HANDLE | TVIF_TEXT;
    item.hItem = hItem;
    return WholeText(
        [&](LPTSTR buffer, int size)
        {
            item.pszText = buffer;
            item.cchTextMax = size;
            // The control may answer with a buffer of its own instead of filling this one.
            if (!GetItem(&item))
                buffer[0] = 0;
            else if (item.pszText != buffer)
                ::lstrcpyn(buffer, item.pszText, size);
            return ::lstrlen(buffer);
        });
}

BOOL CTreeCtrl::GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) const
{
    TVITEM item = {};
    item.mask = TVIF_HANDLE | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    item.hItem = hItem;
    const BOOL found = GetItem(&item);
    nImage = item.iImage;
    nSelectedImage = item.iSelectedImage;
    return found;
}

UINT CTreeCtrl::GetItemState(HTREEITEM hItem, UINT nStateMask) const
{
    TVITEM item = {};
    item.mask = TVIF_HANDLE | TVIF_STATE;
    item.hItem = hItem;
    item.stateMask = nStateMask;
    GetItem(&item);
    return item.state & nStateMask;
}

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM hItem) const
{
    TVITEM item = {};
    item.mask = TVIF_HANDLE | TVIF_PARAM;
    item.hItem = hItem;
    GetItem(&item);
    return item.lParam;
}

BOOL CTreeCtrl::SetItem(HTREEITEM hItem, UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage,
                        UINT nState, UINT nStateMask, LPARAM lParam)
{
    TVITEM item = {};
    item.mask = nMask | TVIF_HANDLE;
    item.hItem = hItem;
    item.state = nState;
    item.stateMask = nStateMask;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.iSelectedImage = nSelectedImage;
    item.lParam = lParam;
    return SetItem(&item);
}

BOOL CTreeCtrl::SetItemText(HTREEITEM hItem, LPCTSTR lpszItem)
{
    return SetItem(hItem, TVIF_TEXT, lpszItem, 0, 0, 0, 0, 0);
}

BOOL CTreeCtrl::SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage)
{
    return SetItem(hItem, TVIF_IMAGE | TVIF_SELECTEDIMAGE, nullptr, nImage, nSelectedImage, 0, 0, 0);
}

BOOL CTreeCtrl::SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask)
{
    return SetItem(hItem, TVIF_STATE, nullptr, 0, 0, nState, nStateMask, 0);
}

BOOL CTreeCtrl::SetItemData(HTREEITEM hItem, DWORD_PTR dwData)
{
    return SetItem(hItem, TVIF_PARAM, nullptr, 0, 0, 0, 0, dwData);
}

BOOL CTreeCtrl::ItemHasChildren(HTREEITEM hItem) const
{
    TVITEM item = {};
    item.mask = TVIF_HANDLE | TVIF_CHILDREN;
    item.hItem = hItem;
    GetItem(&item);
    return item.cChildren != 0;
}

BOOL CTreeCtrl::GetItemRect(HTREEITEM hItem, LPRECT lpRect, BOOL bTextOnly) const
{
    // The message reads the item from the place where it writes the rectangle.
    *reinterpret_cast<HTREEITEM*>(lpRect) = hItem;
    return AfxSend<BOOL>(TVM_GETITEMRECT, bTextOnly, lpRect);
}

BOOL CTreeCtrl::GetCheck(HTREEITEM hItem) const
{
    // State image 1 is the empty box, 2 the checked one.
    return static_cast<BOOL>(GetItemState(hItem, TVIS_STATEIMAGEMASK) >> 12) - 1;
}

BOOL CTreeCtrl::SetCheck(HTREEITEM hItem, BOOL fCheck)
{
    return SetItemState(hItem, INDEXTOSTATEIMAGEMASK(fCheck ? 2 : 1), TVIS_STATEIMAGEMASK);
}

BOOL CTreeCtrl::SetInsertMark(HTREEITEM hItem, BOOL fAfter)
{
    return AfxSend<BOOL>(TVM_SETINSERTMARK, fAfter, hItem);
}

// ---------------------------------------------------------------------------------------------------------
// Contents

HTREEITEM CTreeCtrl::InsertItem(LPTVINSERTSTRUCT lpInsertStruct)
{
    return AfxSend<HTREEITEM>(TVM_INSERTITEM, 0, lpInsertStruct);
}

HTREEITEM CTreeCtrl::InsertItem(UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                                UINT nStateMask, LPARAM lParam, HTREEITEM hParent, HTREEITEM hInsertAfter)
{
    TVINSERTSTRUCT insert = {};
    insert.hParent = hParent;
    insert.hInsertAfter = hInsertAfter;
    insert.item.mask = nMask;
    insert.item.pszText = const_cast<LPTSTR>(lpszItem);
    insert.item.iImage = nImage;
    insert.item.iSelectedImage = nSelectedImage;
    insert.item.state = nState;
    insert.item.stateMask = nStateMask;
    insert.item.lParam = lParam;
    return InsertItem(&insert);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR lpszItem, HTREEITEM hParent, HTREEITEM hInsertAfter)
{
    return InsertItem(TVIF_TEXT, lpszItem, 0, 0, 0, 0, 0, hParent, hInsertAfter);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR lpszItem, int nImage, int nSelectedImage, HTREEITEM hParent,
                                HTREEITEM hInsertAfter)
{
    constexpr UINT mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    return InsertItem(mask, lpszItem, nImage, nSelectedImage, 0, 0, 0, hParent, hInsertAfter);
}

// ---------------------------------------------------------------------------------------------------------
// Actions

CEdit* CTreeCtrl::EditLabel(HTREEITEM hItem)
{
    return static_cast<CEdit*>(CWnd::FromHandle(AfxSend<HWND>(TVM_EDITLABEL, 0, hItem)));
}

HTREEITEM CTreeCtrl::HitTest(CPoint pt, UINT* pFlags) const
{
    TVHITTESTINFO info = {};
    info.pt = pt;
    const HTREEITEM hit = HitTest(&info);
    if (pFlags != nullptr)
        *pFlags = info.flags;
    return hit;
}

HTREEITEM CTreeCtrl::HitTest(TVHITTESTINFO* pHitTestInfo) const
{
    return AfxSend<HTREEITEM>(TVM_HITTEST, 0, pHitTestInfo);
}

CImageList* CTreeCtrl::CreateDragImage(HTREEITEM hItem)
{
    return NewImageList(AfxSend<HIMAGELIST>(TVM_CREATEDRAGIMAGE, 0, hItem));
}
