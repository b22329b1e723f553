// The classic controls.

#include "HostWindow.h"

namespace
{
/// Paints itself green and keeps its state.
class DrawnButton : public CButton
{
public:
    UINT state = 0;

    void DrawItem(LPDRAWITEMSTRUCT item) override
    {
        state = item->itemState;
        CDC::FromHandle(item->hDC)->FillSolidRect(&item->rcItem, RGB(0, 128, 0));
    }
};

/// Numbers as items, sorted downwards, as high as they are large.
template <class List>
class DrawnList : public List
{
public:
    std::vector<ULONG_PTR> deleted;
    int drawn = 0;

    void DrawItem(LPDRAWITEMSTRUCT) override { ++drawn; }
    void MeasureItem(LPMEASUREITEMSTRUCT item) override
    {
        item->itemHeight = static_cast<UINT>(item->itemData);
    }
    int CompareItem(LPCOMPAREITEMSTRUCT items) override
    {
        return static_cast<int>(items->itemData2) - static_cast<int>(items->itemData1);
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

TEST(Button, AnOwnerDrawnButtonReceivesItsDrawingFromTheParent)
{
    HostWindow host;
    DrawnButton button;
    ASSERT_TRUE(button.Create(L"draw", CHILD | BS_OWNERDRAW, CRect(0, 0, 50, 20), &host, 1));
    button.UpdateWindow();
    EXPECT_EQ(CClientDC(&button).GetPixel(25, 10), RGB(0, 128, 0));

    button.SetState(TRUE);
    button.UpdateWindow();
    EXPECT_NE(button.state & ODS_SELECTED, 0u);
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
    EXPECT_EQ(list.GetItemHeight(0), 30);
    EXPECT_EQ(list.GetItemHeight(1), 20);
    EXPECT_EQ(list.FindStringExact(-1, text(20)), 1);
    EXPECT_EQ(list.FindString(1, text(30)), 0); // all round
    EXPECT_EQ(list.FindString(-1, text(31)), LB_ERR);
    EXPECT_EQ(list.SelectString(-1, text(10)), 2);
    EXPECT_EQ(list.GetCurSel(), 2);
    INT_PTR read = 0;
    EXPECT_EQ(list.GetText(1, reinterpret_cast<LPTSTR>(&read)), static_cast<int>(sizeof read));
    EXPECT_EQ(read, 20);
    list.UpdateWindow();
    EXPECT_GE(list.drawn, 3);
    list.DeleteString(1);
    EXPECT_EQ(list.deleted, std::vector<ULONG_PTR>{20});
    EXPECT_EQ(list.VKeyToItem('A', 0) + list.CharToItem('a', 0), -2)
        << "the list does what it does by itself";
}

TEST(ListBox, AnswersTextsAsStringsAndTheItemAtAPoint)
{
    HostWindow host;
    CListBox list;
    ASSERT_TRUE(list.Create(CHILD | LBS_EXTENDEDSEL, CRect(0, 0, 100, 100), &host, 1));
    for (LPCTSTR item : {L"a", L"b", L"c", L"d"})
        list.AddString(item);
    list.SelItemRange(TRUE, 0, 3);
    list.SelItemRange(FALSE, 1, 2);
    EXPECT_EQ(list.GetSelCount(), 2);
    CString text(L"before");
    list.GetText(2, text);
    EXPECT_EQ(text, L"c");
    list.GetText(9, text);
    EXPECT_TRUE(text.IsEmpty());
    BOOL outside = TRUE;
    EXPECT_EQ(list.ItemFromPoint(CPoint(5, list.GetItemHeight(0) + 2), outside), 1u);
    EXPECT_FALSE(outside);
}

TEST(Edit, APackedSelectionAndTheSizeOfALine)
{
    HostWindow host;
    CEdit edit;
    ASSERT_TRUE(edit.Create(CHILD | ES_MULTILINE, CRect(0, 0, 200, 100), &host, 1));
    edit.SetWindowText(L"first\r\nsecond");
    edit.SetSel(static_cast<DWORD>(MAKELONG(1, -1)));
    EXPECT_EQ(edit.GetSel(), static_cast<DWORD>(MAKELONG(1, 13))) << "-1 is the end";
    TCHAR line[20] = {};
    EXPECT_EQ(edit.GetLine(1, line, 19), 6);
    EXPECT_EQ(CString(line, 6), L"second");
}

TEST(ScrollBar, TheLimitIsWhatTheThumbCanReach)
{
    HostWindow host;
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(CHILD | SBS_HORZ, CRect(0, 0, 100, 20), &host, 1));
    SCROLLINFO info = {};
    info.fMask = SIF_RANGE | SIF_PAGE;
    info.nMax = 99;
    info.nPage = 10;
    bar.SetScrollInfo(&info);
    EXPECT_EQ(bar.GetScrollLimit(), 90);
    info.nPage = 0;
    bar.SetScrollInfo(&info);
    EXPECT_EQ(bar.GetScrollLimit(), 99);
    info.nPage = 10;
    bar.SetScrollInfo(&info);
    bar.SetScrollPos(500);
    EXPECT_EQ(bar.GetScrollPos(), 90);
}
