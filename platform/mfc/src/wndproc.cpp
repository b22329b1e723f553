// CWnd: the window procedure, message maps of window messages, and the default for what is not handled.

#include <afxpriv.h>

#include "msgmap.h"
#include "threadstate.h"

#include <type_traits>

// ---------------------------------------------------------------------------------------------------------
// The procedure of every window of the framework

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    if (nMsg == WM_QUERYAFXWNDPROC)
        return 1;
    CWnd* const window = CWnd::FromHandlePermanent(hWnd);
    if (window == nullptr)
        return ::DefWindowProc(hWnd, nMsg, wParam, lParam);
    return AfxCallWndProc(window, hWnd, nMsg, wParam, lParam);
}

WNDPROC AFXAPI AfxGetAfxWndProc()
{
    return &AfxWndProc;
}

namespace
{
/// Centres a dialog after its WM_INITDIALOG, unless it was placed or shown while it was initialised.
class CAutoCenter
{
public:
    CAutoCenter(CWnd* window, HWND handle, UINT message)
        : m_window(message == WM_INITDIALOG ? window : nullptr), m_handle(handle)
    {
        if (m_window == nullptr)
            return;
        m_window->GetWindowRect(&m_before);
        m_wasVisible = (m_window->GetStyle() & WS_VISIBLE) != 0;
    }

    void Apply() const
    {
        if (m_window == nullptr || m_wasVisible)
            return;
        if (CWnd::FromHandlePermanent(m_handle) != m_window) // destroyed and deleted by its OnInitDialog
            return;
        if ((m_window->GetStyle() & (WS_VISIBLE | WS_CHILD)) != 0)
            return;
        CRect after;
        m_window->GetWindowRect(&after);
        if (after.TopLeft() != m_before.TopLeft())
            return;
        const HWND owner = ::GetWindow(m_handle, GW_OWNER);
        if (owner != nullptr && ::IsIconic(owner))
            return;
        if (m_window->CheckAutoCenter())
            m_window->CenterWindow();
    }

private:
    CWnd* m_window;
    HWND m_handle;
    CRect m_before;
    bool m_wasVisible = false;
};
} // namespace

LRESULT AFXAPI AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    MSG message{hWnd, nMsg, wParam, lParam, 0, {}};
    const CRestoreValue<MSG*> nested(GetThreadState().lastSentMessage, &message);

    try
    {
        const CAutoCenter autoCenter(pWnd, hWnd, nMsg);
        const LRESULT result = pWnd->WindowProc(nMsg, wParam, lParam);
        autoCenter.Apply();
        return result;
    }
    catch (CException* e)
    {
        const LRESULT result = AfxProcessWndProcException(e, &message);
        e->Delete();
        return result;
    }
}

const MSG* PASCAL CWnd::GetCurrentMessage()
{
    MSG& message = *GetThreadState().lastSentMessage;
    const DWORD position = ::GetMessagePos();
    message.pt.x = static_cast<short>(LOWORD(position));
    message.pt.y = static_cast<short>(HIWORD(position));
    message.time = static_cast<DWORD>(::GetMessageTime());
    return &message;
}

LRESULT CWnd::Default()
{
    const MSG& message = *GetThreadState().lastSentMessage;
    return DefWindowProc(message.message, message.wParam, message.lParam);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (const WNDPROC super = *GetSuperWndProcAddr())
        return ::CallWindowProc(super, m_hWnd, message, wParam, lParam);
    return ::DefWindowProc(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    if (!OnWndMsg(message, wParam, lParam, &result))
        result = DefWindowProc(message, wParam, lParam);
    return result;
}

// ---------------------------------------------------------------------------------------------------------
// Search of the map

namespace
{
/// A message that travels as its child's colours are asked for: the argument of WM_CTLCOLOR entries.
struct CColorRequest
{
    HWND control;
    HDC dc;
    UINT type; ///< CTLCOLOR_ value
};

bool IsColorMessage(UINT message)
{
    return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
}

const AFX_MSGMAP_ENTRY* FindRegistered(const AFX_MSGMAP_ENTRY* entries, UINT message)
{
    for (const AFX_MSGMAP_ENTRY* entry = entries; entry->nSig != AfxSig_end; ++entry)
        if (entry->nMessage == firstRegisteredMessage &&
            *reinterpret_cast<const UINT*>(entry->nSig) == message)
            return entry;
    return nullptr;
}
} // namespace

const AFX_MSGMAP_ENTRY* FindWindowMessage(const AFX_MSGMAP* map, UINT message)
{
    for (; map != nullptr; map = BaseMap(*map))
    {
        const AFX_MSGMAP_ENTRY* const entry = message < firstRegisteredMessage
                                                  ? FindMessageEntry(map->lpEntries, message, 0, 0)
                                                  : FindRegistered(map->lpEntries, message);
        if (entry != nullptr)
            return entry;
    }
    return nullptr;
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    LRESULT unused = 0;
    LRESULT& result = pResult != nullptr ? *pResult : unused;

    if (message == WM_COMMAND)
    {
        if (!OnCommand(wParam, lParam))
            return FALSE;
        result = 1;
        return TRUE;
    }
    if (message == WM_NOTIFY)
    {
        const auto* const header = reinterpret_cast<const NMHDR*>(lParam);
        LRESULT answer = 0;
        if (header->hwndFrom == nullptr || !OnNotify(wParam, lParam, &answer))
            return FALSE;
        result = answer;
        return TRUE;
    }
    if (const AFX_MSGMAP_ENTRY* const entry = FindWindowMessage(GetMessageMap(), message))
        return OnMappedMsg(*entry, wParam, lParam, &result);
    if (IsColorMessage(message))
        return OnCtlColorMsg(message, wParam, lParam, &result);
    return FALSE;
}

/// The seven WM_CTLCOLORxxx messages share the map entry of WM_CTLCOLOR.
BOOL CWnd::OnCtlColorMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    const AFX_MSGMAP_ENTRY& entry = *FindWindowMessage(GetMessageMap(), WM_CTLCOLOR); // at least CWnd's own
    const CColorRequest request{reinterpret_cast<HWND>(lParam), reinterpret_cast<HDC>(wParam),
                                message - WM_CTLCOLORMSGBOX};
    return OnMappedMsg(entry, 0, reinterpret_cast<LPARAM>(&request), pResult);
}

/// A control asked for its own colours. A null brush leaves the choice to the parent.
BOOL CWnd::ReflectCtlColor(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    const CColorRequest request{reinterpret_cast<HWND>(lParam), reinterpret_cast<HDC>(wParam),
                                message - WM_CTLCOLORMSGBOX};
    LRESULT brush = 0;
    if (!OnWndMsg(WM_REFLECT_BASE + WM_CTLCOLOR, 0, reinterpret_cast<LPARAM>(&request), &brush) || brush == 0)
        return FALSE;
    if (pResult != nullptr)
        *pResult = brush;
    return TRUE;
}

namespace
{
/// Calls a handler with typed arguments and turns its answer into the result of a message.
class CHandlerCall
{
public:
    CHandlerCall(CWnd* target, AFX_PMSG handler) : m_target(target), m_handler(handler) {}

    template <class... Parameters>
    LRESULT Void(Parameters... arguments) const
    {
        (m_target->*RestoreHandlerType<void (CWnd::*)(Parameters...)>(m_handler))(arguments...);
        return 0;
    }

    template <class Result, class... Parameters>
    LRESULT Answer(Parameters... arguments) const
    {
        const Result answer =
            (m_target->*RestoreHandlerType<Result (CWnd::*)(Parameters...)>(m_handler))(arguments...);
        if constexpr (std::is_pointer_v<Result>)
            return reinterpret_cast<LRESULT>(answer);
        else
            return static_cast<LRESULT>(answer);
    }

private:
    CWnd* m_target;
    AFX_PMSG m_handler;
};

template <class Handle, class Parameter>
Handle ToHandle(Parameter value)
{
    return reinterpret_cast<Handle>(value);
}

/// Coordinates in screens left of or above the primary one are negative.
CPoint PointOf(LPARAM lParam)
{
    return CPoint(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)));
}

template <class Parameter>
CWnd* WindowOf(Parameter value)
{
    return CWnd::FromHandle(ToHandle<HWND>(value));
}
} // namespace

/// Unpacks the parameters of a window message as the handler's signature says, and calls the handler.
BOOL CWnd::OnMappedMsg(const AFX_MSGMAP_ENTRY& entry, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    const CHandlerCall call(this, entry.pfn);
    const UINT low = LOWORD(wParam);
    const UINT high = HIWORD(wParam);
    const auto pointer = reinterpret_cast<void*>(lParam);
    const auto flag = static_cast<BOOL>(wParam);
    const auto number = static_cast<UINT>(wParam);

    if (entry.nMessage == firstRegisteredMessage)
    {
        *pResult = call.Answer<LRESULT, WPARAM, LPARAM>(wParam, lParam);
        return TRUE;
    }

    // A signature that several structures share passes its pointer as void*, and CListBox and CScrollBar
    // travel as CWnd: the calling convention does not tell pointers apart.
    switch (entry.nSig)
    {
    case AfxSig_l_w_l:
        *pResult = call.Answer<LRESULT, WPARAM, LPARAM>(wParam, lParam);
        break;

    case AfxSig_v_v_v:
        call.Void();
        break;
    case AfxSig_l_v_v:
        *pResult = call.Answer<LRESULT>();
        break;
    case AfxSig_u_v_v:
        *pResult = call.Answer<UINT>();
        break;
    case AfxSig_b_v_v:
        *pResult = call.Answer<BOOL>();
        break;
    case AfxSig_h_v_v:
        *pResult = call.Answer<HCURSOR>();
        break;

    case AfxSig_b_b_v:
        *pResult = call.Answer<BOOL, BOOL>(flag);
        break;
    case AfxSig_v_b_v:
        call.Void<BOOL>(flag);
        break;
    case AfxSig_v_b_u:
        call.Void<BOOL, UINT>(flag, static_cast<UINT>(lParam));
        break;
    case AfxSig_v_b_u32:
        call.Void<BOOL, DWORD>(flag, static_cast<DWORD>(lParam));
        break;
    case AfxSig_v_b_NCCALCSIZEPARAMS:
        call.Void<BOOL, NCCALCSIZE_PARAMS*>(flag, static_cast<NCCALCSIZE_PARAMS*>(pointer));
        break;
    case AfxSig_v_b_W_W: // wParam is the window that becomes inactive
        call.Void<BOOL, CWnd*, CWnd*>(m_hWnd == ToHandle<HWND>(lParam), WindowOf(lParam), WindowOf(wParam));
        break;

    case AfxSig_v_u_v:
        call.Void<UINT>(number);
        break;
    case AfxSig_v_up_v:
        call.Void<UINT_PTR>(wParam);
        break;
    case AfxSig_v_uu_v:
        call.Void<UINT, UINT>(number, static_cast<UINT>(lParam));
        break;
    case AfxSig_v_u_l:
        call.Void<UINT, LPARAM>(number, lParam);
        break;
    case AfxSig_b_u_DWORD:
        *pResult = call.Answer<BOOL, UINT, DWORD_PTR>(number, static_cast<DWORD_PTR>(lParam));
        break;
    case AfxSig_v_u_W:
        call.Void<UINT, CWnd*>(number, WindowOf(lParam));
        break;
    case AfxSig_i_uu_v:
        *pResult = call.Answer<int, UINT, UINT>(low, high);
        break;
    case AfxSig_i_u_W_u:
        *pResult = call.Answer<int, UINT, CWnd*, UINT>(low, WindowOf(lParam), high);
        break;

    case AfxSig_b_v_s:
        *pResult = call.Answer<BOOL, void*>(pointer);
        break;
    case AfxSig_i_v_s:
        *pResult = call.Answer<int, void*>(pointer);
        break;
    case AfxSig_i_u_s:
        *pResult = call.Answer<int, int, void*>(static_cast<int>(wParam), pointer);
        break;
    case AfxSig_v_v_s:
        call.Void<void*>(pointer);
        break;
    case AfxSig_v_i_s:
        call.Void<int, void*>(static_cast<int>(wParam), pointer);
        break;
    case AfxSig_v_u_s:
        call.Void<UINT, void*>(number, pointer);
        break;
    case AfxSig_b_v_HELPINFO:
        *pResult = call.Answer<BOOL, HELPINFO*>(static_cast<HELPINFO*>(pointer));
        break;
    case AfxSig_b_W_COPYDATASTRUCT:
        *pResult = call.Answer<BOOL, CWnd*, COPYDATASTRUCT*>(WindowOf(wParam),
                                                             static_cast<COPYDATASTRUCT*>(pointer));
        break;

    case AfxSig_b_D_v:
        *pResult = call.Answer<BOOL, CDC*>(CDC::FromHandle(ToHandle<HDC>(wParam)));
        break;
    case AfxSig_v_D_v:
        call.Void<CDC*>(CDC::FromHandle(ToHandle<HDC>(wParam)));
        break;
    case AfxSig_CTLCOLOR:
    {
        const auto& request = *static_cast<const CColorRequest*>(pointer);
        *pResult = call.Answer<HBRUSH, CDC*, CWnd*, UINT>(CDC::FromHandle(request.dc),
                                                          CWnd::FromHandle(request.control), request.type);
        break;
    }
    case AfxSig_CTLCOLOR_REFLECT:
    {
        const auto& request = *static_cast<const CColorRequest*>(pointer);
        *pResult = call.Answer<HBRUSH, CDC*, UINT>(CDC::FromHandle(request.dc), request.type);
        break;
    }

    case AfxSig_v_W_v:
        call.Void<CWnd*>(WindowOf(wParam));
        break;
    case AfxSig_v_v_W:
        call.Void<CWnd*>(WindowOf(lParam));
        break;
    case AfxSig_v_W_p:
        call.Void<CWnd*, CPoint>(WindowOf(wParam), PointOf(lParam));
        break;
    case AfxSig_b_W_uu:
        *pResult = call.Answer<BOOL, CWnd*, UINT, UINT>(WindowOf(wParam), LOWORD(lParam), HIWORD(lParam));
        break;
    case AfxSig_i_W_uu:
        *pResult = call.Answer<int, CWnd*, UINT, UINT>(WindowOf(wParam), LOWORD(lParam), HIWORD(lParam));
        break;
    case AfxSig_ACTIVATE:
        call.Void<UINT, CWnd*, BOOL>(low, WindowOf(lParam), static_cast<BOOL>(high));
        break;
    case AfxSig_v_h_v:
        call.Void<HANDLE>(ToHandle<HANDLE>(wParam));
        break;
    case AfxSig_v_h_h:
        call.Void<HWND, HWND>(ToHandle<HWND>(wParam), ToHandle<HWND>(lParam));
        break;

    case AfxSig_v_M_v:
        call.Void<CMenu*>(CMenu::FromHandle(ToHandle<HMENU>(wParam)));
        break;
    case AfxSig_v_M_ub:
        call.Void<CMenu*, UINT, BOOL>(CMenu::FromHandle(ToHandle<HMENU>(wParam)), LOWORD(lParam),
                                      HIWORD(lParam));
        break;
    case AfxSig_v_uu_h:
        call.Void<UINT, UINT, HMENU>(low, high, ToHandle<HMENU>(lParam));
        break;
    case AfxSig_l_uu_M:
        *pResult =
            call.Answer<LRESULT, UINT, UINT, CMenu*>(low, high, CMenu::FromHandle(ToHandle<HMENU>(lParam)));
        break;

    case AfxSig_v_u_u_l:
        call.Void<UINT, UINT, UINT>(number, LOWORD(lParam), HIWORD(lParam));
        break;
    case AfxSig_l_p:
        *pResult = call.Answer<LRESULT, CPoint>(PointOf(lParam));
        break;
    case AfxSig_v_u_p:
    case AfxSig_v_hit_p:
        call.Void<UINT, CPoint>(number, PointOf(lParam));
        break;
    case AfxSig_v_u_u_p:
        call.Void<UINT, UINT, CPoint>(low, high, PointOf(lParam));
        break;
    case AfxSig_MOUSEWHEEL: // a handler that answers FALSE lets the parent scroll
        *pResult = call.Answer<BOOL, UINT, short, CPoint>(low, static_cast<short>(high), PointOf(lParam));
        return *pResult != 0;

    case AfxSig_v_v_ii:
        call.Void<int, int>(PointOf(lParam).x, PointOf(lParam).y);
        break;
    case AfxSig_v_u_ii:
        call.Void<UINT, int, int>(number, PointOf(lParam).x, PointOf(lParam).y);
        break;
    case AfxSig_SIZING:
        call.Void<UINT, LPRECT>(number, static_cast<LPRECT>(pointer));
        *pResult = TRUE;
        break;
    case AfxSig_SCROLL:
        call.Void<UINT, UINT, CWnd*>(low, high, WindowOf(lParam));
        break;
    case AfxSig_SCROLL_REFLECT:
        call.Void<UINT, UINT>(low, high);
        break;
    default:
        ASSERT(FALSE); // a command's entry stands under a window message
        return FALSE;
    }
    return TRUE;
}
