// Attaching the library: all of the start-up work, against bare loads of the same resources.

#include <afxwin.h>

#include "Bench.h"

#include <filesystem>
#include <utility>
#include <vector>

namespace
{
using Ids = std::vector<WORD>;

BOOL CALLBACK CollectId(HMODULE, LPCTSTR, LPTSTR name, LONG_PTR ids)
{
    reinterpret_cast<Ids*>(ids)->push_back(LOWORD(reinterpret_cast<ULONG_PTR>(name)));
    return TRUE;
}

Ids IdsOf(HMODULE module, LPCTSTR type)
{
    Ids ids;
    ::EnumResourceNames(module, type, CollectId, reinterpret_cast<LONG_PTR>(&ids));
    return ids;
}

/// The icons that nothing loads at start-up.
bool IsLoadedLater(WORD id)
{
    return (id >= 10031 && id <= 10035) || id == 10099 || id == 10100;
}
} // namespace

// The graphics of a library that was loaded are never given back, and neither are those of the bare side: the
// number of rounds stays well below what a process may hold.
static void MeasureAttach(Comparison& compare, const Benchmark::Measure& measure)
{
    wchar_t program[MAX_PATH] = {};
    ::GetModuleFileName(nullptr, program, MAX_PATH);
    const std::wstring path = std::filesystem::path(program).replace_filename(L"bench_library.dll").wstring();
    HMODULE data = ::LoadLibrary(L"DialogControlsOW.dll");
    const Ids bitmaps = IdsOf(data, RT_BITMAP);
    Ids icons = IdsOf(data, RT_GROUP_ICON);
    std::erase_if(icons, IsLoadedLater);

    compare.Rounds(15);
    HMODULE loaded = nullptr;
    compare.Ours([&] { loaded = ::LoadLibrary(path.c_str()); });
    compare.Bare(
        [&]
        {
            if (loaded)
                ::FreeLibrary(std::exchange(loaded, nullptr));
            for (WORD id : bitmaps)
                ::LoadBitmap(data, MAKEINTRESOURCE(id));
            for (WORD id : icons)
                ::LoadImage(data, MAKEINTRESOURCE(id), IMAGE_ICON, 0, 0, 0);
        });
    measure();
}
static const Benchmark attach("module/attach", 1.3, MeasureAttach);
