// Command lines, and the roads of help.

#include "TestWindows.h"

#include <afxpriv.h>

#include "DialogTemplate.h"
#include "ImportStandIn.h"

#include <vector>

namespace
{
BOOL WINAPI NoteWinHelp(HWND, LPCWSTR file, UINT command, ULONG_PTR data)
{
    return Note("win", command, data) && file != nullptr;
}

class HelpApp : public CWinApp
{
public:
    HelpApp() : CWinApp(L"HelpTest") { m_pszHelpFilePath = _wcsdup(L"C:\\no\\such.CHM"); }
    int DoMessageBox(LPCTSTR prompt, UINT, UINT help) override
    {
        return Note(CStringA(prompt).GetString(), help) ? IDOK : 0;
    }

protected:
    afx_msg void OnDefaultHelp() { Note("index"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(HelpApp, CWinApp)
    ON_COMMAND(ID_HELP, &CWinApp::OnHelp)
    ON_COMMAND(ID_DEFAULT_HELP, &HelpApp::OnDefaultHelp)
END_MESSAGE_MAP()

struct HelpDialog : CDialog
{
    void HtmlHelp(DWORD_PTR dwData, UINT nCmd) override { Note("html", nCmd, dwData); }
};

class Help : public WithApplication<HelpApp>
{
protected:
    Help()
    {
        const auto form = owtest::DialogTemplate(L"Help", 80, 40).Edit(1, 4, 4, 40, 12);
        dialog.CreateIndirect(form.get());
        app->m_pMainWnd = &dialog;
        Noted();
    }
    ~Help() override { app->m_pMainWnd = nullptr; }
    std::string F1()
    {
        HELPINFO info{};
        info.cbSize = sizeof info;
        dialog.GetDlgItem(1)->SendMessage(WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
        return Noted();
    }

    HelpDialog dialog;
    owtest::ImportStandIn m_winHelp{L"mfcow.dll", "WinHelpW", &NoteWinHelp};
};
} // namespace

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

TEST(HelpFile, StandsBesideTheProgram)
{
    wchar_t path[MAX_PATH] = L"";
    ::GetModuleFileName(nullptr, path, MAX_PATH);
    EXPECT_EQ(CString(path).SpanExcluding(L".") + L".HLP", AfxGetApp()->m_pszHelpFilePath);
}

TEST(CommandLine, IsParsedArgumentByArgument)
{
    using Info = CCommandLineInfo;
    const struct
    {
        std::vector<const wchar_t*> arguments;
        int command;
        const wchar_t* names; ///< file, printer, driver, port
        BOOL embedded = FALSE, automated = FALSE;
    } cases[] = {
        {{}, Info::FileNew, L"|||"},
        {{L"a.dat"}, Info::FileOpen, L"a.dat|||"},
        {{L"a.dat", L"b.dat"}, Info::FileOpen, L"a.dat|||"},
        {{L"/p", L"a.dat"}, Info::FilePrint, L"a.dat|||"},
        {{L"-pt", L"a", L"lp", L"drv", L"out", L"x"}, Info::FilePrintTo, L"a|lp|drv|out"},
        {{L"/P", L"a.dat"}, Info::FileOpen, L"a.dat|||"},
        {{L"/dde"}, Info::FileDDE, L"|||"},
        {{L"/regserver"}, Info::AppRegister, L"|||"},
        {{L"/Register"}, Info::AppRegister, L"|||"},
        {{L"-unREGISTER"}, Info::AppUnregister, L"|||"},
        {{L"/Unregserver"}, Info::AppUnregister, L"|||"},
        {{L"/embedding"}, Info::FileNew, L"|||", TRUE},
        {{L"-Automation", L"a.dat"}, Info::FileOpen, L"a.dat|||", FALSE, TRUE},
    };
    for (const auto& [arguments, command, names, embedded, automated] : cases)
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
            EXPECT_EQ(info.m_nShellCommand, command) << names;
            EXPECT_EQ(info.m_strFileName + L"|" + info.m_strPrinterName + L"|" + info.m_strDriverName + L"|" +
                          info.m_strPortName,
                      names);
            EXPECT_EQ(info.m_bRunEmbedded, embedded);
            EXPECT_EQ(info.m_bRunAutomated, automated);
            EXPECT_EQ(info.m_bShowSplash, !embedded && !automated);
        }
}
