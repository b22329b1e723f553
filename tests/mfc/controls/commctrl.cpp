// Controls as they are: what takes more than a message, and whether messages mean what the members say.

#include "HostWindow.h"

#include <afxpriv.h>

#include <algorithm>

namespace
{
template <class... Controls>
void ExpectMadeAsPlainChildren(HostWindow& host)
{
    const auto expect = [&](auto&& control)
    {
        EXPECT_TRUE(control.Create(CHILD, CRect(0, 0, 80, 20), &host, 7));
        EXPECT_EQ(control.GetParent(), &host);
        EXPECT_EQ(control.GetExStyle() & (WS_EX_DLGMODALFRAME | WS_EX_NOPARENTNOTIFY), 0u);
    };
    (expect(Controls()), ...);
}

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

/// Numbers as items, sorted downwards, as high as they are large.
template <class List>
class DrawnList : public List
{
public:
    std::vector<ULONG_PTR> deleted;
    int drawn = 0;

    void DrawItem(LPDRAWITEMSTRUCT) override { ++drawn; }
    void MeasureItem(LPMEASUREITEMSTRUCT item) override { item->itemHeight = UINT(item->itemData); }
    int CompareItem(LPCOMPAREITEMSTRUCT items) override
    {
        return int(items->itemData2) - int(items->itemData1);
    }
    void DeleteItem(LPDELETEITEMSTRUCT item) override { deleted.push_back(item->itemData); }
};

template <class List>
class OwnerDrawnList : public testing::Test
{
};
using Lists = testing::Types<CListBox, CCheckListBox>;
TYPED_TEST_SUITE(OwnerDrawnList, Lists);
} // namespace

TEST(Controls, AreMadeAsPlainChildren)
{
    HostWindow host;
    ExpectMadeAsPlainChildren<CEdit, CListBox, CComboBox, CScrollBar, CSpinButtonCtrl, CSliderCtrl,
                              CProgressCtrl, CHeaderCtrl, CTabCtrl, CStatusBarCtrl, CListCtrl, CTreeCtrl,
                              CToolBarCtrl>(host);
}

TYPED_TEST(OwnerDrawnList, MeasuresSortsFindsDrawsAndDeletesItself)
{
    HostWindow host;
    DrawnList<TypeParam> list;
    ASSERT_TRUE(list.Create(CHILD | LBS_OWNERDRAWVARIABLE | LBS_SORT, CRect(0, 0, 100, 100), &host, 1));
    const auto text = [](INT_PTR number) { return reinterpret_cast<LPCTSTR>(number); };
    for (const int item : {10, 30, 20})
        list.AddString(text(item));
    EXPECT_EQ(list.GetItemData(0), 30u);
    EXPECT_EQ(list.GetItemData(2), 10u);
    EXPECT_EQ(list.GetItemHeight(0) * 100 + list.GetItemHeight(1), 3020);
    EXPECT_EQ(list.FindStringExact(-1, text(20)), 1);
    EXPECT_EQ(list.FindString(1, text(30)), 0); // all round
    EXPECT_EQ(list.FindString(-1, text(31)), LB_ERR);
    EXPECT_EQ(list.SelectString(-1, text(10)), 2);
    EXPECT_EQ(list.GetCurSel(), 2);
    EXPECT_EQ(list.SelectString(-1, text(11)), LB_ERR);
    INT_PTR read = 0;
    EXPECT_EQ(list.GetText(1, reinterpret_cast<LPTSTR>(&read)), static_cast<int>(sizeof read));
    EXPECT_EQ(read, 20);
    list.UpdateWindow();
    EXPECT_GE(list.drawn, 3);
    list.DeleteString(1);
    EXPECT_EQ(list.deleted, std::vector<ULONG_PTR>{20});
    EXPECT_EQ(list.VKeyToItem('A', 0) + list.CharToItem('a', 0), -2) << "what a list does by itself";
}

TEST(Lists, AnswerTheTextsOfTheirItems)
{
    HostWindow host;
    CListBox list;
    CComboBox combo;
    ASSERT_TRUE(list.Create(CHILD, CRect(0, 0, 100, 100), &host, 1));
    ASSERT_TRUE(combo.Create(CHILD | CBS_DROPDOWNLIST, CRect(0, 0, 100, 100), &host, 2));
    list.AddString(L"a text");
    combo.AddString(L"a text");
    CString text;
    list.GetText(0, text);
    EXPECT_EQ(text, L"a text");
    list.GetText(9, text);
    EXPECT_TRUE(text.IsEmpty());
    combo.GetLBText(0, text);
    EXPECT_EQ(text, L"a text");
}

TEST(ScrollBar, TheLimitIsWhatTheThumbCanReach)
{
    HostWindow host;
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(CHILD | SBS_HORZ, CRect(0, 0, 100, 20), &host, 1));
    bar.SetScrollRange(5, 99, FALSE);
    SCROLLINFO info = {0, SIF_PAGE, 0, 0, 10};
    EXPECT_TRUE(bar.SetScrollInfo(&info));
    int low = 0;
    int high = 0;
    bar.GetScrollRange(&low, &high);
    EXPECT_EQ(low * 100 + high, 599);
    EXPECT_EQ(bar.GetScrollLimit(), 90);
    bar.SetScrollPos(500);
    EXPECT_EQ(bar.GetScrollPos(), 90);
    info = {};
    EXPECT_TRUE(bar.GetScrollInfo(&info, SIF_PAGE));
    EXPECT_EQ(info.nPage, 10u);
    info.nPage = 0;
    bar.SetScrollInfo(&info);
    EXPECT_EQ(bar.GetScrollLimit(), 99);
    SCROLLBARINFO parts;
    EXPECT_TRUE(bar.GetScrollBarInfo(&parts));
    EXPECT_EQ(parts.rcScrollBar.right - parts.rcScrollBar.left, 100);
    EXPECT_TRUE(bar.EnableScrollBar(ESB_DISABLE_BOTH));
    EXPECT_FALSE(bar.IsWindowEnabled());
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
    EXPECT_TRUE(tip.AddTool(&host, L"a corner", CRect(200, 200, 220, 220), 5));
    CString text;
    tip.GetText(text, &button);
    EXPECT_EQ(text, L"the button");
    tip.UpdateTipText(7u, &host, 5);
    tip.GetText(text, &host, 5);
    EXPECT_EQ(text, L"of a table");
    CToolInfo info;
    EXPECT_FALSE(tip.GetToolInfo(info, &host, 6));
    EXPECT_STREQ(info.lpszText, L"");
    EXPECT_TRUE(tip.GetToolInfo(info, &host, 5));
    EXPECT_EQ(CRect(info.rect), CRect(200, 200, 220, 220));

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
    int order[2] = {1, 0};
    int read[2] = {};
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

TEST(ListControl, IsSortedByIndexAndKeepsItsData)
{
    HostWindow host;
    ReportList list(host);
    list.DeleteAllItems();
    constexpr int count = 200;
    for (int i = 0; i < count; ++i) // all numbers, scattered
        list.SetItemData(list.InsertItem(i, std::to_wstring((i * 37) % count).c_str()), 1000 + i);
    const auto compare = [](LPARAM a, LPARAM b, LPARAM list) -> int
    {
        const auto number = [=](LPARAM item)
        { return _wtoi(reinterpret_cast<const CListCtrl*>(list)->GetItemText(static_cast<int>(item), 0)); };
        return number(a) - number(b);
    };
    EXPECT_TRUE(list.SortItemsEx(compare, reinterpret_cast<DWORD_PTR>(&list)));
    for (int i = 0; i < count; ++i)
    {
        EXPECT_EQ(list.GetItemText(i, 0), std::to_wstring(i).c_str());
        EXPECT_EQ((list.GetItemData(i) - 1000) * 37 % count, static_cast<DWORD_PTR>(i));
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

TEST(ToolBar, KnowsItsButtonsTextsAndStates)
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
    EXPECT_EQ(bar.GetString(1), L"paste");
    EXPECT_EQ(bar.AddString(7), 2);
    EXPECT_EQ(bar.GetString(2), L"of a table");
    EXPECT_EQ(bar.GetString(9), L"");
    TBBUTTON button = {I_IMAGENONE, 10, TBSTATE_ENABLED, BTNS_CHECK};
    ASSERT_TRUE(bar.AddButtons(1, &button));
    bar.CheckButton(10);
    bar.EnableButton(10, FALSE);
    EXPECT_EQ(bar.GetState(10), TBSTATE_CHECKED);
    TBBUTTONINFO info{0, TBIF_LPARAM};
    EXPECT_FALSE(bar.GetButtonInfo(99, &info));
}
