#pragma once
// A program of the folder clients/ that runs beside the test, and its windows.
//
//     Client program(L"wizard_dialog");
//     program.Window(L"Wizard's dialog");
//     program.Click(IDC_GREET);
//     program.Shows(IDC_STATE, L"3 x beam");
//     owtest::Press(VK_ESCAPE);
//
// Keys and clicks go to whatever window is in front, as a user's do. The program works on them in its own time:
// whoever presses asks afterwards for what must come of it, and waits. At the end the program has to end.

#include <afxcmn.h>

#include "clients/resource.h"
#include "Testing.h"

/// Waits for a condition, no longer for long once the test has failed.
inline bool Waits(const std::function<bool()>& condition)
{
    return owtest::PumpUntil(condition, ::testing::Test::HasFailure() ? 500 : 20000);
}

class Client
{
public:
    /// Starts mfc_NAME.exe, which stands beside the test's own program.
    explicit Client(const std::wstring& name, const std::wstring& arguments = {})
    {
        wchar_t path[MAX_PATH] = L"";
        ::GetModuleFileNameW(nullptr, path, MAX_PATH);
        wcsrchr(path, L'\\')[1] = 0;
        std::wstring command = L'"' + std::wstring(path) + L"mfc_" + name + L".exe\" " + arguments;
        STARTUPINFOW start{};
        start.cb = sizeof start;
        // Wine now and then cannot place a new process at its fixed addresses; the next try does.
        for (int tries = 0; m_process.hProcess == nullptr && tries < 3; ++tries)
            ::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                             &m_process);
        ::WaitForInputIdle(m_process.hProcess, 20000); // some controls need their window painted first
    }
    ~Client()
    {
        EXPECT_TRUE(Waits([this] { return HasEnded(); })) << "it does not end";
        ::TerminateProcess(m_process.hProcess, 99);
        ::CloseHandle(m_process.hThread);
        ::CloseHandle(m_process.hProcess);
    }
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    /// Waits for a visible, enabled window of the program with that title, or any, and brings it to the front.
    /// The items are those of that window from now on.
    HWND Window(const std::wstring& title = {})
    {
        EXPECT_TRUE(Waits([&] { return (m_window = Find(title)) != nullptr || HasEnded(); }));
        EXPECT_NE(m_window, nullptr) << "no window of this title";
        // It comes to the front by itself, as a rule; to help it then would take the focus from where it was put.
        const auto isInFront = [&] { return ::GetForegroundWindow() == m_window; };
        if (!owtest::PumpUntil(isInFront, 1000))
        {
            ::SetForegroundWindow(m_window);
            EXPECT_TRUE(Waits(isInFront));
        }
        return m_window;
    }
    /// A message box of a title that is answered by Return.
    void Confirm(const std::wstring& title, const std::wstring& text = {})
    {
        Window(title);
        if (!text.empty())
            Shows(0xFFFF, text);
        owtest::Press(VK_RETURN);
    }

    /// A control of the window, or of the page of a sheet that shows; null if there is none.
    HWND Item(int id) const
    {
        if (const HWND item = ::GetDlgItem(m_window, id))
            return item;
        for (HWND page = ::GetTopWindow(m_window); page != nullptr; page = ::GetWindow(page, GW_HWNDNEXT))
            if (const HWND item = ::IsWindowVisible(page) ? ::GetDlgItem(page, id) : nullptr)
                return item;
        return nullptr;
    }
    bool HasFocus(int id) const
    {
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        return ::GetGUIThreadInfo(m_process.dwThreadId, &info) && info.hwndFocus &&
               info.hwndFocus == Item(id);
    }
    bool IsEnabled(int id) const { return ::IsWindowEnabled(Item(id)) != FALSE; }
    bool WaitsFor(int id) const
    {
        return Waits([=, this] { return IsEnabled(id); });
    }
    /// Clicks a control as soon as it is there and enabled.
    void Click(int id) const
    {
        EXPECT_TRUE(WaitsFor(id)) << id;
        owtest::Click(Item(id));
    }
    /// Waits until a control shows a text. GetWindowText would answer only what stands in its frame.
    void Shows(int id, const std::wstring& text) const
    {
        wchar_t shown[256] = L"";
        const auto shows = [&]
        {
            DWORD_PTR length = 0;
            ::SendMessageTimeoutW(Item(id), WM_GETTEXT, ARRAYSIZE(shown), reinterpret_cast<LPARAM>(shown),
                                  SMTO_ABORTIFHUNG, 5000, &length);
            return text == shown;
        };
        EXPECT_TRUE(Waits(shows)) << ::testing::PrintToString(std::wstring(shown));
    }
    /// Waits until an edit control has the focus and its text is selected: a refused value is to be typed anew.
    void IsToBeRetyped(int id) const
    {
        const auto isSelected = [=, this, edit = Item(id)]
        {
            const LRESULT length = ::SendMessageW(edit, WM_GETTEXTLENGTH, 0, 0);
            return HasFocus(id) && ::SendMessageW(edit, EM_GETSEL, 0, 0) == MAKELONG(0, length);
        };
        EXPECT_TRUE(Waits(isSelected)) << id;
    }

private:
    HWND Find(const std::wstring& title) const
    {
        for (HWND window = ::GetTopWindow(nullptr); window; window = ::GetWindow(window, GW_HWNDNEXT))
        {
            DWORD process = 0;
            ::GetWindowThreadProcessId(window, &process);
            wchar_t text[128] = L"";
            if (process == m_process.dwProcessId && ::IsWindowVisible(window) && ::IsWindowEnabled(window) &&
                ::GetWindowTextW(window, text, ARRAYSIZE(text)) > 0 && (title.empty() || title == text))
                return window;
        }
        return nullptr;
    }
    bool HasEnded() const { return ::WaitForSingleObject(m_process.hProcess, 0) != WAIT_TIMEOUT; }

    PROCESS_INFORMATION m_process{};
    HWND m_window = nullptr;
};
