#include <afxwin.h>

#include "dialogs/OstrelMessenger.h"

#include "dialogs/OstrelMessageBox.h"

#include <rxmfcapi.h>

namespace
{
constexpr UINT_PTR kTimer = 3025;
constexpr UINT kPeriodMs = 5000;
constexpr int kNone = 0;     // no code waits
constexpr int kShowing = -1; // a box is open
} // namespace

COstrelMessenger& COstrelMessenger::Instance()
{
    static COstrelMessenger object;
    return object;
}

COstrelMessenger::COstrelMessenger() : m_nPending(kNone)
{
    if (HookWindow(acedGetAcadFrame()))
        m_pWnd->SetTimer(kTimer, kPeriodMs, nullptr);
}

COstrelMessenger::~COstrelMessenger()
{
    if (m_pWnd)
        m_pWnd->KillTimer(kTimer);
}

void COstrelMessenger::PostMsg(int nCode)
{
    int nNone = kNone;
    m_nPending.compare_exchange_strong(nNone, nCode);
}

LRESULT COstrelMessenger::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_TIMER && wParam == kTimer)
        OnTimer();
    return CMsgHook::WindowProc(message, wParam, lParam);
}

// While a box is open its message loop goes on bringing the timer here: the mark falls then, and codes are
// taken again.
void COstrelMessenger::OnTimer()
{
    const int nCode = m_nPending;
    if (nCode == kNone)
        return;
    if (nCode != kShowing)
    {
        m_nPending = kShowing;
        COstrelMessageBox::ErrorBoxP(nCode);
    }
    m_nPending = kNone;
}
