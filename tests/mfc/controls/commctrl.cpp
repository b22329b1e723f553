// The common controls.

#include "HostWindow.h"

#include <gtest/gtest.h>

#include <cstring>

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
    EXPECT_TRUE(tree.SetItemData(second, 0x123456789));
    EXPECT_EQ(tree.GetItemData(second), 0x123456789u);
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
    int read[2] = {};
    EXPECT_TRUE(list.GetColumnOrderArray(read));
    EXPECT_EQ(read[0], 1);

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

namespace
{
#pragma GCC diagnostic ignored "-Wmissing-field-initializers" // they are zero, which is what is meant

/// What a call of a control sends, as the structure that the message points to.
template <class Structure>
class Sent
{
public:
    explicit Sent(CWnd& control) : m_control(control)
    {
        s_sent = {};
        m_before = ::SetWindowLongPtr(control, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure));
    }
    ~Sent() { ::SetWindowLongPtr(m_control, GWLP_WNDPROC, m_before); }
    /// Whether it was this one, byte by byte.
    bool Is(const Structure& expected) const { return memcmp(&s_sent, &expected, sizeof(Structure)) == 0; }

private:
    static LRESULT CALLBACK Procedure(HWND, UINT, WPARAM, LPARAM lParam)
    {
        s_sent = *reinterpret_cast<const Structure*>(lParam);
        return 42;
    }
    CWnd& m_control;
    LONG_PTR m_before;
    static inline Structure s_sent;
};
} // namespace

TEST(CommonControls, StructuresAreFilledFromTheArguments)
{
    HostWindow host;
    LPTSTR const text = const_cast<LPTSTR>(L"text");
    CListCtrl list;
    list.Create(0, CRect(), &host, 1);
    {
        const Sent<LVITEM> sent(list);
        EXPECT_EQ(list.SetItem(2, 3, 1, text, 6, 4, 5, 7, 8), 42);
        EXPECT_TRUE(sent.Is({1, 2, 3, 4, 5, text, 0, 6, 7, 8}));
        EXPECT_EQ(list.SetItem(2, 3, 1, text, 6, 4, 5, 7), 42);
        EXPECT_TRUE(sent.Is({1, 2, 3, 4, 5, text, 0, 6, 7}));
        EXPECT_EQ(list.InsertItem(1, 2, text, 4, 5, 6, 7), 42);
        EXPECT_TRUE(sent.Is({1, 2, 0, 4, 5, text, 0, 6, 7}));
        EXPECT_EQ(list.InsertItem(2, text, 6), 42);
        EXPECT_TRUE(sent.Is({LVIF_TEXT | LVIF_IMAGE, 2, 0, 0, 0, text, 0, 6}));
        EXPECT_EQ(list.SetItemState(2, 4, 5), 42);
        EXPECT_TRUE(sent.Is({0, 0, 0, 4, 5}));
        EXPECT_EQ(list.SetItemData(2, 7), 42);
        EXPECT_TRUE(sent.Is({LVIF_PARAM, 2, 0, 0, 0, nullptr, 0, 0, 7}));
    }
    {
        const Sent<LVCOLUMN> sent(list);
        EXPECT_EQ(list.InsertColumn(2, text, 1, 9, 3), 42);
        EXPECT_TRUE(sent.Is({LVCF_TEXT | LVCF_FMT | LVCF_WIDTH | LVCF_SUBITEM, 1, 9, text, 0, 3}));
        EXPECT_EQ(list.InsertColumn(2, text), 42);
        EXPECT_TRUE(sent.Is({LVCF_TEXT | LVCF_FMT, LVCFMT_LEFT, 0, text}));
    }
    {
        const Sent<LVBKIMAGE> sent(list);
        EXPECT_EQ(list.SetBkImage(HBITMAP(7), TRUE, 3, 4), 42);
        EXPECT_TRUE(sent.Is({LVBKIF_SOURCE_HBITMAP | LVBKIF_STYLE_TILE, HBITMAP(7), nullptr, 0, 3, 4}));
        EXPECT_EQ(list.SetBkImage(text, FALSE, 3, 4), 42);
        EXPECT_TRUE(sent.Is({LVBKIF_SOURCE_URL, nullptr, text, 0, 3, 4}));
    }
    CTreeCtrl tree;
    tree.Create(0, CRect(), &host, 2);
    const auto node = HTREEITEM(9);
    {
        const Sent<TVITEM> sent(tree);
        EXPECT_EQ(tree.SetItem(node, 1, text, 6, 7, 4, 5, 8), 42);
        EXPECT_TRUE(sent.Is({1 | TVIF_HANDLE, node, 4, 5, text, 0, 6, 7, 0, 8}));
        EXPECT_EQ(tree.SetItemImage(node, 6, 7), 42);
        EXPECT_TRUE(sent.Is({TVIF_HANDLE | TVIF_IMAGE | TVIF_SELECTEDIMAGE, node, 0, 0, nullptr, 0, 6, 7}));
        EXPECT_EQ(tree.SetItemState(node, 4, 5), 42);
        EXPECT_TRUE(sent.Is({TVIF_HANDLE | TVIF_STATE, node, 4, 5}));
    }
    {
        const Sent<TVINSERTSTRUCT> sent(tree);
        TVINSERTSTRUCT like = {HTREEITEM(2), HTREEITEM(3), {}};
        EXPECT_EQ(tree.InsertItem(1, text, 6, 7, 4, 5, 8, HTREEITEM(2), HTREEITEM(3)), HTREEITEM(42));
        like.item = {1, nullptr, 4, 5, text, 0, 6, 7, 0, 8};
        EXPECT_TRUE(sent.Is(like));
        EXPECT_EQ(tree.InsertItem(text, 6, 7, HTREEITEM(2), HTREEITEM(3)), HTREEITEM(42));
        like.item = {TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE, nullptr, 0, 0, text, 0, 6, 7};
        EXPECT_TRUE(sent.Is(like));
    }
    CTabCtrl tab;
    tab.Create(0, CRect(), &host, 3);
    const Sent<TCITEM> sent(tab);
    EXPECT_EQ(tab.InsertItem(2, text, 3), 42);
    EXPECT_TRUE(sent.Is({TCIF_TEXT | TCIF_IMAGE, 0, 0, text, 0, 3}));
    EXPECT_EQ(tab.InsertItem(TCIF_PARAM, 2, text, 3, 4), 42);
    EXPECT_TRUE(sent.Is({TCIF_PARAM, 0, 0, text, 0, 3, 4}));
    EXPECT_EQ(tab.SetItemState(2, 5, 4), 42);
    EXPECT_TRUE(sent.Is({TCIF_STATE, 4, 5}));
}
