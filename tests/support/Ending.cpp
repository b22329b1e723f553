#include "Ending.h"

#include <csignal>
#include <cstdio>

#include <windows.h>

namespace owtest
{
namespace
{
constexpr UINT kExitCode = 3; // as that of abort

std::string (*s_where)() = nullptr; ///< none: the program may end

[[noreturn]] void Tell(const char* why)
{
    std::fflush(stdout);
    std::fprintf(stderr, "The program ends %s: %s.\n", s_where().c_str(), why);
    std::fflush(stderr);
    TerminateProcess(GetCurrentProcess(), kExitCode);
    std::abort();
}

LONG WINAPI OnException(EXCEPTION_POINTERS* exception)
{
    const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
    HMODULE module = nullptr;
    char path[MAX_PATH] = "no module";
    if (GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                               GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                           static_cast<const char*>(record.ExceptionAddress), &module))
        GetModuleFileNameA(module, path, MAX_PATH);
    char why[MAX_PATH + 64];
    std::snprintf(why, sizeof(why), "exception %08lX at %p in %s (at %p)", record.ExceptionCode,
                  record.ExceptionAddress, path, static_cast<void*>(module));
    Tell(why);
}

void NTAPI OnProcessEnd(void*)
{
    if (s_where)
        Tell("exit or ExitProcess was called");
}
} // namespace

EndingGuard::EndingGuard(std::string (*where)())
{
    s_where = where;
    SetUnhandledExceptionFilter(OnException);
    std::signal(SIGABRT, [](int) { Tell("abort was called"); });
    // The system calls this at the end of the process, exit and ExitProcess alike, and before any module goes.
    FlsSetValue(FlsAlloc(OnProcessEnd), &s_where);
}

EndingGuard::~EndingGuard()
{
    s_where = nullptr;
}
} // namespace owtest
