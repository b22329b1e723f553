// Starts a program, closes its window, and ends as the program did.
//
//     package_starts TITLE PROGRAM [ARGUMENT]

#include <cstdio>
#include <string>

#include <windows.h>

#include <process.h>

int wmain(int, wchar_t** argv)
{
    constexpr DWORD kPatience = 120000; // ms, on a busy machine
    const std::wstring name = L'"' + std::wstring(argv[2]) + L'"';
    const auto process = ::_wspawnl(_P_NOWAIT, argv[2], name.c_str(), argv[3], nullptr);
    const auto hProcess = reinterpret_cast<HANDLE>(process);
    HWND window = nullptr;
    const ULONGLONG end = ::GetTickCount64() + kPatience;
    while (process != -1 && !(window && ::IsWindowVisible(window)) && ::GetTickCount64() < end &&
           ::WaitForSingleObject(hProcess, 50) == WAIT_TIMEOUT)
        window = ::FindWindowW(nullptr, argv[1]);
    ::PostMessageW(window, WM_CLOSE, 0, 0);
    DWORD code = 1;
    if (!window || ::WaitForSingleObject(hProcess, kPatience) != WAIT_OBJECT_0)
    {
        std::fputws(L"package_starts: the program does not start, show a window of this title, or end\n",
                    stderr);
        std::fflush(stderr);
        ::TerminateProcess(hProcess, 1); // ours, where there is no other
        return 1;
    }
    ::GetExitCodeProcess(hProcess, &code);
    return static_cast<int>(code);
}
