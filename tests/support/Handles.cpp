#include "Handles.h"

#include <malloc.h>

#include <algorithm>
#include <cstdint>
#include <vector>

namespace owtest
{
namespace
{
/// One entry of the process's table of GDI handles, to which its environment block points.
struct GdiEntry
{
    std::uint64_t object;
    WORD owner;
    WORD unused;
    WORD unique;
    WORD type;
    std::uint64_t userInfo;
};
static_assert(sizeof(GdiEntry) == 24);

constexpr size_t kGdiTableOffset = 0xF8; // of the process environment block
constexpr int kGdiTableSize = 0x4000;

const GdiEntry* GdiTable()
{
    // Through the system's own function: the compiler's access to the thread block draws a false warning.
    using GetBlock = const BYTE*(WINAPI*)();
    static const auto getBlock = reinterpret_cast<GetBlock>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll"), "RtlGetCurrentPeb")));
    const BYTE* block = getBlock();
    return *reinterpret_cast<const GdiEntry* const*>(block + kGdiTableOffset);
}

template <class Matches>
int CountEntries(Matches matches)
{
    const GdiEntry* table = GdiTable();
    int count = 0;
    for (int i = 0; i < kGdiTableSize; ++i)
        count += table[i].type != 0 && matches(table[i].type);
    return count;
}

BOOL CALLBACK CountChild(HWND, LPARAM count)
{
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

BOOL CALLBACK CountTopLevel(HWND window, LPARAM count)
{
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process == GetCurrentProcessId())
    {
        ++*reinterpret_cast<int*>(count);
        EnumChildWindows(window, CountChild, count);
    }
    return TRUE;
}

/// New user handles take free places first, the latest first. A batch that is larger than all the places that a
/// dialog has freed reaches as high as the leaks have pushed it.
int UserHandleWaterline()
{
    constexpr int kProbes = 1024;
    int highest = 0;
    std::vector<HMENU> probes;
    for (int i = 0; i < kProbes; ++i)
    {
        HMENU menu = CreateMenu();
        probes.push_back(menu);
        highest = std::max(highest, static_cast<int>(LOWORD(reinterpret_cast<std::uintptr_t>(menu))));
    }
    for (HMENU menu : probes)
        DestroyMenu(menu);
    return highest / 2;
}
} // namespace

int CountGdiObjects(int type)
{
    return CountEntries([&](WORD entry) { return (entry & 0x7F) == type; });
}

HandleCount CountHandles()
{
    HandleCount count;
    GdiFlush();
    count.gdi = CountEntries([](WORD) { return true; });
    EnumWindows(CountTopLevel, reinterpret_cast<LPARAM>(&count.windows));
    for (HWND only = FindWindowExW(HWND_MESSAGE, nullptr, nullptr, nullptr); only;
         only = FindWindowExW(HWND_MESSAGE, only, nullptr, nullptr))
    {
        DWORD process = 0;
        GetWindowThreadProcessId(only, &process);
        count.windows += process == GetCurrentProcessId();
    }
    count.user = UserHandleWaterline();
    return count;
}

size_t CountHeapBytes()
{
    size_t bytes = 0;
    HANDLE heap = GetProcessHeap();
    HeapLock(heap);
    PROCESS_HEAP_ENTRY entry{};
    while (HeapWalk(heap, &entry))
        if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)
            bytes += entry.cbData;
    HeapUnlock(heap);

    // The C run-time keeps a heap of its own unless it shares the process's.
    if (HANDLE cHeap = reinterpret_cast<HANDLE>(_get_heap_handle()); cHeap != heap)
    {
        _HEAPINFO info{};
        while (_heapwalk(&info) == _HEAPOK)
            if (info._useflag == _USEDENTRY)
                bytes += info._size;
    }
    return bytes;
}
} // namespace owtest
