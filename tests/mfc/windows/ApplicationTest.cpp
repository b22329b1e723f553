// The application: profile, message boxes, frame windows, idle time, wait cursor, stack dumps.

#include "TestWindows.h"

#include <afxpriv.h>

#include "ModalVisit.h"

#include <string>

namespace
{
class CTestApp : public CWinApp
{
public:
    CTestApp() : CWinApp(L"ProfileTest") {}
    using CWinApp::SetRegistryKey;
    int m_command = 0;
    CString m_boxText;
    int m_filtered = 0;

    BOOL ProcessMessageFilter(int code, LPMSG message) override
    {
        m_filtered += code == MSGF_DIALOGBOX;
        return CWinApp::ProcessMessageFilter(code, message);
    }
    int DoMessageBox(LPCTSTR lpszPrompt, UINT, UINT) override
    {
        m_boxText = lpszPrompt;
        return IDOK;
    }

protected:
    afx_msg void OnCommand() { ++m_command; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CTestApp, CWinApp)
    ON_COMMAND(0x8123, &CTestApp::OnCommand)
END_MESSAGE_MAP()

using Application = WithApplication<CTestApp>;

class Profile : public Application
{
protected:
    void CheckValues()
    {
        EXPECT_EQ(app->GetProfileInt(L"Numbers", L"missing", -4), static_cast<UINT>(-4));
        ASSERT_TRUE(app->WriteProfileInt(L"Numbers", L"negative", -17));
        EXPECT_EQ(static_cast<int>(app->GetProfileInt(L"Numbers", L"negative", 0)), -17);

        const auto name = [this] { return app->GetProfileString(L"Texts", L"name", L"default"); };
        EXPECT_EQ(name(), L"default");
        ASSERT_TRUE(app->WriteProfileString(L"Texts", L"name", L"steel beam"));
        EXPECT_EQ(name(), L"steel beam");
        ASSERT_TRUE(app->WriteProfileString(L"Texts", L"name", nullptr));
        EXPECT_EQ(name(), L"default") << "the entry is gone";
        ASSERT_TRUE(app->WriteProfileString(L"Texts", L"name", L"again"));
        ASSERT_TRUE(app->WriteProfileString(L"Texts", nullptr, nullptr));
        EXPECT_EQ(name(), L"default") << "the section is gone";

        BYTE written[] = {0x00, 0x01, 0x7F, 0x80, 0xFF};
        ASSERT_TRUE(app->WriteProfileBinary(L"Data", L"bytes", written, sizeof written));
        LPBYTE read = nullptr;
        UINT size = 0;
        ASSERT_TRUE(app->GetProfileBinary(L"Data", L"bytes", &read, &size));
        const std::unique_ptr<BYTE[]> owner(read);
        ASSERT_EQ(size, sizeof written);
        EXPECT_TRUE(std::equal(read, read + size, written));
        EXPECT_FALSE(app->GetProfileBinary(L"Data", L"missing", &read, &size));
        EXPECT_EQ(read, nullptr);
        EXPECT_EQ(size, 0u);
    }
};

TEST_F(Profile, LivesInTheRegistryBelowCompanyAndProgram)
{
    app->SetRegistryKey(L"DialogControlsOW Tests");
    CheckValues();

    DWORD value = 0;
    DWORD size = sizeof value;
    EXPECT_EQ(::RegGetValue(HKEY_CURRENT_USER, L"Software\\DialogControlsOW Tests\\ProfileTest\\Numbers",
                            L"negative", RRF_RT_REG_DWORD, nullptr, &value, &size),
              ERROR_SUCCESS);
    EXPECT_EQ(static_cast<int>(value), -17);
    EXPECT_EQ(app->DelRegTree(HKEY_CURRENT_USER, L"Software\\DialogControlsOW Tests"), ERROR_SUCCESS);
}

TEST_F(Profile, LivesInAFileWithoutARegistryKey)
{
    wchar_t folder[MAX_PATH];
    wchar_t file[MAX_PATH];
    ASSERT_NE(::GetTempPath(MAX_PATH, folder), 0u);
    ASSERT_NE(::GetTempFileName(folder, L"prf", 0, file), 0u);
    app->m_pszProfileName = _wcsdup(file); // freed by the application
    CheckValues();
    // A byte is two letters, its low half first.
    EXPECT_EQ(app->GetProfileString(L"Data", L"bytes"), L"AABAPHAIPP");
    ::DeleteFile(file);
}

/// Its handlers of commands and of painting fail.
struct CFailingWnd : CWnd
{
    int m_paints = 0;

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        m_paints += message == WM_PAINT;
        if (message == WM_COMMAND || message == WM_PAINT)
            AfxThrowNotSupportedException();
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

TEST_F(Application, TellsTheUserAboutAnExceptionInACommand)
{
    CFailingWnd window;
    ASSERT_TRUE(CreatePopup(window, nullptr, WS_VISIBLE));
    EXPECT_EQ(window.SendMessage(WM_COMMAND, 1), TRUE); // handled, although it failed
    EXPECT_FALSE(app->m_boxText.IsEmpty());

    app->m_boxText.Empty();
    window.Invalidate();
    window.UpdateWindow();
    EXPECT_TRUE(app->m_boxText.IsEmpty()); // a box would make the window paint again
    EXPECT_FALSE(window.GetUpdateRect(nullptr));
    EXPECT_GE(window.m_paints, 1);
}

struct CMainApp : CWinApp
{
    BOOL applies = TRUE, begins = FALSE;
    static inline int ends = 0;
    CMainApp()
    {
        m_lpfnOleTermOrFreeLib = [](BOOL, BOOL) { ++ends; };
    }
    BOOL InitApplication() override { return applies; }
    BOOL InitInstance() override { return begins; }
    int Run() override { return 7; }
    int ExitInstance() override { return 5; }
};
using Program = WithApplication<CMainApp>;

TEST_F(Program, RunsIfItBeginsAndElseEndsWithItsWindow)
{
    TCHAR arguments[] = L"part.dat";
    const auto run = [&]
    {
        const int code = AfxWinMain(AfxGetInstanceHandle(), nullptr, arguments, SW_SHOWNA);
        AfxInitThread(); // the test goes on
        return code;
    };
    CWnd main;
    ASSERT_TRUE(CreatePopup(main));
    app->m_pMainWnd = &main;
    EXPECT_EQ(run(), 5);
    EXPECT_EQ(main.m_hWnd, nullptr);
    TakeQuitMessage();
    EXPECT_STREQ(app->m_lpCmdLine, arguments);
    EXPECT_EQ(app->m_nCmdShow, SW_SHOWNA);
    app->begins = TRUE;
    EXPECT_EQ(run(), 7);
    app->applies = FALSE;
    EXPECT_EQ(run(), -1);
    EXPECT_EQ(app->ends, 3);
}

class CTestFrame : public CFrameWnd
{
public:
    int m_command = 0;

protected:
    afx_msg void OnOwnCommand() { ++m_command; }
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
    EXPECT_EQ(frame->m_command, 1);
    frame->SendMessage(WM_COMMAND, 0x8123);
    EXPECT_EQ(app->m_command, 1);

    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    for (UINT command : {0x8124, 0x8123, 0x8125}) // its own, the application's, nobody's
        menu.AppendMenu(MF_STRING, command, L"item");
    frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 0);
    EXPECT_EQ(menu.GetMenuState(0, MF_BYPOSITION), UINT{MF_CHECKED});
    EXPECT_EQ(menu.GetMenuState(1, MF_BYPOSITION), UINT{MF_ENABLED});
    EXPECT_EQ(menu.GetMenuState(2, MF_BYPOSITION), UINT{MF_GRAYED});
}

TEST_F(Frame, DisablingItDisablesTheWindowsItOwnsAndFramesWhoeverEnablesThem)
{
    CWnd palette;
    CWnd alreadyDisabled;
    ASSERT_TRUE(CreatePopup(palette, frame));
    ASSERT_TRUE(CreatePopup(alreadyDisabled, frame, WS_DISABLED));
    auto* const owned = new CFrameWnd; // goes with its owner
    ASSERT_TRUE(owned->Create(nullptr, L"owned", WS_POPUP, CRect(0, 0, 50, 50), frame));
    frame->EnableWindow(FALSE);
    owned->EnableWindow(TRUE);
    EXPECT_FALSE(owned->IsWindowEnabled());
    EXPECT_FALSE(palette.IsWindowEnabled());
    frame->EnableWindow(TRUE);
    EXPECT_TRUE(owned->IsWindowEnabled());
    EXPECT_TRUE(palette.IsWindowEnabled());
    EXPECT_FALSE(alreadyDisabled.IsWindowEnabled());
}

TEST_F(Frame, ClosingTheMainFrameEndsTheProgram)
{
    frame->PostMessage(WM_COMMAND, ID_APP_EXIT);
    EXPECT_EQ(app->Run(), 0);
    EXPECT_EQ(app->m_pMainWnd, nullptr);
    EXPECT_EQ(AfxGetMainWnd(), nullptr);
}

struct CIdleWnd : CWnd
{
    int m_updates = 0;

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        m_updates += message == WM_IDLEUPDATECMDUI;
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

TEST_F(Frame, IdleTimeUpdatesVisibleWindowsOnceAndThenEnds)
{
    CIdleWnd child;
    ASSERT_TRUE(CreateChild(child, *frame, 1));
    EXPECT_TRUE(app->OnIdle(0));
    EXPECT_EQ(child.m_updates, 0); // the frame is hidden
    frame->ShowWindow(SW_SHOW);
    EXPECT_TRUE(app->OnIdle(0));
    EXPECT_EQ(child.m_updates, 1);
    EXPECT_FALSE(app->OnIdle(1));
    EXPECT_EQ(child.m_updates, 1);
}

TEST_F(Application, MessagesThatChangeNothingDoNotBringIdleTime)
{
    MSG message{};
    message.message = WM_MOUSEMOVE;
    message.pt = {5, 5};
    EXPECT_TRUE(app->IsIdleMessage(&message));
    EXPECT_FALSE(app->IsIdleMessage(&message)); // the system repeats it without a movement
    message.pt = {6, 5};
    EXPECT_TRUE(app->IsIdleMessage(&message));
    message.message = WM_PAINT;
    EXPECT_FALSE(app->IsIdleMessage(&message));
    message.message = WM_KEYDOWN;
    EXPECT_TRUE(app->IsIdleMessage(&message));
}

TEST_F(Application, SeesTheMessagesOfTheSystemsOwnLoops)
{
    const owtest::ModalVisit visit([](CWnd&) { owtest::Press(VK_ESCAPE); });
    ::MessageBox(nullptr, L"text", L"title", MB_OK);
    EXPECT_GT(app->m_filtered, 0);
}

TEST_F(Application, TheWaitCursorIsCounted)
{
    const HCURSOR wait = ::LoadCursor(nullptr, IDC_WAIT);
    const HCURSOR arrow = ::LoadCursor(nullptr, IDC_ARROW);
    ::SetCursor(arrow);
    {
        CWaitCursor outer;
        {
            CWaitCursor inner;
            EXPECT_EQ(::GetCursor(), wait);
        }
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
    EXPECT_NE(CString(AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_CROSS))), first);
    WNDCLASS found{};
    ASSERT_TRUE(::GetClassInfo(AfxGetInstanceHandle(), first, &found));
    EXPECT_EQ(found.style, UINT{CS_DBLCLKS});
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
