// Loading the library at run time, whole and with resources spoilt. This program does not link to it.

#include "Testing.h"

namespace fs = std::filesystem;

namespace
{
constexpr wchar_t kCopyVariable[] = L"OW_TEST_LIBRARY";
constexpr WORD kLanguage = MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US); // of the resources

fs::path Library()
{
    wchar_t program[MAX_PATH] = {};
    ::GetModuleFileName(nullptr, program, MAX_PATH);
    return fs::path(program).parent_path() / L"DialogControlsOW.dll";
}

/// Loads a copy of the library in which one resource is two bytes of nothing.
owtest::ChildResult LoadSpoilt(LPCWSTR type, int id)
{
    const fs::path path = fs::temp_directory_path() / L"ow_spoilt_library.dll";
    fs::remove(path); // of a run that was broken off
    fs::copy_file(Library(), path);
    const HANDLE update = ::BeginUpdateResourceW(path.c_str(), FALSE);
    WORD nothing = 0;
    EXPECT_TRUE(::UpdateResourceW(update, type, MAKEINTRESOURCE(id), kLanguage, &nothing, sizeof nothing));
    EXPECT_TRUE(::EndUpdateResourceW(update, FALSE));
    auto result = owtest::RunChild("load_library", {.environment = {{kCopyVariable, path.wstring()}}});
    std::error_code ignored;
    fs::remove(path, ignored);
    return result;
}
} // namespace

OW_CHILD_SCENARIO(load_library)
{
    wchar_t path[MAX_PATH] = {};
    ::GetEnvironmentVariable(kCopyVariable, path, MAX_PATH);
    std::printf("%s", ::LoadLibrary(path) ? "loaded" : "refused");
}

TEST(LoadingTheLibrary, AttachesItToTheResourceChainAndDetachesIt)
{
    const LPCWSTR icon = MAKEINTRESOURCE(10054);
    HMODULE library = ::LoadLibrary(Library().c_str());
    ASSERT_NE(library, nullptr);
    EXPECT_EQ(AfxFindResourceHandle(icon, RT_GROUP_ICON), library);
    EXPECT_TRUE(::FreeLibrary(library));
    EXPECT_NE(AfxFindResourceHandle(icon, RT_GROUP_ICON), library);
}

TEST(LoadingTheLibrary, EndsTheProcessWhereAnIconCannotBeLoadedAndDoesWithoutABitmap)
{
    owtest::ExpectFailedAssert(
        LoadSpoilt(RT_GROUP_ICON, 10107),
        L"ASSERT(CButtonST::hIconDesno = LoadSharedIcon(10107))\n[.\\Initialize : 198]\n");
    EXPECT_EQ(LoadSpoilt(RT_BITMAP, 10139).output, "loaded");
}
