#include <afxwin.h>

#include "module/AssertReport.h"

#include <direct.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

namespace
{
constexpr char kLogInRoot[] = "\\owserror.log";
constexpr char kLogInDirectory[] = "owserror.log";
constexpr size_t kTmpChars = 250;
constexpr size_t kMessageChars = 1024;

struct CloseLog
{
    void operator()(FILE* file) const { std::fclose(file); }
};
using LogFile = std::unique_ptr<FILE, CloseLog>;

void GoToTmpDirectory()
{
    char tmp[kTmpChars];
    size_t length;
    if (getenv_s(&length, tmp, sizeof(tmp), "TMP") == 0)
        _chdir(tmp); // changes nothing where there is no value
}

/// The log, opened for appending; null where neither place can be written.
LogFile OpenLog()
{
    for (const char* path : {kLogInRoot, kLogInDirectory})
    {
        FILE* file = nullptr;
        if (fopen_s(&file, path, "a+t") == 0 && file)
            return LogFile(file);
    }
    return nullptr;
}

void WriteFailure(FILE* log, const char* expression, const char* source, int line)
{
    std::fprintf(log, "##### BEGINING OF STACK DUMP\n\n");
    SYSTEMTIME now;
    GetLocalTime(&now);
    std::fprintf(log, "Date [%02d.%02d.%04d]\n", now.wDay, now.wMonth, now.wYear);
    std::fprintf(log, "Local System Time [%02d:%02d]\n\n", now.wHour, now.wMinute);
    std::fprintf(log, "ASSERT(%s)\nFILE: %s\nLINE: %d\n\n", expression, source, line);
}

/// The text as a format that prints it: module paths and symbols may hold percent signs.
std::string AsFormat(const char* text)
{
    std::string format;
    for (; *text; ++text)
        format.append(*text == '%' ? 2 : 1, *text);
    return format;
}

/// Writes the clipboard's text, where the stack dump has been put. The user's former clipboard is lost by now.
void WriteStackFromClipboard(FILE* log)
{
    const bool opened = OpenClipboard(nullptr) != FALSE;
    const HANDLE data = opened ? GetClipboardData(CF_TEXT) : nullptr;
    if (const auto* text = data ? static_cast<const char*>(GlobalLock(data)) : nullptr)
    {
        std::fprintf(log, AsFormat(text).c_str());
        GlobalUnlock(data);
    }
    std::fprintf(log, "\n##### END OF STACK DUMP\n\n\n\n\n\n\n\n");
    if (opened)
        CloseClipboard();
}

void WriteReport(const char* expression, const char* source, int line)
{
    GoToTmpDirectory();
    if (const LogFile log = OpenLog())
        WriteFailure(log.get(), expression, source, line);
    else
        return;

    // Closed and opened again, so that the first half of the report stands even if the walk of the stack fails.
    const LogFile log = OpenLog();
    AfxDumpStack(AFX_STACK_DUMP_TARGET_CLIPBOARD);
    if (log)
        WriteStackFromClipboard(log.get());
}

[[noreturn]] void ShowAndEnd(const wchar_t* text, const wchar_t* caption)
{
    MessageBoxW(GetFocus(), text, caption, MB_ICONERROR | MB_SYSTEMMODAL);
    DebugBreak();
    ExitProcess(0);
}
} // namespace

void gfnReportFailedAssert(const char* expression, const char* source, int line)
{
    WriteReport(expression, source, line);
    wchar_t text[kMessageChars];
    _snwprintf_s(text, kMessageChars, _TRUNCATE, L"ASSERT(%hs)\n[%hs : %d]\n", expression, source, line);
    // The caption speaks of a log whether or not one could be written.
    ShowAndEnd(text, L"ASSERT FAILED - Error log \"owserror.log\" created.");
}

void gfnReportInternalError(const wchar_t* message, const char* messageSource, const char* source, int line)
{
    WriteReport(messageSource, source, line);
    wchar_t text[kMessageChars];
    _snwprintf_s(text, kMessageChars, _TRUNCATE, L"[%hs : %d]\n%ls", source, line, message);
    ShowAndEnd(text, L"INTERNAL ERROR - PROGRAM TERMINATES");
}
