// The entry point of every test program: an MFC application in a console program. One that ends in the middle of its
// work says why on standard error, and ends with a code other than 0: an exception that nobody handles, abort, a call
// of exit or ExitProcess. Two ends are beyond it, and may come with code 0: TerminateProcess, and a full stack under
// Wine, which tells only Wine's own log (WINEDEBUG=err+virtual). So CTest goes by a last line and not by the code: the
// program writes it where every test has passed, as the process ends.

#include "ChildProcess.h"
#include "Input.h"

#include <afxwin.h>

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <string>

#ifdef OW_CHECK
#include "check/FaultReport.h"
#endif

namespace
{
CWinApp theApp;
const char* s_lastLine = nullptr; ///< none while the tests run

class RestBeforeEachTest : public ::testing::EmptyTestEventListener
{
    void OnTestStart(const ::testing::TestInfo&) override { owtest::Rest(); }
};

[[noreturn]] void TellTheEnd(const char* why)
{
    const ::testing::TestInfo* test = ::testing::UnitTest::GetInstance()->current_test_info();
    std::fflush(stdout);
    const std::string place =
        test ? std::string("in ") + test->test_suite_name() + '.' + test->name() : "outside of its tests";
    std::fprintf(stderr, "The program ends %s: %s.\n", place.c_str(), why);
    std::fflush(stderr);
    ::TerminateProcess(::GetCurrentProcess(), 3); // as abort does
    std::abort();
}

LONG WINAPI OnException(EXCEPTION_POINTERS* exception)
{
    const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
    HMODULE module = nullptr;
    char path[MAX_PATH] = "no module";
    if (::GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                                 GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                             static_cast<const char*>(record.ExceptionAddress), &module))
        ::GetModuleFileNameA(module, path, MAX_PATH);
    char why[MAX_PATH + 64];
    std::snprintf(why, sizeof(why), "exception %08lX at %p in %s (at %p)", record.ExceptionCode,
                  record.ExceptionAddress, path, static_cast<void*>(module));
    TellTheEnd(why);
}

void NTAPI OnProcessEnd(void*)
{
    if (!s_lastLine)
        TellTheEnd("exit or ExitProcess was called");
    std::puts(s_lastLine);
    std::fflush(stdout);
}

void WatchForTheEnd()
{
    ::SetUnhandledExceptionFilter(&OnException);
    std::signal(SIGABRT, [](int) { TellTheEnd("abort was called"); });
    // The system calls this at the end of the process, exit and ExitProcess alike, and before any module goes.
    ::FlsSetValue(::FlsAlloc(&OnProcessEnd), &s_lastLine);
}
} // namespace

int main(int argc, char** argv)
{
    if (!AfxWinInit(GetModuleHandle(nullptr), nullptr, GetCommandLine(), SW_SHOW))
    {
        std::fputs("AfxWinInit failed\n", stderr);
        return 1;
    }
    if (argc == 3 && std::string_view(argv[1]) == owtest::kChildArgument)
        return owtest::RunScenario(argv[2]);

    ::testing::InitGoogleTest(&argc, argv);
    ::testing::UnitTest::GetInstance()->listeners().Append(new RestBeforeEachTest); // the list owns it
    WatchForTheEnd();
#ifdef OW_CHECK
    owtest::ReportFaults();
#endif
    const int result = RUN_ALL_TESTS();
    s_lastLine = result == 0 ? "All tests have run, and none failed." : "Tests failed.";
    return result;
}
