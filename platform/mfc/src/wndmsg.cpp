// CWnd: notifications of child controls, and the handlers that the class itself has for window messages.

#include <afxpriv.h>

#include "threadstate.h"

// clang-format off
BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_NCDESTROY()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_SETTINGCHANGE()
    ON_WM_CTLCOLOR()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_DELETEITEM()
    ON_WM_COMPAREITEM()
    ON_WM_CHARTOITEM()
    ON_WM_VKEYTOITEM()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_PARENTNOTIFY()
    ON_WM_HELPINFO()
    ON_MESSAGE(WM_DISPLAYCHANGE, &CWnd::OnDisplayChange)
END_MESSAGE_MAP()
// clang-format on

// ---------------------------------------------------------------------------------------------------------
// Commands and notifications

BOOL CWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    return CCmdTarget::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

namespace
{
/// Answers only whether a command is enabled at the moment.
class CEnabledProbe : public CCmdUI
{
public:
    BOOL m_bEnabled = TRUE;
    void Enable(BOOL bOn) override
    {
        m_bEnabled = bOn;
        m_bEnableChanged = TRUE;
    }
    void SetCheck(int) override {}
    void SetRadio(BOOL) override {}
    void SetText(LPCTSTR) override {}
};

/// Notifications are dropped while the window exchanges data with its controls: they come from the exchange.
bool IsLockedOut(const CWnd& window)
{
    return GetThreadState().lockoutNotifyWindow == window.m_hWnd;
}
} // namespace

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const UINT id = LOWORD(wParam);
    const auto control = reinterpret_cast<HWND>(lParam);
    if (control != nullptr)
    {
        // ReflectLastMsg, with the thread's state looked up once: the most frequent notification of all.
        const CThreadState& state = GetThreadState();
        if (state.lockoutNotifyWindow == m_hWnd)
            return TRUE;
        const MSG& last = *state.lastSentMessage;
        CWnd* const child = FromHandlePermanent(control);
        if (child != nullptr && child->OnChildNotify(last.message, last.wParam, last.lParam, nullptr))
            return TRUE;
        return OnCmdMsg(id, HIWORD(wParam), nullptr, nullptr);
    }

    // A menu item or an accelerator; the latter arrives even if its command is disabled.
    if (id == 0)
        return FALSE;
    CEnabledProbe probe;
    probe.m_nID = id;
    OnCmdMsg(id, static_cast<int>(CN_UPDATE_COMMAND_UI), &probe, nullptr);
    if (!probe.m_bEnabled)
        return TRUE;
    return OnCmdMsg(id, CN_COMMAND, nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* pResult)
{
    auto* const header = reinterpret_cast<NMHDR*>(lParam);
    if (IsLockedOut(*this) || ReflectLastMsg(header->hwndFrom, pResult))
        return TRUE;
    AFX_NOTIFY notify{pResult, header};
    const UINT id = LOWORD(::GetDlgCtrlID(header->hwndFrom));
    return OnCmdMsg(id, MAKELONG(header->code, WM_NOTIFY), &notify, nullptr);
}

BOOL PASCAL CWnd::ReflectLastMsg(HWND hWndChild, LRESULT* pResult)
{
    CWnd* const child = FromHandlePermanent(hWndChild);
    return child != nullptr && child->SendChildNotifyLastMsg(pResult);
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* pResult)
{
    const MSG& message = *GetThreadState().lastSentMessage;
    return OnChildNotify(message.message, message.wParam, message.lParam, pResult);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return ReflectChildNotify(message, wParam, lParam, pResult);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    switch (message)
    {
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_PARENTNOTIFY:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_COMPAREITEM:
    case WM_CHARTOITEM:
    case WM_VKEYTOITEM:
        return CWnd::OnWndMsg(WM_REFLECT_BASE + message, wParam, lParam, pResult);

    case WM_COMMAND:
        if (!OnCmdMsg(0, MAKELONG(HIWORD(wParam), WM_REFLECT_BASE + WM_COMMAND), nullptr, nullptr))
            return FALSE;
        if (pResult != nullptr)
            *pResult = 1;
        return TRUE;

    case WM_NOTIFY:
    {
        auto* const header = reinterpret_cast<NMHDR*>(lParam);
        AFX_NOTIFY notify{pResult, header};
        return OnCmdMsg(0, MAKELONG(header->code, WM_REFLECT_BASE + WM_NOTIFY), &notify, nullptr);
    }

    case WM_CTLCOLORMSGBOX:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSCROLLBAR:
    case WM_CTLCOLORSTATIC:
        return ReflectCtlColor(message, wParam, lParam, pResult);

    default:
        return FALSE;
    }
}

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* pWnd, UINT)
{
    LRESULT brush = 0;
    if (pWnd != nullptr && pWnd->SendChildNotifyLastMsg(&brush))
        return reinterpret_cast<HBRUSH>(brush);
    return reinterpret_cast<HBRUSH>(Default());
}

// ---------------------------------------------------------------------------------------------------------
// Messages that are given back to the control first

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    if (lpDrawItemStruct->CtlType == ODT_MENU)
    {
        CMenu* const menu = CMenu::FromHandle(reinterpret_cast<HMENU>(lpDrawItemStruct->hwndItem));
        menu->DrawItem(lpDrawItemStruct);
    }
    else if (!ReflectLastMsg(lpDrawItemStruct->hwndItem))
        Default();
}

void CWnd::OnMeasureItem(int, LPMEASUREITEMSTRUCT lpMeasureItemStruct)
{
    if (lpMeasureItemStruct->CtlType == ODT_MENU)
    {
        Default();
        return;
    }
    // The structure names the control by its id only.
    CWnd* const child = GetDescendantWindow(m_hWnd, static_cast<int>(lpMeasureItemStruct->CtlID), TRUE);
    if (child == nullptr || !child->SendChildNotifyLastMsg())
        Default();
}

void CWnd::OnDeleteItem(int, LPDELETEITEMSTRUCT lpDeleteItemStruct)
{
    if (!ReflectLastMsg(lpDeleteItemStruct->hwndItem))
        Default();
}

int CWnd::OnCompareItem(int, LPCOMPAREITEMSTRUCT lpCompareItemStruct)
{
    LRESULT result = 0;
    if (ReflectLastMsg(lpCompareItemStruct->hwndItem, &result))
        return static_cast<int>(result);
    return static_cast<int>(Default());
}

int CWnd::OnCharToItem(UINT, CListBox* pListBox, UINT)
{
    LRESULT result = 0;
    if (ReflectLastMsg(pListBox->GetSafeHwnd(), &result))
        return static_cast<int>(result);
    return static_cast<int>(Default());
}

int CWnd::OnVKeyToItem(UINT, CListBox* pListBox, UINT)
{
    LRESULT result = 0;
    if (ReflectLastMsg(pListBox->GetSafeHwnd(), &result))
        return static_cast<int>(result);
    return static_cast<int>(Default());
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar* pScrollBar)
{
    if (pScrollBar == nullptr || !pScrollBar->SendChildNotifyLastMsg())
        Default();
}

void CWnd::OnVScroll(UINT, UINT, CScrollBar* pScrollBar)
{
    if (pScrollBar == nullptr || !pScrollBar->SendChildNotifyLastMsg())
        Default();
}

void CWnd::OnParentNotify(UINT message, LPARAM lParam)
{
    // For the creation or end of a child, lParam is the child; for a click it is the position.
    const UINT event = LOWORD(message);
    if ((event != WM_CREATE && event != WM_DESTROY) || !ReflectLastMsg(reinterpret_cast<HWND>(lParam)))
        Default();
}

// ---------------------------------------------------------------------------------------------------------
// Messages that only top-level windows receive and their descendants want to know

namespace
{
/// Broadcasts of the system reach top-level windows only; the first window that sees one hands it down.
bool IsBroadcastReceiver(const CWnd& window)
{
    return (window.GetStyle() & WS_CHILD) == 0;
}
} // namespace

void CWnd::OnSysColorChange()
{
    if (IsBroadcastReceiver(*this))
        SendMessageToDescendants(WM_SYSCOLORCHANGE, 0, 0, TRUE, TRUE);
    Default();
}

void CWnd::OnSettingChange(UINT, LPCTSTR)
{
    const MSG& message = *GetThreadState().lastSentMessage;
    if (IsBroadcastReceiver(*this))
        SendMessageToDescendants(WM_SETTINGCHANGE, message.wParam, message.lParam, TRUE, TRUE);
    Default();
}

LRESULT CWnd::OnDisplayChange(WPARAM wParam, LPARAM lParam)
{
    if (IsBroadcastReceiver(*this))
        SendMessageToDescendants(WM_DISPLAYCHANGE, wParam, lParam, TRUE, TRUE);
    return Default();
}
