// Extension modules: the chain of resources, modules that come and go, exceptions across modules.

#include "TestExtension.h"

#include <gtest/gtest.h>

#include <memory>
#include <tuple>

namespace
{
HMODULE EarlyExtension()
{
    return ::GetModuleHandle(L"mfc_test_extension_early.dll");
}

CString TextOf(UINT id)
{
    CString text;
    text.LoadString(id);
    return text;
}

TEST(Extension, TheChainWorksBeforeTheProgramIsInitialised)
{
    // Imported by the program, and so attached before AfxWinInit and before the application object was made.
    EXPECT_EQ(TextAtAttach(), L"early");
    EXPECT_EQ(TextOf(IDS_EXTENSION_EARLY), L"early only");
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCE(IDD_EXTENSION_DIALOG), RT_DIALOG), EarlyExtension());
}

TEST(Extension, TheCurrentHandleIsAskedBeforeTheLatestModuleWhichLeavesTheChainWhenItGoes)
{
    {
        const std::shared_ptr<void> late(::LoadLibrary(L"mfc_test_extension_late.dll"),
                                         [](void* module) { ::FreeLibrary(static_cast<HMODULE>(module)); });
        ASSERT_NE(late, nullptr);
        EXPECT_EQ(TextOf(IDS_EXTENSION_NAME), L"late");
        EXPECT_EQ(TextOf(IDS_EXTENSION_EARLY), L"early only")
            << "an empty place in a block of strings is no string";
        const HINSTANCE program = AfxGetResourceHandle();
        AfxSetResourceHandle(EarlyExtension());
        EXPECT_EQ(TextOf(IDS_EXTENSION_NAME), L"early");
        AfxSetResourceHandle(program);
    }
    EXPECT_EQ(::GetModuleHandle(L"mfc_test_extension_late.dll"), nullptr);
    EXPECT_EQ(TextOf(IDS_EXTENSION_NAME), L"early");
}

TEST(Extension, AMissingResourceAnswersTheCurrentHandle)
{
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCE(4999), RT_DIALOG), AfxGetResourceHandle());
    EXPECT_EQ(AfxFindStringResourceHandle(41999), AfxGetResourceHandle());
    wchar_t text[8] = L"old";
    EXPECT_EQ(AfxLoadString(41999, text, ARRAYSIZE(text)), 0);
    EXPECT_STREQ(text, L"");
    EXPECT_EQ(AfxLoadString(IDS_EXTENSION_EARLY, text, ARRAYSIZE(text)), 7); // cut to the buffer
    EXPECT_STREQ(text, L"early o");
}

TEST(Extension, ADialogOfAModuleComesWithTheContentsOfItsListsAlsoAsMemory)
{
    const auto resource = [](LPCTSTR type)
    {
        const HMODULE module = EarlyExtension();
        return ::LockResource(
            ::LoadResource(module, ::FindResource(module, MAKEINTRESOURCE(IDD_EXTENSION_DIALOG), type)));
    };
    CDialog named;
    CDialog indirect;
    ASSERT_TRUE(named.Create(IDD_EXTENSION_DIALOG));
    ASSERT_TRUE(indirect.CreateIndirect(static_cast<LPCDLGTEMPLATE>(resource(RT_DIALOG)), nullptr,
                                        resource(MAKEINTRESOURCE(240))));
    for (CWnd* const dialog : {&named, &indirect})
        for (const auto& [id, ask, index, text] : {std::tuple(IDC_EXTENSION_COMBO, CB_GETLBTEXT, 0, L"Beam"),
                                                   std::tuple(IDC_EXTENSION_COMBO, CB_GETLBTEXT, 1, L"Plate"),
                                                   std::tuple(IDC_EXTENSION_LIST, LB_GETTEXT, 0, L"S235")})
        {
            wchar_t read[16] = L"";
            dialog->SendDlgItemMessage(id, ask, index, reinterpret_cast<LPARAM>(read));
            EXPECT_STREQ(read, text);
        }
    wchar_t picture[16] = L"";
    COMBOBOXEXITEM item{};
    item.mask = CBEIF_TEXT;
    item.pszText = picture;
    item.cchTextMax = ARRAYSIZE(picture);
    named.SendDlgItemMessage(IDC_EXTENSION_PICTURES, CBEM_GETITEM, 0, reinterpret_cast<LPARAM>(&item));
    EXPECT_STREQ(picture, L"Bolts");
}

TEST(Extension, ExceptionsCrossModulesByTheirTypes)
{
    try
    {
        ThrowFromExtension(3);
        FAIL();
    }
    catch (CExtensionException* e)
    {
        EXPECT_EQ(e->m_code, 3);
        EXPECT_EQ(CRuntimeClass::FromName("CExtensionException"), e->GetRuntimeClass());
        e->Delete();
    }
}

TEST(ModuleState, IsPutInForceForAScope)
{
    AFX_MODULE_STATE* const ours = AfxGetModuleState();
    AFX_MODULE_STATE other;
    other.m_hCurrentResourceHandle = EarlyExtension();
    {
        AFX_MANAGE_STATE(&other);
        EXPECT_EQ(AfxGetResourceHandle(), EarlyExtension());
        EXPECT_EQ(AfxGetApp(), nullptr);
    }
    EXPECT_EQ(AfxGetModuleState(), ours);
    EXPECT_EQ(AfxGetStaticModuleState(), ours);
    EXPECT_NE(AfxGetApp(), nullptr);
}
} // namespace
