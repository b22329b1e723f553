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
    ~CStatic() override { DestroyWindow(); }

    virtual BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                        UINT nID = 0xffff);

    /// The setters answer what the control showed before; neither they nor the control take ownership.
    HICON SetIcon(HICON hIcon) { return AfxSend<HICON>(STM_SETICON, hIcon); }
    HICON GetIcon() const { return AfxSend<HICON>(STM_GETICON); }
    HENHMETAFILE SetEnhMetaFile(HENHMETAFILE hMetaFile);
    HENHMETAFILE GetEnhMetaFile() const { return AfxSend<HENHMETAFILE>(STM_GETIMAGE, IMAGE_ENHMETAFILE); }
    HBITMAP SetBitmap(HBITMAP hBitmap) { return AfxSend<HBITMAP>(STM_SETIMAGE, IMAGE_BITMAP, hBitmap); }
    HBITMAP GetBitmap() const { return AfxSend<HBITMAP>(STM_GETIMAGE, IMAGE_BITMAP); }
    HCURSOR SetCursor(HCURSOR hCursor) { return AfxSend<HCURSOR>(STM_SETIMAGE, IMAGE_CURSOR, hCursor); }
    HCURSOR GetCursor() { return AfxSend<HCURSOR>(STM_GETIMAGE, IMAGE_CURSOR); }

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
    ~CButton() override { DestroyWindow(); }

    virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// BST_PUSHED, BST_FOCUS, and the check state in the two lowest bits.
    UINT GetState() const { return AfxSend<UINT>(BM_GETSTATE); }
    void SetState(BOOL bHighlight) { AfxSend(BM_SETSTATE, bHighlight); }
    int GetCheck() const { return AfxSend<int>(BM_GETCHECK); }
    void SetCheck(int nCheck) { AfxSend(BM_SETCHECK, nCheck); }
    /// The BS_ style without the other bits of the window style.
    UINT GetButtonStyle() const;
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE) { AfxSend(BM_SETSTYLE, nStyle, bRedraw); }
    HICON SetIcon(HICON hIcon) { return AfxSend<HICON>(BM_SETIMAGE, IMAGE_ICON, hIcon); }
    HICON GetIcon() const { return AfxSend<HICON>(BM_GETIMAGE, IMAGE_ICON); }
    HBITMAP SetBitmap(HBITMAP hBitmap) { return AfxSend<HBITMAP>(BM_SETIMAGE, IMAGE_BITMAP, hBitmap); }
    HBITMAP GetBitmap() const { return AfxSend<HBITMAP>(BM_GETIMAGE, IMAGE_BITMAP); }
    HCURSOR SetCursor(HCURSOR hCursor) { return AfxSend<HCURSOR>(BM_SETIMAGE, IMAGE_CURSOR, hCursor); }
    HCURSOR GetCursor() { return AfxSend<HCURSOR>(BM_GETIMAGE, IMAGE_CURSOR); }

    /// These need the themed common controls and answer FALSE without them.
    BOOL GetIdealSize(SIZE* psize) const { return AfxSend<BOOL>(BCM_GETIDEALSIZE, 0, psize); }
    BOOL SetImageList(PBUTTON_IMAGELIST pbuttonImagelist);
    BOOL GetImageList(PBUTTON_IMAGELIST pbuttonImagelist) const;
    BOOL SetTextMargin(LPRECT pmargin) { return AfxSend<BOOL>(BCM_SETTEXTMARGIN, 0, pmargin); }
    BOOL GetTextMargin(LPRECT pmargin) const { return AfxSend<BOOL>(BCM_GETTEXTMARGIN, 0, pmargin); }

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
    ~CListBox() override { DestroyWindow(); }

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // The list as a whole
    int GetCount() const { return AfxSend<int>(LB_GETCOUNT); }
    int GetHorizontalExtent() const { return AfxSend<int>(LB_GETHORIZONTALEXTENT); }
    void SetHorizontalExtent(int cxExtent) { AfxSend(LB_SETHORIZONTALEXTENT, cxExtent); }
    int GetTopIndex() const { return AfxSend<int>(LB_GETTOPINDEX); }
    int SetTopIndex(int nIndex) { return AfxSend<int>(LB_SETTOPINDEX, nIndex); }
    LCID GetLocale() const { return AfxSend<LCID>(LB_GETLOCALE); }
    LCID SetLocale(LCID nNewLocale) { return AfxSend<LCID>(LB_SETLOCALE, nNewLocale); }
    int InitStorage(int nItems, UINT nBytes) { return AfxSend<int>(LB_INITSTORAGE, nItems, nBytes); }
    /// The item nearest to a point; `bOutside` says whether the point is outside the client area.
    UINT ItemFromPoint(CPoint pt, BOOL& bOutside) const;
    DWORD GetListBoxInfo() const { return ::GetListBoxInfo(m_hWnd); }
    void SetColumnWidth(int cxWidth) { AfxSend(LB_SETCOLUMNWIDTH, cxWidth); }
    /// Tab stops in dialog units: every two, every `cxEachStop`, or each by itself.
    void SetTabStops() { AfxSend(LB_SETTABSTOPS); }
    BOOL SetTabStops(const int& cxEachStop) { return AfxSend<BOOL>(LB_SETTABSTOPS, 1, &cxEachStop); }
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops);

    // Single selection
    int GetCurSel() const { return AfxSend<int>(LB_GETCURSEL); }
    int SetCurSel(int nSelect) { return AfxSend<int>(LB_SETCURSEL, nSelect); }

    // Multiple selection
    int GetSel(int nIndex) const { return AfxSend<int>(LB_GETSEL, nIndex); }
    int SetSel(int nIndex, BOOL bSelect = TRUE) { return AfxSend<int>(LB_SETSEL, bSelect, nIndex); }
    int GetSelCount() const { return AfxSend<int>(LB_GETSELCOUNT); }
    int GetSelItems(int nMaxItems, LPINT rgIndex) const;
    void SetAnchorIndex(int nIndex) { AfxSend(LB_SETANCHORINDEX, nIndex); }
    int GetAnchorIndex() const { return AfxSend<int>(LB_GETANCHORINDEX); }
    int SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem);
    int GetCaretIndex() const { return AfxSend<int>(LB_GETCARETINDEX); }
    /// Scrolls until the item is visible in part, with `bScroll` FALSE until it is visible as a whole.
    int SetCaretIndex(int nIndex, BOOL bScroll = TRUE);

    // Items
    DWORD_PTR GetItemData(int nIndex) const { return AfxSend<DWORD_PTR>(LB_GETITEMDATA, nIndex); }
    int SetItemData(int nIndex, DWORD_PTR dwItemData);
    void* GetItemDataPtr(int nIndex) const { return AfxSend<void*>(LB_GETITEMDATA, nIndex); }
    int SetItemDataPtr(int nIndex, void* pData) { return AfxSend<int>(LB_SETITEMDATA, nIndex, pData); }
    int GetItemRect(int nIndex, LPRECT lpRect) const { return AfxSend<int>(LB_GETITEMRECT, nIndex, lpRect); }
    int GetText(int nIndex, LPTSTR lpszBuffer) const { return AfxSend<int>(LB_GETTEXT, nIndex, lpszBuffer); }
    void GetText(int nIndex, CString& rString) const;
    int GetTextLen(int nIndex) const { return AfxSend<int>(LB_GETTEXTLEN, nIndex); }
    int SetItemHeight(int nIndex, UINT cyItemHeight);
    int GetItemHeight(int nIndex) const { return AfxSend<int>(LB_GETITEMHEIGHT, nIndex); }

    // Contents
    int AddString(LPCTSTR lpszItem) { return AfxSend<int>(LB_ADDSTRING, 0, lpszItem); }
    int DeleteString(UINT nIndex) { return AfxSend<int>(LB_DELETESTRING, nIndex); }
    int InsertString(int nIndex, LPCTSTR lpszItem) { return AfxSend<int>(LB_INSERTSTRING, nIndex, lpszItem); }
    void ResetContent() { AfxSend(LB_RESETCONTENT); }
    int Dir(UINT attr, LPCTSTR lpszWildCard) { return AfxSend<int>(LB_DIR, attr, lpszWildCard); }
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
    ~CComboBox() override { DestroyWindow(); }

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // The list as a whole
    int GetCount() const { return AfxSend<int>(CB_GETCOUNT); }
    int GetCurSel() const { return AfxSend<int>(CB_GETCURSEL); }
    int SetCurSel(int nSelect) { return AfxSend<int>(CB_SETCURSEL, nSelect); }
    LCID GetLocale() const { return AfxSend<LCID>(CB_GETLOCALE); }
    LCID SetLocale(LCID nNewLocale) { return AfxSend<LCID>(CB_SETLOCALE, nNewLocale); }
    int GetTopIndex() const { return AfxSend<int>(CB_GETTOPINDEX); }
    int SetTopIndex(int nIndex) { return AfxSend<int>(CB_SETTOPINDEX, nIndex); }
    int InitStorage(int nItems, UINT nBytes) { return AfxSend<int>(CB_INITSTORAGE, nItems, nBytes); }
    void SetHorizontalExtent(UINT nExtent) { AfxSend(CB_SETHORIZONTALEXTENT, nExtent); }
    UINT GetHorizontalExtent() const { return AfxSend<UINT>(CB_GETHORIZONTALEXTENT); }
    int SetDroppedWidth(UINT nWidth) { return AfxSend<int>(CB_SETDROPPEDWIDTH, nWidth); }
    int GetDroppedWidth() const { return AfxSend<int>(CB_GETDROPPEDWIDTH); }
    BOOL GetComboBoxInfo(PCOMBOBOXINFO pcbi) const { return ::GetComboBoxInfo(m_hWnd, pcbi); }
    BOOL SetMinVisibleItems(int iMinVisible) { return AfxSend<BOOL>(CB_SETMINVISIBLE, iMinVisible); }
    int GetMinVisible() const { return AfxSend<int>(CB_GETMINVISIBLE); }

    // The edit part
    DWORD GetEditSel() const { return AfxSend<DWORD>(CB_GETEDITSEL); }
    BOOL LimitText(int nMaxChars) { return AfxSend<BOOL>(CB_LIMITTEXT, nMaxChars); }
    BOOL SetEditSel(int nStartChar, int nEndChar);
    BOOL SetCueBanner(LPCTSTR lpcwText) { return AfxSend<BOOL>(CB_SETCUEBANNER, 0, lpcwText); }
    BOOL GetCueBanner(LPTSTR lpcwText, int cchText) const;
    void Clear() { AfxSend(WM_CLEAR); }
    void Copy() { AfxSend(WM_COPY); }
    void Cut() { AfxSend(WM_CUT); }
    void Paste() { AfxSend(WM_PASTE); }

    // Items
    DWORD_PTR GetItemData(int nIndex) const { return AfxSend<DWORD_PTR>(CB_GETITEMDATA, nIndex); }
    int SetItemData(int nIndex, DWORD_PTR dwItemData);
    void* GetItemDataPtr(int nIndex) const { return AfxSend<void*>(CB_GETITEMDATA, nIndex); }
    int SetItemDataPtr(int nIndex, void* pData) { return AfxSend<int>(CB_SETITEMDATA, nIndex, pData); }
    int GetLBText(int nIndex, LPTSTR lpszText) const { return AfxSend<int>(CB_GETLBTEXT, nIndex, lpszText); }
    void GetLBText(int nIndex, CString& rString) const;
    int GetLBTextLen(int nIndex) const { return AfxSend<int>(CB_GETLBTEXTLEN, nIndex); }
    /// Index -1 is the selection field.
    int SetItemHeight(int nIndex, UINT cyItemHeight);
    int GetItemHeight(int nIndex) const { return AfxSend<int>(CB_GETITEMHEIGHT, nIndex); }

    // Dropping down
    int SetExtendedUI(BOOL bExtended = TRUE) { return AfxSend<int>(CB_SETEXTENDEDUI, bExtended); }
    BOOL GetExtendedUI() const { return AfxSend<BOOL>(CB_GETEXTENDEDUI); }
    /// The list's rectangle on the screen.
    void GetDroppedControlRect(LPRECT lprect) const { AfxSend(CB_GETDROPPEDCONTROLRECT, 0, lprect); }
    BOOL GetDroppedState() const { return AfxSend<BOOL>(CB_GETDROPPEDSTATE); }
    void ShowDropDown(BOOL bShowIt = TRUE) { AfxSend(CB_SHOWDROPDOWN, bShowIt); }

    // Contents
    int AddString(LPCTSTR lpszString) { return AfxSend<int>(CB_ADDSTRING, 0, lpszString); }
    int DeleteString(UINT nIndex) { return AfxSend<int>(CB_DELETESTRING, nIndex); }
    int InsertString(int nIndex, LPCTSTR lpszString);
    void ResetContent() { AfxSend(CB_RESETCONTENT); }
    int Dir(UINT attr, LPCTSTR lpszWildCard) { return AfxSend<int>(CB_DIR, attr, lpszWildCard); }
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
    ~CEdit() override { DestroyWindow(); }

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    BOOL CanUndo() const { return AfxSend<BOOL>(EM_CANUNDO); }
    int GetLineCount() const { return AfxSend<int>(EM_GETLINECOUNT); }
    BOOL GetModify() const { return AfxSend<BOOL>(EM_GETMODIFY); }
    void SetModify(BOOL bModified = TRUE) { AfxSend(EM_SETMODIFY, bModified); }
    /// The formatting rectangle of a multi-line edit; SetRectNP sets it without repainting.
    void SetRect(LPCRECT lpRect) { AfxSend(EM_SETRECT, 0, lpRect); }
    void SetRectNP(LPCRECT lpRect) { AfxSend(EM_SETRECTNP, 0, lpRect); }
    void GetRect(LPRECT lpRect) const { AfxSend(EM_GETRECT, 0, lpRect); }
    /// The selection: first position in the low word, and in the high word the position after its end.
    DWORD GetSel() const { return AfxSend<DWORD>(EM_GETSEL); }
    void GetSel(int& nStartChar, int& nEndChar) const { AfxSend(EM_GETSEL, &nStartChar, &nEndChar); }
    HLOCAL GetHandle() const { return AfxSend<HLOCAL>(EM_GETHANDLE); }
    void SetHandle(HLOCAL hBuffer) { AfxSend(EM_SETHANDLE, hBuffer); }
    void SetMargins(UINT nLeft, UINT nRight);
    /// Left margin in the low word, right one in the high word, in pixels.
    DWORD GetMargins() const { return AfxSend<DWORD>(EM_GETMARGINS); }
    void SetLimitText(UINT nMax) { AfxSend(EM_SETLIMITTEXT, nMax); }
    UINT GetLimitText() const { return AfxSend<UINT>(EM_GETLIMITTEXT); }
    CPoint PosFromChar(UINT nChar) const { return CPoint(AfxSend<LPARAM>(EM_POSFROMCHAR, nChar)); }
    /// The character nearest to a point in the low word, its line in the high word.
    int CharFromPos(CPoint pt) const { return AfxSend<int>(EM_CHARFROMPOS, 0, MAKELPARAM(pt.x, pt.y)); }
    /// Copies a line without a terminating null; answers the number of characters. Without a size the first
    /// word of the buffer must hold it.
    int GetLine(int nIndex, LPTSTR lpszBuffer) const { return AfxSend<int>(EM_GETLINE, nIndex, lpszBuffer); }
    int GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const;

    void EmptyUndoBuffer() { AfxSend(EM_EMPTYUNDOBUFFER); }
    BOOL FmtLines(BOOL bAddEOL) { return AfxSend<BOOL>(EM_FMTLINES, bAddEOL); }
    void LimitText(int nChars = 0) { AfxSend(EM_LIMITTEXT, nChars); }
    /// -1 stands for the line of the caret.
    int LineFromChar(int nIndex = -1) const { return AfxSend<int>(EM_LINEFROMCHAR, nIndex); }
    int LineIndex(int nLine = -1) const { return AfxSend<int>(EM_LINEINDEX, nLine); }
    int LineLength(int nLine = -1) const { return AfxSend<int>(EM_LINELENGTH, nLine); }
    void LineScroll(int nLines, int nChars = 0) { AfxSend(EM_LINESCROLL, nChars, nLines); }
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE);
    void SetPasswordChar(TCHAR ch) { AfxSend(EM_SETPASSWORDCHAR, ch); }
    TCHAR GetPasswordChar() const { return AfxSend<TCHAR>(EM_GETPASSWORDCHAR); }
    /// (0, -1) selects everything, (-1, any) nothing.
    void SetSel(DWORD dwSelection, BOOL bNoScroll = FALSE);
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops);
    void SetTabStops() { AfxSend(EM_SETTABSTOPS); }
    BOOL SetTabStops(const int& cxEachStop) { return AfxSend<BOOL>(EM_SETTABSTOPS, 1, &cxEachStop); }
    int GetFirstVisibleLine() const { return AfxSend<int>(EM_GETFIRSTVISIBLELINE); }
    BOOL SetReadOnly(BOOL bReadOnly = TRUE) { return AfxSend<BOOL>(EM_SETREADONLY, bReadOnly); }

    BOOL SetCueBanner(LPCWSTR lpszText) { return AfxSend<BOOL>(EM_SETCUEBANNER, FALSE, lpszText); }
    BOOL GetCueBanner(LPWSTR lpszText, int cchText) const;
    BOOL ShowBalloonTip(PEDITBALLOONTIP pEditBalloonTip);
    BOOL ShowBalloonTip(LPCWSTR lpszTitle, LPCWSTR lpszText, INT ttiIcon = TTI_NONE);
    BOOL HideBalloonTip() { return AfxSend<BOOL>(EM_HIDEBALLOONTIP); }

    BOOL Undo() { return AfxSend<BOOL>(EM_UNDO); }
    void Clear() { AfxSend(WM_CLEAR); }
    void Copy() { AfxSend(WM_COPY); }
    void Cut() { AfxSend(WM_CUT); }
    void Paste();
};

/// A scroll bar that is a window of its own.
class AFX_CORE_CLASS CScrollBar : public CWnd
{
    DECLARE_DYNAMIC(CScrollBar)
    using CWnd::Create;

public:
    CScrollBar();
    ~CScrollBar() override { DestroyWindow(); }

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    int GetScrollPos() const { return ::GetScrollPos(m_hWnd, SB_CTL); }
    int SetScrollPos(int nPos, BOOL bRedraw = TRUE) { return ::SetScrollPos(m_hWnd, SB_CTL, nPos, bRedraw); }
    void GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const;
    void SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw = TRUE);
    void ShowScrollBar(BOOL bShow = TRUE) { ::ShowScrollBar(m_hWnd, SB_CTL, bShow); }
    BOOL EnableScrollBar(UINT nArrowFlags = ESB_ENABLE_BOTH);
    BOOL SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    BOOL GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    /// The largest position that the thumb can reach.
    int GetScrollLimit();
    BOOL GetScrollBarInfo(PSCROLLBARINFO pScrollInfo) const;
};
