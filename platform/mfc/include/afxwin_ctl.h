#pragma once
// The classic controls: static, button, list box, combo box, edit and scroll bar.
//
//     m_name.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER, CRect(10, 10, 110, 32), this, IDC_NAME);
//     m_name.SetLimitText(30);
//     m_name.SetWindowText(L"beam");
//
// Members send the control's message of the same name; what they answer is what the message answers. The
// window must exist. An object's destructor destroys the control's window, if it is still there.
//
// Owner-drawn controls: the parent sends WM_DRAWITEM, WM_MEASUREITEM, WM_COMPAREITEM, WM_DELETEITEM,
// WM_VKEYTOITEM and WM_CHARTOITEM back to the control, which calls the virtual function of that name. A class
// that draws itself overrides these and needs no cooperation from its parent.
//
// Indices count from 0; LB_ERR and CB_ERR (-1) say "none" or "failed", LB_ERRSPACE and CB_ERRSPACE (-2)
// "out of memory".

#include <afxwin_wnd.h>

/// Text, a picture or a frame that takes no input.
class AFX_CORE_CLASS CStatic : public CWnd
{
    DECLARE_DYNAMIC(CStatic)
    using CWnd::Create;

public:
    CStatic();
    ~CStatic() override;

    virtual BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID = 0xffff);

    /// The setters answer what the control showed before; neither they nor the control take ownership.
    HICON SetIcon(HICON hIcon);
    HICON GetIcon() const;
    HENHMETAFILE SetEnhMetaFile(HENHMETAFILE hMetaFile);
    HENHMETAFILE GetEnhMetaFile() const;
    HBITMAP SetBitmap(HBITMAP hBitmap);
    HBITMAP GetBitmap() const;
    HCURSOR SetCursor(HCURSOR hCursor);
    HCURSOR GetCursor();

    /// Called for SS_OWNERDRAW, which must override it.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;
};

/// A push button, check box, radio button or group frame.
class AFX_CORE_CLASS CButton : public CWnd
{
    DECLARE_DYNAMIC(CButton)
    using CWnd::Create;

public:
    CButton();
    ~CButton() override;

    virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// BST_PUSHED, BST_FOCUS, and the check state in the two lowest bits.
    UINT GetState() const;
    void SetState(BOOL bHighlight);
    int GetCheck() const;
    void SetCheck(int nCheck);
    /// The BS_ style without the other bits of the window style.
    UINT GetButtonStyle() const;
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE);
    HICON SetIcon(HICON hIcon);
    HICON GetIcon() const;
    HBITMAP SetBitmap(HBITMAP hBitmap);
    HBITMAP GetBitmap() const;
    HCURSOR SetCursor(HCURSOR hCursor);
    HCURSOR GetCursor();

    /// These need the themed common controls and answer FALSE without them.
    BOOL GetIdealSize(SIZE* psize) const;
    BOOL SetImageList(PBUTTON_IMAGELIST pbuttonImagelist);
    BOOL GetImageList(PBUTTON_IMAGELIST pbuttonImagelist) const;
    BOOL SetTextMargin(LPRECT pmargin);
    BOOL GetTextMargin(LPRECT pmargin) const;

    /// Called for BS_OWNERDRAW, which must override it.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;
};

class AFX_CORE_CLASS CListBox : public CWnd
{
    DECLARE_DYNAMIC(CListBox)
    using CWnd::Create;

public:
    CListBox();
    ~CListBox() override;

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // The list as a whole
    int GetCount() const;
    int GetHorizontalExtent() const;
    void SetHorizontalExtent(int cxExtent);
    int GetTopIndex() const;
    int SetTopIndex(int nIndex);
    LCID GetLocale() const;
    LCID SetLocale(LCID nNewLocale);
    int InitStorage(int nItems, UINT nBytes);
    /// The item nearest to a point; `bOutside` says whether the point is outside the client area.
    UINT ItemFromPoint(CPoint pt, BOOL& bOutside) const;
    DWORD GetListBoxInfo() const;
    void SetColumnWidth(int cxWidth);
    /// Tab stops in dialog units: every two, every `cxEachStop`, or each by itself.
    void SetTabStops();
    BOOL SetTabStops(const int& cxEachStop);
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops);

    // Single selection
    int GetCurSel() const;
    int SetCurSel(int nSelect);

    // Multiple selection
    int GetSel(int nIndex) const;
    int SetSel(int nIndex, BOOL bSelect = TRUE);
    int GetSelCount() const;
    int GetSelItems(int nMaxItems, LPINT rgIndex) const;
    void SetAnchorIndex(int nIndex);
    int GetAnchorIndex() const;
    int SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem);
    int GetCaretIndex() const;
    /// Scrolls until the item is visible in part, with `bScroll` FALSE until it is visible as a whole.
    int SetCaretIndex(int nIndex, BOOL bScroll = TRUE);

    // Items
    DWORD_PTR GetItemData(int nIndex) const;
    int SetItemData(int nIndex, DWORD_PTR dwItemData);
    void* GetItemDataPtr(int nIndex) const;
    int SetItemDataPtr(int nIndex, void* pData);
    int GetItemRect(int nIndex, LPRECT lpRect) const;
    int GetText(int nIndex, LPTSTR lpszBuffer) const;
    void GetText(int nIndex, CString& rString) const;
    int GetTextLen(int nIndex) const;
    int SetItemHeight(int nIndex, UINT cyItemHeight);
    int GetItemHeight(int nIndex) const;

    // Contents
    int AddString(LPCTSTR lpszItem);
    int DeleteString(UINT nIndex);
    int InsertString(int nIndex, LPCTSTR lpszItem);
    void ResetContent();
    int Dir(UINT attr, LPCTSTR lpszWildCard);
    /// A search starts after `nStartAfter`, -1 for the whole list, and goes round.
    int FindString(int nStartAfter, LPCTSTR lpszItem) const;
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const;
    int SelectString(int nStartAfter, LPCTSTR lpszItem);

    /// DrawItem, MeasureItem and CompareItem must be overridden by owner-drawn (and sorted) lists. The key
    /// functions answer -1 for the default action, -2 for none, or an item to act on.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);
    virtual int VKeyToItem(UINT nKey, UINT nIndex);
    virtual int CharToItem(UINT nKey, UINT nIndex);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;
};

class AFX_CORE_CLASS CComboBox : public CWnd
{
    DECLARE_DYNAMIC(CComboBox)
    using CWnd::Create;

public:
    CComboBox();
    ~CComboBox() override;

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // The list as a whole
    int GetCount() const;
    int GetCurSel() const;
    int SetCurSel(int nSelect);
    LCID GetLocale() const;
    LCID SetLocale(LCID nNewLocale);
    int GetTopIndex() const;
    int SetTopIndex(int nIndex);
    int InitStorage(int nItems, UINT nBytes);
    void SetHorizontalExtent(UINT nExtent);
    UINT GetHorizontalExtent() const;
    int SetDroppedWidth(UINT nWidth);
    int GetDroppedWidth() const;
    BOOL GetComboBoxInfo(PCOMBOBOXINFO pcbi) const;
    BOOL SetMinVisibleItems(int iMinVisible);
    int GetMinVisible() const;

    // The edit part
    DWORD GetEditSel() const;
    BOOL LimitText(int nMaxChars);
    BOOL SetEditSel(int nStartChar, int nEndChar);
    BOOL SetCueBanner(LPCTSTR lpcwText);
    BOOL GetCueBanner(LPTSTR lpcwText, int cchText) const;
    void Clear();
    void Copy();
    void Cut();
    void Paste();

    // Items
    DWORD_PTR GetItemData(int nIndex) const;
    int SetItemData(int nIndex, DWORD_PTR dwItemData);
    void* GetItemDataPtr(int nIndex) const;
    int SetItemDataPtr(int nIndex, void* pData);
    int GetLBText(int nIndex, LPTSTR lpszText) const;
    void GetLBText(int nIndex, CString& rString) const;
    int GetLBTextLen(int nIndex) const;
    /// Index -1 is the selection field.
    int SetItemHeight(int nIndex, UINT cyItemHeight);
    int GetItemHeight(int nIndex) const;

    // Dropping down
    int SetExtendedUI(BOOL bExtended = TRUE);
    BOOL GetExtendedUI() const;
    /// The list's rectangle on the screen.
    void GetDroppedControlRect(LPRECT lprect) const;
    BOOL GetDroppedState() const;
    void ShowDropDown(BOOL bShowIt = TRUE);

    // Contents
    int AddString(LPCTSTR lpszString);
    int DeleteString(UINT nIndex);
    int InsertString(int nIndex, LPCTSTR lpszString);
    void ResetContent();
    int Dir(UINT attr, LPCTSTR lpszWildCard);
    int FindString(int nStartAfter, LPCTSTR lpszString) const;
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const;
    int SelectString(int nStartAfter, LPCTSTR lpszString);

    /// DrawItem, MeasureItem and CompareItem must be overridden by owner-drawn (and sorted) boxes.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override;
};

class AFX_CORE_CLASS CEdit : public CWnd
{
    DECLARE_DYNAMIC(CEdit)
    using CWnd::Create;

public:
    CEdit();
    ~CEdit() override;

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    BOOL CanUndo() const;
    int GetLineCount() const;
    BOOL GetModify() const;
    void SetModify(BOOL bModified = TRUE);
    /// The formatting rectangle of a multi-line edit; SetRectNP sets it without repainting.
    void SetRect(LPCRECT lpRect);
    void SetRectNP(LPCRECT lpRect);
    void GetRect(LPRECT lpRect) const;
    /// The selection: first position in the low word, and in the high word the position after its end.
    DWORD GetSel() const;
    void GetSel(int& nStartChar, int& nEndChar) const;
    HLOCAL GetHandle() const;
    void SetHandle(HLOCAL hBuffer);
    void SetMargins(UINT nLeft, UINT nRight);
    /// Left margin in the low word, right one in the high word, in pixels.
    DWORD GetMargins() const;
    void SetLimitText(UINT nMax);
    UINT GetLimitText() const;
    CPoint PosFromChar(UINT nChar) const;
    /// The character nearest to a point in the low word, its line in the high word.
    int CharFromPos(CPoint pt) const;
    /// Copies a line without a terminating null; answers the number of characters. Without a size the first
    /// word of the buffer must hold it.
    int GetLine(int nIndex, LPTSTR lpszBuffer) const;
    int GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const;

    void EmptyUndoBuffer();
    BOOL FmtLines(BOOL bAddEOL);
    void LimitText(int nChars = 0);
    /// -1 stands for the line of the caret.
    int LineFromChar(int nIndex = -1) const;
    int LineIndex(int nLine = -1) const;
    int LineLength(int nLine = -1) const;
    void LineScroll(int nLines, int nChars = 0);
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE);
    void SetPasswordChar(TCHAR ch);
    TCHAR GetPasswordChar() const;
    /// (0, -1) selects everything, (-1, any) nothing.
    void SetSel(DWORD dwSelection, BOOL bNoScroll = FALSE);
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops);
    void SetTabStops();
    BOOL SetTabStops(const int& cxEachStop);
    int GetFirstVisibleLine() const;
    BOOL SetReadOnly(BOOL bReadOnly = TRUE);

    BOOL SetCueBanner(LPCWSTR lpszText);
    BOOL GetCueBanner(LPWSTR lpszText, int cchText) const;
    BOOL ShowBalloonTip(PEDITBALLOONTIP pEditBalloonTip);
    BOOL ShowBalloonTip(LPCWSTR lpszTitle, LPCWSTR lpszText, INT ttiIcon = TTI_NONE);
    BOOL HideBalloonTip();

    BOOL Undo();
    void Clear();
    void Copy();
    void Cut();
    void Paste();
};

/// A scroll bar that is a window of its own.
class AFX_CORE_CLASS CScrollBar : public CWnd
{
    DECLARE_DYNAMIC(CScrollBar)
    using CWnd::Create;

public:
    CScrollBar();
    ~CScrollBar() override;

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetScrollPos() const;
    int SetScrollPos(int nPos, BOOL bRedraw = TRUE);
    void GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const;
    void SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw = TRUE);
    void ShowScrollBar(BOOL bShow = TRUE);
    BOOL EnableScrollBar(UINT nArrowFlags = ESB_ENABLE_BOTH);
    BOOL SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    BOOL GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    /// The largest position that the thumb can reach.
    int GetScrollLimit();
    BOOL GetScrollBarInfo(PSCROLLBARINFO pScrollInfo) const;
};
