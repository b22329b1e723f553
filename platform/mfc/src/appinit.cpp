// Start and end of the program.

#include "threadstate.h"
#include "toolhits.h"
#include "wndclass.h"

namespace
{
/// Offers the messages of dialogs, menus and message boxes to the thread's filter. Not while one is in it: a
/// filter may run such a loop itself.
LRESULT CALLBACK MessageFilter(int code, WPARAM wParam, LPARAM lParam)
{
    CThreadState& state = GetThreadState();
    CWinThread* const thread = AfxGetThread();
    if (code < 0 || thread == nullptr || state.inMessageFilter)
        return ::CallNextHookEx(state.messageFilterHook, code, wParam, lParam);
    const CRestoreValue<bool> inFilter(state.inMessageFilter, true);
    return thread->ProcessMessageFilter(code, reinterpret_cast<LPMSG>(lParam));
}
} // namespace

BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow)
{
    ASSERT(hPrevInstance == nullptr); // since Windows NT
    (void)hPrevInstance;
    ::SetErrorMode(::SetErrorMode(0) | SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);

    AFX_MODULE_STATE* const state = AfxGetModuleState();
    state->m_hCurrentInstanceHandle = hInstance;
    state->m_hCurrentResourceHandle = hInstance;
    if (CWinApp* const app = AfxGetApp())
    {
        app->m_lpCmdLine = lpCmdLine;
        app->m_nCmdShow = nCmdShow;
        app->SetCurrentHandles();
    }
    InitializeCommonControls();
    AfxInitThread();
    return TRUE;
}

void AFXAPI AfxInitThread()
{
    CThreadState& thread = GetThreadState();
    if (thread.messageFilterHook == nullptr)
        thread.messageFilterHook =
            ::SetWindowsHookEx(WH_MSGFILTER, &MessageFilter, nullptr, ::GetCurrentThreadId());
}

void AFXAPI AfxTermThread(HINSTANCE)
{
    ReleaseToolTip();
    CThreadState& thread = GetThreadState();
    for (HHOOK* hook : {&thread.messageFilterHook, &thread.creationHook})
        if (*hook != nullptr)
            ::UnhookWindowsHookEx(std::exchange(*hook, nullptr));
}

void AFXAPI AfxWinTerm()
{
    CWinThread* const thread = AfxGetThread();
    if (thread != nullptr && thread->m_lpfnOleTermOrFreeLib != nullptr)
        thread->m_lpfnOleTermOrFreeLib(TRUE, FALSE);
    AfxTermThread();
}

int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow)
{
    ASSERT(AfxGetThread() != nullptr); // the program has a global object of a class derived from CWinApp
    int exitCode = -1;
    CWinThread* const thread = AfxGetThread();
    CWinApp* const app = AfxGetApp();
    if (thread != nullptr && AfxWinInit(hInstance, hPrevInstance, lpCmdLine, nCmdShow) &&
        (app == nullptr || app->InitApplication()))
    {
        if (thread->InitInstance())
            exitCode = thread->Run();
        else
        {
            if (thread->m_pMainWnd != nullptr)
                thread->m_pMainWnd->DestroyWindow();
            exitCode = thread->ExitInstance();
        }
    }
    AfxWinTerm();
    return exitCode;
}

void AFXAPI AfxPostQuitMessage(int nExitCode)
{
    ::PostQuitMessage(nExitCode);
}
