// What arrives at a control when a member of its class is called, and what the member makes of the answer.

#include "HostWindow.h"

#include "../base/Told.h"

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
    else if constexpr (std::is_convertible_v<Value, const CImageList*>)
        return reinterpret_cast<LPARAM>(value->m_hImageList);
    else if constexpr (std::is_same_v<Value, CSize>)
        return MAKELONG(value.cx, value.cy);
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
int one = 0;
int other = 0;

/// An image list that nobody looks at.
struct Images : CImageList
{
    Images() { m_hImageList = HIMAGELIST(0x55); }
    ~Images() override { m_hImageList = nullptr; }
};
} // namespace

TEST(Messages, OfTheClassicControls)
{
    Recorded<CStatic> label;
    Sent(label.SetEnhMetaFile(HENHMETAFILE(9)), STM_SETIMAGE, IMAGE_ENHMETAFILE, 9);

    Recorded<CButton> button;
    EXPECT_EQ(button.GetButtonStyle(), 0xF9u);

    Recorded<CListBox> list;
    BOOL outside = FALSE;
    EXPECT_EQ(list.ItemFromPoint(point, outside) * 10 + outside, 427u);
    Arrived(LB_ITEMFROMPOINT, 0, pointPacked);
    Sent(list.GetSelItems(2, numbers), LB_GETSELITEMS, 2, numbers);
    Sent(list.SelItemRange(TRUE, 3, 5), LB_SELITEMRANGEEX, 3, 5);
    Sent(list.SelItemRange(FALSE, 3, 5), LB_SELITEMRANGEEX, 5, 3); // backwards is without
    Sent(list.SetCaretIndex(3, TRUE), LB_SETCARETINDEX, 3, MAKELPARAM(TRUE, 0));
    Sent(list.SetItemData(3, 4), LB_SETITEMDATA, 3, 4);
    Sent(list.SetItemHeight(3, 4), LB_SETITEMHEIGHT, 3, 4);
    Sent(list.FindString(3, text), LB_FINDSTRING, 3, text);
    Sent(list.FindStringExact(3, text), LB_FINDSTRINGEXACT, 3, text);
    Sent(list.SelectString(3, text), LB_SELECTSTRING, 3, text);

    Recorded<CComboBox> combo;
    Sent(combo.SetEditSel(3, 4), CB_SETEDITSEL, 0, pointPacked);
    Sent(combo.SetItemData(3, 4), CB_SETITEMDATA, 3, 4);
    Sent(combo.SetItemHeight(3, 4), CB_SETITEMHEIGHT, 3, 4);
    Sent(combo.InsertString(3, text), CB_INSERTSTRING, 3, text);
    Sent(combo.FindString(3, text), CB_FINDSTRING, 3, text);
    Sent(combo.FindStringExact(3, text), CB_FINDSTRINGEXACT, 3, text);
    Sent(combo.SelectString(3, text), CB_SELECTSTRING, 3, text);

    Recorded<CEdit> edit;
    Sent((edit.SetMargins(3, 4), kNone), EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, pointPacked);
    WORD line[20] = {};
    Sent(edit.GetLine(1, reinterpret_cast<LPTSTR>(line), 19), EM_GETLINE, 1, line);
    EXPECT_EQ(line[0], 19) << "where the message looks for the size";
    Sent((edit.ReplaceSel(text, TRUE), kNone), EM_REPLACESEL, TRUE, text);
    Sent((edit.SetSel(DWORD(MAKELONG(3, -1)), TRUE), kNone), EM_SETSEL, 3, -1);
    Sent((edit.SetSel(DWORD(MAKELONG(-1, 4)), TRUE), kNone), EM_SETSEL, -1, 4);
    Sent((edit.SetSel(3, 4), kNone), EM_SCROLLCARET);
    EXPECT_EQ(Told(previous.message, previous.wParam, previous.lParam), Told(EM_SETSEL, 3, 4));
    EXPECT_TRUE(edit.ShowBalloonTip(L"title", text, TTI_ERROR));
    const auto& tip = *reinterpret_cast<const EDITBALLOONTIP*>(pointedTo);
    EXPECT_EQ(Told(last.message, tip.cbStruct, tip.pszTitle, tip.pszText, tip.ttiIcon),
              Told(EM_SHOWBALLOONTIP, sizeof tip, L"title", text, TTI_ERROR));
    Sent((edit.Paste(), kNone), WM_PASTE);
}

TEST(Messages, OfTheCommonControls)
{
    HostWindow window;
    Images images;
    Recorded<CSpinButtonCtrl> spin;
    Sent(spin.SetBuddy(&window), UDM_SETBUDDY, &window);
    Sent((spin.SetRange(-7, -5), kNone), UDM_SETRANGE, 0, MAKELPARAM(-5, -7));
    answerNext = MAKELONG(-5, -7);
    spin.GetRange(one, other);
    EXPECT_EQ(one * 10 + other, -75) << "the lower bound is the high word";
    Sent((spin.GetRange32(one, other), kNone), UDM_GETRANGE32, &one, &other);

    Recorded<CSliderCtrl> slider;
    slider.GetRange(one, other);
    EXPECT_EQ(Told(previous.message, last.message, one, other),
              Told(TBM_GETRANGEMIN, TBM_GETRANGEMAX, kAnswer, kAnswer));
    slider.GetSelection(one, other);
    EXPECT_EQ(Told(previous.message, last.message, one, other),
              Told(TBM_GETSELSTART, TBM_GETSELEND, kAnswer, kAnswer));
    Sent((slider.SetRange(3, 4, TRUE), kNone), TBM_SETRANGEMAX, TRUE, 4);
    EXPECT_EQ(Told(previous.message, previous.wParam, previous.lParam), Told(TBM_SETRANGEMIN, TRUE, 3));
    Sent((slider.SetSelection(3, 4), kNone), TBM_SETSELEND, FALSE, 4);
    EXPECT_EQ(Told(previous.message, previous.wParam, previous.lParam), Told(TBM_SETSELSTART, FALSE, 3));
    Sent(slider.SetBuddy(&window, FALSE), TBM_SETBUDDY, FALSE, &window);
    Sent(slider.GetBuddy(TRUE), TBM_GETBUDDY, TRUE);
    Sent((slider.VerifyPos(), kNone), TBM_SETPOS, FALSE, kAnswer);
    Sent((slider.ClearTics(TRUE), kNone), TBM_CLEARTICS, TRUE);
    Recorded<CProgressCtrl> progress;
    Reply(PBRANGE{-7, 70000});
    progress.GetRange(one, other);
    EXPECT_EQ(Told(one, other), "-7,70000");
    Sent((progress.SetRange32(-7, 70000), kNone), PBM_SETRANGE32, -7, 70000);
    Sent(progress.SetMarquee(TRUE, 4), PBM_SETMARQUEE, TRUE, 4);

    Recorded<CHeaderCtrl> header;
    HDITEM item;
    Sent(header.GetItem(3, &item), HDM_GETITEM, 3, &item);
    Sent(header.SetImageList(&images), HDM_SETIMAGELIST, 0, 0x55);
    Sent(header.GetOrderArray(numbers), HDM_GETORDERARRAY, kAnswer, numbers);
    Sent(header.GetOrderArray(numbers, 2), HDM_GETORDERARRAY, 2, numbers);
    Sent(header.GetItemRect(3, rect), HDM_GETITEMRECT, 3, &rect);
    Sent(header.SetFilterChangeTimeout(9), HDM_SETFILTERCHANGETIMEOUT, 0, 9);
    Sent(header.EditFilter(3, TRUE), HDM_EDITFILTER, 3, MAKELPARAM(TRUE, 0));

    Recorded<CTabCtrl> tab;
    TCITEM page;
    Sent(tab.SetImageList(&images), TCM_SETIMAGELIST, 0, 0x55);
    Sent(tab.GetItem(3, &page), TCM_GETITEM, 3, &page);
    Sent(tab.SetItemSize(CSize(3, 4)), TCM_SETITEMSIZE, 0, pointPacked);
    Sent(tab.GetToolTips(), TCM_GETTOOLTIPS);
    Sent(tab.SetExtendedStyle(3, 4), TCM_SETEXTENDEDSTYLE, 4, 3);
    DWORD state = 1;
    Reply(TCITEM{0, 4});
    Sent(tab.GetItemState(3, 5, state), TCM_GETITEM, 3, TCITEM{TCIF_STATE, 0, 5});
    EXPECT_EQ(state, 4u);
    Sent(tab.SetItemState(3, 5, 4), TCM_SETITEM, 3, TCITEM{TCIF_STATE, 4, 5});
    Sent(tab.InsertItem(2, text, 3), TCM_INSERTITEM, 2, TCITEM{TCIF_TEXT | TCIF_IMAGE, 0, 0, text, 0, 3});
    Sent(tab.InsertItem(TCIF_PARAM, 2, text, 3, 4), TCM_INSERTITEM, 2,
         TCITEM{TCIF_PARAM, 0, 0, text, 0, 3, 4});
    Sent(tab.HighlightItem(3), TCM_HIGHLIGHTITEM, 3, MAKELPARAM(TRUE, 0));

    Recorded<CStatusBarCtrl> bar;
    Sent(bar.SetText(text, 1, SBT_POPOUT), SB_SETTEXT, 1 | SBT_POPOUT, text);
    EXPECT_EQ(bar.GetText(text, 1, &one) * 10 + one, 427);
    Arrived(SB_GETTEXT, 1, text);
    EXPECT_EQ(bar.GetTextLength(1, &other) * 10 + other, 427);
    Arrived(SB_GETTEXTLENGTH, 1);
    int third = 0;
    Reply(std::array{3, 4, 5});
    EXPECT_EQ(bar.GetBorders(one, other, third), kAnswer);
    EXPECT_EQ(one * 100 + other * 10 + third, 345);
    Reply(L"tip");
    EXPECT_EQ(bar.GetTipText(1), L"tip");

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
    Sent(tools.EnableButton(3, FALSE), TB_ENABLEBUTTON, 3, FALSE);
    Sent(tools.CheckButton(3), TB_CHECKBUTTON, 3, TRUE);
    Sent(tools.HideButton(3), TB_HIDEBUTTON, 3, TRUE);
    Sent(tools.PressButton(3), TB_PRESSBUTTON, 3, TRUE);
    Sent(tools.Indeterminate(3), TB_INDETERMINATE, 3, TRUE);
    Sent(tools.IsButtonEnabled(3), TB_ISBUTTONENABLED, 3);
    Sent(tools.IsButtonChecked(3), TB_ISBUTTONCHECKED, 3);
    Sent(tools.IsButtonHidden(3), TB_ISBUTTONHIDDEN, 3);
    Sent(tools.IsButtonPressed(3), TB_ISBUTTONPRESSED, 3);
    Sent(tools.IsButtonIndeterminate(3), TB_ISBUTTONINDETERMINATE, 3);
    Sent(tools.SetButtonInfo(3, &info), TB_SETBUTTONINFO, 3, &info);
    Sent(tools.CommandToIndex(3), TB_COMMANDTOINDEX, 3);
    Sent(tools.DeleteButton(3), TB_DELETEBUTTON, 3);
    Sent(tools.GetItemRect(3, rect), TB_GETITEMRECT, 3, &rect);
    Sent(tools.HitTest(&rect.TopLeft()), TB_HITTEST, 0, &rect.TopLeft());
    Sent(tools.GetImageList(), TB_GETIMAGELIST);
    Sent(tools.SetHotImageList(&images), TB_SETHOTIMAGELIST, 0, 0x55);
    Sent(tools.GetDisabledImageList(), TB_GETDISABLEDIMAGELIST);
    Sent((tools.SetOwner(&window), kNone), TB_SETPARENT, &window);
    EXPECT_EQ(tools.GetOwner(), &window);
    Sent((tools.SaveState(HKEY_CURRENT_USER, text, L"value"), kNone), TB_SAVERESTORE, TRUE,
         TBSAVEPARAMS{HKEY_CURRENT_USER, text, L"value"});
    Sent((tools.RestoreState(HKEY_CURRENT_USER, text, nullptr), kNone), TB_SAVERESTORE, FALSE,
         TBSAVEPARAMS{HKEY_CURRENT_USER, text});
}

TEST(Messages, OfToolTips)
{
    HostWindow window;
    CButton button;
    button.Create(L"", WS_CHILD, CRect(), &window, 9);
    Recorded<CToolTipCtrl> tip;
    TOOLINFO whole = {
        UINT(TTTOOLINFO_V1_SIZE), TTF_IDISHWND, window, UINT_PTR(button.m_hWnd), {}, nullptr, text};
    TOOLINFO corner = {UINT(TTTOOLINFO_V1_SIZE), 0, window, 5, {1, 2, 3, 4}, nullptr, text};
    Sent(tip.AddTool(&button, text), TTM_ADDTOOL, 0, whole);
    Sent(tip.AddTool(&window, text, &corner.rect, 5), TTM_ADDTOOL, 0, corner);
    Sent((tip.UpdateTipText(text, &button), kNone), TTM_UPDATETIPTEXT, 0, whole);
    whole.lpszText = corner.lpszText = nullptr;
    Sent((tip.SetToolRect(&window, 5, &corner.rect), kNone), TTM_NEWTOOLRECT, 0, corner);
    Sent((tip.DelTool(&button), kNone), TTM_DELTOOL, 0, whole);
    corner.hinst = AfxGetInstanceHandle();
    corner.lpszText = MAKEINTRESOURCE(7);
    Sent(tip.AddTool(&window, 7u, &corner.rect, 5), TTM_ADDTOOL, 0, corner);
    Sent(tip.GetCurrentTool(&corner), TTM_GETCURRENTTOOL, 0, &corner);
    Sent((tip.SetDelayTime(TTDT_INITIAL, 500), kNone), TTM_SETDELAYTIME, TTDT_INITIAL, 500);
    Sent(tip.GetBubbleSize(&corner), TTM_GETBUBBLESIZE, 0, &corner);
    TOOLINFO hit = {};
    answerNext = FALSE;
    EXPECT_FALSE(tip.HitTest(&window, point, &hit));
    Reply(TTHITTESTINFO{window, point, corner});
    EXPECT_TRUE(tip.HitTest(&window, point, &hit));
    Arrived(TTM_HITTEST, 0, TTHITTESTINFO{window, point, {UINT(TTTOOLINFO_V1_SIZE)}});
    EXPECT_EQ(hit.uId, 5u);
    CString told;
    Reply(TOOLINFO{});
    tip.GetText(told, &window, 5);
    EXPECT_EQ(told, L"");
}

TEST(Messages, OfListControls)
{
    Images images;
    Recorded<CListCtrl> list;
    Sent(list.GetImageList(LVSIL_STATE), LVM_GETIMAGELIST, LVSIL_STATE);
    Sent(list.SetImageList(&images, LVSIL_STATE), LVM_SETIMAGELIST, LVSIL_STATE, 0x55);
    Sent(list.SetItemCountEx(3, 4), LVM_SETITEMCOUNT, 3, 4);
    Sent(list.SetExtendedStyle(3), LVM_SETEXTENDEDLISTVIEWSTYLE, 0, 3);
    EXPECT_TRUE(list.GetItemSpacing(TRUE, &one, &other));
    EXPECT_EQ(one * 10 + other, 427);
    Arrived(LVM_GETITEMSPACING, TRUE);
    Sent(list.SetIconSpacing(3, 4), LVM_SETICONSPACING, 0, pointPacked);
    Sent(list.GetHeaderCtrl(), LVM_GETHEADER);
    Sent(list.GetToolTips(), LVM_GETTOOLTIPS);
    const auto& image = *reinterpret_cast<const LVBKIMAGE*>(pointedTo);
    list.SetBkImage(HBITMAP(7), TRUE, 3, 4);
    EXPECT_EQ(Told(last.message, image.ulFlags, image.hbm, image.xOffsetPercent, image.yOffsetPercent),
              Told(LVM_SETBKIMAGE, LVBKIF_SOURCE_HBITMAP | LVBKIF_STYLE_TILE, HBITMAP(7), 3, 4));
    list.SetBkImage(text, FALSE, 3, 4);
    EXPECT_EQ(Told(last.message, image.ulFlags, image.pszImage),
              Told(LVM_SETBKIMAGE, LVBKIF_SOURCE_URL, text));

    Sent(list.SetItem(2, 3, 1, text, 6, 4, 5, 7, 8), LVM_SETITEM, 0, LVITEM{1, 2, 3, 4, 5, text, 0, 6, 7, 8});
    Sent(list.SetItem(2, 3, 1, text, 6, 4, 5, 7), LVM_SETITEM, 0, LVITEM{1, 2, 3, 4, 5, text, 0, 6, 7});
    Sent(list.SetItemState(2, 4, 5), LVM_SETITEMSTATE, 2, LVITEM{0, 0, 0, 4, 5});
    Sent(list.GetItemText(2, 3, text, 9), LVM_GETITEMTEXT, 2, LVITEM{0, 0, 3, 0, 0, text, 9});
    TCHAR buffer[8] = L"mine";
    for (const int length : {0, 3})
    {
        Reply(LVITEM{0, 0, 0, 0, 0, const_cast<LPTSTR>(L"own")}, length);
        EXPECT_EQ(list.GetItemText(2, 3, buffer, 8), length);
        EXPECT_STREQ(buffer, length == 0 ? L"mine" : L"own") << "a text that is the control's";
    }
    Sent(list.SetItemText(2, 3, text), LVM_SETITEMTEXT, 2, LVITEM{0, 0, 3, 0, 0, text});
    Reply(LVITEM{0, 0, 0, 0, 0, nullptr, 0, 0, 0x123456789});
    EXPECT_EQ(list.GetItemData(2), 0x123456789u);
    Arrived(LVM_GETITEM, 0, LVITEM{LVIF_PARAM, 2});
    Sent(list.SetCheck(2), LVM_SETITEMSTATE, 2, LVITEM{0, 0, 0, 0x2000, LVIS_STATEIMAGEMASK});
    Sent(list.SetCheck(2, FALSE), LVM_SETITEMSTATE, 2, LVITEM{0, 0, 0, 0x1000, LVIS_STATEIMAGEMASK});
    answerNext = 0x2000;
    EXPECT_EQ(list.GetCheck(2), 1);
    Arrived(LVM_GETITEMSTATE, 2, LVIS_STATEIMAGEMASK);
    Sent(list.SetItemData(2, 7), LVM_SETITEM, 0, LVITEM{LVIF_PARAM, 2, 0, 0, 0, nullptr, 0, 0, 7});
    CPoint place(point);
    Sent(list.GetItemPosition(2, &place), LVM_GETITEMPOSITION, 2, &place);
    EXPECT_TRUE(list.SetItemPosition(2, point));
    Arrived(LVM_SETITEMPOSITION32, 2, POINT(point));
    rect = CRect(9, 9, 9, 9);
    Sent(list.GetItemRect(2, rect, LVIR_LABEL), LVM_GETITEMRECT, 2, RECT{LVIR_LABEL, 9, 9, 9});
    Sent(list.GetSubItemRect(2, 3, LVIR_BOUNDS, rect), LVM_GETSUBITEMRECT, 2, RECT{LVIR_BOUNDS, 3, 9, 9});
    Sent(list.GetNextItem(2, LVNI_SELECTED), LVM_GETNEXTITEM, 2, LVNI_SELECTED);

    Sent(list.SetColumnWidth(2, 30), LVM_SETCOLUMNWIDTH, 2, 30);
    constexpr UINT all = LVCF_TEXT | LVCF_FMT | LVCF_WIDTH | LVCF_SUBITEM;
    Sent(list.InsertColumn(2, text, 1, 9, 3), LVM_INSERTCOLUMN, 2, LVCOLUMN{all, 1, 9, text, 0, 3});
    Sent(list.InsertColumn(2, text), LVM_INSERTCOLUMN, 2, LVCOLUMN{LVCF_TEXT | LVCF_FMT, 0, 0, text});
    Sent(list.SetColumnOrderArray(2, numbers), LVM_SETCOLUMNORDERARRAY, 2, numbers);

    Sent(list.InsertItem(2, text, 6), LVM_INSERTITEM, 0,
         LVITEM{LVIF_TEXT | LVIF_IMAGE, 2, 0, 0, 0, text, 0, 6});
    Sent(list.InsertItem(1, 2, text, 4, 5, 6, 7), LVM_INSERTITEM, 0, LVITEM{1, 2, 0, 4, 5, text, 0, 6, 7});
    LVFINDINFO find;
    Sent(list.FindItem(&find, 3), LVM_FINDITEM, 3, &find);
    const auto compare = [](LPARAM, LPARAM, LPARAM) -> int { return 0; };
    const PFNLVCOMPARE comparing = compare;
    Sent(list.SortItems(comparing, 3), LVM_SORTITEMS, 3, comparing);
    UINT flags = 1;
    Reply(LVHITTESTINFO{{}, LVHT_ABOVE});
    Sent(list.HitTest(point, &flags), LVM_HITTEST, 0, POINT(point));
    EXPECT_EQ(flags, UINT{LVHT_ABOVE});
    Reply(UINT(3));
    EXPECT_EQ(list.GetNumberOfWorkAreas(), 3u);
    Sent(list.EnsureVisible(2, TRUE), LVM_ENSUREVISIBLE, 2, MAKELPARAM(TRUE, 0));
    Sent(list.EditLabel(2), LVM_EDITLABEL, 2);
    Sent(list.ApproximateViewRect(CSize(3, 4), 2), LVM_APPROXIMATEVIEWRECT, 2, pointPacked);
}

TEST(Messages, OfTreeControls)
{
    Images images;
    const auto node = HTREEITEM(9);
    Recorded<CTreeCtrl> tree;
    Sent(tree.GetImageList(TVSIL_STATE), TVM_GETIMAGELIST, TVSIL_STATE);
    Sent(tree.SetImageList(&images, TVSIL_STATE), TVM_SETIMAGELIST, TVSIL_STATE, 0x55);
    Sent(tree.GetNextSiblingItem(node), TVM_GETNEXTITEM, TVGN_NEXT, node);
    Sent(tree.Expand(node, TVE_EXPAND), TVM_EXPAND, TVE_EXPAND, node);
    Sent(tree.SetInsertMark(node, FALSE), TVM_SETINSERTMARK, FALSE, node);
    Sent(tree.EditLabel(node), TVM_EDITLABEL, 0, node);
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
    const std::array days = {parts, later}, noons = {noon, later}, fromDay = {parts, SYSTEMTIME()};
    CTime low, high;
    SYSTEMTIME lowParts, highParts;
    const auto hasRange = [&](auto& control, UINT get, UINT set)
    {
        Reply(days, GDTR_MIN | GDTR_MAX);
        EXPECT_EQ(control.GetRange(&low, &high), DWORD{GDTR_MIN | GDTR_MAX});
        EXPECT_TRUE(low == day && high == lastDay);
        Reply(days, GDTR_MIN);
        EXPECT_EQ(control.GetRange(&high, &low), DWORD{GDTR_MIN});
        EXPECT_TRUE(low == day && high == day) << "an open side is left alone";
        Reply(days, GDTR_MIN | GDTR_MAX);
        control.GetRange(&lowParts, &highParts);
        EXPECT_TRUE(CTime(lowParts) == day && CTime(highParts) == lastDay);
        Reply(days, GDTR_MAX);
        control.GetRange(&low, static_cast<CTime*>(nullptr));
        Arrived(get, 0, std::array<SYSTEMTIME, 2>());
        Sent(control.SetRange(&day, &lastDay), set, GDTR_MIN | GDTR_MAX, days);
        Sent(control.SetRange(&day, nullptr), set, GDTR_MIN, fromDay);
        Sent(control.SetRange(&parts, &later), set, GDTR_MIN | GDTR_MAX, days);
    };
    Recorded<CMonthCalCtrl> calendar;
    hasRange(calendar, MCM_GETRANGE, MCM_SETRANGE);
    BOOL isOwn = FALSE;
    EXPECT_EQ(calendar.GetFirstDayOfWeek(&isOwn) * 10 + isOwn, 427);
    EXPECT_EQ(calendar.SetFirstDayOfWeek(3, &one) * 100 + one, 742);
    Arrived(MCM_SETFIRSTDAYOFWEEK, 0, 3);
    MONTHDAYSTATE bold[3];
    Sent(calendar.SetDayState(3, bold), MCM_SETDAYSTATE, 3, bold);
    Sent(calendar.GetCurSel(&parts), MCM_GETCURSEL, 0, &parts);
    Sent(calendar.SetCurSel(day), MCM_SETCURSEL, 0, parts);
    Sent((calendar.SetToday(day), kNone), MCM_SETTODAY, 0, parts);
    Sent(calendar.SetSelRange(day, lastDay), MCM_SETSELRANGE, 0, days);
    for (const bool today : {false, true})
    {
        const auto get = [&] { return today ? calendar.GetToday(low) : calendar.GetCurSel(low); };
        Reply(noon);
        EXPECT_EQ(get(), kAnswer);
        EXPECT_EQ(last.message, UINT(today ? MCM_GETTODAY : MCM_GETCURSEL));
        Reply(later, FALSE);
        EXPECT_FALSE(get());
        EXPECT_EQ(std::exchange(low, CTime()), day) << "at midnight, and left alone without an answer";
    }
    Reply(noons);
    EXPECT_EQ(calendar.GetMonthRange(low, high, GMR_DAYSTATE), kAnswer);
    Arrived(MCM_GETMONTHRANGE, GMR_DAYSTATE, std::array<SYSTEMTIME, 2>());
    EXPECT_TRUE(low == day && high == lastDay);
    Reply(noons, TRUE);
    EXPECT_TRUE(calendar.GetSelRange(high, low) && high == day && low == lastDay);
    Reply(noons, FALSE);
    EXPECT_FALSE(calendar.GetSelRange(low, high));
    Arrived(MCM_GETSELRANGE, 0, std::array<SYSTEMTIME, 2>());

    Recorded<CDateTimeCtrl> picker;
    hasRange(picker, DTM_GETRANGE, DTM_SETRANGE);
    Sent(picker.SetMonthCalColor(3, 9), DTM_SETMCCOLOR, 3, 9);
    Sent(picker.GetMonthCalCtrl(), DTM_GETMONTHCAL);
    Sent(picker.SetTime(&parts), DTM_SETSYSTEMTIME, GDT_VALID, &parts);
    Sent(picker.SetTime(&day), DTM_SETSYSTEMTIME, GDT_VALID, parts);
    Sent(picker.SetTime(), DTM_SETSYSTEMTIME, GDT_NONE, SYSTEMTIME());
    Sent(picker.SetTime(static_cast<const CTime*>(nullptr)), DTM_SETSYSTEMTIME, GDT_NONE, SYSTEMTIME());
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
    std::string Log()
    {
        DRAWITEMSTRUCT item = {0, 5};
        for (const UINT message :
             {WM_DRAWITEM, WM_MEASUREITEM, WM_COMPAREITEM, WM_DELETEITEM, WM_CTLCOLORBTN})
        {
            LRESULT answer = 0;
            const BOOL taken = this->OnChildNotify(message, 0, reinterpret_cast<LPARAM>(&item), &answer);
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
        EXPECT_EQ(log, "draw 10 0 0 0 0 ");
    for (const std::string& log : {Called<CListBox>().Log(), Called<CComboBox>().Log()})
        EXPECT_EQ(log, "draw 10 measure 10 15 delete 10 0 ");
    struct : CListBox
    {
        int VKeyToItem(UINT key, UINT index) override { return int(key * 10 + index); }
        int CharToItem(UINT key, UINT index) override { return int(key * 100 + index); }
        using CListBox::OnChildNotify;
    } list;
    LRESULT answer = 0;
    EXPECT_TRUE(list.OnChildNotify(WM_VKEYTOITEM, MAKEWPARAM(6, 3), 0, &answer));
    EXPECT_EQ(answer, 63);
    EXPECT_TRUE(list.OnChildNotify(WM_CHARTOITEM, MAKEWPARAM(6, 3), 0, &answer));
    EXPECT_EQ(answer, 603);
}
