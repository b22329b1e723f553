#pragma once
// Closes the message boxes of this thread while it stands, and knows whether there was one.

#include <afxwin.h>

class BoxCloser
{
public:
    BoxCloser() : m_hook(::SetWindowsHookEx(WH_CBT, Hook, nullptr, ::GetCurrentThreadId()))
    {
        s_seen = false;
    }
    ~BoxCloser() { ::UnhookWindowsHookEx(m_hook); }
    BoxCloser(const BoxCloser&) = delete;
    BoxCloser& operator=(const BoxCloser&) = delete;

    bool Seen() const { return s_seen; }

private:
    static LRESULT CALLBACK Hook(int code, WPARAM wParam, LPARAM lParam)
    {
        const auto window = reinterpret_cast<HWND>(wParam);
        wchar_t className[16] = {};
        if (code == HCBT_ACTIVATE && ::GetClassName(window, className, 16) &&
            wcscmp(className, L"#32770") == 0)
        {
            s_seen = true;
            ::PostMessage(window, WM_COMMAND, IDOK, 0);
        }
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static inline bool s_seen = false;
    HHOOK m_hook;
};
