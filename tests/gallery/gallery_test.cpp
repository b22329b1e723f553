// The gallery as a host of pages: what it takes it gives back, also when it closes while a page is in use.

#include "GalleryVisit.h"

#include "PageIds.h"

#include <typeinfo>

TEST(GalleryDialogs, GiveBackWhatTheyTook)
{
    constexpr int kOpenings = 25;
    constexpr size_t kSystemsShare = 32; // bytes that Wine keeps of each window for good, rounded up
    int nWindows = 0;
    const auto use = [&](CWnd& window)
    {
        ForEachPage(window, [](CWnd&) {});
        const std::wstring title = owtest::TextOf(*window.GetDlgItem(IDC_PAGE_TITLE));
        const owtest::ModalVisit other(
            [&](CWnd& second)
            {
                const HWND hSelector = ::GetFocus();
                EXPECT_EQ(owtest::TextOf(*second.GetDlgItem(IDC_PAGE_TITLE)), title) << "at the same page";
                owtest::Press(VK_UP);
                EXPECT_NE(owtest::TextOf(*second.GetDlgItem(IDC_PAGE_TITLE)), title);
                EXPECT_EQ(::GetFocus(), hSelector) << "which is worked with";
                nWindows = owtest::CountHandles().windows;
                second.GetDlgItem(IDC_CLOSE)->SendMessage(BM_CLICK);
            });
        window.GetDlgItem(IDC_BY_COMBOS)->SendMessage(BM_CLICK);
        EXPECT_EQ(other.Count(), 1);
    };
    owtest::HandleCount before;
    size_t heapBefore = 0;
    for (int i = -3; i < kOpenings; ++i)
    {
        if (i == 0) // what is made once in a process is there now
        {
            before = owtest::CountHandles();
            heapBefore = owtest::CountHeapBytes();
        }
        OpenAndClose(use);
        AfxGetApp()->OnIdle(1); // frees temporary objects
    }
    EXPECT_EQ(owtest::CountHandles(), before);
    EXPECT_LE(owtest::CountHeapBytes(), heapBefore + kOpenings * nWindows * kSystemsShare);
}

TEST(GalleryDialogs, F6GoesToTheLogFromEveryKindOfControlAndBack)
{
    std::set<std::string> kinds; // one control of each is enough
    const auto goAndComeBack = [&](CWnd& page)
    {
        for (CWnd* pControl = page.GetWindow(GW_CHILD); pControl; pControl = pControl->GetNextWindow())
        {
            pControl->SetFocus();
            const HWND hFocus = ::GetFocus(); // an edit inside, for a combo box that has one
            if (!(pControl->GetStyle() & WS_TABSTOP) || !kinds.insert(typeid(*pControl).name()).second)
                continue;
            if (pControl->IsKindOf(RUNTIME_CLASS(CGridCtrl)))
                owtest::Press(VK_F2); // the editor of a cell
            for (const HWND hNext : {page.GetParent()->GetDlgItem(IDC_LOG)->m_hWnd, hFocus})
            {
                owtest::Press(VK_F6);
                EXPECT_EQ(::GetFocus(), hNext) << typeid(*pControl).name();
            }
        }
    };
    OpenAndClose([&](CWnd& window) { ForEachPage(window, goAndComeBack); });
    EXPECT_GT(kinds.size(), 20u);
}

// The host pre-sets the unit, and what the box holds is drawn. The gallery closes while the box is in use.
TEST(GalleryDialogs, ShowPreSetValuesAndThePreview)
{
    OpenAndClose(
        [](CWnd& window)
        {
            CWnd& preview = *window.GetDlgItem(IDC_PREVIEW);
            EXPECT_FALSE(preview.IsWindowVisible()) << "the first page has none";
            const auto drawn = [&]
            {
                preview.UpdateWindow();
                owtest::Surface picture(120, 80);
                owtest::Capture(preview, picture);
                return picture.extent(RGB(24, 52, 104)).Width();
            };
            auto& tree = static_cast<CPageTreeCtrl&>(*window.GetDlgItem(IDC_PAGES));
            while (tree.GetCurrentPage()->GetPageID() != ePageColumn)
                owtest::Press(VK_DOWN);
            EXPECT_TRUE(preview.IsWindowVisible());
            const int nBefore = drawn();
            owtest::Press(VK_F6);
            owtest::Press(VK_F6, true); // by the log to the tree, and from there
            owtest::Press(VK_TAB);      // into the page
            EXPECT_EQ(owtest::TextOf(*CWnd::GetFocus()), L"3.400");
            owtest::Press('A', false, true);
            owtest::Type(L"7");
            EXPECT_GT(drawn(), nBefore);
        });
}
