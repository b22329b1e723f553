#pragma once
// The line of hooks of one window, and the window procedure that runs it.
//
// A line belongs to itself: it is made with the first hook of a window and found again through a property of
// the window. It goes when it is empty and no message runs through it, or with the window. If another
// subclassing came on top meanwhile, its procedure cannot be taken out from underneath; the line then stays,
// empty, and passes all messages on.

#include "MsgHook.h"

#include <vector>

struct SHookedMessage
{
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};

/// One hook working on one message; lives on the stack while WindowProc runs.
struct SMsgHookCall
{
    CMsgHook* pHook; ///< null once the hook is gone
    CMsgHookChain* pChain;
    const SHookedMessage* pMessage;
    size_t nPlace;        ///< the hook's place in the line; those before it are next
    SMsgHookCall* pOuter; ///< the call of the same hook that this one interrupts, or null
};

class CMsgHookChain
{
public:
    /// The window's line, made if need be. Null if the window cannot be subclassed.
    static CMsgHookChain* OfWindow(HWND hWnd);

    void Add(CMsgHook& hook);

    /// May be called at any time; may end the line.
    void Remove(CMsgHook& hook);

    /// Hands a message to the hooks before place `nPlace`, the nearest first, and then to the window's own
    /// procedure.
    LRESULT Pass(const SHookedMessage& message, size_t nPlace);

private:
    explicit CMsgHookChain(HWND hWnd) : m_hWnd(hWnd) {}

    static LRESULT CALLBACK Procedure(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

    bool Install();
    LRESULT Run(const SHookedMessage& message);
    LRESULT Call(CMsgHook& hook, const SHookedMessage& message, size_t nPlace);
    void ReleaseHooks();
    void Tidy();
    bool IsEmpty() const;
    bool IsOnTop() const;

    HWND m_hWnd;
    WNDPROC m_pfnOriginal = nullptr;
    std::vector<CMsgHook*> m_hooks; ///< the last is asked first; null where one left while a message ran
    int m_nRunning = 0;             ///< messages on their way through the line
    bool m_bWindowGone = false;
};
