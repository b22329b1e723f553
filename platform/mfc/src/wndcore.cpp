// CWnd: the wrappers of Win32 calls, and the searches among related windows.

#include <afxwin.h>

#include "relatives.h"
#include "safehandle.h"

#include <algorithm>

// ---------------------------------------------------------------------------------------------------------
// The handle

HWND CWnd::GetSafeHwnd() const
{
    return SafeHwnd(this);
}

namespace
{
BOOL ModifyWindowLong(HWND window, int index, DWORD remove, DWORD add, UINT flags)
{
    const auto before = static_cast<DWORD>(::GetWindowLong(window, index));
    const DWORD after = (before & ~remove) | add;
    if (after == before)
        return FALSE;
    ::SetWindowLong(window, index, static_cast<LONG>(after));
    if (flags != 0)
        ::SetWindowPos(window, nullptr, 0, 0, 0, 0,
                       SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | flags);
    return TRUE;
}
} // namespace

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ModifyWindowLong(m_hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ModifyWindowLong(m_hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
}

BOOL PASCAL CWnd::ModifyStyle(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ModifyWindowLong(hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

BOOL PASCAL CWnd::ModifyStyleEx(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags)
{
    return ModifyWindowLong(hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
}

// ---------------------------------------------------------------------------------------------------------
// Related windows

CWnd* CWnd::SetParent(CWnd* pWndNewParent)
{
    return FromHandle(::SetParent(m_hWnd, pWndNewParent->GetSafeHwnd()));
}

CWnd* CWnd::GetTopLevelParent() const
{
    HWND top = GetSafeHwnd();
    if (top == nullptr)
        return nullptr;
    while (const HWND above = ParentOrOwnerOf(top))
        top = above;
    return FromHandle(top);
}

CWnd* CWnd::GetTopLevelOwner() const
{
    HWND top = GetSafeHwnd();
    if (top == nullptr)
        return nullptr;
    while (const HWND owner = ::GetWindow(top, GW_OWNER))
        top = owner;
    return FromHandle(top);
}

CWnd* CWnd::GetParentOwner() const
{
    HWND owner = GetSafeHwnd();
    if (owner == nullptr)
        return nullptr;
    while (owner != nullptr && (::GetWindowLong(owner, GWL_STYLE) & WS_CHILD) != 0)
        owner = ::GetParent(owner);
    return FromHandle(owner);
}

CFrameWnd* CWnd::GetParentFrame() const
{
    if (GetSafeHwnd() == nullptr)
        return nullptr;
    for (HWND above = ::GetParent(m_hWnd); above != nullptr; above = ::GetParent(above))
    {
        CWnd* const window = FromHandlePermanent(above);
        if (window != nullptr && window->IsFrameWnd())
            return static_cast<CFrameWnd*>(window);
    }
    return nullptr;
}

CFrameWnd* CWnd::GetTopLevelFrame() const
{
    if (GetSafeHwnd() == nullptr)
        return nullptr;
    CFrameWnd* frame = IsFrameWnd() ? static_cast<CFrameWnd*>(const_cast<CWnd*>(this)) : GetParentFrame();
    for (CFrameWnd* above = frame; above != nullptr; above = above->GetParentFrame())
        frame = above;
    return frame;
}

BOOL CWnd::IsTopParentActive() const
{
    CWnd* const top = GetTopLevelParent();
    return top != nullptr && ::GetForegroundWindow() == ::GetLastActivePopup(top->m_hWnd);
}

void CWnd::ActivateTopParent()
{
    // Only within the active application: its popups may be in front of the parent, and stay there.
    const HWND active = ::GetForegroundWindow();
    if (active == nullptr || !(active == m_hWnd || ::IsChild(active, m_hWnd)))
        if (CWnd* const top = GetTopLevelParent())
            top->SetForegroundWindow();
}

CWnd* PASCAL CWnd::FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName)
{
    return FromHandle(::FindWindow(lpszClassName, lpszWindowName));
}

CWnd* PASCAL CWnd::FindWindowEx(HWND hwndParent, HWND hwndChildAfter, LPCTSTR lpszClass, LPCTSTR lpszWindow)
{
    return FromHandle(::FindWindowEx(hwndParent, hwndChildAfter, lpszClass, lpszWindow));
}

CWnd* CWnd::ChildWindowFromPoint(POINT point) const
{
    return FromHandle(::ChildWindowFromPoint(m_hWnd, point));
}

CWnd* CWnd::ChildWindowFromPoint(POINT point, UINT nFlags) const
{
    return FromHandle(::ChildWindowFromPointEx(m_hWnd, point, nFlags));
}

CWnd* CWnd::GetDescendantWindow(int nID, BOOL bOnlyPerm) const
{
    return GetDescendantWindow(m_hWnd, nID, bOnlyPerm);
}

CWnd* PASCAL CWnd::GetDescendantWindow(HWND hWnd, int nID, BOOL bOnlyPerm)
{
    if (const HWND child = ::GetDlgItem(hWnd, nID))
    {
        // Controls that build their own children may use the id a second time, below the one that is meant.
        if (CWnd* const inner = GetDescendantWindow(child, nID, bOnlyPerm))
            return inner;
        CWnd* const found = bOnlyPerm ? FromHandlePermanent(child) : FromHandle(child);
        if (found != nullptr)
            return found;
    }
    for (HWND child = ::GetTopWindow(hWnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
        if (CWnd* const found = GetDescendantWindow(child, nID, bOnlyPerm))
            return found;
    return nullptr;
}

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep, BOOL bOnlyPerm)
{
    SendMessageToDescendants(m_hWnd, message, wParam, lParam, bDeep, bOnlyPerm);
}

void PASCAL CWnd::SendMessageToDescendants(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep,
                                           BOOL bOnlyPerm)
{
    for (HWND child = ::GetTopWindow(hWnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        if (!bOnlyPerm)
            ::SendMessage(child, message, wParam, lParam);
        else if (CWnd* const window = FromHandlePermanent(child))
            AfxCallWndProc(window, child, message, wParam, lParam);
        if (bDeep)
            SendMessageToDescendants(child, message, wParam, lParam, bDeep, bOnlyPerm);
    }
}

// ---------------------------------------------------------------------------------------------------------
// Messages, text, font, menus

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::SendMessage(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::PostMessage(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::SendNotifyMessage(m_hWnd, message, wParam, lParam);
}

int CWnd::GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const
{
    return ::GetWindowText(m_hWnd, lpszStringBuf, nMaxCount);
}

void CWnd::GetWindowText(CString& rString) const
{
    const int length = ::GetWindowTextLength(m_hWnd);
    ::GetWindowText(m_hWnd, rString.GetBufferSetLength(length), length + 1);
    rString.ReleaseBuffer();
}

void CWnd::SetFont(CFont* pFont, BOOL bRedraw)
{
    ::SendMessage(m_hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(pFont->GetSafeHandle()), bRedraw);
}

CFont* CWnd::GetFont() const
{
    return CFont::FromHandle(reinterpret_cast<HFONT>(::SendMessage(m_hWnd, WM_GETFONT, 0, 0)));
}

BOOL CWnd::HiliteMenuItem(CMenu* pMenu, UINT nIDHiliteItem, UINT nHilite)
{
    return ::HiliteMenuItem(m_hWnd, pMenu->m_hMenu, nIDHiliteItem, nHilite);
}

// ---------------------------------------------------------------------------------------------------------
// Position and size

void CWnd::MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint)
{
    ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
}

void CWnd::MoveWindow(LPCRECT lpRect, BOOL bRepaint)
{
    MoveWindow(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top,
               bRepaint);
}

BOOL CWnd::SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags)
{
    return ::SetWindowPos(m_hWnd, pWndInsertAfter->GetSafeHwnd(), x, y, cx, cy, nFlags);
}

BOOL CWnd::GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const
{
    lpwndpl->length = sizeof(WINDOWPLACEMENT);
    return ::GetWindowPlacement(m_hWnd, lpwndpl);
}

void CWnd::ClientToScreen(LPRECT lpRect) const
{
    // Two points at once, so that the sides of a mirrored window do not change places.
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<POINT*>(lpRect), 2);
}

void CWnd::ScreenToClient(LPRECT lpRect) const
{
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<POINT*>(lpRect), 2);
}

void CWnd::MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const
{
    ::MapWindowPoints(m_hWnd, pwndTo->GetSafeHwnd(), lpPoint, nCount);
}

void CWnd::MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const
{
    ::MapWindowPoints(m_hWnd, pwndTo->GetSafeHwnd(), reinterpret_cast<POINT*>(lpRect), 2);
}

void CWnd::CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType)
{
    DWORD exStyle = GetExStyle();
    if (nAdjustType == adjustBorder)
        exStyle &= ~WS_EX_CLIENTEDGE;
    ::AdjustWindowRectEx(lpClientRect, GetStyle(), FALSE, exStyle);
}

// ---------------------------------------------------------------------------------------------------------
// Painting

CDC* CWnd::GetDCEx(CRgn* prgnClip, DWORD flags)
{
    return CDC::FromHandle(::GetDCEx(m_hWnd, static_cast<HRGN>(prgnClip->GetSafeHandle()), flags));
}

void CWnd::Print(CDC* pDC, DWORD dwFlags) const
{
    ::SendMessage(m_hWnd, WM_PRINT, reinterpret_cast<WPARAM>(pDC->GetSafeHdc()), dwFlags);
}

void CWnd::PrintClient(CDC* pDC, DWORD dwFlags) const
{
    ::SendMessage(m_hWnd, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(pDC->GetSafeHdc()), dwFlags);
}

int CWnd::GetUpdateRgn(CRgn* pRgn, BOOL bErase)
{
    return ::GetUpdateRgn(m_hWnd, static_cast<HRGN>(pRgn->GetSafeHandle()), bErase);
}

void CWnd::InvalidateRgn(CRgn* pRgn, BOOL bErase)
{
    ::InvalidateRgn(m_hWnd, static_cast<HRGN>(pRgn->GetSafeHandle()), bErase);
}

BOOL CWnd::RedrawWindow(LPCRECT lpRectUpdate, CRgn* prgnUpdate, UINT flags)
{
    return ::RedrawWindow(m_hWnd, lpRectUpdate, static_cast<HRGN>(prgnUpdate->GetSafeHandle()), flags);
}

BOOL CWnd::DrawAnimatedRects(int idAni, CONST RECT* lprcFrom, CONST RECT* lprcTo)
{
    return ::DrawAnimatedRects(m_hWnd, idAni, lprcFrom, lprcTo);
}

BOOL CWnd::DrawCaption(CDC* pDC, LPCRECT lprc, UINT uFlags)
{
    return ::DrawCaption(m_hWnd, pDC->GetSafeHdc(), lprc, uFlags);
}

BOOL CWnd::SetLayeredWindowAttributes(COLORREF crKey, BYTE bAlpha, DWORD dwFlags)
{
    return ::SetLayeredWindowAttributes(m_hWnd, crKey, bAlpha, dwFlags);
}

BOOL CWnd::GetLayeredWindowAttributes(COLORREF* pcrKey, BYTE* pbAlpha, DWORD* pdwFlags) const
{
    return ::GetLayeredWindowAttributes(m_hWnd, pcrKey, pbAlpha, pdwFlags);
}

BOOL CWnd::UpdateLayeredWindow(CDC* pDCDst, POINT* pptDst, SIZE* psize, CDC* pDCSrc, POINT* pptSrc,
                               COLORREF crKey, BLENDFUNCTION* pblend, DWORD dwFlags)
{
    return ::UpdateLayeredWindow(m_hWnd, SafeHdc(pDCDst), pptDst, psize, SafeHdc(pDCSrc), pptSrc, crKey,
                                 pblend, dwFlags);
}

// ---------------------------------------------------------------------------------------------------------
// Timers and state

UINT_PTR CWnd::SetTimer(UINT_PTR nIDEvent, UINT nElapse,
                        void(CALLBACK* lpfnTimer)(HWND, UINT, UINT_PTR, DWORD))
{
    return ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer);
}

BOOL CWnd::FlashWindowEx(DWORD dwFlags, UINT uCount, DWORD dwTimeout)
{
    FLASHWINFO info{sizeof info, m_hWnd, dwFlags, uCount, dwTimeout};
    return ::FlashWindowEx(&info);
}

// ---------------------------------------------------------------------------------------------------------
// Dialog items

void CWnd::CheckRadioButton(int nIDFirstButton, int nIDLastButton, int nIDCheckButton)
{
    ::CheckRadioButton(m_hWnd, nIDFirstButton, nIDLastButton, nIDCheckButton);
}

int CWnd::GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton) const
{
    for (int id = nIDFirstButton; id <= nIDLastButton; ++id)
        if (::IsDlgButtonChecked(m_hWnd, id) != 0)
            return id;
    return 0;
}

UINT CWnd::GetDlgItemInt(int nID, BOOL* lpTrans, BOOL bSigned) const
{
    return ::GetDlgItemInt(m_hWnd, nID, lpTrans, bSigned);
}

void CWnd::SetDlgItemInt(int nID, UINT nValue, BOOL bSigned)
{
    ::SetDlgItemInt(m_hWnd, nID, nValue, bSigned);
}

int CWnd::GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const
{
    return static_cast<int>(::GetDlgItemText(m_hWnd, nID, lpStr, nMaxCount));
}

int CWnd::GetDlgItemText(int nID, CString& rString) const
{
    rString.Empty();
    const HWND item = ::GetDlgItem(m_hWnd, nID);
    if (item == nullptr)
        return 0;
    const int length = ::GetWindowTextLength(item);
    ::GetWindowText(item, rString.GetBufferSetLength(length), length + 1);
    rString.ReleaseBuffer();
    return rString.GetLength();
}

CWnd* CWnd::GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious) const
{
    return FromHandle(::GetNextDlgGroupItem(m_hWnd, pWndCtl->GetSafeHwnd(), bPrevious));
}

CWnd* CWnd::GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious) const
{
    return FromHandle(::GetNextDlgTabItem(m_hWnd, pWndCtl->GetSafeHwnd(), bPrevious));
}

LRESULT CWnd::SendDlgItemMessage(int nID, UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::SendDlgItemMessage(m_hWnd, nID, message, wParam, lParam);
}

int CWnd::DlgDirList(LPTSTR lpPathSpec, int nIDListBox, int nIDStaticPath, UINT nFileType)
{
    return ::DlgDirList(m_hWnd, lpPathSpec, nIDListBox, nIDStaticPath, nFileType);
}

int CWnd::DlgDirListComboBox(LPTSTR lpPathSpec, int nIDComboBox, int nIDStaticPath, UINT nFileType)
{
    return ::DlgDirListComboBox(m_hWnd, lpPathSpec, nIDComboBox, nIDStaticPath, nFileType);
}

BOOL CWnd::DlgDirSelect(LPTSTR lpString, int nSize, int nIDListBox)
{
    return ::DlgDirSelectEx(m_hWnd, lpString, nSize, nIDListBox);
}

BOOL CWnd::DlgDirSelectComboBox(LPTSTR lpString, int nSize, int nIDComboBox)
{
    return ::DlgDirSelectComboBoxEx(m_hWnd, lpString, nSize, nIDComboBox);
}

// ---------------------------------------------------------------------------------------------------------
// Scrolling. A bar may be a control beside the window: GetScrollBarCtrl says so.

namespace
{
/// The window and the bar code that scrolling calls use: the control's own when there is one.
struct CScrollTarget
{
    CScrollTarget(const CWnd& window, int bar) : handle(window.m_hWnd), code(bar)
    {
        if (const CScrollBar* const control = window.GetScrollBarCtrl(bar))
        {
            handle = control->m_hWnd;
            code = SB_CTL;
        }
    }

    HWND handle;
    int code;
};
} // namespace

CScrollBar* CWnd::GetScrollBarCtrl(int) const
{
    return nullptr;
}

int CWnd::GetScrollPos(int nBar) const
{
    const CScrollTarget target(*this, nBar);
    return ::GetScrollPos(target.handle, target.code);
}

void CWnd::GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const
{
    const CScrollTarget target(*this, nBar);
    ::GetScrollRange(target.handle, target.code, lpMinPos, lpMaxPos);
}

int CWnd::SetScrollPos(int nBar, int nPos, BOOL bRedraw)
{
    const CScrollTarget target(*this, nBar);
    return ::SetScrollPos(target.handle, target.code, nPos, bRedraw);
}

void CWnd::SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw)
{
    const CScrollTarget target(*this, nBar);
    ::SetScrollRange(target.handle, target.code, nMinPos, nMaxPos, bRedraw);
}

BOOL CWnd::SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw)
{
    const CScrollTarget target(*this, nBar);
    lpScrollInfo->cbSize = sizeof(SCROLLINFO);
    ::SetScrollInfo(target.handle, target.code, lpScrollInfo, bRedraw);
    return TRUE;
}

BOOL CWnd::GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask)
{
    const CScrollTarget target(*this, nBar);
    lpScrollInfo->cbSize = sizeof(SCROLLINFO);
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(target.handle, target.code, lpScrollInfo);
}

int CWnd::GetScrollLimit(int nBar)
{
    int lowest = 0;
    int highest = 0;
    GetScrollRange(nBar, &lowest, &highest);
    SCROLLINFO info{};
    if (GetScrollInfo(nBar, &info, SIF_PAGE))
        highest -= (std::max)(static_cast<int>(info.nPage) - 1, 0);
    return highest;
}

void CWnd::ShowScrollBar(UINT nBar, BOOL bShow)
{
    CScrollBar* const control = nBar == SB_BOTH ? nullptr : GetScrollBarCtrl(static_cast<int>(nBar));
    if (control != nullptr)
        control->ShowWindow(bShow ? SW_SHOW : SW_HIDE);
    else
        ::ShowScrollBar(m_hWnd, static_cast<int>(nBar), bShow);
}

void CWnd::EnableScrollBarCtrl(int nBar, BOOL bEnable)
{
    if (nBar == SB_BOTH)
    {
        EnableScrollBarCtrl(SB_HORZ, bEnable);
        EnableScrollBarCtrl(SB_VERT, bEnable);
    }
    else if (CScrollBar* const control = GetScrollBarCtrl(nBar))
        control->EnableWindow(bEnable);
}

BOOL CWnd::EnableScrollBar(int nSBFlags, UINT nArrowFlags)
{
    return ::EnableScrollBar(m_hWnd, static_cast<UINT>(nSBFlags), nArrowFlags);
}

BOOL CWnd::GetScrollBarInfo(LONG idObject, PSCROLLBARINFO psbi) const
{
    psbi->cbSize = sizeof(SCROLLBARINFO);
    return ::GetScrollBarInfo(m_hWnd, idObject, psbi);
}

void CWnd::ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect, LPCRECT lpClipRect)
{
    ::ScrollWindow(m_hWnd, xAmount, yAmount, lpRect, lpClipRect);
}

int CWnd::ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate,
                         LPRECT lpRectUpdate, UINT flags)
{
    return ::ScrollWindowEx(m_hWnd, dx, dy, lpRectScroll, lpRectClip,
                            static_cast<HRGN>(prgnUpdate->GetSafeHandle()), lpRectUpdate, flags);
}

// ---------------------------------------------------------------------------------------------------------
// Caret, clipboard, hot key, help, icons, message boxes

void CWnd::CreateCaret(CBitmap* pBitmap)
{
    ::CreateCaret(m_hWnd, static_cast<HBITMAP>(pBitmap->GetSafeHandle()), 0, 0);
}

void CWnd::CreateGrayCaret(int nWidth, int nHeight)
{
    ::CreateCaret(m_hWnd, reinterpret_cast<HBITMAP>(1), nWidth, nHeight); // 1 stands for gray
}

CPoint PASCAL CWnd::GetCaretPos()
{
    CPoint position(0, 0);
    ::GetCaretPos(&position);
    return position;
}

int CWnd::SetHotKey(WORD wVirtualKeyCode, WORD wModifiers)
{
    return static_cast<int>(::SendMessage(m_hWnd, WM_SETHOTKEY, MAKEWORD(wVirtualKeyCode, wModifiers), 0));
}

BOOL CWnd::SetWindowContextHelpId(DWORD dwContextHelpId)
{
    return ::SetWindowContextHelpId(m_hWnd, dwContextHelpId);
}

HICON CWnd::SetIcon(HICON hIcon, BOOL bBigIcon)
{
    return reinterpret_cast<HICON>(
        ::SendMessage(m_hWnd, WM_SETICON, bBigIcon, reinterpret_cast<LPARAM>(hIcon)));
}

HICON CWnd::GetIcon(BOOL bBigIcon) const
{
    return reinterpret_cast<HICON>(::SendMessage(m_hWnd, WM_GETICON, bBigIcon, 0));
}

int CWnd::MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption, UINT nType)
{
    return ::MessageBox(GetSafeHwnd(), lpszText, lpszCaption != nullptr ? lpszCaption : AfxGetAppName(),
                        nType);
}

void CWnd::AssertValid() const
{
    CCmdTarget::AssertValid();
    ASSERT(IsPlace() || m_hWnd == nullptr || ::IsWindow(m_hWnd));
}

void CWnd::Dump(CDumpContext& dc) const
{
    CCmdTarget::Dump(dc);
    dc << "\nm_hWnd = " << static_cast<const void*>(m_hWnd) << "\n";
}
