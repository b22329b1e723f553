// Help: what the user is at, and the help file about it.

#include <afxpriv.h>

#include "messages.h"
#include "relatives.h"

#include <htmlhelp.h>

#undef HtmlHelp // a macro of its header that hides the members

// ---------------------------------------------------------------------------------------------------------
// Windows

namespace
{
/// What may stand in the way of a help window: menus, drags, the mouse capture.
void CancelModes(CWnd& window)
{
    CWnd* const top = window.GetTopLevelParent();
    for (CWnd* const each : {&window, top})
    {
        each->SendMessage(WM_CANCELMODE);
        each->SendMessageToDescendants(WM_CANCELMODE, 0, 0, TRUE, TRUE);
    }
    ::ReleaseCapture();
}

/// The help viewer of HTML files, which comes with the system and is loaded when it is asked for.
HWND ShowHtmlHelp(HWND owner, LPCTSTR file, UINT command, DWORD_PTR data)
{
    using Show = HWND(WINAPI*)(HWND, LPCWSTR, UINT, DWORD_PTR);
    static const HMODULE viewer = ::LoadLibrary(L"hhctrl.ocx");
    static const auto show = reinterpret_cast<Show>(
        reinterpret_cast<void*>(viewer != nullptr ? ::GetProcAddress(viewer, "HtmlHelpW") : nullptr));
    return show != nullptr ? show(owner, file, command, data) : nullptr;
}

LPCTSTR HelpFile()
{
    const CWinApp* const app = AfxGetApp();
    return app != nullptr ? app->m_pszHelpFilePath : nullptr;
}

void TellNoHelp()
{
    AfxMessageBox(AfxFindMessage(AFX_IDP_FAILED_TO_LAUNCH_HELP), MB_OK, AFX_IDP_FAILED_TO_LAUNCH_HELP);
}

/// Calls one of an object's two kinds of help, as the program's help type says, in that kind's own numbers.
template <class Object>
void ShowHelp(Object& object, DWORD_PTR data, UINT command)
{
    const CWinApp* const app = AfxGetApp();
    if (app == nullptr || app->m_eHelpType == afxWinHelp)
    {
        object.WinHelp(data, command);
        return;
    }
    switch (command)
    {
    case HELP_CONTEXT:
        object.HtmlHelp(data, HH_HELP_CONTEXT);
        break;
    case HELP_CONTENTS:
        object.HtmlHelp(data, HH_DISPLAY_TOC);
        break;
    case HELP_FINDER:
        object.HtmlHelp(0, HH_DISPLAY_TOPIC);
        break;
    default:
        ASSERT(FALSE); // HTML Help has nothing like it
    }
}
} // namespace

void CWnd::WinHelp(DWORD_PTR dwData, UINT nCmd)
{
    const CWaitCursor wait;
    CancelModes(*this);
    if (!::WinHelp(GetTopLevelParent()->m_hWnd, HelpFile(), nCmd, dwData))
        TellNoHelp();
}

void CWnd::HtmlHelp(DWORD_PTR dwData, UINT nCmd)
{
    const CWaitCursor wait;
    CancelModes(*this);
    if (ShowHtmlHelp(GetTopLevelParent()->m_hWnd, HelpFile(), nCmd, dwData) == nullptr)
        TellNoHelp();
}

void CWnd::WinHelpInternal(DWORD_PTR dwData, UINT nCmd)
{
    ShowHelp(*this, dwData, nCmd);
}

void CWnd::OnHelp()
{
    CWinApp* const app = AfxGetApp();
    if (app != nullptr && app->m_dwPromptContext != 0)
    {
        // No help about the box which says that there is none.
        if (app->m_dwPromptContext != HID_BASE_PROMPT + AFX_IDP_FAILED_TO_LAUNCH_HELP)
            app->WinHelpInternal(app->m_dwPromptContext);
        return;
    }
    const HWND active = ::GetLastActivePopup(GetTopLevelParent()->m_hWnd);
    for (HWND asked = active; asked != nullptr; asked = ParentOrOwnerOf(asked))
        if (::SendMessage(asked, WM_COMMANDHELP, 0, 0) != 0)
            return;
    SendMessage(WM_COMMAND, ID_DEFAULT_HELP);
}

BOOL CWnd::OnHelpInfo(HELPINFO*)
{
    // From a dialog or another window of its own the key goes to the main window as a command; with Shift,
    // Control or Alt it is not F1 any more.
    CWnd* const main = AfxGetMainWnd();
    const auto isUp = [](int key) { return ::GetKeyState(key) >= 0; };
    if ((GetStyle() & WS_CHILD) == 0 && main != nullptr && isUp(VK_SHIFT) && isUp(VK_CONTROL) &&
        isUp(VK_MENU))
    {
        main->SendMessage(WM_COMMAND, ID_HELP);
        return TRUE;
    }
    return static_cast<BOOL>(Default());
}

// ---------------------------------------------------------------------------------------------------------
// Dialogs

LRESULT CDialog::OnCommandHelp(WPARAM, LPARAM lParam)
{
    if (lParam == 0 && m_nIDHelp != 0)
        lParam = HID_BASE_RESOURCE + m_nIDHelp;
    CWinApp* const app = AfxGetApp();
    if (lParam == 0 || app == nullptr)
        return FALSE;
    app->WinHelpInternal(static_cast<DWORD_PTR>(lParam));
    return TRUE;
}

LRESULT CDialog::OnHelpHitTest(WPARAM, LPARAM)
{
    return m_nIDHelp != 0 ? HID_BASE_RESOURCE + m_nIDHelp : 0;
}

// ---------------------------------------------------------------------------------------------------------
// The application. Each goes through the main window, whose class may have help of its own.

void CWinApp::WinHelp(DWORD_PTR dwData, UINT nCmd)
{
    if (CWnd* const main = AfxGetMainWnd())
        main->WinHelp(dwData, nCmd);
}

void CWinApp::HtmlHelp(DWORD_PTR dwData, UINT nCmd)
{
    if (CWnd* const main = AfxGetMainWnd())
        main->HtmlHelp(dwData, nCmd);
}

void CWinApp::WinHelpInternal(DWORD_PTR dwData, UINT nCmd)
{
    ShowHelp(*this, dwData, nCmd);
}

void CWinApp::OnHelp()
{
    if (CWnd* const main = AfxGetMainWnd())
        main->OnHelp();
}

void CWinApp::OnHelpIndex()
{
    if (CWnd* const main = AfxGetMainWnd())
        main->OnHelpIndex();
}

void CWinApp::OnHelpFinder()
{
    if (CWnd* const main = AfxGetMainWnd())
        main->OnHelpFinder();
}

void CWinApp::OnHelpUsing()
{
    if (CWnd* const main = AfxGetMainWnd())
        main->OnHelpUsing();
}

void CWinApp::OnContextHelp()
{
    // The system's own mode, as the question mark in a dialog's caption starts it.
    if (CWnd* const main = AfxGetMainWnd())
        main->PostMessage(WM_SYSCOMMAND, SC_CONTEXTHELP);
}
