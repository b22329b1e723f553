// A program as a wizard makes it, at work.

#include <gtest/gtest.h>

#include "Input.h"
#include "clients/resource.h"

#include <functional>
#include <string>

namespace
{
/// Waits for a condition, no longer for long once the test has failed.
bool Waits(const std::function<bool()>& condition)
{
    return owtest::PumpUntil(condition, ::testing::Test::HasFailure() ? 500 : 20000);
}

/// A program of the folder clients/ that runs beside the test, and its windows. Keys and clicks go to whatever window
/// is in front, as a user's do. The program works on them in its own time: whoever presses asks afterwards for what
/// must come of it, and waits.
class Client
{
public:
    /// Starts mfc_NAME.exe, which stands beside the test's own program.
    explicit Client(const std::wstring& name)
    {
        wchar_t folder[MAX_PATH] = L"";
        ::GetModuleFileName(nullptr, folder, MAX_PATH);
        const std::wstring path(folder);
        const std::wstring program = path.substr(0, path.rfind(L'\\')) + L"\\mfc_" + name + L".exe";
        STARTUPINFO start{};
        start.cb = sizeof start;
        // Wine now and then cannot place a new process at its fixed addresses; the next try does.
        for (int tries = 0; m_process.hProcess == nullptr && tries < 3; ++tries)
            ::CreateProcess(program.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
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

    /// Waits for a visible, enabled window of the program with that title, and brings it to the front.
    HWND Window(LPCTSTR title) const
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
    bool HasEnded() const { return ::WaitForSingleObject(m_process.hProcess, 0) == WAIT_OBJECT_0; }

private:
    HWND Find(LPCTSTR title) const
    {
        for (HWND window = nullptr; (window = ::FindWindowEx(nullptr, window, nullptr, title)) != nullptr;)
        {
            DWORD process = 0;
            ::GetWindowThreadProcessId(window, &process);
            if (process == m_process.dwProcessId && ::IsWindowVisible(window) && ::IsWindowEnabled(window))
                return window;
        }
        return nullptr;
    }

    PROCESS_INFORMATION m_process{};
};

/// Waits until an edit control has the focus and all its text is selected: a refused value is to be typed anew.
bool IsToBeRetyped(HWND edit)
{
    return Waits(
        [=]
        {
            GUITHREADINFO info{};
            info.cbSize = sizeof info;
            const LRESULT length = ::SendMessage(edit, WM_GETTEXTLENGTH, 0, 0);
            return ::GetGUIThreadInfo(::GetWindowThreadProcessId(edit, nullptr), &info) &&
                   info.hwndFocus == edit && ::SendMessage(edit, EM_GETSEL, 0, 0) == MAKELONG(0, length);
        });
}
} // namespace

TEST(WizardDialog, ExchangesItsValuesRefusesBadOnesAndShowsItsAboutBox)
{
    Client program(L"wizard_dialog");
    const HWND dialog = program.Window(L"Wizard's dialog");
    std::wstring state;
    const auto shows = [&](const wchar_t* text)
    {
        wchar_t shown[64] = L"";
        ::SendMessage(::GetDlgItem(dialog, IDC_STATE), WM_GETTEXT, ARRAYSIZE(shown),
                      reinterpret_cast<LPARAM>(shown));
        return (state = shown) == text;
    };
    owtest::Click(::GetDlgItem(dialog, IDC_GREET));
    EXPECT_TRUE(Waits([&] { return shows(L"3 x beam"); })) << state;

    owtest::Press(VK_TAB); // from the button to OK, Cancel, and round to the name
    owtest::Press(VK_TAB);
    owtest::Press(VK_TAB);
    owtest::Type(L"plate\t120");
    owtest::Click(::GetDlgItem(dialog, IDC_GREET)); // 120 is out of range
    program.Window(L"mfc_wizard_dialog");           // the box is named after the program
    owtest::Press(VK_RETURN);
    program.Window(L"Wizard's dialog");
    EXPECT_TRUE(IsToBeRetyped(::GetDlgItem(dialog, IDC_COUNT)));
    owtest::Type(L"12");
    owtest::Press(VK_F1);
    EXPECT_TRUE(Waits([&] { return shows(L"help for 1002"); })) << state;
    owtest::Click(::GetDlgItem(dialog, IDC_GREET));
    EXPECT_TRUE(Waits([&] { return shows(L"12 x plate"); })) << state;

    ::PostMessage(dialog, WM_SYSCOMMAND, IDM_ABOUTBOX, 0);
    program.Window(L"About");
    owtest::Press(VK_RETURN);
    program.Window(L"Wizard's dialog");
    owtest::Press(VK_ESCAPE);
    EXPECT_TRUE(Waits([&] { return program.HasEnded(); }));
}
