#pragma once
// A box with a progress bar for long work on the main thread itself: no worker thread, no locks. The work
// calls Update now and then, which moves the bar and, if the box may be cancelled, lets its Cancel button
// live.
//
// ```cpp
//     CSingleThreadProgress progress(L"Calculation", m_hWnd, true);
//     for (int i = 0; i < nBeams; ++i)
//     {
//         if (!progress.Update(100 * i / nBeams))
//             return;                                       // the user has cancelled
//         Calculate(i);
//     }                                                     // the box goes with the object
// ```
//
// Life. The box shows from the constructor to the destructor, also when an exception or an early return ends
// the work. It stands over the middle of the parent, perhaps partly off the screen; without a parent (null,
// or a window that is gone), where MFC centres a dialog: over the application's main window. The parent is
// not asked for again and may go.
//
// Cancel. The button, Escape and the close box ask "Prekidanje procesa?" in a box of their own, within the
// call of Update, so that the work stands still meanwhile, and the parent takes no input. If the user agrees,
// that call of Update and all after it answer false; the box stays, and asks no more. If not, the work goes
// on, and Cancel asks again. Nothing stops the work but its own look at the answer.
//
// Messages. A box that may be cancelled dispatches its own messages and those of its controls, and no others:
// the rest of the application stays still, and what the user does there waits until the work is over. A box
// that may not dispatches nothing: it shows the bar's moves, and nothing else, until the work ends.
//
// Cost. Update may be called as often as one likes: while position / step stays the same it paints nothing,
// and costs a look into the queue with Cancel, and two divisions without. The step of 2 repaints the bar 50
// times in a run.
//
// Failures. If the box cannot be made, or somebody destroys its window, the work goes on without it: Update
// answers as before, true or false. All calls are to come from the main thread.

#include <afxwin.h>

#include "module/Export.h"

class CDlgSingleThreadProgress;

class OW_DIALOGCONTROLS_API CSingleThreadProgress
{
public:
    CSingleThreadProgress(CString strTitle, HWND hParent, bool bCancellable);
    ~CSingleThreadProgress();
    CSingleThreadProgress(const CSingleThreadProgress&) = delete;
    CSingleThreadProgress& operator=(const CSingleThreadProgress&) = delete;

    /// By how much the position must change for the bar to be painted again; 2 at first. 0 is taken for 1, a
    /// negative step for its magnitude.
    void SetStep(int nStep);

    /// Moves the bar to a percentage from 0 to 100, and lets the box take its messages if it may be
    /// cancelled. False if the user has cancelled. Beyond the range the bar stands at its end, and the text
    /// shows the number as given.
    bool Update(int nPos);

    /// Lets the box take its messages, and leaves the bar where it is. False if the user has cancelled.
    bool DispatchPendingWindowMessages();

private:
    friend class CDlgSingleThreadProgress;

    void DialogGone();
    void Show(HWND hParent);
    bool IsCancelled() const;

    int m_nLast = -1000; ///< position of the last Update; at first one that every step tells from 0
    CString m_strTitle;
    bool m_bCancellable;
    CDlgSingleThreadProgress* m_pDialog; ///< owned; null once its window is gone
    int m_nStep = 2;
    bool m_bCancelled = false; ///< what a dialog that is gone was told
};
