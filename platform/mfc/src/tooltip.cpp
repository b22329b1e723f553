// Tool tips.

#include <afxcmn.h>
#include <afxpriv.h>

#include "commctl.h"

IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

CToolTipCtrl::CToolTipCtrl() = default;

BEGIN_MESSAGE_MAP(CToolTipCtrl, CWnd)
    ON_MESSAGE(WM_DISABLEMODAL, &CToolTipCtrl::OnDisableModal)
    ON_MESSAGE(TTM_WINDOWFROMPOINT, &CToolTipCtrl::OnWindowFromPoint)
END_MESSAGE_MAP()

BOOL CToolTipCtrl::CreateEx(CWnd* pParentWnd, DWORD dwStyle, DWORD dwStyleEx)
{
    if (!RegisterCommonControls(ICC_TAB_CLASSES))
        return FALSE;
    const BOOL created =
        CWnd::CreateEx(dwStyleEx, TOOLTIPS_CLASS, nullptr, WS_POPUP | dwStyle, CW_USEDEFAULT, CW_USEDEFAULT,
                       CW_USEDEFAULT, CW_USEDEFAULT, SafeHwnd(pParentWnd), nullptr);
    if (created)
        SetOwner(pParentWnd);
    return created;
}

// ---------------------------------------------------------------------------------------------------------
// Message handlers

LRESULT CToolTipCtrl::OnDisableModal(WPARAM, LPARAM)
{
    // Stays enabled while the application is modal: the modal dialog may be the one whose tips it shows.
    return TRUE;
}

namespace
{
/// The innermost visible child at a point of the screen, also among disabled ones, or null.
HWND DeepChildFromPoint(HWND window, POINT screen)
{
    HWND found = nullptr;
    for (;;)
    {
        POINT client = screen;
        ::ScreenToClient(window, &client);
        const HWND child = ::ChildWindowFromPointEx(window, client, CWP_SKIPINVISIBLE | CWP_SKIPTRANSPARENT);
        if (child == nullptr || child == window)
            return found;
        window = found = child;
    }
}
} // namespace

LRESULT CToolTipCtrl::OnWindowFromPoint(WPARAM, LPARAM lParam)
{
    // The control's own answer looks through disabled windows; their tips are wanted too.
    const POINT point = *reinterpret_cast<const POINT*>(lParam);
    const HWND window = ::WindowFromPoint(point);
    const HWND child = window == nullptr ? nullptr : DeepChildFromPoint(window, point);
    return reinterpret_cast<LRESULT>(child == nullptr ? window : child);
}

// ---------------------------------------------------------------------------------------------------------
// Tools

void CToolTipCtrl::FillInToolInfo(TOOLINFO& ti, CWnd* pWnd, UINT_PTR nIDTool) const
{
    ti = TOOLINFO();
    // The smallest size is understood by every version of the control.
    ti.cbSize = TTTOOLINFO_V1_SIZE;
    const HWND window = SafeHwnd(pWnd);
    if (nIDTool == 0)
    {
        ti.hwnd = ::GetParent(window);
        ti.uFlags = TTF_IDISHWND;
        ti.uId = reinterpret_cast<UINT_PTR>(window);
    }
    else
    {
        ti.hwnd = window;
        ti.uId = nIDTool;
    }
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, LPCTSTR lpszText, LPCRECT lpRectTool, UINT_PTR nIDTool)
{
    TOOLINFO tool;
    FillInToolInfo(tool, pWnd, nIDTool);
    if (lpRectTool != nullptr)
        tool.rect = *lpRectTool;
    tool.lpszText = const_cast<LPTSTR>(lpszText);
    return AfxSend<BOOL>(TTM_ADDTOOL, 0, &tool);
}

BOOL CToolTipCtrl::AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool, UINT_PTR nIDTool)
{
    TOOLINFO tool;
    FillInToolInfo(tool, pWnd, nIDTool);
    if (lpRectTool != nullptr)
        tool.rect = *lpRectTool;
    tool.hinst = AfxFindStringResourceHandle(nIDText);
    tool.lpszText = MAKEINTRESOURCE(nIDText);
    return AfxSend<BOOL>(TTM_ADDTOOL, 0, &tool);
}

void CToolTipCtrl::DelTool(CWnd* pWnd, UINT_PTR nIDTool)
{
    TOOLINFO tool;
    FillInToolInfo(tool, pWnd, nIDTool);
    AfxSend(TTM_DELTOOL, 0, &tool);
}

void CToolTipCtrl::GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool) const
{
    // The message knows no size; a text of the control's own is shorter than this.
    constexpr int longest = 1024;
    TOOLINFO tool;
    FillInToolInfo(tool, pWnd, nIDTool);
    tool.lpszText = str.GetBuffer(longest);
    tool.lpszText[0] = 0;
    AfxSend(TTM_GETTEXT, longest, &tool);
    str.ReleaseBuffer();
}

void CToolTipCtrl::UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool)
{
    TOOLINFO tool;
    FillInToolInfo(tool, pWnd, nIDTool);
    tool.lpszText = const_cast<LPTSTR>(lpszText);
    AfxSend(TTM_UPDATETIPTEXT, 0, &tool);
}

void CToolTipCtrl::UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool)
{
    CString text;
    VERIFY(text.LoadString(nIDText));
    UpdateTipText(text, pWnd, nIDTool);
}

BOOL CToolTipCtrl::GetToolInfo(CToolInfo& ToolInfo, CWnd* pWnd, UINT_PTR nIDTool) const
{
    FillInToolInfo(ToolInfo, pWnd, nIDTool);
    ToolInfo.szText[0] = 0;
    ToolInfo.lpszText = ToolInfo.szText;
    return AfxSend<BOOL>(TTM_GETTOOLINFO, 0, static_cast<TOOLINFO*>(&ToolInfo));
}

BOOL CToolTipCtrl::GetCurrentTool(LPTOOLINFO lpToolInfo) const
{
    return AfxSend<BOOL>(TTM_GETCURRENTTOOL, 0, lpToolInfo);
}

void CToolTipCtrl::SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect)
{
    TOOLINFO tool;
    FillInToolInfo(tool, pWnd, nIDTool);
    tool.rect = *lpRect;
    AfxSend(TTM_NEWTOOLRECT, 0, &tool);
}

BOOL CToolTipCtrl::HitTest(CWnd* pWnd, CPoint pt, LPTOOLINFO lpToolInfo) const
{
    TTHITTESTINFO hit = {};
    hit.ti.cbSize = TTTOOLINFO_V1_SIZE;
    hit.hwnd = SafeHwnd(pWnd);
    hit.pt = pt;
    if (!AfxSend<BOOL>(TTM_HITTEST, 0, &hit))
        return FALSE;
    *lpToolInfo = hit.ti;
    return TRUE;
}

// ---------------------------------------------------------------------------------------------------------
// Times and looks

void CToolTipCtrl::SetDelayTime(DWORD dwDuration, int iTime)
{
    AfxSend(TTM_SETDELAYTIME, dwDuration, MAKELPARAM(iTime, 0));
}

CSize CToolTipCtrl::GetBubbleSize(LPTOOLINFO lpToolInfo) const
{
    return CSize(AfxSend<DWORD>(TTM_GETBUBBLESIZE, 0, lpToolInfo));
}

// ---------------------------------------------------------------------------------------------------------
// Showing
