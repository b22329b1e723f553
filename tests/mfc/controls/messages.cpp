// What arrives at a control, and what becomes of the answer, where a member of its class does more than pass
// on: it fills a structure, packs or swaps its arguments, or converts what comes back.

#include "HostWindow.h"

#include <afxdtctl.h>

namespace
{
// What lies between the members of a structure is nobody's.
auto Members(const LVITEM& s)
{
    return std::tuple(s.mask, s.iItem, s.iSubItem, s.state, s.stateMask, s.pszText, s.cchTextMax, s.iImage,
                      s.lParam, s.iIndent, s.iGroupId, s.cColumns, s.puColumns, s.piColFmt, s.iGroup);
}
auto Members(const LVCOLUMN& s)
{
    return std::tuple(s.mask, s.fmt, s.cx, s.pszText, s.cchTextMax, s.iSubItem, s.iImage, s.iOrder);
}
auto Members(const TVITEM& s)
{
    return std::tuple(s.mask, s.hItem, s.state, s.stateMask, s.pszText, s.cchTextMax, s.iImage,
                      s.iSelectedImage, s.cChildren, s.lParam);
}
auto Members(const TVINSERTSTRUCT& s)
{
    return std::tuple_cat(std::tuple(s.hParent, s.hInsertAfter), Members(s.item));
}
auto Members(const TCITEM& s)
{
    return std::tuple(s.mask, s.dwState, s.dwStateMask, s.pszText, s.cchTextMax, s.iImage, s.lParam);
}
template <class Structure>
auto Members(const Structure& s)
{
    static_assert(std::has_unique_object_representations_v<Structure>);
    return std::string(reinterpret_cast<const char*>(&s), sizeof s);
}

constexpr LPARAM kAnswer = MAKELONG(42, 7);
constexpr LPARAM kNone = kAnswer; // what a call without an answer is said to have answered
LPARAM answerNext = kAnswer;
std::string replyNext; // what the control puts where the second parameter points
MSG previous;
MSG last;                      // the message that arrived last,
alignas(8) BYTE pointedTo[96]; // and what its second parameter pointed to, if to anything

LRESULT CALLBACK Record(HWND, UINT message, WPARAM wParam, LPARAM lParam)
{
    previous = std::exchange(last, {nullptr, message, wParam, lParam});
    if (const auto data = reinterpret_cast<const void*>(lParam);
        AfxIsValidAddress(data, sizeof pointedTo, FALSE))
        std::memcpy(pointedTo, data, sizeof pointedTo);
    const std::string reply = std::exchange(replyNext, "");
    reply.copy(reinterpret_cast<char*>(lParam), reply.size());
    return std::exchange(answerNext, kAnswer);
}

/// A control of a class, whose messages are recorded.
template <class Control>
struct Recorded : Control
{
    Recorded()
    {
        static const HWND window =
            ::CreateWindow(WC_STATIC, L"", WS_POPUP | 0x1F9, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
        ::SetWindowLongPtr(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Record));
        this->m_hWnd = window;
    }
    ~Recorded() override { this->m_hWnd = nullptr; }
};

template <class Value>
LPARAM Number(const Value& value)
{
    if constexpr (std::is_convertible_v<Value, const CWnd*>)
        return reinterpret_cast<LPARAM>(value->m_hWnd);
    else
        return AfxToMessage<LPARAM>(value);
}

/// Expects the last message; `second` is its parameter, or the structure to which that pointed.
template <class First = int, class Second = int>
void Arrived(UINT message, First first = 0, const Second& second = 0, int atLine = __builtin_LINE())
{
    EXPECT_EQ(last.message, message) << atLine;
    EXPECT_EQ(LPARAM(last.wParam), Number(first)) << atLine;
    if constexpr (std::is_class_v<Second>)
        EXPECT_EQ(Members(*reinterpret_cast<const Second*>(pointedTo)), Members(second)) << atLine;
    else
        EXPECT_EQ(last.lParam, Number(second)) << atLine;
}

/// And that its answer is the call's.
template <class Answer, class First = int, class Second = int>
void Sent(const Answer& answer, UINT message, First first = 0, const Second& second = 0,
          int atLine = __builtin_LINE())
{
    EXPECT_EQ(Number(answer), kAnswer) << atLine;
    Arrived(message, first, second, atLine);
}

/// What the next message is answered with, beside the number.
template <class Structure>
void Reply(const Structure& with, LPARAM answer = kAnswer)
{
    answerNext = answer;
    replyNext.assign(reinterpret_cast<const char*>(&with), sizeof with);
}

LPTSTR const text = const_cast<LPTSTR>(L"text");
int numbers[2] = {};
CRect rect;
const CPoint point(3, 4);
constexpr LPARAM pointPacked = MAKELPARAM(3, 4);
int one = 0, other = 0;
} // namespace

TEST(Messages, OfTheClassicControls)
{
    Recorded<CButton> button;
    EXPECT_EQ(button.GetButtonStyle(), 0xF9u);

    Recorded<CListBox> list;
    BOOL outside = FALSE;
    EXPECT_EQ(list.ItemFromPoint(point, outside) * 10 + outside, 427u);
    Arrived(LB_ITEMFROMPOINT, 0, pointPacked);
    Sent(list.SelItemRange(TRUE, 3, 5), LB_SELITEMRANGEEX, 3, 5);
    Sent(list.SelItemRange(FALSE, 3, 5), LB_SELITEMRANGEEX, 5, 3); // backwards is without

    Recorded<CEdit> edit;
    Sent((edit.SetMargins(3, 4), kNone), EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, pointPacked);
    WORD line[20] = {};
    Sent(edit.GetLine(1, reinterpret_cast<LPTSTR>(line), 19), EM_GETLINE, 1, line);
    EXPECT_EQ(line[0], 19) << "where the message looks for the size";
    Sent((edit.SetSel(DWORD(MAKELONG(3, -1)), TRUE), kNone), EM_SETSEL, 3, -1);
    Sent((edit.SetSel(3, 4), kNone), EM_SCROLLCARET);
    EXPECT_EQ(Told(previous.message, previous.wParam, previous.lParam), Told(EM_SETSEL, 3, 4));
    EXPECT_TRUE(edit.ShowBalloonTip(L"title", text, TTI_ERROR));
    const auto& tip = *reinterpret_cast<const EDITBALLOONTIP*>(pointedTo);
    EXPECT_EQ(Told(last.message, tip.cbStruct, tip.pszTitle, tip.pszText, tip.ttiIcon),
              Told(EM_SHOWBALLOONTIP, sizeof tip, L"title", text, TTI_ERROR));
}

TEST(Messages, OfTheCommonControls)
{
    HostWindow window;
    Recorded<CSpinButtonCtrl> spin;
    Sent((spin.SetRange(-7, -5), kNone), UDM_SETRANGE, 0, MAKELPARAM(-5, -7));
    answerNext = MAKELONG(-5, -7);
    spin.GetRange(one, other);
    EXPECT_EQ(one * 10 + other, -75) << "the lower bound is the high word";

    Recorded<CSliderCtrl> slider;
    slider.GetRange(one, other);
    EXPECT_EQ(Told(previous.message, last.message, one, other),
              Told(TBM_GETRANGEMIN, TBM_GETRANGEMAX, kAnswer, kAnswer));
    Sent((slider.SetRange(3, 4, TRUE), kNone), TBM_SETRANGEMAX, TRUE, 4);
    EXPECT_EQ(Told(previous.message, previous.wParam, previous.lParam), Told(TBM_SETRANGEMIN, TRUE, 3));
    Sent((slider.VerifyPos(), kNone), TBM_SETPOS, FALSE, kAnswer);
    Recorded<CProgressCtrl> progress;
    Reply(PBRANGE{-7, 70000});
    progress.GetRange(one, other);
    EXPECT_EQ(Told(one, other), "-7,70000");

    Recorded<CHeaderCtrl> header;
    Sent(header.GetOrderArray(numbers), HDM_GETORDERARRAY, kAnswer, numbers);

    Recorded<CTabCtrl> tab;
    Sent(tab.SetExtendedStyle(3, 4), TCM_SETEXTENDEDSTYLE, 4, 3);
    DWORD state = 1;
    Reply(TCITEM{0, 4});
    Sent(tab.GetItemState(3, 5, state), TCM_GETITEM, 3, TCITEM{TCIF_STATE, 0, 5});
    EXPECT_EQ(state, 4u);
    Sent(tab.SetItemState(3, 5, 4), TCM_SETITEM, 3, TCITEM{TCIF_STATE, 4, 5});
    Sent(tab.InsertItem(2, text, 3), TCM_INSERTITEM, 2, TCITEM{TCIF_TEXT | TCIF_IMAGE, 0, 0, text, 0, 3});

    Recorded<CStatusBarCtrl> bar;
    Sent(bar.SetText(text, 1, SBT_POPOUT), SB_SETTEXT, 1 | SBT_POPOUT, text);
    EXPECT_EQ(bar.GetText(text, 1, &one) * 10 + one, 427);
    Arrived(SB_GETTEXT, 1, text);

    Recorded<CToolBarCtrl> tools;
    TBBUTTONINFO info = {};
    answerNext = -1;
    EXPECT_FALSE(tools.GetButtonInfo(3, &info));
    EXPECT_TRUE(tools.GetButtonInfo(3, &info) && info.cbSize == sizeof info);
    Arrived(TB_GETBUTTONINFO, 3, &info);
    CBitmap bitmap;
    bitmap.CreateBitmap(8, 8, 1, 1, nullptr);
    const HINSTANCE own = AfxGetInstanceHandle();
    Sent(tools.AddBitmap(2, 9u), TB_ADDBITMAP, 2, TBADDBITMAP{own, 9});
    Sent(tools.AddBitmap(2, &bitmap), TB_ADDBITMAP, 2, TBADDBITMAP{nullptr, UINT_PTR(bitmap.m_hObject)});
    Sent((tools.SetOwner(&window), kNone), TB_SETPARENT, &window);
    EXPECT_EQ(tools.GetOwner(), &window);
}

TEST(Messages, OfListControls)
{
    Recorded<CListCtrl> list;

    Sent(list.SetItem(2, 3, 1, text, 6, 4, 5, 7, 8), LVM_SETITEM, 0, LVITEM{1, 2, 3, 4, 5, text, 0, 6, 7, 8});
    Sent(list.GetItemText(2, 3, text, 9), LVM_GETITEMTEXT, 2, LVITEM{0, 0, 3, 0, 0, text, 9});
    TCHAR buffer[8] = L"mine";
    for (const int length : {0, 3})
    {
        Reply(LVITEM{0, 0, 0, 0, 0, const_cast<LPTSTR>(L"own")}, length);
        EXPECT_EQ(list.GetItemText(2, 3, buffer, 8), length);
        EXPECT_STREQ(buffer, length == 0 ? L"mine" : L"own") << "a text that is the control's";
    }
    Reply(LVITEM{0, 0, 0, 0, 0, nullptr, 0, 0, 0x123456789});
    EXPECT_EQ(list.GetItemData(2), 0x123456789u);
    Arrived(LVM_GETITEM, 0, LVITEM{LVIF_PARAM, 2});
    Sent(list.SetCheck(2), LVM_SETITEMSTATE, 2, LVITEM{0, 0, 0, 0x2000, LVIS_STATEIMAGEMASK});
    Sent(list.SetCheck(2, FALSE), LVM_SETITEMSTATE, 2, LVITEM{0, 0, 0, 0x1000, LVIS_STATEIMAGEMASK});
    answerNext = 0x2000;
    EXPECT_EQ(list.GetCheck(2), 1);
    Arrived(LVM_GETITEMSTATE, 2, LVIS_STATEIMAGEMASK);
    Sent(list.SetItemData(2, 7), LVM_SETITEM, 0, LVITEM{LVIF_PARAM, 2, 0, 0, 0, nullptr, 0, 0, 7});
    EXPECT_TRUE(list.SetItemPosition(2, point));
    Arrived(LVM_SETITEMPOSITION32, 2, POINT(point));
    rect = CRect(9, 9, 9, 9);
    Sent(list.GetItemRect(2, rect, LVIR_LABEL), LVM_GETITEMRECT, 2, RECT{LVIR_LABEL, 9, 9, 9});
    Sent(list.GetSubItemRect(2, 3, LVIR_BOUNDS, rect), LVM_GETSUBITEMRECT, 2, RECT{LVIR_BOUNDS, 3, 9, 9});

    constexpr UINT all = LVCF_TEXT | LVCF_FMT | LVCF_WIDTH | LVCF_SUBITEM;
    Sent(list.InsertColumn(2, text, 1, 9, 3), LVM_INSERTCOLUMN, 2, LVCOLUMN{all, 1, 9, text, 0, 3});
    Sent(list.InsertColumn(2, text), LVM_INSERTCOLUMN, 2, LVCOLUMN{LVCF_TEXT | LVCF_FMT, 0, 0, text});

    Sent(list.InsertItem(2, text, 6), LVM_INSERTITEM, 0,
         LVITEM{LVIF_TEXT | LVIF_IMAGE, 2, 0, 0, 0, text, 0, 6});
    Sent(list.InsertItem(1, 2, text, 4, 5, 6, 7), LVM_INSERTITEM, 0, LVITEM{1, 2, 0, 4, 5, text, 0, 6, 7});
    UINT flags = 1;
    Reply(LVHITTESTINFO{{}, LVHT_ABOVE});
    Sent(list.HitTest(point, &flags), LVM_HITTEST, 0, POINT(point));
    EXPECT_EQ(flags, UINT{LVHT_ABOVE});
}

TEST(Messages, OfTreeControls)
{
    const auto node = HTREEITEM(9);
    Recorded<CTreeCtrl> tree;
    UINT flags = 1;
    Reply(TVHITTESTINFO{{}, TVHT_ABOVE});
    Sent(tree.HitTest(point, &flags), TVM_HITTEST, 0, POINT(point));
    EXPECT_EQ(flags, UINT{TVHT_ABOVE});
    Sent(tree.GetItemRect(node, rect, TRUE), TVM_GETITEMRECT, TRUE, &rect);
    EXPECT_EQ(rect.left, 9) << "where the message looks for the item";

    constexpr UINT pictures = TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    const TVITEM reply = {0, node, 0x2006, 0, const_cast<LPTSTR>(L"own"), 0, 3, 4, 1, 0x123456789};
    Reply(reply);
    Sent(tree.GetItemImage(node, one, other), TVM_GETITEM, 0, TVITEM{TVIF_HANDLE | pictures, node});
    EXPECT_EQ(one * 10 + other, 34);
    Reply(reply);
    EXPECT_EQ(tree.GetItemState(node, 5), 4u);
    Arrived(TVM_GETITEM, 0, TVITEM{TVIF_HANDLE | TVIF_STATE, node, 0, 5});
    Reply(reply);
    EXPECT_EQ(tree.GetCheck(node), 1);
    Reply(reply);
    EXPECT_EQ(tree.GetItemData(node), 0x123456789u);
    Arrived(TVM_GETITEM, 0, TVITEM{TVIF_HANDLE | TVIF_PARAM, node});
    Reply(reply);
    EXPECT_EQ(tree.ItemHasChildren(node), TRUE);
    Arrived(TVM_GETITEM, 0, TVITEM{TVIF_HANDLE | TVIF_CHILDREN, node});
    Reply(reply);
    EXPECT_EQ(tree.GetItemText(node), L"own") << "a text that is the control's";
    constexpr UINT checks = TVIF_HANDLE | TVIF_STATE;
    Sent(tree.SetCheck(node), TVM_SETITEM, 0, TVITEM{checks, node, 0x2000, TVIS_STATEIMAGEMASK});
    Sent(tree.SetCheck(node, FALSE), TVM_SETITEM, 0, TVITEM{checks, node, 0x1000, TVIS_STATEIMAGEMASK});
    Sent(tree.SetItem(node, 1, text, 6, 7, 4, 5, 8), TVM_SETITEM, 0,
         TVITEM{1 | TVIF_HANDLE, node, 4, 5, text, 0, 6, 7, 0, 8});
    Sent(tree.SetItemText(node, text), TVM_SETITEM, 0, TVITEM{TVIF_HANDLE | TVIF_TEXT, node, 0, 0, text});
    Sent(tree.SetItemImage(node, 6, 7), TVM_SETITEM, 0,
         TVITEM{TVIF_HANDLE | pictures, node, 0, 0, nullptr, 0, 6, 7});
    Sent(tree.SetItemState(node, 4, 5), TVM_SETITEM, 0, TVITEM{TVIF_HANDLE | TVIF_STATE, node, 4, 5});
    Sent(tree.SetItemData(node, 8), TVM_SETITEM, 0,
         TVITEM{TVIF_HANDLE | TVIF_PARAM, node, 0, 0, nullptr, 0, 0, 0, 0, 8});
    TVINSERTSTRUCT insert = {HTREEITEM(2), HTREEITEM(3), {}};
    insert.item = {1, nullptr, 4, 5, text, 0, 6, 7, 0, 8};
    Sent(tree.InsertItem(1, text, 6, 7, 4, 5, 8, HTREEITEM(2), HTREEITEM(3)), TVM_INSERTITEM, 0, insert);
    insert.item = {TVIF_TEXT | pictures, nullptr, 0, 0, text, 0, 6, 7};
    Sent(tree.InsertItem(text, 6, 7, HTREEITEM(2), HTREEITEM(3)), TVM_INSERTITEM, 0, insert);
    insert.item = {TVIF_TEXT, nullptr, 0, 0, text};
    Sent(tree.InsertItem(text, HTREEITEM(2), HTREEITEM(3)), TVM_INSERTITEM, 0, insert);
}

TEST(Messages, OfCalendarsAndPickers)
{
    SYSTEMTIME parts = {2024, 2, 4, 29}, later = {2024, 3, 0, 10}, noon = parts;
    noon.wHour = 12;
    const CTime day(parts), lastDay(later);
    const std::array days = {parts, later}, noons = {noon, later};
    CTime low, high;
    Recorded<CMonthCalCtrl> calendar;
    BOOL isOwn = FALSE;
    EXPECT_EQ(calendar.GetFirstDayOfWeek(&isOwn) * 10 + isOwn, 427);
    EXPECT_EQ(calendar.SetFirstDayOfWeek(3, &one) * 100 + one, 742);
    Arrived(MCM_SETFIRSTDAYOFWEEK, 0, 3);
    Sent(calendar.SetSelRange(day, lastDay), MCM_SETSELRANGE, 0, days);
    Reply(noon);
    EXPECT_EQ(calendar.GetCurSel(low), kAnswer);
    Reply(later, FALSE);
    EXPECT_FALSE(calendar.GetCurSel(low));
    EXPECT_EQ(low, day) << "at midnight, and left alone without an answer";
    Reply(noons, TRUE);
    EXPECT_TRUE(calendar.GetSelRange(high, low) && high == day && low == lastDay);
    Reply(noons, FALSE);
    EXPECT_FALSE(calendar.GetSelRange(low, high));
    Arrived(MCM_GETSELRANGE, 0, std::array<SYSTEMTIME, 2>());

    Recorded<CDateTimeCtrl> picker;
    Sent(picker.SetTime(&day), DTM_SETSYSTEMTIME, GDT_VALID, parts);
    Sent(picker.SetTime(), DTM_SETSYSTEMTIME, GDT_NONE, SYSTEMTIME());
    Reply(noon, GDT_VALID);
    EXPECT_EQ(picker.GetTime(low), DWORD{GDT_VALID});
    Reply(later, GDT_NONE);
    EXPECT_EQ(picker.GetTime(low), DWORD{GDT_NONE});
    EXPECT_EQ(low, CTime(noon));
}

namespace
{
/// Which of the functions for owner drawing a control calls, by messages that its parent sent back.
template <class Control>
struct Called : Control
{
    std::string log;

    virtual void DrawItem(LPDRAWITEMSTRUCT item) { log += item->CtlID == 5 ? "draw " : "? "; }
    virtual void MeasureItem(LPMEASUREITEMSTRUCT item) { log += item->CtlID == 5 ? "measure " : "? "; }
    virtual int CompareItem(LPCOMPAREITEMSTRUCT item) { return item->CtlID; }
    virtual void DeleteItem(LPDELETEITEMSTRUCT item) { log += item->CtlID == 5 ? "delete " : "? "; }
    virtual int VKeyToItem(UINT key, UINT index) { return int(key * 10 + index); }
    virtual int CharToItem(UINT key, UINT index) { return int(key * 100 + index); }
    std::string Log()
    {
        DRAWITEMSTRUCT item = {0, 5};
        for (const UINT message : {WM_DRAWITEM, WM_MEASUREITEM, WM_COMPAREITEM, WM_DELETEITEM, WM_VKEYTOITEM,
                                   WM_CHARTOITEM, WM_CTLCOLORBTN})
        {
            LRESULT answer = 0;
            const auto data = reinterpret_cast<LPARAM>(&item);
            const BOOL taken = this->OnChildNotify(message, MAKEWPARAM(6, 3), data, &answer);
            log += std::to_string(10 * taken + answer) + ' ';
        }
        return log;
    }
};
} // namespace

TEST(Messages, ThatTheParentSendsBackCallTheirFunctions)
{
    for (const std::string& log :
         {Called<CStatic>().Log(), Called<CButton>().Log(), Called<CHeaderCtrl>().Log(),
          Called<CTabCtrl>().Log(), Called<CStatusBarCtrl>().Log(), Called<CListCtrl>().Log()})
        EXPECT_EQ(log, "draw 10 0 0 0 0 0 0 ");
    EXPECT_EQ(Called<CListBox>().Log(), "draw 10 measure 10 15 delete 10 73 613 0 ");
    EXPECT_EQ(Called<CComboBox>().Log(), "draw 10 measure 10 15 delete 10 0 0 0 ");
}
