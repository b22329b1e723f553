// Property sheets from the inside: pages that come and go, what ends a sheet, fonts.

#include "TestWindows.h"

#include <afxdlgs.h>
#include <afxpriv.h>

#include "resource.h"

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

    CString log;
    CString refused; ///< the letters of what it says no to
    LRESULT sibling = 0;
    CString value = L"value";
    int endsBy = 0; ///< at once

    BOOL OnSetActive() override
    {
        if (endsBy != 0)
            EndDialog(endsBy);
        return Ask(L's') && CPropertyPage::OnSetActive();
    }
    BOOL OnKillActive() override { return Ask(L'k') && CPropertyPage::OnKillActive(); }
    BOOL OnApply() override { return Ask(L'a') && CPropertyPage::OnApply(); }
    void OnOK() override { Ask(L'o'); }
    void OnCancel() override { Ask(L'c'); }
    BOOL OnQueryCancel() override { return Ask(L'q'); }
    LRESULT OnWizardBack() override { return -1; }
    LRESULT OnWizardNext() override { return 7; }

protected:
    void DoDataExchange(CDataExchange* pDX) override { DDX_Text(pDX, kValue, value); }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        return message == PSM_QUERYSIBLINGS ? sibling : CPropertyPage::WindowProc(message, wParam, lParam);
    }

private:
    BOOL Ask(wchar_t letter)
    {
        log += letter;
        return refused.Find(letter) < 0;
    }
    owtest::DialogTemplate m_template;
};

struct Sheet : ::testing::Test
{
    Sheet()
    {
        sheet.AddPage(&first);
        sheet.AddPage(&second);
    }
    ~Sheet() override { sheet.DestroyWindow(); }

    TestPage first{L"First"}, second{L"Second", 14, L"Liberation Serif"}, third{L"Third", 14};
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
    third.refused = L"s"; // not to be shown: passed over
    sheet.SetActivePage(1);
    EXPECT_EQ(sheet.GetActivePage(), &second);
    sheet.SetActivePage(0);
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
    for (const int id : {IDOK, IDCANCEL, ID_APPLY_NOW})
        EXPECT_FALSE(sheet.GetDlgItem(id)->IsWindowVisible() || sheet.GetDlgItem(id)->IsWindowEnabled())
            << id;
    CRect client, button;
    sheet.GetClientRect(&client);
    sheet.GetDlgItem(IDOK)->GetWindowRect(&button);
    sheet.ScreenToClient(&button);
    EXPECT_GE(button.top + 8, client.bottom) << "it ends where they would begin";
    sheet.EndDialog(IDOK);
    EXPECT_EQ(sheet.m_hWnd, nullptr);
}

TEST_F(Sheet, ShowsAllPagesInItsOwnFontAndKeepsTheirValues)
{
    sheet.AddPage(&third);
    ASSERT_TRUE(sheet.Create());
    LOGFONT fonts[3]{};
    CRect rects[3];
    for (const int i : {0, 2, 1})
    {
        sheet.SetActivePage(i);
        sheet.GetActivePage()->GetDlgItem(kValue)->GetWindowRect(&rects[i]);
        sheet.GetActivePage()->GetFont()->GetLogFont(&fonts[i]);
        EXPECT_EQ(rects[i], rects[0]) << i;
        EXPECT_EQ(fonts[i].lfHeight, fonts[0].lfHeight);
        EXPECT_STREQ(fonts[i].lfFaceName, fonts[0].lfFaceName);
    }
    EXPECT_EQ(second.log, L"s");
    second.SetDlgItemText(kValue, L"typed");
    second.value = L"set meanwhile";
    sheet.SetActivePage(0); // takes what was typed
    EXPECT_EQ(second.value, L"typed");
    second.value = L"shown again";
    sheet.SetActivePage(1);
    EXPECT_EQ(owtest::TextOf(*second.GetDlgItem(kValue)), L"shown again");
}

TEST_F(Sheet, PagesAnswerTheSystemInItsOwnTerms)
{
    first.refused = L"a";
    ASSERT_TRUE(sheet.Create());
    for (const auto& [code, answer] :
         {std::pair(PSN_APPLY, PSNRET_INVALID_NOCHANGEPAGE), {PSN_WIZBACK, -1}, {PSN_WIZNEXT, 7}})
    {
        NMHDR header{sheet, 0, code};
        EXPECT_EQ(first.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&header)), answer) << code;
    }
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
        {[](CPropertySheet& s) { s.PressButton(PSBTN_OK); }, IDOK, L"skao"},
        {[](CPropertySheet& s) { s.PressButton(PSBTN_CANCEL); }, IDCANCEL, L"sqc"},
        {[](CPropertySheet& s) { s.SendMessage(WM_SYSCOMMAND, SC_CLOSE); }, IDCANCEL, L"sqc"},
        {[](CPropertySheet& s) { s.EndDialog(77); }, 77, L"s"},
        {[](CPropertySheet& s) { s.GetPage(0)->EndDialog(78); }, 78, L"s"},
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
        EXPECT_EQ(seen.Find(log), 0) << result << " " << seen.GetString();
    }
    first.endsBy = 79;
    EXPECT_EQ(sheet.DoModal(), 79);
}

TEST_F(Sheet, APageMayKeepItOpen)
{
    first.refused = L"qa";
    owtest::ModalVisit visit(
        [&](CWnd&)
        {
            owtest::Press(VK_ESCAPE);
            owtest::Press(VK_RETURN);
            EXPECT_TRUE(sheet.ContinueModal());
            EXPECT_EQ(first.log, L"sqka");
            first.refused.Empty();
            for (const BOOL modified : {TRUE, FALSE})
            {
                first.SetModified(modified);
                EXPECT_EQ(sheet.GetDlgItem(ID_APPLY_NOW)->IsWindowEnabled(), modified);
            }
            first.CancelToClose();
            EXPECT_TRUE(owtest::PumpUntil([&] { return !sheet.GetDlgItem(IDCANCEL)->IsWindowEnabled(); }));
            owtest::Press(VK_RETURN);
        });
    EXPECT_EQ(sheet.DoModal(), IDOK);
    EXPECT_EQ(visit.Count(), 1);
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
    const auto& header = built.m_psh;
    EXPECT_EQ(header.nStartPage, 1u);
    constexpr DWORD pictures =
        PSH_USEHBMWATERMARK | PSH_WATERMARK | PSH_USEHPLWATERMARK | PSH_USEHBMHEADER | PSH_HEADER;
    EXPECT_EQ(header.dwFlags & pictures, pictures);
    EXPECT_EQ(std::tuple(header.hbmWatermark, header.hplWatermark, header.hbmHeader),
              std::tuple(HBITMAP(1), HPALETTE(2), HBITMAP(3)));
    EXPECT_EQ(CPropertySheet(L"plain", nullptr, 0, nullptr).m_psh.dwFlags & pictures, 0u);
    ASSERT_EQ(header.nPages, 1u);
    EXPECT_STREQ(header.ppsp->pszTitle, L"Cross section");
    EXPECT_STREQ(header.ppsp->pszHeaderTitle, L"Header");
    EXPECT_STREQ(header.ppsp->pszHeaderSubTitle, L"Subtitle");
}
} // namespace
