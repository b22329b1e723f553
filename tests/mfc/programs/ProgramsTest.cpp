// A program as clients write them, at work. Keys and clicks go to whatever window is in front, as a user's do. The
// program works on them in its own time: whoever presses asks afterwards for what must come of it, and waits.

#include <afxcmn.h>

#include "clients/resource.h"
#include "Testing.h"

using owtest::Press;
using owtest::Type;

namespace
{
/// Waits for a condition, no longer for long once the test has failed.
bool Waits(const std::function<bool()>& condition)
{
    return owtest::PumpUntil(condition, ::testing::Test::HasFailure() ? 500 : 20000);
}

/// The program, which has to end with this object.
class Client
{
public:
    /// Starts it; it stands beside the test's own program.
    explicit Client(const std::wstring& arguments)
    {
        wchar_t path[MAX_PATH] = L"";
        ::GetModuleFileNameW(nullptr, path, MAX_PATH);
        wcsrchr(path, L'\\')[1] = 0;
        std::wstring command = L'"' + std::wstring(path) + L"mfc_property_sheet.exe\" " + arguments;
        STARTUPINFOW start{};
        start.cb = sizeof start;
        // Wine now and then cannot place a new process at its fixed addresses; the next try does.
        for (int tries = 0; m_process.hProcess == nullptr && tries < 3; ++tries)
            ::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                             &m_process);
        ::WaitForInputIdle(m_process.hProcess,
                           20000); // until its window is painted: some controls need that first
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
    void Window(const std::wstring& title = {})
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
    }
    /// A message box, which is named after the program; answered by Return.
    void Confirm(const std::wstring& text)
    {
        Window(L"mfc_property_sheet");
        Shows(0xFFFF, text);
        Press(VK_RETURN);
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

/// Ctrl+Page Down, again if need be: on a busy display Wine now and then takes the focus away and gives it back, and the
/// key is lost.
void TurnPage(const std::function<bool()>& isTurned)
{
    int tries = 6;
    do
        Press(VK_NEXT, false, true);
    while (!owtest::PumpUntil(isTurned, 5000) && --tries > 0);
    EXPECT_TRUE(isTurned());
}
} // namespace

TEST(PropertySheet, TakesItsValuesPageByPageAndAppliesThem)
{
    Client program(L"part.dat");
    program.Window(L"Beam");
    EXPECT_FALSE(program.IsEnabled(ID_APPLY_NOW));
    Type(L"hea\t700");
    EXPECT_TRUE(program.WaitsFor(ID_APPLY_NOW));
    TurnPage([] { return ::FindWindowW(nullptr, L"mfc_property_sheet") != nullptr; }); // 700 is refused
    program.Confirm(L"Please enter a whole number from 80 to 600.");
    program.Window(L"Beam");
    program.IsToBeRetyped(IDC_HEIGHT);
    Type(L"300");
    TurnPage([&] { return program.IsEnabled(IDC_WELDABLE); });
    program.Click(IDC_WELDABLE); // by mouse: Wine may give a focus back to the page that is hidden now
    TurnPage([&] { return program.IsEnabled(IDC_STATE); });
    program.Shows(IDC_STATE, L"hea, 300 high, grade 0, weldable");
    program.Click(ID_APPLY_NOW);
    EXPECT_TRUE(Waits([&] { return !program.IsEnabled(ID_APPLY_NOW); }));
    program.Click(IDOK);
    program.Confirm(L"part.dat by 1: hea 300, grade 0, weldable 1, applied 2");
}

TEST(PropertySheet, IsAWizardWhosePagesSayWhichIsNext)
{
    Client program(L"/wizard");
    program.Window(); // the title is the sheet's or the page's, as the system has it
    const auto retype = [&](int id, const wchar_t* text)
    {
        program.Click(id);
        Press(VK_END);
        for (int i = 0; i < 8; ++i)
            Press(VK_BACK);
        Type(text);
    };
    program.Click(ID_WIZNEXT);
    EXPECT_TRUE(program.WaitsFor(IDC_GRADE));
    program.Click(ID_WIZBACK);
    retype(IDC_NAME, L"");
    EXPECT_FALSE(program.IsEnabled(ID_WIZBACK));
    retype(IDC_HEIGHT, L"600");
    program.Click(ID_WIZNEXT);
    EXPECT_TRUE(program.WaitsFor(IDC_STATE)); // nameless: past the material
    program.Click(ID_WIZFINISH);              // refused: too high
    program.Click(ID_WIZBACK);
    EXPECT_TRUE(program.WaitsFor(IDC_GRADE));
    program.Click(ID_WIZBACK);
    retype(IDC_HEIGHT, L"90");
    program.Click(ID_WIZNEXT);
    EXPECT_TRUE(program.WaitsFor(IDC_STATE));
    program.Click(ID_WIZFINISH);
    program.Confirm(L" by 12325:  90, grade 0, weldable 0, applied 0");
}
