#pragma once
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
    ~CImageList() override;
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
    BOOL Create(CImageList* pImageList);
    BOOL DeleteImageList();

    int GetImageCount() const;
    BOOL SetImageCount(UINT uNewCount);
    COLORREF SetBkColor(COLORREF cr);
    COLORREF GetBkColor() const;
    BOOL GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const;

    /// The pictures are copied; each answers the index of the first new one, or -1.
    int Add(CBitmap* pbmImage, CBitmap* pbmMask);
    int Add(CBitmap* pbmImage, COLORREF crMask);
    int Add(HICON hIcon);
    BOOL Remove(int nImage);
    BOOL Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask);
    int Replace(int nImage, HICON hIcon);
    /// The caller destroys the icon.
    HICON ExtractIcon(int nImage);
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
    static void PASCAL EndDrag();
    static BOOL PASCAL DragMove(CPoint pt);
    BOOL SetDragCursorImage(int nDrag, CPoint ptHotSpot);
    static BOOL PASCAL DragShowNolock(BOOL bShow);
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
    ~CSpinButtonCtrl() override;

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    BOOL SetAccel(int nAccel, UDACCEL* pAccel);
    UINT GetAccel(int nAccel, UDACCEL* pAccel) const;
    /// 10 or 16; answers the base before.
    int SetBase(int nBase);
    UINT GetBase() const;
    CWnd* SetBuddy(CWnd* pWndBuddy);
    CWnd* GetBuddy() const;
    /// 16-bit position; GetPos answers it in the low word, and in the high word nonzero if the buddy's text
    /// is no number within the range.
    int SetPos(int nPos);
    int GetPos() const;
    int SetPos32(int nPos);
    int GetPos32(LPBOOL lpbError = nullptr) const;
    void SetRange(short nLower, short nUpper);
    void SetRange32(int nLower, int nUpper);
    /// The upper bound in the low word, the lower one in the high word.
    DWORD GetRange() const;
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
    ~CSliderCtrl() override;

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetLineSize() const;
    int SetLineSize(int nSize);
    int GetPageSize() const;
    int SetPageSize(int nSize);
    int GetRangeMax() const;
    int GetRangeMin() const;
    void SetRangeMin(int nMin, BOOL bRedraw = FALSE);
    void SetRangeMax(int nMax, BOOL bRedraw = FALSE);
    void GetRange(int& nMin, int& nMax) const;
    void SetRange(int nMin, int nMax, BOOL bRedraw = FALSE);
    void GetSelection(int& nMin, int& nMax) const;
    void SetSelection(int nMin, int nMax);
    int GetPos() const;
    void SetPos(int nPos);
    void GetThumbRect(LPRECT lprc) const;
    void GetChannelRect(LPRECT lprc) const;
    int GetThumbLength() const;
    void SetThumbLength(int nLength);
    UINT GetNumTics() const;
    DWORD* GetTicArray() const;
    int GetTic(int nTic) const;
    BOOL SetTic(int nTic);
    void SetTicFreq(int nFreq);
    int GetTicPos(int nTic) const;
    /// `fLocation` is TRUE for the left or upper end, FALSE for the right or lower one.
    CWnd* SetBuddy(CWnd* pWndBuddy, BOOL fLocation = TRUE);
    CWnd* GetBuddy(BOOL fLocation = TRUE) const;
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pWndTip);
    int SetTipSide(int nLocation);

    void ClearSel(BOOL bRedraw = FALSE);
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
    ~CProgressCtrl() override;

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    void SetRange(short nLower, short nUpper);
    void SetRange32(int nLower, int nUpper);
    void GetRange(int& nLower, int& nUpper) const;
    int GetPos() const;
    /// The setters answer the position, or step, before.
    int SetPos(int nPos);
    int OffsetPos(int nPos);
    int SetStep(int nStep);
    int StepIt();
    COLORREF SetBkColor(COLORREF clrNew);
    COLORREF SetBarColor(COLORREF clrBar);
    /// Runs the bar without an end, for PBS_MARQUEE; `nInterval` milliseconds between steps.
    BOOL SetMarquee(BOOL fMarqueeMode, int nInterval);
};

class AFX_CORE_CLASS CHotKeyCtrl : public CWnd
{
    DECLARE_DYNAMIC(CHotKeyCtrl)
    using CWnd::Create;
    using CWnd::CreateEx;

public:
    CHotKeyCtrl();
    ~CHotKeyCtrl() override;

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// Virtual key in the low byte, HOTKEYF_ modifiers in the high byte.
    void SetHotKey(WORD wVirtualKeyCode, WORD wModifiers);
    DWORD GetHotKey() const;
    void GetHotKey(WORD& wVirtualKeyCode, WORD& wModifiers) const;
    static CString GetKeyName(UINT vk, BOOL fExtended);
    CString GetHotKeyName() const;
    void SetRules(WORD wInvalidComb, WORD wModifiers);
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
    ~CToolTipCtrl() override;

    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0);
    virtual BOOL CreateEx(CWnd* pParentWnd, DWORD dwStyle = 0, DWORD dwStyleEx = 0);

    void GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    BOOL GetToolInfo(CToolInfo& ToolInfo, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    void SetToolInfo(LPTOOLINFO lpToolInfo);
    BOOL GetCurrentTool(LPTOOLINFO lpToolInfo) const;
    int GetToolCount() const;
    void SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect);
    int GetDelayTime(DWORD dwDuration) const;
    void SetDelayTime(DWORD dwDuration, int iTime);
    void SetDelayTime(UINT nDelay);
    void GetMargin(LPRECT lprc) const;
    void SetMargin(LPRECT lprc);
    int GetMaxTipWidth() const;
    int SetMaxTipWidth(int iWidth);
    COLORREF GetTipBkColor() const;
    void SetTipBkColor(COLORREF clr);
    COLORREF GetTipTextColor() const;
    void SetTipTextColor(COLORREF clr);
    BOOL SetTitle(UINT uIcon, LPCTSTR lpstrTitle);
    CSize GetBubbleSize(LPTOOLINFO lpToolInfo) const;
    BOOL AdjustRect(LPRECT lprc, BOOL bLarger = TRUE);

    void Activate(BOOL bActivate);
    /// A string of identifier `nIDText`, or a text; LPSTR_TEXTCALLBACK asks the window by TTN_NEEDTEXT.
    BOOL AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool = nullptr, UINT_PTR nIDTool = 0);
    BOOL AddTool(CWnd* pWnd, LPCTSTR lpszText = LPSTR_TEXTCALLBACK, LPCRECT lpRectTool = nullptr,
                 UINT_PTR nIDTool = 0);
    void DelTool(CWnd* pWnd, UINT_PTR nIDTool = 0);
    BOOL HitTest(CWnd* pWnd, CPoint pt, LPTOOLINFO lpToolInfo) const;
    void RelayEvent(LPMSG lpMsg);
    void UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void Update();
    void Pop();
    BOOL Popup();

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
    ~CHeaderCtrl() override;

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetItemCount() const;
    BOOL GetItem(int nPos, HDITEM* pHeaderItem) const;
    BOOL SetItem(int nPos, HDITEM* pHeaderItem);
    CImageList* SetImageList(CImageList* pImageList);
    CImageList* GetImageList() const;
    BOOL GetOrderArray(LPINT piArray, int iCount = -1);
    BOOL SetOrderArray(int iCount, LPINT piArray);
    int OrderToIndex(int nOrder) const;
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const;
    int SetHotDivider(CPoint pt);
    int SetHotDivider(int nIndex);
    /// The caller destroys the list.
    CImageList* CreateDragImage(int nIndex);
    int GetBitmapMargin() const;
    int SetBitmapMargin(int nWidth);
    int SetFilterChangeTimeout(DWORD dwTimeOut);
    int EditFilter(int iColumn, BOOL bDiscardChanges);
    int ClearFilter(int iColumn);
    int ClearAllFilters();

    int InsertItem(int nPos, HDITEM* phdi);
    BOOL DeleteItem(int nPos);
    BOOL Layout(HDLAYOUT* pHeaderLayout);
    int HitTest(LPHDHITTESTINFO phdhti);

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
    ~CTabCtrl() override;

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    CImageList* GetImageList() const;
    CImageList* SetImageList(CImageList* pImageList);
    int GetItemCount() const;
    BOOL GetItem(int nItem, TCITEM* pTabCtrlItem) const;
    BOOL SetItem(int nItem, TCITEM* pTabCtrlItem);
    BOOL SetItemExtra(int nBytes);
    BOOL GetItemRect(int nItem, LPRECT lpRect) const;
    int GetCurSel() const;
    int SetCurSel(int nItem);
    void SetCurFocus(int nItem);
    int GetCurFocus() const;
    CSize SetItemSize(CSize size);
    void SetPadding(CSize size);
    int GetRowCount() const;
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pWndTip);
    int SetMinTabWidth(int cx);
    DWORD GetExtendedStyle();
    DWORD SetExtendedStyle(DWORD dwNewStyle, DWORD dwExMask = 0);
    BOOL GetItemState(int nItem, DWORD dwMask, DWORD& dwState) const;
    BOOL SetItemState(int nItem, DWORD dwMask, DWORD dwState);

    LONG InsertItem(int nItem, TCITEM* pTabCtrlItem);
    LONG InsertItem(int nItem, LPCTSTR lpszItem);
    LONG InsertItem(int nItem, LPCTSTR lpszItem, int nImage);
    LONG InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam);
    BOOL DeleteItem(int nItem);
    BOOL DeleteAllItems();
    /// Between the rectangle of the whole control (`bLarger`) and that of its display area.
    void AdjustRect(BOOL bLarger, LPRECT lpRect);
    void RemoveImage(int nImage);
    int HitTest(TCHITTESTINFO* pHitTestInfo) const;
    void DeselectAll(BOOL fExcludeFocus);
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
    ~CStatusBarCtrl() override;

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// `nType` receives the SBT_ drawing style.
    BOOL SetText(LPCTSTR lpszText, int nPane, int nType);
    CString GetText(int nPane, int* pType = nullptr) const;
    int GetText(LPCTSTR lpszText, int nPane, int* pType = nullptr) const;
    int GetTextLength(int nPane, int* pType = nullptr) const;
    /// Right edges in client coordinates; -1 reaches to the end.
    BOOL SetParts(int nParts, int* pWidths);
    int GetParts(int nParts, int* pParts) const;
    BOOL GetBorders(int* pBorders) const;
    BOOL GetBorders(int& nHorz, int& nVert, int& nSpacing) const;
    void SetMinHeight(int nMin);
    BOOL SetSimple(BOOL bSimple = TRUE);
    BOOL IsSimple() const;
    BOOL GetRect(int nPane, LPRECT lpRect) const;
    COLORREF SetBkColor(COLORREF cr);
    BOOL SetIcon(int nPane, HICON hIcon);
    HICON GetIcon(int iPart) const;
    CString GetTipText(int nPane) const;
    void SetTipText(int nPane, LPCTSTR pszTipText);

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
    ~CTreeCtrl() override;

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // The tree as a whole
    UINT GetCount() const;
    UINT GetIndent() const;
    void SetIndent(UINT nIndent);
    /// TVSIL_NORMAL or TVSIL_STATE.
    CImageList* GetImageList(UINT nImageList) const;
    CImageList* SetImageList(CImageList* pImageList, int nImageListType);
    UINT GetVisibleCount() const;
    CToolTipCtrl* GetToolTips() const;
    CToolTipCtrl* SetToolTips(CToolTipCtrl* pWndTip);
    COLORREF GetBkColor() const;
    COLORREF SetBkColor(COLORREF clr);
    SHORT GetItemHeight() const;
    SHORT SetItemHeight(SHORT cyHeight);
    COLORREF GetTextColor() const;
    COLORREF SetTextColor(COLORREF clr);
    COLORREF GetInsertMarkColor() const;
    COLORREF SetInsertMarkColor(COLORREF clrNew);
    COLORREF GetLineColor() const;
    COLORREF SetLineColor(COLORREF clrNew = CLR_DEFAULT);
    UINT GetScrollTime() const;
    UINT SetScrollTime(UINT nScrollTime);
    CEdit* GetEditControl() const;

    // Walking
    HTREEITEM GetNextItem(HTREEITEM hItem, UINT nCode) const;
    HTREEITEM GetChildItem(HTREEITEM hItem) const;
    HTREEITEM GetNextSiblingItem(HTREEITEM hItem) const;
    HTREEITEM GetPrevSiblingItem(HTREEITEM hItem) const;
    HTREEITEM GetParentItem(HTREEITEM hItem) const;
    HTREEITEM GetFirstVisibleItem() const;
    HTREEITEM GetNextVisibleItem(HTREEITEM hItem) const;
    HTREEITEM GetPrevVisibleItem(HTREEITEM hItem) const;
    HTREEITEM GetLastVisibleItem() const;
    HTREEITEM GetSelectedItem() const;
    HTREEITEM GetDropHilightItem() const;
    HTREEITEM GetRootItem() const;

    // Items
    BOOL GetItem(TVITEM* pItem) const;
    CString GetItemText(HTREEITEM hItem) const;
    BOOL GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) const;
    UINT GetItemState(HTREEITEM hItem, UINT nStateMask) const;
    DWORD_PTR GetItemData(HTREEITEM hItem) const;
    BOOL SetItem(TVITEM* pItem);
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

    // Contents
    HTREEITEM InsertItem(LPTVINSERTSTRUCT lpInsertStruct);
    HTREEITEM InsertItem(UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                         UINT nStateMask, LPARAM lParam, HTREEITEM hParent, HTREEITEM hInsertAfter);
    HTREEITEM InsertItem(LPCTSTR lpszItem, HTREEITEM hParent = TVI_ROOT, HTREEITEM hInsertAfter = TVI_LAST);
    HTREEITEM InsertItem(LPCTSTR lpszItem, int nImage, int nSelectedImage, HTREEITEM hParent = TVI_ROOT,
                         HTREEITEM hInsertAfter = TVI_LAST);
    BOOL DeleteItem(HTREEITEM hItem);
    BOOL DeleteAllItems();
    BOOL SortChildren(HTREEITEM hItem);
    BOOL SortChildrenCB(LPTVSORTCB pSort);

    // Actions
    BOOL Expand(HTREEITEM hItem, UINT nCode);
    BOOL Select(HTREEITEM hItem, UINT nCode);
    BOOL SelectItem(HTREEITEM hItem);
    BOOL SelectDropTarget(HTREEITEM hItem);
    BOOL SelectSetFirstVisible(HTREEITEM hItem);
    CEdit* EditLabel(HTREEITEM hItem);
    BOOL EndEditLabelNow(BOOL fCancel);
    HTREEITEM HitTest(CPoint pt, UINT* pFlags = nullptr) const;
    HTREEITEM HitTest(TVHITTESTINFO* pHitTestInfo) const;
    BOOL EnsureVisible(HTREEITEM hItem);
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
    ~CListCtrl() override;

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // The list as a whole
    COLORREF GetBkColor() const;
    BOOL SetBkColor(COLORREF cr);
    COLORREF GetTextColor() const;
    BOOL SetTextColor(COLORREF cr);
    COLORREF GetTextBkColor() const;
    BOOL SetTextBkColor(COLORREF cr);
    /// LVSIL_NORMAL, LVSIL_SMALL or LVSIL_STATE. SetImageList answers the list before.
    CImageList* GetImageList(int nImageList) const;
    CImageList* SetImageList(CImageList* pImageList, int nImageListType);
    int GetItemCount() const;
    void SetItemCount(int nItems);
    BOOL SetItemCountEx(int iCount, DWORD dwFlags = LVSICF_NOINVALIDATEALL);
    UINT GetCallbackMask() const;
    BOOL SetCallbackMask(UINT nMask);
    DWORD GetExtendedStyle();
    DWORD SetExtendedStyle(DWORD dwNewStyle);
    BOOL GetViewRect(LPRECT lpRect) const;
    BOOL GetOrigin(LPPOINT lpPoint) const;
    int GetTopIndex() const;
    int GetCountPerPage() const;
    BOOL GetItemSpacing(BOOL fSmall, int* pnHorzSpacing, int* pnVertSpacing) const;
    CSize SetIconSpacing(int cx, int cy);
    CSize SetIconSpacing(CSize size);
    CHeaderCtrl* GetHeaderCtrl() const;
    CEdit* GetEditControl() const;
    CToolTipCtrl* GetToolTips() const;
    CToolTipCtrl* SetToolTips(CToolTipCtrl* pWndTip);
    BOOL GetBkImage(LVBKIMAGE* plvbkImage) const;
    BOOL SetBkImage(LVBKIMAGE* plvbkImage);
    BOOL SetBkImage(HBITMAP hbm, BOOL fTile = TRUE, int xOffsetPercent = 0, int yOffsetPercent = 0);
    BOOL SetBkImage(LPTSTR pszUrl, BOOL fTile = TRUE, int xOffsetPercent = 0, int yOffsetPercent = 0);
    DWORD GetView() const;
    DWORD SetView(int iView);
    int GetStringWidth(LPCTSTR lpsz) const;
    DWORD GetHoverTime() const;
    DWORD SetHoverTime(DWORD dwHoverTime = static_cast<DWORD>(-1));
    void SetWorkAreas(int nWorkAreas, LPRECT lpRect);
    BOOL GetWorkAreas(int nWorkAreas, LPRECT prc) const;
    UINT GetNumberOfWorkAreas() const;

    // Items
    BOOL GetItem(LVITEM* pItem) const;
    BOOL SetItem(const LVITEM* pItem);
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                 UINT nStateMask, LPARAM lParam);
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                 UINT nStateMask, LPARAM lParam, int nIndent);
    UINT GetItemState(int nItem, UINT nMask) const;
    BOOL SetItemState(int nItem, LVITEM* pItem);
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
    UINT GetSelectedCount() const;
    int GetSelectionMark() const;
    int SetSelectionMark(int iIndex);
    int GetHotItem() const;
    int SetHotItem(int iIndex);
    HCURSOR GetHotCursor();
    HCURSOR SetHotCursor(HCURSOR hc);
    /// A loop over the selection: POSITION pos = GetFirstSelectedItemPosition(); while (pos) GetNext...(pos).
    POSITION GetFirstSelectedItemPosition() const;
    int GetNextSelectedItem(POSITION& pos) const;

    // Columns
    BOOL GetColumn(int nCol, LVCOLUMN* pColumn) const;
    BOOL SetColumn(int nCol, const LVCOLUMN* pColumn);
    int GetColumnWidth(int nCol) const;
    BOOL SetColumnWidth(int nCol, int cx);
    int InsertColumn(int nCol, const LVCOLUMN* pColumn);
    /// `nWidth` -1 leaves the width, `nSubItem` -1 the sub-item unset.
    int InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat = LVCFMT_LEFT, int nWidth = -1,
                     int nSubItem = -1);
    BOOL DeleteColumn(int nCol);
    BOOL GetColumnOrderArray(LPINT piArray, int iCount = -1);
    BOOL SetColumnOrderArray(int iCount, LPINT piArray);

    // Contents
    int InsertItem(const LVITEM* pItem);
    int InsertItem(int nItem, LPCTSTR lpszItem);
    int InsertItem(int nItem, LPCTSTR lpszItem, int nImage);
    int InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask, int nImage,
                   LPARAM lParam);
    BOOL DeleteItem(int nItem);
    BOOL DeleteAllItems();
    int FindItem(LVFINDINFO* pFindInfo, int nStart = -1) const;
    BOOL SortItems(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData);
    int HitTest(LVHITTESTINFO* pHitTestInfo) const;
    int HitTest(CPoint pt, UINT* pFlags = nullptr) const;
    int SubItemHitTest(LPLVHITTESTINFO pInfo);

    // Actions
    BOOL EnsureVisible(int nItem, BOOL bPartialOK);
    BOOL Scroll(CSize size);
    BOOL RedrawItems(int nFirst, int nLast);
    BOOL Arrange(UINT nCode);
    CEdit* EditLabel(int nItem);
    BOOL Update(int nItem);
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
