// CWnd: one tool tip for each thread, for the children of windows that asked for tips.

#include <afxcmn.h>

#include "safehandle.h"
#include "threadstate.h"
#include "toolhits.h"

#include <utility>

namespace
{
/// Whether tips were ever asked for; until then no message is looked at.
bool tipsInUse = false;

LRESULT AskTip(UINT message, WPARAM wParam, const void* data)
{
    const HWND tip = SafeHwnd(GetThreadState().toolTip);
    return tip != nullptr ? ::SendMessage(tip, message, wParam, reinterpret_cast<LPARAM>(data)) : 0;
}

void ForgetLastTool()
{
    CThreadState& state = GetThreadState();
    state.lastToolWindow = nullptr;
    state.lastTool = -1;
}

bool AnyButtonDown()
{
    return ::GetKeyState(VK_LBUTTON) < 0 || ::GetKeyState(VK_RBUTTON) < 0 || ::GetKeyState(VK_MBUTTON) < 0;
}

bool MayShowTip(UINT message)
{
    switch (message)
    {
    case WM_MOUSEMOVE:
    case WM_NCMOUSEMOVE:
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
    case WM_MBUTTONUP:
        return !AnyButtonDown();
    default:
        return false;
    }
}

bool IsPress(UINT message)
{
    switch (message)
    {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDOWN:
    case WM_MBUTTONDBLCLK:
    case WM_NCLBUTTONDOWN:
    case WM_NCLBUTTONDBLCLK:
    case WM_NCRBUTTONDOWN:
    case WM_NCRBUTTONDBLCLK:
    case WM_NCMBUTTONDOWN:
    case WM_NCMBUTTONDBLCLK:
        return true;
    default:
        return false;
    }
}

/// The thread's tip window, owned by the top-level window of the one that it serves.
CToolTipCtrl* TipFor(CWnd* owner)
{
    CToolTipCtrl*& tip = GetThreadState().toolTip;
    if (tip != nullptr && tip->GetSafeHwnd() != nullptr && tip->GetOwner() == owner)
        return tip;
    delete std::exchange(tip, new CToolTipCtrl);
    if (tip->Create(owner, TTS_ALWAYSTIP))
        tip->Activate(FALSE);
    else
        delete std::exchange(tip, nullptr);
    return tip;
}
} // namespace

void ReleaseToolTip()
{
    delete std::exchange(GetThreadState().toolTip, nullptr);
    ForgetLastTool();
}

void FilterToolTips(CWnd& window, MSG* message)
{
    if (tipsInUse)
        window.FilterToolTipMessage(message);
}

void ForgetToolTips(const CWnd& window)
{
    if (GetThreadState().lastToolWindow != &window)
        return;
    AskTip(TTM_DELTOOL, 0, &GetThreadState().lastToolInfo);
    ForgetLastTool();
}

// ---------------------------------------------------------------------------------------------------------
// Windows with tips

BOOL CWnd::EnableToolTips(BOOL bEnable)
{
    if (bEnable)
    {
        tipsInUse = true;
        m_nFlags |= WF_TOOLTIPS;
    }
    else if ((m_nFlags & WF_TOOLTIPS) != 0)
    {
        if (GetThreadState().lastToolWindow == this)
            CancelToolTips(TRUE);
        ForgetToolTips(*this);
        m_nFlags &= ~WF_TOOLTIPS;
    }
    return TRUE;
}

void PASCAL CWnd::CancelToolTips(BOOL)
{
    AskTip(TTM_ACTIVATE, FALSE, nullptr);
}

INT_PTR CWnd::OnToolHitTest(CPoint point, TOOLINFO* pTI) const
{
    ClientToScreen(&point);
    for (HWND child = ::GetTopWindow(m_hWnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        CRect rect;
        ::GetWindowRect(child, &rect);
        const int id = ::GetDlgCtrlID(child);
        if (LOWORD(id) == LOWORD(-1) || !rect.PtInRect(point) ||
            (::GetWindowLong(child, GWL_STYLE) & WS_VISIBLE) == 0)
            continue; // labels carry the id -1 and want no tips
        if (pTI != nullptr)
        {
            pTI->hwnd = m_hWnd;
            pTI->uId = reinterpret_cast<UINT_PTR>(child);
            pTI->uFlags |= TTF_IDISHWND;
            pTI->lpszText = LPSTR_TEXTCALLBACK;
            if ((::SendMessage(child, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON) == 0)
                pTI->uFlags |= TTF_NOTBUTTON | TTF_CENTERTIP;
        }
        return id;
    }
    return -1;
}

namespace
{
/// Moves the thread's tip to the tool that is under the mouse.
void FollowMouse(CWnd& window, MSG* message)
{
    CToolTipCtrl* const tip = TipFor(window.GetParentOwner());
    if (tip == nullptr)
        return;
    CPoint point(message->pt);
    window.ScreenToClient(&point);
    TOOLINFO hit{};
    hit.cbSize = TTTOOLINFO_V1_SIZE; // understood by every version of the control
    const INT_PTR tool = window.OnToolHitTest(point, &hit);
    const CWnd* const toolWindow = tool != -1 ? &window : nullptr;

    CThreadState& state = GetThreadState();
    if (tool == state.lastTool && toolWindow == state.lastToolWindow)
    {
        if (tool != -1)
            tip->RelayEvent(message);
        return;
    }
    if (tool == -1)
        tip->Activate(FALSE);
    else
    {
        TOOLINFO added = hit;
        added.uFlags &= ~(TTF_NOTBUTTON | TTF_ALWAYSTIP);
        AskTip(TTM_ADDTOOL, 0, &added);
        if ((hit.uFlags & TTF_ALWAYSTIP) != 0 || window.IsTopParentActive())
        {
            tip->Activate(TRUE);
            tip->SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0,
                              SWP_NOACTIVATE | SWP_NOSIZE | SWP_NOMOVE | SWP_NOOWNERZORDER);
        }
    }
    tip->RelayEvent(message); // the tool before must still be there to be left
    AskTip(TTM_DELTOOL, 0, &state.lastToolInfo);
    if (!IS_INTRESOURCE(hit.lpszText) && hit.lpszText != LPSTR_TEXTCALLBACK)
        free(std::exchange(hit.lpszText, nullptr)); // the tip has a copy
    state.lastToolWindow = toolWindow;
    state.lastTool = tool;
    state.lastToolInfo = hit;
}
} // namespace

void CWnd::FilterToolTipMessage(MSG* pMsg)
{
    // The nearest window with tips serves the message, and only that one.
    const CWnd* server = nullptr;
    for (HWND above = pMsg->hwnd; above != nullptr && server == nullptr; above = ::GetParent(above))
    {
        const CWnd* const window = FromHandlePermanent(above);
        if (window != nullptr && (window->m_nFlags & WF_TOOLTIPS) != 0)
            server = window;
    }
    const UINT message = pMsg->message;
    const bool isKey = message >= WM_KEYFIRST && message <= WM_KEYLAST;
    if (server == nullptr)
    {
        if (MayShowTip(message))
            ForgetLastTool();
    }
    else if (server != this)
        return;
    else if (MayShowTip(message))
        FollowMouse(*this, pMsg);
    else if (isKey || IsPress(message))
        CancelToolTips(isKey);
}
