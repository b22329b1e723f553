// Spin buttons, sliders, progress bars, hot keys, headers, tabs and status bars.

#include <afxcmn.h>

#include "commctl.h"

// ---------------------------------------------------------------------------------------------------------
// CSpinButtonCtrl

IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)

CSpinButtonCtrl::CSpinButtonCtrl() = default;

CSpinButtonCtrl::~CSpinButtonCtrl()
{
    DestroyWindow();
}

BOOL CSpinButtonCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CreateEx(0, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CSpinButtonCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return RegisterCommonControls(ICC_UPDOWN_CLASS) &&
           CWnd::CreateEx(dwExStyle, UPDOWN_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CSpinButtonCtrl::SetAccel(int nAccel, UDACCEL* pAccel)
{
    return AfxSend<BOOL>(UDM_SETACCEL, nAccel, pAccel);
}

UINT CSpinButtonCtrl::GetAccel(int nAccel, UDACCEL* pAccel) const
{
    return AfxSend<UINT>(UDM_GETACCEL, nAccel, pAccel);
}

int CSpinButtonCtrl::SetBase(int nBase)
{
    return AfxSend<int>(UDM_SETBASE, nBase);
}

UINT CSpinButtonCtrl::GetBase() const
{
    return AfxSend<UINT>(UDM_GETBASE);
}

CWnd* CSpinButtonCtrl::SetBuddy(CWnd* pWndBuddy)
{
    return CWnd::FromHandle(AfxSend<HWND>(UDM_SETBUDDY, SafeHwnd(pWndBuddy)));
}

CWnd* CSpinButtonCtrl::GetBuddy() const
{
    return CWnd::FromHandle(AfxSend<HWND>(UDM_GETBUDDY));
}

int CSpinButtonCtrl::SetPos(int nPos)
{
    return AfxSend<int>(UDM_SETPOS, 0, MAKELPARAM(nPos, 0));
}

int CSpinButtonCtrl::GetPos() const
{
    return AfxSend<int>(UDM_GETPOS);
}

int CSpinButtonCtrl::SetPos32(int nPos)
{
    return AfxSend<int>(UDM_SETPOS32, 0, nPos);
}

int CSpinButtonCtrl::GetPos32(LPBOOL lpbError) const
{
    return AfxSend<int>(UDM_GETPOS32, 0, lpbError);
}

void CSpinButtonCtrl::SetRange(short nLower, short nUpper)
{
    AfxSend(UDM_SETRANGE, 0, MAKELPARAM(nUpper, nLower));
}

void CSpinButtonCtrl::SetRange32(int nLower, int nUpper)
{
    AfxSend(UDM_SETRANGE32, nLower, nUpper);
}

DWORD CSpinButtonCtrl::GetRange() const
{
    return AfxSend<DWORD>(UDM_GETRANGE);
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

CSliderCtrl::~CSliderCtrl()
{
    DestroyWindow();
}

BOOL CSliderCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CreateEx(0, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CSliderCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return RegisterCommonControls(ICC_BAR_CLASSES) &&
           CWnd::CreateEx(dwExStyle, TRACKBAR_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

int CSliderCtrl::GetLineSize() const
{
    return AfxSend<int>(TBM_GETLINESIZE);
}

int CSliderCtrl::SetLineSize(int nSize)
{
    return AfxSend<int>(TBM_SETLINESIZE, 0, nSize);
}

int CSliderCtrl::GetPageSize() const
{
    return AfxSend<int>(TBM_GETPAGESIZE);
}

int CSliderCtrl::SetPageSize(int nSize)
{
    return AfxSend<int>(TBM_SETPAGESIZE, 0, nSize);
}

int CSliderCtrl::GetRangeMax() const
{
    return AfxSend<int>(TBM_GETRANGEMAX);
}

int CSliderCtrl::GetRangeMin() const
{
    return AfxSend<int>(TBM_GETRANGEMIN);
}

void CSliderCtrl::SetRangeMin(int nMin, BOOL bRedraw)
{
    AfxSend(TBM_SETRANGEMIN, bRedraw, nMin);
}

void CSliderCtrl::SetRangeMax(int nMax, BOOL bRedraw)
{
    AfxSend(TBM_SETRANGEMAX, bRedraw, nMax);
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

int CSliderCtrl::GetPos() const
{
    return AfxSend<int>(TBM_GETPOS);
}

void CSliderCtrl::SetPos(int nPos)
{
    AfxSend(TBM_SETPOS, TRUE, nPos);
}

void CSliderCtrl::GetThumbRect(LPRECT lprc) const
{
    AfxSend(TBM_GETTHUMBRECT, 0, lprc);
}

void CSliderCtrl::GetChannelRect(LPRECT lprc) const
{
    AfxSend(TBM_GETCHANNELRECT, 0, lprc);
}

int CSliderCtrl::GetThumbLength() const
{
    return AfxSend<int>(TBM_GETTHUMBLENGTH);
}

void CSliderCtrl::SetThumbLength(int nLength)
{
    AfxSend(TBM_SETTHUMBLENGTH, nLength);
}

UINT CSliderCtrl::GetNumTics() const
{
    return AfxSend<UINT>(TBM_GETNUMTICS);
}

DWORD* CSliderCtrl::GetTicArray() const
{
    return AfxSend<DWORD*>(TBM_GETPTICS);
}

int CSliderCtrl::GetTic(int nTic) const
{
    return AfxSend<int>(TBM_GETTIC, nTic);
}

BOOL CSliderCtrl::SetTic(int nTic)
{
    return AfxSend<BOOL>(TBM_SETTIC, 0, nTic);
}

void CSliderCtrl::SetTicFreq(int nFreq)
{
    AfxSend(TBM_SETTICFREQ, nFreq);
}

int CSliderCtrl::GetTicPos(int nTic) const
{
    return AfxSend<int>(TBM_GETTICPOS, nTic);
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

int CSliderCtrl::SetTipSide(int nLocation)
{
    return AfxSend<int>(TBM_SETTIPSIDE, nLocation);
}

void CSliderCtrl::ClearSel(BOOL bRedraw)
{
    AfxSend(TBM_CLEARSEL, bRedraw);
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

CProgressCtrl::~CProgressCtrl()
{
    DestroyWindow();
}

BOOL CProgressCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CreateEx(0, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CProgressCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return RegisterCommonControls(ICC_PROGRESS_CLASS) &&
           CWnd::CreateEx(dwExStyle, PROGRESS_CLASS, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CProgressCtrl::SetRange(short nLower, short nUpper)
{
    AfxSend(PBM_SETRANGE, 0, MAKELPARAM(nLower, nUpper));
}

void CProgressCtrl::SetRange32(int nLower, int nUpper)
{
    AfxSend(PBM_SETRANGE32, nLower, nUpper);
}

void CProgressCtrl::GetRange(int& nLower, int& nUpper) const
{
    PBRANGE range = {};
    AfxSend(PBM_GETRANGE, FALSE, &range);
    nLower = range.iLow;
    nUpper = range.iHigh;
}

int CProgressCtrl::GetPos() const
{
    return AfxSend<int>(PBM_GETPOS);
}

int CProgressCtrl::SetPos(int nPos)
{
    return AfxSend<int>(PBM_SETPOS, nPos);
}

int CProgressCtrl::OffsetPos(int nPos)
{
    return AfxSend<int>(PBM_DELTAPOS, nPos);
}

int CProgressCtrl::SetStep(int nStep)
{
    return AfxSend<int>(PBM_SETSTEP, nStep);
}

int CProgressCtrl::StepIt()
{
    return AfxSend<int>(PBM_STEPIT);
}

COLORREF CProgressCtrl::SetBkColor(COLORREF clrNew)
{
    return AfxSend<COLORREF>(PBM_SETBKCOLOR, 0, clrNew);
}

COLORREF CProgressCtrl::SetBarColor(COLORREF clrBar)
{
    return AfxSend<COLORREF>(PBM_SETBARCOLOR, 0, clrBar);
}

BOOL CProgressCtrl::SetMarquee(BOOL fMarqueeMode, int nInterval)
{
    return AfxSend<BOOL>(PBM_SETMARQUEE, fMarqueeMode, nInterval);
}

// ---------------------------------------------------------------------------------------------------------
// CHotKeyCtrl

IMPLEMENT_DYNAMIC(CHotKeyCtrl, CWnd)

CHotKeyCtrl::CHotKeyCtrl() = default;

CHotKeyCtrl::~CHotKeyCtrl()
{
    DestroyWindow();
}

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

DWORD CHotKeyCtrl::GetHotKey() const
{
    return AfxSend<DWORD>(HKM_GETHOTKEY);
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

CHeaderCtrl::~CHeaderCtrl()
{
    DestroyWindow();
}

BOOL CHeaderCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CreateEx(0, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CHeaderCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return RegisterCommonControls(ICC_LISTVIEW_CLASSES) &&
           CWnd::CreateEx(dwExStyle, WC_HEADER, nullptr, dwStyle, rect, pParentWnd, nID);
}

int CHeaderCtrl::GetItemCount() const
{
    return AfxSend<int>(HDM_GETITEMCOUNT);
}

BOOL CHeaderCtrl::GetItem(int nPos, HDITEM* pHeaderItem) const
{
    return AfxSend<BOOL>(HDM_GETITEM, nPos, pHeaderItem);
}

BOOL CHeaderCtrl::SetItem(int nPos, HDITEM* pHeaderItem)
{
    return AfxSend<BOOL>(HDM_SETITEM, nPos, pHeaderItem);
}

CImageList* CHeaderCtrl::SetImageList(CImageList* pImageList)
{
    return CImageList::FromHandle(AfxSend<HIMAGELIST>(HDM_SETIMAGELIST, 0, SafeImages(pImageList)));
}

CImageList* CHeaderCtrl::GetImageList() const
{
    return CImageList::FromHandle(AfxSend<HIMAGELIST>(HDM_GETIMAGELIST));
}

BOOL CHeaderCtrl::GetOrderArray(LPINT piArray, int iCount)
{
    return AfxSend<BOOL>(HDM_GETORDERARRAY, iCount == -1 ? GetItemCount() : iCount, piArray);
}

BOOL CHeaderCtrl::SetOrderArray(int iCount, LPINT piArray)
{
    return AfxSend<BOOL>(HDM_SETORDERARRAY, iCount, piArray);
}

int CHeaderCtrl::OrderToIndex(int nOrder) const
{
    return AfxSend<int>(HDM_ORDERTOINDEX, nOrder);
}

BOOL CHeaderCtrl::GetItemRect(int nIndex, LPRECT lpRect) const
{
    return AfxSend<BOOL>(HDM_GETITEMRECT, nIndex, lpRect);
}

int CHeaderCtrl::SetHotDivider(CPoint pt)
{
    return AfxSend<int>(HDM_SETHOTDIVIDER, TRUE, MAKELPARAM(pt.x, pt.y));
}

int CHeaderCtrl::SetHotDivider(int nIndex)
{
    return AfxSend<int>(HDM_SETHOTDIVIDER, FALSE, nIndex);
}

CImageList* CHeaderCtrl::CreateDragImage(int nIndex)
{
    return NewImageList(AfxSend<HIMAGELIST>(HDM_CREATEDRAGIMAGE, nIndex));
}

int CHeaderCtrl::GetBitmapMargin() const
{
    return AfxSend<int>(HDM_GETBITMAPMARGIN);
}

int CHeaderCtrl::SetBitmapMargin(int nWidth)
{
    return AfxSend<int>(HDM_SETBITMAPMARGIN, nWidth);
}

int CHeaderCtrl::SetFilterChangeTimeout(DWORD dwTimeOut)
{
    return AfxSend<int>(HDM_SETFILTERCHANGETIMEOUT, 0, dwTimeOut);
}

int CHeaderCtrl::EditFilter(int iColumn, BOOL bDiscardChanges)
{
    return AfxSend<int>(HDM_EDITFILTER, iColumn, MAKELPARAM(bDiscardChanges, 0));
}

int CHeaderCtrl::ClearFilter(int iColumn)
{
    return AfxSend<int>(HDM_CLEARFILTER, iColumn);
}

int CHeaderCtrl::ClearAllFilters()
{
    return AfxSend<int>(HDM_CLEARFILTER, -1);
}

int CHeaderCtrl::InsertItem(int nPos, HDITEM* phdi)
{
    return AfxSend<int>(HDM_INSERTITEM, nPos, phdi);
}

BOOL CHeaderCtrl::DeleteItem(int nPos)
{
    return AfxSend<BOOL>(HDM_DELETEITEM, nPos);
}

BOOL CHeaderCtrl::Layout(HDLAYOUT* pHeaderLayout)
{
    return AfxSend<BOOL>(HDM_LAYOUT, 0, pHeaderLayout);
}

int CHeaderCtrl::HitTest(LPHDHITTESTINFO phdhti)
{
    return AfxSend<int>(HDM_HITTEST, 0, phdhti);
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

CTabCtrl::~CTabCtrl()
{
    DestroyWindow();
}

BOOL CTabCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CreateEx(0, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CTabCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return RegisterCommonControls(ICC_TAB_CLASSES) &&
           CWnd::CreateEx(dwExStyle, WC_TABCONTROL, nullptr, dwStyle, rect, pParentWnd, nID);
}

CImageList* CTabCtrl::GetImageList() const
{
    return CImageList::FromHandle(AfxSend<HIMAGELIST>(TCM_GETIMAGELIST));
}

CImageList* CTabCtrl::SetImageList(CImageList* pImageList)
{
    return CImageList::FromHandle(AfxSend<HIMAGELIST>(TCM_SETIMAGELIST, 0, SafeImages(pImageList)));
}

int CTabCtrl::GetItemCount() const
{
    return AfxSend<int>(TCM_GETITEMCOUNT);
}

BOOL CTabCtrl::GetItem(int nItem, TCITEM* pTabCtrlItem) const
{
    return AfxSend<BOOL>(TCM_GETITEM, nItem, pTabCtrlItem);
}

BOOL CTabCtrl::SetItem(int nItem, TCITEM* pTabCtrlItem)
{
    return AfxSend<BOOL>(TCM_SETITEM, nItem, pTabCtrlItem);
}

BOOL CTabCtrl::SetItemExtra(int nBytes)
{
    return AfxSend<BOOL>(TCM_SETITEMEXTRA, nBytes);
}

BOOL CTabCtrl::GetItemRect(int nItem, LPRECT lpRect) const
{
    return AfxSend<BOOL>(TCM_GETITEMRECT, nItem, lpRect);
}

int CTabCtrl::GetCurSel() const
{
    return AfxSend<int>(TCM_GETCURSEL);
}

int CTabCtrl::SetCurSel(int nItem)
{
    return AfxSend<int>(TCM_SETCURSEL, nItem);
}

void CTabCtrl::SetCurFocus(int nItem)
{
    AfxSend(TCM_SETCURFOCUS, nItem);
}

int CTabCtrl::GetCurFocus() const
{
    return AfxSend<int>(TCM_GETCURFOCUS);
}

CSize CTabCtrl::SetItemSize(CSize size)
{
    return CSize(AfxSend<DWORD>(TCM_SETITEMSIZE, 0, MAKELPARAM(size.cx, size.cy)));
}

void CTabCtrl::SetPadding(CSize size)
{
    AfxSend(TCM_SETPADDING, 0, MAKELPARAM(size.cx, size.cy));
}

int CTabCtrl::GetRowCount() const
{
    return AfxSend<int>(TCM_GETROWCOUNT);
}

CToolTipCtrl* CTabCtrl::GetToolTips() const
{
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(AfxSend<HWND>(TCM_GETTOOLTIPS)));
}

void CTabCtrl::SetToolTips(CToolTipCtrl* pWndTip)
{
    AfxSend(TCM_SETTOOLTIPS, SafeHwnd(pWndTip));
}

int CTabCtrl::SetMinTabWidth(int cx)
{
    return AfxSend<int>(TCM_SETMINTABWIDTH, 0, cx);
}

DWORD CTabCtrl::GetExtendedStyle()
{
    return AfxSend<DWORD>(TCM_GETEXTENDEDSTYLE);
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

LONG CTabCtrl::InsertItem(int nItem, LPCTSTR lpszItem)
{
    return InsertItem(TCIF_TEXT, nItem, lpszItem, 0, 0);
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

BOOL CTabCtrl::DeleteItem(int nItem)
{
    return AfxSend<BOOL>(TCM_DELETEITEM, nItem);
}

BOOL CTabCtrl::DeleteAllItems()
{
    return AfxSend<BOOL>(TCM_DELETEALLITEMS);
}

void CTabCtrl::AdjustRect(BOOL bLarger, LPRECT lpRect)
{
    AfxSend(TCM_ADJUSTRECT, bLarger, lpRect);
}

void CTabCtrl::RemoveImage(int nImage)
{
    AfxSend(TCM_REMOVEIMAGE, nImage);
}

int CTabCtrl::HitTest(TCHITTESTINFO* pHitTestInfo) const
{
    return AfxSend<int>(TCM_HITTEST, 0, pHitTestInfo);
}

void CTabCtrl::DeselectAll(BOOL fExcludeFocus)
{
    AfxSend(TCM_DESELECTALL, fExcludeFocus);
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

CStatusBarCtrl::~CStatusBarCtrl()
{
    DestroyWindow();
}

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

BOOL CStatusBarCtrl::SetParts(int nParts, int* pWidths)
{
    return AfxSend<BOOL>(SB_SETPARTS, nParts, pWidths);
}

int CStatusBarCtrl::GetParts(int nParts, int* pParts) const
{
    return AfxSend<int>(SB_GETPARTS, nParts, pParts);
}

BOOL CStatusBarCtrl::GetBorders(int* pBorders) const
{
    return AfxSend<BOOL>(SB_GETBORDERS, 0, pBorders);
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

void CStatusBarCtrl::SetMinHeight(int nMin)
{
    AfxSend(SB_SETMINHEIGHT, nMin);
}

BOOL CStatusBarCtrl::SetSimple(BOOL bSimple)
{
    return AfxSend<BOOL>(SB_SIMPLE, bSimple);
}

BOOL CStatusBarCtrl::IsSimple() const
{
    return AfxSend<BOOL>(SB_ISSIMPLE);
}

BOOL CStatusBarCtrl::GetRect(int nPane, LPRECT lpRect) const
{
    return AfxSend<BOOL>(SB_GETRECT, nPane, lpRect);
}

COLORREF CStatusBarCtrl::SetBkColor(COLORREF cr)
{
    return AfxSend<COLORREF>(SB_SETBKCOLOR, 0, cr);
}

BOOL CStatusBarCtrl::SetIcon(int nPane, HICON hIcon)
{
    return AfxSend<BOOL>(SB_SETICON, nPane, hIcon);
}

HICON CStatusBarCtrl::GetIcon(int iPart) const
{
    return AfxSend<HICON>(SB_GETICON, iPart);
}

CString CStatusBarCtrl::GetTipText(int nPane) const
{
    constexpr int longest = 256;
    CString text;
    AfxSend(SB_GETTIPTEXT, MAKEWPARAM(nPane, longest), text.GetBuffer(longest));
    text.ReleaseBuffer();
    return text;
}

void CStatusBarCtrl::SetTipText(int nPane, LPCTSTR pszTipText)
{
    AfxSend(SB_SETTIPTEXT, nPane, pszTipText);
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
