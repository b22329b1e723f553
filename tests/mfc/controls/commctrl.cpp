// The common controls.

#include "HostWindow.h"

#include <tuple>

namespace
{
template <class... Controls>
void ExpectMadeAsChildren(HostWindow& host)
{
    const auto expect = [&](auto&& control)
    {
        EXPECT_TRUE(control.Create(WS_VISIBLE, CRect(0, 0, 80, 20), &host, 7));
        EXPECT_EQ(control.GetParent(), &host);
    };
    (expect(Controls()), ...);
}

/// A list in report view with one column.
class ReportList : public CListCtrl
{
public:
    explicit ReportList(HostWindow& host, DWORD style = 0)
    {
        EXPECT_TRUE(Create(CHILD | LVS_REPORT | style, CRect(0, 0, 300, 200), &host, 1));
        EXPECT_EQ(InsertColumn(0, L"name", LVCFMT_LEFT, 120), 0);
    }
    void DrawItem(LPDRAWITEMSTRUCT) override { ++drawn; }

    int drawn = 0;
};
} // namespace

TEST(CommonControls, AreChildrenWithoutBeingAskedToBe)
{
    HostWindow host;
    ExpectMadeAsChildren<CSpinButtonCtrl, CSliderCtrl, CProgressCtrl, CHeaderCtrl, CTabCtrl, CStatusBarCtrl,
                         CListCtrl, CTreeCtrl>(host);
}

TEST(SpinButton, UnpacksItsRangeAndTellsThatTheBuddyHasNoNumber)
{
    HostWindow host;
    CEdit buddy;
    buddy.Create(CHILD, CRect(0, 0, 80, 20), &host, 1);
    CSpinButtonCtrl spin;
    ASSERT_TRUE(spin.Create(CHILD | UDS_SETBUDDYINT | UDS_NOTHOUSANDS, CRect(80, 0, 100, 20), &host, 2));
    spin.SetBuddy(&buddy);
    EXPECT_EQ(spin.GetBuddy(), &buddy);
    int lower = 0;
    int upper = 0;
    spin.SetRange(-5, 5);
    spin.GetRange(lower, upper);
    EXPECT_EQ(lower, -5);
    EXPECT_EQ(upper, 5);
    buddy.SetWindowText(L"far");
    EXPECT_NE(HIWORD(spin.GetPos()), 0) << "no number";
}

TEST(CommonControls, RangesAndPanesAreUnpacked)
{
    HostWindow host;
    int low = 0;
    int high = 0;
    CSliderCtrl slider;
    ASSERT_TRUE(slider.Create(CHILD | TBS_ENABLESELRANGE, CRect(0, 0, 100, 30), &host, 1));
    slider.SetRange(-5, 70000); // more than the message for both bounds holds
    slider.GetRange(low, high);
    EXPECT_EQ(low, -5);
    EXPECT_EQ(high, 70000);
    slider.SetSelection(3, 9);
    slider.GetSelection(low, high);
    EXPECT_EQ(low * 10 + high, 39);
    CProgressCtrl progress;
    ASSERT_TRUE(progress.Create(CHILD, CRect(0, 30, 100, 50), &host, 2));
    progress.SetRange32(-7, 70000);
    progress.GetRange(low, high);
    EXPECT_EQ(low, -7);
    EXPECT_EQ(high, 70000);

    CStatusBarCtrl bar;
    ASSERT_TRUE(bar.Create(CHILD, CRect(), &host, 3));
    int edges[] = {100, -1};
    bar.SetParts(2, edges);
    EXPECT_TRUE(bar.SetText(L"pane", 1, SBT_POPOUT));
    int type = 0;
    EXPECT_EQ(bar.GetText(1, &type), L"pane");
    EXPECT_EQ(type, SBT_POPOUT);
    type = 0;
    EXPECT_EQ(bar.GetTextLength(1, &type), 4);
    EXPECT_EQ(type, SBT_POPOUT);
    int borders[3] = {};
    int spacing = 0;
    EXPECT_TRUE(bar.GetBorders(borders) && bar.GetBorders(low, high, spacing));
    EXPECT_EQ((std::vector<int>{low, high, spacing}), std::vector<int>(borders, borders + 3));
}

TEST(ToolTip, ToolsAreWholeWindowsOrRectanglesAlsoOfDisabledControls)
{
    HostWindow host;
    host.BringWindowToTop();
    CButton button;
    button.Create(L"ok", CHILD | WS_DISABLED, CRect(10, 10, 60, 30), &host, 1);
    CToolTipCtrl tip;
    ASSERT_TRUE(tip.Create(&host, TTS_ALWAYSTIP));
    EXPECT_TRUE(tip.AddTool(&button, L"the button"));
    EXPECT_TRUE(tip.AddTool(&host, L"a corner", CRect(200, 200, 220, 220), 5));
    CString text;
    tip.GetText(text, &button);
    EXPECT_EQ(text, L"the button");
    tip.UpdateTipText(L"another corner", &host, 5);
    tip.GetText(text, &host, 5);
    EXPECT_EQ(text, L"another corner");

    CToolInfo info;
    EXPECT_TRUE(tip.GetToolInfo(info, &button));
    EXPECT_NE(info.uFlags & TTF_IDISHWND, 0u);
    EXPECT_FALSE(tip.GetToolInfo(info, &host, 6));
    const CRect moved(1, 2, 3, 4);
    tip.SetToolRect(&host, 5, &moved);
    EXPECT_TRUE(tip.GetToolInfo(info, &host, 5));
    EXPECT_EQ(info.hwnd, host.m_hWnd);
    EXPECT_EQ(moved, CRect(info.rect));
    tip.DelTool(&button);
    EXPECT_EQ(tip.GetToolCount(), 1);

    CPoint inside(20, 20);
    host.ClientToScreen(&inside);
    const LRESULT found = tip.SendMessage(TTM_WINDOWFROMPOINT, 0, reinterpret_cast<LPARAM>(&inside));
    EXPECT_EQ(reinterpret_cast<HWND>(found), button.m_hWnd);
}

TEST(TreeControl, ItemsKeepLongTextsWideDataAndTheirPlaces)
{
    HostWindow host;
    CTreeCtrl tree;
    ASSERT_TRUE(tree.Create(CHILD | TVS_HASBUTTONS | TVS_CHECKBOXES, CRect(0, 0, 200, 200), &host, 1));
    const HTREEITEM root = tree.InsertItem(L"root");
    const HTREEITEM second = tree.InsertItem(L"b", root);
    const HTREEITEM first = tree.InsertItem(L"a", root, TVI_FIRST);
    EXPECT_EQ(tree.GetNextSiblingItem(first), second);
    EXPECT_TRUE(tree.SetItemText(first, CString(L'x', 200)));
    EXPECT_GE(tree.GetItemText(first).GetLength(), 200);
    tree.SetItemData(second, 0x123456789);
    EXPECT_EQ(tree.GetItemData(second), 0x123456789u);
    EXPECT_TRUE(tree.ItemHasChildren(root) && !tree.ItemHasChildren(second));
    EXPECT_EQ(tree.GetItemState(second, TVIS_EXPANDED), 0u);
    tree.SetCheck(second);
    EXPECT_EQ(tree.GetCheck(second), 1);
    EXPECT_TRUE(tree.Expand(root, TVE_EXPAND));
    CRect rect;
    EXPECT_TRUE(tree.GetItemRect(second, rect, TRUE));
    EXPECT_EQ(tree.HitTest(rect.CenterPoint()), second);
}

TEST(ListControl, ItemsKeepLongTextsAndWideDataAndColumnsTheirOrder)
{
    HostWindow host;
    ReportList list(host, LVS_OWNERDRAWFIXED);
    EXPECT_EQ(list.InsertColumn(1, L"size", LVCFMT_RIGHT, 80, 1), 1);
    for (int i = 0; i < 5; ++i)
        list.InsertItem(i, L"beam");
    EXPECT_TRUE(list.SetItemText(0, 1, CString(L'y', 300)));
    EXPECT_EQ(list.GetItemText(0, 1).GetLength(), 300);
    EXPECT_TRUE(list.SetItemData(0, 0x1234567890));
    EXPECT_EQ(list.GetItemData(0), 0x1234567890u);
    int order[2] = {1, 0};
    EXPECT_TRUE(list.SetColumnOrderArray(2, order));
    int read[4] = {};
    EXPECT_TRUE(list.GetColumnOrderArray(read) && list.GetHeaderCtrl()->SendMessage(HDM_GETITEMCOUNT) == 2);
    CHeaderCtrl header;
    ASSERT_TRUE(header.Attach(list.GetHeaderCtrl()->m_hWnd));
    EXPECT_TRUE(header.GetOrderArray(read + 2)) << "all of them";
    header.Detach();
    EXPECT_EQ(std::vector<int>(read, read + 4), (std::vector<int>{1, 0, 1, 0}));
    list.SetExtendedStyle(LVS_EX_CHECKBOXES);
    list.SetCheck(1);
    list.SetCheck(2);
    list.SetCheck(2, FALSE);
    EXPECT_EQ(list.GetCheck(1) * 10 + list.GetCheck(2), 10);
    int across = 0;
    int down = 0;
    EXPECT_TRUE(list.GetItemSpacing(TRUE, &across, &down) && list.SetItemPosition(0, CPoint(1, 1)));
    EXPECT_EQ(MAKELONG(across, down), list.SendMessage(LVM_GETITEMSPACING, TRUE));

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

TEST(ListControl, AnImageListWithAnObjectOutlivesTheControl)
{
    HostWindow host;
    CImageList images;
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR24, 1, 1));
    ASSERT_EQ(images.Add(::LoadIcon(nullptr, IDI_APPLICATION)), 0);
    ReportList list(host);
    EXPECT_EQ(list.SetImageList(&images, LVSIL_SMALL), nullptr);
    EXPECT_EQ(list.GetImageList(LVSIL_SMALL), &images);
    host.DestroyWindow();
    EXPECT_EQ(images.GetImageCount(), 1) << "the style alone would have the control destroy it";
}

#pragma GCC diagnostic ignored "-Wmissing-field-initializers" // they are zero, which is what is meant

namespace
{
// What lies between the members is nobody's.
auto Members(const LVITEM& s)
{
    return std::tie(s.mask, s.iItem, s.iSubItem, s.state, s.stateMask, s.pszText, s.cchTextMax, s.iImage,
                    s.lParam, s.iIndent, s.iGroupId, s.cColumns, s.puColumns, s.piColFmt, s.iGroup);
}
auto Members(const LVCOLUMN& s)
{
    return std::tie(s.mask, s.fmt, s.cx, s.pszText, s.cchTextMax, s.iSubItem, s.iImage, s.iOrder, s.cxMin,
                    s.cxDefault, s.cxIdeal);
}
auto Members(const LVBKIMAGE& s)
{
    return std::tie(s.ulFlags, s.hbm, s.pszImage, s.cchImageMax, s.xOffsetPercent, s.yOffsetPercent);
}
auto Members(const TVITEM& s)
{
    return std::tie(s.mask, s.hItem, s.state, s.stateMask, s.pszText, s.cchTextMax, s.iImage,
                    s.iSelectedImage, s.cChildren, s.lParam);
}
auto Members(const TVINSERTSTRUCT& s)
{
    return std::tuple_cat(std::tie(s.hParent, s.hInsertAfter), Members(s.item));
}
auto Members(const TCITEM& s)
{
    return std::tie(s.mask, s.dwState, s.dwStateMask, s.pszText, s.cchTextMax, s.iImage, s.lParam);
}

/// Whether a call makes a control send a structure that is like another, and hands on its answer.
template <class Structure, class Call>
bool Sends(CWnd& control, const Structure& expected, Call call)
{
    static Structure sent;
    const auto take = [](HWND, UINT, WPARAM, LPARAM lParam) -> LRESULT
    {
        sent = *reinterpret_cast<const Structure*>(lParam);
        return 42;
    };
    const WNDPROC procedure = take;
    const auto before = ::SetWindowLongPtr(control, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
    const bool answered = AfxToMessage<LRESULT>(call()) == 42;
    ::SetWindowLongPtr(control, GWLP_WNDPROC, before);
    return answered && Members(sent) == Members(expected);
}
} // namespace

TEST(CommonControls, StructuresAreFilledFromTheArguments)
{
    HostWindow host;
    LPTSTR const text = const_cast<LPTSTR>(L"text");
    CListCtrl list;
    list.Create(0, CRect(), &host, 1);
    const auto item = [&](const LVITEM& like, auto call)
    { EXPECT_TRUE(Sends(list, like, call)) << like.mask; };
    item({1, 2, 3, 4, 5, text, 0, 6, 7, 8}, [&] { return list.SetItem(2, 3, 1, text, 6, 4, 5, 7, 8); });
    item({1, 2, 3, 4, 5, text, 0, 6, 7}, [&] { return list.SetItem(2, 3, 1, text, 6, 4, 5, 7); });
    item({1, 2, 0, 4, 5, text, 0, 6, 7}, [&] { return list.InsertItem(1, 2, text, 4, 5, 6, 7); });
    item({LVIF_TEXT | LVIF_IMAGE, 2, 0, 0, 0, text, 0, 6}, [&] { return list.InsertItem(2, text, 6); });
    item({0, 0, 0, 4, 5}, [&] { return list.SetItemState(2, 4, 5); });
    item({LVIF_PARAM, 2, 0, 0, 0, nullptr, 0, 0, 7}, [&] { return list.SetItemData(2, 7); });
    const auto column = [&](const LVCOLUMN& like, auto call)
    { EXPECT_TRUE(Sends(list, like, call)) << like.mask; };
    constexpr UINT all = LVCF_TEXT | LVCF_FMT | LVCF_WIDTH | LVCF_SUBITEM;
    column({all, 1, 9, text, 0, 3}, [&] { return list.InsertColumn(2, text, 1, 9, 3); });
    column({LVCF_TEXT | LVCF_FMT, 0, 0, text}, [&] { return list.InsertColumn(2, text); });
    LVBKIMAGE image = {LVBKIF_SOURCE_HBITMAP | LVBKIF_STYLE_TILE, HBITMAP(7), nullptr, 0, 3, 4};
    EXPECT_TRUE(Sends(list, image, [&] { return list.SetBkImage(HBITMAP(7), TRUE, 3, 4); }));
    image = {LVBKIF_SOURCE_URL, nullptr, text, 0, 3, 4};
    EXPECT_TRUE(Sends(list, image, [&] { return list.SetBkImage(text, FALSE, 3, 4); }));

    CTreeCtrl tree;
    tree.Create(0, CRect(), &host, 2);
    const auto node = HTREEITEM(9);
    const auto set = [&](const TVITEM& like, auto call)
    { EXPECT_TRUE(Sends(tree, like, call)) << like.mask; };
    constexpr UINT images = TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    set({1 | TVIF_HANDLE, node, 4, 5, text, 0, 6, 7, 0, 8},
        [&] { return tree.SetItem(node, 1, text, 6, 7, 4, 5, 8); });
    set({TVIF_HANDLE | images, node, 0, 0, nullptr, 0, 6, 7}, [&] { return tree.SetItemImage(node, 6, 7); });
    set({TVIF_HANDLE | TVIF_STATE, node, 4, 5}, [&] { return tree.SetItemState(node, 4, 5); });
    TVINSERTSTRUCT insert = {HTREEITEM(2), HTREEITEM(3), {}};
    insert.item = {1, nullptr, 4, 5, text, 0, 6, 7, 0, 8};
    EXPECT_TRUE(Sends(tree, insert,
                      [&] { return tree.InsertItem(1, text, 6, 7, 4, 5, 8, HTREEITEM(2), HTREEITEM(3)); }));
    insert.item = {TVIF_TEXT | images, nullptr, 0, 0, text, 0, 6, 7};
    EXPECT_TRUE(Sends(tree, insert, [&] { return tree.InsertItem(text, 6, 7, HTREEITEM(2), HTREEITEM(3)); }));

    CTabCtrl tab;
    tab.Create(0, CRect(), &host, 3);
    const auto page = [&](const TCITEM& like, auto call)
    { EXPECT_TRUE(Sends(tab, like, call)) << like.mask; };
    page({TCIF_TEXT | TCIF_IMAGE, 0, 0, text, 0, 3}, [&] { return tab.InsertItem(2, text, 3); });
    page({TCIF_PARAM, 0, 0, text, 0, 3, 4}, [&] { return tab.InsertItem(TCIF_PARAM, 2, text, 3, 4); });
    page({TCIF_STATE, 4, 5}, [&] { return tab.SetItemState(2, 5, 4); });
    DWORD state = 1;
    page({TCIF_STATE, 0, 5}, [&] { return tab.GetItemState(2, 5, state); });
    EXPECT_EQ(state, 0u);
}
