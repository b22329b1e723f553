// The application: its names, resources, message boxes and wait cursor.

#include <afxpriv.h>

#include "threadstate.h"

IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

// clang-format off
BEGIN_MESSAGE_MAP(CWinApp, CWinThread)
    ON_COMMAND(ID_APP_EXIT, &CWinApp::OnAppExit)
END_MESSAGE_MAP()
// clang-format on

namespace
{
/// The fields are plain pointers that programs replace by memory of malloc and free.
void ReplaceText(LPCTSTR& text, LPCTSTR by)
{
    LPTSTR const copy = by != nullptr ? _wcsdup(by) : nullptr;
    free(const_cast<LPTSTR>(text));
    text = copy;
}
} // namespace

CWinApp::CWinApp(LPCTSTR lpszAppName)
{
    ReplaceText(m_pszAppName, lpszAppName);

    AFX_MODULE_STATE* const state = AfxGetModuleState();
    ASSERT(state->m_pCurrentWinApp == nullptr); // one application object for a program
    state->m_pCurrentWinApp = this;
    AfxGetModuleThreadState()->m_pCurrentWinThread = this;
    m_hThread = ::GetCurrentThread();
    m_nThreadID = ::GetCurrentThreadId();
    m_bAutoDelete = FALSE;
}

CWinApp::~CWinApp()
{
    AFX_MODULE_STATE* const state = AfxGetModuleState();
    if (state->m_pCurrentWinApp == this)
        state->m_pCurrentWinApp = nullptr;
    if (state->m_lpszCurrentAppName == m_pszAppName)
        state->m_lpszCurrentAppName = nullptr;
    for (LPCTSTR* text :
         {&m_pszAppName, &m_pszExeName, &m_pszRegistryKey, &m_pszProfileName, &m_pszHelpFilePath})
        ReplaceText(*text, nullptr);
}

/// Derives the names that the program did not give from the executable's, and enters them in the module
/// state.
void CWinApp::SetCurrentHandles()
{
    AFX_MODULE_STATE* const state = AfxGetModuleState();
    m_hInstance = state->m_hCurrentInstanceHandle;

    CString path;
    ::GetModuleFileName(m_hInstance, path.GetBuffer(MAX_PATH), MAX_PATH);
    path.ReleaseBuffer();
    CString name = path.Mid(path.ReverseFind(L'\\') + 1);
    const int dot = name.ReverseFind(L'.');
    if (dot > 0)
        name = name.Left(dot);

    if (m_pszExeName == nullptr)
        ReplaceText(m_pszExeName, name);
    if (m_pszAppName == nullptr)
        ReplaceText(m_pszAppName, m_pszExeName);
    state->m_lpszCurrentAppName = m_pszAppName;
    if (m_pszProfileName == nullptr)
        ReplaceText(m_pszProfileName, name + L".INI");
    if (m_pszHelpFilePath == nullptr)
        ReplaceText(m_pszHelpFilePath, path.Left(path.ReverseFind(L'\\') + 1) + name +
                                           (m_eHelpType == afxHTMLHelp ? L".CHM" : L".HLP"));
}

void CWinApp::SetRegistryKey(LPCTSTR lpszRegistryKey)
{
    ASSERT(m_pszRegistryKey == nullptr);
    ReplaceText(m_pszRegistryKey, lpszRegistryKey);
    ReplaceText(m_pszProfileName, m_pszAppName); // a key below the company's in place of a file
}

void CWinApp::SetRegistryKey(UINT nIDRegistryKey)
{
    CString key;
    if (!key.LoadString(nIDRegistryKey))
        key = L"Local AppWizard-Generated Applications";
    SetRegistryKey(key);
}

CWinApp* AFXAPI AfxGetApp()
{
    return AfxGetModuleState()->m_pCurrentWinApp;
}

LPCTSTR AFXAPI AfxGetAppName()
{
    return AfxGetModuleState()->m_lpszCurrentAppName;
}

// ---------------------------------------------------------------------------------------------------------
// Life

int CWinApp::Run()
{
    if (m_pMainWnd == nullptr)
        AfxPostQuitMessage(0); // nothing to wait for
    return CWinThread::Run();
}

LRESULT CWinApp::ProcessWndProcException(CException* e, const MSG* pMsg)
{
    return CWinThread::ProcessWndProcException(e, pMsg);
}

void CWinApp::OnAppExit()
{
    if (m_pMainWnd != nullptr)
        m_pMainWnd->SendMessage(WM_CLOSE);
}

void CWinApp::HideApplication()
{
    if (m_pMainWnd == nullptr)
        return;
    m_pMainWnd->ShowWindow(SW_HIDE);
    m_pMainWnd->ShowOwnedPopups(FALSE);
}

// ---------------------------------------------------------------------------------------------------------
// Resources

HCURSOR CWinApp::LoadCursor(LPCTSTR lpszResourceName) const
{
    return ::LoadCursor(AfxFindResourceHandle(lpszResourceName, RT_GROUP_CURSOR), lpszResourceName);
}

HICON CWinApp::LoadIcon(LPCTSTR lpszResourceName) const
{
    return ::LoadIcon(AfxFindResourceHandle(lpszResourceName, RT_GROUP_ICON), lpszResourceName);
}

// ---------------------------------------------------------------------------------------------------------
// Message boxes

namespace
{
/// Boxes of a program carry the exclamation mark unless they name another icon, or ask to retry.
UINT WithDefaultIcon(UINT type)
{
    if ((type & MB_ICONMASK) != 0)
        return type;
    switch (type & MB_TYPEMASK)
    {
    case MB_OK:
    case MB_OKCANCEL:
    case MB_YESNO:
    case MB_YESNOCANCEL:
        return type | MB_ICONEXCLAMATION;
    default:
        return type;
    }
}

int ShowMessageBox(LPCTSTR text, UINT type)
{
    HWND disabledTop = nullptr;
    const HWND owner = CWnd::GetSafeOwner(nullptr, &disabledTop)->GetSafeHwnd();
    LPCTSTR const caption = AfxGetAppName();
    const int answer = ::MessageBox(owner, text, caption != nullptr ? caption : L"", WithDefaultIcon(type));
    if (disabledTop != nullptr)
        ::EnableWindow(disabledTop, TRUE);
    return answer;
}
} // namespace

int CWinApp::DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt)
{
    // F1 in the box asks about it, or else about what was asked about before.
    const DWORD context = nIDPrompt != 0 ? HID_BASE_PROMPT + nIDPrompt : m_dwPromptContext;
    const CRestoreValue<DWORD> prompt(m_dwPromptContext, context);
    return ShowMessageBox(lpszPrompt, nType);
}

int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT nIDHelp)
{
    CWinApp* const app = AfxGetApp();
    return app != nullptr ? app->DoMessageBox(lpszText, nType, nIDHelp) : ShowMessageBox(lpszText, nType);
}

int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp)
{
    CString text;
    if (!text.LoadString(nIDPrompt))
        TRACE(L"Error: the message box's string %u was not found.\n", nIDPrompt);
    return AfxMessageBox(text, nType, nIDHelp == static_cast<UINT>(-1) ? nIDPrompt : nIDHelp);
}

// ---------------------------------------------------------------------------------------------------------
// Wait cursor

void CWinApp::DoWaitCursor(int nCode)
{
    ASSERT(nCode == 0 || nCode == 1 || nCode == -1);
    const int before = m_nWaitCursorCount;
    m_nWaitCursorCount += nCode;
    if (m_nWaitCursorCount > 0)
    {
        const HCURSOR shown = ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
        if (before == 0)
            m_hcurWaitCursorRestore = shown;
        return;
    }
    // An End without a Begin counts for nothing.
    m_nWaitCursorCount = 0;
    if (before > 0)
        ::SetCursor(m_hcurWaitCursorRestore);
}

CWaitCursor::CWaitCursor()
{
    if (CWinApp* const app = AfxGetApp())
        app->BeginWaitCursor();
}

CWaitCursor::~CWaitCursor()
{
    if (CWinApp* const app = AfxGetApp())
        app->EndWaitCursor();
}

void CWaitCursor::Restore()
{
    if (CWinApp* const app = AfxGetApp())
        app->RestoreWaitCursor();
}
