// CPageTreeCtrl, with real mouse and keyboard: how it fills itself, whom it tells, where the focus stays.

#include "PagesHost.h"

#include "Handles.h"

#include <memory>

TEST_F(Pages, TheTreeFillsItselfInTheOrderOfAddingWithoutASelection)
{
    constexpr DWORD kStyles =
        TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_DISABLEDRAGDROP | TVS_SHOWSELALWAYS;
    EXPECT_EQ(m_selector.GetStyle() & (kStyles | TVS_NOSCROLL), kStyles) << "whatever the template says";
    RecordingPage strange(L"strange", nullptr, idStranger);
    const auto pLost = std::make_unique<RecordingPage>(L"lost", nullptr, idStranger);
    m_selector.PageAdded(pLost.get(), &strange);
    EXPECT_EQ(m_selector.GetItemData(m_selector.PageToItem(pLost.get())),
              reinterpret_cast<DWORD_PTR>(pLost.get()));
    const std::function<std::string(HTREEITEM)> branch = [&](HTREEITEM hItem)
    {
        std::string text;
        for (; hItem; hItem = m_selector.GetNextSiblingItem(hItem))
        {
            EXPECT_FALSE(m_selector.GetItemState(hItem, TVIS_EXPANDED) & TVIS_EXPANDED);
            text += std::string(CStringA(m_selector.GetItemText(hItem))) + "(" +
                    branch(m_selector.GetChildItem(hItem)) + ")";
        }
        return text;
    };
    EXPECT_EQ(branch(m_selector.GetRootItem()), "Alpha(Gamma())Beta()Delta(Earlier()Later())lost()");
    EXPECT_EQ(m_selector.GetCurrentPage(), nullptr);
    EXPECT_EQ(TakeSelections(), "");
}

TEST_F(Pages, TheTreeIsSelectedByMouseAndArrowsAndKeepsTheFocus)
{
    m_selector.SetCurrentPage(Page(idAlpha));
    TakeCalls();
    CRect rect;
    m_selector.GetItemRect(m_selector.PageToItem(Page(idBeta)), rect, TRUE);
    owtest::Click(m_selector, rect.CenterPoint());
    EXPECT_EQ(TakeCalls(), "Beta after Alpha, bind Beta, focus fields") << "in the order of registering";
    EXPECT_TRUE(HasFocus(m_selector));
    EXPECT_EQ(m_selector.GetCurrentPage(), Page(idBeta));
    EXPECT_EQ(owtest::TextOf(m_host.caption), L"Beta");

    for (const WORD key : {VK_UP, VK_RIGHT, VK_DOWN}) // the second opens the branch
        owtest::Press(key);
    EXPECT_EQ(TakeSelections(), "Alpha after Beta, Gamma after Alpha");
    EXPECT_TRUE(HasFocus(m_selector));
    EXPECT_EQ(m_host.Shown(), "Gamma");

    owtest::Press(VK_RETURN);
    EXPECT_TRUE(HasFocus(*m_host.GetDlgItem(IDC_NAME))) << "Enter moves on";
    EXPECT_EQ(m_host.oks, 0);
    EXPECT_EQ(TakeSelections(), "");
}

TEST_F(Pages, TheTreeTakesTheSameRoadWhenItIsSelectedByCode)
{
    RecordingClient other("other");
    for (RecordingClient* pClient : {static_cast<RecordingClient*>(nullptr), &other})
        m_selector.RegisterSelectPageNotification(pClient, true);
    m_selector.SetCurrentPage(Page(idGamma));
    EXPECT_EQ(TakeSelections(), "Gamma after -, Gamma after -");
    EXPECT_TRUE(HasFocus(m_selector));
    for (RecordingClient* pClient : {&m_host.selects, &other}) // the first one stays
        m_selector.RegisterSelectPageNotification(pClient, false);
    RecordingPage strange(L"strange", nullptr, idStranger);
    for (CPage* pPage : {Page(idGamma), &strange, static_cast<RecordingPage*>(nullptr)})
        m_selector.SetCurrentPage(pPage);
    CPageTreeCtrl().SetCurrentPage(Page(idGamma));
    EXPECT_EQ(TakeSelections(), "");
    m_selector.SelectItem(nullptr);
    EXPECT_EQ(TakeSelections(), "- after Gamma");
    EXPECT_EQ(owtest::TextOf(m_host.caption), L"");
    NMTREEVIEW nothing{};
    LRESULT result = 1;
    m_selector.OnTvnSelchanged(&nothing.hdr, &result);
    EXPECT_TRUE(result == 0 && TakeSelections() == "- after -");
    EXPECT_EQ(m_host.Shown(), "");
}

TEST(PagesHostLife, OpeningAndClosingGivesBackEverything)
{
    owtest::HandleCount before;
    for (int i = 0; i < 15; ++i)
    {
        before = i == 5 ? owtest::CountHandles() : before;
        PagesHost<OpenPageTree> host;
        ASSERT_TRUE(host.Open());
        for (const Identity id : {idAlpha, idGamma, idBeta})
            host.selector.SetCurrentPage(host.Page(id));
        host.UpdateWindow();
        owtest::Pump();
    }
    EXPECT_EQ(owtest::CountHandles(), before);
}
