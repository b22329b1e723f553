#pragma once
// The tool bar control, by itself: without the frame that would dock it.
//
//     m_bar.Create(WS_CHILD | WS_VISIBLE, CRect(), this, IDC_BAR);
//     m_bar.AddBitmap(3, IDB_BAR);
//     m_bar.AddButtons(3, buttons);
//     m_bar.AutoSize();

#include <afxcmn.h>

class AFX_CORE_CLASS CToolBarCtrl : public CWnd
{
    DECLARE_DYNAMIC(CToolBarCtrl)
    using CWnd::Create;
    using CWnd::CreateEx;

public:
    CToolBarCtrl();
    ~CToolBarCtrl() override { DestroyWindow(); }

    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    // Buttons by command; the questions answer nonzero for yes
    BOOL EnableButton(int nID, BOOL bEnable = TRUE) { return Set(TB_ENABLEBUTTON, nID, bEnable); }
    BOOL CheckButton(int nID, BOOL bCheck = TRUE) { return Set(TB_CHECKBUTTON, nID, bCheck); }
    BOOL PressButton(int nID, BOOL bPress = TRUE) { return Set(TB_PRESSBUTTON, nID, bPress); }
    BOOL HideButton(int nID, BOOL bHide = TRUE) { return Set(TB_HIDEBUTTON, nID, bHide); }
    BOOL Indeterminate(int nID, BOOL bIndeterminate = TRUE)
    {
        return Set(TB_INDETERMINATE, nID, bIndeterminate);
    }
    BOOL MarkButton(int nID, BOOL fHighlight = TRUE) { return Set(TB_MARKBUTTON, nID, fHighlight); }
    BOOL IsButtonEnabled(int nID) const { return AfxSend<BOOL>(TB_ISBUTTONENABLED, nID); }
    BOOL IsButtonChecked(int nID) const { return AfxSend<BOOL>(TB_ISBUTTONCHECKED, nID); }
    BOOL IsButtonPressed(int nID) const { return AfxSend<BOOL>(TB_ISBUTTONPRESSED, nID); }
    BOOL IsButtonHidden(int nID) const { return AfxSend<BOOL>(TB_ISBUTTONHIDDEN, nID); }
    BOOL IsButtonIndeterminate(int nID) const { return AfxSend<BOOL>(TB_ISBUTTONINDETERMINATE, nID); }
    BOOL IsButtonHighlighted(int nID) const { return AfxSend<BOOL>(TB_ISBUTTONHIGHLIGHTED, nID); }
    BOOL SetState(int nID, UINT nState) { return AfxSend<BOOL>(TB_SETSTATE, nID, MAKELPARAM(nState, 0)); }
    int GetState(int nID) const
    {
        return AfxSend<int>(TB_GETSTATE, nID);
    } ///< TBSTATE_ values, -1 for no such button
    int GetBitmap(int nID) const { return AfxSend<int>(TB_GETBITMAP, nID); }
    BOOL ChangeBitmap(int nID, int iBitmap) { return AfxSend<BOOL>(TB_CHANGEBITMAP, nID, iBitmap); }
    /// `cbSize` is filled in.
    BOOL GetButtonInfo(int nID, TBBUTTONINFO* ptbbi) const;
    BOOL SetButtonInfo(int nID, TBBUTTONINFO* p)
    {
        return p->cbSize = sizeof *p, AfxSend<BOOL>(TB_SETBUTTONINFO, nID, p);
    }
    void GetRect(int nID, LPRECT lpRect) const { AfxSend(TB_GETRECT, nID, lpRect); }
    UINT CommandToIndex(UINT nID) const { return AfxSend<UINT>(TB_COMMANDTOINDEX, nID); }

    // Buttons by position
    BOOL AddButtons(int nNumButtons, LPTBBUTTON lpButtons)
    {
        return AfxSend<BOOL>(TB_ADDBUTTONS, nNumButtons, lpButtons);
    }
    BOOL InsertButton(int nIndex, LPTBBUTTON lpButton)
    {
        return AfxSend<BOOL>(TB_INSERTBUTTON, nIndex, lpButton);
    }
    BOOL DeleteButton(int nIndex) { return AfxSend<BOOL>(TB_DELETEBUTTON, nIndex); }
    BOOL MoveButton(UINT nOldPos, UINT nNewPos) { return AfxSend<BOOL>(TB_MOVEBUTTON, nOldPos, nNewPos); }
    BOOL GetButton(int nIndex, LPTBBUTTON lpButton) const
    {
        return AfxSend<BOOL>(TB_GETBUTTON, nIndex, lpButton);
    }
    int GetButtonCount() const { return AfxSend<int>(TB_BUTTONCOUNT); }
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const
    {
        return AfxSend<BOOL>(TB_GETITEMRECT, nIndex, lpRect);
    }
    BOOL SetCmdID(int nIndex, UINT nID) { return AfxSend<BOOL>(TB_SETCMDID, nIndex, nID); }
    /// The button at a point; negative beside them all.
    int HitTest(LPPOINT ppt) const { return AfxSend<int>(TB_HITTEST, 0, ppt); }
    int GetHotItem() const { return AfxSend<int>(TB_GETHOTITEM); }
    int SetHotItem(int nHot) { return AfxSend<int>(TB_SETHOTITEM, nHot); }
    BOOL GetAnchorHighlight() const { return AfxSend<BOOL>(TB_GETANCHORHIGHLIGHT); }
    BOOL SetAnchorHighlight(BOOL fAnchor = TRUE) { return AfxSend<BOOL>(TB_SETANCHORHIGHLIGHT, fAnchor); }
    BOOL MapAccelerator(TCHAR chAccel, UINT* pIDBtn)
    {
        return AfxSend<BOOL>(TB_MAPACCELERATOR, chAccel, pIDBtn);
    }

    // Pictures and texts: each Add answers the index of the first new one
    int AddBitmap(int nNumButtons, UINT nBitmapID);
    int AddBitmap(int nNumButtons, CBitmap* pBitmap);
    BOOL ReplaceBitmap(LPTBREPLACEBITMAP pReplaceBitmap)
    {
        return AfxSend<BOOL>(TB_REPLACEBITMAP, 0, pReplaceBitmap);
    }
    UINT GetBitmapFlags() const { return AfxSend<UINT>(TB_GETBITMAPFLAGS); }
    /// The lists stay the caller's.
    CImageList* GetImageList() const { return CImageList::FromHandle(AfxSend<HIMAGELIST>(TB_GETIMAGELIST)); }
    CImageList* SetImageList(CImageList* pImageList) { return SetList(TB_SETIMAGELIST, pImageList); }
    CImageList* GetHotImageList() const
    {
        return CImageList::FromHandle(AfxSend<HIMAGELIST>(TB_GETHOTIMAGELIST));
    }
    CImageList* SetHotImageList(CImageList* pImageList) { return SetList(TB_SETHOTIMAGELIST, pImageList); }
    CImageList* GetDisabledImageList() const;
    CImageList* SetDisabledImageList(CImageList* pImageList)
    {
        return SetList(TB_SETDISABLEDIMAGELIST, pImageList);
    }
    void LoadImages(int iBitmapID, HINSTANCE hinst) { AfxSend(TB_LOADIMAGES, iBitmapID, hinst); }
    int AddString(UINT nStringID);
    /// Texts one behind the other, each with its closing zero, one more at the end.
    int AddStrings(LPCTSTR lpszStrings) { return AfxSend<int>(TB_ADDSTRING, 0, lpszStrings); }
    CString GetString(int nString) const;

    // The bar
    void AutoSize() { AfxSend(TB_AUTOSIZE); }
    DWORD GetButtonSize() const { return AfxSend<DWORD>(TB_GETBUTTONSIZE); } ///< width low, height high
    BOOL SetButtonSize(CSize size)
    {
        return AfxSend<BOOL>(TB_SETBUTTONSIZE, 0, MAKELPARAM(size.cx, size.cy));
    }
    BOOL SetBitmapSize(CSize size)
    {
        return AfxSend<BOOL>(TB_SETBITMAPSIZE, 0, MAKELPARAM(size.cx, size.cy));
    }
    BOOL SetButtonWidth(int cxMin, int cxMax)
    {
        return AfxSend<BOOL>(TB_SETBUTTONWIDTH, 0, MAKELPARAM(cxMin, cxMax));
    }
    void SetButtonStructSize(int nSize) { AfxSend(TB_BUTTONSTRUCTSIZE, nSize); }
    BOOL SetIndent(int iIndent) { return AfxSend<BOOL>(TB_SETINDENT, iIndent); }
    BOOL GetMaxSize(LPSIZE pSize) const { return AfxSend<BOOL>(TB_GETMAXSIZE, 0, pSize); }
    int GetMaxTextRows() const { return AfxSend<int>(TB_GETTEXTROWS); }
    BOOL SetMaxTextRows(int iMaxRows) { return AfxSend<BOOL>(TB_SETMAXTEXTROWS, iMaxRows); }
    int GetRows() const { return AfxSend<int>(TB_GETROWS); }
    void SetRows(int nRows, BOOL bLarger, LPRECT lpRect)
    {
        AfxSend(TB_SETROWS, MAKEWPARAM(nRows, bLarger), lpRect);
    }
    DWORD GetStyle() const { return AfxSend<DWORD>(TB_GETSTYLE); } ///< TBSTYLE_ values
    void SetStyle(DWORD dwStyle) { AfxSend(TB_SETSTYLE, 0, dwStyle); }
    DWORD GetExtendedStyle() const { return AfxSend<DWORD>(TB_GETEXTENDEDSTYLE); }
    DWORD SetExtendedStyle(DWORD dwExStyle) { return AfxSend<DWORD>(TB_SETEXTENDEDSTYLE, 0, dwExStyle); }
    DWORD SetDrawTextFlags(DWORD dwMask, DWORD dwDTFlags)
    {
        return AfxSend<DWORD>(TB_SETDRAWTEXTFLAGS, dwMask, dwDTFlags);
    }
    BOOL GetColorScheme(COLORSCHEME* lpColorScheme) const
    {
        return AfxSend<BOOL>(TB_GETCOLORSCHEME, 0, lpColorScheme);
    }
    void SetColorScheme(const COLORSCHEME* lpColorScheme) { AfxSend(TB_SETCOLORSCHEME, 0, lpColorScheme); }
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pTip);
    void SetOwner(CWnd* pWnd); ///< receives the notifications
    HRESULT SetWindowTheme(LPCWSTR pszSubAppName)
    {
        return AfxSend<HRESULT>(TB_SETWINDOWTHEME, 0, pszSubAppName);
    }
    void Customize() { AfxSend(TB_CUSTOMIZE); }
    void SaveState(HKEY root, LPCTSTR key, LPCTSTR value) { SaveOrRestore(true, root, key, value); }
    void RestoreState(HKEY root, LPCTSTR key, LPCTSTR value) { SaveOrRestore(false, root, key, value); }
    HRESULT GetDropTarget(IDropTarget** ppDropTarget) const;

    // The mark between buttons where one would be dropped
    void GetInsertMark(TBINSERTMARK* ptbim) const { AfxSend(TB_GETINSERTMARK, 0, ptbim); }
    void SetInsertMark(TBINSERTMARK* ptbim) { AfxSend(TB_SETINSERTMARK, 0, ptbim); }
    COLORREF GetInsertMarkColor() const { return AfxSend<COLORREF>(TB_GETINSERTMARKCOLOR); }
    COLORREF SetInsertMarkColor(COLORREF clrNew)
    {
        return AfxSend<COLORREF>(TB_SETINSERTMARKCOLOR, 0, clrNew);
    }
    BOOL InsertMarkHitTest(LPPOINT ppt, LPTBINSERTMARK ptbim) const
    {
        return AfxSend<BOOL>(TB_INSERTMARKHITTEST, ppt, ptbim);
    }

private:
    BOOL Set(UINT message, int id, BOOL on) { return AfxSend<BOOL>(message, id, MAKELPARAM(on, 0)); }
    CImageList* SetList(UINT message, CImageList* list);
    void SaveOrRestore(bool save, HKEY root, LPCTSTR key, LPCTSTR value);
};
