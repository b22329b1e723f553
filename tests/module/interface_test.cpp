// The module interface, what loading the library leaves behind, and the small parts: id pool, array of objects.

#include <DialogControlsOW.h>

#include "Testing.h"

#include <acdocman.h>

namespace
{
const HMODULE kLibrary = ::GetModuleHandle(L"DialogControlsOW.dll");

BOOL CallEntryPoint(DWORD reason)
{
    const auto* base = reinterpret_cast<const BYTE*>(kLibrary);
    const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS64*>(
        base + reinterpret_cast<const IMAGE_DOS_HEADER*>(base)->e_lfanew);
    const void* entry = base + headers->OptionalHeader.AddressOfEntryPoint;
    return reinterpret_cast<BOOL(WINAPI*)(HINSTANCE, DWORD, LPVOID)>(const_cast<void*>(entry))(
        kLibrary, reason, nullptr);
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
} // namespace

TEST(ModuleInterface, IsOneObjectThatRegistersNothingUnderPlainNames)
{
    EXPECT_EQ(OwGetDllInterface()->Setup(nullptr), 1);
    EXPECT_FALSE(OwGetDllInterface()->GetClassRegistry() || OwGetDllInterface()->GetCommandRegistry());
    const auto address = [](const char* name)
    { return reinterpret_cast<void*>(::GetProcAddress(kLibrary, name)); };
    EXPECT_EQ(address("OwGetDllInterface"), reinterpret_cast<void*>(&OwGetDllInterface));
    const auto version = reinterpret_cast<unsigned int (*)(unsigned int)>(address("acrxGetApiVersion"));
    ASSERT_NE(version, nullptr);
    EXPECT_TRUE(version(17) == version(17) && version(17) != version(18));
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
    const HINSTANCE resources = AfxGetResourceHandle();
    const HBITMAP hatch = CBitmapBtnSTSrafura().GetBitmap(0), line = CBitmapBtnSTLinija().GetBitmap(0);
    const HICON ok = CButtonST::hIconOk;
    CThemeHelperST* const pTheme = CButtonST::pLocalTheme;
    EXPECT_EQ(Tables(), "xxxxxxx");
    EXPECT_NE(line, CBitmapBtnSTSimbolPresekaLinija().GetBitmap(0)) << "each class holds handles of its own";
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
    EXPECT_EQ(AfxGetResourceHandle(), resources) << "loading leaves the host's as it was";
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

static_assert(!std::is_copy_constructible_v<OCArray<CExtButton>> &&
              !std::is_copy_assignable_v<OCArray<CExtButton>>);

TEST(ObjectArray, CopiesWhatCanBeCopiedAndHoldsWhatCannot)
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
    OCArray<CExtButton> buttons;
    buttons.SetSize(3);
    EXPECT_EQ(buttons.GetSize(), 3);
}
