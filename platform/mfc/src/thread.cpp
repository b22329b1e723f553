// The thread of the program and its message loop.

#include <afxpriv.h>

#include "threadstate.h"

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

CWinThread::CWinThread() = default;

CWinThread::~CWinThread()
{
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
    return PreTranslateFrom(AfxGetMainWnd(), pMsg);
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
