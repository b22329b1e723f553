// Loading the library at run time, whole and with resources missing. This program does not link to it.

#include <afxwin.h>

#include "FatalReport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace fs = std::filesystem;

namespace
{
constexpr wchar_t kCopyVariable[] = L"OW_TEST_LIBRARY";

fs::path Library()
{
    wchar_t program[MAX_PATH] = {};
    ::GetModuleFileName(nullptr, program, MAX_PATH);
    return fs::path(program).parent_path() / L"DialogControlsOW.dll";
}

/// The bytes of a library, with a way into its tree of resources: type, then id.
class LibraryImage
{
public:
    explicit LibraryImage(const fs::path& path)
    {
        std::ifstream file(path, std::ios::binary);
        m_bytes.assign(std::istreambuf_iterator<char>(file), {});
    }
    void Write(const fs::path& path) const
    {
        std::ofstream(path, std::ios::binary)
            .write(m_bytes.data(), static_cast<std::streamsize>(m_bytes.size()));
    }
    /// Gives a resource the id of its neighbour below, so that its own is not to be found; false if there is none.
    bool Hide(LPCWSTR type, int id)
    {
        IMAGE_RESOURCE_DIRECTORY_ENTRY* typeEntry =
            Find(Resources(), LOWORD(reinterpret_cast<ULONG_PTR>(type)));
        IMAGE_RESOURCE_DIRECTORY_ENTRY* entry =
            typeEntry ? Find(Resources() + typeEntry->OffsetToDirectory, static_cast<WORD>(id)) : nullptr;
        if (entry)
            --entry->Id;
        return entry != nullptr;
    }

private:
    char* Resources()
    {
        const auto* dos = reinterpret_cast<IMAGE_DOS_HEADER*>(m_bytes.data());
        auto* headers = reinterpret_cast<IMAGE_NT_HEADERS64*>(m_bytes.data() + dos->e_lfanew);
        const DWORD address =
            headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_RESOURCE].VirtualAddress;
        const IMAGE_SECTION_HEADER* section = IMAGE_FIRST_SECTION(headers);
        while (section->VirtualAddress != address)
            ++section;
        return m_bytes.data() + section->PointerToRawData;
    }
    static IMAGE_RESOURCE_DIRECTORY_ENTRY* Find(char* directory, WORD id)
    {
        const auto* header = reinterpret_cast<IMAGE_RESOURCE_DIRECTORY*>(directory);
        auto* first = reinterpret_cast<IMAGE_RESOURCE_DIRECTORY_ENTRY*>(directory + sizeof(*header));
        auto* end = first + header->NumberOfNamedEntries + header->NumberOfIdEntries;
        auto* found = std::find_if(first, end,
                                   [id](const auto& entry) { return !entry.NameIsString && entry.Id == id; });
        return found == end ? nullptr : found;
    }

    std::vector<char> m_bytes;
};

/// Loads a copy of the library that lacks one resource.
owtest::ChildResult LoadWithout(LPCWSTR type, int id)
{
    const fs::path path = fs::temp_directory_path() / L"ow_cut_library.dll";
    LibraryImage image(Library());
    EXPECT_TRUE(image.Hide(type, id));
    image.Write(path);
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

TEST(LoadingTheLibrary, EndsTheProcessWhereAnIconIsMissingAndDoesWithoutABitmap)
{
    const std::pair<int, const wchar_t*> ends[] = {
        {10004, L"ASSERT(CButtonST::hIconInformation = LoadSharedIcon(10004))\n[.\\Initialize : 77]\n"},
        {10107, L"ASSERT(CButtonST::hIconDesno = LoadSharedIcon(10107))\n[.\\Initialize : 198]\n"},
    };
    for (const auto& [id, report] : ends)
    {
        const owtest::ChildResult result = LoadWithout(RT_GROUP_ICON, id);
        owtest::ExpectFailedAssert(result, report);
        EXPECT_EQ(result.output, "");
    }
    const owtest::ChildResult result = LoadWithout(RT_BITMAP, 10139);
    EXPECT_EQ(result.output, "loaded");
    EXPECT_EQ(result.boxText, L"");
}
