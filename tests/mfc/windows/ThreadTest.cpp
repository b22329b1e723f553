// Threads, their messages, and what they wait for.

#include "../base/Answers.h"
#include "TestWindows.h"

#include <afxdisp.h>
#include <afxmt.h>

namespace
{
constexpr UINT numbered = WM_APP + 7;
const UINT registered = ::RegisterWindowMessage(L"DialogControlsOW thread test");

/// Runs a suspended thread to its end; answers the exit code.
DWORD CodeAtEnd(CWinThread* thread)
{
    const HANDLE handle = ::OpenThread(THREAD_ALL_ACCESS, FALSE, thread->m_nThreadID); // outlives the object
    EXPECT_EQ(thread->ResumeThread(), 1u);
    EXPECT_EQ(::WaitForSingleObject(handle, 20000), WAIT_OBJECT_0);
    DWORD code = 0;
    ::GetExitCodeThread(handle, &code);
    ::CloseHandle(handle);
    return code;
}

/// Runs a function on a worker until its end; answers the exit code.
template <class Function>
DWORD OnWorker(Function function)
{
    return CodeAtEnd(AfxBeginThread([](LPVOID called) { return UINT((*static_cast<Function*>(called))()); },
                                    &function, THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED));
}

/// A thread with a queue that adds what it is sent and ends with the sum.
class CSumThread : public CWinThread
{
    DECLARE_DYNCREATE(CSumThread)

public:
    static inline bool works = true, alive = false;
    static CWinThread* Begin()
    {
        return AfxBeginThread(RUNTIME_CLASS(CSumThread), THREAD_PRIORITY_ABOVE_NORMAL, 0, CREATE_SUSPENDED);
    }

protected:
    CSumThread() { alive = true; }
    ~CSumThread() override { alive = false; }
    BOOL InitInstance() override { return works; }
    int ExitInstance() override { return works ? m_sum : -1; }
    BOOL ProcessMessageFilter(int code, LPMSG) override { return m_sum += code; }
    afx_msg void OnNumber(WPARAM wParam, LPARAM lParam) { m_sum += static_cast<int>(wParam * lParam); }
    afx_msg void OnEnd(WPARAM, LPARAM)
    {
        MSG message{};
        ::CallMsgFilter(&message, 1000); // as a box of the thread's would
        ::PostQuitMessage(0);
    }
    DECLARE_MESSAGE_MAP()

private:
    int m_sum = 0;
};

IMPLEMENT_DYNCREATE(CSumThread, CWinThread)

BEGIN_MESSAGE_MAP(CSumThread, CWinThread)
    ON_THREAD_MESSAGE(numbered, &CSumThread::OnNumber)
    ON_REGISTERED_THREAD_MESSAGE(registered, &CSumThread::OnEnd)
END_MESSAGE_MAP()
} // namespace

TEST(Threads, RunAFunctionBelowTheApplicationsWindow)
{
    CPopup window;
    AfxGetApp()->m_pMainWnd = &window;
    const auto look = [&window]
    {
        CWnd* const seen = AfxGetMainWnd();
        EXPECT_NE(seen, &window);
        EXPECT_EQ(seen->m_hWnd, window.m_hWnd);
        EXPECT_EQ(AfxGetThread()->m_nThreadID, ::GetCurrentThreadId());
        EXPECT_NE(AfxGetThread(), AfxGetApp());
        return 11;
    };
    EXPECT_EQ(OnWorker(look), 11u);
    AfxGetApp()->m_pMainWnd = nullptr;
    const auto endEarly = []
    {
        AfxEndThread(12);
        return 13;
    };
    EXPECT_EQ(OnWorker(endEarly), 12u);
}

TEST(Threads, WithALoopHandleMessagesOfTheirsFromTheFirstOn)
{
    CWinThread* const thread = CSumThread::Begin();
    EXPECT_TRUE(thread->PostThreadMessage(numbered, 2, 3)); // though it has not run yet
    EXPECT_TRUE(thread->PostThreadMessage(numbered, 4, 5));
    EXPECT_TRUE(thread->PostThreadMessage(registered, 0, 0));
    EXPECT_EQ(thread->GetThreadPriority(), THREAD_PRIORITY_ABOVE_NORMAL);
    EXPECT_EQ(thread->SuspendThread(), 1u);
    EXPECT_EQ(thread->ResumeThread(), 2u);
    EXPECT_EQ(CodeAtEnd(thread), 1026u);
    EXPECT_FALSE(CSumThread::alive);
}

TEST(Threads, ThatDoNotBeginEndAtOnce)
{
    EXPECT_FALSE(CWinThread().InitInstance()) << "a thread without a class of its own has no loop";
    CSumThread::works = false;
    CWinThread* const thread = CSumThread::Begin();
    thread->m_bAutoDelete = FALSE;
    EXPECT_EQ(CodeAtEnd(thread), static_cast<DWORD>(-1));
    CSumThread::works = true;
    thread->Delete(); // says no
    EXPECT_TRUE(CSumThread::alive);
    delete thread;
}

TEST(Threads, AreIdleTwiceAndAgainAfterAMessageThatMayHaveChangedSomething)
{
    struct : CWinThread
    {
        const POINT messages[6] = {{5, WM_MOUSEMOVE},   {5, WM_MOUSEMOVE}, // repeated without a movement
                                   {5, WM_NCMOUSEMOVE}, {6, WM_NCMOUSEMOVE}, {6, WM_PAINT}, {6, WM_KEYDOWN}};
        const POINT* next = messages;

        BOOL OnIdle(LONG count) override { return Note("idle", count) && CWinThread::OnIdle(count); }
        BOOL PumpMessage() override
        {
            if (next == std::end(messages))
                return FALSE;
            m_msgCur.message = UINT(next->y);
            m_msgCur.pt = {next++->x, 5};
            return Note("message", m_msgCur.message);
        }
    } thread;
    Noted();
    OnWorker([&] { return thread.Run(); }); // where nothing else is in the queue
    EXPECT_EQ(Noted(), "idle 0;idle 1;message 512;idle 0;idle 1;message 512;message 160;idle 0;idle 1;"
                       "message 160;idle 0;idle 1;message 15;message 256;idle 0;idle 1;");
}

TEST(Threads, HaveOleUntilTheirEnd)
{
    static bool ended;
    ended = false;
    OnWorker(
        []
        {
            const auto otherModel = [] { return ::CoInitializeEx(nullptr, COINIT_MULTITHREADED); };
            EXPECT_TRUE(AfxOleInit());
            EXPECT_EQ(otherModel(), RPC_E_CHANGED_MODE);
            AfxOleTerm(TRUE);
            EXPECT_EQ(otherModel(), RPC_E_CHANGED_MODE);
            AfxOleTerm();
            EXPECT_EQ(otherModel(), S_OK);
            EXPECT_FALSE(AfxOleInit());
            ::CoUninitialize();
            EXPECT_TRUE(AfxOleInit());
            AfxGetThread()->m_lpfnOleTermOrFreeLib(FALSE, FALSE);
            EXPECT_EQ(otherModel(), S_OK);
            AfxGetThread()->m_lpfnOleTermOrFreeLib = [](BOOL, BOOL) { ended = true; };
            return 0;
        });
    EXPECT_TRUE(ended);
}

/// The answers of an object that is locked (L) and unlocked (U), or a lock that is asked (?), as 1 or 0.
template <class Object>
std::string Answers(Object& object, std::string_view calls)
{
    std::string answers;
    for (const char call : calls)
    {
        BOOL answer = FALSE;
        if (call != '?')
            answer = call == 'L' ? object.Lock(0) : object.Unlock();
        else if constexpr (requires { object.IsLocked(); })
            answer = object.IsLocked();
        answers += answer ? '1' : '0';
    }
    return answers;
}

TEST(SyncObjects, BelongToWhoeverLockedThem)
{
    CMutex mutex(TRUE);
    const auto isFree = [&] { return OnWorker([&] { return Answers(mutex, "LU") == "11"; }) != 0; };
    EXPECT_FALSE(isFree());
    EXPECT_EQ(Answers(mutex, "UU"), "10");
    EXPECT_TRUE(isFree());
    EXPECT_EQ(OnWorker([&] { return mutex.Lock(); }), 1u); // and ends with it
    EXPECT_EQ(Answers(mutex, "L"), "1");

    CSemaphore semaphore(1, 3);
    LONG before = -1;
    EXPECT_EQ(Answers(semaphore, "LL"), "10");
    EXPECT_TRUE(semaphore.Unlock(2, &before) && before == 0);
    EXPECT_EQ(Answers(semaphore, "UU"), "10") << "three places";

    constexpr wchar_t name[] = L"DialogControlsOW event";
    CEvent automatic(TRUE), manual(FALSE, TRUE, name), same(FALSE, TRUE, name);
    EXPECT_EQ(Answers(automatic, "LL"), "10");
    EXPECT_EQ(Answers(manual, "L"), "0");
    EXPECT_TRUE(same.SetEvent());
    EXPECT_EQ(Answers(manual, "LLUL"), "1111");
    EXPECT_TRUE(manual.ResetEvent());
    EXPECT_EQ(Answers(manual, "L"), "0");
    EXPECT_EQ(ThrownBy([&] { CMutex(FALSE, name); }), "CResourceException"); // the name of another kind

    CCriticalSection section;
    EXPECT_TRUE(section.Lock());
    CRITICAL_SECTION* const bare = section;
    EXPECT_EQ(OnWorker([bare] { return ::TryEnterCriticalSection(bare); }), 0u);
    EXPECT_TRUE(section.Unlock());
    EXPECT_EQ(OnWorker([bare] { return ::TryEnterCriticalSection(bare); }), 1u);
}

TEST(Locks, OfOneObjectEndWithTheirScope)
{
    EXPECT_TRUE(RefusesArgument([&] { CSingleLock(nullptr); }));
    CSemaphore semaphore(2, 2);
    {
        CSingleLock first(&semaphore, TRUE), second(&semaphore), third(&semaphore);
        EXPECT_EQ(Answers(second, "?L"), "01");
        EXPECT_EQ(Answers(third, "L?U"), "001");
        EXPECT_EQ(Answers(first, "?U?"), "110");
        EXPECT_EQ(Answers(third, "L"), "1");
        LONG before = -1;
        EXPECT_TRUE(third.Unlock(1, &before) && before == 0);
        EXPECT_EQ(Answers(third, "?L"), "01");
    }
    EXPECT_FALSE(semaphore.Unlock()); // all are back
}

TEST(Locks, OfSeveralObjectsWaitForOneOrForAll)
{
    CEvent event(FALSE, FALSE);
    CSemaphore semaphore(1, 1);
    CMutex mutex;
    CCriticalSection section;
    CSyncObject* objects[] = {&event, &semaphore, &mutex};
    CSyncObject* withoutHandle[] = {&section};
    EXPECT_TRUE(RefusesArgument([&] { CMultiLock(objects, 0); }));
    EXPECT_TRUE(RefusesArgument([&] { CMultiLock(objects, MAXIMUM_WAIT_OBJECTS + 1); }));
    EXPECT_TRUE(RefusesArgument([&] { CMultiLock(withoutHandle, 1); }));
    {
        CMultiLock lock(objects, 3);
        const auto held = [&] { return lock.IsLocked(0) * 100 + lock.IsLocked(1) * 10 + lock.IsLocked(2); };
        EXPECT_EQ(lock.Lock(0), static_cast<DWORD>(WAIT_TIMEOUT));
        EXPECT_EQ(lock.Lock(0, FALSE), WAIT_OBJECT_0 + 1);
        EXPECT_EQ(held(), 10);
        EXPECT_TRUE(lock.Unlock(1));
        EXPECT_EQ(held(), 0);
        EXPECT_FALSE(lock.Unlock(1));

        event.SetEvent();
        EXPECT_EQ(lock.Lock(0), WAIT_OBJECT_0);
        EXPECT_EQ(held(), 111);
        EXPECT_TRUE(lock.Unlock());
        EXPECT_EQ(held(), 0);

        CMultiLock eventOnly(objects, 1);
        ::PostThreadMessage(::GetCurrentThreadId(), WM_NULL, 0, 0);
        EXPECT_EQ(eventOnly.Lock(INFINITE, FALSE, QS_POSTMESSAGE), WAIT_OBJECT_0 + 1);
        EXPECT_FALSE(eventOnly.IsLocked(0));
        OnWorker([&mutex] { return mutex.Lock(); }); // ends with it
        semaphore.Lock();
        EXPECT_EQ(lock.Lock(0, FALSE), static_cast<DWORD>(WAIT_ABANDONED_0) + 2);
        EXPECT_FALSE(lock.Unlock(1)) << "not of a mutex";
        EXPECT_EQ(held(), 1);
        semaphore.Unlock();
    }
    {
        const CMultiLock lock(&objects[1], 2, TRUE);
        EXPECT_FALSE(semaphore.Lock(0));
    }
    EXPECT_TRUE(semaphore.Lock(0));
}
