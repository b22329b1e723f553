// Extension modules: the chain of resources, and modules that come and go.

#include <afxcmn.h>
#include <afxpriv.h>

#include "resource.h"
#include "Testing.h"

namespace
{
const HINSTANCE s_beforeStart = AfxGetResourceHandle(); ///< before AfxWinInit, as modules may ask

struct Extension : testing::Test
{
    ~Extension() override { ::FreeLibrary(module); }
    static CString TextOf(UINT id)
    {
        CString text;
        text.LoadString(id);
        return text;
    }
    const HINSTANCE program = AfxGetResourceHandle();
    HMODULE module = ::LoadLibrary(L"mfc_test_extension.dll");
};

TEST_F(Extension, IsAskedAfterTheCurrentHandleTheLatestFirstUntilItGoes)
{
    ASSERT_NE(module, nullptr);
    EXPECT_EQ(s_beforeStart, program);
    EXPECT_EQ(TextOf(IDS_EXTENSION_NAME), L"program");
    EXPECT_EQ(TextOf(IDS_EXTENSION_ONLY), L"extension only") << "an empty place in a block is no string";
    AfxSetResourceHandle(::GetModuleHandle(L"kernel32.dll"));
    {
        AFX_EXTENSION_MODULE state{TRUE, program, program, nullptr, nullptr};
        const CDynLinkLibrary system(state, TRUE);
        EXPECT_EQ(TextOf(IDS_EXTENSION_NAME), L"extension");
        const CDynLinkLibrary latest(program, program);
        EXPECT_EQ(TextOf(IDS_EXTENSION_NAME), L"program");
    }
    AfxSetResourceHandle(program);
    AFX_MODULE_STATE other;
    other.m_hCurrentResourceHandle = module;
    {
        AFX_MANAGE_STATE(&other);
        EXPECT_EQ(TextOf(IDS_EXTENSION_NAME), L"extension");
        EXPECT_EQ(AfxGetApp(), nullptr);
    }
    EXPECT_NE(AfxGetApp(), nullptr);
    EXPECT_EQ(AfxGetStaticModuleState(), AfxGetModuleState());
    ::FreeLibrary(std::exchange(module, nullptr));
    EXPECT_EQ(TextOf(IDS_EXTENSION_ONLY), L"");
}

TEST_F(Extension, AMissingResourceAnswersTheCurrentHandle)
{
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCE(4999), RT_DIALOG), AfxGetResourceHandle());
    EXPECT_EQ(AfxFindStringResourceHandle(41999), AfxGetResourceHandle());
    wchar_t text[8] = L"old";
    EXPECT_EQ(AfxLoadString(41999, text, ARRAYSIZE(text)), 0);
    EXPECT_STREQ(text, L"");
    EXPECT_EQ(AfxLoadString(IDS_EXTENSION_ONLY, text, ARRAYSIZE(text)), 7); // cut to the buffer
    EXPECT_STREQ(text, L"extensi");
}

TEST_F(Extension, ADialogOfAModuleComesWithItsTipsAndTheContentsOfItsListsAlsoAsMemory)
{
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCE(IDD_EXTENSION_DIALOG), RT_DIALOG), module);
    const auto resource = [this](LPCTSTR type)
    {
        return ::LockResource(
            ::LoadResource(module, ::FindResource(module, MAKEINTRESOURCE(IDD_EXTENSION_DIALOG), type)));
    };
    CDialog named, indirect;
    ASSERT_TRUE(named.Create(IDD_EXTENSION_DIALOG));
    EXPECT_EQ(named.SendMessage(WM_HELPHITTEST), 0x20000 + IDD_EXTENSION_DIALOG) << "its help's number";
    CToolTipCtrl tip;
    CString told;
    EXPECT_TRUE(tip.Create(&named) && tip.AddTool(&named, IDS_EXTENSION_ONLY, CRect(0, 0, 9, 9), 1));
    tip.GetText(told, &named, 1);
    EXPECT_STREQ(told, L"extension only");
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
