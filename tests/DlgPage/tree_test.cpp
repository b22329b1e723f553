// CPageTreeCtrl, with real mouse and keyboard: how it fills itself, whom it tells, where the focus stays.

#include "PagesHost.h"

TEST_F(Pages, TheTreeFillsItselfInTheOrderOfAddingWithoutASelection)
{
    constexpr DWORD kStyles =
        TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_DISABLEDRAGDROP | TVS_SHOWSELALWAYS;
    EXPECT_EQ(selector.GetStyle() & (kStyles | TVS_NOSCROLL), kStyles) << "whatever the template says";
    RecordingPage strange(L"strange", nullptr, 99);
    const auto pLost = std::make_unique<RecordingPage>(L"lost", nullptr, 99);
    selector.PageAdded(pLost.get(), &strange);
    EXPECT_EQ(selector.GetItemData(selector.PageToItem(pLost.get())),
              reinterpret_cast<DWORD_PTR>(pLost.get()));
    const std::function<std::string(HTREEITEM)> branch = [&](HTREEITEM hItem)
    {
        std::string text;
        for (; hItem; hItem = selector.GetNextSiblingItem(hItem))
        {
            text += CStringA(selector.GetItemText(hItem));
            text += '(' + branch(selector.GetChildItem(hItem)) + ')';
            EXPECT_FALSE(selector.GetItemState(hItem, TVIS_EXPANDED) & TVIS_EXPANDED);
        }
        return text;
    };
    EXPECT_EQ(branch(selector.GetRootItem()), "Alpha(Gamma())Beta()Delta(Earlier()Later())lost()");
    EXPECT_EQ(selector.GetCurrentPage(), nullptr);
    EXPECT_EQ(TakeCalls(kSelections), "");
}

TEST_F(Pages, TheTreeIsSelectedByMouseAndArrowsAndKeepsTheFocus)
{
    selector.SetCurrentPage(Page("Alpha"));
    TakeCalls();
    CRect rect;
    selector.GetItemRect(selector.PageToItem(Page("Beta")), rect, TRUE);
    owtest::Click(selector, rect.CenterPoint());
    EXPECT_EQ(TakeCalls(), "Beta after Alpha, bind Beta, focus fields") << "in the order of registering";
    EXPECT_TRUE(HasFocus(selector));
    EXPECT_EQ(selector.GetCurrentPage(), Page("Beta"));
    EXPECT_EQ(owtest::TextOf(caption), L"Beta");

    for (const WORD key : {VK_UP, VK_RIGHT, VK_DOWN}) // the second opens the branch
        owtest::Press(key);
    EXPECT_EQ(TakeCalls(kSelections), "Alpha after Beta, Gamma after Alpha");
    EXPECT_TRUE(HasFocus(selector) && Shown() == "Gamma");

    owtest::Press(VK_RETURN);
    EXPECT_TRUE(HasFocus(*GetDlgItem(IDC_NAME))) << "Enter moves on";
    EXPECT_EQ(oks, 0);
    selector.EnableToolTips();
    owtest::MoveTo(selector, CPoint(3, 3));
    EXPECT_TRUE(TakeCalls().starts_with("tip?")) << "and selects nothing";
}

TEST_F(Pages, TheTreeTakesTheSameRoadWhenItIsSelectedByCode)
{
    RecordingClient other("other");
    for (RecordingClient* pClient : {static_cast<RecordingClient*>(nullptr), &other})
        selector.RegisterSelectPageNotification(pClient, true);
    selector.SetCurrentPage(Page("Gamma"));
    EXPECT_EQ(TakeCalls(kSelections), "Gamma after -, Gamma after -");
    EXPECT_TRUE(HasFocus(selector));
    once["Beta after Gamma"] = [&] { selector.SetCurrentPage(Page("Gamma")); };
    selector.SetCurrentPage(Page("Beta"));
    EXPECT_EQ(TakeCalls(kSelections), "Beta after Gamma, Gamma after Beta, Gamma after Beta")
        << "not told of Beta any more";
    for (RecordingClient* pClient : {&selects, &other}) // the first one stays
        selector.RegisterSelectPageNotification(pClient, false);
    RecordingPage strange(L"strange", nullptr, 99);
    for (CPage* pPage : {Page("Gamma"), &strange, static_cast<RecordingPage*>(nullptr)})
        selector.SetCurrentPage(pPage);
    EXPECT_EQ(TakeCalls(kSelections), "");
    selector.SelectItem(nullptr);
    EXPECT_EQ(TakeCalls(kSelections), "- after Gamma");
    EXPECT_EQ(owtest::TextOf(caption), L"");
    NMTREEVIEW nothing{};
    LRESULT result = 1;
    selector.OnTvnSelchanged(&nothing.hdr, &result);
    EXPECT_TRUE(result == 0 && TakeCalls(kSelections) == "- after -" && Shown().empty());
}
