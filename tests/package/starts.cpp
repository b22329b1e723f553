// Starts a program, closes its window, and ends as the program did.
//
//     package_starts TITLE PROGRAM [ARGUMENT]

#include <cstdio>
#include <string>

#include <windows.h>

#include <process.h>

int wmain(int argc, wchar_t** argv)
{
    constexpr DWORD kPatience = 120000; // ms, on a busy machine
    const std::wstring name = L'"' + std::wstring(argc > 2 ? argv[2] : L"") + L'"';
    const auto process = argc > 2 ? ::_wspawnl(_P_NOWAIT, argv[2], name.c_str(), argv[3], nullptr) : -1;
    const auto hProcess = reinterpret_cast<HANDLE>(process);
    const auto fail = [&](const wchar_t* why)
    {
        std::fwprintf(stderr, L"package_starts: %ls\n", why);
        ::TerminateProcess(hProcess, 1);
        return 1;
    };
    if (process == -1)
        return fail(L"the program cannot be started");

    HWND window = nullptr;
    const ULONGLONG begin = ::GetTickCount64();
    do
    {
        if (::WaitForSingleObject(hProcess, 50) == WAIT_OBJECT_0)
            return fail(L"the program ends before it shows its window");
        window = ::FindWindowW(nullptr, argv[1]);
    } while (!(window && ::IsWindowVisible(window)) && ::GetTickCount64() - begin < kPatience);
    if (!window)
        return fail(L"the program shows no window of this title");
    ::PostMessageW(window, WM_CLOSE, 0, 0);
    if (::WaitForSingleObject(hProcess, kPatience) != WAIT_OBJECT_0)
        return fail(L"the program does not end");
    DWORD code = 1;
    ::GetExitCodeProcess(hProcess, &code);
    return static_cast<int>(code);
}
