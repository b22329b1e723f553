#pragma once
// Real input for tests: keys and clicks go through SendInput, so they take the road that a user's take.
// Every call pumps messages through the PreTranslateMessage walk, as the application's own loop does,
// until the input has been worked off. Nothing here sleeps for a fixed time.

#include <afxwin.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace owtest
{
/// Dispatches what waits in the queue, through the PreTranslateMessage walk, and returns.
void Pump();

/// Pumps until the condition holds; false after `timeoutMs` milliseconds without it, which only a busy machine
/// or a fault comes near to.
bool PumpUntil(const std::function<bool()>& condition, DWORD timeoutMs = 20000);

/// Presses and releases one key; with `shift` or `control` held around it.
void Press(WORD virtualKey, bool shift = false, bool control = false);

/// Types characters as the keyboard sends them: letters, digits, signs, blanks.
void Type(std::wstring_view text);

/// Moves the cursor to a point of the window's client area.
void MoveTo(HWND window, CPoint client);

/// Presses and releases the left button at a point of the window's client area. However fast they follow each
/// other, two clicks are never a double click.
void Click(HWND window, CPoint client);

/// Clicks the middle of the window.
void Click(HWND window);

/// However slow the machine is, this is a double click.
void DoubleClick(HWND window, CPoint client);

/// Presses the left button and leaves it down; `ButtonUp` lets it go.
void ButtonDown(HWND window, CPoint client);
void ButtonUp();

/// Presses and releases a key, clicks a point of the screen or the middle of a window, or drags from a point of
/// the screen to another, and leaves it in the queue: for a loop that takes its input itself, as a menu's or a
/// scroll bar's, or that the program runs itself.
void QueueKey(WORD virtualKey);
void QueueClick(CPoint screen);
void QueueClick(HWND window);
void QueueDrag(CPoint from, CPoint to);

/// What every test starts from: no key and no button is down, nothing waits in the queue, and the mouse rests in
/// the far corner of the screen, where no list or menu opens under it.
void Rest();

/// What a window or control shows as its text.
std::wstring TextOf(const CWnd& window);

/// The top-level windows of this thread that show and have that class.
std::vector<HWND> OpenWindows(const wchar_t* windowClass);

/// Brings a top-level window to the front and waits until it is active.
bool Activate(HWND window);
} // namespace owtest
