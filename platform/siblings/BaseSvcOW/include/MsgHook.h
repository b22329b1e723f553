#pragma once
// CMsgHook: sees the messages of a window before the window does.
//
//     class CNotifyHook : public CMsgHook
//     {
//     protected:
//         LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
//         {
//             if (message == WM_NOTIFY && wParam == IDC_GRID)
//                 return OnGridNotify(reinterpret_cast<NMHDR*>(lParam)); // the window does not see it
//             return Default();                                          // everything else goes on
//         }
//     };
//
//     m_hook.HookWindow(GetParent());
//
// Several hooks on one window stand in a line: the one that came last is asked first, and Default() goes on
// to the one before it and in the end to the window's own procedure.
//
// Life times. Hooks may be removed and destroyed in any order, also inside WindowProc; a hook that destroys
// itself there must not touch its members afterwards. A window may die before its hooks: after WM_NCDESTROY
// they are unhooked and can hook another window. A hook that joins while a message is on its way sees the
// next one.
//
// Re-entry. A message that a hook sends to its window from within WindowProc is a message like any other: it
// goes through the whole line from its beginning, and so reaches this hook again, with Default() then meaning
// the inner message. A hook whose own messages are to reach the window asks IsWorkingOn first:
//
//     if (message == WM_SETTEXT && !IsWorkingOn(WM_SETTEXT))
//         return SetTextMyWay(lParam); // its SetWindowText comes back here, and goes on to the window
//
// Hook on the thread that owns the window. Exceptions must not leave WindowProc.

#include "BaseSvcDef.h"

class CMsgHookChain;
struct SMsgHookCall;

class BASESVC_API CMsgHook
{
public:
    CMsgHook() = default;
    virtual ~CMsgHook();
    CMsgHook(const CMsgHook&) = delete;
    CMsgHook& operator=(const CMsgHook&) = delete;

    /// Puts the hook in front of the window's line. FALSE if there is no such window, if it belongs to
    /// another thread, or if the hook has a window already. The CWnd is kept and not owned; it must be the
    /// window's permanent object, or outlive the hooking.
    BOOL HookWindow(CWnd* pWnd);

    /// Takes the hook out of the line; nothing happens without a window.
    void Unhook();

    BOOL IsHooked() const { return m_pWnd != nullptr; }

    /// The hooked window, null while there is none.
    CWnd* GetHookedWindow() const { return m_pWnd; }

protected:
    /// A message to the window. The result is the answer to its sender.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);

    /// Passes the current message on, as it came, and returns what the rest of the line answers. Only to be
    /// called inside WindowProc; outside it answers 0. It works there also after Unhook.
    LRESULT Default();

    /// Whether WindowProc is at work on this message already, outside the current one.
    bool IsWorkingOn(UINT message) const;

    CWnd* m_pWnd = nullptr; ///< the hooked window, not owned; null while there is none

private:
    friend class CMsgHookChain;

    CMsgHookChain* m_pChain = nullptr; ///< the line that this hook stands in; null while not hooked
    SMsgHookCall* m_pCall = nullptr;   ///< the innermost message that WindowProc is working on
};
