#include "Input.h"

#include <algorithm>
#include <chrono>
#include <vector>

namespace owtest
{
namespace
{
constexpr DWORD kSettleMs = 2000;

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
    switch (virtualKey)
    {
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN:
    case VK_HOME:
    case VK_END:
    case VK_PRIOR:
    case VK_NEXT:
    case VK_INSERT:
    case VK_DELETE:
        input.ki.dwFlags |= KEYEVENTF_EXTENDEDKEY;
        break;
    }
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

CPoint ToScreen(HWND window, CPoint client)
{
    ::ClientToScreen(window, &client);
    return client;
}
} // namespace

void Pump()
{
    MSG msg;
    while (::PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE))
    {
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
    if (shift)
        down.push_back(Key(VK_SHIFT, false));
    if (control)
        down.push_back(Key(VK_CONTROL, false));
    down.push_back(Key(virtualKey, false));
    up.push_back(Key(virtualKey, true));
    if (control)
        up.push_back(Key(VK_CONTROL, true));
    if (shift)
        up.push_back(Key(VK_SHIFT, true));

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
        INPUT input{};
        input.type = INPUT_KEYBOARD;
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
    const CPoint screen = ToScreen(window, client);
    Send({Mouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, screen)});
    PumpUntil(
        [&]
        {
            CPoint now;
            ::GetCursorPos(&now);
            return now == screen;
        },
        kSettleMs);
}

/// Two presses in one tick of the clock count as a double click, however short the double-click time is.
static void PressLeft(const std::vector<INPUT>& inputs)
{
    using Clock = std::chrono::steady_clock;
    static Clock::time_point s_last;
    PumpUntil([] { return Clock::now() - s_last > std::chrono::milliseconds(3); });
    Send(inputs);
    s_last = Clock::now();
    Pump();
}

void ButtonDown(HWND window, CPoint client)
{
    MoveTo(window, client);
    PressLeft({Mouse(MOUSEEVENTF_LEFTDOWN, {})});
}

void ButtonUp()
{
    Send({Mouse(MOUSEEVENTF_LEFTUP, {})});
    Pump();
}

void Click(HWND window, CPoint client)
{
    // Down and up together: a control may run a message loop of its own between them.
    MoveTo(window, client);
    PressLeft({Mouse(MOUSEEVENTF_LEFTDOWN, {}), Mouse(MOUSEEVENTF_LEFTUP, {})});
}

void Click(HWND window)
{
    CRect client;
    ::GetClientRect(window, &client);
    Click(window, client.CenterPoint());
}

void QueueKey(WORD virtualKey)
{
    Send({Key(virtualKey, false), Key(virtualKey, true)});
}

void QueueClick(CPoint screen)
{
    Send({Mouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, screen), Mouse(MOUSEEVENTF_LEFTDOWN, {}),
          Mouse(MOUSEEVENTF_LEFTUP, {})});
}

void QueueClick(HWND window)
{
    CRect client;
    ::GetClientRect(window, &client);
    QueueClick(ToScreen(window, client.CenterPoint()));
}

std::wstring TextOf(const CWnd& window)
{
    CString text;
    window.GetWindowText(text);
    return text.GetString();
}

bool Activate(HWND window)
{
    ::SetForegroundWindow(window);
    return PumpUntil([&] { return ::GetForegroundWindow() == window && ::GetActiveWindow() == window; });
}
} // namespace owtest
