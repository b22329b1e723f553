// For test programs of a build with OW_CHECK: names the place of a trap, and looks at the whole heap after each test.

#include "FaultReport.h"

#include <windows.h>

#include <gtest/gtest.h>
#include <malloc.h>

namespace
{
/// A trap ends the program; what it was is read from the place in the source.
LONG CALLBACK NameTheTrap(EXCEPTION_POINTERS* pException)
{
    const EXCEPTION_RECORD& record = *pException->ExceptionRecord;
    if (record.ExceptionCode != STATUS_ILLEGAL_INSTRUCTION)
        return EXCEPTION_CONTINUE_SEARCH;

    HMODULE hModule = nullptr;
    ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                             GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         static_cast<const wchar_t*>(record.ExceptionAddress), &hModule);
    wchar_t path[MAX_PATH] = {};
    ::GetModuleFileNameW(hModule, path, MAX_PATH);
    const wchar_t* name = std::wcsrchr(path, L'\\');
    const auto place =
        reinterpret_cast<std::uintptr_t>(record.ExceptionAddress) - reinterpret_cast<std::uintptr_t>(hModule);
    std::fprintf(stderr, "check: undefined behaviour in %ls at %#llx\n", name ? name + 1 : path,
                 static_cast<unsigned long long>(place));
    std::fflush(stderr);
    return EXCEPTION_CONTINUE_SEARCH;
}

class HeapAfterEachTest : public testing::EmptyTestEventListener
{
    void OnTestEnd(const testing::TestInfo&) override
    {
        EXPECT_TRUE(::HeapValidate(reinterpret_cast<HANDLE>(::_get_heap_handle()), 0, nullptr))
            << "the heap is damaged";
    }
};
} // namespace

void owtest::ReportFaults()
{
    ::AddVectoredExceptionHandler(0, &NameTheTrap);
    testing::UnitTest::GetInstance()->listeners().Append(new HeapAfterEachTest); // GoogleTest's from here on
}
