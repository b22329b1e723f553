#pragma once
// What the framework keeps for each thread. Plain data, so that it may be touched at any time, in DllMain
// too.

#include <afxwin.h>

struct CThreadState
{
    // Message dispatch
    MSG noMessage{};
    MSG* lastSentMessage = &noMessage; ///< the message that the innermost AfxCallWndProc handles
    HWND lockoutNotifyWindow =
        nullptr; ///< window whose controls' notifications are dropped: it exchanges data

    // Creation of windows
    CWnd* windowInCreation = nullptr; ///< object that waits for the next window of the thread
    HHOOK creationHook = nullptr;

    // Message loop
    HHOOK messageFilterHook = nullptr;
    bool inMessageFilter = false;
    MSG currentMessage{}; ///< taken last by AfxPumpMessage

    // Tool tips of windows
    class CToolTipCtrl* toolTip = nullptr; ///< owned; given back by AfxWinTerm
    const CWnd* lastToolWindow = nullptr;  ///< served by the tip at the moment, and never looked into
    INT_PTR lastTool = -1;                 ///< answer of its OnToolHitTest
    TOOLINFO lastToolInfo{};

    int tempMapLocks = 0;
    bool oleInitialized = false; ///< by AfxOleInit
    wchar_t className[96] = {}; ///< answer of AfxRegisterWndClass

    AFX_MODULE_STATE* moduleState = nullptr; ///< null: that of the process
    AFX_MODULE_THREAD_STATE moduleThreadState;
};

CThreadState& GetThreadState();

/// Restores a variable at the end of the scope.
template <class T>
class CRestoreValue
{
public:
    CRestoreValue(T& variable, T value) : m_variable(variable), m_previous(variable) { variable = value; }
    ~CRestoreValue() { m_variable = m_previous; }
    CRestoreValue(const CRestoreValue&) = delete;
    CRestoreValue& operator=(const CRestoreValue&) = delete;

private:
    T& m_variable;
    T m_previous;
};
