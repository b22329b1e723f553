// CWnd: construction, creation with the creation hook, subclassing, destruction.

#include "threadstate.h"
#include "toolhits.h"
#include "wndclass.h"

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

CWnd::CWnd() = default;

CWnd::CWnd(HWND place) : m_hWnd(place)
{
}

/// Whether this is one of the four constants above, whose handles are no windows.
bool CWnd::IsPlace() const
{
    return this == &wndTop || this == &wndBottom || this == &wndTopMost || this == &wndNoTopMost;
}

CWnd::~CWnd()
{
    if (m_hWnd == nullptr || IsPlace())
        return;
    TRACE(L"Warning: a CWnd is destroyed before its window; the derived OnDestroy and PostNcDestroy are not "
          L"called.\n");
    CWnd::DestroyWindow();
}

// ---------------------------------------------------------------------------------------------------------
// Creation

/// The creation hook. It attaches the waiting object to the next window of the thread, before the window's
/// first message.
class CWndHook
{
public:
    static LRESULT CALLBACK Procedure(int code, WPARAM wParam, LPARAM lParam)
    {
        const LRESULT answer = ::CallNextHookEx(GetThreadState().creationHook, code, wParam, lParam);
        const auto window = reinterpret_cast<HWND>(wParam);
        if (code != HCBT_CREATEWND || answer != 0 || IsInputMethodWindow(window))
            return answer;
        if (CWnd* const waiting = std::exchange(GetThreadState().windowInCreation, nullptr))
        {
            waiting->Attach(window);
            waiting->PreSubclassWindow();
            waiting->TakeOverProcedure();
            // Its children need no hook; they are many.
            ::UnhookWindowsHookEx(std::exchange(GetThreadState().creationHook, nullptr));
        }
        return answer;
    }

private:
    /// The system makes the input method's window in the middle of the first creation on a thread.
    static bool IsInputMethodWindow(HWND window)
    {
        return (::GetClassLongPtr(window, GCL_STYLE) & CS_IME) != 0;
    }
};

void AFXAPI AfxHookWindowCreate(CWnd* pWnd)
{
    CThreadState& state = GetThreadState();
    ASSERT(state.windowInCreation == nullptr || state.windowInCreation == pWnd);
    if (state.creationHook == nullptr)
    {
        state.creationHook =
            ::SetWindowsHookEx(WH_CBT, &CWndHook::Procedure, nullptr, ::GetCurrentThreadId());
        if (state.creationHook == nullptr)
            AfxThrowMemoryException();
    }
    state.windowInCreation = pWnd;
}

BOOL AFXAPI AfxUnhookWindowCreate()
{
    CThreadState& state = GetThreadState();
    if (state.creationHook != nullptr)
        ::UnhookWindowsHookEx(std::exchange(state.creationHook, nullptr));
    return std::exchange(state.windowInCreation, nullptr) == nullptr;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (cs.lpszClass == nullptr)
        cs.lpszClass = RegisterChildClass();
    return cs.lpszClass != nullptr;
}

BOOL CWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                  CWnd* pParentWnd, UINT nID, CCreateContext* pContext)
{
    ASSERT(pParentWnd != nullptr);
    ASSERT((dwStyle & WS_POPUP) == 0); // CreateEx makes pop-up windows
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID, pContext);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                    const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam)
{
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top,
                    rect.right - rect.left, rect.bottom - rect.top, pParentWnd->GetSafeHwnd(),
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), lpParam);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x,
                    int y, int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam)
{
    CREATESTRUCT cs{};
    cs.dwExStyle = dwExStyle;
    cs.lpszClass = lpszClassName;
    cs.lpszName = lpszWindowName;
    cs.style = static_cast<LONG>(dwStyle);
    cs.x = x;
    cs.y = y;
    cs.cx = nWidth;
    cs.cy = nHeight;
    cs.hwndParent = hWndParent;
    cs.hMenu = nIDorHMenu;
    cs.hInstance = AfxGetInstanceHandle();
    cs.lpCreateParams = lpParam;
    if (!PreCreateWindow(cs))
    {
        PostNcDestroy();
        return FALSE;
    }

    AfxHookWindowCreate(this);
    const HWND created =
        ::CreateWindowEx(cs.dwExStyle, cs.lpszClass, cs.lpszName, static_cast<DWORD>(cs.style), cs.x, cs.y,
                         cs.cx, cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
    if (!AfxUnhookWindowCreate())
        PostNcDestroy(); // the hook was never reached, so that no message will end the object's life
    return created != nullptr;
}

// ---------------------------------------------------------------------------------------------------------
// Subclassing

void CWnd::PreSubclassWindow()
{
}

/// Puts AfxWndProc in front of the window's procedure and remembers the latter.
void CWnd::TakeOverProcedure()
{
    const auto ours = reinterpret_cast<LONG_PTR>(AfxGetAfxWndProc());
    const auto previous = reinterpret_cast<WNDPROC>(::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, ours));
    if (previous == AfxGetAfxWndProc())
        return;
    WNDPROC* const super = GetSuperWndProcAddr();
    ASSERT(*super == nullptr || *super == previous);
    *super = previous;
}

BOOL CWnd::SubclassWindow(HWND hWnd)
{
    if (!Attach(hWnd))
        return FALSE;
    PreSubclassWindow();
    TakeOverProcedure();
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent)
{
    const HWND control = ::GetDlgItem(pParent->GetSafeHwnd(), static_cast<int>(nID));
    return control != nullptr && SubclassWindow(control);
}

HWND CWnd::UnsubclassWindow()
{
    WNDPROC* const super = GetSuperWndProcAddr();
    if (*super != nullptr)
    {
        ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(*super));
        *super = nullptr;
    }
    return Detach();
}

// ---------------------------------------------------------------------------------------------------------
// Destruction

BOOL CWnd::DestroyWindow()
{
    if (m_hWnd == nullptr)
        return FALSE;
    // An object with a permanent handle detaches itself in OnNcDestroy, and may be gone when the call
    // returns.
    const bool permanent = FromHandlePermanent(m_hWnd) == this;
    const BOOL destroyed = ::DestroyWindow(m_hWnd);
    if (!permanent)
        Detach();
    return destroyed;
}

/// The last message of the window: the object lets go of it.
void CWnd::OnNcDestroy()
{
    if (CWinThread* const thread = AfxGetThread())
    {
        if (thread->m_pMainWnd == this)
        {
            thread->m_pMainWnd = nullptr;
            AfxPostQuitMessage(0);
        }
        if (thread->m_pActiveWnd == this)
            thread->m_pActiveWnd = nullptr;
    }
    if ((m_nFlags & WF_MODALLOOP) != 0)
        EndModalLoop(m_nModalResult); // a modal loop cannot outlive its window
    if ((m_nFlags & WF_TOOLTIPS) != 0)
        ForgetToolTips(*this);

    // If somebody subclassed the window after us, it is theirs to restore the procedure.
    const LONG_PTR before = ::GetWindowLongPtr(m_hWnd, GWLP_WNDPROC);
    Default();
    if (::GetWindowLongPtr(m_hWnd, GWLP_WNDPROC) == before)
        if (const WNDPROC super = *GetSuperWndProcAddr())
            ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(super));
    m_pfnSuper = nullptr;

    Detach();
    PostNcDestroy();
}

void CWnd::PostNcDestroy()
{
}
