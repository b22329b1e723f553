// List views.

#include <afxcmn.h>

#include "commctl.h"

// ---------------------------------------------------------------------------------------------------------
// CListCtrl

IMPLEMENT_COMMON_CONTROL(CListCtrl, ICC_LISTVIEW_CLASSES, WC_LISTVIEW)
IMPLEMENT_DRAWN_CONTROL(CListCtrl)

// clang-format off
BEGIN_MESSAGE_MAP(CListCtrl, CWnd)
    ON_WM_DESTROY()
END_MESSAGE_MAP()
// clang-format on

void CListCtrl::OnDestroy()
{
    ReleaseImageLists(m_hWnd, LVM_GETIMAGELIST, LVM_SETIMAGELIST, {LVSIL_NORMAL, LVSIL_SMALL, LVSIL_STATE});
    CWnd::OnDestroy();
}

CImageList* CListCtrl::GetImageList(int nImageList) const
{
    return CImageList::FromHandle(AfxSend<HIMAGELIST>(LVM_GETIMAGELIST, nImageList));
}

CImageList* CListCtrl::SetImageList(CImageList* pImageList, int nImageListType)
{
    const HIMAGELIST images = SafeImages(pImageList);
    return CImageList::FromHandle(AfxSend<HIMAGELIST>(LVM_SETIMAGELIST, nImageListType, images));
}

BOOL CListCtrl::SetItemCountEx(int iCount, DWORD dwFlags)
{
    return AfxSend<BOOL>(LVM_SETITEMCOUNT, iCount, dwFlags);
}

DWORD CListCtrl::SetExtendedStyle(DWORD dwNewStyle)
{
    return AfxSend<DWORD>(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, dwNewStyle);
}

BOOL CListCtrl::GetItemSpacing(BOOL fSmall, int* pnHorzSpacing, int* pnVertSpacing) const
{
    const DWORD spacing = AfxSend<DWORD>(LVM_GETITEMSPACING, fSmall);
    *pnHorzSpacing = LOWORD(spacing);
    *pnVertSpacing = HIWORD(spacing);
    return TRUE;
}

CSize CListCtrl::SetIconSpacing(int cx, int cy)
{
    return CSize(AfxSend<DWORD>(LVM_SETICONSPACING, 0, MAKELPARAM(cx, cy)));
}

CHeaderCtrl* CListCtrl::GetHeaderCtrl() const
{
    return static_cast<CHeaderCtrl*>(CWnd::FromHandle(AfxSend<HWND>(LVM_GETHEADER)));
}

CEdit* CListCtrl::GetEditControl() const
{
    return static_cast<CEdit*>(CWnd::FromHandle(AfxSend<HWND>(LVM_GETEDITCONTROL)));
}

CToolTipCtrl* CListCtrl::GetToolTips() const
{
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(AfxSend<HWND>(LVM_GETTOOLTIPS)));
}

CToolTipCtrl* CListCtrl::SetToolTips(CToolTipCtrl* pWndTip)
{
    const HWND before = AfxSend<HWND>(LVM_SETTOOLTIPS, SafeHwnd(pWndTip));
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(before));
}

namespace
{
LVBKIMAGE BackgroundOf(ULONG source, BOOL tile, int xOffsetPercent, int yOffsetPercent)
{
    LVBKIMAGE image = {};
    image.ulFlags = source | (tile ? LVBKIF_STYLE_TILE : LVBKIF_STYLE_NORMAL);
    image.xOffsetPercent = xOffsetPercent;
    image.yOffsetPercent = yOffsetPercent;
    return image;
}
} // namespace

BOOL CListCtrl::SetBkImage(HBITMAP hbm, BOOL fTile, int xOffsetPercent, int yOffsetPercent)
{
    LVBKIMAGE image = BackgroundOf(LVBKIF_SOURCE_HBITMAP, fTile, xOffsetPercent, yOffsetPercent);
    image.hbm = hbm;
    return SetBkImage(&image);
}

BOOL CListCtrl::SetBkImage(LPTSTR pszUrl, BOOL fTile, int xOffsetPercent, int yOffsetPercent)
{
    LVBKIMAGE image = BackgroundOf(LVBKIF_SOURCE_URL, fTile, xOffsetPercent, yOffsetPercent);
    image.pszImage = pszUrl;
    return SetBkImage(&image);
}

DWORD CListCtrl::SetHoverTime(DWORD dwHoverTime)
{
    return AfxSend<DWORD>(LVM_SETHOVERTIME, 0, dwHoverTime);
}

BOOL CListCtrl::GetWorkAreas(int nWorkAreas, LPRECT prc) const
{
    return AfxSend<BOOL>(LVM_GETWORKAREAS, nWorkAreas, prc);
}

UINT CListCtrl::GetNumberOfWorkAreas() const
{
    UINT count = 0;
    AfxSend(LVM_GETNUMBEROFWORKAREAS, 0, &count);
    return count;
}

// ---------------------------------------------------------------------------------------------------------
// Items

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                        UINT nStateMask, LPARAM lParam)
{
    return SetItem(nItem, nSubItem, nMask, lpszItem, nImage, nState, nStateMask, lParam, 0);
}

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                        UINT nStateMask, LPARAM lParam, int nIndent)
{
    LVITEM item = {};
    item.mask = nMask;
    item.iItem = nItem;
    item.iSubItem = nSubItem;
    item.state = nState;
    item.stateMask = nStateMask;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.lParam = lParam;
    item.iIndent = nIndent;
    return SetItem(&item);
}

BOOL CListCtrl::SetItemState(int nItem, UINT nState, UINT nMask)
{
    LVITEM item = {};
    item.state = nState;
    item.stateMask = nMask;
    return SetItemState(nItem, &item);
}

CString CListCtrl::GetItemText(int nItem, int nSubItem) const
{
    return WholeText([=, this](LPTSTR buffer, int size)
                     { return GetItemText(nItem, nSubItem, buffer, size); });
}

int CListCtrl::GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const
{
    LVITEM item = {};
    item.iSubItem = nSubItem;
    item.pszText = lpszText;
    item.cchTextMax = nLen;
    const int length = AfxSend<int>(LVM_GETITEMTEXT, nItem, &item);
    // The control may answer with a buffer of its own instead of filling this one.
    if (length > 0 && item.pszText != lpszText)
        ::lstrcpyn(lpszText, item.pszText, nLen);
    return length;
}

BOOL CListCtrl::SetItemText(int nItem, int nSubItem, LPCTSTR lpszText)
{
    LVITEM item = {};
    item.iSubItem = nSubItem;
    item.pszText = const_cast<LPTSTR>(lpszText);
    return AfxSend<BOOL>(LVM_SETITEMTEXT, nItem, &item);
}

DWORD_PTR CListCtrl::GetItemData(int nItem) const
{
    LVITEM item = {};
    item.mask = LVIF_PARAM;
    item.iItem = nItem;
    GetItem(&item);
    return item.lParam;
}

BOOL CListCtrl::SetItemData(int nItem, DWORD_PTR dwData)
{
    return SetItem(nItem, 0, LVIF_PARAM, nullptr, 0, 0, 0, dwData);
}

BOOL CListCtrl::GetItemPosition(int nItem, LPPOINT lpPoint) const
{
    return AfxSend<BOOL>(LVM_GETITEMPOSITION, nItem, lpPoint);
}

BOOL CListCtrl::SetItemPosition(int nItem, POINT pt)
{
    // The form with 32-bit coordinates has no answer.
    AfxSend(LVM_SETITEMPOSITION32, nItem, &pt);
    return TRUE;
}

BOOL CListCtrl::GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const
{
    lpRect->left = nCode;
    return AfxSend<BOOL>(LVM_GETITEMRECT, nItem, lpRect);
}

BOOL CListCtrl::GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref)
{
    ref.top = iSubItem;
    ref.left = nArea;
    return AfxSend<BOOL>(LVM_GETSUBITEMRECT, iItem, &ref);
}

BOOL CListCtrl::GetCheck(int nItem) const
{
    // State image 1 is the empty box, 2 the checked one.
    return static_cast<BOOL>(GetItemState(nItem, LVIS_STATEIMAGEMASK) >> 12) - 1;
}

BOOL CListCtrl::SetCheck(int nItem, BOOL fCheck)
{
    return SetItemState(nItem, INDEXTOSTATEIMAGEMASK(fCheck ? 2 : 1), LVIS_STATEIMAGEMASK);
}

int CListCtrl::GetNextItem(int nItem, int nFlags) const
{
    return AfxSend<int>(LVM_GETNEXTITEM, nItem, MAKELPARAM(nFlags, 0));
}

namespace
{
/// A position is the item's index plus one, so that null can stand for the end.
POSITION ToPosition(int item)
{
    return reinterpret_cast<POSITION>(static_cast<INT_PTR>(item) + 1);
}

int ToItem(POSITION position)
{
    return static_cast<int>(reinterpret_cast<INT_PTR>(position)) - 1;
}
} // namespace

POSITION CListCtrl::GetFirstSelectedItemPosition() const
{
    return ToPosition(GetNextItem(-1, LVNI_SELECTED));
}

int CListCtrl::GetNextSelectedItem(POSITION& pos) const
{
    const int item = ToItem(pos);
    pos = ToPosition(GetNextItem(item, LVNI_SELECTED));
    return item;
}

int CListCtrl::InsertMarkHitTest(LPPOINT pPoint, LPLVINSERTMARK lvim) const
{
    return AfxSend<int>(LVM_INSERTMARKHITTEST, pPoint, lvim);
}

// ---------------------------------------------------------------------------------------------------------
// Columns

BOOL CListCtrl::SetColumnWidth(int nCol, int cx)
{
    return AfxSend<BOOL>(LVM_SETCOLUMNWIDTH, nCol, MAKELPARAM(cx, 0));
}

int CListCtrl::InsertColumn(int nCol, const LVCOLUMN* pColumn)
{
    return AfxSend<int>(LVM_INSERTCOLUMN, nCol, pColumn);
}

int CListCtrl::InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat, int nWidth, int nSubItem)
{
    LVCOLUMN column = {};
    column.mask = LVCF_TEXT | LVCF_FMT;
    column.pszText = const_cast<LPTSTR>(lpszColumnHeading);
    column.fmt = nFormat;
    if (nWidth != -1)
    {
        column.mask |= LVCF_WIDTH;
        column.cx = nWidth;
    }
    if (nSubItem != -1)
    {
        column.mask |= LVCF_SUBITEM;
        column.iSubItem = nSubItem;
    }
    return InsertColumn(nCol, &column);
}

BOOL CListCtrl::GetColumnOrderArray(LPINT piArray, int iCount)
{
    if (iCount == -1)
        iCount = GetHeaderCtrl()->GetItemCount();
    return AfxSend<BOOL>(LVM_GETCOLUMNORDERARRAY, iCount, piArray);
}

BOOL CListCtrl::SetColumnOrderArray(int iCount, LPINT piArray)
{
    return AfxSend<BOOL>(LVM_SETCOLUMNORDERARRAY, iCount, piArray);
}

// ---------------------------------------------------------------------------------------------------------
// Contents

int CListCtrl::InsertItem(int nItem, LPCTSTR lpszItem, int nImage)
{
    return InsertItem(LVIF_TEXT | LVIF_IMAGE, nItem, lpszItem, 0, 0, nImage, 0);
}

int CListCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask, int nImage,
                          LPARAM lParam)
{
    LVITEM item = {};
    item.mask = nMask;
    item.iItem = nItem;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.state = nState;
    item.stateMask = nStateMask;
    item.iImage = nImage;
    item.lParam = lParam;
    return InsertItem(&item);
}

int CListCtrl::FindItem(LVFINDINFO* pFindInfo, int nStart) const
{
    return AfxSend<int>(LVM_FINDITEM, nStart, pFindInfo);
}

BOOL CListCtrl::SortItems(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData)
{
    return AfxSend<BOOL>(LVM_SORTITEMS, dwData, pfnCompare);
}

int CListCtrl::HitTest(CPoint pt, UINT* pFlags) const
{
    LVHITTESTINFO info = {};
    info.pt = pt;
    const int hit = HitTest(&info);
    if (pFlags != nullptr)
        *pFlags = info.flags;
    return hit;
}

// ---------------------------------------------------------------------------------------------------------
// Actions

BOOL CListCtrl::EnsureVisible(int nItem, BOOL bPartialOK)
{
    return AfxSend<BOOL>(LVM_ENSUREVISIBLE, nItem, MAKELPARAM(bPartialOK, 0));
}

CEdit* CListCtrl::EditLabel(int nItem)
{
    return static_cast<CEdit*>(CWnd::FromHandle(AfxSend<HWND>(LVM_EDITLABEL, nItem)));
}

CImageList* CListCtrl::CreateDragImage(int nItem, LPPOINT lpPoint)
{
    return NewImageList(AfxSend<HIMAGELIST>(LVM_CREATEDRAGIMAGE, nItem, lpPoint));
}

DWORD CListCtrl::ApproximateViewRect(CSize sz, int iCount) const
{
    return AfxSend<DWORD>(LVM_APPROXIMATEVIEWRECT, iCount, MAKELPARAM(sz.cx, sz.cy));
}
