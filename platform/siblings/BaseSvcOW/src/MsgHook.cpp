#include "MsgHook.h"

#include "MsgHookChain.h"

CMsgHook::~CMsgHook()
{
    Unhook();
    for (SMsgHookCall* pCall = m_pCall; pCall; pCall = pCall->pOuter)
        pCall->pHook = nullptr;
}

BOOL CMsgHook::HookWindow(CWnd* pWnd)
{
    if (IsHooked() || !pWnd || !::IsWindow(pWnd->m_hWnd))
        return FALSE;
    if (::GetWindowThreadProcessId(pWnd->m_hWnd, nullptr) != ::GetCurrentThreadId())
        return FALSE;
    CMsgHookChain* pChain = CMsgHookChain::OfWindow(pWnd->m_hWnd);
    if (!pChain)
        return FALSE;
    pChain->Add(*this);
    m_pWnd = pWnd;
    return TRUE;
}

void CMsgHook::Unhook()
{
    m_pWnd = nullptr;
    if (m_pChain)
        m_pChain->Remove(*this);
}

LRESULT CMsgHook::WindowProc(UINT, WPARAM, LPARAM)
{
    return Default();
}

LRESULT CMsgHook::Default()
{
    return m_pCall ? m_pCall->pChain->Pass(*m_pCall->pMessage, m_pCall->nPlace) : 0;
}

bool CMsgHook::IsWorkingOn(UINT message) const
{
    const SMsgHookCall* pCall = m_pCall ? m_pCall->pOuter : nullptr;
    while (pCall && pCall->pMessage->message != message)
        pCall = pCall->pOuter;
    return pCall != nullptr;
}
