// The command line of the program.

#include <afxwin.h>

CCommandLineInfo::CCommandLineInfo() = default;
CCommandLineInfo::~CCommandLineInfo() = default;

void CCommandLineInfo::ParseParam(const TCHAR* pszParam, BOOL bFlag, BOOL bLast)
{
    if (bFlag)
        ParseParamFlag(CStringA(pszParam)); // the flags are plain letters
    else
        ParseParamNotFlag(pszParam);
    ParseLast(bLast);
}

void CCommandLineInfo::ParseParam(const char* pszParam, BOOL bFlag, BOOL bLast)
{
    if (bFlag)
        ParseParamFlag(pszParam);
    else
        ParseParamNotFlag(pszParam);
    ParseLast(bLast);
}

void CCommandLineInfo::ParseParamFlag(const char* pszParam)
{
    const auto is = [pszParam](const char* flag) { return strcmp(pszParam, flag) == 0; };
    const auto isInAnyCase = [pszParam](const char* flag) { return _stricmp(pszParam, flag) == 0; };
    if (is("pt"))
        m_nShellCommand = FilePrintTo;
    else if (is("p"))
        m_nShellCommand = FilePrint;
    else if (is("dde"))
        m_nShellCommand = FileDDE;
    else if (isInAnyCase("Register") || isInAnyCase("Regserver"))
        m_nShellCommand = AppRegister;
    else if (isInAnyCase("Unregister") || isInAnyCase("Unregserver"))
        m_nShellCommand = AppUnregister;
    else if (isInAnyCase("Embedding"))
        m_bRunEmbedded = TRUE;
    else if (isInAnyCase("Automation"))
        m_bRunAutomated = TRUE;
}

void CCommandLineInfo::ParseParamNotFlag(const TCHAR* pszParam)
{
    if (m_strFileName.IsEmpty())
        m_strFileName = pszParam;
    else if (m_nShellCommand != FilePrintTo)
        return;
    else if (m_strPrinterName.IsEmpty())
        m_strPrinterName = pszParam;
    else if (m_strDriverName.IsEmpty())
        m_strDriverName = pszParam;
    else if (m_strPortName.IsEmpty())
        m_strPortName = pszParam;
}

void CCommandLineInfo::ParseLast(BOOL bLast)
{
    if (!bLast)
        return;
    if (m_nShellCommand == FileNew && !m_strFileName.IsEmpty())
        m_nShellCommand = FileOpen;
    m_bShowSplash = !m_bRunEmbedded && !m_bRunAutomated;
}

void CWinApp::ParseCommandLine(CCommandLineInfo& rCmdInfo)
{
    int count = 0;
    LPWSTR* const arguments = ::CommandLineToArgvW(::GetCommandLine(), &count);
    for (int index = 1; index < count; ++index)
    {
        LPCTSTR const argument = arguments[index];
        const bool isFlag = argument[0] == L'-' || argument[0] == L'/';
        rCmdInfo.ParseParam(argument + isFlag, isFlag, index + 1 == count);
    }
    ::LocalFree(arguments);
}
