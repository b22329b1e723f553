#pragma once
// The application, its thread and message loop, and what belongs to the process as a whole: module state,
// resource handles, the chain of extension modules, message boxes, window classes.
//
// There is one module state for the process, and extension modules share it. Its fields hold the program's
// handles from the first use on, so that an extension module may ask for them from DllMain, before
// AfxWinInit.

#include <afxwin_wnd.h>

class CDynLinkLibrary;
class CWinApp;

// ---------------------------------------------------------------------------------------------------------
// Module and thread state

class AFX_MODULE_STATE
{
public:
    CWinApp* m_pCurrentWinApp = nullptr;
    HINSTANCE m_hCurrentInstanceHandle = nullptr;
    HINSTANCE m_hCurrentResourceHandle = nullptr; ///< module searched first for resources
    LPCTSTR m_lpszCurrentAppName = nullptr;
    BYTE m_bDLL = FALSE;                         ///< state of a DLL rather than of a program
    BYTE m_bSystem = FALSE;                      ///< state of the framework itself
    std::vector<CDynLinkLibrary*> m_libraryList; ///< extension modules, latest first; owns nothing
};

class AFX_MODULE_THREAD_STATE
{
public:
    CWinThread* m_pCurrentWinThread = nullptr;
};

/// The state in force on the calling thread.
AFX_CORE_API AFX_MODULE_STATE* AFXAPI AfxGetModuleState();
/// Puts another state in force on the calling thread and answers the one of before.
AFX_CORE_API AFX_MODULE_STATE* AFXAPI AfxSetModuleState(AFX_MODULE_STATE* pNewState);
/// The state of the calling module: for extension modules that of the process.
AFX_CORE_API AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState();
AFX_CORE_API AFX_MODULE_STATE* AFXAPI AfxGetAppModuleState();
AFX_CORE_API AFX_MODULE_THREAD_STATE* AFXAPI AfxGetModuleThreadState();

/// Puts a module state in force until the end of the scope.
struct AFX_MAINTAIN_STATE2
{
    explicit AFX_MAINTAIN_STATE2(AFX_MODULE_STATE* pModuleState)
        : m_pPrevModuleState(AfxSetModuleState(pModuleState))
    {
    }
    ~AFX_MAINTAIN_STATE2() { AfxSetModuleState(m_pPrevModuleState); }
    AFX_MAINTAIN_STATE2(const AFX_MAINTAIN_STATE2&) = delete;
    AFX_MAINTAIN_STATE2& operator=(const AFX_MAINTAIN_STATE2&) = delete;

protected:
    AFX_MODULE_STATE* m_pPrevModuleState;
};

#define AFX_MANAGE_STATE(p) AFX_MAINTAIN_STATE2 _ctlState(p);

// ---------------------------------------------------------------------------------------------------------
// The thread and the application

/// What a worker thread runs; the answer is the thread's exit code.
typedef UINT(AFX_CDECL* AFX_THREADPROC)(LPVOID);

/// A thread: one that only runs a function (worker), or one with a message loop and windows of its own (user
/// interface), whose class is derived from this and made dynamically creatable:
///
///     BOOL CViewerThread::InitInstance()
///     {
///         m_pMainWnd = new CViewerFrame; // closing it ends the thread
///         return TRUE;                   // FALSE: straight on to ExitInstance
///     }
///     CWinThread* pThread = AfxBeginThread(RUNTIME_CLASS(CViewerThread));
///
/// A worker sees the application's main window as its own, to post messages to. Objects of windows and drawing
/// belong to the thread that attached them: hand another thread the handle.
///
/// An object with m_bAutoDelete deletes itself when its thread ends. Whoever wants to wait for the thread takes
/// that away while it is suspended, waits for m_hThread, and deletes the object.
class AFX_CORE_CLASS CWinThread : public CCmdTarget
{
    DECLARE_DYNAMIC(CWinThread)

public:
    CWinThread();
    CWinThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam);
    ~CWinThread() override;

    CWnd* m_pMainWnd = nullptr;   ///< closing it ends the program
    CWnd* m_pActiveWnd = nullptr; ///< stands in for the main window while it is not null
    BOOL m_bAutoDelete = TRUE;
    HANDLE m_hThread = nullptr;
    DWORD m_nThreadID = 0;
    MSG m_msgCur{}; ///< the message that the loop took last
    LPVOID m_pThreadParams = nullptr;
    AFX_THREADPROC m_pfnThreadProc = nullptr;
    /// What AfxOleInit leaves to be done at the thread's end.
    void(AFXAPI* m_lpfnOleTermOrFreeLib)(BOOL, BOOL) = nullptr;

    operator HANDLE() const { return m_hThread; }
    /// Starts the thread, and comes back when messages can be posted to it. With CREATE_SUSPENDED it goes on
    /// only after ResumeThread.
    BOOL CreateThread(DWORD dwCreateFlags = 0, UINT nStackSize = 0,
                      LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);
    int GetThreadPriority() { return ::GetThreadPriority(m_hThread); }
    BOOL SetThreadPriority(int nPriority) { return ::SetThreadPriority(m_hThread, nPriority); }
    /// Both count, and answer the count of before, or (DWORD)-1.
    DWORD SuspendThread() { return ::SuspendThread(m_hThread); }
    DWORD ResumeThread() { return ::ResumeThread(m_hThread); }
    virtual CWnd* GetMainWnd() { return m_pActiveWnd != nullptr ? m_pActiveWnd : m_pMainWnd; }
    /// Handled by ON_THREAD_MESSAGE in the map of the thread's class.
    BOOL PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam);
    virtual void Delete(); ///< deletes the object if m_bAutoDelete says so

    virtual BOOL InitInstance();
    virtual int Run();
    virtual int ExitInstance();

    /// Offers the message to the windows' PreTranslateMessage, from the target up to the main window.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// Waits for a message and dispatches it; FALSE on WM_QUIT.
    virtual BOOL PumpMessage();
    /// Work for the time when the queue is empty, called with 0, 1, 2... until it answers FALSE. Brings user
    /// interface items up to date, then deletes the temporary objects of the handle maps.
    virtual BOOL OnIdle(LONG lCount);
    /// FALSE for messages after which there is nothing new to do in idle time.
    virtual BOOL IsIdleMessage(MSG* pMsg);
    /// Tells the user about an exception that left a handler; answers the result of the message.
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);
    /// Sees messages of dialogs, menus and message boxes before they act; TRUE swallows the message.
    virtual BOOL ProcessMessageFilter(int code, LPMSG lpMsg);

protected:
    BOOL DispatchThreadMessageEx(MSG* pMsg); ///< TRUE when the thread's map has a handler, which was called

private:
    CPoint m_ptCursorLast{0, 0}; ///< of the last mouse move
    UINT m_nMsgLast = 0;
};

/// Starts a worker, or a thread of a class derived from CWinThread. A stack size of 0 is the program's own. Null
/// when the system refuses.
AFX_CORE_API CWinThread* AFXAPI AfxBeginThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam,
                                               int nPriority = THREAD_PRIORITY_NORMAL, UINT nStackSize = 0,
                                               DWORD dwCreateFlags = 0,
                                               LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);
AFX_CORE_API CWinThread* AFXAPI AfxBeginThread(CRuntimeClass* pThreadClass,
                                               int nPriority = THREAD_PRIORITY_NORMAL, UINT nStackSize = 0,
                                               DWORD dwCreateFlags = 0,
                                               LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);
/// Ends the calling thread at once: destructors on its stack do not run. Its object is deleted unless
/// `bDelete` is FALSE or the object says no.
AFX_CORE_API void AFXAPI AfxEndThread(UINT nExitCode, BOOL bDelete = TRUE);
/// For threads that were not started here and show windows of the framework.
AFX_CORE_API void AFXAPI AfxInitThread();
AFX_CORE_API void AFXAPI AfxTermThread(HINSTANCE hInstTerm = nullptr);

#define _AFX_MRU_COUNT 4 // default number of recent files

typedef enum
{
    afxWinHelp = 0,
    afxHTMLHelp = 1
} AFX_HELP_TYPE;

/// What the command line asks for: filled by CWinApp::ParseCommandLine, a call of ParseParam for each argument.
/// A program with switches of its own overrides ParseParam and hands on what it does not know.
///
///     app                     FileNew           app /Register, /Regserver       AppRegister
///     app file                FileOpen          app /Unregister, /Unregserver   AppUnregister
///     app /p file             FilePrint         app /Embedding                  m_bRunEmbedded
///     app /pt file printer driver port          app /Automation                 m_bRunAutomated
///                             FilePrintTo       app /dde                        FileDDE
///
/// A dash does for the slash. Only /p, /pt and /dde tell capital letters from small ones.
class AFX_CORE_CLASS CCommandLineInfo : public CObject
{
public:
    CCommandLineInfo();
    ~CCommandLineInfo() override;

    /// \param bFlag  the argument began with a dash or slash, which `pszParam` leaves out
    /// \param bLast  no argument follows
    virtual void ParseParam(const TCHAR* pszParam, BOOL bFlag, BOOL bLast);
    virtual void ParseParam(const char* pszParam, BOOL bFlag, BOOL bLast);

    enum
    {
        FileNew,
        FileOpen,
        FilePrint,
        FilePrintTo,
        FileDDE,
        AppRegister,
        AppUnregister,
        FileNothing = -1
    } m_nShellCommand = FileNew;
    BOOL m_bShowSplash = TRUE; ///< neither embedded nor automated
    BOOL m_bRunEmbedded = FALSE;
    BOOL m_bRunAutomated = FALSE;
    CString m_strFileName;
    CString m_strPrinterName; ///< this and the next two: of FilePrintTo
    CString m_strDriverName;
    CString m_strPortName;

protected:
    void ParseParamFlag(const char* pszParam);
    void ParseParamNotFlag(const TCHAR* pszParam);
    void ParseParamNotFlag(const char* pszParam) { ParseParamNotFlag(CString(pszParam).GetString()); }
    void ParseLast(BOOL bLast);
};

/// The application. A program defines one object of a derived class at file scope; see winmain.cpp.
///
/// Help: F1 in a dialog, or a command ID_HELP that the program's map gives to OnHelp, sends WM_COMMANDHELP to the
/// active window and its owners until one knows its help context and calls WinHelpInternal; if none does, the
/// command ID_DEFAULT_HELP follows. EnableHtmlHelp in the constructor chooses HTML Help and the .chm file.
class AFX_CORE_CLASS CWinApp : public CWinThread
{
    DECLARE_DYNAMIC(CWinApp)

public:
    explicit CWinApp(LPCTSTR lpszAppName = nullptr);
    ~CWinApp() override;
    CWinApp(const CWinApp&) = delete;
    CWinApp& operator=(const CWinApp&) = delete;

    HINSTANCE m_hInstance = nullptr;
    LPTSTR m_lpCmdLine = nullptr;
    int m_nCmdShow = SW_SHOWNORMAL;
    LPCTSTR m_pszAppName = nullptr;      ///< from the constructor, else the executable's name; malloc'ed
    LPCTSTR m_pszExeName = nullptr;      ///< executable without path and extension; malloc'ed
    LPCTSTR m_pszRegistryKey = nullptr;  ///< company key of the profile; null for an .ini file; malloc'ed
    LPCTSTR m_pszProfileName = nullptr;  ///< .ini file, or the program's key below the company's; malloc'ed
    LPCTSTR m_pszHelpFilePath = nullptr; ///< the executable's with the extension .HLP or .CHM; malloc'ed
    AFX_HELP_TYPE m_eHelpType = afxWinHelp;
    DWORD m_dwPromptContext = 0; ///< help context of the message box that is open
    UINT m_nNumPreviewPages = 0; ///< from the profile, by LoadStdProfileSettings

    // Resources of the chain; the handles belong to the system as with the Win32 functions
    HCURSOR LoadCursor(LPCTSTR lpszResourceName) const;
    HCURSOR LoadCursor(UINT nIDResource) const { return LoadCursor(MAKEINTRESOURCE(nIDResource)); }
    HCURSOR LoadStandardCursor(LPCTSTR lpszCursorName) const { return ::LoadCursor(nullptr, lpszCursorName); }
    HCURSOR LoadOEMCursor(UINT nIDCursor) const { return ::LoadCursor(nullptr, MAKEINTRESOURCE(nIDCursor)); }
    HICON LoadIcon(LPCTSTR lpszResourceName) const;
    HICON LoadIcon(UINT nIDResource) const { return LoadIcon(MAKEINTRESOURCE(nIDResource)); }
    HICON LoadStandardIcon(LPCTSTR lpszIconName) const { return ::LoadIcon(nullptr, lpszIconName); }
    HICON LoadOEMIcon(UINT nIDIcon) const { return ::LoadIcon(nullptr, MAKEINTRESOURCE(nIDIcon)); }

    // Profile: below HKEY_CURRENT_USER\Software\<registry key>\<profile name> once SetRegistryKey was called,
    // else in the .ini file m_pszProfileName.
    UINT GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault);
    BOOL WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue);
    CString GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault = nullptr);
    /// A null entry deletes the section, a null value the entry.
    BOOL WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue);
    /// The data is allocated by new[] and becomes the caller's; null and 0 when there is none.
    BOOL GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes);
    BOOL WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes);
    /// Keys are made when missing; the caller closes them. Null on failure.
    HKEY GetAppRegistryKey();
    HKEY GetSectionKey(LPCTSTR lpszSection);
    LONG DelRegTree(HKEY hParentKey, const CString& strKeyName);

    /// Offers each argument of the program's command line to `rCmdInfo`.
    void ParseCommandLine(CCommandLineInfo& rCmdInfo);

    // Help
    void EnableHtmlHelp() { SetHelpMode(afxHTMLHelp); } ///< in the constructor
    void SetHelpMode(AFX_HELP_TYPE eHelpType) { m_eHelpType = eHelpType; }
    AFX_HELP_TYPE GetHelpMode() { return m_eHelpType; }
    /// Each shows the help file through the main window. `nCmd` is a HELP_ value for WinHelp, an HH_ value for
    /// HtmlHelp, whose default is a help context; WinHelpInternal takes HELP_CONTEXT, HELP_CONTENTS or HELP_FINDER
    /// and calls the one that the help type says.
    virtual void WinHelp(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);
    virtual void HtmlHelp(DWORD_PTR dwData, UINT nCmd = 0x000F);
    virtual void WinHelpInternal(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);
    afx_msg void OnHelp();       ///< for ID_HELP: help about what the user is at
    afx_msg void OnHelpIndex();  ///< for ID_HELP_INDEX
    afx_msg void OnHelpFinder(); ///< for ID_HELP_FINDER and ID_DEFAULT_HELP
    afx_msg void OnHelpUsing();  ///< for ID_HELP_USING
    afx_msg void
    OnContextHelp(); ///< for ID_CONTEXT_HELP: the next click asks the main window about what is there

    virtual BOOL InitApplication() { return TRUE; }
    BOOL InitInstance() override { return TRUE; }
    int Run() override;
    int ExitInstance() override { return CWinThread::ExitInstance(); }
    BOOL OnIdle(LONG lCount) override { return CWinThread::OnIdle(lCount); }
    LRESULT ProcessWndProcException(CException* e, const MSG* pMsg) override;

    /// What AfxMessageBox does: chooses an icon when none was named, and an owner.
    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);
    /// nCode: 1 begin, -1 end, 0 restore.
    virtual void DoWaitCursor(int nCode);
    void HideApplication();

protected:
    friend AFX_CORE_API BOOL AFXAPI AfxWinInit(HINSTANCE, HINSTANCE, LPTSTR, int);

    void SetRegistryKey(LPCTSTR lpszRegistryKey);
    void SetRegistryKey(UINT nIDRegistryKey);
    /// Reads m_nNumPreviewPages from the profile. There is no list of recent files, and `nMaxMRU` changes nothing.
    void LoadStdProfileSettings(UINT nMaxMRU = _AFX_MRU_COUNT);
    void SetCurrentHandles();

    afx_msg void OnAppExit();

    int m_nWaitCursorCount = 0;
    HCURSOR m_hcurWaitCursorRestore = nullptr;

    DECLARE_MESSAGE_MAP()
};

/// Shows the wait cursor until the end of the scope.
class CWaitCursor
{
public:
    AFX_CORE_API CWaitCursor();
    AFX_CORE_API ~CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;
    AFX_CORE_API void Restore();
};

AFX_CORE_API CWinThread* AFXAPI AfxGetThread();
AFX_CORE_API CWinApp* AFXAPI AfxGetApp();
AFX_CORE_API CWnd* AFXAPI AfxGetMainWnd();
AFX_CORE_API LPCTSTR AFXAPI AfxGetAppName();

// ---------------------------------------------------------------------------------------------------------
// Start and end of the program

/// Called once, before any window is made; AfxWinMain does it for programs that start there.
AFX_CORE_API BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine,
                                    int nCmdShow);
AFX_CORE_API int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine,
                                   int nCmdShow);
AFX_CORE_API void AFXAPI AfxWinTerm();
AFX_CORE_API void AFXAPI AfxPostQuitMessage(int nExitCode);

// The steps of the message loop, for loops of one's own
AFX_CORE_API BOOL AFXAPI AfxPumpMessage();
AFX_CORE_API BOOL AFXAPI AfxPreTranslateMessage(MSG* pMsg);
AFX_CORE_API BOOL AFXAPI AfxIsIdleMessage(MSG* pMsg);
AFX_CORE_API LRESULT AFXAPI AfxProcessWndProcException(CException* e, const MSG* pMsg);

// ---------------------------------------------------------------------------------------------------------
// Resources

AFX_CORE_API HINSTANCE AFXAPI AfxGetInstanceHandle();
AFX_CORE_API HINSTANCE AFXAPI AfxGetResourceHandle();
AFX_CORE_API void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource);

/// The module that has the resource: the current resource handle's, then the extension modules from the
/// latest to the earliest, system ones last. The current resource handle when none has it.
AFX_CORE_API HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType);
AFX_CORE_API HINSTANCE AFXAPI AfxFindStringResourceHandle(UINT nID);
/// Characters loaded, without the closing zero; 0 and an empty text when there is no such string.
AFX_CORE_API int AFXAPI AfxLoadString(UINT nIDS, LPTSTR lpszBuf, UINT nMaxBuf = 256);

inline HINSTANCE AFXAPI AfxLoadLibrary(LPCTSTR lpszModuleName)
{
    return ::LoadLibrary(lpszModuleName);
}
inline BOOL AFXAPI AfxFreeLibrary(HINSTANCE hInstLib)
{
    return ::FreeLibrary(hInstLib);
}

// ---------------------------------------------------------------------------------------------------------
// Extension modules

/// What an extension module keeps about itself; a global object of the module, zeroed before use.
struct AFX_EXTENSION_MODULE
{
    BOOL bInitialized;
    HMODULE hModule;
    HMODULE hResource;
    CRuntimeClass* pFirstSharedClass;
    class COleObjectFactory* pFirstSharedFactory;
};

/// To be called at process attach. FALSE when the module could not be taken up.
AFX_CORE_API BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule);
/// To be called at process detach: deletes the module's CDynLinkLibrary, or with `bAll` those of all modules.
AFX_CORE_API void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);

/// Makes the resources of an extension module visible to the chain. Made with `new` at process attach; it
/// links itself in front of the chain, and AfxTermExtensionModule deletes it.
class AFX_CORE_CLASS CDynLinkLibrary : public CCmdTarget
{
    DECLARE_DYNAMIC(CDynLinkLibrary)

public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem = FALSE);
    CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource);
    ~CDynLinkLibrary() override;

    HMODULE m_hModule;
    HMODULE m_hResource;
    BOOL m_bSystem; ///< searched after the others
};

// ---------------------------------------------------------------------------------------------------------
// Message boxes

/// Answers the button's id, or 0 when the box could not be shown.
AFX_CORE_API int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
AFX_CORE_API int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = (UINT)-1);

// ---------------------------------------------------------------------------------------------------------
// Windows: classes, procedure, creation hook, handle maps

/// Registers a class for windows of the framework and answers its name, which is valid until the next call on
/// the thread. Equal arguments give the same class. Throws CResourceException when it cannot be registered.
AFX_CORE_API LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr,
                                                HBRUSH hbrBackground = nullptr, HICON hIcon = nullptr);
/// Registers a class unless it is registered already.
AFX_CORE_API BOOL AFXAPI AfxRegisterClass(WNDCLASS* lpWndClass);

/// The procedure of every window that belongs to a CWnd.
AFX_CORE_API LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
AFX_CORE_API WNDPROC AFXAPI AfxGetAfxWndProc();
/// Gives a message to the object, notes it for Default and GetCurrentMessage, and catches exceptions.
AFX_CORE_API LRESULT AFXAPI AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam = 0,
                                           LPARAM lParam = 0);

/// The next window that this thread makes is attached to the object and subclassed before its first message.
AFX_CORE_API void AFXAPI AfxHookWindowCreate(CWnd* pWnd);
/// Ends that; FALSE when no window was made in between.
AFX_CORE_API BOOL AFXAPI AfxUnhookWindowCreate();

/// Keeps the temporary objects of the handle maps alive over a nested message loop. Counted.
AFX_CORE_API void AFXAPI AfxLockTempMaps();
AFX_CORE_API BOOL AFXAPI AfxUnlockTempMaps(BOOL bDeleteTemps = TRUE);

// ---------------------------------------------------------------------------------------------------------
// Diagnostics

#define AFX_STACK_DUMP_TARGET_TRACE 0x0001     // TRACE output
#define AFX_STACK_DUMP_TARGET_CLIPBOARD 0x0002 // text on the clipboard
#define AFX_STACK_DUMP_TARGET_BOTH 0x0003      // both
#define AFX_STACK_DUMP_TARGET_ODS 0x0004       // OutputDebugString
#ifdef _DEBUG
#define AFX_STACK_DUMP_TARGET_DEFAULT AFX_STACK_DUMP_TARGET_TRACE
#else
#define AFX_STACK_DUMP_TARGET_DEFAULT AFX_STACK_DUMP_TARGET_CLIPBOARD
#endif

/// Writes the calling thread's stack: a line for each frame with module and symbol where symbols are found,
/// else with module and offset. A busy clipboard leaves that target out.
AFX_CORE_API void AFXAPI AfxDumpStack(DWORD dwTarget = AFX_STACK_DUMP_TARGET_DEFAULT);
