// CPageTreeCtrl, with real mouse and keyboard: how it fills itself, whom it tells, where the focus stays.

#include "PagesHost.h"

#include "Handles.h"

#include <memory>

TEST_F(Pages, TheTreeFillsItselfInTheOrderOfAddingWithoutASelection)
{
    constexpr DWORD kStyles =
        TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_DISABLEDRAGDROP | TVS_SHOWSELALWAYS;
    EXPECT_EQ(m_tree.GetStyle() & (kStyles | TVS_NOSCROLL), kStyles) << "whatever the template says";
    RecordingPage strange(L"strange", nullptr, idStranger);
    const auto pLost = std::make_unique<RecordingPage>(L"lost", nullptr, idStranger);
    m_tree.PageAdded(pLost.get(), &strange);
    EXPECT_EQ(m_tree.GetItemData(m_tree.PageToItem(pLost.get())), reinterpret_cast<DWORD_PTR>(pLost.get()));
    const std::function<std::string(HTREEITEM)> branch = [&](HTREEITEM hItem)
    {
        std::string text;
        for (; hItem; hItem = m_tree.GetNextSiblingItem(hItem))
        {
            EXPECT_FALSE(m_tree.GetItemState(hItem, TVIS_EXPANDED) & TVIS_EXPANDED);
            text += std::string(CStringA(m_tree.GetItemText(hItem))) + "(" +
                    branch(m_tree.GetChildItem(hItem)) + ")";
        }
        return text;
    };
    EXPECT_EQ(branch(m_tree.GetRootItem()), "Alpha(Gamma())Beta()Delta(Earlier()Later())lost()");
    EXPECT_EQ(m_tree.GetCurrentPage(), nullptr);
    EXPECT_EQ(TakeSelections(), Calls{});
}

TEST_F(Pages, TheTreeIsSelectedByMouseAndArrowsAndKeepsTheFocus)
{
    m_tree.SetCurrentPage(Page(idAlpha));
    TakeCalls();
    CRect rect;
    m_tree.GetItemRect(m_tree.PageToItem(Page(idBeta)), rect, TRUE);
    owtest::Click(m_tree, rect.CenterPoint());
    EXPECT_EQ(TakeCalls(), (Calls{"Beta after Alpha", "bind Beta", "focus fields"}))
        << "in the order of registering";
    EXPECT_TRUE(HasFocus(m_tree));
    EXPECT_EQ(m_tree.GetCurrentPage(), Page(idBeta));
    EXPECT_EQ(owtest::TextOf(m_host.caption), L"Beta");

    for (const WORD key : {VK_UP, VK_RIGHT, VK_DOWN}) // the second opens the branch
        owtest::Press(key);
    EXPECT_EQ(TakeSelections(), (Calls{"Alpha after Beta", "Gamma after Alpha"}));
    EXPECT_TRUE(HasFocus(m_tree));
    EXPECT_EQ(m_host.Shown(), "Gamma");

    owtest::Press(VK_RETURN);
    EXPECT_TRUE(HasFocus(*m_host.GetDlgItem(IDC_NAME))) << "Enter moves on";
    EXPECT_EQ(m_host.oks, 0);
    EXPECT_EQ(TakeSelections(), Calls{});
}

TEST_F(Pages, TheTreeTakesTheSameRoadWhenItIsSelectedByCode)
{
    m_tree.SetCurrentPage(Page(idGamma));
    EXPECT_EQ(TakeSelections(), Calls{"Gamma after -"});
    EXPECT_TRUE(HasFocus(m_tree));
    RecordingPage strange(L"strange", nullptr, idStranger);
    for (CPage* pPage : {Page(idGamma), &strange, static_cast<RecordingPage*>(nullptr)})
        m_tree.SetCurrentPage(pPage);
    CPageTreeCtrl().SetCurrentPage(Page(idGamma));
    EXPECT_EQ(TakeSelections(), Calls{});
    m_tree.SelectItem(nullptr);
    EXPECT_EQ(TakeSelections(), Calls{"- after Gamma"});
    EXPECT_EQ(owtest::TextOf(m_host.caption), L"");
    NMTREEVIEW nothing{};
    LRESULT result = 1;
    m_tree.OnTvnSelchanged(&nothing.hdr, &result);
    EXPECT_TRUE(result == 0 && TakeSelections() == Calls{"- after -"});
    EXPECT_EQ(m_host.Shown(), "");
}

TEST_F(Pages, TheFirstClientOfTheTreeStaysAndNullIsPassedOver)
{
    RecordingClient other("other"), unknown("unknown");
    m_tree.RegisterSelectPageNotification(&other, true);
    m_tree.RegisterSelectPageNotification(nullptr, true);
    m_tree.SetCurrentPage(Page(idAlpha));
    EXPECT_EQ(TakeSelections(), (Calls{"Alpha after -", "Alpha after -"}));
    for (RecordingClient* pClient : {&m_host.selects, &other, &unknown})
        m_tree.RegisterSelectPageNotification(pClient, false);
    m_tree.SetCurrentPage(Page(idBeta));
    EXPECT_EQ(TakeSelections(), Calls{"Beta after Alpha"});
}

TEST(PagesHostLife, OpeningAndClosingGivesBackEverything)
{
    const auto openAndClose = [](int nTimes)
    {
        for (int i = 0; i < nTimes; ++i)
        {
            TreeHost host;
            ASSERT_TRUE(host.Open());
            for (const Identity id : {idAlpha, idGamma, idBeta})
                host.tree.SetCurrentPage(host.Page(id));
            host.UpdateWindow();
            owtest::Pump();
        }
        TakeCalls();
        for (LONG nIdle = 0; AfxGetApp()->OnIdle(nIdle); ++nIdle) // what MFC keeps until then
            ;
    };
    openAndClose(5);
    const owtest::HandleCount before = owtest::CountHandles();
    const size_t nBytes = owtest::CountHeapBytes();
    openAndClose(20);
    EXPECT_EQ(owtest::CountHandles(), before);
    EXPECT_LT(owtest::CountHeapBytes(), nBytes + 2048) << "less than a hundred bytes of each host";
}
