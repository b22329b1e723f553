// Extension modules: the chain of resources, modules that come and go, exceptions across modules.

#include "TestExtension.h"

#include <afxpriv.h>

#include <gtest/gtest.h>

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

TEST(Extension, AsksTheCurrentHandleAndThenTheLatestModuleWhichLeavesTheChainWhenItGoes)
{
    // Imported by the program, and so attached before AfxWinInit and before the application object was made.
    EXPECT_EQ(TextAtAttach(), L"early");
    const HMODULE late = ::LoadLibrary(L"mfc_test_extension_late.dll");
    ASSERT_NE(late, nullptr);
    EXPECT_EQ(TextOf(IDS_EXTENSION_NAME), L"late");
    EXPECT_EQ(TextOf(IDS_EXTENSION_EARLY), L"early only")
        << "an empty place in a block of strings is no string";
    AFX_MODULE_STATE other; // puts a handle in force for a scope
    other.m_hCurrentResourceHandle = EarlyExtension();
    {
        AFX_MANAGE_STATE(&other);
        EXPECT_EQ(TextOf(IDS_EXTENSION_NAME), L"early");
        EXPECT_EQ(AfxGetApp(), nullptr);
    }
    EXPECT_NE(AfxGetApp(), nullptr);
    EXPECT_EQ(AfxGetStaticModuleState(), AfxGetModuleState());
    ::FreeLibrary(late);
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
    const HMODULE module = AfxFindResourceHandle(MAKEINTRESOURCE(IDD_EXTENSION_DIALOG), RT_DIALOG);
    EXPECT_EQ(module, EarlyExtension());
    const auto resource = [=](LPCTSTR type)
    {
        return ::LockResource(
            ::LoadResource(module, ::FindResource(module, MAKEINTRESOURCE(IDD_EXTENSION_DIALOG), type)));
    };
    CDialog named, indirect;
    ASSERT_TRUE(named.Create(IDD_EXTENSION_DIALOG));
    EXPECT_EQ(named.SendMessage(WM_HELPHITTEST), 0x20000 + IDD_EXTENSION_DIALOG) << "its help's number";
    CDialog withHelp;
    withHelp.SetHelpID(7);
    ASSERT_TRUE(withHelp.Create(IDD_EXTENSION_DIALOG));
    EXPECT_EQ(withHelp.SendMessage(WM_HELPHITTEST), 0x20007);
    ASSERT_TRUE(indirect.CreateIndirect(static_cast<LPCDLGTEMPLATE>(resource(RT_DIALOG)), nullptr,
                                        resource(MAKEINTRESOURCE(240))));
    for (CWnd* const dialog : {&named, &indirect})
    {
        wchar_t read[16] = L"";
        const auto out = reinterpret_cast<LPARAM>(read);
        for (const auto& [id, ask, index, text] : {std::tuple(IDC_EXTENSION_COMBO, CB_GETLBTEXT, 0, L"Beam"),
                                                   std::tuple(IDC_EXTENSION_COMBO, CB_GETLBTEXT, 1, L"Plate"),
                                                   std::tuple(IDC_EXTENSION_LIST, LB_GETTEXT, 0, L"S235")})
        {
            dialog->SendDlgItemMessage(id, ask, index, out);
            EXPECT_STREQ(read, text);
        }
        COMBOBOXEXITEM item{CBEIF_TEXT, 0, read, ARRAYSIZE(read), 0, 0, 0, 0, 0};
        dialog->SendDlgItemMessage(IDC_EXTENSION_PICTURES, CBEM_GETITEM, 0, reinterpret_cast<LPARAM>(&item));
        EXPECT_STREQ(read, L"Bolts");
    }
}
} // namespace
