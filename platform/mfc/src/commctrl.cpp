// Spin buttons, sliders, progress bars, hot keys, headers, tabs and status bars.

#include <afxcmn.h>

#include "commctl.h"

// ---------------------------------------------------------------------------------------------------------
// CSpinButtonCtrl

IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)

CSpinButtonCtrl::CSpinButtonCtrl() = default;

BOOL CSpinButtonCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CreateEx(0, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CSpinButtonCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return RegisterCommonControls(ICC_UPDOWN_CLASS) &&
           CWnd::CreateEx(dwExStyle, UPDOWN_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

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

IMPLEMENT_DYNAMIC(CSliderCtrl, CWnd)

CSliderCtrl::CSliderCtrl() = default;

BOOL CSliderCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CreateEx(0, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CSliderCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return RegisterCommonControls(ICC_BAR_CLASSES) &&
           CWnd::CreateEx(dwExStyle, TRACKBAR_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

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

IMPLEMENT_DYNAMIC(CProgressCtrl, CWnd)

CProgressCtrl::CProgressCtrl() = default;

BOOL CProgressCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CreateEx(0, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CProgressCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return RegisterCommonControls(ICC_PROGRESS_CLASS) &&
           CWnd::CreateEx(dwExStyle, PROGRESS_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

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
// CHotKeyCtrl

IMPLEMENT_DYNAMIC(CHotKeyCtrl, CWnd)

CHotKeyCtrl::CHotKeyCtrl() = default;

BOOL CHotKeyCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CreateEx(0, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CHotKeyCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return RegisterCommonControls(ICC_HOTKEY_CLASS) &&
           CWnd::CreateEx(dwExStyle, HOTKEY_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CHotKeyCtrl::SetHotKey(WORD wVirtualKeyCode, WORD wModifiers)
{
    AfxSend(HKM_SETHOTKEY, MAKEWORD(wVirtualKeyCode, wModifiers));
}

void CHotKeyCtrl::GetHotKey(WORD& wVirtualKeyCode, WORD& wModifiers) const
{
    const WORD key = LOWORD(GetHotKey());
    wVirtualKeyCode = LOBYTE(key);
    wModifiers = HIBYTE(key);
}

CString CHotKeyCtrl::GetKeyName(UINT vk, BOOL fExtended)
{
    constexpr LONG extendedKey = 0x01000000;
    LONG scan = static_cast<LONG>(::MapVirtualKey(vk, MAPVK_VK_TO_VSC)) << 16;
    if (fExtended)
        scan |= extendedKey;
    CString name;
    constexpr int longest = 64;
    ::GetKeyNameText(scan, name.GetBuffer(longest), longest);
    name.ReleaseBuffer();
    return name;
}

CString CHotKeyCtrl::GetHotKeyName() const
{
    WORD key = 0;
    WORD modifiers = 0;
    GetHotKey(key, modifiers);
    if (key == 0)
        return CString();

    const CString plus(L" + ");
    CString name;
    if (modifiers & HOTKEYF_CONTROL)
        name += GetKeyName(VK_CONTROL, FALSE) + plus;
    if (modifiers & HOTKEYF_SHIFT)
        name += GetKeyName(VK_SHIFT, FALSE) + plus;
    if (modifiers & HOTKEYF_ALT)
        name += GetKeyName(VK_MENU, FALSE) + plus;
    return name + GetKeyName(key, modifiers & HOTKEYF_EXT);
}

void CHotKeyCtrl::SetRules(WORD wInvalidComb, WORD wModifiers)
{
    AfxSend(HKM_SETRULES, wInvalidComb, MAKELPARAM(wModifiers, 0));
}

// ---------------------------------------------------------------------------------------------------------
// CHeaderCtrl

IMPLEMENT_DYNAMIC(CHeaderCtrl, CWnd)

CHeaderCtrl::CHeaderCtrl() = default;

BOOL CHeaderCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CreateEx(0, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CHeaderCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return RegisterCommonControls(ICC_LISTVIEW_CLASSES) &&
           CWnd::CreateEx(dwExStyle, WC_HEADER, nullptr, dwStyle, rect, pParentWnd, nID);
}

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

BOOL CHeaderCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, pLResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

void CHeaderCtrl::DrawItem(LPDRAWITEMSTRUCT)
{
    ASSERT(FALSE); // a header with owner-drawn items must draw them
}

// ---------------------------------------------------------------------------------------------------------
// CTabCtrl

IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)

CTabCtrl::CTabCtrl() = default;

BOOL CTabCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CreateEx(0, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CTabCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return RegisterCommonControls(ICC_TAB_CLASSES) &&
           CWnd::CreateEx(dwExStyle, WC_TABCONTROL, nullptr, dwStyle, rect, pParentWnd, nID);
}

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

BOOL CTabCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, pLResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

void CTabCtrl::DrawItem(LPDRAWITEMSTRUCT)
{
    ASSERT(FALSE); // an owner-drawn tab control must draw its tabs
}

// ---------------------------------------------------------------------------------------------------------
// CStatusBarCtrl

IMPLEMENT_DYNAMIC(CStatusBarCtrl, CWnd)

CStatusBarCtrl::CStatusBarCtrl() = default;

BOOL CStatusBarCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CreateEx(0, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CStatusBarCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return RegisterCommonControls(ICC_BAR_CLASSES) &&
           CWnd::CreateEx(dwExStyle, STATUSCLASSNAME, nullptr, dwStyle, rect, pParentWnd, nID);
}

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

BOOL CStatusBarCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, pLResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

void CStatusBarCtrl::DrawItem(LPDRAWITEMSTRUCT)
{
    ASSERT(FALSE); // a status bar with owner-drawn panes must draw them
}
