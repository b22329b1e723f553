#include "Input.h"

#include <algorithm>

namespace owtest
{
namespace
{
void Send(std::vector<INPUT> inputs)
{
    ::SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

INPUT Key(WORD virtualKey, bool up)
{
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = virtualKey;
    input.ki.wScan = static_cast<WORD>(::MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
    constexpr WORD kExtended[] = {VK_LEFT, VK_RIGHT, VK_UP,   VK_DOWN,   VK_HOME,
                                  VK_END,  VK_PRIOR, VK_NEXT, VK_INSERT, VK_DELETE};
    if (std::find(std::begin(kExtended), std::end(kExtended), virtualKey) != std::end(kExtended))
        input.ki.dwFlags |= KEYEVENTF_EXTENDEDKEY;
    return input;
}

INPUT Mouse(DWORD flags, CPoint screen)
{
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    if (flags & MOUSEEVENTF_ABSOLUTE)
    {
        // Round up: the system truncates on its way back to pixels.
        const int width = ::GetSystemMetrics(SM_CXSCREEN), height = ::GetSystemMetrics(SM_CYSCREEN);
        input.mi.dx = (screen.x * 65536 + width - 1) / width;
        input.mi.dy = (screen.y * 65536 + height - 1) / height;
    }
    return input;
}

/// The display repeats a move that a program has made, some time later, as if a hand had moved the mouse: the same
/// move once more, in the middle of what follows.
bool IsEcho(const MSG& msg)
{
    static HWND s_last = nullptr;
    static CPoint s_at;
    if (msg.message < WM_MOUSEFIRST || msg.message > WM_MOUSELAST)
        return false;
    const bool again = msg.message == WM_MOUSEMOVE && msg.hwnd == s_last && msg.pt == s_at;
    s_last = msg.hwnd;
    s_at = msg.pt;
    return again;
}

/// Presses and releases carry their place, wherever an echo has put the mouse in the meantime.
INPUT LeftButton(DWORD flag, CPoint screen)
{
    return Mouse(flag | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, screen);
}

/// A left click that carries a time of its own: the system tells a double click by the times of its presses.
std::vector<INPUT> LeftClick(CPoint screen, DWORD time)
{
    std::vector<INPUT> inputs{LeftButton(MOUSEEVENTF_LEFTDOWN, screen),
                              LeftButton(MOUSEEVENTF_LEFTUP, screen)};
    for (INPUT& input : inputs)
        input.mi.time = time;
    return inputs;
}

/// So late after the press before, whenever that was, that the two make no double click.
DWORD TimeOfNextPress()
{
    static DWORD s_last = ::GetTickCount();
    const DWORD now = ::GetTickCount();
    s_last += ::GetDoubleClickTime() + 1;
    if (static_cast<int>(now - s_last) > 0)
        s_last = now;
    return s_last;
}

CPoint ToScreen(HWND window, CPoint client)
{
    ::ClientToScreen(window, &client);
    return client;
}

CPoint MiddleOf(HWND window)
{
    CRect client;
    ::GetClientRect(window, &client);
    return client.CenterPoint();
}

CPoint s_place; ///< where the mouse was moved to last

void MoveToScreen(CPoint screen)
{
    s_place = screen;
    Send({Mouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, screen)});
    PumpUntil(
        [&]
        {
            CPoint now;
            ::GetCursorPos(&now);
            return now == screen;
        });
}
} // namespace

void Pump()
{
    MSG msg;
    while (::PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE))
    {
        if (IsEcho(msg))
            continue;
        if (msg.message == WM_QUIT)
        {
            ::PostQuitMessage(static_cast<int>(msg.wParam));
            return;
        }
        if (!AfxGetThread()->PreTranslateMessage(&msg))
        {
            ::TranslateMessage(&msg);
            ::DispatchMessage(&msg);
        }
    }
}

bool PumpUntil(const std::function<bool()>& condition, DWORD timeoutMs)
{
    const ULONGLONG deadline = ::GetTickCount64() + timeoutMs;
    for (;;)
    {
        Pump();
        if (condition())
            return true;
        const ULONGLONG now = ::GetTickCount64();
        if (now >= deadline)
            return false;
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE,
                                    static_cast<DWORD>(std::min<ULONGLONG>(deadline - now, 20)), QS_ALLINPUT);
    }
}

void Press(WORD virtualKey, bool shift, bool control)
{
    std::vector<INPUT> down, up;
    for (const auto& [key, pressed] :
         {std::pair<WORD, bool>(VK_SHIFT, shift), {VK_CONTROL, control}, {virtualKey, true}})
        if (pressed)
        {
            down.push_back(Key(key, false));
            up.insert(up.begin(), Key(key, true));
        }

    // The modifiers stay down until the key has been worked off: handlers ask for them with GetKeyState.
    Send(down);
    Pump();
    Send(up);
    Pump();
}

void Type(std::wstring_view text)
{
    for (wchar_t ch : text)
    {
        const SHORT scan = ::VkKeyScanW(ch);
        if (scan != -1 && (HIBYTE(scan) & ~3) == 0)
        {
            Press(LOBYTE(scan), (HIBYTE(scan) & 1) != 0, (HIBYTE(scan) & 2) != 0);
            continue;
        }
        INPUT input = Key(0, false);
        input.ki.wScan = ch;
        input.ki.dwFlags = KEYEVENTF_UNICODE;
        Send({input});
        input.ki.dwFlags |= KEYEVENTF_KEYUP;
        Send({input});
        Pump();
    }
}

void MoveTo(HWND window, CPoint client)
{
    MoveToScreen(ToScreen(window, client));
}

void ButtonDown(HWND window, CPoint client)
{
    MoveTo(window, client);
    Send({LeftClick(s_place, TimeOfNextPress()).front()});
    Pump();
}

void ButtonUp()
{
    Send({LeftButton(MOUSEEVENTF_LEFTUP, s_place)});
    Pump();
}

void Click(HWND window, CPoint client)
{
    // Down and up together: a control may run a message loop of its own between them.
    MoveTo(window, client);
    Send(LeftClick(s_place, TimeOfNextPress()));
    Pump();
}

void Click(HWND window)
{
    Click(window, MiddleOf(window));
}

void DoubleClick(HWND window, CPoint client)
{
    MoveTo(window, client);
    const DWORD time = TimeOfNextPress();
    Send(LeftClick(s_place, time));
    Pump();
    Send(LeftClick(s_place, time));
    Pump();
}

void QueueKey(WORD virtualKey)
{
    Send({Key(virtualKey, false), Key(virtualKey, true)});
}

void QueueDrag(CPoint from, CPoint to)
{
    const DWORD time = TimeOfNextPress();
    Send({LeftClick(from, time).front(), Mouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, to),
          LeftClick(to, time).back()});
}

void QueueClick(CPoint screen)
{
    Send(LeftClick(screen, TimeOfNextPress()));
}

void QueueClick(HWND window)
{
    QueueClick(ToScreen(window, MiddleOf(window)));
}

void Rest()
{
    for (WORD key : {VK_SHIFT, VK_CONTROL, VK_MENU})
        if (::GetAsyncKeyState(key) < 0)
            Send({Key(key, true)});
    if (::GetAsyncKeyState(VK_LBUTTON) < 0)
        Send({Mouse(MOUSEEVENTF_LEFTUP, {})});
    MSG quit;
    while (::PeekMessage(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) && quit.message == WM_QUIT)
    {
    }
    MoveToScreen(CPoint(::GetSystemMetrics(SM_CXSCREEN) - 1, ::GetSystemMetrics(SM_CYSCREEN) - 1));
}

std::wstring TextOf(const CWnd& window)
{
    CString text;
    window.GetWindowText(text);
    return text.GetString();
}

std::vector<HWND> OpenWindows(const wchar_t* windowClass)
{
    std::vector<HWND> windows;
    for (HWND window = nullptr; (window = ::FindWindowExW(nullptr, window, windowClass, nullptr));)
        if (::GetWindowThreadProcessId(window, nullptr) == ::GetCurrentThreadId() &&
            ::IsWindowVisible(window))
            windows.push_back(window);
    return windows;
}

bool Activate(HWND window)
{
    ::SetForegroundWindow(window);
    return PumpUntil([&] { return ::GetForegroundWindow() == window && ::GetActiveWindow() == window; });
}
} // namespace owtest
