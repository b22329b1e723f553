// Controls as they are: what takes more than a message, and whether messages mean what the members say.

#include "HostWindow.h"

#include <afxpriv.h>

namespace
{
/// A list in report view with two columns and five items.
class ReportList : public CListCtrl
{
public:
    explicit ReportList(HostWindow& host, DWORD style = 0)
    {
        EXPECT_TRUE(Create(WS_VISIBLE | LVS_REPORT | style, CRect(0, 0, 300, 200), &host, 1));
        EXPECT_EQ(InsertColumn(0, L"name", LVCFMT_LEFT, 120) + InsertColumn(1, L"size", LVCFMT_LEFT, 80), 1);
        for (int i = 0; i < 5; ++i)
            InsertItem(i, L"beam");
    }
    void DrawItem(LPDRAWITEMSTRUCT) override { ++drawn; }

    int drawn = 0;
};
} // namespace

TEST(Controls, AreMadeAsPlainChildren)
{
    HostWindow host;
    const auto expect = [&](DWORD style, auto&&... made)
    {
        EXPECT_TRUE((made.Create(style, CRect(0, 0, 80, 20), &host, 7) && ...));
        EXPECT_TRUE(((made.GetParent() == &host && (made.GetExStyle() & WS_EX_DLGMODALFRAME) == 0) && ...));
    };
    expect(WS_VISIBLE, CSpinButtonCtrl(), CSliderCtrl(), CProgressCtrl(), CHeaderCtrl(), CTabCtrl(),
           CStatusBarCtrl(), CListCtrl(), CTreeCtrl()); // without being asked to be
    expect(CHILD, CToolBarCtrl(), CScrollBar());
}

TEST(ScrollBar, TheLimitIsWhatTheThumbCanReach)
{
    HostWindow host;
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(CHILD | SBS_HORZ, CRect(0, 0, 100, 20), &host, 1));
    bar.SetScrollRange(5, 99, FALSE);
    SCROLLINFO info = {0, SIF_PAGE, 0, 0, 10};
    EXPECT_TRUE(bar.SetScrollInfo(&info));
    bar.SetScrollPos(500);
    int low = 0, high = 0;
    bar.GetScrollRange(&low, &high);
    info = {};
    EXPECT_TRUE(bar.GetScrollInfo(&info, SIF_PAGE));
    EXPECT_EQ(Told(low, high, info.nPage, bar.GetScrollLimit(), bar.GetScrollPos()), "5,99,10,90,90");
}

TEST(ToolTip, KnowsItsToolsAndIsAskedForDisabledControlsToo)
{
    HostWindow host;
    host.BringWindowToTop();
    CButton button;
    button.Create(L"ok", CHILD | WS_DISABLED, CRect(10, 10, 60, 30), &host, 1);
    CToolTipCtrl tip;
    ASSERT_TRUE(tip.Create(&host, TTS_ALWAYSTIP));
    EXPECT_EQ(tip.GetOwner(), &host);
    EXPECT_TRUE(tip.SendMessage(WM_DISABLEMODAL)) << "tips of a modal dialog stay";
    EXPECT_TRUE(tip.AddTool(&button, L"the button"));
    EXPECT_TRUE(tip.AddTool(&host, 7u, CRect(200, 200, 220, 220), 5));
    CString text, corner;
    tip.GetText(text, &button);
    tip.GetText(corner, &host, 5);
    EXPECT_EQ(Told(text, corner), "the button,of a table");
    tip.UpdateTipText(7u, &button);
    tip.GetText(text, &button);
    EXPECT_EQ(text, L"of a table");
    CToolInfo info;
    EXPECT_TRUE(tip.GetToolInfo(info, &button) && info.hwnd == host.m_hWnd && info.uFlags == TTF_IDISHWND);
    EXPECT_FALSE(tip.GetToolInfo(info, &host, 6));
    EXPECT_STREQ(info.lpszText, L"");
    EXPECT_TRUE(tip.GetToolInfo(info, &host, 5));
    EXPECT_EQ(CRect(info.rect), CRect(200, 200, 220, 220));
    tip.SetToolRect(&host, 5, CRect(100, 100, 120, 120));
    EXPECT_FALSE(tip.HitTest(&host, CPoint(210, 210), &info));
    EXPECT_TRUE(tip.HitTest(&host, CPoint(110, 110), &info) && info.uId == 5);
    tip.DelTool(&host, 5);
    EXPECT_EQ(tip.GetToolCount(), 1);

    CPoint inside(20, 20);
    host.ClientToScreen(&inside);
    const LRESULT found = tip.SendMessage(TTM_WINDOWFROMPOINT, 0, reinterpret_cast<LPARAM>(&inside));
    EXPECT_EQ(reinterpret_cast<HWND>(found), button.m_hWnd);
}

TEST(Views, AnswerLongTextsAndWalkTheirSelection)
{
    HostWindow host;
    CTreeCtrl tree;
    ASSERT_TRUE(tree.Create(0, CRect(0, 0, 200, 200), &host, 1));
    EXPECT_EQ(tree.GetItemText(tree.InsertItem(CString(L'x', 200))).GetLength(), 200);
    EXPECT_EQ(tree.GetItemText(nullptr), L"");
    ReportList list(host, LVS_OWNERDRAWFIXED);
    EXPECT_TRUE(list.SetItemText(0, 1, CString(L'y', 300)));
    EXPECT_EQ(list.GetItemText(0, 1).GetLength(), 300);
    int order[2] = {1, 0}, read[2] = {};
    EXPECT_TRUE(list.SetColumnOrderArray(2, order) && list.GetColumnOrderArray(read)) << "all of them";
    EXPECT_TRUE(std::ranges::equal(read, order));
    EXPECT_EQ(list.GetFirstSelectedItemPosition(), nullptr);
    for (int i : {0, 2, 4})
        list.SetItemState(i, LVIS_SELECTED, LVIS_SELECTED);
    std::vector<int> walked;
    for (POSITION pos = list.GetFirstSelectedItemPosition(); pos != nullptr;)
        walked.push_back(list.GetNextSelectedItem(pos));
    EXPECT_EQ(walked, (std::vector<int>{0, 2, 4}));
    list.UpdateWindow();
    EXPECT_GE(list.drawn, 5);
}

TEST(ListControl, IsSortedByIndexAndKeepsItsDataAndTheOrderOfEquals)
{
    HostWindow host;
    ReportList list(host);
    list.DeleteAllItems();
    constexpr int count = 200;
    std::vector<int> model;
    for (int i = 0; i < count; ++i) // all numbers, scattered
    {
        model.push_back((i * 37) % count);
        list.SetItemData(list.InsertItem(i, std::to_wstring(model[i]).c_str()), 1000 + i);
    }
    const auto compare = [](LPARAM a, LPARAM b, LPARAM list) -> int
    {
        const auto number = [=](LPARAM item)
        { return _wtoi(reinterpret_cast<const CListCtrl*>(list)->GetItemText(static_cast<int>(item), 0)); };
        return number(a) / 10 - number(b) / 10;
    };
    EXPECT_TRUE(list.SortItemsEx(compare, reinterpret_cast<DWORD_PTR>(&list)));
    std::ranges::stable_sort(model, {}, [](int number) { return number / 10; });
    for (int i = 0; i < count; ++i)
    {
        EXPECT_EQ(list.GetItemText(i, 0), std::to_wstring(model[i]).c_str());
        EXPECT_EQ((list.GetItemData(i) - 1000) * 37 % count, static_cast<DWORD_PTR>(model[i]));
    }
    CListCtrl virtualList;
    ASSERT_TRUE(virtualList.Create(LVS_REPORT | LVS_OWNERDATA, CRect(0, 0, 9, 9), &host, 4));
    EXPECT_FALSE(virtualList.SortItemsEx(compare, 0));
}

TEST(Views, GiveImageListsWithAnObjectBackBeforeTheyGo)
{
    HostWindow host;
    CImageList images[5];
    for (CImageList& list : images)
        ASSERT_TRUE(list.Create(16, 16, ILC_COLOR24, 1, 1) && list.SetImageCount(2));
    ReportList list(host);
    for (const int kind : {LVSIL_NORMAL, LVSIL_SMALL, LVSIL_STATE})
        EXPECT_EQ(list.SetImageList(&images[kind], kind), nullptr);
    CTreeCtrl tree;
    ASSERT_TRUE(tree.Create(0, CRect(0, 0, 200, 200), &host, 1));
    tree.SetImageList(&images[3], TVSIL_NORMAL);
    tree.SetImageList(&images[4], TVSIL_STATE);
    host.DestroyWindow();
    for (const CImageList& kept : images)
        EXPECT_EQ(kept.GetImageCount(), 2) << "the style alone would have the control destroy it";
}

TEST(ToolBar, TellsTheSizeOfItsButtonsAndKnowsItsTexts)
{
    struct : CToolBarCtrl
    {
        WPARAM sizeOfButtons = 0;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == TB_BUTTONSTRUCTSIZE)
                sizeOfButtons = wParam;
            return CToolBarCtrl::WindowProc(message, wParam, lParam);
        }
    } bar;
    HostWindow host;
    ASSERT_TRUE(bar.Create(CHILD, CRect(), &host, 5));
    EXPECT_EQ(bar.sizeOfButtons, sizeof(TBBUTTON));
    EXPECT_EQ(bar.AddStrings(L"cut\0paste\0"), 0);
    EXPECT_EQ(bar.AddString(7), 2);
    EXPECT_EQ(Told(bar.GetString(1), bar.GetString(2), bar.GetString(9)), "paste,of a table,");
}
