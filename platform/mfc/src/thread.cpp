// Threads: start, end, message loop.

#include <afxmt.h>
#include <afxpriv.h>

#include "msgmap.h"
#include "threadstate.h"

#include <process.h>

#include <memory>

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

CWinThread::CWinThread() = default;

CWinThread::CWinThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam)
    : m_pThreadParams(pParam), m_pfnThreadProc(pfnThreadProc)
{
}

CWinThread::~CWinThread()
{
    if (m_hThread != nullptr)
        ::CloseHandle(m_hThread);
    AFX_MODULE_THREAD_STATE* const state = AfxGetModuleThreadState();
    if (state->m_pCurrentWinThread == this)
        state->m_pCurrentWinThread = nullptr;
}

CWinThread* AFXAPI AfxGetThread()
{
    return AfxGetModuleThreadState()->m_pCurrentWinThread;
}

CWnd* AFXAPI AfxGetMainWnd()
{
    CWinThread* const thread = AfxGetThread();
    return thread != nullptr ? thread->GetMainWnd() : nullptr;
}

BOOL CWinThread::PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::PostThreadMessage(m_nThreadID, message, wParam, lParam);
}

BOOL CWinThread::InitInstance()
{
    return FALSE; // a thread that only runs a function has no loop
}

int CWinThread::ExitInstance()
{
    return static_cast<int>(m_msgCur.wParam); // of WM_QUIT
}

void CWinThread::Delete()
{
    if (m_bAutoDelete)
        delete this;
}

// ---------------------------------------------------------------------------------------------------------
// Start and end

namespace
{
/// What a new thread and the one that starts it share until the new one is set up.
struct CThreadStart
{
    CWinThread* thread;
    AFX_MODULE_STATE* moduleState;
    CEvent isSetUp; ///< the new thread has its state, and a queue
    CEvent mayRun;  ///< it has been suspended, if that was asked for
};

/// Makes the calling thread that of the object.
CWinThread* SetUpThread(void* parameter)
{
    const std::unique_ptr<std::shared_ptr<CThreadStart>> holder(
        static_cast<std::shared_ptr<CThreadStart>*>(parameter));
    CThreadStart& start = **holder;
    AfxSetModuleState(start.moduleState);
    AfxGetModuleThreadState()->m_pCurrentWinThread = start.thread;
    AfxInitThread();
    MSG message;
    ::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE); // makes the queue
    start.isSetUp.SetEvent();
    start.mayRun.Lock();
    return start.thread;
}

UINT RunThread(CWinThread* thread)
{
    if (thread->m_pfnThreadProc != nullptr)
        return thread->m_pfnThreadProc(thread->m_pThreadParams);
    return static_cast<UINT>(thread->InitInstance() ? thread->Run() : thread->ExitInstance());
}

unsigned __stdcall ThreadEntry(void* parameter)
{
    CWinThread* const thread = SetUpThread(parameter);
    CWnd applicationWindow; // this thread's object of it
    CWinApp* const app = AfxGetApp();
    if (app != nullptr && thread->m_pMainWnd == nullptr && app->m_pMainWnd->GetSafeHwnd() != nullptr)
    {
        applicationWindow.Attach(app->m_pMainWnd->m_hWnd);
        thread->m_pMainWnd = &applicationWindow;
    }
    const UINT exitCode = RunThread(thread);
    applicationWindow.Detach();
    if (thread->m_pMainWnd == &applicationWindow)
        thread->m_pMainWnd = nullptr;
    AfxEndThread(exitCode);
    return exitCode;
}

CWinThread* Begin(CWinThread* thread, int priority, UINT stackSize, DWORD flags,
                  LPSECURITY_ATTRIBUTES security)
{
    if (!thread->CreateThread(flags | CREATE_SUSPENDED, stackSize, security))
    {
        thread->Delete();
        return nullptr;
    }
    VERIFY(thread->SetThreadPriority(priority));
    if ((flags & CREATE_SUSPENDED) == 0)
        VERIFY(thread->ResumeThread() != static_cast<DWORD>(-1));
    return thread;
}
} // namespace

BOOL CWinThread::CreateThread(DWORD dwCreateFlags, UINT nStackSize, LPSECURITY_ATTRIBUTES lpSecurityAttrs)
{
    ASSERT(m_hThread == nullptr); // an object for each thread
    const auto start = std::make_shared<CThreadStart>();
    start->thread = this;
    start->moduleState = AfxGetModuleState();
    auto holder = std::make_unique<std::shared_ptr<CThreadStart>>(start);

    unsigned id = 0;
    const DWORD flags = dwCreateFlags & ~static_cast<DWORD>(CREATE_SUSPENDED);
    m_hThread = reinterpret_cast<HANDLE>(
        ::_beginthreadex(lpSecurityAttrs, nStackSize, &ThreadEntry, holder.get(), flags, &id));
    if (m_hThread == nullptr)
        return FALSE;
    holder.release(); // the thread's from now on
    m_nThreadID = id;
    start->isSetUp.Lock();
    if ((dwCreateFlags & CREATE_SUSPENDED) != 0)
        SuspendThread();
    start->mayRun.SetEvent();
    return TRUE;
}

CWinThread* AFXAPI AfxBeginThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam, int nPriority, UINT nStackSize,
                                  DWORD dwCreateFlags, LPSECURITY_ATTRIBUTES lpSecurityAttrs)
{
    ASSERT(pfnThreadProc != nullptr);
    return Begin(new CWinThread(pfnThreadProc, pParam), nPriority, nStackSize, dwCreateFlags,
                 lpSecurityAttrs);
}

CWinThread* AFXAPI AfxBeginThread(CRuntimeClass* pThreadClass, int nPriority, UINT nStackSize,
                                  DWORD dwCreateFlags, LPSECURITY_ATTRIBUTES lpSecurityAttrs)
{
    ASSERT(pThreadClass != nullptr && pThreadClass->IsDerivedFrom(RUNTIME_CLASS(CWinThread)));
    auto* const thread = static_cast<CWinThread*>(pThreadClass->CreateObject());
    if (thread == nullptr)
        AfxThrowMemoryException();
    return Begin(thread, nPriority, nStackSize, dwCreateFlags, lpSecurityAttrs);
}

void AFXAPI AfxEndThread(UINT nExitCode, BOOL bDelete)
{
    CWinThread*& current = AfxGetModuleThreadState()->m_pCurrentWinThread;
    if (CWinThread* const thread = current)
    {
        ASSERT(thread != AfxGetApp()); // which ends by its main window
        if (thread->m_lpfnOleTermOrFreeLib != nullptr)
            thread->m_lpfnOleTermOrFreeLib(TRUE, FALSE);
        if (bDelete)
            thread->Delete();
        current = nullptr;
    }
    AfxTermThread();
    ::_endthreadex(nExitCode);
}

// ---------------------------------------------------------------------------------------------------------
// Message loop

int CWinThread::Run()
{
    bool idle = true;
    LONG idleCount = 0;
    for (;;)
    {
        MSG waiting;
        while (idle && !::PeekMessage(&waiting, nullptr, 0, 0, PM_NOREMOVE))
            idle = OnIdle(idleCount++) != FALSE;
        if (!PumpMessage())
            return ExitInstance();
        if (IsIdleMessage(&m_msgCur))
        {
            idle = true;
            idleCount = 0;
        }
    }
}

namespace
{
/// Takes the next message and dispatches it unless somebody consumes it first.
BOOL PumpOne()
{
    MSG& message = GetThreadState().currentMessage;
    if (!::GetMessage(&message, nullptr, 0, 0))
        return FALSE;
    if (!AfxPreTranslateMessage(&message))
    {
        // Copies, because the handler may run a loop of its own.
        const MSG taken = message;
        ::TranslateMessage(&taken);
        ::DispatchMessage(&taken);
    }
    return TRUE;
}

/// The walk for a thread without a main window, or without a CWinThread at all.
BOOL PreTranslateFrom(CWnd* mainWindow, MSG* message)
{
    if (CWnd::WalkPreTranslateTree(mainWindow != nullptr ? mainWindow->m_hWnd : nullptr, message))
        return TRUE;
    // Modeless dialogs stand beside the main window; its accelerators hold for them too.
    if (mainWindow == nullptr || message->hwnd == nullptr)
        return FALSE;
    const CWnd* const top = CWnd::FromHandle(message->hwnd)->GetTopLevelParent();
    return top != mainWindow && mainWindow->PreTranslateMessage(message);
}
} // namespace

BOOL CWinThread::PumpMessage()
{
    const BOOL goesOn = PumpOne();
    m_msgCur = GetThreadState().currentMessage;
    return goesOn;
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg)
{
    if (pMsg->hwnd == nullptr && DispatchThreadMessageEx(pMsg))
        return TRUE;
    return PreTranslateFrom(AfxGetMainWnd(), pMsg);
}

BOOL CWinThread::DispatchThreadMessageEx(MSG* pMsg)
{
    const AFX_MSGMAP_ENTRY* const entry = FindWindowMessage(GetMessageMap(), pMsg->message);
    if (entry == nullptr)
        return FALSE;
    const auto handler = RestoreHandlerType<void (CWinThread::*)(WPARAM, LPARAM)>(entry->pfn);
    (this->*handler)(pMsg->wParam, pMsg->lParam);
    return TRUE;
}

BOOL AFXAPI AfxPumpMessage()
{
    CWinThread* const thread = AfxGetThread();
    return thread != nullptr ? thread->PumpMessage() : PumpOne();
}

BOOL AFXAPI AfxPreTranslateMessage(MSG* pMsg)
{
    CWinThread* const thread = AfxGetThread();
    return thread != nullptr ? thread->PreTranslateMessage(pMsg) : PreTranslateFrom(nullptr, pMsg);
}

namespace
{
/// Whether a message may have changed something. `last` and `cursor` are those of the mouse move before.
BOOL MayChangeState(const MSG& message, UINT& last, CPoint& cursor)
{
    if (message.message == WM_MOUSEMOVE || message.message == WM_NCMOUSEMOVE)
    {
        // The system repeats moves without a movement when windows come and go below the cursor.
        const CPoint position(message.pt);
        if (position == cursor && message.message == last)
            return FALSE;
        cursor = position;
        last = message.message;
        return TRUE;
    }
    return message.message != WM_PAINT && message.message != WM_SYSTIMER; // the latter blinks the caret
}
} // namespace

BOOL CWinThread::IsIdleMessage(MSG* pMsg)
{
    return MayChangeState(*pMsg, m_nMsgLast, m_ptCursorLast);
}

BOOL AFXAPI AfxIsIdleMessage(MSG* pMsg)
{
    if (CWinThread* const thread = AfxGetThread())
        return thread->IsIdleMessage(pMsg);
    static thread_local UINT last = 0;
    static thread_local CPoint cursor(0, 0);
    return MayChangeState(*pMsg, last, cursor);
}

BOOL CWinThread::OnIdle(LONG lCount)
{
    if (lCount <= 0)
    {
        for (CWnd* const window : {m_pMainWnd, m_pActiveWnd})
        {
            if (window->GetSafeHwnd() == nullptr || !window->IsWindowVisible())
                continue;
            AfxCallWndProc(window, window->m_hWnd, WM_IDLEUPDATECMDUI, TRUE, 0);
            window->SendMessageToDescendants(WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
        }
    }
    else if (GetThreadState().tempMapLocks == 0)
    {
        AfxLockTempMaps();
        AfxUnlockTempMaps();
    }
    return lCount < 1;
}

// ---------------------------------------------------------------------------------------------------------
// Exceptions and filters

namespace
{
LRESULT TellAboutException(CException* e, const MSG* message)
{
    if (message->message == WM_CREATE)
        return -1; // the creation fails, and who asked for the window is told so
    if (message->message == WM_PAINT)
    {
        ::ValidateRect(message->hwnd, nullptr); // or it would come again, and so would the box
        return 0;
    }
    if (!e->IsKindOf(RUNTIME_CLASS(CUserException))) // which says that the user has been told
        e->ReportError(e->IsKindOf(RUNTIME_CLASS(CMemoryException)) ? MB_ICONEXCLAMATION | MB_SYSTEMMODAL
                                                                    : MB_ICONSTOP);
    return message->message == WM_COMMAND; // a failed command was handled nevertheless
}
} // namespace

LRESULT CWinThread::ProcessWndProcException(CException* e, const MSG* pMsg)
{
    return TellAboutException(e, pMsg);
}

LRESULT AFXAPI AfxProcessWndProcException(CException* e, const MSG* pMsg)
{
    CWinThread* const thread = AfxGetThread();
    return thread != nullptr ? thread->ProcessWndProcException(e, pMsg) : TellAboutException(e, pMsg);
}

BOOL CWinThread::ProcessMessageFilter(int, LPMSG)
{
    return FALSE;
}
