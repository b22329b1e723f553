// Command lines, and the roads of help.

#include "TestWindows.h"

#include <afxpriv.h>

#include "DialogTemplate.h"
#include "ImportStandIn.h"

#include <string>
#include <vector>

namespace
{
std::vector<std::string> s_asked; ///< the system, command and data of each

BOOL WINAPI NoteWinHelp(HWND, LPCWSTR file, UINT command, ULONG_PTR data)
{
    s_asked.push_back("win " + std::to_string(command) + ' ' + std::to_string(data));
    return file != nullptr;
}

class HelpApp : public CWinApp
{
public:
    HelpApp() : CWinApp(L"HelpTest") { m_pszHelpFilePath = _wcsdup(L"C:\\no\\such.CHM"); }
    CString boxText;
    UINT boxHelp = 0;
    int indexAsked = 0;
    using CWinApp::DoMessageBox;
    int DoMessageBox(LPCTSTR lpszPrompt, UINT, UINT nIDPrompt) override
    {
        boxText = lpszPrompt;
        boxHelp = nIDPrompt;
        return IDOK;
    }

protected:
    afx_msg void OnDefaultHelp() { ++indexAsked; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(HelpApp, CWinApp)
    ON_COMMAND(ID_HELP, &CWinApp::OnHelp)
    ON_COMMAND(ID_DEFAULT_HELP, &HelpApp::OnDefaultHelp)
END_MESSAGE_MAP()

class HelpDialog : public CDialog
{
public:
    bool notesHtml = true;
    void HtmlHelp(DWORD_PTR dwData, UINT nCmd) override
    {
        if (notesHtml)
            s_asked.push_back("html " + std::to_string(nCmd) + ' ' + std::to_string(dwData));
        else
            CDialog::HtmlHelp(dwData, nCmd);
    }
};

class Help : public WithApplication<HelpApp>
{
protected:
    Help()
    {
        s_asked.clear();
        const owtest::DialogTemplate form = owtest::DialogTemplate(L"Help", 80, 40).Edit(1, 4, 4, 40, 12);
        dialog.CreateIndirect(form.get());
        app->m_pMainWnd = &dialog;
    }
    ~Help() override { app->m_pMainWnd = nullptr; }
    void PressF1()
    {
        HELPINFO info{};
        info.cbSize = sizeof info;
        dialog.GetDlgItem(1)->SendMessage(WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
    }

    HelpDialog dialog;
    owtest::ImportStandIn m_winHelp{L"mfcow.dll", "WinHelpW", &NoteWinHelp};
};

TEST_F(Help, F1AsksForTheDialogsContextOrElseForTheDefault)
{
    PressF1();
    EXPECT_EQ(app->indexAsked, 1);
    EXPECT_EQ(dialog.SendMessage(WM_HELPHITTEST), 0);
    dialog.SetHelpID(77);
    EXPECT_EQ(dialog.SendMessage(WM_HELPHITTEST), 0x2004D);
    PressF1();
    EXPECT_EQ(s_asked, std::vector<std::string>{"win 1 131149"}); // HELP_CONTEXT, 0x2004D
    dialog.SendMessage(WM_COMMANDHELP, 0, 5);                     // somebody knew better
    EXPECT_EQ(s_asked.back(), "win 1 5");
    EXPECT_EQ(app->indexAsked, 1);
    app->m_dwPromptContext = HID_BASE_PROMPT + 9; // a message box is open
    PressF1();
    EXPECT_EQ(s_asked.back(), "win 1 196617"); // 0x30009
    app->m_dwPromptContext = HID_BASE_PROMPT + AFX_IDP_FAILED_TO_LAUNCH_HELP;
    PressF1();
    EXPECT_EQ(s_asked.size(), 3u);
}

TEST_F(Help, EachKindHasItsOwnNumbersAndAMissingFileIsTold)
{
    app->OnHelpIndex();
    app->OnHelpFinder();
    app->OnHelpUsing();
    app->EnableHtmlHelp();
    EXPECT_EQ(app->GetHelpMode(), afxHTMLHelp);
    app->OnHelpIndex();
    app->OnHelpFinder();
    app->WinHelpInternal(12);
    // HELP_INDEX, HELP_FINDER, HELP_HELPONHELP; HH_DISPLAY_TOC, HH_DISPLAY_TOPIC, HH_HELP_CONTEXT
    EXPECT_EQ(s_asked, (std::vector<std::string>{"win 3 0", "win 11 0", "win 4 0", "html 1 0", "html 0 0",
                                                 "html 15 12"}));
    EXPECT_TRUE(app->boxText.IsEmpty());
    free(const_cast<LPTSTR>(std::exchange(app->m_pszHelpFilePath, nullptr)));
    dialog.WinHelp(1);
    EXPECT_EQ(app->boxText, L"Help could not be shown.");
    EXPECT_EQ(app->boxHelp, UINT{AFX_IDP_FAILED_TO_LAUNCH_HELP});
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
        BOOL embedded, automated;
    } cases[] = {
        {{}, Info::FileNew, L"|||", FALSE, FALSE},
        {{L"a.dat"}, Info::FileOpen, L"a.dat|||", FALSE, FALSE},
        {{L"a.dat", L"b.dat"}, Info::FileOpen, L"a.dat|||", FALSE, FALSE},
        {{L"/p", L"a.dat"}, Info::FilePrint, L"a.dat|||", FALSE, FALSE},
        {{L"-pt", L"a", L"lp", L"drv", L"out", L"x"}, Info::FilePrintTo, L"a|lp|drv|out", FALSE, FALSE},
        {{L"/P", L"a.dat"}, Info::FileOpen, L"a.dat|||", FALSE, FALSE},
        {{L"/dde"}, Info::FileDDE, L"|||", FALSE, FALSE},
        {{L"/regserver"}, Info::AppRegister, L"|||", FALSE, FALSE},
        {{L"/Register"}, Info::AppRegister, L"|||", FALSE, FALSE},
        {{L"-unREGISTER"}, Info::AppUnregister, L"|||", FALSE, FALSE},
        {{L"/Unregserver"}, Info::AppUnregister, L"|||", FALSE, FALSE},
        {{L"/embedding"}, Info::FileNew, L"|||", TRUE, FALSE},
        {{L"-Automation", L"a.dat"}, Info::FileOpen, L"a.dat|||", FALSE, TRUE},
    };
    for (const auto& [arguments, command, names, embedded, automated] : cases)
        for (const bool narrow : {false, true})
        {
            Info info;
            for (size_t i = 0; i < arguments.size(); ++i)
            {
                const bool flag = arguments[i][0] == L'/' || arguments[i][0] == L'-';
                const bool last = i + 1 == arguments.size();
                if (narrow)
                    info.ParseParam(CStringA(arguments[i] + flag).GetString(), flag, last);
                else
                    info.ParseParam(arguments[i] + flag, flag, last);
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
} // namespace
