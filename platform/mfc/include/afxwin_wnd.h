#pragma once
// Command targets, windows, frame windows and dialogs.
//
// A CWnd is attached to a window handle in one of two ways. Create/CreateEx make the window and hook its
// creation, so that the object sees every message from the first one on. SubclassWindow takes a window that
// exists and puts the object in front of its procedure. From then on AfxWndProc finds the object by the
// handle in the thread's handle map, and the message goes
//
//     PreTranslateMessage (message loop only) -> WindowProc -> OnWndMsg -> message map -> DefWindowProc
//
// A notification from a child control goes to the control first (reflection: WM_REFLECT_BASE plus the
// message) and then to the parent's OnCommand / OnNotify, OnCmdMsg and map.
//
// Ownership: CWnd does not own itself. A window destroyed through its handle leaves the object alive;
// PostNcDestroy is the place where an object made with `new` deletes itself. A CWnd that is destroyed with
// its window alive destroys the window.

#include <afx.h>
#include <afxmsg_.h>
#include <afxwin_gdi.h>
#include <atltypes.h>

#include <commctrl.h>

#include <type_traits>
#include <vector>

#undef GetNextWindow // a macro of the Windows headers that hides the member

class CBitmap;
class CBrush;
class CCmdUI;
class CDataExchange;
class CDC;
class CDialog;
class CFont;
class CFrameWnd;
class CMenu;
class CRgn;
class CScrollBar;
class CWinThread;
class CWnd;
struct CCreateContext;

// ---------------------------------------------------------------------------------------------------------
// Command targets

/// Where a command was found; filled by CCmdTarget::OnCmdMsg instead of running the handler.
struct AFX_CMDHANDLERINFO
{
    CCmdTarget* pTarget;
    void (AFX_MSG_CALL CCmdTarget::*pmf)();
};

/// The WM_NOTIFY of a control on its way through OnCmdMsg: `pExtra` of a notification.
struct AFX_NOTIFY
{
    LRESULT* pResult; ///< what the handler answers to the control
    NMHDR* pNMHDR;
};

/// A number or a pointer as a message parameter.
template <class Param, class Value>
Param AfxToMessage(Value value)
{
    if constexpr (std::is_pointer_v<Value>)
        return reinterpret_cast<Param>(value);
    else
        return static_cast<Param>(value);
}

/// The answer to a message as a number, a pointer or nothing.
template <class Answer>
Answer AfxFromMessage([[maybe_unused]] LRESULT answer)
{
    if constexpr (std::is_pointer_v<Answer>)
        return reinterpret_cast<Answer>(answer);
    else if constexpr (!std::is_void_v<Answer>)
        return static_cast<Answer>(answer);
}

/// An object that can receive commands through its message map.
class AFX_CORE_CLASS CCmdTarget : public CObject
{
    DECLARE_DYNAMIC(CCmdTarget)

public:
    CCmdTarget();
    ~CCmdTarget() override;

    /// Routes a command, a control notification or a request to update a command's state. TRUE when a handler
    /// took it. With `pHandlerInfo` the handler is only looked for and not called.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

    /// Wait cursor, counted: shown at the first Begin, taken away at the last End.
    void BeginWaitCursor();
    void EndWaitCursor();
    /// Shows the wait cursor again after something else changed it, a message box for instance.
    void RestoreWaitCursor();

protected:
    friend class CWnd;

    static const AFX_MSGMAP* PASCAL GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;
};

/// The state of one command while its user-interface item is brought up to date: the argument of
/// ON_UPDATE_COMMAND_UI handlers. The item is a menu item or a control.
class AFX_CORE_CLASS CCmdUI
{
public:
    CCmdUI();
    virtual ~CCmdUI() = default;

    UINT m_nID = 0;           ///< command id
    UINT m_nIndex = 0;        ///< position of the item in its menu
    CMenu* m_pMenu = nullptr; ///< the menu, if the item stands in one
    CMenu* m_pSubMenu = nullptr;
    CWnd* m_pOther = nullptr; ///< the control, if the item is one
    BOOL m_bEnableChanged = FALSE;
    BOOL m_bContinueRouting = FALSE;
    UINT m_nIndexMax = 0; ///< number of items in the menu
    CMenu* m_pParentMenu = nullptr;

    virtual void Enable(BOOL bOn = TRUE);
    virtual void SetCheck(int nCheck = 1); ///< 0 off, 1 on, 2 indeterminate
    virtual void SetRadio(BOOL bOn = TRUE);
    virtual void SetText(LPCTSTR lpszText);

    /// The handler did not decide: let the next routing target be asked.
    void ContinueRouting() { m_bContinueRouting = TRUE; }

    /// Asks the target for the state. With `bDisableIfNoHndler` an item whose command nobody handles is
    /// disabled. TRUE if a handler was found.
    BOOL DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);
};

// ---------------------------------------------------------------------------------------------------------
// Windows

// CWnd::m_nFlags
#define WF_TOOLTIPS 0x0001      // tool tips are enabled
#define WF_TEMPHIDE 0x0002      // hidden for a moment
#define WF_STAYDISABLED 0x0004  // disabled by a modal state that is still on
#define WF_MODALLOOP 0x0008     // runs a modal loop
#define WF_CONTINUEMODAL 0x0010 // the modal loop goes on

// CWnd::OnToolHitTest, beside the TTF_ values of the control
#define TTF_NOTBUTTON 0x80000000L // the tool is no button
#define TTF_ALWAYSTIP 0x40000000L // show the tip in an inactive window too

// CWnd::RunModalLoop
#define MLF_NOIDLEMSG 0x0001  // no WM_ENTERIDLE to the parent
#define MLF_NOKICKIDLE 0x0002 // no WM_KICKIDLE to the window
#define MLF_SHOWONIDLE 0x0004 // show the window when the queue is empty for the first time

/// A window, its message map and the wrapper of its Win32 calls. The calls that carry a Win32 name do what
/// the Win32 function does with m_hWnd; only what goes beyond that is described here.
class AFX_CORE_CLASS CWnd : public CCmdTarget
{
    DECLARE_DYNCREATE(CWnd)

public:
    CWnd();
    ~CWnd() override;

    HWND m_hWnd = nullptr;

    // For SetWindowPos: not windows, only places in the order
    static const CWnd wndTop;
    static const CWnd wndBottom;
    static const CWnd wndTopMost;
    static const CWnd wndNoTopMost;

    operator HWND() const { return GetSafeHwnd(); }
    bool operator==(const CWnd& wnd) const { return wnd.GetSafeHwnd() == m_hWnd; }
    bool operator!=(const CWnd& wnd) const { return wnd.GetSafeHwnd() != m_hWnd; }
    HWND GetSafeHwnd() const; ///< the handle; null for a null object
    DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLong(m_hWnd, GWL_STYLE)); }
    DWORD GetExStyle() const { return static_cast<DWORD>(::GetWindowLong(m_hWnd, GWL_EXSTYLE)); }
    /// the window set by SetOwner, else the parent
    CWnd* GetOwner() const { return m_hWndOwner != nullptr ? FromHandle(m_hWndOwner) : GetParent(); }
    /// commands and notifications of the framework go to the owner
    void SetOwner(CWnd* pOwnerWnd) { m_hWndOwner = pOwnerWnd->GetSafeHwnd(); }

    /// The object of a handle: the permanent one, or a temporary one that lives until idle time.
    static CWnd* PASCAL FromHandle(HWND hWnd);
    /// The object attached to a handle by the program, or null.
    static CWnd* PASCAL FromHandlePermanent(HWND hWnd);
    static void PASCAL DeleteTempMap();
    /// Makes the object the permanent one of the handle; messages keep going to the window's own procedure.
    BOOL Attach(HWND hWndNew);
    HWND Detach();

    /// Attaches, and takes over the window's messages. The old procedure receives what is not handled.
    BOOL SubclassWindow(HWND hWnd);
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
    /// Gives the messages back and detaches; answers the handle.
    HWND UnsubclassWindow();
    /// Called when the object has received its handle, before the first message (Create) or before the
    /// procedure is exchanged (SubclassWindow).
    virtual void PreSubclassWindow();

    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd, UINT nID, CCreateContext* pContext = nullptr);
    BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x, int y,
                  int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam = nullptr);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                          const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam = nullptr);
    /// Last word on class, style and size before the window is made; FALSE gives the creation up. A null
    /// class name is replaced by the framework's own class.
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    virtual BOOL DestroyWindow();

    // Styles, identifiers, data
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd,
                     UINT nFlags = 0); ///< nFlags: SWP_ flags, 0 for no repositioning
    BOOL ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    static BOOL PASCAL ModifyStyle(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags);
    static BOOL PASCAL ModifyStyleEx(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags);
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    /// answers the id of before
    int SetDlgCtrlID(int nID) { return static_cast<int>(::SetWindowLongPtr(m_hWnd, GWLP_ID, nID)); }

    // Related windows
    static CWnd* PASCAL GetActiveWindow() { return FromHandle(::GetActiveWindow()); }
    CWnd* SetActiveWindow() { return FromHandle(::SetActiveWindow(m_hWnd)); }
    BOOL SetForegroundWindow() { return ::SetForegroundWindow(m_hWnd); }
    static CWnd* PASCAL GetForegroundWindow() { return FromHandle(::GetForegroundWindow()); }
    static CWnd* PASCAL GetCapture() { return FromHandle(::GetCapture()); }
    CWnd* SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
    static CWnd* PASCAL GetFocus() { return FromHandle(::GetFocus()); }
    CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
    static CWnd* PASCAL GetDesktopWindow() { return FromHandle(::GetDesktopWindow()); }
    CWnd* GetWindow(UINT nCmd) const { return FromHandle(::GetWindow(m_hWnd, nCmd)); }
    CWnd* GetNextWindow(UINT nFlag = GW_HWNDNEXT) const { return FromHandle(::GetWindow(m_hWnd, nFlag)); }
    CWnd* GetTopWindow() const { return FromHandle(::GetTopWindow(m_hWnd)); }
    CWnd* GetLastActivePopup() const { return FromHandle(::GetLastActivePopup(m_hWnd)); }
    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    CWnd* SetParent(CWnd* pWndNewParent);
    CWnd* GetAncestor(UINT gaFlags) const { return FromHandle(::GetAncestor(m_hWnd, gaFlags)); }
    CWnd* GetTopLevelParent() const;   ///< up through parents and owners
    CWnd* GetTopLevelOwner() const;    ///< up through owners
    CWnd* GetParentOwner() const;      ///< the nearest parent that is not a child window
    CFrameWnd* GetParentFrame() const; ///< the nearest CFrameWnd above, or null
    CFrameWnd* GetTopLevelFrame() const;
    BOOL IsTopParentActive() const;
    void ActivateTopParent();
    static CWnd* PASCAL FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName);
    static CWnd* PASCAL FindWindowEx(HWND hwndParent, HWND hwndChildAfter, LPCTSTR lpszClass,
                                     LPCTSTR lpszWindow);
    static CWnd* PASCAL WindowFromPoint(POINT point) { return FromHandle(::WindowFromPoint(point)); }
    CWnd* ChildWindowFromPoint(POINT point) const;
    CWnd* ChildWindowFromPoint(POINT point, UINT nFlags) const;
    BOOL IsChild(const CWnd* pWnd) const { return ::IsChild(m_hWnd, pWnd->GetSafeHwnd()); }
    /// The first descendant with the id, children before grandchildren; with `bOnlyPerm` only one that has a
    /// permanent object.
    CWnd* GetDescendantWindow(int nID, BOOL bOnlyPerm = FALSE) const;
    static CWnd* PASCAL GetDescendantWindow(HWND hWnd, int nID, BOOL bOnlyPerm);
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0, BOOL bDeep = TRUE,
                                  BOOL bOnlyPerm = FALSE);
    static void PASCAL SendMessageToDescendants(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam,
                                                BOOL bDeep, BOOL bOnlyPerm);

    // Messages
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    BOOL SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam);
    static const MSG* PASCAL GetCurrentMessage(); ///< the message being handled on this thread
    void DragAcceptFiles(BOOL bAccept = TRUE) { ::DragAcceptFiles(m_hWnd, bAccept); }
    BOOL DragDetect(POINT pt) const { return ::DragDetect(m_hWnd, pt); }

    // Text and font
    void SetWindowText(LPCTSTR lpszString) { ::SetWindowText(m_hWnd, lpszString); }
    int GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const;
    void GetWindowText(CString& rString) const;
    int GetWindowTextLength() const { return ::GetWindowTextLength(m_hWnd); }
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE);
    CFont* GetFont() const;

    // Menus
    CMenu* GetMenu() const { return CMenu::FromHandle(::GetMenu(m_hWnd)); }
    BOOL SetMenu(CMenu* pMenu) { return ::SetMenu(m_hWnd, pMenu->GetSafeHmenu()); }
    void DrawMenuBar() { ::DrawMenuBar(m_hWnd); }
    CMenu* GetSystemMenu(BOOL bRevert) const { return CMenu::FromHandle(::GetSystemMenu(m_hWnd, bRevert)); }
    BOOL HiliteMenuItem(CMenu* pMenu, UINT nIDHiliteItem, UINT nHilite);

    // Position and size
    BOOL IsIconic() const { return ::IsIconic(m_hWnd); }
    BOOL IsZoomed() const { return ::IsZoomed(m_hWnd); }
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE);
    void MoveWindow(LPCRECT lpRect, BOOL bRepaint = TRUE);
    /// the window owns the region afterwards
    int SetWindowRgn(HRGN hRgn, BOOL bRedraw) { return ::SetWindowRgn(m_hWnd, hRgn, bRedraw); }
    int GetWindowRgn(HRGN hRgn) const { return ::GetWindowRgn(m_hWnd, hRgn); }
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags);
    UINT ArrangeIconicWindows() { return ::ArrangeIconicWindows(m_hWnd); }
    void BringWindowToTop() { ::BringWindowToTop(m_hWnd); }
    void GetWindowRect(LPRECT lpRect) const { ::GetWindowRect(m_hWnd, lpRect); }
    void GetClientRect(LPRECT lpRect) const { ::GetClientRect(m_hWnd, lpRect); }
    BOOL GetWindowInfo(PWINDOWINFO pwi) const { return ::GetWindowInfo(m_hWnd, pwi); }
    BOOL GetTitleBarInfo(PTITLEBARINFO pti) const { return ::GetTitleBarInfo(m_hWnd, pti); }
    BOOL GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const;
    BOOL SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl) { return ::SetWindowPlacement(m_hWnd, lpwndpl); }
    void ClientToScreen(LPPOINT lpPoint) const { ::ClientToScreen(m_hWnd, lpPoint); }
    void ClientToScreen(LPRECT lpRect) const;
    void ScreenToClient(LPPOINT lpPoint) const { ::ScreenToClient(m_hWnd, lpPoint); }
    void ScreenToClient(LPRECT lpRect) const;
    void MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const;
    void MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const;
    virtual void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = adjustBorder);
    enum AdjustType
    {
        adjustBorder = 0,
        adjustOutside = 1
    };
    /// Centres over the alternate window, the owner or parent, or the work area of the monitor.
    void CenterWindow(CWnd* pAlternateOwner = nullptr);

    // Painting
    CDC* BeginPaint(LPPAINTSTRUCT lpPaint) { return CDC::FromHandle(::BeginPaint(m_hWnd, lpPaint)); }
    void EndPaint(LPPAINTSTRUCT lpPaint) { ::EndPaint(m_hWnd, lpPaint); }
    CDC* GetDC() { return CDC::FromHandle(::GetDC(m_hWnd)); }
    CDC* GetWindowDC() { return CDC::FromHandle(::GetWindowDC(m_hWnd)); }
    CDC* GetDCEx(CRgn* prgnClip, DWORD flags);
    int ReleaseDC(CDC* pDC) { return ::ReleaseDC(m_hWnd, pDC->m_hDC); }
    void Print(CDC* pDC, DWORD dwFlags) const;
    void PrintClient(CDC* pDC, DWORD dwFlags) const;
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    void SetRedraw(BOOL bRedraw = TRUE) { ::SendMessage(m_hWnd, WM_SETREDRAW, bRedraw, 0); }
    BOOL GetUpdateRect(LPRECT lpRect, BOOL bErase = FALSE) { return ::GetUpdateRect(m_hWnd, lpRect, bErase); }
    int GetUpdateRgn(CRgn* pRgn, BOOL bErase = FALSE);
    void Invalidate(BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, bErase); }
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE) { ::InvalidateRect(m_hWnd, lpRect, bErase); }
    void InvalidateRgn(CRgn* pRgn, BOOL bErase = TRUE);
    void ValidateRect(LPCRECT lpRect) { ::ValidateRect(m_hWnd, lpRect); }
    void ValidateRgn(CRgn* pRgn) { ::ValidateRgn(m_hWnd, static_cast<HRGN>(pRgn->GetSafeHandle())); }
    BOOL ShowWindow(int nCmdShow) { return ::ShowWindow(m_hWnd, nCmdShow); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    void ShowOwnedPopups(BOOL bShow = TRUE) { ::ShowOwnedPopups(m_hWnd, bShow); }
    BOOL AnimateWindow(DWORD dwTime, DWORD dwFlags) { return ::AnimateWindow(m_hWnd, dwTime, dwFlags); }
    BOOL LockWindowUpdate() { return ::LockWindowUpdate(m_hWnd); }
    void UnlockWindowUpdate() { ::LockWindowUpdate(nullptr); }
    BOOL RedrawWindow(LPCRECT lpRectUpdate = nullptr, CRgn* prgnUpdate = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    BOOL DrawAnimatedRects(int idAni, CONST RECT* lprcFrom, CONST RECT* lprcTo);
    BOOL DrawCaption(CDC* pDC, LPCRECT lprc, UINT uFlags);
    BOOL SetLayeredWindowAttributes(COLORREF crKey, BYTE bAlpha, DWORD dwFlags);
    BOOL GetLayeredWindowAttributes(COLORREF* pcrKey, BYTE* pbAlpha, DWORD* pdwFlags) const;
    BOOL UpdateLayeredWindow(CDC* pDCDst, POINT* pptDst, SIZE* psize, CDC* pDCSrc, POINT* pptSrc,
                             COLORREF crKey, BLENDFUNCTION* pblend, DWORD dwFlags);
    BOOL PrintWindow(CDC* pDC, UINT nFlags) const { return ::PrintWindow(m_hWnd, *pDC, nFlags); }

    // Timers
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse,
                      void(CALLBACK* lpfnTimer)(HWND, UINT, UINT_PTR, DWORD));
    BOOL KillTimer(UINT_PTR nIDEvent) { return ::KillTimer(m_hWnd, nIDEvent); }

    // State
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    BOOL EnableWindow(BOOL bEnable = TRUE) { return ::EnableWindow(m_hWnd, bEnable); }
    BOOL FlashWindow(BOOL bInvert) { return ::FlashWindow(m_hWnd, bInvert); }
    BOOL FlashWindowEx(DWORD dwFlags, UINT uCount, DWORD dwTimeout);

    // Dialog items
    void CheckDlgButton(int nIDButton, UINT nCheck) { ::CheckDlgButton(m_hWnd, nIDButton, nCheck); }
    void CheckRadioButton(int nIDFirstButton, int nIDLastButton, int nIDCheckButton);
    int GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton) const;
    UINT IsDlgButtonChecked(int nIDButton) const { return ::IsDlgButtonChecked(m_hWnd, nIDButton); }
    CWnd* GetDlgItem(int nID) const { return FromHandle(::GetDlgItem(m_hWnd, nID)); }
    void GetDlgItem(int nID, HWND* phWnd) const { *phWnd = ::GetDlgItem(m_hWnd, nID); }
    UINT GetDlgItemInt(int nID, BOOL* lpTrans = nullptr, BOOL bSigned = TRUE) const;
    void SetDlgItemInt(int nID, UINT nValue, BOOL bSigned = TRUE);
    int GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const;
    int GetDlgItemText(int nID, CString& rString) const;
    void SetDlgItemText(int nID, LPCTSTR lpszString) { ::SetDlgItemText(m_hWnd, nID, lpszString); }
    CWnd* GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;
    CWnd* GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;
    LRESULT SendDlgItemMessage(int nID, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    int DlgDirList(LPTSTR lpPathSpec, int nIDListBox, int nIDStaticPath, UINT nFileType);
    int DlgDirListComboBox(LPTSTR lpPathSpec, int nIDComboBox, int nIDStaticPath, UINT nFileType);
    BOOL DlgDirSelect(LPTSTR lpString, int nSize, int nIDListBox);
    BOOL DlgDirSelectComboBox(LPTSTR lpString, int nSize, int nIDComboBox);

    // Scrolling
    int GetScrollPos(int nBar) const;
    void GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const;
    void ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect = nullptr, LPCRECT lpClipRect = nullptr);
    int ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate,
                       LPRECT lpRectUpdate, UINT flags);
    int SetScrollPos(int nBar, int nPos, BOOL bRedraw = TRUE);
    void SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw = TRUE);
    void ShowScrollBar(UINT nBar, BOOL bShow = TRUE);
    void EnableScrollBarCtrl(int nBar, BOOL bEnable = TRUE);
    BOOL EnableScrollBar(int nSBFlags, UINT nArrowFlags = ESB_ENABLE_BOTH);
    virtual CScrollBar* GetScrollBarCtrl(
        int nBar) const; ///< a sibling control that stands for the bar; null here
    BOOL SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    BOOL GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    BOOL GetScrollBarInfo(LONG idObject, PSCROLLBARINFO psbi) const;
    int GetScrollLimit(int nBar); ///< the greatest position that a user can scroll to

    // Caret, clipboard, hot key, help
    void CreateCaret(CBitmap* pBitmap);
    void CreateSolidCaret(int nWidth, int nHeight) { ::CreateCaret(m_hWnd, nullptr, nWidth, nHeight); }
    void CreateGrayCaret(int nWidth, int nHeight);
    static CPoint PASCAL GetCaretPos();
    static void PASCAL SetCaretPos(POINT point) { ::SetCaretPos(point.x, point.y); }
    void HideCaret() { ::HideCaret(m_hWnd); }
    void ShowCaret() { ::ShowCaret(m_hWnd); }
    BOOL OpenClipboard() { return ::OpenClipboard(m_hWnd); }
    static CWnd* PASCAL GetClipboardOwner() { return FromHandle(::GetClipboardOwner()); }
    static CWnd* PASCAL GetClipboardViewer() { return FromHandle(::GetClipboardViewer()); }
    static CWnd* PASCAL GetOpenClipboardWindow() { return FromHandle(::GetOpenClipboardWindow()); }
    HWND SetClipboardViewer() { return ::SetClipboardViewer(m_hWnd); }
    BOOL ChangeClipboardChain(HWND hWndNext) { return ::ChangeClipboardChain(m_hWnd, hWndNext); }
    int SetHotKey(WORD wVirtualKeyCode, WORD wModifiers);
    DWORD GetHotKey() const { return static_cast<DWORD>(::SendMessage(m_hWnd, WM_GETHOTKEY, 0, 0)); }
    BOOL SetWindowContextHelpId(DWORD dwContextHelpId);
    DWORD GetWindowContextHelpId() const { return ::GetWindowContextHelpId(m_hWnd); }
    /// Shows the program's help file; see CWinApp for the three.
    virtual void WinHelp(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);
    virtual void HtmlHelp(DWORD_PTR dwData, UINT nCmd = 0x000F);
    virtual void WinHelpInternal(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);
    afx_msg void OnHelp(); ///< WM_COMMANDHELP to the active window and its owners, else ID_DEFAULT_HELP
    afx_msg void OnHelpIndex() { WinHelpInternal(0, HELP_INDEX); }
    afx_msg void OnHelpFinder() { WinHelpInternal(0, HELP_FINDER); }
    afx_msg void OnHelpUsing() { WinHelpInternal(0, HELP_HELPONHELP); }
    HICON SetIcon(HICON hIcon, BOOL bBigIcon);
    HICON GetIcon(BOOL bBigIcon) const;

    // Tool tips for the window's children. The text is asked for by TTN_NEEDTEXT, whose control id is 0:
    // ON_NOTIFY_EX(TTN_NEEDTEXT, 0, ...) with idFrom the child's handle, as TTF_IDISHWND says.
    BOOL EnableToolTips(BOOL bEnable = TRUE);
    static void PASCAL CancelToolTips(BOOL bKeys = FALSE); ///< hides the tip that is shown
    /// Brings the tip in line with a mouse or key message; PreTranslateMessage does so for the message loop.
    void FilterToolTipMessage(MSG* pMsg);
    /// The tool at a point of the client area, -1 for none. By default the child that is there, by its id.
    virtual INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const;

    // Message boxes
    int MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption = nullptr, UINT nType = MB_OK);

    // Dialog data
    /// Exchanges the members of the object with its controls: FALSE to the controls, TRUE from them. FALSE
    /// when a value was refused; the user has then been told and the control has the focus.
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);
    /// Fills combo and list boxes from the dialog's RT_DLGINIT resource.
    BOOL ExecuteDlgInit(LPCTSTR lpszResourceName);
    BOOL ExecuteDlgInit(LPVOID lpResource);
    /// Brings the state of every control up to date through ON_UPDATE_COMMAND_UI handlers.
    void UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);

    // Modal state
    /// Runs a message loop until EndModalLoop, and answers its result; -1 if the thread is quitting.
    int RunModalLoop(DWORD dwFlags = 0);
    virtual BOOL ContinueModal() { return (m_nFlags & WF_CONTINUEMODAL) != 0; }
    virtual void EndModalLoop(int nResult);
    virtual void BeginModalState() { ::EnableWindow(m_hWnd, FALSE); }
    virtual void EndModalState() { ::EnableWindow(m_hWnd, TRUE); }

    // Translation of messages before dispatch
    virtual BOOL PreTranslateMessage(MSG* pMsg); ///< TRUE when the message is done with and is not dispatched
    BOOL PreTranslateInput(LPMSG lpMsg);         ///< IsDialogMessage for keyboard and mouse messages only
    BOOL IsDialogMessage(LPMSG lpMsg) { return ::IsDialogMessage(m_hWnd, lpMsg); }
    /// Offers a message to PreTranslateMessage of its window and of each parent up to `hWndStop`.
    static BOOL PASCAL WalkPreTranslateTree(HWND hWndStop, MSG* pMsg);

    /// Offers the message being handled to this control as if it had come from the parent.
    BOOL SendChildNotifyLastMsg(LRESULT* pResult = nullptr);

    virtual BOOL CheckAutoCenter() { return TRUE; }
    virtual BOOL IsFrameWnd() const { return FALSE; }
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

    void AssertValid() const override;
    void Dump(CDumpContext& dc) const override;

protected:
    /// Sends this window a message, parameters as numbers or pointers, and answers what it answers: the short
    /// form in which the controls' functions are written.
    template <class Answer = void, class First = WPARAM, class Second = LPARAM>
    Answer AfxSend(UINT message, First first = 0, Second second = 0) const
    {
        ASSERT(::IsWindow(m_hWnd));
        return AfxFromMessage<Answer>(
            ::SendMessage(m_hWnd, message, AfxToMessage<WPARAM>(first), AfxToMessage<LPARAM>(second)));
    }

    friend class CCmdUI;
    friend class CWinThread;
    friend class CDataExchange;
    friend class CFrameWnd;
    friend class CDialog;
    friend AFX_CORE_API LRESULT AFXAPI AfxCallWndProc(CWnd*, HWND, UINT, WPARAM, LPARAM);

    HWND m_hWndOwner = nullptr;   ///< set by SetOwner
    UINT m_nFlags = 0;            ///< WF_ values
    int m_nModalResult = 0;       ///< answer of RunModalLoop
    WNDPROC m_pfnSuper = nullptr; ///< the procedure that stood here before the object

    /// Where the address of a class's original procedure is kept; the object's own m_pfnSuper by default.
    virtual WNDPROC* GetSuperWndProcAddr() { return &m_pfnSuper; }

    /// Passes the message being handled on to the default procedure, with the parameters it came with.
    LRESULT Default();
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual void DoDataExchange(CDataExchange* pDX);
    /// The last call that an object with a window receives; objects made with `new` delete themselves here.
    virtual void PostNcDestroy();

    // Reflection
    /// Gives the message being handled to the child first. TRUE when the child took it; its answer in
    /// `pResult`.
    static BOOL PASCAL ReflectLastMsg(HWND hWndChild, LRESULT* pResult = nullptr);
    /// The control's side of a notification that went to its parent; TRUE keeps it from the parent.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);

    afx_msg LRESULT OnDisplayChange(WPARAM wParam, LPARAM lParam);

public:
    /// The window that owns a dialog or message box shown for `pParent` (may be null). `pWndTop` receives the
    /// top-level window to be disabled when that is not the owner, else null.
    static CWnd* PASCAL GetSafeOwner(CWnd* pParent = nullptr, HWND* pWndTop = nullptr);

protected:
    // Handlers: creation and destruction. Each hands the message on by Default().
    afx_msg int OnCreate(LPCREATESTRUCT /*lpCreateStruct*/) { return static_cast<int>(Default()); }
    afx_msg void OnDestroy() { Default(); }
    afx_msg void OnClose() { Default(); }
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT /*lpCreateStruct*/) { return static_cast<BOOL>(Default()); }
    afx_msg void OnNcDestroy();
    afx_msg BOOL OnQueryEndSession() { return static_cast<BOOL>(Default()); }
    afx_msg void OnEndSession(BOOL /*bEnding*/) { Default(); }

    // Handlers: position, size, style, state
    afx_msg void OnMove(int /*x*/, int /*y*/) { Default(); }
    afx_msg void OnMoving(UINT /*nSide*/, LPRECT /*lpRect*/) { Default(); }
    afx_msg void OnSize(UINT /*nType*/, int /*cx*/, int /*cy*/) { Default(); }
    afx_msg void OnSizing(UINT /*nSide*/, LPRECT /*lpRect*/) { Default(); }
    afx_msg void OnEnterSizeMove() { Default(); }
    afx_msg void OnExitSizeMove() { Default(); }
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* /*lpMMI*/) { Default(); }
    afx_msg void OnWindowPosChanging(WINDOWPOS* /*lpWndPos*/) { Default(); }
    afx_msg void OnWindowPosChanged(WINDOWPOS* /*lpWndPos*/) { Default(); }
    afx_msg void OnStyleChanging(int /*nStyleType*/, LPSTYLESTRUCT /*lpStyleStruct*/) { Default(); }
    afx_msg void OnStyleChanged(int /*nStyleType*/, LPSTYLESTRUCT /*lpStyleStruct*/) { Default(); }
    afx_msg void OnShowWindow(BOOL /*bShow*/, UINT /*nStatus*/) { Default(); }
    afx_msg void OnEnable(BOOL /*bEnable*/) { Default(); }
    afx_msg void OnActivate(UINT /*nState*/, CWnd* /*pWndOther*/, BOOL /*bMinimized*/) { Default(); }
    afx_msg void OnActivateApp(BOOL /*bActive*/, DWORD /*dwThreadID*/) { Default(); }
    afx_msg void OnChildActivate() { Default(); }
    afx_msg void OnMDIActivate(BOOL /*bActivate*/, CWnd* /*pNow*/, CWnd* /*pBefore*/) { Default(); }
    afx_msg void OnSetFocus(CWnd* /*pOldWnd*/) { Default(); }
    afx_msg void OnKillFocus(CWnd* /*pNewWnd*/) { Default(); }
    afx_msg void OnCancelMode() { Default(); }
    afx_msg BOOL OnQueryOpen() { return static_cast<BOOL>(Default()); }
    afx_msg HCURSOR OnQueryDragIcon() { return reinterpret_cast<HCURSOR>(Default()); }
    afx_msg void OnParentNotify(UINT message, LPARAM lParam);
    afx_msg void OnChangeUIState(UINT /*nAction*/, UINT /*nUIElement*/) { Default(); }
    afx_msg void OnUpdateUIState(UINT /*nAction*/, UINT /*nUIElement*/) { Default(); }
    afx_msg UINT OnQueryUIState() { return static_cast<UINT>(Default()); }
    afx_msg void OnEnterIdle(UINT /*nWhy*/, CWnd* /*pWho*/) { Default(); }

    // Handlers: painting and colours
    afx_msg void OnPaint() { Default(); }
    afx_msg BOOL OnEraseBkgnd(CDC* /*pDC*/) { return static_cast<BOOL>(Default()); }
    afx_msg void OnIconEraseBkgnd(CDC* /*pDC*/) { Default(); }
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnSysColorChange();
    afx_msg LRESULT OnThemeChanged() { return Default(); }
    afx_msg BOOL OnQueryNewPalette() { return static_cast<BOOL>(Default()); }
    afx_msg void OnPaletteIsChanging(CWnd* /*pRealizeWnd*/) { Default(); }
    afx_msg void OnPaletteChanged(CWnd* /*pFocusWnd*/) { Default(); }

    // Handlers: non-client area
    afx_msg BOOL OnNcActivate(BOOL /*bActive*/) { return static_cast<BOOL>(Default()); }
    afx_msg void OnNcCalcSize(BOOL /*bCalcValidRects*/, NCCALCSIZE_PARAMS* /*lpncsp*/) { Default(); }
    afx_msg LRESULT OnNcHitTest(CPoint /*point*/) { return Default(); }
    afx_msg void OnNcPaint() { Default(); }
    afx_msg void OnNcMouseMove(UINT /*nHitTest*/, CPoint /*point*/) { Default(); }
    afx_msg void OnNcMouseHover(UINT /*nHitTest*/, CPoint /*point*/) { Default(); }
    afx_msg void OnNcMouseLeave() { Default(); }
    afx_msg void OnNcLButtonDown(UINT /*nHitTest*/, CPoint /*point*/) { Default(); }
    afx_msg void OnNcLButtonUp(UINT /*nHitTest*/, CPoint /*point*/) { Default(); }
    afx_msg void OnNcLButtonDblClk(UINT /*nHitTest*/, CPoint /*point*/) { Default(); }
    afx_msg void OnNcRButtonDown(UINT /*nHitTest*/, CPoint /*point*/) { Default(); }
    afx_msg void OnNcRButtonUp(UINT /*nHitTest*/, CPoint /*point*/) { Default(); }
    afx_msg void OnNcRButtonDblClk(UINT /*nHitTest*/, CPoint /*point*/) { Default(); }
    afx_msg void OnNcMButtonDown(UINT /*nHitTest*/, CPoint /*point*/) { Default(); }
    afx_msg void OnNcMButtonUp(UINT /*nHitTest*/, CPoint /*point*/) { Default(); }
    afx_msg void OnNcMButtonDblClk(UINT /*nHitTest*/, CPoint /*point*/) { Default(); }

    // Handlers: keyboard
    afx_msg void OnChar(UINT /*nChar*/, UINT /*nRepCnt*/, UINT /*nFlags*/) { Default(); }
    afx_msg void OnDeadChar(UINT /*nChar*/, UINT /*nRepCnt*/, UINT /*nFlags*/) { Default(); }
    afx_msg void OnKeyDown(UINT /*nChar*/, UINT /*nRepCnt*/, UINT /*nFlags*/) { Default(); }
    afx_msg void OnKeyUp(UINT /*nChar*/, UINT /*nRepCnt*/, UINT /*nFlags*/) { Default(); }
    afx_msg void OnSysChar(UINT /*nChar*/, UINT /*nRepCnt*/, UINT /*nFlags*/) { Default(); }
    afx_msg void OnSysDeadChar(UINT /*nChar*/, UINT /*nRepCnt*/, UINT /*nFlags*/) { Default(); }
    afx_msg void OnSysKeyDown(UINT /*nChar*/, UINT /*nRepCnt*/, UINT /*nFlags*/) { Default(); }
    afx_msg void OnSysKeyUp(UINT /*nChar*/, UINT /*nRepCnt*/, UINT /*nFlags*/) { Default(); }
    afx_msg UINT OnGetDlgCode() { return static_cast<UINT>(Default()); }
    afx_msg void OnHotKey(UINT /*nHotKeyId*/, UINT /*nModifiers*/, UINT /*nKey*/) { Default(); }
    afx_msg void OnInputLangChange(UINT /*nCharSet*/, UINT /*nLocaleId*/) { Default(); }
    afx_msg void OnInputLangChangeRequest(UINT /*nFlags*/, UINT /*nLocaleId*/) { Default(); }
    afx_msg BOOL OnHelpInfo(HELPINFO* lpHelpInfo);

    // Handlers: mouse
    afx_msg void OnMouseMove(UINT /*nFlags*/, CPoint /*point*/) { Default(); }
    afx_msg void OnLButtonDown(UINT /*nFlags*/, CPoint /*point*/) { Default(); }
    afx_msg void OnLButtonUp(UINT /*nFlags*/, CPoint /*point*/) { Default(); }
    afx_msg void OnLButtonDblClk(UINT /*nFlags*/, CPoint /*point*/) { Default(); }
    afx_msg void OnRButtonDown(UINT /*nFlags*/, CPoint /*point*/) { Default(); }
    afx_msg void OnRButtonUp(UINT /*nFlags*/, CPoint /*point*/) { Default(); }
    afx_msg void OnRButtonDblClk(UINT /*nFlags*/, CPoint /*point*/) { Default(); }
    afx_msg void OnMButtonDown(UINT /*nFlags*/, CPoint /*point*/) { Default(); }
    afx_msg void OnMButtonUp(UINT /*nFlags*/, CPoint /*point*/) { Default(); }
    afx_msg void OnMButtonDblClk(UINT /*nFlags*/, CPoint /*point*/) { Default(); }
    afx_msg void OnXButtonDown(UINT /*nFlags*/, UINT /*nButton*/, CPoint /*point*/) { Default(); }
    afx_msg void OnXButtonUp(UINT /*nFlags*/, UINT /*nButton*/, CPoint /*point*/) { Default(); }
    afx_msg void OnXButtonDblClk(UINT /*nFlags*/, UINT /*nButton*/, CPoint /*point*/) { Default(); }
    afx_msg void OnMouseHover(UINT /*nFlags*/, CPoint /*point*/) { Default(); }
    afx_msg void OnMouseLeave() { Default(); }
    afx_msg BOOL OnMouseWheel(UINT /*nFlags*/, short /*zDelta*/, CPoint /*pt*/) { return Default() != 0; }
    afx_msg int OnMouseActivate(CWnd* /*pWnd*/, UINT /*nHitTest*/, UINT /*message*/)
    {
        return int(Default());
    }
    afx_msg void OnCaptureChanged(CWnd* /*pWnd*/) { Default(); }
    afx_msg BOOL OnSetCursor(CWnd* /*pWnd*/, UINT /*nHitTest*/, UINT /*message*/) { return Default() != 0; }
    afx_msg void OnContextMenu(CWnd* /*pWnd*/, CPoint /*pos*/) { Default(); }
    afx_msg void OnDropFiles(HDROP /*hDropInfo*/) { Default(); }

    // Handlers: scrolling, timers, menus
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnTimer(UINT_PTR /*nIDEvent*/) { Default(); }
    afx_msg void OnInitMenu(CMenu* /*pMenu*/) { Default(); }
    afx_msg void OnInitMenuPopup(CMenu* /*pPopupMenu*/, UINT /*nIndex*/, BOOL /*bSysMenu*/) { Default(); }
    afx_msg void OnMenuSelect(UINT /*nItemID*/, UINT /*nFlags*/, HMENU /*hSysMenu*/) { Default(); }
    afx_msg LRESULT OnMenuChar(UINT /*nChar*/, UINT /*nFlags*/, CMenu* /*pMenu*/) { return Default(); }
    afx_msg void OnEnterMenuLoop(BOOL /*bIsTrackPopupMenu*/) { Default(); }
    afx_msg void OnExitMenuLoop(BOOL /*bIsTrackPopupMenu*/) { Default(); }
    afx_msg void OnSysCommand(UINT /*nID*/, LPARAM /*lParam*/) { Default(); }

    // Handlers: owner-drawn and list controls
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    afx_msg void OnDeleteItem(int nIDCtl, LPDELETEITEMSTRUCT lpDeleteItemStruct);
    afx_msg int OnCompareItem(int nIDCtl, LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    afx_msg int OnCharToItem(UINT nChar, CListBox* pListBox, UINT nIndex);
    afx_msg int OnVKeyToItem(UINT nKey, CListBox* pListBox, UINT nIndex);

    // Handlers: system and session
    afx_msg void OnSettingChange(UINT uFlags, LPCTSTR lpszSection);
    afx_msg void OnWinIniChange(LPCTSTR /*lpszSection*/) { Default(); }
    afx_msg void OnFontChange() { Default(); }
    afx_msg void OnTimeChange() { Default(); }
    afx_msg void OnUserChanged() { Default(); }
    afx_msg void OnDevModeChange(LPTSTR /*lpDeviceName*/) { Default(); }
    afx_msg BOOL OnDeviceChange(UINT /*nEvent*/, DWORD_PTR /*dwData*/)
    {
        return static_cast<BOOL>(Default());
    }
    afx_msg void OnCompacting(UINT /*nCpuTime*/) { Default(); }
    afx_msg void OnSpoolerStatus(UINT /*nStatus*/, UINT /*nJobs*/) { Default(); }
    afx_msg BOOL OnCopyData(CWnd* /*pWnd*/, COPYDATASTRUCT* /*pData*/) { return Default() != 0; }

    // Handlers: clipboard
    afx_msg void OnChangeCbChain(HWND /*hWndRemove*/, HWND /*hWndAfter*/) { Default(); }
    afx_msg void OnDrawClipboard() { Default(); }
    afx_msg void OnDestroyClipboard() { Default(); }
    afx_msg void OnRenderFormat(UINT /*nFormat*/) { Default(); }
    afx_msg void OnRenderAllFormats() { Default(); }

    DECLARE_MESSAGE_MAP()

private:
    friend class CWndHook;
    BOOL OnMappedMsg(const AFX_MSGMAP_ENTRY& entry, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    BOOL OnCtlColorMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    BOOL ReflectCtlColor(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    void TakeOverProcedure();
    explicit CWnd(HWND place); ///< for the places of SetWindowPos
    bool IsPlace() const;
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;
};

// ---------------------------------------------------------------------------------------------------------
// Dialog data exchange: the argument of DoDataExchange. The DDX_ and DDV_ functions stand in afxdd_.h.

class AFX_CORE_CLASS CDataExchange
{
public:
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate);

    BOOL m_bSaveAndValidate; ///< TRUE: from the controls to the members
    CWnd* m_pDlgWnd;         ///< the window whose controls take part

    /// The window of a control, remembered as the one to blame when a value is refused.
    /// Throws CNotSupportedException when there is no such control.
    HWND PrepareCtrl(int nIDC);
    HWND PrepareEditCtrl(int nIDC);
    /// Refuses a value: gives the focus to the last control and throws CUserException. Tell the user before.
    [[noreturn]] void Fail();

    UINT m_idLastControl = 0;
    BOOL m_bEditLastControl = FALSE;
};

// ---------------------------------------------------------------------------------------------------------
// Frame windows

/// The top-level window of an application: it owns itself, receives the commands of its menu, hands those
/// that it does not handle to the application, and ends the program when it is the main window and is closed.
class AFX_CORE_CLASS CFrameWnd : public CWnd
{
    DECLARE_DYNCREATE(CFrameWnd)

public:
    CFrameWnd();
    ~CFrameWnd() override;

    static const CRect rectDefault; ///< lets the system choose position and size

    using CWnd::Create;
    BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle = WS_OVERLAPPEDWINDOW,
                const RECT& rect = rectDefault, CWnd* pParentWnd = nullptr, LPCTSTR lpszMenuName = nullptr,
                DWORD dwExStyle = 0, CCreateContext* pContext = nullptr);
    BOOL LoadAccelTable(LPCTSTR lpszResourceName);

    HACCEL m_hAccelTable = nullptr;
    BOOL m_bAutoMenuEnable = TRUE; ///< menu items whose command nobody handles are disabled

    virtual CFrameWnd* GetActiveFrame() { return this; }
    virtual void ActivateFrame(int nCmdShow = -1);
    CString GetTitle() const { return m_strTitle; }
    void SetTitle(LPCTSTR lpszTitle) { m_strTitle = lpszTitle; }

    /// Modal state of the frame: its other top-level windows are disabled. Counted.
    void BeginModalState() override;
    void EndModalState() override;
    BOOL InModalState() const { return m_cModalStack != 0; }

    BOOL IsFrameWnd() const override { return TRUE; }
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

protected:
    void PostNcDestroy() override;

    afx_msg void OnClose();
    afx_msg void OnEnable(BOOL bEnable);
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu);
    afx_msg BOOL OnQueryEndSession() { return TRUE; }

    CString m_strTitle;
    int m_cModalStack = 0;
    BOOL m_bModalDisable = FALSE;        ///< in modal state because the frame itself was disabled
    std::vector<HWND> m_disabledByModal; ///< windows to be enabled when the modal state ends

    DECLARE_MESSAGE_MAP()
};

// ---------------------------------------------------------------------------------------------------------
// Dialogs

/// A dialog made from a template resource or a template in memory.
///
/// Modal: construct with the template's name or id, call DoModal. It answers what EndDialog was given (IDOK
/// and IDCANCEL by OnOK and OnCancel), -1 if the dialog could not be made, IDABORT on another failure.
/// Modeless: construct without arguments, call Create or CreateIndirect; close it by DestroyWindow, which
/// means that OnOK and OnCancel are to be overridden.
class AFX_CORE_CLASS CDialog : public CWnd
{
    DECLARE_DYNAMIC(CDialog)

public:
    CDialog();
    explicit CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    ~CDialog() override;

    using CWnd::Create;
    virtual BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr,
                                void* lpDialogInit = nullptr);
    virtual BOOL CreateIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = nullptr);
    /// Gives a dialog constructed without arguments its template before DoModal. The memory must outlive
    /// DoModal.
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr,
                           void* lpDialogInit = nullptr);
    BOOL InitModalIndirect(HGLOBAL hDialogTemplate, CWnd* pParentWnd = nullptr);

    virtual INT_PTR DoModal();
    /// Hides a modal dialog and lets DoModal answer; allowed in OnInitDialog too.
    void EndDialog(int nResult);

    void MapDialogRect(LPRECT lpRect) const { ::MapDialogRect(m_hWnd, lpRect); }
    void NextDlgCtrl() const { ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 0, FALSE); }
    void PrevDlgCtrl() const { ::SendMessage(m_hWnd, WM_NEXTDLGCTL, 1, FALSE); }
    void GotoDlgCtrl(CWnd* pWndCtrl);
    void SetDefID(UINT nID) { SendMessage(DM_SETDEFID, nID); }
    void SetHelpID(UINT nIDR) { m_nIDHelp = nIDR; } ///< in place of the template's id
    DWORD GetDefID() const { return static_cast<DWORD>(::SendMessage(m_hWnd, DM_GETDEFID, 0, 0)); }

    /// FALSE when the focus was set by the override. Fills controls from RT_DLGINIT and from the members.
    virtual BOOL OnInitDialog();
    virtual void OnSetFont(CFont* pFont);

    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    BOOL PreTranslateMessage(MSG* pMsg) override;
    BOOL CheckAutoCenter() override;

    void AssertValid() const override { CWnd::AssertValid(); }
    void Dump(CDumpContext& dc) const override;

protected:
    virtual void OnOK(); ///< UpdateData(TRUE), then EndDialog(IDOK); stays open when a value was refused
    virtual void OnCancel() { EndDialog(IDCANCEL); } ///< EndDialog(IDCANCEL)
    virtual void PreInitDialog();

    /// Parent of the modal dialog: found, and disabled, by PreModal; given back by PostModal.
    HWND PreModal();
    void PostModal();
    BOOL CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst);

    UINT m_nIDHelp = 0;
    LPCTSTR m_lpszTemplateName = nullptr;
    HGLOBAL m_hDialogTemplate = nullptr;
    LPCDLGTEMPLATE m_lpDialogTemplate = nullptr;
    void* m_lpDialogInit = nullptr;
    CWnd* m_pParentWnd = nullptr;
    HWND m_hWndTop = nullptr; ///< top-level window disabled beside the owner

    afx_msg LRESULT OnCommandHelp(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnHelpHitTest(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT HandleInitDialog(WPARAM, LPARAM);
    afx_msg LRESULT HandleSetFont(WPARAM, LPARAM);

    DECLARE_MESSAGE_MAP()
};
