#include "ChildProcess.h"
#include "ChildScenario.h"

#include <cstdio>
#include <map>
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

/// A handle that is closed when it goes out of scope.
class Handle
{
public:
    explicit Handle(HANDLE handle = nullptr) : m_handle(handle) {}
    ~Handle() { Close(); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    void Close()
    {
        if (m_handle)
            CloseHandle(m_handle);
        m_handle = nullptr;
    }
    HANDLE get() const { return m_handle; }
    HANDLE* put() { return &m_handle; }

private:
    HANDLE m_handle;
};

struct NoCaseLess
{
    bool operator()(const std::wstring& a, const std::wstring& b) const
    {
        return _wcsicmp(a.c_str(), b.c_str()) < 0;
    }
};

/// Our environment with the wanted changes, as CreateProcess takes it.
std::wstring EnvironmentBlock(const ChildOptions& options)
{
    std::map<std::wstring, std::wstring, NoCaseLess> variables;
    wchar_t* strings = GetEnvironmentStringsW();
    for (const wchar_t* p = strings; *p; p += std::wcslen(p) + 1)
    {
        std::wstring_view entry(p);
        size_t split = entry.find(L'=', 1);
        if (split != std::wstring_view::npos)
            variables[std::wstring(entry.substr(0, split))] = entry.substr(split + 1);
    }
    FreeEnvironmentStringsW(strings);

    for (const std::wstring& name : options.unset)
        variables.erase(name);
    for (const auto& [name, value] : options.environment)
        variables[name] = value;

    std::wstring block;
    for (const auto& [name, value] : variables)
        block += name + L'=' + value + L'\0';
    return block + L'\0';
}

std::wstring WindowText(HWND window)
{
    wchar_t text[4096] = {};
    GetWindowTextW(window, text, static_cast<int>(std::size(text)));
    return text;
}

BOOL CALLBACK FindBox(HWND window, LPARAM param)
{
    wchar_t name[32] = {};
    GetClassNameW(window, name, static_cast<int>(std::size(name)));
    auto& search = *reinterpret_cast<std::pair<DWORD, HWND>*>(param);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process != search.first || std::wcscmp(name, L"#32770") != 0 || !IsWindowVisible(window))
        return TRUE;
    search.second = window;
    return FALSE;
}

/// Reads the message box of the process, if one stands, and closes it.
void AnswerBox(DWORD processId, ChildResult& result)
{
    std::pair<DWORD, HWND> search{processId, nullptr};
    EnumWindows(FindBox, reinterpret_cast<LPARAM>(&search));
    if (!search.second)
        return;

    constexpr int kTextOfBox = 0xFFFF; // dialogs of the child's own have none
    const HWND label = GetDlgItem(search.second, kTextOfBox);
    const std::wstring text = label ? WindowText(label) : L"";
    if (text.empty())
        return; // still being filled
    result.boxCaption = WindowText(search.second);
    result.boxText = text;
    PostMessageW(search.second, WM_COMMAND, IDOK, 0);
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
            if (event.u.CreateProcessInfo.hFile)
                CloseHandle(event.u.CreateProcessInfo.hFile);
            break;
        case LOAD_DLL_DEBUG_EVENT:
            if (event.u.LoadDll.hFile)
                CloseHandle(event.u.LoadDll.hFile);
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
    Handle readEnd, writeEnd;
    if (!CreatePipe(readEnd.put(), writeEnd.put(), &inherit, 0))
        return result;
    SetHandleInformation(readEnd.get(), HANDLE_FLAG_INHERIT, 0);

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
                              options.directory.empty() ? nullptr : options.directory.c_str(), &start, &created);
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
    writeEnd.Close();
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
