// Property sheets from the inside: pages that come and go, what ends a sheet, fonts.

#include <afxdlgs.h>
#include <afxpriv.h>

#include <gtest/gtest.h>

#include "DialogTemplate.h"
#include "Input.h"
#include "ModalVisit.h"
#include "resource.h"

#include <functional>
#include <memory>

namespace
{
constexpr int kValue = 1001;

/// A page made in memory, whose answers a test chooses, and which notes what it is asked.
class TestPage : public CPropertyPage
{
public:
    explicit TestPage(const wchar_t* title, WORD points = 8, const wchar_t* face = L"MS Shell Dlg")
        : m_template(owtest::DialogTemplate(title, 150, 60)
                         .Style(WS_CHILD | WS_CAPTION | WS_DISABLED)
                         .Font(points, face)
                         .Label(L"Value", 4, 4, 40, 10)
                         .Edit(kValue, 48, 4, 60, 12))
    {
        m_psp.dwFlags |= PSP_DLGINDIRECT;
        m_psp.pResource = m_template.get();
    }

    BOOL OnSetActive() override
    {
        log += L's';
        return active && CPropertyPage::OnSetActive();
    }
    BOOL OnKillActive() override { return (log += L'k', leaves) && CPropertyPage::OnKillActive(); }
    BOOL OnApply() override { return (log += L'a', applies) && CPropertyPage::OnApply(); }
    void OnOK() override { log += L'o'; }
    void OnCancel() override { log += L'c'; }
    BOOL OnQueryCancel() override { return (log += L'q', mayCancel); }

    CString log;
    BOOL active = TRUE;
    BOOL leaves = TRUE;
    BOOL applies = TRUE;
    BOOL mayCancel = TRUE;
    LRESULT sibling = 0;
    CString value = L"value";

protected:
    void DoDataExchange(CDataExchange* pDX) override { DDX_Text(pDX, kValue, value); }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        return message == PSM_QUERYSIBLINGS ? sibling : CPropertyPage::WindowProc(message, wParam, lParam);
    }

private:
    owtest::DialogTemplate m_template;
};

class Sheet : public ::testing::Test
{
protected:
    Sheet()
    {
        sheet.AddPage(&first);
        sheet.AddPage(&second);
    }

    TestPage first{L"First"};
    TestPage second{L"Second", 14, L"Liberation Serif"};
    TestPage third{L"Third"};
    CPropertySheet sheet{L"Sheet"};
};

TEST_F(Sheet, PagesComeAndGoBeforeAndWhileItIsShown)
{
    EXPECT_EQ(sheet.GetPageIndex(&third), -1);
    sheet.AddPage(&third);
    sheet.RemovePage(1);
    EXPECT_EQ(sheet.GetPage(1), &third);
    EXPECT_TRUE(sheet.SetActivePage(&third));
    EXPECT_EQ(sheet.GetActivePage(), &third);
    sheet.SetTitle(L"Titled");
    sheet.EnableStackedTabs(FALSE);
    ASSERT_TRUE(sheet.Create());
    EXPECT_TRUE(sheet.IsModeless());
    EXPECT_EQ(owtest::TextOf(sheet), L"Titled");
    EXPECT_EQ(sheet.GetTabControl()->GetStyle() & TCS_MULTILINE, 0u);
    EXPECT_EQ(sheet.GetActivePage(), &third);
    EXPECT_EQ(third.GetParentSheet(), &sheet);
    EXPECT_EQ(first.m_hWnd, nullptr) << "never shown, never made";

    sheet.AddPage(&second);
    EXPECT_EQ(sheet.GetTabControl()->GetItemCount(), 3);
    EXPECT_TRUE(sheet.SetActivePage(&second));
    EXPECT_EQ(sheet.GetActiveIndex(), 2);
    third.sibling = 7;
    EXPECT_EQ(second.QuerySiblings(1, 2), 7);
    EXPECT_TRUE(sheet.SetActivePage(0));
    sheet.RemovePage(&second);
    EXPECT_EQ(sheet.GetTabControl()->GetItemCount(), 2);
    EXPECT_EQ(sheet.GetPageCount(), 2);
    sheet.SetTitle(L"again", PSH_PROPTITLE);
    EXPECT_NE(owtest::TextOf(sheet).find(L"again"), std::wstring::npos);
    sheet.SendMessage(WM_SYSCOMMAND, SC_CLOSE);
    EXPECT_EQ(sheet.m_hWnd, nullptr);
}

TEST_F(Sheet, AModelessOneHasNoButtonsAndTheStyleThatIsWanted)
{
    ASSERT_TRUE(sheet.Create(nullptr, WS_POPUP | WS_CAPTION | DS_SETFONT | WS_SYSMENU, WS_EX_TOOLWINDOW));
    EXPECT_NE(sheet.GetExStyle() & WS_EX_TOOLWINDOW, 0u);
    EXPECT_EQ(sheet.GetStyle() & DS_MODALFRAME, 0u);
    CRect client;
    sheet.GetClientRect(&client);
    for (const int id : {IDOK, IDCANCEL, ID_APPLY_NOW})
        EXPECT_FALSE(sheet.GetDlgItem(id)->IsWindowVisible() || sheet.GetDlgItem(id)->IsWindowEnabled())
            << id;
    CRect button;
    sheet.GetDlgItem(IDOK)->GetWindowRect(&button);
    sheet.ScreenToClient(&button);
    EXPECT_GE(button.top + 8, client.bottom) << "it ends where they would begin";
    sheet.EndDialog(IDOK);
    EXPECT_EQ(sheet.m_hWnd, nullptr);
}

TEST_F(Sheet, ShowsAllPagesInItsOwnFontAndKeepsTheirValues)
{
    ASSERT_TRUE(sheet.Create());
    sheet.SetActivePage(1);
    LOGFONT fonts[2]{};
    ::GetObject(sheet.GetFont()->GetSafeHandle(), sizeof fonts[0], &fonts[0]);
    ::GetObject(second.GetFont()->GetSafeHandle(), sizeof fonts[1], &fonts[1]);
    EXPECT_EQ(fonts[1].lfHeight, fonts[0].lfHeight);
    EXPECT_STREQ(fonts[1].lfFaceName, fonts[0].lfFaceName);
    CRect rects[2];
    first.GetDlgItem(kValue)->GetWindowRect(&rects[0]);
    second.GetDlgItem(kValue)->GetWindowRect(&rects[1]);
    EXPECT_EQ(rects[1], rects[0]);

    EXPECT_EQ(second.log, L"s");
    second.SetDlgItemText(kValue, L"typed");
    second.value = L"set meanwhile";
    sheet.SetActivePage(0); // takes what was typed
    EXPECT_EQ(second.value, L"typed");
    second.value = L"shown again";
    sheet.SetActivePage(1);
    EXPECT_EQ(owtest::TextOf(*second.GetDlgItem(kValue)), L"shown again");
    sheet.DestroyWindow();
}

TEST_F(Sheet, EndsAsItsButtonsOrTheProgramSay)
{
    const struct
    {
        std::function<void(CPropertySheet&)> act;
        INT_PTR result;
        const wchar_t* log; ///< of the first page
    } cases[] = {
        {[](CPropertySheet&) { owtest::Press(VK_RETURN); }, IDOK, L"skao"},
        {[](CPropertySheet&) { owtest::Press(VK_ESCAPE); }, IDCANCEL, L"sqc"},
        {[](CPropertySheet& s) { owtest::Click(s.GetDlgItem(IDOK)->m_hWnd); }, IDOK, L"skao"},
        {[](CPropertySheet& s) { s.PressButton(PSBTN_OK); }, IDOK, L"skao"},
        {[](CPropertySheet& s) { s.PressButton(PSBTN_CANCEL); }, IDCANCEL, L"sqc"},
        {[](CPropertySheet& s) { s.SendMessage(WM_SYSCOMMAND, SC_CLOSE); }, IDCANCEL, L"sqc"},
        {[](CPropertySheet& s) { s.EndDialog(77); }, 77, nullptr},
        {[](CPropertySheet& s) { s.GetPage(0)->EndDialog(78); }, 78, nullptr},
    };
    for (const auto& [act, result, log] : cases)
    {
        first.log.Empty();
        CString seen;
        owtest::ModalVisit visit(
            [&, &act = act](CWnd&)
            {
                act(sheet);
                owtest::PumpUntil([&] { return !sheet.ContinueModal(); }, 2000);
                seen = first.log; // another Cancel may follow
            });
        EXPECT_EQ(sheet.DoModal(), result);
        EXPECT_EQ(sheet.m_hWnd, nullptr);
        EXPECT_TRUE(log == nullptr || seen.Find(log) == 0) << result << " " << seen.GetString();
    }
}

TEST_F(Sheet, APageMayKeepItOpen)
{
    first.mayCancel = FALSE;
    first.applies = FALSE;
    bool refused = false;
    owtest::ModalVisit visit(
        [&](CWnd&)
        {
            owtest::Press(VK_ESCAPE);
            owtest::Press(VK_RETURN);
            refused = sheet.ContinueModal() && first.log == L"sqka";
            first.applies = TRUE;
            first.SetModified();
            const HWND apply = ::GetDlgItem(sheet.m_hWnd, ID_APPLY_NOW);
            refused &= ::IsWindowEnabled(apply) != FALSE;
            first.SetModified(FALSE);
            refused &= ::IsWindowEnabled(apply) == FALSE;
            first.CancelToClose();
            refused &= owtest::PumpUntil([&] { return !sheet.GetDlgItem(IDCANCEL)->IsWindowEnabled(); });
            owtest::Press(VK_RETURN);
        });
    EXPECT_EQ(sheet.DoModal(), IDOK);
    EXPECT_TRUE(refused);
}

TEST_F(Sheet, TakesItsTextsPicturesAndPagesFromResources)
{
    struct BuiltSheet : CPropertySheet
    {
        using CPropertySheet::BuildPropPageArray;
        using CPropertySheet::CPropertySheet;
    } built(IDS_SHEET, nullptr, 1, HBITMAP(1), HPALETTE(2), HBITMAP(3));
    CPropertyPage page(IDD_PAGE, IDS_TAB, IDS_HEADER, IDS_SUBTITLE);
    built.AddPage(&page);
    built.BuildPropPageArray();
    EXPECT_STREQ(built.m_psh.pszCaption, L"Beam");
    EXPECT_EQ(built.m_psh.nStartPage, 1u);
    constexpr DWORD pictures =
        PSH_USEHBMWATERMARK | PSH_WATERMARK | PSH_USEHPLWATERMARK | PSH_USEHBMHEADER | PSH_HEADER;
    EXPECT_EQ(built.m_psh.dwFlags & pictures, pictures);
    EXPECT_TRUE(built.m_psh.hbmWatermark == HBITMAP(1) && built.m_psh.hplWatermark == HPALETTE(2) &&
                built.m_psh.hbmHeader == HBITMAP(3));
    EXPECT_EQ(CPropertySheet(L"plain", nullptr, 0, nullptr).m_psh.dwFlags & pictures, 0u);
    ASSERT_EQ(built.m_psh.nPages, 1u);
    EXPECT_STREQ(built.m_psh.ppsp->pszTitle, L"Cross section");
    EXPECT_STREQ(built.m_psh.ppsp->pszHeaderTitle, L"Header");
    EXPECT_STREQ(built.m_psh.ppsp->pszHeaderSubTitle, L"Subtitle");
    sheet.AddPage(&page);
    ASSERT_TRUE(sheet.Create());
    EXPECT_TRUE(sheet.SetActivePage(&page));
    EXPECT_NE(page.GetDlgItem(IDC_GRADE), nullptr);
    sheet.DestroyWindow();
}

TEST_F(Sheet, APageThatIsNotToBeShownIsPassedOver)
{
    sheet.AddPage(&third);
    second.active = FALSE;
    ASSERT_TRUE(sheet.Create());
    sheet.SetActivePage(1);
    EXPECT_NE(sheet.GetActivePage(), &second);
    sheet.DestroyWindow();
}
} // namespace
