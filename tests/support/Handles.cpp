#include "Handles.h"

#include <malloc.h>

#include <cstdint>
#include <set>

namespace owtest
{
namespace
{
/// One entry of the process's table of GDI handles, to which its environment block points.
struct GdiEntry
{
    std::uint64_t object;
    WORD owner, unused, unique, type;
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

/// The process's windows below a parent; null: its top-level ones.
int CountWindows(HWND parent)
{
    int count = 0;
    HWND window = nullptr;
    while ((window = FindWindowExW(parent, window, nullptr, nullptr)))
        if (DWORD process = 0; GetWindowThreadProcessId(window, &process), process == GetCurrentProcessId())
            count += 1 + (parent == HWND_MESSAGE ? 0 : CountWindows(window));
    return count;
}

bool IsMenuIconOrTable(HANDLE handle)
{
    if (IsMenu(static_cast<HMENU>(handle)) || CopyAcceleratorTableW(static_cast<HACCEL>(handle), nullptr, 0))
        return true;
    ICONINFO info{};
    if (!GetIconInfo(static_cast<HICON>(handle), &info))
        return false;
    DeleteObject(info.hbmMask);
    DeleteObject(info.hbmColor);
    return true;
}

/// Where the system does not count user objects, its handles are tried one by one: their low word is a place in a
/// table, and with no high word a handle stands for whatever this process has there.
int CountUserObjects()
{
    if (const DWORD counted = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS))
        return static_cast<int>(counted);
    int count = 0;
    for (std::uintptr_t place = 0x20; place < 0xFFF0; place += 2)
        count += IsMenuIconOrTable(reinterpret_cast<HANDLE>(place));
    return count;
}
} // namespace

int CountGdiObjects(int type)
{
    const GdiEntry* table = GdiTable();
    int count = 0;
    for (int i = 0; i < kGdiTableSize; ++i)
        count += type ? (table[i].type & 0x7F) == type : table[i].type != 0;
    return count;
}

HandleCount CountHandles()
{
    HandleCount count;
    GdiFlush();
    count.gdi = CountGdiObjects(0);
    count.windows = CountWindows(nullptr) + CountWindows(HWND_MESSAGE);
    count.user = CountUserObjects();
    return count;
}

size_t CountHeapBytes()
{
    size_t bytes = 0;
    // The C run-time keeps a heap of its own unless it shares the process's.
    for (HANDLE heap : std::set<HANDLE>{GetProcessHeap(), reinterpret_cast<HANDLE>(_get_heap_handle())})
    {
        HeapLock(heap);
        PROCESS_HEAP_ENTRY entry{};
        while (HeapWalk(heap, &entry))
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)
                bytes += entry.cbData;
        HeapUnlock(heap);
    }
    return bytes;
}
} // namespace owtest
