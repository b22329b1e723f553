#include "ChildProcess.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string_view>

namespace owtest
{
namespace
{
#ifdef OW_CHECK
constexpr ULONGLONG kPatience = 4; // the report of a fatal assertion reads the symbols of all modules
#else
constexpr ULONGLONG kPatience = 1;
#endif

std::map<std::string, ScenarioFunction, std::less<>>& Scenarios()
{
    static std::map<std::string, ScenarioFunction, std::less<>> scenarios;
    return scenarios;
}

struct HandleCloser
{
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using Handle = std::unique_ptr<void, HandleCloser>;

/// Our environment with the wanted changes, as CreateProcess takes it.
std::wstring EnvironmentBlock(const ChildOptions& options)
{
    const auto before = [](const std::wstring& left, const std::wstring& right)
    { return _wcsicmp(left.c_str(), right.c_str()) < 0; };
    std::map<std::wstring, std::wstring, decltype(before)> variables(before);
    wchar_t* const strings = GetEnvironmentStringsW();
    for (const wchar_t* entry = strings; *entry; entry += std::wcslen(entry) + 1)
    {
        const wchar_t* const value = std::wcschr(entry + 1, L'='); // a name may begin with one, too
        variables[{entry, value}] = value;
    }
    FreeEnvironmentStringsW(strings);
    for (const std::wstring& name : options.unset)
        variables.erase(name);
    for (const auto& [name, value] : options.environment)
        variables[name] = L'=' + value;
    std::wstring block;
    for (const auto& [name, value] : variables)
        block += name + value + L'\0';
    return block + L'\0';
}

std::wstring WindowText(HWND window)
{
    wchar_t text[4096] = {};
    GetWindowTextW(window, text, static_cast<int>(std::size(text)));
    return text;
}

/// The message box of the process; null if none stands.
HWND FindBox(DWORD processId)
{
    HWND box = nullptr;
    while ((box = FindWindowExW(nullptr, box, L"#32770", nullptr)))
        if (DWORD owner = 0;
            GetWindowThreadProcessId(box, &owner), owner == processId && IsWindowVisible(box))
            break;
    return box;
}

/// Reads the message box of the process, if one stands, and closes it.
void AnswerBox(DWORD processId, ChildResult& result)
{
    const HWND box = FindBox(processId);
    constexpr int kTextOfBox = 0xFFFF; // dialogs of the child's own have none
    const std::wstring text = WindowText(GetDlgItem(box, kTextOfBox));
    if (text.empty())
        return; // there is none, or it is still being filled
    result.boxCaption = WindowText(box);
    result.boxText = text;
    PostMessageW(box, WM_COMMAND, IDOK, 0);
}

/// Takes what the child has written so far: a full pipe would stop it.
void ReadOutput(HANDLE pipe, ChildResult& result)
{
    char buffer[4096];
    DWORD waiting = 0, read = 0;
    while (PeekNamedPipe(pipe, nullptr, 0, nullptr, &waiting, nullptr) && waiting &&
           ReadFile(pipe, buffer, sizeof(buffer), &read, nullptr))
        result.output.append(buffer, read);
}

/// Lets the child run under our eyes; true when it has ended.
bool ServeDebugEvents(DWORD processId, ChildResult& result, int& breakpoints)
{
    DEBUG_EVENT event;
    while (WaitForDebugEvent(&event, 20))
    {
        DWORD answer = DBG_CONTINUE;
        bool ended = false;
        switch (event.dwDebugEventCode)
        {
        case EXCEPTION_DEBUG_EVENT:
            if (event.u.Exception.ExceptionRecord.ExceptionCode != EXCEPTION_BREAKPOINT)
                answer = DBG_EXCEPTION_NOT_HANDLED;
            else if (++breakpoints > 1) // the first is the loader's own
                result.brokeIntoDebugger = true;
            if (!event.u.Exception.dwFirstChance)
                std::fprintf(stderr, "The child ends by exception %08lX.\n",
                             event.u.Exception.ExceptionRecord.ExceptionCode);
            break;
        case CREATE_PROCESS_DEBUG_EVENT:
            Handle(event.u.CreateProcessInfo.hFile);
            break;
        case LOAD_DLL_DEBUG_EVENT:
            Handle(event.u.LoadDll.hFile);
            break;
        case EXIT_PROCESS_DEBUG_EVENT:
            result.exitCode = event.u.ExitProcess.dwExitCode;
            ended = event.dwProcessId == processId;
            break;
        }
        ContinueDebugEvent(event.dwProcessId, event.dwThreadId, answer);
        if (ended)
            return true;
    }
    return false;
}
} // namespace

ScenarioRegistration::ScenarioRegistration(const char* name, ScenarioFunction function)
{
    Scenarios()[name] = function;
}

int RunScenario(const char* name)
{
    auto found = Scenarios().find(std::string_view(name));
    if (found == Scenarios().end())
    {
        std::fprintf(stderr, "There is no scenario %s.\n", name);
        return 97;
    }
    found->second();
    std::fflush(stdout);
    return 0;
}

std::wstring ProgramPath()
{
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return path;
}

ChildResult RunChild(const char* scenario, const ChildOptions& options)
{
    ChildResult result;
    const std::wstring program = options.program.empty() ? ProgramPath() : options.program;
    std::string narrow = std::string(kChildArgument) + ' ' + scenario;
    std::wstring command = L'"' + program + L"\" " + std::wstring(narrow.begin(), narrow.end());

    SECURITY_ATTRIBUTES inherit{sizeof(inherit), nullptr, TRUE};
    HANDLE ends[2];
    if (!CreatePipe(&ends[0], &ends[1], &inherit, 0))
        return result;
    Handle readEnd(ends[0]), writeEnd(ends[1]);
    SetHandleInformation(ends[0], HANDLE_FLAG_INHERIT, 0);

    STARTUPINFOW start{};
    start.cb = sizeof(start);
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdOutput = writeEnd.get();
    start.hStdError = GetStdHandle(STD_ERROR_HANDLE);
    PROCESS_INFORMATION created{};
    std::wstring environment = EnvironmentBlock(options);
    const DWORD flags = DEBUG_ONLY_THIS_PROCESS | CREATE_UNICODE_ENVIRONMENT;
    const auto create = [&]
    {
        return CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, flags, environment.data(),
                              options.directory.empty() ? nullptr : options.directory.c_str(), &start,
                              &created);
    };
    // Wine maps some pages of a new process at fixed addresses, where now and then the system has put its own.
    bool started = create();
    for (int retry = 0; !started && GetLastError() == ERROR_INTERNAL_ERROR && retry < 3; ++retry)
        started = create();
    if (!started)
    {
        std::fprintf(stderr, "The child for %s did not start: error %lu.\n", scenario, GetLastError());
        return result;
    }
    Handle process(created.hProcess), thread(created.hThread);
    writeEnd.reset();
    result.started = true;

    const ULONGLONG deadline = GetTickCount64() + kPatience * options.timeoutMs;
    int breakpoints = 0;
    while (!ServeDebugEvents(created.dwProcessId, result, breakpoints))
    {
        ReadOutput(readEnd.get(), result);
        if (result.boxText.empty())
            AnswerBox(created.dwProcessId, result);
        if (GetTickCount64() > deadline)
        {
            result.timedOut = true;
            std::fprintf(stderr, "The child for %s did not end in time.\n", scenario);
            TerminateProcess(created.hProcess, 98);
        }
    }

    ReadOutput(readEnd.get(), result);
    return result;
}
} // namespace owtest
