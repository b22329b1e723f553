// CPageTreeCtrl, with real mouse and keyboard: how it fills itself, whom it tells, where the focus stays.

#include "PagesHost.h"

#include "Handles.h"

#include <memory>

namespace
{
class PageTree : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_host.Open());
        m_host.log.Take();
    }

    Calls TakeSelections() { return m_host.TakeSelections(); }
    std::wstring Title() const { return owtest::TextOf(m_host.caption); }

    TreeHost m_host;
    OpenPageTree& m_tree = m_host.tree;
};
} // namespace

TEST_F(PageTree, FillsItselfInTheOrderOfAddingWithoutASelection)
{
    const auto text = [&](HTREEITEM hItem) { return Narrow(m_tree.GetItemText(hItem)); };
    RecordingPage* pDelta = m_host.AddPage(L"Delta", nullptr, m_host.alpha);
    const HTREEITEM hAlpha = m_tree.GetRootItem();
    EXPECT_EQ(text(hAlpha), "Alpha");
    EXPECT_EQ(text(m_tree.GetNextSiblingItem(hAlpha)), "Beta");
    EXPECT_EQ(text(m_tree.GetChildItem(hAlpha)), "Gamma");
    EXPECT_EQ(m_tree.GetNextSiblingItem(m_tree.GetChildItem(hAlpha)), m_tree.PageToItem(pDelta));
    EXPECT_FALSE(m_tree.GetItemState(hAlpha, TVIS_EXPANDED) & TVIS_EXPANDED);
    EXPECT_EQ(m_tree.GetCurrentPage(), nullptr);
    EXPECT_EQ(TakeSelections(), Calls{});
    constexpr DWORD kStyles =
        TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_DISABLEDRAGDROP | TVS_SHOWSELALWAYS;
    EXPECT_EQ(m_tree.GetStyle() & (kStyles | TVS_NOSCROLL), kStyles) << "whatever the template says";

    RecordingPage strange(L"strange", nullptr, 90, m_host.log);
    auto pLost = std::make_unique<RecordingPage>(L"lost", nullptr, 91, m_host.log);
    m_tree.PageAdded(pLost.get(), &strange);
    EXPECT_EQ(m_tree.GetParentItem(m_tree.PageToItem(pLost.get())), nullptr)
        << "an unknown parent: at the root";
    EXPECT_EQ(m_tree.GetItemData(m_tree.PageToItem(pLost.get())), reinterpret_cast<DWORD_PTR>(pLost.get()));
}

TEST_F(PageTree, TheMouseAndTheArrowsSelectAndTheTreeKeepsTheFocus)
{
    const auto treeHasFocus = [&] { return ::GetFocus() == m_tree.m_hWnd; };
    m_tree.SetCurrentPage(m_host.alpha);
    TakeSelections();
    m_host.ClickPage(m_host.beta);
    EXPECT_EQ(m_host.log.Take(), (Calls{"select Beta after Alpha", "bind Beta", "focus fields"}))
        << "clients in the order of registering";
    EXPECT_TRUE(treeHasFocus());
    EXPECT_EQ(m_tree.GetCurrentPage(), m_host.beta);
    EXPECT_EQ(Title(), L"Beta");

    owtest::Press(VK_UP);
    owtest::Press(VK_RIGHT); // opens the branch
    owtest::Press(VK_DOWN);
    EXPECT_EQ(TakeSelections(), (Calls{"select Alpha after Beta", "select Gamma after Alpha"}));
    EXPECT_TRUE(treeHasFocus());
    EXPECT_TRUE(m_host.plain->IsWindowVisible());
    EXPECT_FALSE(m_host.fields->IsWindowVisible());

    owtest::Press(VK_RETURN);
    EXPECT_EQ(::GetFocus(), ::GetDlgItem(m_host, IDC_NAME)) << "Enter moves on";
    EXPECT_EQ(m_host.oks, 0);
    EXPECT_EQ(TakeSelections(), Calls{});
}

TEST_F(PageTree, SelectingByCodeTakesTheSameRoad)
{
    m_tree.SetCurrentPage(m_host.gamma);
    EXPECT_EQ(TakeSelections(), Calls{"select Gamma after -"});
    EXPECT_EQ(::GetFocus(), m_tree.m_hWnd);
    RecordingPage strange(L"strange", nullptr, 90, m_host.log);
    for (CPage* pPage :
         {static_cast<CPage*>(m_host.gamma), static_cast<CPage*>(&strange), static_cast<CPage*>(nullptr)})
        m_tree.SetCurrentPage(pPage);
    CPageTreeCtrl().SetCurrentPage(m_host.gamma);
    EXPECT_EQ(TakeSelections(), Calls{});
    m_tree.SelectItem(nullptr);
    EXPECT_EQ(TakeSelections(), Calls{"select - after Gamma"});
    EXPECT_EQ(Title(), L"");
    EXPECT_FALSE(m_host.plain->IsWindowVisible());
}

TEST_F(PageTree, TheFirstClientStaysAndNullIsPassedOver)
{
    RecordingSelectClient other(m_host.log), unknown(m_host.log);
    for (ASelectPageNotificationClient* pClient : {&other, static_cast<RecordingSelectClient*>(nullptr)})
        m_tree.RegisterSelectPageNotification(pClient, true);
    m_tree.SetCurrentPage(m_host.alpha);
    EXPECT_EQ(TakeSelections().size(), 2u);
    for (ASelectPageNotificationClient* pClient : {&m_host.selects, &other, &unknown})
        m_tree.RegisterSelectPageNotification(pClient, false);
    m_tree.SetCurrentPage(m_host.beta);
    EXPECT_EQ(TakeSelections(), Calls{"select Beta after Alpha"});
}

TEST(PagesHostLife, OpeningAndClosingGivesBackEverything)
{
    const auto openAndClose = [](int nTimes)
    {
        for (int i = 0; i < nTimes; ++i)
        {
            TreeHost host;
            ASSERT_TRUE(host.Open());
            for (CPage* pPage : {host.alpha, host.gamma, host.beta})
                host.tree.SetCurrentPage(pPage);
            host.UpdateWindow();
            owtest::Pump();
        }
    };
    const auto heapBytes = []
    {
        for (LONG nIdle = 0; AfxGetApp()->OnIdle(nIdle); ++nIdle) // what MFC keeps until then
            ;
        return owtest::CountHeapBytes();
    };
    openAndClose(5);
    const owtest::HandleCount before = owtest::CountHandles();
    const size_t nBytes = heapBytes();
    openAndClose(20);
    EXPECT_EQ(owtest::CountHandles(), before);
    EXPECT_LT(heapBytes(), nBytes + 2048) << "less than a hundred bytes of each host";
}
