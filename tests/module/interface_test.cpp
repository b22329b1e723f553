// The module interface, and what loading the library leaves behind.

#include <DialogControlsOW.h>

#include <acdocman.h>

#include <gtest/gtest.h>

#include <numeric>
#include <vector>

namespace
{
HMODULE Library()
{
    return ::GetModuleHandle(L"DialogControlsOW.dll");
}

BOOL CallEntryPoint(DWORD reason)
{
    const auto base = reinterpret_cast<ULONG_PTR>(Library());
    const auto* headers =
        reinterpret_cast<IMAGE_NT_HEADERS64*>(base + reinterpret_cast<IMAGE_DOS_HEADER*>(base)->e_lfanew);
    using EntryPoint = BOOL(WINAPI*)(HINSTANCE, DWORD, LPVOID);
    const auto entry = reinterpret_cast<EntryPoint>(base + headers->OptionalHeader.AddressOfEntryPoint);
    return entry(Library(), reason, nullptr);
}

bool IsBitmap(HBITMAP handle)
{
    return handle && ::GetObjectType(handle) == OBJ_BITMAP;
}

/// The raw pixels of a bitmap, to tell whether two show the same.
std::vector<BYTE> Pixels(HBITMAP bitmap)
{
    BITMAP info{};
    ::GetObject(bitmap, sizeof(info), &info);
    std::vector<BYTE> bits(static_cast<size_t>(info.bmWidthBytes) * info.bmHeight);
    ::GetBitmapBits(bitmap, static_cast<LONG>(bits.size()), bits.data());
    return bits;
}

template <class Picker>
void ExpectPictures(const std::vector<int>& ids)
{
    const Picker picker;
    ASSERT_EQ(picker.BitmapCount(), static_cast<int>(ids.size()));
    for (int i = 0; i < picker.BitmapCount(); ++i)
    {
        CBitmap expected;
        expected.Attach(::LoadBitmap(Library(), MAKEINTRESOURCE(ids[i])));
        ASSERT_TRUE(IsBitmap(picker.GetBitmap(i))) << "picture " << i;
        EXPECT_EQ(Pixels(picker.GetBitmap(i)), Pixels(expected)) << "picture " << i;
    }
}

/// How many of the classes have their last picture.
template <class... Pickers>
int CountLoaded()
{
    return (IsBitmap(Pickers().GetBitmap(Pickers().BitmapCount() - 1)) + ...);
}

std::vector<int> Ids(int first, int last)
{
    std::vector<int> ids(last - first + 1);
    std::iota(ids.begin(), ids.end(), first);
    return ids;
}

const std::vector<int> kLineIds = {10076, 10077, 10078, 10079, 10080, 10183, 10184,
                                   10182, 10185, 10187, 10189, 10190, 10191};
} // namespace

TEST(ModuleInterface, IsOneObjectThatRegistersNothingUnderPlainNames)
{
    OwDllInterface* pInterface = OwGetDllInterface();
    EXPECT_EQ(pInterface, OwGetDllInterface());
    EXPECT_EQ(pInterface->Setup(nullptr), 1);
    pInterface->InitDocument(nullptr);
    EXPECT_TRUE(!pInterface->GetClassRegistry() && !pInterface->GetCommandRegistry());
    const auto address = [](const char* name)
    { return reinterpret_cast<void*>(::GetProcAddress(Library(), name)); };
    EXPECT_EQ(address("OwGetDllInterface"), reinterpret_cast<void*>(&OwGetDllInterface));
    const auto version = reinterpret_cast<unsigned int (*)(unsigned int)>(address("acrxGetApiVersion"));
    ASSERT_NE(version, nullptr);
    EXPECT_EQ(version(17), version(17));
    EXPECT_NE(version(17), version(18));
}

TEST(SharedGraphics, AllIconsAreExportedAndTheLibrarysOwnAreLoadedInTheirSizes)
{
    int exported = 0, loaded = 0; // what is counted here is imported
#define OW_COUNT(member) ++exported, loaded += CButtonST::member != nullptr;
    OW_BUTTONST_SIBLING_ICONS(OW_COUNT)
    EXPECT_EQ(loaded, 0) << "these belong to sibling modules";
    OW_BUTTONST_LOADED_ICONS(OW_COUNT)
#undef OW_COUNT
    EXPECT_EQ(exported, 336);
    EXPECT_EQ(loaded, 102);

    const std::pair<HICON, LONG> sizes[] = {
        {CButtonST::hIconError, 32}, {CButtonST::h24IconOpen, 24}, {CButtonST::hIconPrfGrI0, 16}};
    for (const auto& [icon, size] : sizes)
    {
        ICONINFO info{};
        EXPECT_TRUE(::GetIconInfo(icon, &info));
        BITMAP bitmap{};
        ::GetObject(info.hbmColor, sizeof(bitmap), &bitmap);
        ::DeleteObject(info.hbmColor);
        ::DeleteObject(info.hbmMask);
        EXPECT_EQ(CSize(bitmap.bmWidth, bitmap.bmHeight), CSize(size, size));
    }
}

TEST(SharedGraphics, PicturesStandInTheOrderOfTheirTables)
{
    ExpectPictures<CBitmapBtnSTKotnaLinija>(Ids(10101, 10121));
    ExpectPictures<CBitmapBtnSTTekstKote>(Ids(10122, 10127));
    ExpectPictures<CBitmapBtnSTSrafura>(Ids(10139, 10148));
    ExpectPictures<CBitmapBtnSTVisinskaKota>(Ids(10179, 10181));
    ExpectPictures<CBitmapBtnSTLinija>(kLineIds);
    ExpectPictures<CBitmapBtnSTSimbolPresekaLinija>(kLineIds);
    ExpectPictures<CBitmapBtnSTSimbolPresekaZavrsetak>(Ids(10128, 10138));
    EXPECT_NE(CBitmapBtnSTLinija().GetBitmap(0), CBitmapBtnSTSimbolPresekaLinija().GetBitmap(0))
        << "each class holds handles of its own";
}

// Kept: Cleanup gives back four tables and leaves three, the icons and the theme helper.
TEST(SharedGraphics, CleanupGivesBackFourTablesOfSeven)
{
    const auto given = &CountLoaded<CBitmapBtnSTKotnaLinija, CBitmapBtnSTTekstKote, CBitmapBtnSTSrafura,
                                    CBitmapBtnSTVisinskaKota>;
    const auto left =
        &CountLoaded<CBitmapBtnSTLinija, CBitmapBtnSTSimbolPresekaLinija, CBitmapBtnSTSimbolPresekaZavrsetak>;
    const HINSTANCE resources = AfxGetResourceHandle();
    const HBITMAP hatch = CBitmapBtnSTSrafura().GetBitmap(0);
    EXPECT_EQ(given() + left(), 7);
    for (int round = 0; round < 2; ++round) // a second time there is nothing to do
    {
        OwGetDllInterface()->Cleanup(nullptr);
        EXPECT_EQ(given(), 0);
        EXPECT_FALSE(IsBitmap(hatch)) << "the handle is freed, not just forgotten";
        EXPECT_EQ(left(), 3);
        EXPECT_TRUE(CButtonST::hIconOk && CButtonST::pLocalTheme);
    }
    CBitmapBtnSTLinija::UnloadBitmaps();
    EXPECT_EQ(left(), 2) << "these are freed by their own class";

    for (const auto load : {&CBitmapBtnSTKotnaLinija::LoadBitmaps, &CBitmapBtnSTTekstKote::LoadBitmaps,
                            &CBitmapBtnSTSrafura::LoadBitmaps, &CBitmapBtnSTVisinskaKota::LoadBitmaps,
                            &CBitmapBtnSTLinija::LoadBitmaps})
        load(Library());
    ExpectPictures<CBitmapBtnSTSrafura>(Ids(10139, 10148));
    EXPECT_EQ(given() + left(), 7);
    EXPECT_EQ(acDocManagerPtr()->resourceHandleDepth(), 0);
    EXPECT_EQ(AfxGetResourceHandle(), resources) << "loading leaves the host's as it was";
}

// Kept: icons that are there are skipped, whereas the pictures are loaded over the handles of the first time.
TEST(SharedGraphics, ASecondAttachLoadsThePicturesAgainAndKeepsTheIcons)
{
    const HICON ok = CButtonST::hIconOk;
    const HBITMAP line = CBitmapBtnSTLinija().GetBitmap(0);
    CThemeHelperST* const pTheme = CButtonST::pLocalTheme;
    for (const DWORD reason : {DLL_THREAD_ATTACH, DLL_PROCESS_ATTACH}) // threads do nothing
    {
        EXPECT_TRUE(CallEntryPoint(reason));
        EXPECT_EQ(CButtonST::hIconOk, ok);
        EXPECT_EQ(CBitmapBtnSTLinija().GetBitmap(0) == line, reason == DLL_THREAD_ATTACH);
        EXPECT_EQ(CButtonST::pLocalTheme == pTheme, reason == DLL_THREAD_ATTACH);
    }
    EXPECT_EQ(acDocManagerPtr()->resourceHandleDepth(), 0);
}
