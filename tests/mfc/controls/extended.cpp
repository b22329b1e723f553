// Check list boxes, bitmap buttons, and tips.

#include "HostWindow.h"

#include <afxext.h>

namespace
{
/// The active parent of a control, which counts its check notifications.
struct Host : HostWindow
{
    Host() { owtest::Activate(m_hWnd); }
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override
    {
        checks += HIWORD(wParam) == CLBN_CHKCHANGE;
        return HostWindow::OnCommand(wParam, lParam);
    }
    int checks = 0;
};

class CheckList : public ::testing::Test
{
protected:
    void Make(DWORD style = 0)
    {
        ASSERT_TRUE(list.Create(CHILD | LBS_NOTIFY | LBS_HASSTRINGS | LBS_OWNERDRAWFIXED |
                                    LBS_NOINTEGRALHEIGHT | style,
                                CRect(0, 0, 120, 150), &host, 1));
        for (const wchar_t* text : {L"a", L"b", L"c"})
            list.AddString(text);
    }
    /// The checks of the three items.
    int Checks() { return 100 * list.GetCheck(0) + 10 * list.GetCheck(1) + list.GetCheck(2); }
    CPoint At(int item, int x)
    {
        CRect rect;
        list.GetItemRect(item, &rect);
        return CPoint(x, rect.CenterPoint().y);
    }
    void ClickBox(int item) { owtest::Click(list.m_hWnd, At(item, 5)); }

    Host host;
    CCheckListBox list;
};

TEST_F(CheckList, ChecksAreChangedByTheirStyle)
{
    Make();
    EXPECT_EQ(list.GetCheckStyle(), UINT{BS_AUTOCHECKBOX});
    list.SetCheck(0, 2); // no such state
    list.SetCheck(2, 1);
    list.SetCheck(3, 1); // no such item
    EXPECT_EQ(Checks(), 1);
    ClickBox(0);
    ClickBox(2);
    EXPECT_EQ(Told(Checks(), list.GetCurSel()), "100,2");
    owtest::DoubleClick(list.m_hWnd, At(1, 5)); // twice
    EXPECT_EQ(Told(Checks(), host.checks), "100,4");

    list.SetCheckStyle(BS_AUTO3STATE);
    for (const int check : {1, 2, 0, 1})
    {
        owtest::Press(VK_SPACE);
        EXPECT_EQ(list.GetCheck(1), check);
    }
    list.SetCheckStyle(BS_3STATE); // the program's business
    ClickBox(2);
    owtest::Press(VK_SPACE);
    EXPECT_EQ(Checks(), 110);
    list.SetCheckStyle(BS_AUTOCHECKBOX);
    owtest::Click(list.m_hWnd, At(0, 60)); // beside the box
    EXPECT_EQ(Told(Checks(), list.GetCurSel()), "110,0");
    list.Enable(0, FALSE);
    list.SetCurSel(1);
    ClickBox(0);
    EXPECT_EQ(Told(Checks(), list.GetCurSel(), list.IsEnabled(0)), "110,1,0")
        << "a disabled item is not selected";
    list.SetCurSel(0);
    owtest::Press(VK_SPACE);
    EXPECT_EQ(Told(Checks(), host.checks), "110,8");
    list.ResetContent();
    owtest::Press(VK_SPACE);
    EXPECT_EQ(host.checks, 8) << "an empty list has nothing to check";
}

TEST_F(CheckList, ChangesAllSelectedItemsAtOnce)
{
    Make(LBS_EXTENDEDSEL);
    list.SelItemRange(TRUE, 0, 1);
    ClickBox(1);
    EXPECT_EQ(Told(Checks(), list.GetSelCount()), "110,2");
    ClickBox(2); // not selected
    EXPECT_EQ(Told(Checks(), list.GetSelCount()), "111,1");
}

TEST_F(CheckList, SpaceSelectsFirstAndThenChecksWhereTheSelectionIsOneByOne)
{
    Make(LBS_MULTIPLESEL);
    list.SetFocus();
    owtest::Press(VK_DOWN); // to the second item
    for (const char* const state : {"0,1", "10,0", "10,1", "0,0"})
    {
        owtest::Press(VK_SPACE);
        EXPECT_EQ(Told(Checks(), list.GetSel(1)), state);
    }
}

TEST_F(CheckList, KeepsTextsAndTheProgramsDataAndFindsRoomForTheBox)
{
    Make();
    CString text, none(L"before");
    list.GetText(1, text);
    list.GetText(9, none);
    EXPECT_EQ(Told(text, none), "b,");
    list.SetCheck(1, 1);
    EXPECT_EQ(Told(list.GetItemData(1), INT_PTR(list.GetItemData(7))), Told(0, LB_ERR));
    list.SetItemData(1, 55);
    list.DeleteString(0);
    EXPECT_EQ(Told(list.GetCheck(0), list.GetItemData(0)), "1,55") << "both go with their item";
    EXPECT_GE(list.GetItemHeight(0), ::GetSystemMetrics(SM_CYMENUCHECK) + 1);
    list.SetItemHeight(0, 1);
    EXPECT_EQ(list.GetItemHeight(0), list.CalcMinimumItemHeight());
    CFont large;
    large.CreatePointFont(300, L"Liberation Sans");
    list.SetFont(&large);
    EXPECT_GT(list.GetItemHeight(0), 30);
    BOOL inCheck = TRUE;
    EXPECT_EQ(list.CheckFromPoint(CPoint(5, 149), inCheck), -1); // below the items
    EXPECT_FALSE(inCheck);
    list.SetFont(nullptr);
    const HWND made = host.AddControl(WC_LISTBOX, 2, LBS_OWNERDRAWFIXED | LBS_HASSTRINGS);
    ::SendMessage(made, LB_SETITEMHEIGHT, 0, 1);
    CCheckListBox ofTemplate;
    EXPECT_TRUE(ofTemplate.SubclassDlgItem(2, &host));
    EXPECT_EQ(ofTemplate.GetItemHeight(0), ofTemplate.CalcMinimumItemHeight());
}

/// Numbers as items, sorted downwards, as high as they are large.
struct NumberList : CCheckListBox
{
    std::string log;

    void DrawItem(LPDRAWITEMSTRUCT item) override { log += 'd' + std::to_string(item->itemData) + ' '; }
    void MeasureItem(LPMEASUREITEMSTRUCT item) override { item->itemHeight = UINT(item->itemData); }
    int CompareItem(LPCOMPAREITEMSTRUCT two) override { return int(two->itemData2 - two->itemData1); }
    void DeleteItem(LPDELETEITEMSTRUCT item) override { log += 'x' + std::to_string(item->itemData) + ' '; }
};

TEST_F(CheckList, WithoutTextsMeasuresSortsFindsDrawsAndDeletesItsItemsByTheirData)
{
    NumberList numbers;
    ASSERT_TRUE(numbers.Create(CHILD | LBS_OWNERDRAWVARIABLE | LBS_SORT, CRect(0, 0, 100, 100), &host, 1));
    const auto text = [](INT_PTR number) { return reinterpret_cast<LPCTSTR>(number); };
    for (const int item : {20, 30, 25, 25})
        numbers.AddString(text(item));
    INT_PTR read = 0;
    EXPECT_EQ(numbers.GetText(1, reinterpret_cast<LPTSTR>(&read)), int(sizeof read));
    EXPECT_EQ(numbers.SelectString(-1, text(20)), 3);
    EXPECT_EQ(Told(numbers.GetItemData(0), read, numbers.GetItemData(2), numbers.GetItemHeight(0),
                   numbers.GetItemHeight(1), numbers.FindStringExact(1, text(25)),
                   numbers.FindString(1, text(30)), numbers.FindString(-1, text(31)), numbers.GetCurSel(),
                   numbers.SelectString(-1, text(11)), numbers.VKeyToItem('A', 0),
                   numbers.CharToItem('a', 0)),
              "30,25,25,30,25,2,0,-1,3,-1,-1,-1");
    numbers.UpdateWindow();
    numbers.DeleteString(1);
    for (const char* logged : {"d20 ", "d25 ", "d30 ", "x25 "})
        EXPECT_NE(numbers.log.find(logged), std::string::npos) << logged;
}

TEST_F(CheckList, DrawsBoxTextAndSelection)
{
    Make();
    const auto draw = [&](UINT state)
    {
        auto picture = std::make_unique<owtest::Surface>(100, 20);
        DRAWITEMSTRUCT item{ODT_LISTBOX,     1, 0, ODA_DRAWENTIRE, state, list.m_hWnd, picture->dc().m_hDC,
                            {0, 0, 100, 20}, 0};
        host.SendMessage(WM_DRAWITEM, 1, reinterpret_cast<LPARAM>(&item));
        return picture;
    };
    const auto plain = draw(0);
    EXPECT_EQ(Told(plain->at(0, 0), plain->at(90, 10)),
              Told(::GetSysColor(COLOR_WINDOW), ::GetSysColor(COLOR_WINDOW)));
    EXPECT_EQ(draw(ODS_SELECTED)->at(0, 0), ::GetSysColor(COLOR_HIGHLIGHT));
    EXPECT_EQ(plain->count(CRect(0, 0, 100, 20), RGB(255, 0, 255)), 0) << "nothing is left out";
    EXPECT_EQ(draw(ODS_SELECTED)->at(90, 10), ::GetSysColor(COLOR_HIGHLIGHT));
    list.SetCheck(0, 1);
    EXPECT_FALSE(*draw(0) == *plain);
    list.SetCheck(0, 0);
    EXPECT_TRUE(*draw(0) == *plain);
    list.Enable(0, FALSE);
    EXPECT_FALSE(*draw(0) == *plain);
    EXPECT_EQ(draw(ODS_SELECTED)->at(90, 10), ::GetSysColor(COLOR_WINDOW)) << "never selected";
}

/// Bitmaps of one colour each, in the order up, pressed, focused, disabled; the last may be left out.
class ColourButton : public CBitmapButton
{
public:
    explicit ColourButton(int count)
    {
        CBitmap* const bitmaps[] = {&m_bitmap, &m_bitmapSel, &m_bitmapFocus, &m_bitmapDisabled};
        for (int i = 0; i < count; ++i)
            bitmaps[i]->CreateBitmap(12, 9, 1, 32, std::vector(12 * 9, Colour(i)).data());
    }
    static COLORREF Colour(int index) { return RGB(200, 60 * index, 200); } // the same read backwards
};

TEST(BitmapButton, ShowsTheBitmapOfItsState)
{
    Host host;
    const struct
    {
        int bitmaps;
        UINT state;
        int shown;
    } cases[] = {
        {4, 0, 0},
        {4, ODS_SELECTED | ODS_FOCUS, 1},
        {4, ODS_FOCUS, 2},
        {4, ODS_DISABLED, 3},
        {1, ODS_SELECTED, 0},
        {3, ODS_DISABLED, 0},
    };
    for (const auto& [bitmaps, state, shown] : cases)
    {
        ColourButton button(bitmaps);
        ASSERT_TRUE(button.Create(L"", WS_CHILD | BS_OWNERDRAW, CRect(0, 0, 50, 50), &host, 1));
        button.SizeToContent();
        CRect size;
        button.GetClientRect(&size);
        EXPECT_EQ(size, CRect(0, 0, 12, 9));
        owtest::Surface picture(20, 20);
        DRAWITEMSTRUCT item{ODT_BUTTON,     1, 0, ODA_DRAWENTIRE, state, button.m_hWnd, picture.dc().m_hDC,
                            {3, 4, 15, 13}, 0};
        host.SendMessage(WM_DRAWITEM, 1, reinterpret_cast<LPARAM>(&item));
        EXPECT_EQ(picture.extent(ColourButton::Colour(shown)), CRect(3, 4, 15, 13))
            << bitmaps << " " << state;
    }
    CBitmapButton missing;
    EXPECT_FALSE(missing.LoadBitmaps(L"NO_SUCH_BITMAP"));
    EXPECT_FALSE(missing.AutoLoad(99, &host));
    CButton plain;
    ASSERT_TRUE(plain.Create(L"Turn", WS_CHILD | BS_OWNERDRAW, CRect(0, 0, 1, 1), &host, 98));
    plain.UnsubclassWindow();
    CBitmapButton turn;
    EXPECT_TRUE(turn.AutoLoad(98, &host)); // TURNU and TURND; the others are missing
    CRect size;
    turn.GetClientRect(&size);
    EXPECT_GT(size.Width(), 8);
}

/// A window with two buttons and a label below the first, and tips that are the buttons' texts.
class TippedHost : public Host
{
public:
    TippedHost()
    {
        constexpr DWORD visible = CHILD;
        first.Create(L"first", visible, CRect(0, 0, 60, 30), this, 11);
        second.Create(L"second", visible, CRect(100, 0, 160, 30), this, 12);
        label.Create(L"label", visible, CRect(0, 60, 60, 90), this);
        EnableToolTips();
    }
    /// Whether this text, or for none no tip, is shown in the end.
    static bool Shows(std::wstring_view text)
    {
        return owtest::PumpUntil(
            [=]
            {
                HWND tip = nullptr;
                while ((tip = ::FindWindowEx(nullptr, tip, TOOLTIPS_CLASS, nullptr)) != nullptr &&
                       !(CWnd::FromHandlePermanent(tip) != nullptr && ::IsWindowVisible(tip)))
                    ;
                return (tip != nullptr ? owtest::TextOf(*CWnd::FromHandle(tip)) : L"") == text;
            });
    }
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* tool) const override
    {
        tool->uFlags = always;
        return Host::OnToolHitTest(point, tool);
    }
    CButton first, second;
    CStatic label;
    UINT always = 0;

protected:
    afx_msg BOOL OnNeedText(UINT, NMHDR* header, LRESULT*)
    {
        auto& tip = *reinterpret_cast<TOOLTIPTEXT*>(header);
        if ((tip.uFlags & TTF_IDISHWND) == 0)
            return FALSE;
        ::GetWindowText(reinterpret_cast<HWND>(header->idFrom), tip.szText, ARRAYSIZE(tip.szText));
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(TippedHost, Host)
    ON_NOTIFY_EX(TTN_NEEDTEXT, 0, &TippedHost::OnNeedText)
END_MESSAGE_MAP()

TEST(ToolTips, FollowTheMouseOverTheControlsOfAWindowThatHasThem)
{
    TippedHost host;
    const auto showsOver = [](const CWnd& control, std::wstring_view text)
    {
        owtest::MoveTo(control.m_hWnd, CPoint(5, 5));
        owtest::MoveTo(control.m_hWnd, CPoint(6, 6));
        return TippedHost::Shows(text);
    };
    EXPECT_EQ(Told(host.CWnd::OnToolHitTest(CPoint(5, 5), nullptr),
                   host.CWnd::OnToolHitTest(CPoint(5, 65), nullptr)),
              "11,-1");
    EXPECT_TRUE(showsOver(host.first, L"first"));
    EXPECT_TRUE(showsOver(host.second, L"second"));
    EXPECT_TRUE(showsOver(host.label, L""));
    EXPECT_TRUE(showsOver(host.second, L"second"));
    owtest::Click(host.second.m_hWnd);
    EXPECT_TRUE(host.Shows(L""));
    EXPECT_TRUE(showsOver(host.first, L"first"));
    owtest::Press(VK_SPACE);
    EXPECT_TRUE(host.Shows(L""));
    EXPECT_TRUE(showsOver(host.second, L"second"));
    host.EnableToolTips(FALSE);
    EXPECT_TRUE(host.Shows(L""));
    host.EnableToolTips();
    Host active;
    active.MoveWindow(500, 500, 50, 50);
    host.always = TTF_ALWAYSTIP; // also in a window that is not active
    EXPECT_TRUE(showsOver(host.first, L"first"));
}
} // namespace
