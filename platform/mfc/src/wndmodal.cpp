// CWnd: modal loops, owners, translation of messages before dispatch, data exchange, placement.

#include <afxpriv.h>

#include <algorithm>

#include "threadstate.h"
#include "toolhits.h"

// ---------------------------------------------------------------------------------------------------------
// Modal loop

namespace
{
bool IsQueueEmpty()
{
    MSG message;
    return !::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE);
}

/// The idle time of a modal loop: shows the window once, then tells parent and window that nothing happens.
class CModalIdle
{
public:
    CModalIdle(CWnd* window, DWORD flags)
        : m_window(window), m_parent(::GetParent(window->m_hWnd)), m_flags(flags),
          m_showPending((flags & MLF_SHOWONIDLE) != 0 && (window->GetStyle() & WS_VISIBLE) == 0)
    {
    }

    void Restart()
    {
        m_wanted = true;
        m_count = 0;
    }

    /// Runs while there is work to do and no message waits.
    void Run()
    {
        while (m_wanted && m_window->ContinueModal() && IsQueueEmpty())
            m_wanted = Step();
    }

    /// A window that has not been idle yet is shown when the user begins to wait for it.
    void ShowIfPending()
    {
        if (!std::exchange(m_showPending, false))
            return;
        m_window->ShowWindow(SW_SHOWNORMAL);
        m_window->UpdateWindow();
    }

private:
    bool Step()
    {
        ShowIfPending();
        if ((m_flags & MLF_NOIDLEMSG) == 0 && m_parent != nullptr && m_count == 0)
            ::SendMessage(m_parent, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(m_window->m_hWnd));
        if ((m_flags & MLF_NOKICKIDLE) != 0)
            return false;
        return m_window->SendMessage(WM_KICKIDLE, MSGF_DIALOGBOX, m_count++) != 0;
    }

    CWnd* m_window;
    HWND m_parent;
    DWORD m_flags;
    bool m_showPending;
    bool m_wanted = true;
    LONG m_count = 0;
};

/// Marks a window as modal until the end of the scope.
class CModalFlags
{
public:
    explicit CModalFlags(UINT& flags) : m_flags(flags) { m_flags |= WF_MODALLOOP | WF_CONTINUEMODAL; }
    ~CModalFlags() { m_flags &= ~(WF_MODALLOOP | WF_CONTINUEMODAL); }
    CModalFlags(const CModalFlags&) = delete;
    CModalFlags& operator=(const CModalFlags&) = delete;

private:
    UINT& m_flags;
};
} // namespace

int CWnd::RunModalLoop(DWORD dwFlags)
{
    ASSERT(::IsWindow(m_hWnd));
    ASSERT((m_nFlags & WF_MODALLOOP) == 0);
    const CModalFlags flags(m_nFlags);

    CModalIdle idle(this, dwFlags);
    while (ContinueModal())
    {
        idle.Run();
        if (!ContinueModal())
            break;
        if (!AfxPumpMessage())
        {
            AfxPostQuitMessage(0); // for the outer loops as well
            return -1;
        }
        MSG& pumped = GetThreadState().currentMessage;
        if (pumped.message == WM_SYSTIMER || pumped.message == WM_SYSKEYDOWN)
            idle.ShowIfPending();
        if (AfxIsIdleMessage(&pumped))
            idle.Restart();
    }
    return m_nModalResult;
}

void CWnd::EndModalLoop(int nResult)
{
    m_nModalResult = nResult;
    if ((m_nFlags & WF_CONTINUEMODAL) == 0)
        return;
    m_nFlags &= ~WF_CONTINUEMODAL;
    PostMessage(WM_NULL); // wakes the loop
}

CWnd* PASCAL CWnd::GetSafeOwner(CWnd* pParent, HWND* pWndTop)
{
    HWND owner = pParent->GetSafeHwnd();
    if (owner == nullptr)
        owner = AfxGetMainWnd()->GetSafeHwnd();
    // A child window cannot own a pop-up.
    while (owner != nullptr && (::GetWindowLong(owner, GWL_STYLE) & WS_CHILD) != 0)
        owner = ::GetParent(owner);

    HWND top = owner;
    for (HWND above = top; above != nullptr; above = ::GetParent(above))
        top = above;

    if (pParent == nullptr && owner != nullptr)
        owner = ::GetLastActivePopup(owner);

    if (pWndTop != nullptr)
    {
        const bool disableTop = top != nullptr && top != owner && ::IsWindowEnabled(top);
        *pWndTop = disableTop ? top : nullptr;
        if (disableTop)
            ::EnableWindow(top, FALSE);
    }
    return FromHandle(owner);
}

// ---------------------------------------------------------------------------------------------------------
// Translation before dispatch

BOOL CWnd::PreTranslateMessage(MSG* pMsg)
{
    FilterToolTips(*this, pMsg);
    return FALSE;
}

BOOL CWnd::PreTranslateInput(LPMSG lpMsg)
{
    const UINT message = lpMsg->message;
    const bool isKey = message >= WM_KEYFIRST && message <= WM_KEYLAST;
    const bool isMouse = message >= WM_MOUSEFIRST && message <= WM_MOUSELAST;
    return (isKey || isMouse) && IsDialogMessage(lpMsg);
}

BOOL PASCAL CWnd::WalkPreTranslateTree(HWND hWndStop, MSG* pMsg)
{
    for (HWND target = pMsg->hwnd; target != nullptr; target = ::GetParent(target))
    {
        CWnd* const window = FromHandlePermanent(target);
        if (window != nullptr && window->PreTranslateMessage(pMsg))
            return TRUE;
        if (target == hWndStop)
            break;
    }
    return FALSE;
}

// ---------------------------------------------------------------------------------------------------------
// Dialog data

BOOL CWnd::UpdateData(BOOL bSaveAndValidate)
{
    ASSERT(::IsWindow(m_hWnd));
    CDataExchange exchange(this, bSaveAndValidate);
    const CRestoreValue<HWND> lockout(GetThreadState().lockoutNotifyWindow, m_hWnd);
    try
    {
        DoDataExchange(&exchange);
        return TRUE;
    }
    catch (CUserException* e) // a value was refused, and the user told
    {
        e->Delete();
    }
    catch (CException* e)
    {
        e->ReportError(MB_ICONEXCLAMATION);
        e->Delete();
    }
    return FALSE;
}

void CWnd::DoDataExchange(CDataExchange*)
{
}

BOOL CWnd::ExecuteDlgInit(LPCTSTR lpszResourceName)
{
    if (lpszResourceName == nullptr)
        return TRUE;
    const auto* const type = MAKEINTRESOURCE(240); // RT_DLGINIT
    const HINSTANCE module = AfxFindResourceHandle(lpszResourceName, type);
    const HRSRC found = ::FindResource(module, lpszResourceName, type);
    if (found == nullptr)
        return TRUE; // most dialogs have none
    const HGLOBAL loaded = ::LoadResource(module, found);
    return loaded != nullptr && ExecuteDlgInit(::LockResource(loaded));
}

namespace
{
/// The head of an item of an RT_DLGINIT resource; `length` bytes of narrow text follow, with the closing
/// zero.
#pragma pack(push, 1)
struct CDlgInitItem
{
    WORD control; ///< a single word of 0 in its place ends the resource
    WORD message; ///< one of the constants below
    DWORD length;
};
#pragma pack(pop)

// Resource editors still write the numbers that these messages had on 16-bit Windows.
constexpr WORD dlgInitListBoxAdd = 0x0401;
constexpr WORD dlgInitComboBoxAdd = 0x0403;
constexpr WORD dlgInitExtendedComboBoxAdd =
    0x1234; // of no system: the number that stands for CBEM_INSERTITEM

bool AddDlgInitText(HWND dialog, const CDlgInitItem& item, const char* text)
{
    const UINT message = item.message == dlgInitComboBoxAdd  ? CB_ADDSTRING
                         : item.message == dlgInitListBoxAdd ? LB_ADDSTRING
                                                             : item.message;
    if (message == dlgInitExtendedComboBoxAdd)
    {
        COMBOBOXEXITEMA added{};
        added.mask = CBEIF_TEXT;
        added.iItem = -1; // at the end
        added.pszText = const_cast<char*>(text);
        return ::SendDlgItemMessageA(dialog, item.control, CBEM_INSERTITEMA, 0,
                                     reinterpret_cast<LPARAM>(&added)) >= 0;
    }
    if (message != CB_ADDSTRING && message != LB_ADDSTRING)
        return true; // belongs to a kind of control that is not known here
    // LB_ERR and CB_ERR are both -1, LB_ERRSPACE and CB_ERRSPACE both -2.
    return ::SendDlgItemMessageA(dialog, item.control, message, 0, reinterpret_cast<LPARAM>(text)) >= 0;
}

bool IsDlgInitEnd(const char* data)
{
    WORD control;
    memcpy(&control, data, sizeof control);
    return control == 0;
}
} // namespace

BOOL CWnd::ExecuteDlgInit(LPVOID lpResource)
{
    bool complete = true;
    if (const auto* data = static_cast<const char*>(lpResource))
    {
        while (complete && !IsDlgInitEnd(data))
        {
            CDlgInitItem item;
            memcpy(&item, data, sizeof item);
            complete = AddDlgInitText(m_hWnd, item, data + sizeof item);
            data += sizeof item + item.length;
        }
    }
    if (complete)
        SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, FALSE, FALSE);
    return complete;
}

namespace
{
/// Whether a control that no handler speaks for may be disabled: only push buttons are commands by nature.
bool IsCommandButton(const CWnd& control)
{
    if ((::SendMessage(control.m_hWnd, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON) == 0)
        return false;
    const DWORD type = control.GetStyle() & BS_TYPEMASK;
    return type != BS_AUTOCHECKBOX && type != BS_AUTO3STATE && type != BS_AUTORADIOBUTTON &&
           type != BS_GROUPBOX;
}
} // namespace

void CWnd::UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler)
{
    for (HWND child = ::GetTopWindow(m_hWnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        CWnd* const control = FromHandle(child);
        CCmdUI item;
        item.m_nID = LOWORD(::GetDlgCtrlID(child));
        item.m_pOther = control;
        if (CWnd::OnCmdMsg(item.m_nID, static_cast<int>(CN_UPDATE_COMMAND_UI), &item, nullptr))
            continue;
        item.DoUpdate(pTarget, bDisableIfNoHndler && IsCommandButton(*control));
    }
}

// ---------------------------------------------------------------------------------------------------------
// Placement

namespace
{
CRect WorkAreaOf(HMONITOR monitor)
{
    MONITORINFO info{};
    info.cbSize = sizeof info;
    ::GetMonitorInfo(monitor, &info);
    return info.rcWork;
}

CRect WindowRectOf(HWND window)
{
    CRect rect;
    ::GetWindowRect(window, &rect);
    return rect;
}

/// The window that a window is centred over; null for the work area.
HWND FindCenter(HWND window, bool isChild, CWnd* alternate)
{
    HWND center = alternate->GetSafeHwnd();
    if (center == nullptr)
        center = isChild ? ::GetParent(window) : ::GetWindow(window, GW_OWNER);
    if (center == nullptr || isChild)
        return center;
    const DWORD style = static_cast<DWORD>(::GetWindowLong(center, GWL_STYLE));
    return (style & WS_VISIBLE) != 0 && (style & WS_MINIMIZE) == 0 ? center : nullptr;
}
} // namespace

void CWnd::CenterWindow(CWnd* pAlternateOwner)
{
    const bool isChild = (GetStyle() & WS_CHILD) != 0;
    const HWND center = FindCenter(m_hWnd, isChild, pAlternateOwner);

    CRect over;
    CRect bounds;
    if (isChild)
    {
        ::GetClientRect(::GetParent(m_hWnd), &bounds);
        ::GetClientRect(center, &over);
        ::MapWindowPoints(center, ::GetParent(m_hWnd), reinterpret_cast<POINT*>(&over), 2);
    }
    else
    {
        const HWND mainWindow = AfxGetMainWnd()->GetSafeHwnd();
        bounds = WorkAreaOf(
            ::MonitorFromWindow(center != nullptr ? center : mainWindow, MONITOR_DEFAULTTOPRIMARY));
        over = center != nullptr ? WindowRectOf(center) : bounds;
    }

    // Kept inside the bounds; where it does not fit, its top left corner is the part that stays visible.
    const CSize size = WindowRectOf(m_hWnd).Size();
    LONG left = (over.left + over.right) / 2 - size.cx / 2;
    LONG top = (over.top + over.bottom) / 2 - size.cy / 2;
    left = (std::max)((std::min)(left, bounds.right - size.cx), bounds.left);
    top = (std::max)((std::min)(top, bounds.bottom - size.cy), bounds.top);
    SetWindowPos(nullptr, left, top, -1, -1, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}
