// The module interface, what loading the library or a copy of it leaves behind, the id pool, the array.

#include <DialogControlsOW.h>

#include "Testing.h"

#include <acdocman.h>
#define PSAPI_VERSION 2 // of kernel32
#include <psapi.h>

namespace
{
const HMODULE kLibrary = ::GetModuleHandle(L"DialogControlsOW.dll");
const auto kCopy = std::filesystem::temp_directory_path() / L"ow_library_copy.dll";

BOOL CallEntryPoint(DWORD reason)
{
    MODULEINFO info{};
    EXPECT_TRUE(::GetModuleInformation(::GetCurrentProcess(), kLibrary, &info, sizeof info));
    const auto enter = reinterpret_cast<BOOL(WINAPI*)(HINSTANCE, DWORD, LPVOID)>(info.EntryPoint);
    return enter(kLibrary, reason, nullptr);
}

/// The raw pixels of a bitmap, to tell whether two show the same.
std::string Pixels(HBITMAP bitmap)
{
    std::string bits(1 << 16, 0);
    bits.resize(::GetBitmapBits(bitmap, static_cast<LONG>(bits.size()), bits.data()));
    return bits;
}

/// Whether a class has the pictures from this id on, or with 0 those of lines: x for all of them, - for none.
template <class Picker>
char Loaded(int first, int count)
{
    constexpr int kLines[] = {10076, 10077, 10078, 10079, 10080, 10183, 10184,
                              10182, 10185, 10187, 10189, 10190, 10191};
    const Picker picker;
    int right = picker.BitmapCount() == count ? 0 : -1;
    for (int i = 0; i < count; ++i)
    {
        CBitmap expected;
        expected.Attach(::LoadBitmap(kLibrary, MAKEINTRESOURCE(first ? first + i : kLines[i])));
        right += Pixels(picker.GetBitmap(i)) == Pixels(expected);
    }
    return right == count ? 'x' : right ? '?' : '-';
}

/// The seven tables; those that Cleanup leaves are the last.
std::string Tables()
{
    return {Loaded<CBitmapBtnSTKotnaLinija>(10101, 21),
            Loaded<CBitmapBtnSTTekstKote>(10122, 6),
            Loaded<CBitmapBtnSTSrafura>(10139, 10),
            Loaded<CBitmapBtnSTVisinskaKota>(10179, 3),
            Loaded<CBitmapBtnSTSimbolPresekaZavrsetak>(10128, 11),
            Loaded<CBitmapBtnSTSimbolPresekaLinija>(0, 13),
            Loaded<CBitmapBtnSTLinija>(0, 13)};
}

void CopyLibrary()
{
    wchar_t path[MAX_PATH] = {};
    ::GetModuleFileName(kLibrary, path, MAX_PATH);
    std::filesystem::copy_file(path, kCopy, std::filesystem::copy_options::overwrite_existing);
}

/// Loads a copy in which one resource is two bytes of nothing.
owtest::ChildResult LoadSpoilt(LPCWSTR type, int id)
{
    CopyLibrary();
    const HANDLE update = ::BeginUpdateResourceW(kCopy.c_str(), FALSE);
    constexpr WORD nLanguage = MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US); // of the resources
    WORD nothing = 0;
    EXPECT_TRUE(::UpdateResourceW(update, type, MAKEINTRESOURCE(id), nLanguage, &nothing, sizeof nothing));
    EXPECT_TRUE(::EndUpdateResourceW(update, FALSE));
    auto result = owtest::RunChild("load_copy");
    std::error_code ignored;
    std::filesystem::remove(kCopy, ignored);
    return result;
}
} // namespace

TEST(ModuleInterface, IsOneObjectThatRegistersNothingUnderPlainNames)
{
    EXPECT_EQ(OwGetDllInterface()->Setup(nullptr), 1);
    EXPECT_FALSE(OwGetDllInterface()->GetClassRegistry() || OwGetDllInterface()->GetCommandRegistry());
    for (const char* name : {"OwGetDllInterface", "acrxGetApiVersion"})
        EXPECT_TRUE(::GetProcAddress(kLibrary, name)) << name;
    EXPECT_EQ(acrxGetApiVersion(5), acrxGetApiVersion(5));
    EXPECT_NE(acrxGetApiVersion(5), acrxGetApiVersion(6));
}

TEST(SharedGraphics, AreLoadedForEachOfTheLibrarysIcons)
{
#define OW_EXPECT(member) EXPECT_TRUE(CButtonST::member);
    OW_BUTTONST_LOADED_ICONS(OW_EXPECT)
#undef OW_EXPECT
}

// Kept: Cleanup gives back four tables and leaves three, the icons and the theme helper. Of what a second attach finds
// it keeps the icons, whereas the pictures are loaded over the handles of the first time; threads do nothing.
TEST(SharedGraphics, CleanupGivesBackFourTablesOfSevenAndASecondAttachLoadsThePicturesAgain)
{
    const HBITMAP hatch = CBitmapBtnSTSrafura().GetBitmap(0), line = CBitmapBtnSTLinija().GetBitmap(0);
    const HICON ok = CButtonST::hIconOk;
    CThemeHelperST* const pTheme = CButtonST::pLocalTheme;
    EXPECT_EQ(Tables(), "xxxxxxx");
    for (int round = 0; round < 2; ++round) // a second time there is nothing to do
    {
        OwGetDllInterface()->Cleanup(nullptr);
        EXPECT_EQ(Tables(), "----xxx");
        EXPECT_EQ(::GetObjectType(hatch), 0u) << "the handle is freed, not just forgotten";
    }
    for (const DWORD reason : {DLL_THREAD_ATTACH, DLL_PROCESS_ATTACH})
    {
        EXPECT_TRUE(CallEntryPoint(reason));
        EXPECT_EQ(CButtonST::hIconOk, ok);
        EXPECT_EQ(CBitmapBtnSTLinija().GetBitmap(0) == line, reason == DLL_THREAD_ATTACH);
        EXPECT_EQ(CButtonST::pLocalTheme == pTheme, reason == DLL_THREAD_ATTACH);
    }
    CBitmapBtnSTLinija::UnloadBitmaps();
    EXPECT_EQ(Tables(), "xxxxxx-") << "these are freed by their own class";
    for (const auto load : {&CBitmapBtnSTVisinskaKota::LoadBitmaps, &CBitmapBtnSTLinija::LoadBitmaps})
        load(kLibrary);
    EXPECT_EQ(Tables(), "xxxxxxx");
    EXPECT_EQ(acDocManagerPtr()->resourceHandleDepth(), 0);
}

OW_CHILD_SCENARIO(load_copy)
{
    std::printf("%s", ::LoadLibrary(kCopy.c_str()) ? "loaded" : "refused");
}

TEST(LoadingTheLibrary, AttachesItToTheResourceChainAndDetachesIt)
{
    CopyLibrary();
    const LPCWSTR icon = MAKEINTRESOURCE(10054);
    HMODULE library = ::LoadLibrary(kCopy.c_str());
    ASSERT_NE(library, nullptr);
    EXPECT_EQ(AfxFindResourceHandle(icon, RT_GROUP_ICON), library);
    EXPECT_TRUE(::FreeLibrary(library));
    // At the same place, but without its entry point.
    library = ::LoadLibraryEx(kCopy.c_str(), nullptr, DONT_RESOLVE_DLL_REFERENCES);
    EXPECT_NE(AfxFindResourceHandle(icon, RT_GROUP_ICON), library);
    EXPECT_TRUE(::FreeLibrary(library) && std::filesystem::remove(kCopy));
}

TEST(LoadingTheLibrary, EndsTheProcessWhereAnIconCannotBeLoadedAndDoesWithoutABitmap)
{
    owtest::ExpectFailedAssert(
        LoadSpoilt(RT_GROUP_ICON, 10107),
        L"ASSERT(CButtonST::hIconDesno = LoadSharedIcon(10107))\n[.\\Initialize : 198]\n");
    EXPECT_EQ(LoadSpoilt(RT_BITMAP, 10139).output, "loaded");
}

static ResourceIdPool& s_pool = ResourceIdPool::Object();

OW_CHILD_SCENARIO(pool_exhausted)
{
    for (int i = 0; i < 201; ++i)
        s_pool.AcquireId();
}

TEST(ResourceIdPool, IsAStackOfTwoHundredThatSurvivesBeingEmptiedAndRunningDryIsFatal)
{
    for (int round = 0; round < 2; ++round)
    {
        for (unsigned int id = 11199; id >= 11000; --id)
            EXPECT_EQ(s_pool.AcquireId(), id) << "the highest first";
        for (unsigned int id = 11000; id <= 11199; ++id)
            s_pool.ReleaseId(id);
    }
    owtest::ExpectFailedAssert(owtest::RunChild("pool_exhausted"),
                               L"ASSERT(!m_listId.IsEmpty())\n[.\\ResourceIdPool : 37]\n");
}

TEST(ObjectArray, CopiesWhatItHolds)
{
    OCArray<CString> marks;
    marks.Add(L"HEA 160");
    OCArray<CString> copy = marks;
    copy[0] = L"IPE 200";
    EXPECT_STREQ(marks[0], L"HEA 160");
    marks = copy;
    const OCArray<CString>& itself = marks;
    marks = itself;
    EXPECT_TRUE(marks.GetSize() == 1 && marks[0] == L"IPE 200");
}
