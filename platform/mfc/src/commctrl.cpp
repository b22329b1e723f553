// Spin buttons, sliders, progress bars, headers, tabs and status bars.

#include <afxcmn.h>

#include "commctl.h"

// ---------------------------------------------------------------------------------------------------------
// CSpinButtonCtrl

IMPLEMENT_COMMON_CONTROL(CSpinButtonCtrl, ICC_UPDOWN_CLASS, UPDOWN_CLASS)

CWnd* CSpinButtonCtrl::SetBuddy(CWnd* pWndBuddy)
{
    return CWnd::FromHandle(AfxSend<HWND>(UDM_SETBUDDY, SafeHwnd(pWndBuddy)));
}

void CSpinButtonCtrl::GetRange(int& lower, int& upper) const
{
    const DWORD range = GetRange();
    lower = static_cast<short>(HIWORD(range));
    upper = static_cast<short>(LOWORD(range));
}

void CSpinButtonCtrl::GetRange32(int& lower, int& upper) const
{
    AfxSend(UDM_GETRANGE32, &lower, &upper);
}

// ---------------------------------------------------------------------------------------------------------
// CSliderCtrl

IMPLEMENT_COMMON_CONTROL(CSliderCtrl, ICC_BAR_CLASSES, TRACKBAR_CLASS)

void CSliderCtrl::GetRange(int& nMin, int& nMax) const
{
    nMin = GetRangeMin();
    nMax = GetRangeMax();
}

void CSliderCtrl::SetRange(int nMin, int nMax, BOOL bRedraw)
{
    // By two messages: the one for both packs the bounds into 16 bits each.
    SetRangeMin(nMin, bRedraw);
    SetRangeMax(nMax, bRedraw);
}

void CSliderCtrl::GetSelection(int& nMin, int& nMax) const
{
    nMin = AfxSend<int>(TBM_GETSELSTART);
    nMax = AfxSend<int>(TBM_GETSELEND);
}

void CSliderCtrl::SetSelection(int nMin, int nMax)
{
    AfxSend(TBM_SETSELSTART, FALSE, nMin);
    AfxSend(TBM_SETSELEND, FALSE, nMax);
}

CWnd* CSliderCtrl::SetBuddy(CWnd* pWndBuddy, BOOL fLocation)
{
    return CWnd::FromHandle(AfxSend<HWND>(TBM_SETBUDDY, fLocation, SafeHwnd(pWndBuddy)));
}

CWnd* CSliderCtrl::GetBuddy(BOOL fLocation) const
{
    return CWnd::FromHandle(AfxSend<HWND>(TBM_GETBUDDY, fLocation));
}

CToolTipCtrl* CSliderCtrl::GetToolTips() const
{
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(AfxSend<HWND>(TBM_GETTOOLTIPS)));
}

void CSliderCtrl::SetToolTips(CToolTipCtrl* pWndTip)
{
    AfxSend(TBM_SETTOOLTIPS, SafeHwnd(pWndTip));
}

void CSliderCtrl::VerifyPos()
{
    // The control brings a position that it is given into its range.
    AfxSend(TBM_SETPOS, FALSE, GetPos());
}

void CSliderCtrl::ClearTics(BOOL bRedraw)
{
    AfxSend(TBM_CLEARTICS, bRedraw);
}

// ---------------------------------------------------------------------------------------------------------
// CProgressCtrl

IMPLEMENT_COMMON_CONTROL(CProgressCtrl, ICC_PROGRESS_CLASS, PROGRESS_CLASS)

void CProgressCtrl::GetRange(int& nLower, int& nUpper) const
{
    PBRANGE range = {};
    AfxSend(PBM_GETRANGE, FALSE, &range);
    nLower = range.iLow;
    nUpper = range.iHigh;
}

BOOL CProgressCtrl::SetMarquee(BOOL fMarqueeMode, int nInterval)
{
    return AfxSend<BOOL>(PBM_SETMARQUEE, fMarqueeMode, nInterval);
}

// ---------------------------------------------------------------------------------------------------------
// CHeaderCtrl

IMPLEMENT_COMMON_CONTROL(CHeaderCtrl, ICC_LISTVIEW_CLASSES, WC_HEADER)
IMPLEMENT_DRAWN_CONTROL(CHeaderCtrl)

BOOL CHeaderCtrl::GetItem(int nPos, HDITEM* pHeaderItem) const
{
    return AfxSend<BOOL>(HDM_GETITEM, nPos, pHeaderItem);
}

CImageList* CHeaderCtrl::SetImageList(CImageList* pImageList)
{
    return CImageList::FromHandle(AfxSend<HIMAGELIST>(HDM_SETIMAGELIST, 0, SafeImages(pImageList)));
}

BOOL CHeaderCtrl::GetOrderArray(LPINT piArray, int iCount)
{
    return AfxSend<BOOL>(HDM_GETORDERARRAY, iCount == -1 ? GetItemCount() : iCount, piArray);
}

BOOL CHeaderCtrl::SetOrderArray(int iCount, LPINT piArray)
{
    return AfxSend<BOOL>(HDM_SETORDERARRAY, iCount, piArray);
}

BOOL CHeaderCtrl::GetItemRect(int nIndex, LPRECT lpRect) const
{
    return AfxSend<BOOL>(HDM_GETITEMRECT, nIndex, lpRect);
}

CImageList* CHeaderCtrl::CreateDragImage(int nIndex)
{
    return NewImageList(AfxSend<HIMAGELIST>(HDM_CREATEDRAGIMAGE, nIndex));
}

int CHeaderCtrl::SetFilterChangeTimeout(DWORD dwTimeOut)
{
    return AfxSend<int>(HDM_SETFILTERCHANGETIMEOUT, 0, dwTimeOut);
}

int CHeaderCtrl::EditFilter(int iColumn, BOOL bDiscardChanges)
{
    return AfxSend<int>(HDM_EDITFILTER, iColumn, MAKELPARAM(bDiscardChanges, 0));
}

// ---------------------------------------------------------------------------------------------------------
// CTabCtrl

IMPLEMENT_COMMON_CONTROL(CTabCtrl, ICC_TAB_CLASSES, WC_TABCONTROL)
IMPLEMENT_DRAWN_CONTROL(CTabCtrl)

CImageList* CTabCtrl::SetImageList(CImageList* pImageList)
{
    return CImageList::FromHandle(AfxSend<HIMAGELIST>(TCM_SETIMAGELIST, 0, SafeImages(pImageList)));
}

BOOL CTabCtrl::GetItem(int nItem, TCITEM* pTabCtrlItem) const
{
    return AfxSend<BOOL>(TCM_GETITEM, nItem, pTabCtrlItem);
}

CSize CTabCtrl::SetItemSize(CSize size)
{
    return CSize(AfxSend<DWORD>(TCM_SETITEMSIZE, 0, MAKELPARAM(size.cx, size.cy)));
}

CToolTipCtrl* CTabCtrl::GetToolTips() const
{
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(AfxSend<HWND>(TCM_GETTOOLTIPS)));
}

DWORD CTabCtrl::SetExtendedStyle(DWORD dwNewStyle, DWORD dwExMask)
{
    return AfxSend<DWORD>(TCM_SETEXTENDEDSTYLE, dwExMask, dwNewStyle);
}

BOOL CTabCtrl::GetItemState(int nItem, DWORD dwMask, DWORD& dwState) const
{
    TCITEM item = {};
    item.mask = TCIF_STATE;
    item.dwStateMask = dwMask;
    const BOOL found = GetItem(nItem, &item);
    dwState = item.dwState;
    return found;
}

BOOL CTabCtrl::SetItemState(int nItem, DWORD dwMask, DWORD dwState)
{
    TCITEM item = {};
    item.mask = TCIF_STATE;
    item.dwStateMask = dwMask;
    item.dwState = dwState;
    return SetItem(nItem, &item);
}

LONG CTabCtrl::InsertItem(int nItem, TCITEM* pTabCtrlItem)
{
    return AfxSend<LONG>(TCM_INSERTITEM, nItem, pTabCtrlItem);
}

LONG CTabCtrl::InsertItem(int nItem, LPCTSTR lpszItem, int nImage)
{
    return InsertItem(TCIF_TEXT | TCIF_IMAGE, nItem, lpszItem, nImage, 0);
}

LONG CTabCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam)
{
    TCITEM item = {};
    item.mask = nMask;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.lParam = lParam;
    return InsertItem(nItem, &item);
}

BOOL CTabCtrl::HighlightItem(int idItem, BOOL fHighlight)
{
    return AfxSend<BOOL>(TCM_HIGHLIGHTITEM, idItem, MAKELPARAM(fHighlight, 0));
}

// ---------------------------------------------------------------------------------------------------------
// CStatusBarCtrl

IMPLEMENT_COMMON_CONTROL(CStatusBarCtrl, ICC_BAR_CLASSES, STATUSCLASSNAME)
IMPLEMENT_DRAWN_CONTROL(CStatusBarCtrl)

BOOL CStatusBarCtrl::SetText(LPCTSTR lpszText, int nPane, int nType)
{
    return AfxSend<BOOL>(SB_SETTEXT, nPane | nType, lpszText);
}

CString CStatusBarCtrl::GetText(int nPane, int* pType) const
{
    CString text;
    GetText(text.GetBufferSetLength(GetTextLength(nPane)), nPane, pType);
    text.ReleaseBuffer();
    return text;
}

int CStatusBarCtrl::GetText(LPCTSTR lpszText, int nPane, int* pType) const
{
    const DWORD answer = AfxSend<DWORD>(SB_GETTEXT, nPane, lpszText);
    if (pType != nullptr)
        *pType = HIWORD(answer);
    return LOWORD(answer);
}

int CStatusBarCtrl::GetTextLength(int nPane, int* pType) const
{
    const DWORD answer = AfxSend<DWORD>(SB_GETTEXTLENGTH, nPane);
    if (pType != nullptr)
        *pType = HIWORD(answer);
    return LOWORD(answer);
}

BOOL CStatusBarCtrl::GetBorders(int& nHorz, int& nVert, int& nSpacing) const
{
    int borders[3] = {};
    const BOOL known = GetBorders(borders);
    nHorz = borders[0];
    nVert = borders[1];
    nSpacing = borders[2];
    return known;
}

CString CStatusBarCtrl::GetTipText(int nPane) const
{
    constexpr int longest = 256;
    CString text;
    AfxSend(SB_GETTIPTEXT, MAKEWPARAM(nPane, longest), text.GetBuffer(longest));
    text.ReleaseBuffer();
    return text;
}
