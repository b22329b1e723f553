#include "MsgHookChain.h"

#include <algorithm>

static constexpr wchar_t kProperty[] = L"BaseSvcOW.MsgHookChain";

namespace
{
CMsgHookChain* FindChain(HWND hWnd)
{
    return static_cast<CMsgHookChain*>(::GetPropW(hWnd, kProperty));
}

/// Keeps the module of a procedure loaded from now on, because a window holds the procedure's address.
bool PinModuleOf(WNDPROC pfnProcedure)
{
    HMODULE hModule = nullptr;
    return ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                                reinterpret_cast<LPCWSTR>(pfnProcedure), &hModule);
}
} // namespace

CMsgHookChain* CMsgHookChain::OfWindow(HWND hWnd)
{
    if (CMsgHookChain* pChain = FindChain(hWnd))
        return pChain;
    auto* pChain = new CMsgHookChain(hWnd);
    if (pChain->Install())
        return pChain;
    delete pChain;
    return nullptr;
}

bool CMsgHookChain::Install()
{
    if (!::SetPropW(m_hWnd, kProperty, this))
        return false;
    m_pfnOriginal = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure)));
    if (m_pfnOriginal)
        return true;
    ::RemovePropW(m_hWnd, kProperty);
    return false;
}

void CMsgHookChain::Add(CMsgHook& hook)
{
    m_hooks.push_back(&hook);
    hook.m_pChain = this;
}

void CMsgHookChain::Remove(CMsgHook& hook)
{
    hook.m_pChain = nullptr;
    std::replace(m_hooks.begin(), m_hooks.end(), &hook, static_cast<CMsgHook*>(nullptr));
    Tidy();
}

LRESULT CALLBACK CMsgHookChain::Procedure(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    CMsgHookChain* pChain = FindChain(hWnd);
    if (!pChain) // the line has left, and someone still holds the procedure's address
        return ::DefWindowProcW(hWnd, message, wParam, lParam);
    return pChain->Run({message, wParam, lParam});
}

LRESULT CMsgHookChain::Run(const SHookedMessage& message)
{
    ++m_nRunning;
    const LRESULT lResult = Pass(message, m_hooks.size());
    --m_nRunning;
    if (message.message == WM_NCDESTROY)
        ReleaseHooks();
    Tidy();
    return lResult;
}

LRESULT CMsgHookChain::Pass(const SHookedMessage& message, size_t nPlace)
{
    while (nPlace > 0)
    {
        --nPlace;
        if (CMsgHook* pHook = m_hooks[nPlace])
            return Call(*pHook, message, nPlace);
    }
    if (m_bWindowGone) // it was destroyed while this message was on its way
        return 0;
    return ::CallWindowProcW(m_pfnOriginal, m_hWnd, message.message, message.wParam, message.lParam);
}

LRESULT CMsgHookChain::Call(CMsgHook& hook, const SHookedMessage& message, size_t nPlace)
{
    SMsgHookCall call = {&hook, this, &message, nPlace, hook.m_pCall};
    hook.m_pCall = &call;
    const LRESULT lResult = hook.WindowProc(message.message, message.wParam, message.lParam);
    if (call.pHook) // else it destroyed itself
        call.pHook->m_pCall = call.pOuter;
    return lResult;
}

void CMsgHookChain::ReleaseHooks()
{
    ::RemovePropW(m_hWnd, kProperty);
    m_bWindowGone = true;
    for (CMsgHook*& pHook : m_hooks)
    {
        if (!pHook)
            continue;
        pHook->m_pWnd = nullptr;
        pHook->m_pChain = nullptr;
        pHook = nullptr;
    }
}

/// Closes gaps, and ends the line if nothing holds it. Nothing may touch the line behind this call.
void CMsgHookChain::Tidy()
{
    if (m_nRunning > 0) // messages on their way know places in the line
        return;
    std::erase(m_hooks, nullptr);
    if (!IsEmpty())
        return;
    if (!m_bWindowGone)
    {
        if (!IsOnTop())
        {
            [[maybe_unused]] static const bool s_bPinned = PinModuleOf(&Procedure);
            return;
        }
        ::SetWindowLongPtrW(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_pfnOriginal));
        ::RemovePropW(m_hWnd, kProperty);
    }
    delete this;
}

bool CMsgHookChain::IsEmpty() const
{
    return m_hooks.empty();
}

bool CMsgHookChain::IsOnTop() const
{
    return ::GetWindowLongPtrW(m_hWnd, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(&Procedure);
}
