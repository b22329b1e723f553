// The application: profile, message boxes, frame windows, idle time, wait cursor, stack dumps.

#include "TestWindows.h"

#include <afxpriv.h>

namespace
{
class CTestApp : public CWinApp
{
public:
    CTestApp() : CWinApp(L"ProfileTest")
    {
        m_lpfnOleTermOrFreeLib = [](BOOL, BOOL) { Note("ends"); };
    }
    using CWinApp::SetRegistryKey;
    BOOL applies = TRUE, begins = FALSE, isProgram = FALSE;

    BOOL InitApplication() override { return applies; }
    BOOL InitInstance() override { return begins; }
    int Run() override { return isProgram ? 7 : CWinApp::Run(); }
    int ExitInstance() override { return isProgram ? 5 : CWinApp::ExitInstance(); }
    BOOL ProcessMessageFilter(int code, LPMSG message) override
    {
        Note("filter", code);
        ::CallMsgFilter(message, MSGF_DIALOGBOX); // as a loop in a filter would; it is not told of that one
        return CWinApp::ProcessMessageFilter(code, message);
    }
    int DoMessageBox(LPCTSTR prompt, UINT, UINT) override { return Note(*prompt ? "box" : "") ? IDOK : 0; }

protected:
    afx_msg void OnCommand() { Note("application"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CTestApp, CWinApp)
    ON_COMMAND(0x8123, &CTestApp::OnCommand)
END_MESSAGE_MAP()

class Application : public WithApplication<CTestApp>
{
protected:
    Application() { Noted(); }
    void CheckProfile()
    {
        const auto number = [this] { return static_cast<int>(app->GetProfileInt(L"Numbers", L"n", -4)); };
        EXPECT_EQ(number(), -4);
        EXPECT_TRUE(app->WriteProfileInt(L"Numbers", L"n", -17));
        EXPECT_EQ(number(), -17);

        const auto name = [this] { return app->GetProfileString(L"Texts", L"name", L"default"); };
        const auto write = [this](LPCTSTR entry, LPCTSTR text)
        { EXPECT_TRUE(app->WriteProfileString(L"Texts", entry, text)); };
        EXPECT_EQ(name(), L"default");
        write(L"name", L"steel beam");
        EXPECT_EQ(name(), L"steel beam");
        write(L"name", nullptr);
        EXPECT_EQ(name(), L"default") << "the entry is gone";
        write(L"name", L"again");
        write(nullptr, nullptr);
        EXPECT_EQ(name(), L"default") << "the section is gone";

        BYTE written[] = {0x00, 0x01, 0x7F, 0x80, 0xFF};
        EXPECT_TRUE(app->WriteProfileBinary(L"Data", L"bytes", written, sizeof written));
        LPBYTE read = nullptr;
        UINT size = 0;
        ASSERT_TRUE(app->GetProfileBinary(L"Data", L"bytes", &read, &size));
        const std::unique_ptr<BYTE[]> owner(read);
        EXPECT_TRUE(std::equal(read, read + size, std::begin(written), std::end(written)));
        EXPECT_FALSE(app->GetProfileBinary(L"Data", L"missing", &read, &size));
        EXPECT_TRUE(read == nullptr && size == 0);
    }
};

TEST_F(Application, HasItsProfileInTheRegistryOrInAFile)
{
    wchar_t folder[MAX_PATH], file[MAX_PATH];
    ::GetTempPath(MAX_PATH, folder);
    ASSERT_NE(::GetTempFileName(folder, L"prf", 0, file), 0u);
    app->m_pszProfileName = _wcsdup(file); // freed by the application
    CheckProfile();
    EXPECT_EQ(app->GetProfileString(L"Data", L"bytes"), L"AABAPHAIPP") << "two letters, the low half first";
    ::DeleteFile(file);

    app->SetRegistryKey(L"DialogControlsOW Tests");
    CheckProfile();
    int value = 0;
    DWORD size = sizeof value;
    ::RegGetValue(HKEY_CURRENT_USER, L"Software\\DialogControlsOW Tests\\ProfileTest\\Numbers", L"n",
                  RRF_RT_REG_DWORD, nullptr, &value, &size);
    EXPECT_EQ(value, -17);
    EXPECT_EQ(app->DelRegTree(HKEY_CURRENT_USER, L"Software\\DialogControlsOW Tests"), ERROR_SUCCESS);
}

TEST_F(Application, TellsTheUserAboutAnExceptionInACommand)
{
    CSeenWnd window(
        [](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT>
        {
            if (message == WM_COMMAND || message == WM_PAINT)
                AfxThrowNotSupportedException();
            return std::nullopt;
        });
    ASSERT_TRUE(CreatePopup(window, nullptr, WS_VISIBLE));
    EXPECT_EQ(window.SendMessage(WM_COMMAND, 1), TRUE); // handled, although it failed
    EXPECT_EQ(Noted(), "box;");
    window.Invalidate();
    window.UpdateWindow();
    EXPECT_EQ(Noted(), "") << "a box would make the window paint again";
    EXPECT_FALSE(window.GetUpdateRect(nullptr));
}

TEST_F(Application, RunsIfItBeginsAndElseEndsWithItsWindow)
{
    TCHAR arguments[] = L"part.dat";
    const auto run = [&]
    {
        const int code = AfxWinMain(AfxGetInstanceHandle(), nullptr, arguments, SW_SHOWNA);
        AfxInitThread(); // the test goes on
        return code;
    };
    app->isProgram = TRUE;
    AfxSetResourceHandle(nullptr);
    CWnd main;
    ASSERT_TRUE(CreatePopup(main));
    app->m_pMainWnd = &main;
    EXPECT_EQ(run(), 5);
    EXPECT_EQ(main.m_hWnd, nullptr);
    TakeQuitMessage();
    EXPECT_EQ(AfxGetResourceHandle(), AfxGetInstanceHandle());
    EXPECT_STREQ(app->m_lpCmdLine, arguments);
    EXPECT_EQ(app->m_nCmdShow, SW_SHOWNA);
    app->begins = TRUE;
    EXPECT_EQ(run(), 7);
    app->applies = FALSE;
    EXPECT_EQ(run(), -1);
    EXPECT_EQ(Noted(), "ends;ends;ends;");
    app.reset();
    EXPECT_EQ(AfxGetApp(), nullptr);
}

class CTestFrame : public CFrameWnd
{
protected:
    afx_msg void OnOwnCommand() { Note("frame"); }
    afx_msg void OnUpdateOwn(CCmdUI* item) { item->SetCheck(1); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CTestFrame, CFrameWnd)
    ON_COMMAND(0x8124, &CTestFrame::OnOwnCommand)
    ON_UPDATE_COMMAND_UI(0x8124, &CTestFrame::OnUpdateOwn)
END_MESSAGE_MAP()

class Frame : public Application
{
protected:
    void SetUp() override
    {
        frame = new CTestFrame; // deletes itself
        ASSERT_TRUE(frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(0, 0, 300, 200)));
        app->m_pMainWnd = frame;
    }
    void TearDown() override
    {
        if (app->m_pMainWnd != nullptr)
            app->m_pMainWnd->DestroyWindow();
        TakeQuitMessage();
    }
    CTestFrame* frame = nullptr;
};

TEST_F(Frame, HandsCommandsItDoesNotKnowToTheApplicationAndMenusShowTheirState)
{
    frame->SendMessage(WM_COMMAND, 0x8124);
    frame->SendMessage(WM_COMMAND, 0x8123);
    EXPECT_EQ(Noted(), "frame;application;");
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    const std::pair<UINT, UINT> items[] = {
        {0x8124, MF_CHECKED}, {0x8123, MF_ENABLED}, {0x8125, MF_GRAYED}, {0xF000, MF_ENABLED}};
    for (const auto& [command, state] : items)
        menu.AppendMenu(MF_STRING, command, L"item"); // its own, the application's, nobody's, the system's
    frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 0);
    for (const auto& [command, state] : items)
        EXPECT_EQ(menu.GetMenuState(command, MF_BYCOMMAND), state) << command;
}

TEST_F(Frame, DisablingItDisablesTheWindowsItOwnsAndFramesWhoeverEnablesThem)
{
    CWnd palette, alreadyDisabled;
    ASSERT_TRUE(CreatePopup(palette, frame));
    ASSERT_TRUE(CreatePopup(alreadyDisabled, frame, WS_DISABLED));
    auto* const owned = new CFrameWnd; // goes with its owner
    ASSERT_TRUE(owned->Create(nullptr, L"owned", WS_POPUP, CRect(0, 0, 50, 50), frame));
    frame->EnableWindow(FALSE);
    owned->EnableWindow(TRUE);
    EXPECT_FALSE(owned->IsWindowEnabled() || palette.IsWindowEnabled());
    frame->EnableWindow(TRUE);
    EXPECT_TRUE(owned->IsWindowEnabled() && palette.IsWindowEnabled());
    EXPECT_EQ(owned->GetTopLevelFrame(), frame);
    EXPECT_FALSE(alreadyDisabled.IsWindowEnabled());
}

TEST_F(Frame, ClosingTheMainFrameEndsTheProgram)
{
    frame->PostMessage(WM_COMMAND, ID_APP_EXIT);
    EXPECT_EQ(app->Run(), 0);
    EXPECT_EQ(AfxGetMainWnd(), nullptr);
}

TEST_F(Frame, IdleTimeUpdatesVisibleWindowsOnceAndThenEnds)
{
    CSeenWnd child(
        [](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
            return message == WM_IDLEUPDATECMDUI && Note("update") ? std::optional<LRESULT>(0) : std::nullopt;
        });
    CWnd middle;
    ASSERT_TRUE(CreateChild(middle, *frame, 1));
    ASSERT_TRUE(CreateChild(child, middle, 2));
    EXPECT_TRUE(child.GetParentFrame() == frame && child.GetTopLevelFrame() == frame);
    EXPECT_TRUE(app->OnIdle(0));
    EXPECT_EQ(Noted(), "") << "the frame is hidden";
    frame->ActivateFrame();
    EXPECT_TRUE(app->OnIdle(0));
    EXPECT_EQ(Noted(), "update;");
    EXPECT_FALSE(app->OnIdle(1));
    EXPECT_EQ(Noted(), "");
}

TEST_F(Application, MessagesThatChangeNothingDoNotBringIdleTime)
{
    const std::tuple<UINT, LONG, bool> cases[] = {
        {WM_MOUSEMOVE, 5, true}, {WM_MOUSEMOVE, 5, false}, // repeated without a movement
        {WM_MOUSEMOVE, 6, true}, {WM_NCMOUSEMOVE, 6, true}, {WM_PAINT, 6, false}, {WM_KEYDOWN, 6, true}};
    for (const auto& [number, x, changes] : cases)
    {
        MSG message{nullptr, number, 0, 0, 0, {x, 5}};
        EXPECT_EQ(app->IsIdleMessage(&message) != FALSE, changes) << number << ' ' << x;
    }
}

TEST_F(Application, SeesTheMessagesOfTheSystemsOwnLoops)
{
    MSG message{};
    EXPECT_FALSE(::CallMsgFilter(&message, MSGF_MENU));
    EXPECT_EQ(Noted(), "filter 2;");
}

TEST_F(Application, TheWaitCursorIsCounted)
{
    const HCURSOR wait = ::LoadCursor(nullptr, IDC_WAIT);
    const HCURSOR arrow = ::LoadCursor(nullptr, IDC_ARROW);
    ::SetCursor(arrow);
    {
        CWaitCursor outer;
        CWaitCursor().Restore();
        EXPECT_EQ(::GetCursor(), wait);
        ::SetCursor(arrow);
        outer.Restore();
        EXPECT_EQ(::GetCursor(), wait);
    }
    EXPECT_EQ(::GetCursor(), arrow);
}

TEST(WindowClass, EqualRequestsGiveOneClass)
{
    const CString first = AfxRegisterWndClass(CS_DBLCLKS);
    EXPECT_EQ(CString(AfxRegisterWndClass(CS_DBLCLKS)), first);
    const HCURSOR cross = ::LoadCursor(nullptr, IDC_CROSS);
    const HBRUSH gray = static_cast<HBRUSH>(::GetStockObject(GRAY_BRUSH));
    const HICON hand = ::LoadIcon(nullptr, IDI_HAND);
    const CString second = AfxRegisterWndClass(CS_DBLCLKS, cross, gray, hand);
    EXPECT_NE(second, first);
    WNDCLASS found{};
    ASSERT_TRUE(::GetClassInfo(AfxGetInstanceHandle(), second, &found));
    EXPECT_EQ(std::tuple(found.style, found.hCursor, found.hbrBackground, found.hIcon),
              std::tuple(UINT{CS_DBLCLKS}, cross, gray, hand));
}

TEST(DumpStack, PutsTheFramesOnTheClipboard)
{
    AfxDumpStack(AFX_STACK_DUMP_TARGET_CLIPBOARD);
    ASSERT_TRUE(::OpenClipboard(nullptr));
    const HANDLE data = ::GetClipboardData(CF_TEXT);
    const std::string text = data != nullptr ? static_cast<const char*>(::GlobalLock(data)) : "";
    ::CloseClipboard();
    EXPECT_NE(text.find("test_mfc_windows.exe"), std::string::npos);
    EXPECT_GE(std::count(text.begin(), text.end(), '\n'), 5);
}
} // namespace
