// The application: profile, message boxes, frames, idle time, help, command lines, wait cursor, stack dumps.

#include "TestWindows.h"

#include <afxpriv.h>

#include "resource.h"

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
        if (code != MSGF_DIALOGBOX) // of each key
            Note("filter", code);
        ::CallMsgFilter(message, MSGF_SCROLLBAR); // as a loop in a filter would; it is not told of that one
        return CWinApp::ProcessMessageFilter(code, message);
    }
    int DoMessageBox(LPCTSTR prompt, UINT, UINT help) override
    {
        return Note(CStringA(prompt).GetString(), help) ? IDOK : 0;
    }

protected:
    afx_msg void OnCommand() { Note("application"); }
    afx_msg void OnDefaultHelp() { Note("index"); }
    afx_msg void OnUpdateFrames(CCmdUI* item) { item->SetCheck(item->m_nID == 0x8126); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CTestApp, CWinApp)
    ON_COMMAND(0x8123, &CTestApp::OnCommand)
    // The first is answered by the frame.
    ON_UPDATE_COMMAND_UI_RANGE(0x8124, 0x8126, &CTestApp::OnUpdateFrames)
    ON_COMMAND(ID_HELP, &CWinApp::OnHelp)
    ON_COMMAND(ID_DEFAULT_HELP, &CTestApp::OnDefaultHelp)
END_MESSAGE_MAP()

/// A test with an application of its own beside the test program's, which is put back afterwards.
class Application : public ::testing::Test
{
protected:
    Application()
    {
        AfxGetModuleState()->m_pCurrentWinApp = nullptr;
        app = std::make_unique<CTestApp>();
        Noted();
    }
    ~Application() override
    {
        app.reset();
        AfxGetModuleState()->m_pCurrentWinApp = m_programs;
        AfxGetModuleState()->m_lpszCurrentAppName = m_programs->m_pszAppName;
        AfxGetModuleThreadState()->m_pCurrentWinThread = m_programs;
    }

    std::unique_ptr<CTestApp> app;

private:
    CWinApp* m_programs = AfxGetApp();
};

TEST_F(Application, HasItsProfileInTheRegistryOrInAFile)
{
    const auto checkProfile = [this]
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
    };
    wchar_t folder[MAX_PATH], file[MAX_PATH];
    ::GetTempPath(MAX_PATH, folder);
    ASSERT_NE(::GetTempFileName(folder, L"prf", 0, file), 0u);
    app->m_pszProfileName = _wcsdup(file); // freed by the application
    checkProfile();
    EXPECT_EQ(app->GetProfileString(L"Data", L"bytes"), L"AABAPHAIPP") << "two letters, the low half first";
    ::DeleteFile(file);

    app->SetRegistryKey(L"DialogControlsOW Tests");
    checkProfile();
    int value = 0;
    DWORD size = sizeof value;
    ::RegGetValue(HKEY_CURRENT_USER, L"Software\\DialogControlsOW Tests\\ProfileTest\\Numbers", L"n",
                  RRF_RT_REG_DWORD, nullptr, &value, &size);
    EXPECT_EQ(value, -17);
    app->WriteProfileString(L"Numbers", L"n", L"12");
    EXPECT_EQ(app->GetProfileInt(L"Numbers", L"n", 5), 5u) << "a value of another type";
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
    EXPECT_EQ(Noted().find("This operation is not supported."), 0u);
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
    CPopup main;
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
    afx_msg void OnUpdateOther(CCmdUI* item) { item->ContinueRouting(); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CTestFrame, CFrameWnd)
    ON_COMMAND(0x8124, &CTestFrame::OnOwnCommand)
    ON_UPDATE_COMMAND_UI(0x8124, &CTestFrame::OnUpdateOwn)
    ON_UPDATE_COMMAND_UI(0x8126, &CTestFrame::OnUpdateOther)
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
    EXPECT_TRUE(frame->LoadAccelTable(MAKEINTRESOURCE(IDR_KEYS)));
    MSG key{*frame, WM_KEYDOWN, VK_F5, 0, 0, {}};
    EXPECT_TRUE(frame->PreTranslateMessage(&key));
    EXPECT_EQ(Noted(), "frame;application;frame;");
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    // Handed on, its own, the application's, nobody's, the system's.
    const std::pair<UINT, UINT> items[] = {{0x8126, MF_GRAYED | MF_CHECKED},
                                           {0x8124, MF_CHECKED},
                                           {0x8123, MF_ENABLED},
                                           {0x8125, MF_GRAYED},
                                           {0xF000, MF_ENABLED}};
    for (const auto& [command, state] : items)
        menu.AppendMenu(MF_STRING, command, L"item");
    frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 0);
    for (const auto& [command, state] : items)
        EXPECT_EQ(menu.GetMenuState(command, MF_BYCOMMAND), state) << command;
}

TEST_F(Frame, DisablingItDisablesTheWindowsItOwnsAndFramesWhoeverEnablesThem)
{
    CPopup palette(frame), alreadyDisabled(frame, WS_DISABLED);
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

TEST_F(Frame, ComesToTheFrontHoweverItStoodAndIsNoneWithoutItsMenu)
{
    frame->ActivateFrame();
    for (const int show : {SW_SHOW, SW_MINIMIZE})
    {
        CPopup other(nullptr, WS_VISIBLE);
        frame->ShowWindow(show);
        other.SetActiveWindow();
        frame->ActivateFrame();
        EXPECT_TRUE(CWnd::GetActiveWindow() == frame && !frame->IsIconic()) << show;
    }
    EXPECT_FALSE(
        (new CFrameWnd)->Create(nullptr, L"", WS_POPUP, CRect(0, 0, 9, 9), nullptr, L"no such menu"));
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
    CChild middle(*frame, 1);
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

TEST_F(Application, SeesTheMessagesOfTheSystemsOwnLoops)
{
    MSG message{};
    EXPECT_FALSE(::CallMsgFilter(&message, MSGF_MENU));
    EXPECT_EQ(Noted(), "filter 2;");
}

BOOL WINAPI NoteWinHelp(HWND, LPCWSTR file, UINT command, ULONG_PTR data)
{
    return Note("win", command, data) && file != nullptr;
}

struct HelpDialog : CDialog
{
    void HtmlHelp(DWORD_PTR dwData, UINT nCmd) override { Note("html", nCmd, dwData); }
};

class Help : public Application
{
protected:
    Help()
    {
        const auto form = owtest::DialogTemplate(L"Help", 80, 40).Edit(1, 4, 4, 40, 12);
        dialog.CreateIndirect(form.get());
        dialog.ShowWindow(SW_SHOW);
        owtest::Activate(dialog);
        app->m_pMainWnd = &dialog;
        app->m_pszHelpFilePath = _wcsdup(L"C:\\no\\such.CHM");
        Noted();
    }
    ~Help() override { app->m_pMainWnd = nullptr; }
    std::string F1()
    {
        owtest::Press(VK_F1);
        return Noted();
    }

    HelpDialog dialog;
    owtest::ImportStandIn m_winHelp{L"mfcow.dll", "WinHelpW", &NoteWinHelp};
};
TEST_F(Help, F1AsksForTheDialogsContextOrElseForTheDefault)
{
    EXPECT_EQ(F1(), "index;");
    EXPECT_EQ(dialog.SendMessage(WM_HELPHITTEST), 0);
    dialog.SetHelpID(77);
    EXPECT_EQ(dialog.SendMessage(WM_HELPHITTEST), 0x2004D);
    EXPECT_EQ(F1(), "win 1 131149;");         // HELP_CONTEXT, 0x2004D
    dialog.SendMessage(WM_COMMANDHELP, 0, 5); // somebody knew better
    EXPECT_EQ(Noted(), "win 1 5;");
    app->m_dwPromptContext = HID_BASE_PROMPT + 9; // a message box is open
    EXPECT_EQ(F1(), "win 1 196617;");             // 0x30009
    app->m_dwPromptContext = HID_BASE_PROMPT + AFX_IDP_FAILED_TO_LAUNCH_HELP;
    EXPECT_EQ(F1(), "");
}

TEST_F(Help, EachKindHasItsOwnNumbersAndAMissingFileIsTold)
{
    app->OnHelpIndex();
    app->OnHelpFinder();
    app->OnHelpUsing();
    EXPECT_EQ(Noted(), "win 3 0;win 11 0;win 4 0;"); // HELP_INDEX, HELP_FINDER, HELP_HELPONHELP
    app->EnableHtmlHelp();
    EXPECT_EQ(app->GetHelpMode(), afxHTMLHelp);
    app->OnHelpIndex();
    app->OnHelpFinder();
    app->WinHelpInternal(12);
    EXPECT_EQ(Noted(), "html 1 0;html 0 0;html 15 12;"); // HH_DISPLAY_TOC, HH_DISPLAY_TOPIC, HH_HELP_CONTEXT
    free(const_cast<LPTSTR>(std::exchange(app->m_pszHelpFilePath, nullptr)));
    dialog.WinHelp(1);
    EXPECT_EQ(Noted(),
              "win 1 1;Help could not be shown. " + std::to_string(AFX_IDP_FAILED_TO_LAUNCH_HELP) + ';');
}

TEST(CommandLine, IsParsedArgumentByArgument)
{
    using Info = CCommandLineInfo;
    const struct
    {
        std::vector<const wchar_t*> arguments;
        int command;
        const wchar_t*
            rest; ///< file, printer, driver, port; whether it is embedded, automated, shows the splash
    } cases[] = {
        {{}, Info::FileNew, L"||||001"},
        {{L"a.dat"}, Info::FileOpen, L"a.dat||||001"},
        {{L"a.dat", L"b.dat"}, Info::FileOpen, L"a.dat||||001"},
        {{L"/p", L"a.dat"}, Info::FilePrint, L"a.dat||||001"},
        {{L"-pt", L"a", L"lp", L"drv", L"out", L"x"}, Info::FilePrintTo, L"a|lp|drv|out|001"},
        {{L"/P", L"a.dat"}, Info::FileOpen, L"a.dat||||001"},
        {{L"/dde"}, Info::FileDDE, L"||||001"},
        {{L"/Register"}, Info::AppRegister, L"||||001"},
        {{L"-unREGISTER"}, Info::AppUnregister, L"||||001"},
        {{L"/embedding"}, Info::FileNew, L"||||100"},
        {{L"-Automation", L"a.dat"}, Info::FileOpen, L"a.dat||||010"},
    };
    for (const auto& [arguments, command, rest] : cases)
        for (const bool narrow : {false, true})
        {
            Info info;
            for (size_t i = 0; i < arguments.size(); ++i)
            {
                const bool flag = wcschr(L"/-", arguments[i][0]) != nullptr;
                const bool last = i + 1 == arguments.size();
                narrow ? info.ParseParam(CStringA(arguments[i] + flag).GetString(), flag, last)
                       : info.ParseParam(arguments[i] + flag, flag, last);
            }
            EXPECT_EQ(info.m_nShellCommand, command) << CStringA(rest);
            CString parsed = info.m_strFileName + L"|" + info.m_strPrinterName + L"|";
            parsed += info.m_strDriverName + L"|" + info.m_strPortName;
            parsed.AppendFormat(L"|%d%d%d", info.m_bRunEmbedded, info.m_bRunAutomated, info.m_bShowSplash);
            EXPECT_EQ(parsed, rest);
        }
}

TEST_F(Application, TheWaitCursorIsCounted)
{
    const HCURSOR wait = ::LoadCursor(nullptr, IDC_WAIT), arrow = ::LoadCursor(nullptr, IDC_ARROW);
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
