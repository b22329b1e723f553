// The common controls.

#include "HostWindow.h"

#include <gtest/gtest.h>

namespace
{
template <class Control> bool IsMadeAsChild(HostWindow& host)
{
    Control control;
    return control.Create(WS_VISIBLE, CRect(0, 0, 80, 20), &host, 7) && control.GetParent() == &host;
}
} // namespace

TEST(CommonControls, AreChildrenWithoutBeingAskedToBe)
{
    HostWindow host;
    EXPECT_TRUE(IsMadeAsChild<CSpinButtonCtrl>(host));
    EXPECT_TRUE(IsMadeAsChild<CSliderCtrl>(host));
    EXPECT_TRUE(IsMadeAsChild<CProgressCtrl>(host));
    EXPECT_TRUE(IsMadeAsChild<CHotKeyCtrl>(host));
    EXPECT_TRUE(IsMadeAsChild<CHeaderCtrl>(host));
    EXPECT_TRUE(IsMadeAsChild<CTabCtrl>(host));
    EXPECT_TRUE(IsMadeAsChild<CStatusBarCtrl>(host));
    EXPECT_TRUE(IsMadeAsChild<CListCtrl>(host));
    EXPECT_TRUE(IsMadeAsChild<CTreeCtrl>(host));
}

TEST(SpinButton, ShowsItsPositionInTheBuddyAndKeepsWideRanges)
{
    HostWindow host;
    CEdit buddy;
    buddy.Create(CHILD, CRect(0, 0, 80, 20), &host, 1);
    CSpinButtonCtrl spin;
    ASSERT_TRUE(spin.Create(CHILD | UDS_SETBUDDYINT | UDS_NOTHOUSANDS, CRect(80, 0, 100, 20), &host, 2));
    EXPECT_EQ(spin.SetBuddy(&buddy), nullptr);
    EXPECT_EQ(spin.GetBuddy(), &buddy);
    spin.SetRange32(-100000, 100000);
    spin.SetPos32(-70000);
    CString text;
    buddy.GetWindowText(text);
    EXPECT_EQ(text, L"-70000");
    int lower = 0;
    int upper = 0;
    spin.GetRange32(lower, upper);
    EXPECT_EQ(lower, -100000);
    EXPECT_EQ(upper, 100000);

    spin.SetRange(-5, 5);
    spin.GetRange(lower, upper);
    EXPECT_EQ(lower, -5);
    EXPECT_EQ(upper, 5);
    buddy.SetWindowText(L"3");
    EXPECT_EQ(spin.GetPos(), 3);
    buddy.SetWindowText(L"far");
    EXPECT_NE(HIWORD(spin.GetPos()), 0) << "no number";
}

TEST(Slider, RangeAndPositionHave32Bits)
{
    HostWindow host;
    CSliderCtrl slider;
    ASSERT_TRUE(slider.Create(CHILD | TBS_AUTOTICKS, CRect(0, 0, 200, 30), &host, 1));
    slider.SetRange(-100000, 100000);
    int low = 0;
    int high = 0;
    slider.GetRange(low, high);
    EXPECT_EQ(low, -100000);
    EXPECT_EQ(high, 100000);
    slider.SetPos(200000);
    EXPECT_EQ(slider.GetPos(), 100000);
    EXPECT_GE(slider.SetPageSize(7), 0);
    EXPECT_EQ(slider.GetPageSize(), 7);
}

TEST(Progress, RangeStepAndPosition)
{
    HostWindow host;
    CProgressCtrl progress;
    ASSERT_TRUE(progress.Create(CHILD, CRect(0, 0, 200, 20), &host, 1));
    progress.SetRange32(0, 1000000);
    int low = -1;
    int high = -1;
    progress.GetRange(low, high);
    EXPECT_EQ(low, 0);
    EXPECT_EQ(high, 1000000);
    EXPECT_EQ(progress.SetPos(500000), 0);
    progress.SetStep(10);
    EXPECT_EQ(progress.StepIt(), 500000);
    EXPECT_EQ(progress.OffsetPos(5), 500010);
    EXPECT_EQ(progress.GetPos(), 500015);
}

TEST(ToolTip, ToolsAreWholeWindowsOrRectangles)
{
    HostWindow host;
    CButton button;
    button.Create(L"ok", CHILD, CRect(10, 10, 60, 30), &host, 1);
    CToolTipCtrl tip;
    ASSERT_TRUE(tip.Create(&host, TTS_ALWAYSTIP));
    EXPECT_TRUE(tip.AddTool(&button, L"the button"));
    EXPECT_TRUE(tip.AddTool(&host, L"a corner", CRect(200, 200, 220, 220), 5));
    EXPECT_EQ(tip.GetToolCount(), 2);

    CString text;
    tip.GetText(text, &button);
    EXPECT_EQ(text, L"the button");
    tip.UpdateTipText(L"another corner", &host, 5);
    tip.GetText(text, &host, 5);
    EXPECT_EQ(text, L"another corner");

    CToolInfo info;
    EXPECT_TRUE(tip.GetToolInfo(info, &button));
    EXPECT_EQ(info.hwnd, host.m_hWnd);
    EXPECT_NE(info.uFlags & TTF_IDISHWND, 0u);
    EXPECT_FALSE(tip.GetToolInfo(info, &host, 6));

    tip.DelTool(&button);
    EXPECT_EQ(tip.GetToolCount(), 1);
    EXPECT_EQ(tip.SetMaxTipWidth(120), -1);
    EXPECT_EQ(tip.GetMaxTipWidth(), 120);
    tip.SetDelayTime(TTDT_INITIAL, 250);
    EXPECT_EQ(tip.GetDelayTime(TTDT_INITIAL), 250);
}

TEST(ToolTip, LooksForToolsAmongDisabledControlsToo)
{
    HostWindow host;
    host.BringWindowToTop();
    CButton button;
    button.Create(L"ok", CHILD | WS_DISABLED, CRect(10, 10, 60, 30), &host, 1);
    CToolTipCtrl tip;
    ASSERT_TRUE(tip.Create(&host));
    CPoint inside(20, 20);
    host.ClientToScreen(&inside);
    const LRESULT found = tip.SendMessage(TTM_WINDOWFROMPOINT, 0, reinterpret_cast<LPARAM>(&inside));
    EXPECT_EQ(reinterpret_cast<HWND>(found), button.m_hWnd);
}

TEST(TreeControl, ItemsAreFoundChangedAndCounted)
{
    HostWindow host;
    CTreeCtrl tree;
    ASSERT_TRUE(tree.Create(CHILD | TVS_HASBUTTONS | TVS_CHECKBOXES, CRect(0, 0, 200, 200), &host, 1));
    const HTREEITEM root = tree.InsertItem(L"root");
    const HTREEITEM second = tree.InsertItem(L"b", root);
    const HTREEITEM first = tree.InsertItem(L"a", root, TVI_FIRST);
    EXPECT_EQ(tree.GetCount(), 3u);
    EXPECT_EQ(tree.GetRootItem(), root);
    EXPECT_EQ(tree.GetChildItem(root), first);
    EXPECT_EQ(tree.GetNextSiblingItem(first), second);
    EXPECT_EQ(tree.GetParentItem(second), root);
    EXPECT_TRUE(tree.ItemHasChildren(root));

    const CString longText(L'x', 200);
    EXPECT_TRUE(tree.SetItemText(first, longText));
    EXPECT_EQ(tree.GetItemText(first), longText.Left(tree.GetItemText(first).GetLength()));
    EXPECT_GE(tree.GetItemText(first).GetLength(), 200);
    EXPECT_TRUE(tree.SetItemData(second, 0x123456789));
    EXPECT_EQ(tree.GetItemData(second), 0x123456789u);

    tree.SetCheck(second);
    EXPECT_EQ(tree.GetCheck(second), 1);
    EXPECT_TRUE(tree.Expand(root, TVE_EXPAND));
    EXPECT_NE(tree.GetItemState(root, TVIS_EXPANDED), 0u);
    CRect rect;
    EXPECT_TRUE(tree.GetItemRect(second, rect, TRUE));
    EXPECT_EQ(tree.HitTest(rect.CenterPoint()), second);
    EXPECT_TRUE(tree.SelectItem(second));
    EXPECT_EQ(tree.GetSelectedItem(), second);
    EXPECT_TRUE(tree.DeleteAllItems());
    EXPECT_EQ(tree.GetCount(), 0u);
}

TEST(ListControl, ColumnsAndItems)
{
    HostWindow host;
    CListCtrl list;
    ASSERT_TRUE(list.Create(CHILD | LVS_REPORT, CRect(0, 0, 300, 200), &host, 1));
    EXPECT_EQ(list.InsertColumn(0, L"name", LVCFMT_LEFT, 120), 0);
    EXPECT_EQ(list.InsertColumn(1, L"size", LVCFMT_RIGHT, 80, 1), 1);
    EXPECT_EQ(list.GetColumnWidth(1), 80);
    EXPECT_EQ(list.GetHeaderCtrl()->GetItemCount(), 2);

    EXPECT_EQ(list.InsertItem(0, L"beam"), 0);
    EXPECT_EQ(list.InsertItem(1, L"slab"), 1);
    const CString longText(L'y', 300);
    EXPECT_TRUE(list.SetItemText(0, 1, longText));
    EXPECT_EQ(list.GetItemText(0, 1).GetLength(), 300);
    EXPECT_TRUE(list.GetItemText(1, 1).IsEmpty());
    EXPECT_TRUE(list.SetItemData(1, 0x1234567890));
    EXPECT_EQ(list.GetItemData(1), 0x1234567890u);

    int order[2] = {1, 0};
    EXPECT_TRUE(list.SetColumnOrderArray(2, order));
    int read[2] = {};
    EXPECT_TRUE(list.GetColumnOrderArray(read));
    EXPECT_EQ(read[0], 1);
}

TEST(ListControl, TheSelectionIsWalkedByPositions)
{
    HostWindow host;
    CListCtrl list;
    ASSERT_TRUE(list.Create(CHILD | LVS_REPORT, CRect(0, 0, 300, 200), &host, 1));
    list.InsertColumn(0, L"name", LVCFMT_LEFT, 120);
    for (int i = 0; i < 5; ++i)
        list.InsertItem(i, L"item");
    EXPECT_EQ(list.GetFirstSelectedItemPosition(), nullptr);
    for (int i : {0, 2, 4})
        list.SetItemState(i, LVIS_SELECTED, LVIS_SELECTED);

    std::vector<int> walked;
    for (POSITION pos = list.GetFirstSelectedItemPosition(); pos != nullptr;)
        walked.push_back(list.GetNextSelectedItem(pos));
    EXPECT_EQ(walked, (std::vector<int>{0, 2, 4}));
}

TEST(ListControl, AnOwnerDrawnListDrawsItsItems)
{
    class DrawnList : public CListCtrl
    {
    public:
        int drawn = 0;
        void DrawItem(LPDRAWITEMSTRUCT) override { ++drawn; }
    } list;
    HostWindow host;
    ASSERT_TRUE(list.Create(CHILD | LVS_REPORT | LVS_OWNERDRAWFIXED, CRect(0, 0, 300, 200), &host, 1));
    list.InsertColumn(0, L"name", LVCFMT_LEFT, 120);
    list.InsertItem(0, L"item");
    list.UpdateWindow();
    EXPECT_GE(list.drawn, 1);
    list.DestroyWindow();
}

TEST(ListControl, AnImageListWithAnObjectOutlivesTheControl)
{
    HostWindow host;
    CImageList images;
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR24, 1, 1));
    ASSERT_EQ(images.Add(::LoadIcon(nullptr, IDI_APPLICATION)), 0);
    CListCtrl list;
    ASSERT_TRUE(list.Create(CHILD | LVS_REPORT, CRect(0, 0, 300, 200), &host, 1));
    EXPECT_EQ(list.SetImageList(&images, LVSIL_SMALL), nullptr);
    EXPECT_EQ(list.GetImageList(LVSIL_SMALL), &images);
    host.DestroyWindow();
    EXPECT_EQ(images.GetImageCount(), 1) << "the style alone would have the control destroy it";
}

TEST(TabControl, TabsAreInsertedSelectedAndMeasured)
{
    HostWindow host;
    CTabCtrl tab;
    ASSERT_TRUE(tab.Create(CHILD, CRect(0, 0, 300, 200), &host, 1));
    EXPECT_EQ(tab.InsertItem(0, L"one"), 0);
    EXPECT_EQ(tab.InsertItem(TCIF_TEXT | TCIF_PARAM, 1, L"two", 0, 99), 1);
    TCITEM item = {};
    item.mask = TCIF_PARAM;
    EXPECT_TRUE(tab.GetItem(1, &item));
    EXPECT_EQ(item.lParam, 99);
    EXPECT_EQ(tab.SetCurSel(1), 0);
    EXPECT_EQ(tab.GetCurSel(), 1);
    CRect display(0, 0, 300, 200);
    tab.AdjustRect(FALSE, display);
    EXPECT_GT(display.top, 10);
}

TEST(StatusBar, PanesHoldTextAndStyle)
{
    HostWindow host;
    CStatusBarCtrl bar;
    ASSERT_TRUE(bar.Create(CHILD, CRect(), &host, 1));
    int edges[2] = {100, -1};
    EXPECT_TRUE(bar.SetParts(2, edges));
    EXPECT_TRUE(bar.SetText(L"ready", 1, SBT_NOBORDERS));
    int style = 0;
    EXPECT_EQ(bar.GetText(1, &style), L"ready");
    EXPECT_EQ(style, SBT_NOBORDERS);
    EXPECT_EQ(bar.GetTextLength(1), 5);
}

TEST(HotKey, KeyAndModifiersAreOneWord)
{
    HostWindow host;
    CHotKeyCtrl key;
    ASSERT_TRUE(key.Create(CHILD, CRect(0, 0, 100, 20), &host, 1));
    key.SetHotKey('K', HOTKEYF_CONTROL);
    WORD code = 0;
    WORD modifiers = 0;
    key.GetHotKey(code, modifiers);
    EXPECT_EQ(code, 'K');
    EXPECT_EQ(modifiers, HOTKEYF_CONTROL);
}
