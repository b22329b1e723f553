#pragma once
// A program of the folder clients/ that runs beside the test, and its windows.
//
//     Client program(L"wizard_dialog");
//     const HWND dialog = program.Window(L"Wizard's dialog");
//     owtest::Click(::GetDlgItem(dialog, IDC_GREET));
//     EXPECT_TRUE(Shows(dialog, IDC_STATE, L"3 x beam"));
//     owtest::Press(VK_ESCAPE);
//     EXPECT_TRUE(program.Ends());
//
// Keys and clicks go to whatever window is in front, as a user's do. The program works on them in its own time:
// whoever presses asks afterwards for what must come of it, and waits.

#include <afxcmn.h>

#include <gtest/gtest.h>

#include "Input.h"
#include "clients/resource.h"

#include <functional>
#include <string>

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
        wchar_t folder[MAX_PATH] = L"";
        ::GetModuleFileNameW(nullptr, folder, MAX_PATH);
        const std::wstring path(folder);
        std::wstring command =
            L'"' + path.substr(0, path.rfind(L'\\')) + L"\\mfc_" + name + L".exe\" " + arguments;
        STARTUPINFOW start{};
        start.cb = sizeof start;
        // Wine now and then cannot place a new process at its fixed addresses; the next try does.
        for (int tries = 0; m_process.hProcess == nullptr && tries < 3; ++tries)
            ::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                             &m_process);
        EXPECT_NE(m_process.hProcess, nullptr) << "the program did not start";
    }
    ~Client()
    {
        if (!HasEnded())
            ::TerminateProcess(m_process.hProcess, 99);
        ::CloseHandle(m_process.hThread);
        ::CloseHandle(m_process.hProcess);
    }
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    /// Waits for a visible, enabled window of the program with that title, or any, and brings it to the front.
    HWND Window(const std::wstring& title = {}) const
    {
        HWND found = nullptr;
        EXPECT_TRUE(Waits([&] { return (found = Find(title)) != nullptr || HasEnded(); }));
        EXPECT_NE(found, nullptr) << "no window of this title";
        // It comes to the front by itself, as a rule; to help it then would take the focus from where it was put.
        const auto isInFront = [&] { return ::GetForegroundWindow() == found; };
        if (!owtest::PumpUntil(isInFront, 1000))
        {
            ::SetForegroundWindow(found);
            EXPECT_TRUE(Waits(isInFront));
        }
        return found;
    }
    /// Waits until the program has no such window any more.
    bool Closes(const std::wstring& title) const
    {
        return Waits([&] { return Find(title) == nullptr; });
    }
    /// Waits for the program's end.
    bool Ends() const
    {
        return Waits([this] { return HasEnded(); });
    }

    /// The text of the tool tip that the program shows, if it does.
    std::wstring ShownTip() const
    {
        for (HWND tip = nullptr; (tip = ::FindWindowExW(nullptr, tip, TOOLTIPS_CLASSW, nullptr)) != nullptr;)
        {
            DWORD process = 0;
            ::GetWindowThreadProcessId(tip, &process);
            wchar_t text[128] = L"";
            if (process == m_process.dwProcessId && ::IsWindowVisible(tip) &&
                ::SendMessageW(tip, WM_GETTEXT, ARRAYSIZE(text), reinterpret_cast<LPARAM>(text)) > 0)
                return text;
        }
        return {};
    }
    /// Waits until an edit control has the focus and all its text is selected: a refused value is to be typed anew.
    bool IsToBeRetyped(HWND edit) const
    {
        return Waits(
            [=]
            {
                GUITHREADINFO info{};
                info.cbSize = sizeof info;
                const LRESULT length = ::SendMessageW(edit, WM_GETTEXTLENGTH, 0, 0);
                return ::GetGUIThreadInfo(::GetWindowThreadProcessId(edit, nullptr), &info) &&
                       info.hwndFocus == edit && ::SendMessageW(edit, EM_GETSEL, 0, 0) == MAKELONG(0, length);
            });
    }

private:
    struct Search
    {
        const Client& client;
        const std::wstring& title;
        HWND found;
    };

    HWND Find(const std::wstring& title) const
    {
        Search search{*this, title, nullptr};
        ::EnumWindows(&IsWanted, reinterpret_cast<LPARAM>(&search));
        return search.found;
    }
    static BOOL CALLBACK IsWanted(HWND window, LPARAM parameter)
    {
        auto& search = *reinterpret_cast<Search*>(parameter);
        DWORD process = 0;
        ::GetWindowThreadProcessId(window, &process);
        wchar_t text[128] = L"";
        if (process != search.client.m_process.dwProcessId || !::IsWindowVisible(window) ||
            !::IsWindowEnabled(window) || ::GetWindowTextW(window, text, ARRAYSIZE(text)) == 0 ||
            (!search.title.empty() && text != search.title))
            return TRUE;
        search.found = window;
        return FALSE;
    }
    bool HasEnded() const { return ::WaitForSingleObject(m_process.hProcess, 0) == WAIT_OBJECT_0; }

    PROCESS_INFORMATION m_process{};
};

/// The control of a message box that shows its text.
constexpr int kBoxText = 0xFFFF;

/// The text of a control of another program; GetWindowText answers only what stands in its frame.
inline std::wstring TextOfItem(HWND dialog, int id)
{
    wchar_t text[256] = L"";
    DWORD_PTR length = 0;
    ::SendMessageTimeoutW(::GetDlgItem(dialog, id), WM_GETTEXT, ARRAYSIZE(text),
                          reinterpret_cast<LPARAM>(text), SMTO_ABORTIFHUNG, 5000, &length);
    return text;
}

/// Waits until a control shows a text; what it shows instead otherwise.
inline ::testing::AssertionResult Shows(HWND dialog, int id, const std::wstring& text)
{
    if (Waits([&] { return TextOfItem(dialog, id) == text; }))
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << ::testing::PrintToString(TextOfItem(dialog, id));
}
