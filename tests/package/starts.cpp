// Starts a program, closes its window, and ends as the program did.
//
//     package_starts TITLE PROGRAM [ARGUMENT]

#include <windows.h>

#include <cstdio>
#include <string>

namespace
{
int Fail(const wchar_t* why)
{
    std::fwprintf(stderr, L"package_starts: %ls\n", why);
    return 1;
}
} // namespace

int wmain(int argc, wchar_t** argv)
{
    constexpr DWORD kPatience = 120000; // ms, on a busy machine
    if (argc < 3)
        return Fail(L"a title and a program are wanted");
    std::wstring command = L"\"" + std::wstring(argv[2]) + L"\"";
    if (argc > 3)
        command += std::wstring(L" ") + argv[3];
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    if (!::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                          &process))
        return Fail(L"the program cannot be started");

    HWND window = nullptr;
    const ULONGLONG begin = ::GetTickCount64();
    do
    {
        if (::WaitForSingleObject(process.hProcess, 50) == WAIT_OBJECT_0)
            return Fail(L"the program ends before it shows its window");
        window = ::FindWindowW(nullptr, argv[1]);
    } while (!(window && ::IsWindowVisible(window)) && ::GetTickCount64() - begin < kPatience);
    if (!window)
    {
        ::TerminateProcess(process.hProcess, 1);
        return Fail(L"the program shows no window of this title");
    }
    ::PostMessageW(window, WM_CLOSE, 0, 0);
    if (::WaitForSingleObject(process.hProcess, kPatience) != WAIT_OBJECT_0)
    {
        ::TerminateProcess(process.hProcess, 1);
        return Fail(L"the program does not end");
    }
    DWORD code = 1;
    ::GetExitCodeProcess(process.hProcess, &code);
    return static_cast<int>(code);
}
