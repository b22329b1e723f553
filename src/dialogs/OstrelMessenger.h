#pragma once
// Lets code that must not open a window, on whatever thread, leave a code that the user is shown later.
//
// ```cpp
//     COstrelMessenger::Instance();              // once, on the main thread
//     ...
//     COstrelMessenger::Instance().PostMsg(17);  // from any thread
// ```
//
// A timer on the CAD host's main window looks for a code every five seconds and shows it with
// COstrelMessageBox::ErrorBoxP, from the host's own message loop.
//
// One code waits at a time: what is posted while one waits, or while its box is open, is dropped. A box that
// stays open over the next tick of the timer takes a code again, which the tick after that shows in a second
// box.
//
// The first call of Instance must come on the main thread, which owns the host's window; the object sees that
// window's messages until it goes. A code that is posted after that is not shown.

#include <afxwin.h>

#include <MsgHook.h>

#include "module/Export.h"

#include <atomic>

class OW_DIALOGCONTROLS_API COstrelMessenger : public CMsgHook
{
public:
    /// The one of the process, made by the first call.
    static COstrelMessenger& Instance();

    /// Leaves a code to be shown. 0 and -1 are never shown.
    void PostMsg(int nCode);

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    COstrelMessenger();
    COstrelMessenger(const COstrelMessenger&) = delete;
    ~COstrelMessenger() override;

    void OnTimer();

    std::atomic<int> m_nPending; ///< the code that waits, or one of the two marks of the source
};
