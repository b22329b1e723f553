// The gallery as a host of pages: what it takes it gives back, also when it closes while a page is in use.

#include "GalleryVisit.h"

#include "ComboGalleryDialog.h"

#include <typeinfo>

namespace
{
constexpr size_t kSystemsShare = 32; ///< bytes that Wine keeps of each window for good, rounded up

/// Opens the dialog many times, and expects to find everything as it was.
template <class Dialog>
void ExpectNothingKept(int nOpenings, const Visit& useIt)
{
    int nWindows = 0;
    const auto open = [&]
    {
        OpenAndClose<Dialog>(
            [&](CWnd& window)
            {
                useIt(window);
                nWindows = owtest::CountHandles().windows;
            });
        AfxGetApp()->OnIdle(1); // frees temporary objects
    };
    for (int i = 0; i < 3; ++i)
        open(); // what is made once in a process is made now
    const owtest::HandleCount before = owtest::CountHandles();
    const size_t heapBefore = owtest::CountHeapBytes();
    for (int i = 0; i < nOpenings; ++i)
        open();
    EXPECT_EQ(owtest::CountHandles(), before);
    EXPECT_LE(owtest::CountHeapBytes(), heapBefore + nOpenings * nWindows * kSystemsShare);
}
} // namespace

TEST(GalleryDialogs, GiveBackWhatTheyTook)
{
    ExpectNothingKept<CGalleryDialog>(50, [](CWnd& window) { ForEachPage(window, [](CWnd&) {}); });
    const auto useCombos = [](CWnd& window)
    {
        owtest::Press(VK_DOWN);
        window.GetDlgItem(IDC_PAGE_CHECK)->SendMessage(BM_CLICK);
    };
    ExpectNothingKept<CComboGalleryDialog>(10, useCombos);
}

// Escape asks, and takes No for an answer; the button does not ask.
TEST(GalleryDialog, AsksBeforeEscapeLosesTheLog)
{
    for (const WORD answer : {VK_ESCAPE, VK_RETURN})
        OpenAndClose<CGalleryDialog>(
            [=](CWnd& window)
            {
                const owtest::ModalVisit question([=](CWnd&) { owtest::Press(answer); });
                owtest::Press(VK_ESCAPE); // in the tree
                EXPECT_EQ(question.Count(), 1);
                EXPECT_EQ(!window.IsWindowVisible(), answer == VK_RETURN);
            });
}

TEST(GalleryDialog, F6GoesToTheLogFromEveryKindOfControlAndBack)
{
    std::set<std::string> kinds; // one control of each is enough
    const auto goAndComeBack = [&](CWnd& window, CWnd& control)
    {
        wchar_t szClass[32] = L"";
        ::GetClassNameW(control, szClass, 32);
        const std::string kind = std::string(typeid(control).name()) + CStringA(szClass).GetString();
        if (!kinds.insert(kind).second)
            return;
        control.SetFocus();
        const HWND hFocus = ::GetFocus(); // an edit inside, for a combo box that has one
        if (control.IsKindOf(RUNTIME_CLASS(CGridCtrl)))
            owtest::Press(VK_F2); // the editor of a cell
        owtest::Press(VK_F6);
        EXPECT_EQ(::GetFocus(), window.GetDlgItem(IDC_LOG)->m_hWnd) << kind;
        owtest::Press(VK_F6);
        EXPECT_EQ(::GetFocus(), hFocus) << kind;
    };
    OpenAndClose<CGalleryDialog>(
        [&](CWnd& window)
        {
            goAndComeBack(window, *window.GetDlgItem(IDC_PAGES));
            ForEachPage(window,
                        [&](CWnd& page)
                        {
                            CWnd* const pFirst = page.GetNextDlgTabItem(nullptr);
                            CWnd* pControl = pFirst;
                            do
                                if (pControl)
                                    goAndComeBack(window, *pControl);
                            while (pControl && (pControl = page.GetNextDlgTabItem(pControl)) != pFirst);
                        });
        });
    EXPECT_GT(kinds.size(), 20u);
}

// Boxes report that they lose the focus while their dialog goes down.
TEST(GalleryDialog, ClosesWhileAPageIsInUse)
{
    OpenAndClose<CGalleryDialog>(
        [](CWnd&)
        {
            owtest::Press(VK_TAB); // from the tree into the first page
            owtest::Type(L"HEB 300");
            EXPECT_EQ(owtest::TextOf(*CWnd::GetFocus()), L"HEB 300");
        });
}

// The focus stays with the selector that is worked with; and the toggle answers each press of Space.
TEST(ComboGalleryDialog, LeavesTheFocusInTheSelector)
{
    const auto use = [](CWnd& window)
    {
        for (const int id : {IDC_PAGE_COMBO_BUTTON, IDC_PAGE_COMBO_CHECK, IDC_PAGE_BUTTON, IDC_PAGE_CHECK})
        {
            CWnd& selector = *window.GetDlgItem(id);
            const bool bToggle = id == IDC_PAGE_BUTTON || id == IDC_PAGE_CHECK;
            selector.SetFocus();
            for (const WORD key : {VK_DOWN, VK_UP, VK_DOWN, VK_UP})
            {
                const std::wstring before = owtest::TextOf(*window.GetDlgItem(IDC_PAGE_TITLE));
                owtest::Press(bToggle ? VK_SPACE : key);
                EXPECT_NE(owtest::TextOf(*window.GetDlgItem(IDC_PAGE_TITLE)), before);
                EXPECT_EQ(::GetFocus(), selector.m_hWnd);
            }
        }
    };
    OpenAndClose<CComboGalleryDialog>(use);
}

TEST(GalleryDialog, OpensTheOtherWindowAtTheSamePage)
{
    OpenAndClose<CGalleryDialog>(
        [](CWnd& window)
        {
            owtest::Press(VK_DOWN);
            owtest::ModalVisit other(
                [&](CWnd& second)
                {
                    EXPECT_EQ(owtest::TextOf(*second.GetDlgItem(IDC_PAGE_TITLE)), L"Numbers");
                    second.GetDlgItem(IDC_CLOSE)->SendMessage(BM_CLICK);
                });
            window.GetDlgItem(IDC_BY_COMBOS)->SendMessage(BM_CLICK);
            EXPECT_EQ(other.Count(), 1);
        });
}

// Column and Beam: the host pre-sets the unit of one, and both are drawn by the values that the boxes hold.
TEST(GalleryDialog, ShowsPreSetValuesAndThePreview)
{
    OpenAndClose<CGalleryDialog>(
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

// Each list is left with nothing chosen, and says so.
TEST(GalleryDialog, TakesListsWithNothingChosen)
{
    const auto chooseNothing = [](CWnd& page)
    {
        for (CWnd* pChild = page.GetWindow(GW_CHILD); pChild; pChild = pChild->GetNextWindow())
        {
            pChild->SendMessage(CB_SETCURSEL, WPARAM(-1)); // only a combo box knows it
            if (pChild->SendMessage(CB_GETCOUNT) > 0)
                page.SendMessage(WM_COMMAND, MAKEWPARAM(pChild->GetDlgCtrlID(), CBN_SELCHANGE),
                                 reinterpret_cast<LPARAM>(pChild->m_hWnd));
        }
        if (CWnd* pChosen = page.GetDlgItem(IDC_CHOSEN))
        {
            EXPECT_EQ(owtest::TextOf(*pChosen), L"none; none");
        }
    };
    OpenAndClose<CGalleryDialog>([&](CWnd& window) { ForEachPage(window, chooseNothing); });
}
