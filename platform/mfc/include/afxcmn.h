#pragma once
#define __AFXCMN_H__ // asked for by the headers that wizards make
// The common controls and image lists.
//
//     m_list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(0, 0, 300, 200), this, IDC_PARTS);
//     m_list.InsertColumn(0, L"Name", LVCFMT_LEFT, 120);
//     m_list.InsertItem(0, L"beam");
//
// Creating a control registers its window class. Members send the control's message of the same name and
// answer what it answers. An object's destructor destroys the control's window, if it is still there.
//
// Ownership: an image list set into a control stays the caller's unless the control shares none of it (see
// CImageList); a tool tip set into a control stays the caller's. Pointers that a control answers for windows
// and image lists may be temporary: use them at once and do not keep them.

#include <afxwin.h>

#include <commctrl.h>

class CEdit;
class CImageList;
class CToolTipCtrl;

/// A row of pictures of one size. The object owns the list and destroys it, also where a control shows it:
/// list and tree views give a list that has an object back before they go, whatever their style says about
/// sharing.
class AFX_CORE_CLASS CImageList : public CObject
{
    DECLARE_DYNCREATE(CImageList)

public:
    CImageList();
    ~CImageList() override { DeleteImageList(); }
    CImageList(const CImageList&) = delete;
    CImageList& operator=(const CImageList&) = delete;

    HIMAGELIST m_hImageList = nullptr;

    operator HIMAGELIST() const { return GetSafeHandle(); }
    /// The handle; null also if `this` is null.
    HIMAGELIST GetSafeHandle() const;

    static CImageList* PASCAL FromHandle(HIMAGELIST hImageList);
    static CImageList* PASCAL FromHandlePermanent(HIMAGELIST hImageList);
    static void PASCAL DeleteTempMap();
    BOOL Attach(HIMAGELIST hImageList);
    HIMAGELIST Detach();

    /// `cx`, `cy` is the size of a picture; the list starts with `nInitial` places and grows by `nGrow`.
    BOOL Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow);
    /// Cuts a bitmap resource into pictures `cx` wide; `crMask` becomes transparent.
    BOOL Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask);
    BOOL Create(LPCTSTR lpszBitmapID, int cx, int nGrow, COLORREF crMask);
    /// A list with one picture: the second drawn over the first at an offset.
    BOOL Create(CImageList& imagelist1, int nImage1, CImageList& imagelist2, int nImage2, int dx, int dy);
    BOOL Create(CImageList* pImageList) { return Attach(::ImageList_Duplicate(pImageList->GetSafeHandle())); }
    BOOL DeleteImageList();

    int GetImageCount() const { return ::ImageList_GetImageCount(m_hImageList); }
    BOOL SetImageCount(UINT uNewCount) { return ::ImageList_SetImageCount(m_hImageList, uNewCount); }
    COLORREF SetBkColor(COLORREF cr) { return ::ImageList_SetBkColor(m_hImageList, cr); }
    COLORREF GetBkColor() const { return ::ImageList_GetBkColor(m_hImageList); }
    BOOL GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const;

    /// The pictures are copied; each answers the index of the first new one, or -1.
    int Add(CBitmap* pbmImage, CBitmap* pbmMask);
    int Add(CBitmap* pbmImage, COLORREF crMask);
    int Add(HICON hIcon) { return ::ImageList_AddIcon(m_hImageList, hIcon); }
    BOOL Remove(int nImage) { return ::ImageList_Remove(m_hImageList, nImage); }
    BOOL Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask);
    int Replace(int nImage, HICON hIcon) { return ::ImageList_ReplaceIcon(m_hImageList, nImage, hIcon); }
    /// The caller destroys the icon.
    HICON ExtractIcon(int nImage) { return ::ImageList_GetIcon(m_hImageList, nImage, ILD_NORMAL); }
    BOOL SetOverlayImage(int nImage, int nOverlay);
    BOOL Copy(int iDst, int iSrc, UINT uFlags = ILCF_MOVE);
    BOOL Copy(int iDst, CImageList* pSrc, int iSrc, UINT uFlags = ILCF_MOVE);

    BOOL Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle);
    BOOL DrawEx(CDC* pDC, int nImage, POINT pt, SIZE sz, COLORREF clrBk, COLORREF clrFg, UINT nStyle);
    BOOL DrawIndirect(IMAGELISTDRAWPARAMS* pimldp);
    BOOL DrawIndirect(CDC* pDC, int nImage, POINT pt, SIZE sz, POINT ptOrigin, UINT fStyle = ILD_NORMAL,
                      DWORD dwRop = SRCCOPY, COLORREF rgbBack = CLR_DEFAULT, COLORREF rgbFore = CLR_DEFAULT,
                      DWORD fState = ILS_NORMAL, DWORD Frame = 0, COLORREF crEffect = CLR_DEFAULT);

    // Dragging a picture over a window
    BOOL BeginDrag(int nImage, CPoint ptHotSpot);
    static void PASCAL EndDrag() { ::ImageList_EndDrag(); }
    static BOOL PASCAL DragMove(CPoint pt) { return ::ImageList_DragMove(pt.x, pt.y); }
    BOOL SetDragCursorImage(int nDrag, CPoint ptHotSpot);
    static BOOL PASCAL DragShowNolock(BOOL bShow) { return ::ImageList_DragShowNolock(bShow); }
    static CImageList* PASCAL GetDragImage(LPPOINT lpPoint, LPPOINT lpPointHotSpot);
    static BOOL PASCAL DragEnter(CWnd* pWndLock, CPoint point);
    static BOOL PASCAL DragLeave(CWnd* pWndLock);
};

/// A pair of arrows that steps a number, beside the buddy window that shows it or by itself.
class AFX_CORE_CLASS CSpinButtonCtrl : public CWnd
{
    DECLARE_DYNAMIC(CSpinButtonCtrl)
    using CWnd::Create;
    using CWnd::CreateEx;

public:
    CSpinButtonCtrl();
    ~CSpinButtonCtrl() override { DestroyWindow(); }

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    BOOL SetAccel(int nAccel, UDACCEL* pAccel) { return AfxSend<BOOL>(UDM_SETACCEL, nAccel, pAccel); }
    UINT GetAccel(int nAccel, UDACCEL* pAccel) const { return AfxSend<UINT>(UDM_GETACCEL, nAccel, pAccel); }
    /// 10 or 16; answers the base before.
    int SetBase(int nBase) { return AfxSend<int>(UDM_SETBASE, nBase); }
    UINT GetBase() const { return AfxSend<UINT>(UDM_GETBASE); }
    CWnd* SetBuddy(CWnd* pWndBuddy);
    CWnd* GetBuddy() const { return CWnd::FromHandle(AfxSend<HWND>(UDM_GETBUDDY)); }
    /// 16-bit position; GetPos answers it in the low word, and in the high word nonzero if the buddy's text
    /// is no number within the range.
    int SetPos(int nPos) { return AfxSend<int>(UDM_SETPOS, 0, MAKELPARAM(nPos, 0)); }
    int GetPos() const { return AfxSend<int>(UDM_GETPOS); }
    int SetPos32(int nPos) { return AfxSend<int>(UDM_SETPOS32, 0, nPos); }
    int GetPos32(LPBOOL lpbError = nullptr) const { return AfxSend<int>(UDM_GETPOS32, 0, lpbError); }
    void SetRange(short nLower, short nUpper) { AfxSend(UDM_SETRANGE, 0, MAKELPARAM(nUpper, nLower)); }
    void SetRange32(int nLower, int nUpper) { AfxSend(UDM_SETRANGE32, nLower, nUpper); }
    /// The upper bound in the low word, the lower one in the high word.
    DWORD GetRange() const { return AfxSend<DWORD>(UDM_GETRANGE); }
    void GetRange(int& lower, int& upper) const;
    void GetRange32(int& lower, int& upper) const;
};

/// A track bar.
class AFX_CORE_CLASS CSliderCtrl : public CWnd
{
    DECLARE_DYNAMIC(CSliderCtrl)
    using CWnd::Create;
    using CWnd::CreateEx;

public:
    CSliderCtrl();
    ~CSliderCtrl() override { DestroyWindow(); }

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetLineSize() const { return AfxSend<int>(TBM_GETLINESIZE); }
    int SetLineSize(int nSize) { return AfxSend<int>(TBM_SETLINESIZE, 0, nSize); }
    int GetPageSize() const { return AfxSend<int>(TBM_GETPAGESIZE); }
    int SetPageSize(int nSize) { return AfxSend<int>(TBM_SETPAGESIZE, 0, nSize); }
    int GetRangeMax() const { return AfxSend<int>(TBM_GETRANGEMAX); }
    int GetRangeMin() const { return AfxSend<int>(TBM_GETRANGEMIN); }
    void SetRangeMin(int nMin, BOOL bRedraw = FALSE) { AfxSend(TBM_SETRANGEMIN, bRedraw, nMin); }
    void SetRangeMax(int nMax, BOOL bRedraw = FALSE) { AfxSend(TBM_SETRANGEMAX, bRedraw, nMax); }
    void GetRange(int& nMin, int& nMax) const;
    void SetRange(int nMin, int nMax, BOOL bRedraw = FALSE);
    void GetSelection(int& nMin, int& nMax) const;
    void SetSelection(int nMin, int nMax);
    int GetPos() const { return AfxSend<int>(TBM_GETPOS); }
    void SetPos(int nPos) { AfxSend(TBM_SETPOS, TRUE, nPos); }
    void GetThumbRect(LPRECT lprc) const { AfxSend(TBM_GETTHUMBRECT, 0, lprc); }
    void GetChannelRect(LPRECT lprc) const { AfxSend(TBM_GETCHANNELRECT, 0, lprc); }
    int GetThumbLength() const { return AfxSend<int>(TBM_GETTHUMBLENGTH); }
    void SetThumbLength(int nLength) { AfxSend(TBM_SETTHUMBLENGTH, nLength); }
    UINT GetNumTics() const { return AfxSend<UINT>(TBM_GETNUMTICS); }
    DWORD* GetTicArray() const { return AfxSend<DWORD*>(TBM_GETPTICS); }
    int GetTic(int nTic) const { return AfxSend<int>(TBM_GETTIC, nTic); }
    BOOL SetTic(int nTic) { return AfxSend<BOOL>(TBM_SETTIC, 0, nTic); }
    void SetTicFreq(int nFreq) { AfxSend(TBM_SETTICFREQ, nFreq); }
    int GetTicPos(int nTic) const { return AfxSend<int>(TBM_GETTICPOS, nTic); }
    /// `fLocation` is TRUE for the left or upper end, FALSE for the right or lower one.
    CWnd* SetBuddy(CWnd* pWndBuddy, BOOL fLocation = TRUE);
    CWnd* GetBuddy(BOOL fLocation = TRUE) const;
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pWndTip);
    int SetTipSide(int nLocation) { return AfxSend<int>(TBM_SETTIPSIDE, nLocation); }

    void ClearSel(BOOL bRedraw = FALSE) { AfxSend(TBM_CLEARSEL, bRedraw); }
    void VerifyPos();
    void ClearTics(BOOL bRedraw = FALSE);
};

class AFX_CORE_CLASS CProgressCtrl : public CWnd
{
    DECLARE_DYNAMIC(CProgressCtrl)
    using CWnd::Create;
    using CWnd::CreateEx;

public:
    CProgressCtrl();
    ~CProgressCtrl() override { DestroyWindow(); }

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    void SetRange(short nLower, short nUpper) { AfxSend(PBM_SETRANGE, 0, MAKELPARAM(nLower, nUpper)); }
    void SetRange32(int nLower, int nUpper) { AfxSend(PBM_SETRANGE32, nLower, nUpper); }
    void GetRange(int& nLower, int& nUpper) const;
    int GetPos() const { return AfxSend<int>(PBM_GETPOS); }
    /// The setters answer the position, or step, before.
    int SetPos(int nPos) { return AfxSend<int>(PBM_SETPOS, nPos); }
    int OffsetPos(int nPos) { return AfxSend<int>(PBM_DELTAPOS, nPos); }
    int SetStep(int nStep) { return AfxSend<int>(PBM_SETSTEP, nStep); }
    int StepIt() { return AfxSend<int>(PBM_STEPIT); }
    COLORREF SetBkColor(COLORREF clrNew) { return AfxSend<COLORREF>(PBM_SETBKCOLOR, 0, clrNew); }
    COLORREF SetBarColor(COLORREF clrBar) { return AfxSend<COLORREF>(PBM_SETBARCOLOR, 0, clrBar); }
    /// Runs the bar without an end, for PBS_MARQUEE; `nInterval` milliseconds between steps.
    BOOL SetMarquee(BOOL fMarqueeMode, int nInterval);
};

/// A TOOLINFO with room for its text.
class CToolInfo : public TOOLINFO
{
public:
    TCHAR szText[256];
};

/// A tool tip window. A tool is a whole child window (identifier 0) or a rectangle of a window (any other).
/// Mouse messages reach it through RelayEvent, which the parent calls in PreTranslateMessage.
class AFX_CORE_CLASS CToolTipCtrl : public CWnd
{
    DECLARE_DYNAMIC(CToolTipCtrl)
    using CWnd::Create;
    using CWnd::CreateEx;

public:
    CToolTipCtrl();
    ~CToolTipCtrl() override { DestroyWindow(); }

    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0) { return CreateEx(pParentWnd, dwStyle, 0); }
    virtual BOOL CreateEx(CWnd* pParentWnd, DWORD dwStyle = 0, DWORD dwStyleEx = 0);

    void GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    BOOL GetToolInfo(CToolInfo& ToolInfo, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    void SetToolInfo(LPTOOLINFO lpToolInfo) { AfxSend(TTM_SETTOOLINFO, 0, lpToolInfo); }
    BOOL GetCurrentTool(LPTOOLINFO lpToolInfo) const;
    int GetToolCount() const { return AfxSend<int>(TTM_GETTOOLCOUNT); }
    void SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect);
    int GetDelayTime(DWORD dwDuration) const { return AfxSend<int>(TTM_GETDELAYTIME, dwDuration); }
    void SetDelayTime(DWORD dwDuration, int iTime);
    void SetDelayTime(UINT nDelay) { SetDelayTime(TTDT_AUTOMATIC, nDelay); }
    void GetMargin(LPRECT lprc) const { AfxSend(TTM_GETMARGIN, 0, lprc); }
    void SetMargin(LPRECT lprc) { AfxSend(TTM_SETMARGIN, 0, lprc); }
    int GetMaxTipWidth() const { return AfxSend<int>(TTM_GETMAXTIPWIDTH); }
    int SetMaxTipWidth(int iWidth) { return AfxSend<int>(TTM_SETMAXTIPWIDTH, 0, iWidth); }
    COLORREF GetTipBkColor() const { return AfxSend<COLORREF>(TTM_GETTIPBKCOLOR); }
    void SetTipBkColor(COLORREF clr) { AfxSend(TTM_SETTIPBKCOLOR, clr); }
    COLORREF GetTipTextColor() const { return AfxSend<COLORREF>(TTM_GETTIPTEXTCOLOR); }
    void SetTipTextColor(COLORREF clr) { AfxSend(TTM_SETTIPTEXTCOLOR, clr); }
    BOOL SetTitle(UINT uIcon, LPCTSTR lpstrTitle) { return AfxSend<BOOL>(TTM_SETTITLE, uIcon, lpstrTitle); }
    void GetTitle(PTTGETTITLE pttgt) const { AfxSend(TTM_GETTITLE, 0, pttgt); }
    HRESULT SetWindowTheme(LPCWSTR pszName) const { return AfxSend<HRESULT>(TTM_SETWINDOWTHEME, 0, pszName); }
    CSize GetBubbleSize(LPTOOLINFO lpToolInfo) const;
    BOOL AdjustRect(LPRECT lprc, BOOL bLarger = TRUE) { return AfxSend<BOOL>(TTM_ADJUSTRECT, bLarger, lprc); }

    void Activate(BOOL bActivate) { AfxSend(TTM_ACTIVATE, bActivate); }
    /// A string of identifier `nIDText`, or a text; LPSTR_TEXTCALLBACK asks the window by TTN_NEEDTEXT.
    BOOL AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool = nullptr, UINT_PTR nIDTool = 0);
    BOOL AddTool(CWnd* pWnd, LPCTSTR lpszText = LPSTR_TEXTCALLBACK, LPCRECT lpRectTool = nullptr,
                 UINT_PTR nIDTool = 0);
    void DelTool(CWnd* pWnd, UINT_PTR nIDTool = 0);
    BOOL HitTest(CWnd* pWnd, CPoint pt, LPTOOLINFO lpToolInfo) const;
    void RelayEvent(LPMSG lpMsg) { AfxSend(TTM_RELAYEVENT, 0, lpMsg); }
    void UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void Update() { AfxSend(TTM_UPDATE); }
    void Pop() { AfxSend(TTM_POP); }
    BOOL Popup() { return AfxSend<BOOL>(TTM_POPUP); }

protected:
    void FillInToolInfo(TOOLINFO& ti, CWnd* pWnd, UINT_PTR nIDTool) const;

    afx_msg LRESULT OnDisableModal(WPARAM, LPARAM);
    afx_msg LRESULT OnWindowFromPoint(WPARAM, LPARAM lParam);

    DECLARE_MESSAGE_MAP()
};

class AFX_CORE_CLASS CHeaderCtrl : public CWnd
{
    DECLARE_DYNAMIC(CHeaderCtrl)
    using CWnd::Create;
    using CWnd::CreateEx;

public:
    CHeaderCtrl();
    ~CHeaderCtrl() override { DestroyWindow(); }

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetItemCount() const { return AfxSend<int>(HDM_GETITEMCOUNT); }
    BOOL GetItem(int nPos, HDITEM* pHeaderItem) const;
    BOOL SetItem(int nPos, HDITEM* pHeaderItem) { return AfxSend<BOOL>(HDM_SETITEM, nPos, pHeaderItem); }
    CImageList* SetImageList(CImageList* pImageList);
    CImageList* GetImageList() const { return CImageList::FromHandle(AfxSend<HIMAGELIST>(HDM_GETIMAGELIST)); }
    BOOL GetOrderArray(LPINT piArray, int iCount = -1);
    BOOL SetOrderArray(int iCount, LPINT piArray);
    int OrderToIndex(int nOrder) const { return AfxSend<int>(HDM_ORDERTOINDEX, nOrder); }
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const;
    int SetHotDivider(CPoint pt) { return AfxSend<int>(HDM_SETHOTDIVIDER, TRUE, MAKELPARAM(pt.x, pt.y)); }
    int SetHotDivider(int nIndex) { return AfxSend<int>(HDM_SETHOTDIVIDER, FALSE, nIndex); }
    /// The caller destroys the list.
    CImageList* CreateDragImage(int nIndex);
    int GetBitmapMargin() const { return AfxSend<int>(HDM_GETBITMAPMARGIN); }
    int SetBitmapMargin(int nWidth) { return AfxSend<int>(HDM_SETBITMAPMARGIN, nWidth); }
    int SetFilterChangeTimeout(DWORD dwTimeOut);
    int EditFilter(int iColumn, BOOL bDiscardChanges);
    int ClearFilter(int iColumn) { return AfxSend<int>(HDM_CLEARFILTER, iColumn); }
    int ClearAllFilters() { return AfxSend<int>(HDM_CLEARFILTER, -1); }

    int InsertItem(int nPos, HDITEM* phdi) { return AfxSend<int>(HDM_INSERTITEM, nPos, phdi); }
    BOOL DeleteItem(int nPos) { return AfxSend<BOOL>(HDM_DELETEITEM, nPos); }
    BOOL Layout(HDLAYOUT* pHeaderLayout) { return AfxSend<BOOL>(HDM_LAYOUT, 0, pHeaderLayout); }
    int HitTest(LPHDHITTESTINFO phdhti) { return AfxSend<int>(HDM_HITTEST, 0, phdhti); }

    /// Called for HDF_OWNERDRAW items, which must override it.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;
};

class AFX_CORE_CLASS CTabCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTabCtrl)
    using CWnd::Create;
    using CWnd::CreateEx;

public:
    CTabCtrl();
    ~CTabCtrl() override { DestroyWindow(); }

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    CImageList* GetImageList() const { return CImageList::FromHandle(AfxSend<HIMAGELIST>(TCM_GETIMAGELIST)); }
    CImageList* SetImageList(CImageList* pImageList);
    int GetItemCount() const { return AfxSend<int>(TCM_GETITEMCOUNT); }
    BOOL GetItem(int nItem, TCITEM* pTabCtrlItem) const;
    BOOL SetItem(int nItem, TCITEM* pTabCtrlItem) { return AfxSend<BOOL>(TCM_SETITEM, nItem, pTabCtrlItem); }
    BOOL SetItemExtra(int nBytes) { return AfxSend<BOOL>(TCM_SETITEMEXTRA, nBytes); }
    BOOL GetItemRect(int nItem, LPRECT lpRect) const { return AfxSend<BOOL>(TCM_GETITEMRECT, nItem, lpRect); }
    int GetCurSel() const { return AfxSend<int>(TCM_GETCURSEL); }
    int SetCurSel(int nItem) { return AfxSend<int>(TCM_SETCURSEL, nItem); }
    void SetCurFocus(int nItem) { AfxSend(TCM_SETCURFOCUS, nItem); }
    int GetCurFocus() const { return AfxSend<int>(TCM_GETCURFOCUS); }
    CSize SetItemSize(CSize size);
    void SetPadding(CSize size) { AfxSend(TCM_SETPADDING, 0, MAKELPARAM(size.cx, size.cy)); }
    int GetRowCount() const { return AfxSend<int>(TCM_GETROWCOUNT); }
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pWndTip) { AfxSend(TCM_SETTOOLTIPS, pWndTip->GetSafeHwnd()); }
    int SetMinTabWidth(int cx) { return AfxSend<int>(TCM_SETMINTABWIDTH, 0, cx); }
    DWORD GetExtendedStyle() { return AfxSend<DWORD>(TCM_GETEXTENDEDSTYLE); }
    DWORD SetExtendedStyle(DWORD dwNewStyle, DWORD dwExMask = 0);
    BOOL GetItemState(int nItem, DWORD dwMask, DWORD& dwState) const;
    BOOL SetItemState(int nItem, DWORD dwMask, DWORD dwState);

    LONG InsertItem(int nItem, TCITEM* pTabCtrlItem);
    LONG InsertItem(int nItem, LPCTSTR lpszItem) { return InsertItem(TCIF_TEXT, nItem, lpszItem, 0, 0); }
    LONG InsertItem(int nItem, LPCTSTR lpszItem, int nImage);
    LONG InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam);
    BOOL DeleteItem(int nItem) { return AfxSend<BOOL>(TCM_DELETEITEM, nItem); }
    BOOL DeleteAllItems() { return AfxSend<BOOL>(TCM_DELETEALLITEMS); }
    /// Between the rectangle of the whole control (`bLarger`) and that of its display area.
    void AdjustRect(BOOL bLarger, LPRECT lpRect) { AfxSend(TCM_ADJUSTRECT, bLarger, lpRect); }
    void RemoveImage(int nImage) { AfxSend(TCM_REMOVEIMAGE, nImage); }
    int HitTest(TCHITTESTINFO* pHitTestInfo) const { return AfxSend<int>(TCM_HITTEST, 0, pHitTestInfo); }
    void DeselectAll(BOOL fExcludeFocus) { AfxSend(TCM_DESELECTALL, fExcludeFocus); }
    BOOL HighlightItem(int idItem, BOOL fHighlight = TRUE);

    /// Called for TCS_OWNERDRAWFIXED, which must override it.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;
};

class AFX_CORE_CLASS CStatusBarCtrl : public CWnd
{
    DECLARE_DYNAMIC(CStatusBarCtrl)
    using CWnd::Create;
    using CWnd::CreateEx;

public:
    CStatusBarCtrl();
    ~CStatusBarCtrl() override { DestroyWindow(); }

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// `nType` receives the SBT_ drawing style.
    BOOL SetText(LPCTSTR lpszText, int nPane, int nType);
    CString GetText(int nPane, int* pType = nullptr) const;
    int GetText(LPCTSTR lpszText, int nPane, int* pType = nullptr) const;
    int GetTextLength(int nPane, int* pType = nullptr) const;
    /// Right edges in client coordinates; -1 reaches to the end.
    BOOL SetParts(int nParts, int* pWidths) { return AfxSend<BOOL>(SB_SETPARTS, nParts, pWidths); }
    int GetParts(int nParts, int* pParts) const { return AfxSend<int>(SB_GETPARTS, nParts, pParts); }
    BOOL GetBorders(int* pBorders) const { return AfxSend<BOOL>(SB_GETBORDERS, 0, pBorders); }
    BOOL GetBorders(int& nHorz, int& nVert, int& nSpacing) const;
    void SetMinHeight(int nMin) { AfxSend(SB_SETMINHEIGHT, nMin); }
    BOOL SetSimple(BOOL bSimple = TRUE) { return AfxSend<BOOL>(SB_SIMPLE, bSimple); }
    BOOL IsSimple() const { return AfxSend<BOOL>(SB_ISSIMPLE); }
    BOOL GetRect(int nPane, LPRECT lpRect) const { return AfxSend<BOOL>(SB_GETRECT, nPane, lpRect); }
    COLORREF SetBkColor(COLORREF cr) { return AfxSend<COLORREF>(SB_SETBKCOLOR, 0, cr); }
    BOOL SetIcon(int nPane, HICON hIcon) { return AfxSend<BOOL>(SB_SETICON, nPane, hIcon); }
    HICON GetIcon(int iPart) const { return AfxSend<HICON>(SB_GETICON, iPart); }
    CString GetTipText(int nPane) const;
    void SetTipText(int nPane, LPCTSTR pszTipText) { AfxSend(SB_SETTIPTEXT, nPane, pszTipText); }

    /// Called for SBT_OWNERDRAW panes, which must override it.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;
};

class AFX_CORE_CLASS CTreeCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTreeCtrl)
    using CWnd::Create;
    using CWnd::CreateEx;

public:
    CTreeCtrl();
    ~CTreeCtrl() override { DestroyWindow(); }

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // The tree as a whole
    UINT GetCount() const { return AfxSend<UINT>(TVM_GETCOUNT); }
    UINT GetIndent() const { return AfxSend<UINT>(TVM_GETINDENT); }
    void SetIndent(UINT nIndent) { AfxSend(TVM_SETINDENT, nIndent); }
    /// TVSIL_NORMAL or TVSIL_STATE.
    CImageList* GetImageList(UINT nImageList) const;
    CImageList* SetImageList(CImageList* pImageList, int nImageListType);
    UINT GetVisibleCount() const { return AfxSend<UINT>(TVM_GETVISIBLECOUNT); }
    CToolTipCtrl* GetToolTips() const;
    CToolTipCtrl* SetToolTips(CToolTipCtrl* pWndTip);
    COLORREF GetBkColor() const { return AfxSend<COLORREF>(TVM_GETBKCOLOR); }
    COLORREF SetBkColor(COLORREF clr) { return AfxSend<COLORREF>(TVM_SETBKCOLOR, 0, clr); }
    SHORT GetItemHeight() const { return AfxSend<SHORT>(TVM_GETITEMHEIGHT); }
    SHORT SetItemHeight(SHORT cyHeight) { return AfxSend<SHORT>(TVM_SETITEMHEIGHT, cyHeight); }
    COLORREF GetTextColor() const { return AfxSend<COLORREF>(TVM_GETTEXTCOLOR); }
    COLORREF SetTextColor(COLORREF clr) { return AfxSend<COLORREF>(TVM_SETTEXTCOLOR, 0, clr); }
    COLORREF GetInsertMarkColor() const { return AfxSend<COLORREF>(TVM_GETINSERTMARKCOLOR); }
    COLORREF SetInsertMarkColor(COLORREF clrNew);
    COLORREF GetLineColor() const { return AfxSend<COLORREF>(TVM_GETLINECOLOR); }
    COLORREF SetLineColor(COLORREF clrNew = CLR_DEFAULT);
    UINT GetScrollTime() const { return AfxSend<UINT>(TVM_GETSCROLLTIME); }
    UINT SetScrollTime(UINT nScrollTime) { return AfxSend<UINT>(TVM_SETSCROLLTIME, nScrollTime); }
    CEdit* GetEditControl() const;

    // Walking
    HTREEITEM GetNextItem(HTREEITEM hItem, UINT nCode) const;
    HTREEITEM GetChildItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_CHILD); }
    HTREEITEM GetNextSiblingItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_NEXT); }
    HTREEITEM GetPrevSiblingItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_PREVIOUS); }
    HTREEITEM GetParentItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_PARENT); }
    HTREEITEM GetFirstVisibleItem() const { return GetNextItem(nullptr, TVGN_FIRSTVISIBLE); }
    HTREEITEM GetNextVisibleItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_NEXTVISIBLE); }
    HTREEITEM GetPrevVisibleItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_PREVIOUSVISIBLE); }
    HTREEITEM GetLastVisibleItem() const { return GetNextItem(nullptr, TVGN_LASTVISIBLE); }
    HTREEITEM GetSelectedItem() const { return GetNextItem(nullptr, TVGN_CARET); }
    HTREEITEM GetDropHilightItem() const { return GetNextItem(nullptr, TVGN_DROPHILITE); }
    HTREEITEM GetRootItem() const { return GetNextItem(nullptr, TVGN_ROOT); }

    // Items
    BOOL GetItem(TVITEM* pItem) const { return AfxSend<BOOL>(TVM_GETITEM, 0, pItem); }
    CString GetItemText(HTREEITEM hItem) const;
    BOOL GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) const;
    UINT GetItemState(HTREEITEM hItem, UINT nStateMask) const;
    DWORD_PTR GetItemData(HTREEITEM hItem) const;
    BOOL SetItem(TVITEM* pItem) { return AfxSend<BOOL>(TVM_SETITEM, 0, pItem); }
    BOOL SetItem(HTREEITEM hItem, UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                 UINT nStateMask, LPARAM lParam);
    BOOL SetItemText(HTREEITEM hItem, LPCTSTR lpszItem);
    BOOL SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage);
    BOOL SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask);
    BOOL SetItemData(HTREEITEM hItem, DWORD_PTR dwData);
    BOOL ItemHasChildren(HTREEITEM hItem) const;
    /// The rectangle of an item, or of its text; FALSE if it is not visible.
    BOOL GetItemRect(HTREEITEM hItem, LPRECT lpRect, BOOL bTextOnly) const;
    BOOL GetCheck(HTREEITEM hItem) const;
    BOOL SetCheck(HTREEITEM hItem, BOOL fCheck = TRUE);
    BOOL SetInsertMark(HTREEITEM hItem, BOOL fAfter = TRUE);
    UINT MapItemToAccID(HTREEITEM hItem) const { return AfxSend<UINT>(TVM_MAPHTREEITEMTOACCID, hItem); }
    HTREEITEM MapAccIDToItem(UINT uAccID) const
    {
        return AfxSend<HTREEITEM>(TVM_MAPACCIDTOHTREEITEM, uAccID);
    }

    // Contents
    HTREEITEM InsertItem(LPTVINSERTSTRUCT lpInsertStruct);
    HTREEITEM InsertItem(UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                         UINT nStateMask, LPARAM lParam, HTREEITEM hParent, HTREEITEM hInsertAfter);
    HTREEITEM InsertItem(LPCTSTR lpszItem, HTREEITEM hParent = TVI_ROOT, HTREEITEM hInsertAfter = TVI_LAST);
    HTREEITEM InsertItem(LPCTSTR lpszItem, int nImage, int nSelectedImage, HTREEITEM hParent = TVI_ROOT,
                         HTREEITEM hInsertAfter = TVI_LAST);
    BOOL DeleteItem(HTREEITEM hItem) { return AfxSend<BOOL>(TVM_DELETEITEM, 0, hItem); }
    BOOL DeleteAllItems() { return DeleteItem(TVI_ROOT); }
    BOOL SortChildren(HTREEITEM hItem) { return AfxSend<BOOL>(TVM_SORTCHILDREN, 0, hItem); }
    BOOL SortChildrenCB(LPTVSORTCB pSort) { return AfxSend<BOOL>(TVM_SORTCHILDRENCB, 0, pSort); }

    // Actions
    BOOL Expand(HTREEITEM hItem, UINT nCode) { return AfxSend<BOOL>(TVM_EXPAND, nCode, hItem); }
    BOOL Select(HTREEITEM hItem, UINT nCode) { return AfxSend<BOOL>(TVM_SELECTITEM, nCode, hItem); }
    BOOL SelectItem(HTREEITEM hItem) { return Select(hItem, TVGN_CARET); }
    BOOL SelectDropTarget(HTREEITEM hItem) { return Select(hItem, TVGN_DROPHILITE); }
    BOOL SelectSetFirstVisible(HTREEITEM hItem) { return Select(hItem, TVGN_FIRSTVISIBLE); }
    CEdit* EditLabel(HTREEITEM hItem);
    BOOL EndEditLabelNow(BOOL fCancel) { return AfxSend<BOOL>(TVM_ENDEDITLABELNOW, fCancel); }
    HTREEITEM HitTest(CPoint pt, UINT* pFlags = nullptr) const;
    HTREEITEM HitTest(TVHITTESTINFO* pHitTestInfo) const;
    BOOL EnsureVisible(HTREEITEM hItem) { return AfxSend<BOOL>(TVM_ENSUREVISIBLE, 0, hItem); }
    /// The caller destroys the list.
    CImageList* CreateDragImage(HTREEITEM hItem);

protected:
    afx_msg void OnDestroy();

    DECLARE_MESSAGE_MAP()
};

class AFX_CORE_CLASS CListCtrl : public CWnd
{
    DECLARE_DYNAMIC(CListCtrl)
    using CWnd::Create;
    using CWnd::CreateEx;

public:
    CListCtrl();
    ~CListCtrl() override { DestroyWindow(); }

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // The list as a whole
    COLORREF GetBkColor() const { return AfxSend<COLORREF>(LVM_GETBKCOLOR); }
    BOOL SetBkColor(COLORREF cr) { return AfxSend<BOOL>(LVM_SETBKCOLOR, 0, cr); }
    COLORREF GetTextColor() const { return AfxSend<COLORREF>(LVM_GETTEXTCOLOR); }
    BOOL SetTextColor(COLORREF cr) { return AfxSend<BOOL>(LVM_SETTEXTCOLOR, 0, cr); }
    COLORREF GetTextBkColor() const { return AfxSend<COLORREF>(LVM_GETTEXTBKCOLOR); }
    BOOL SetTextBkColor(COLORREF cr) { return AfxSend<BOOL>(LVM_SETTEXTBKCOLOR, 0, cr); }
    /// LVSIL_NORMAL, LVSIL_SMALL or LVSIL_STATE. SetImageList answers the list before.
    CImageList* GetImageList(int nImageList) const;
    CImageList* SetImageList(CImageList* pImageList, int nImageListType);
    int GetItemCount() const { return AfxSend<int>(LVM_GETITEMCOUNT); }
    void SetItemCount(int nItems) { AfxSend(LVM_SETITEMCOUNT, nItems); }
    BOOL SetItemCountEx(int iCount, DWORD dwFlags = LVSICF_NOINVALIDATEALL);
    UINT GetCallbackMask() const { return AfxSend<UINT>(LVM_GETCALLBACKMASK); }
    BOOL SetCallbackMask(UINT nMask) { return AfxSend<BOOL>(LVM_SETCALLBACKMASK, nMask); }
    DWORD GetExtendedStyle() { return AfxSend<DWORD>(LVM_GETEXTENDEDLISTVIEWSTYLE); }
    DWORD SetExtendedStyle(DWORD dwNewStyle);
    BOOL GetViewRect(LPRECT lpRect) const { return AfxSend<BOOL>(LVM_GETVIEWRECT, 0, lpRect); }
    BOOL GetOrigin(LPPOINT lpPoint) const { return AfxSend<BOOL>(LVM_GETORIGIN, 0, lpPoint); }
    int GetTopIndex() const { return AfxSend<int>(LVM_GETTOPINDEX); }
    int GetCountPerPage() const { return AfxSend<int>(LVM_GETCOUNTPERPAGE); }
    BOOL GetItemSpacing(BOOL fSmall, int* pnHorzSpacing, int* pnVertSpacing) const;
    CSize SetIconSpacing(int cx, int cy);
    CSize SetIconSpacing(CSize size) { return SetIconSpacing(size.cx, size.cy); }
    CHeaderCtrl* GetHeaderCtrl() const;
    CEdit* GetEditControl() const;
    CToolTipCtrl* GetToolTips() const;
    CToolTipCtrl* SetToolTips(CToolTipCtrl* pWndTip);
    BOOL GetBkImage(LVBKIMAGE* plvbkImage) const { return AfxSend<BOOL>(LVM_GETBKIMAGE, 0, plvbkImage); }
    BOOL SetBkImage(LVBKIMAGE* plvbkImage) { return AfxSend<BOOL>(LVM_SETBKIMAGE, 0, plvbkImage); }
    BOOL SetBkImage(HBITMAP hbm, BOOL fTile = TRUE, int xOffsetPercent = 0, int yOffsetPercent = 0);
    BOOL SetBkImage(LPTSTR pszUrl, BOOL fTile = TRUE, int xOffsetPercent = 0, int yOffsetPercent = 0);
    DWORD GetView() const { return AfxSend<DWORD>(LVM_GETVIEW); }
    DWORD SetView(int iView) { return AfxSend<DWORD>(LVM_SETVIEW, iView); }
    int GetStringWidth(LPCTSTR lpsz) const { return AfxSend<int>(LVM_GETSTRINGWIDTH, 0, lpsz); }
    DWORD GetHoverTime() const { return AfxSend<DWORD>(LVM_GETHOVERTIME); }
    DWORD SetHoverTime(DWORD dwHoverTime = static_cast<DWORD>(-1));
    void SetWorkAreas(int nWorkAreas, LPRECT lpRect) { AfxSend(LVM_SETWORKAREAS, nWorkAreas, lpRect); }
    BOOL GetWorkAreas(int nWorkAreas, LPRECT prc) const;
    UINT GetNumberOfWorkAreas() const;

    // Items
    BOOL GetItem(LVITEM* pItem) const { return AfxSend<BOOL>(LVM_GETITEM, 0, pItem); }
    BOOL SetItem(const LVITEM* pItem) { return AfxSend<BOOL>(LVM_SETITEM, 0, pItem); }
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                 UINT nStateMask, LPARAM lParam);
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                 UINT nStateMask, LPARAM lParam, int nIndent);
    UINT GetItemState(int nItem, UINT nMask) const { return AfxSend<UINT>(LVM_GETITEMSTATE, nItem, nMask); }
    BOOL SetItemState(int nItem, LVITEM* pItem) { return AfxSend<BOOL>(LVM_SETITEMSTATE, nItem, pItem); }
    BOOL SetItemState(int nItem, UINT nState, UINT nMask);
    CString GetItemText(int nItem, int nSubItem) const;
    int GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const;
    BOOL SetItemText(int nItem, int nSubItem, LPCTSTR lpszText);
    DWORD_PTR GetItemData(int nItem) const;
    BOOL SetItemData(int nItem, DWORD_PTR dwData);
    BOOL GetItemPosition(int nItem, LPPOINT lpPoint) const;
    BOOL SetItemPosition(int nItem, POINT pt);
    BOOL GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const;
    BOOL GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref);
    BOOL GetCheck(int nItem) const;
    BOOL SetCheck(int nItem, BOOL fCheck = TRUE);
    /// -1 before the first item; LVNI_ flags.
    int GetNextItem(int nItem, int nFlags) const;
    UINT GetSelectedCount() const { return AfxSend<UINT>(LVM_GETSELECTEDCOUNT); }
    int GetSelectionMark() const { return AfxSend<int>(LVM_GETSELECTIONMARK); }
    int SetSelectionMark(int iIndex) { return AfxSend<int>(LVM_SETSELECTIONMARK, 0, iIndex); }
    int GetHotItem() const { return AfxSend<int>(LVM_GETHOTITEM); }
    int SetHotItem(int iIndex) { return AfxSend<int>(LVM_SETHOTITEM, iIndex); }
    HCURSOR GetHotCursor() { return AfxSend<HCURSOR>(LVM_GETHOTCURSOR); }
    HCURSOR SetHotCursor(HCURSOR hc) { return AfxSend<HCURSOR>(LVM_SETHOTCURSOR, 0, hc); }
    /// A loop over the selection: POSITION pos = GetFirstSelectedItemPosition(); while (pos) GetNext...(pos).
    POSITION GetFirstSelectedItemPosition() const;
    int GetNextSelectedItem(POSITION& pos) const;

    // Groups, tiles, insertion mark: for the themed common controls, FALSE or -1 without them
    LRESULT EnableGroupView(BOOL fEnable) { return AfxSend<LRESULT>(LVM_ENABLEGROUPVIEW, fEnable); }
    BOOL IsGroupViewEnabled() const { return AfxSend<BOOL>(LVM_ISGROUPVIEWENABLED); }
    LRESULT InsertGroup(int index, PLVGROUP pgrp) { return AfxSend<LRESULT>(LVM_INSERTGROUP, index, pgrp); }
    LRESULT InsertGroupSorted(PLVINSERTGROUPSORTED p) { return AfxSend<LRESULT>(LVM_INSERTGROUPSORTED, p); }
    int GetGroupInfo(int iGroupId, PLVGROUP pgrp) const
    {
        return AfxSend<int>(LVM_GETGROUPINFO, iGroupId, pgrp);
    }
    int SetGroupInfo(int iGroupId, PLVGROUP pgrp) { return AfxSend<int>(LVM_SETGROUPINFO, iGroupId, pgrp); }
    void GetGroupMetrics(PLVGROUPMETRICS pMetrics) const { AfxSend(LVM_GETGROUPMETRICS, 0, pMetrics); }
    void SetGroupMetrics(PLVGROUPMETRICS pMetrics) { AfxSend(LVM_SETGROUPMETRICS, 0, pMetrics); }
    BOOL HasGroup(int iGroupId) const { return AfxSend<BOOL>(LVM_HASGROUP, iGroupId); }
    LRESULT MoveGroup(int iGroupId, int toIndex)
    {
        return AfxSend<LRESULT>(LVM_MOVEGROUP, iGroupId, toIndex);
    }
    void MoveItemToGroup(int idItem, int idGroupTo) { AfxSend(LVM_MOVEITEMTOGROUP, idItem, idGroupTo); }
    LRESULT RemoveGroup(int iGroupId) { return AfxSend<LRESULT>(LVM_REMOVEGROUP, iGroupId); }
    void RemoveAllGroups() { AfxSend(LVM_REMOVEALLGROUPS); }
    BOOL SortGroups(PFNLVGROUPCOMPARE pfn, LPVOID plv) { return AfxSend<BOOL>(LVM_SORTGROUPS, pfn, plv); }
    BOOL GetTileInfo(PLVTILEINFO plvti) const { return AfxSend<BOOL>(LVM_GETTILEINFO, 0, plvti); }
    BOOL SetTileInfo(PLVTILEINFO pti) { return AfxSend<BOOL>(LVM_SETTILEINFO, 0, pti); }
    BOOL GetTileViewInfo(PLVTILEVIEWINFO ptvi) const { return AfxSend<BOOL>(LVM_GETTILEVIEWINFO, 0, ptvi); }
    BOOL SetTileViewInfo(PLVTILEVIEWINFO ptvi) { return AfxSend<BOOL>(LVM_SETTILEVIEWINFO, 0, ptvi); }
    BOOL GetInsertMark(LPLVINSERTMARK plvim) const { return AfxSend<BOOL>(LVM_GETINSERTMARK, 0, plvim); }
    BOOL SetInsertMark(LPLVINSERTMARK lvim) { return AfxSend<BOOL>(LVM_SETINSERTMARK, 0, lvim); }
    COLORREF GetInsertMarkColor() const { return AfxSend<COLORREF>(LVM_GETINSERTMARKCOLOR); }
    COLORREF SetInsertMarkColor(COLORREF clr) { return AfxSend<COLORREF>(LVM_SETINSERTMARKCOLOR, 0, clr); }
    int GetInsertMarkRect(LPRECT pRect) const { return AfxSend<int>(LVM_GETINSERTMARKRECT, 0, pRect); }
    int InsertMarkHitTest(LPPOINT pPoint, LPLVINSERTMARK lvim) const;
    COLORREF GetOutlineColor() const { return AfxSend<COLORREF>(LVM_GETOUTLINECOLOR); }
    COLORREF SetOutlineColor(COLORREF color) { return AfxSend<COLORREF>(LVM_SETOUTLINECOLOR, 0, color); }
    BOOL SetInfoTip(PLVSETINFOTIP plvInfoTip) { return AfxSend<BOOL>(LVM_SETINFOTIP, 0, plvInfoTip); }
    UINT MapIndexToID(UINT index) const { return AfxSend<UINT>(LVM_MAPINDEXTOID, index); }
    UINT MapIDToIndex(UINT id) const { return AfxSend<UINT>(LVM_MAPIDTOINDEX, id); }

    // Columns
    UINT GetSelectedColumn() const { return AfxSend<UINT>(LVM_GETSELECTEDCOLUMN); }
    LRESULT SetSelectedColumn(int iCol) { return AfxSend<LRESULT>(LVM_SETSELECTEDCOLUMN, iCol); }
    BOOL GetColumn(int nCol, LVCOLUMN* pColumn) const { return AfxSend<BOOL>(LVM_GETCOLUMN, nCol, pColumn); }
    BOOL SetColumn(int nCol, const LVCOLUMN* pColumn) { return AfxSend<BOOL>(LVM_SETCOLUMN, nCol, pColumn); }
    int GetColumnWidth(int nCol) const { return AfxSend<int>(LVM_GETCOLUMNWIDTH, nCol); }
    BOOL SetColumnWidth(int nCol, int cx);
    int InsertColumn(int nCol, const LVCOLUMN* pColumn);
    /// `nWidth` -1 leaves the width, `nSubItem` -1 the sub-item unset.
    int InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat = LVCFMT_LEFT, int nWidth = -1,
                     int nSubItem = -1);
    BOOL DeleteColumn(int nCol) { return AfxSend<BOOL>(LVM_DELETECOLUMN, nCol); }
    BOOL GetColumnOrderArray(LPINT piArray, int iCount = -1);
    BOOL SetColumnOrderArray(int iCount, LPINT piArray);

    // Contents
    int InsertItem(const LVITEM* pItem) { return AfxSend<int>(LVM_INSERTITEM, 0, pItem); }
    int InsertItem(int nItem, LPCTSTR lpszItem) { return InsertItem(LVIF_TEXT, nItem, lpszItem, 0, 0, 0, 0); }
    int InsertItem(int nItem, LPCTSTR lpszItem, int nImage);
    int InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask, int nImage,
                   LPARAM lParam);
    BOOL DeleteItem(int nItem) { return AfxSend<BOOL>(LVM_DELETEITEM, nItem); }
    BOOL DeleteAllItems() { return AfxSend<BOOL>(LVM_DELETEALLITEMS); }
    int FindItem(LVFINDINFO* pFindInfo, int nStart = -1) const;
    BOOL SortItems(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData);
    /// As SortItems, but the function compares indices and not item data.
    BOOL SortItemsEx(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData);
    int HitTest(LVHITTESTINFO* pHitTestInfo) const { return AfxSend<int>(LVM_HITTEST, 0, pHitTestInfo); }
    int HitTest(CPoint pt, UINT* pFlags = nullptr) const;
    int SubItemHitTest(LPLVHITTESTINFO pInfo) { return AfxSend<int>(LVM_SUBITEMHITTEST, 0, pInfo); }

    // Actions
    BOOL EnsureVisible(int nItem, BOOL bPartialOK);
    BOOL Scroll(CSize size) { return AfxSend<BOOL>(LVM_SCROLL, size.cx, size.cy); }
    BOOL RedrawItems(int nFirst, int nLast) { return AfxSend<BOOL>(LVM_REDRAWITEMS, nFirst, nLast); }
    BOOL Arrange(UINT nCode) { return AfxSend<BOOL>(LVM_ARRANGE, nCode); }
    CEdit* EditLabel(int nItem);
    void CancelEditLabel() { AfxSend(LVM_CANCELEDITLABEL); }
    BOOL Update(int nItem) { return AfxSend<BOOL>(LVM_UPDATE, nItem); }
    /// The caller destroys the list.
    CImageList* CreateDragImage(int nItem, LPPOINT lpPoint);
    DWORD ApproximateViewRect(CSize sz = CSize(-1, -1), int iCount = -1) const;

    /// Called for LVS_OWNERDRAWFIXED, which must override it.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;

    afx_msg void OnDestroy();

    DECLARE_MESSAGE_MAP()
};

#include <afxcmn_toolbar.h>
