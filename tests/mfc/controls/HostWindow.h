#pragma once
// What the tests of this folder share: a window for controls to stand in, and a closer of message boxes.

#include <afxcmn.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

/// A visible top-level window of 400 by 300 pixels. Its data exchange is whatever the test puts into
/// `exchange`.
class HostWindow : public CWnd
{
public:
    HostWindow()
    {
        CreateEx(0, AfxRegisterWndClass(0), L"host", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, 20, 20, 400,
                 300, nullptr, nullptr);
    }
    ~HostWindow() override { DestroyWindow(); }

    /// A control made without an object, as a dialog template makes it.
    HWND AddControl(LPCTSTR className, int id, DWORD style = 0)
    {
        const int row = m_rows++;
        return ::CreateWindow(className, L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP | style, 10, 10 + 25 * row,
                              120, 22, m_hWnd, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr,
                              nullptr);
    }

    std::function<void(CDataExchange*)> exchange;

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        if (exchange)
            exchange(pDX);
    }

private:
    int m_rows = 0;
};

constexpr DWORD CHILD = WS_CHILD | WS_VISIBLE;

/// Reads and closes, by OK, each message box that is shown on this thread while the object lives.
class MessageBoxCloser
{
public:
    MessageBoxCloser()
    {
        s_closer = this;
        m_hook = ::SetWindowsHookEx(WH_CBT, &Hook, nullptr, ::GetCurrentThreadId());
    }
    ~MessageBoxCloser()
    {
        ::UnhookWindowsHookEx(m_hook);
        s_closer = nullptr;
    }
    MessageBoxCloser(const MessageBoxCloser&) = delete;
    MessageBoxCloser& operator=(const MessageBoxCloser&) = delete;

    std::vector<std::wstring> texts;

private:
    static LRESULT CALLBACK Hook(int code, WPARAM wParam, LPARAM lParam)
    {
        const auto window = reinterpret_cast<HWND>(wParam);
        if (code == HCBT_ACTIVATE && window != s_closer->m_seen && IsDialog(window))
        {
            constexpr int textId = 0xFFFF;
            wchar_t text[512] = {};
            ::GetDlgItemText(window, textId, text, _countof(text));
            s_closer->m_seen = window;
            s_closer->texts.emplace_back(text);
            ::PostMessage(window, WM_COMMAND, IDOK, 0);
        }
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }
    static bool IsDialog(HWND window)
    {
        wchar_t name[16] = {};
        ::GetClassName(window, name, _countof(name));
        return std::wstring(name) == L"#32770";
    }

    inline static MessageBoxCloser* s_closer = nullptr;
    HHOOK m_hook = nullptr;
    HWND m_seen = nullptr;
};
