// List boxes with check boxes.

#include <afxwin.h>

#include <algorithm>
#include <memory>

IMPLEMENT_DYNAMIC(CCheckListBox, CListBox)

CCheckListBox::CCheckListBox() = default;

// clang-format off
BEGIN_MESSAGE_MAP(CCheckListBox, CListBox)
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_KEYDOWN()
    ON_WM_CREATE()
    ON_MESSAGE(WM_SETFONT, &CCheckListBox::OnSetFont)
    ON_MESSAGE(LB_ADDSTRING, &CCheckListBox::OnLBAddString)
    ON_MESSAGE(LB_INSERTSTRING, &CCheckListBox::OnLBInsertString)
    ON_MESSAGE(LB_FINDSTRING, &CCheckListBox::OnLBFindString)
    ON_MESSAGE(LB_FINDSTRINGEXACT, &CCheckListBox::OnLBFindString)
    ON_MESSAGE(LB_SELECTSTRING, &CCheckListBox::OnLBSelectString)
    ON_MESSAGE(LB_GETTEXT, &CCheckListBox::OnLBGetText)
    ON_MESSAGE(LB_GETITEMDATA, &CCheckListBox::OnLBGetItemData)
    ON_MESSAGE(LB_SETITEMDATA, &CCheckListBox::OnLBSetItemData)
    ON_MESSAGE(LB_SETITEMHEIGHT, &CCheckListBox::OnLBSetItemHeight)
END_MESSAGE_MAP()
// clang-format on

BOOL CCheckListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    ASSERT((dwStyle & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE)) !=
           0); // or there is no place for the boxes
    return CListBox::Create(dwStyle, rect, pParentWnd, nID);
}

void CCheckListBox::PreSubclassWindow()
{
    CListBox::PreSubclassWindow();
    FitItemHeight(); // a dialog's list was measured when it had no boxes
}

namespace
{
CSize BoxSize()
{
    return CSize(::GetSystemMetrics(SM_CXMENUCHECK), ::GetSystemMetrics(SM_CYMENUCHECK));
}
} // namespace

// ---------------------------------------------------------------------------------------------------------
// Items: the list's item data holds one of these from the first time that there is something to keep.

struct CCheckListBox::CItem
{
    int check = BST_UNCHECKED;
    BOOL enabled = TRUE;
    LPARAM data = 0; ///< the program's
};

CCheckListBox::CItem* CCheckListBox::FindItem(int index)
{
    const LRESULT data = DefWindowProc(LB_GETITEMDATA, static_cast<WPARAM>(index), 0);
    return data == LB_ERR ? nullptr : reinterpret_cast<CItem*>(data);
}

/// Null for an index that is not in the list.
CCheckListBox::CItem* CCheckListBox::MakeItem(int index)
{
    if (CItem* const item = FindItem(index))
        return item;
    auto item = std::make_unique<CItem>();
    const auto data = reinterpret_cast<LPARAM>(item.get());
    if (DefWindowProc(LB_SETITEMDATA, static_cast<WPARAM>(index), data) == LB_ERR)
        return nullptr;
    return item.release(); // until WM_DELETEITEM
}

void CCheckListBox::SetCheckStyle(UINT nStyle)
{
    ASSERT(nStyle == BS_CHECKBOX || nStyle == BS_AUTOCHECKBOX || nStyle == BS_3STATE ||
           nStyle == BS_AUTO3STATE);
    m_nStyle = nStyle;
}

void CCheckListBox::SetCheck(int nIndex, int nCheck)
{
    if (nCheck == BST_INDETERMINATE && (m_nStyle == BS_CHECKBOX || m_nStyle == BS_AUTOCHECKBOX))
        return; // there is no such state
    if (CItem* const item = MakeItem(nIndex))
    {
        item->check = nCheck;
        InvalidateItem(nIndex);
    }
}

int CCheckListBox::GetCheck(int nIndex)
{
    const CItem* const item = FindItem(nIndex);
    return item != nullptr ? item->check : BST_UNCHECKED;
}

void CCheckListBox::Enable(int nIndex, BOOL bEnabled)
{
    if (CItem* const item = MakeItem(nIndex))
    {
        item->enabled = bEnabled;
        InvalidateItem(nIndex);
    }
}

BOOL CCheckListBox::IsEnabled(int nIndex)
{
    const CItem* const item = FindItem(nIndex);
    return item == nullptr || item->enabled;
}

/// The next state of an item's box; answers it.
int CCheckListBox::CheckNext(int index)
{
    const int states = m_nStyle == BS_AUTO3STATE ? 3 : 2;
    const int check = (GetCheck(index) + 1) % states;
    SetCheck(index, check);
    return check;
}

void CCheckListBox::SetSelectionCheck(int nCheck)
{
    for (int index = 0; index < GetCount(); ++index)
        if (GetSel(index) > 0)
            SetCheck(index, nCheck);
}

void CCheckListBox::TellParent()
{
    GetParent()->SendMessage(WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), CLBN_CHKCHANGE),
                             reinterpret_cast<LPARAM>(m_hWnd));
}

// ---------------------------------------------------------------------------------------------------------
// Places

/// The box of an item: at its left end, with a pixel around it.
CRect CCheckListBox::BoxOf(CRect item)
{
    const CSize size = BoxSize();
    const LONG spare = item.Height() - size.cy;
    const CPoint corner(item.left + 1, item.top + (std::max)(spare / 2, LONG{0}));
    item.right = item.left + size.cx + 2;
    return OnGetCheckPosition(item, CRect(corner, size));
}

int CCheckListBox::CheckFromPoint(CPoint point, BOOL& bInCheck)
{
    bInCheck = FALSE;
    BOOL outside = FALSE;
    const int index = static_cast<int>(ItemFromPoint(point, outside));
    CRect item;
    if (outside || GetItemRect(index, &item) == LB_ERR || !item.PtInRect(point))
        return -1;
    bInCheck = BoxOf(item).PtInRect(point);
    return index;
}

void CCheckListBox::InvalidateItem(int index)
{
    CRect item;
    if (GetItemRect(index, &item) != LB_ERR)
        InvalidateRect(&item, FALSE);
}

int CCheckListBox::CalcMinimumItemHeight()
{
    const int box = BoxSize().cy + 1;
    if (!HasStrings())
        return box;
    CClientDC dc(this);
    const auto font = reinterpret_cast<HFONT>(SendMessage(WM_GETFONT));
    const HGDIOBJ before = ::SelectObject(dc.m_hDC, font != nullptr ? font : ::GetStockObject(SYSTEM_FONT));
    TEXTMETRIC metrics;
    dc.GetTextMetrics(&metrics);
    ::SelectObject(dc.m_hDC, before);
    m_cyText = metrics.tmHeight;
    return (std::max)(box, m_cyText);
}

void CCheckListBox::FitItemHeight()
{
    if (HasStrings() && (GetStyle() & LBS_OWNERDRAWFIXED) != 0)
        SendMessage(LB_SETITEMHEIGHT, 0, CalcMinimumItemHeight()); // also before it is subclassed
}

// ---------------------------------------------------------------------------------------------------------
// Drawing

BOOL CCheckListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    const auto dataOf = [](ULONG_PTR item) { return item != 0 ? reinterpret_cast<CItem*>(item)->data : 0; };
    switch (message)
    {
    case WM_DRAWITEM:
        DrawWithBox(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        return TRUE;
    case WM_MEASUREITEM:
        MeasureWithBox(*reinterpret_cast<MEASUREITEMSTRUCT*>(lParam));
        return TRUE;
    case WM_COMPAREITEM:
    {
        COMPAREITEMSTRUCT compared = *reinterpret_cast<const COMPAREITEMSTRUCT*>(lParam);
        compared.itemData1 = dataOf(compared.itemData1);
        compared.itemData2 = dataOf(compared.itemData2);
        *pLResult = CompareItem(&compared);
        return TRUE;
    }
    case WM_DELETEITEM:
    {
        DELETEITEMSTRUCT deleted = *reinterpret_cast<const DELETEITEMSTRUCT*>(lParam);
        const std::unique_ptr<CItem> item(reinterpret_cast<CItem*>(deleted.itemData));
        deleted.itemData = dataOf(deleted.itemData);
        DeleteItem(&deleted);
        return TRUE;
    }
    default:
        return CListBox::OnChildNotify(message, wParam, lParam, pLResult);
    }
}

void CCheckListBox::DrawWithBox(const DRAWITEMSTRUCT& whole)
{
    DRAWITEMSTRUCT right = whole;
    right.rcItem.left += BoxSize().cx + 2;
    const auto index = static_cast<int>(whole.itemID);
    if (index >= 0)
        right.itemData = static_cast<ULONG_PTR>(GetItemData(index));
    if (index >= 0 && (whole.itemAction & (ODA_DRAWENTIRE | ODA_SELECT)) != 0)
    {
        const bool grey = IsGrey(index);
        const int back = !grey && (whole.itemState & ODS_SELECTED) != 0 ? COLOR_HIGHLIGHT : COLOR_WINDOW;
        CRect left(whole.rcItem);
        left.right = right.rcItem.left;
        ::FillRect(whole.hDC, &left, ::GetSysColorBrush(back));
        const int check = GetCheck(index);
        const UINT kind = check == BST_INDETERMINATE ? DFCS_BUTTON3STATE : DFCS_BUTTONCHECK;
        CRect box = BoxOf(whole.rcItem);
        ::DrawFrameControl(whole.hDC, &box, DFC_BUTTON,
                           kind | (check != BST_UNCHECKED ? DFCS_CHECKED : 0) | (grey ? DFCS_INACTIVE : 0));
    }
    DrawItem(&right);
}

void CCheckListBox::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    ASSERT(HasStrings()); // else to be overridden
    const auto index = static_cast<int>(lpDrawItemStruct->itemID);
    CDC* const dc = CDC::FromHandle(lpDrawItemStruct->hDC);
    const CRect rect(lpDrawItemStruct->rcItem);
    if (index >= 0 && (lpDrawItemStruct->itemAction & (ODA_DRAWENTIRE | ODA_SELECT)) != 0)
    {
        const bool grey = IsGrey(index);
        const bool selected = !grey && (lpDrawItemStruct->itemState & ODS_SELECTED) != 0;
        const int text = selected ? COLOR_HIGHLIGHTTEXT : grey ? COLOR_GRAYTEXT : COLOR_WINDOWTEXT;
        const COLORREF oldText = dc->SetTextColor(::GetSysColor(text));
        const COLORREF oldBack = dc->SetBkColor(::GetSysColor(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
        if (m_cyText == 0)
            CalcMinimumItemHeight();
        CString shown;
        GetText(index, shown);
        const int top = rect.top + (std::max)((rect.Height() - m_cyText) / 2, 0);
        dc->ExtTextOut(rect.left, top, ETO_OPAQUE, rect, shown, static_cast<UINT>(shown.GetLength()),
                       nullptr);
        dc->SetTextColor(oldText);
        dc->SetBkColor(oldBack);
    }
    if ((lpDrawItemStruct->itemAction & ODA_FOCUS) != 0 ||
        ((lpDrawItemStruct->itemAction & ODA_DRAWENTIRE) != 0 &&
         (lpDrawItemStruct->itemState & ODS_FOCUS) != 0))
        dc->DrawFocusRect(rect);
}

void CCheckListBox::MeasureWithBox(MEASUREITEMSTRUCT& measured)
{
    const auto least = static_cast<UINT>(CalcMinimumItemHeight());
    measured.itemHeight = least;
    if ((GetStyle() & LBS_OWNERDRAWVARIABLE) != 0)
    {
        if (!HasStrings() && measured.itemData != 0)
            measured.itemData = static_cast<ULONG_PTR>(reinterpret_cast<CItem*>(measured.itemData)->data);
        MeasureItem(&measured);
    }
    measured.itemHeight = (std::max)(measured.itemHeight, least);
}

void CCheckListBox::MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct)
{
    ASSERT(HasStrings()); // else to be overridden
    lpMeasureItemStruct->itemHeight = static_cast<UINT>(CalcMinimumItemHeight());
}

// ---------------------------------------------------------------------------------------------------------
// Input

void CCheckListBox::OnLButtonDown(UINT, CPoint point)
{
    SetFocus();
    BOOL inCheck = FALSE;
    const int index = CheckFromPoint(point, inCheck);
    if (!IsEnabled(index))
        return;
    if (!inCheck || !ChangesByItself())
    {
        Default();
        return;
    }
    const int check = CheckNext(index);
    const bool several = (GetStyle() & (LBS_EXTENDEDSEL | LBS_MULTIPLESEL)) != 0;
    if (several && GetSel(index) > 0)
        SetSelectionCheck(check); // and the selection stays
    else
        Default();
    TellParent();
}

void CCheckListBox::OnLButtonDblClk(UINT nFlags, CPoint point)
{
    BOOL inCheck = FALSE;
    CheckFromPoint(point, inCheck);
    if (inCheck)
        OnLButtonDown(nFlags, point); // on a box two clicks are two
    else
        Default();
}

void CCheckListBox::OnKeyDown(UINT nChar, UINT, UINT)
{
    const int index = nChar == VK_SPACE && ChangesByItself() ? GetCaretIndex() : LB_ERR;
    if (index == LB_ERR || GetCount() == 0)
    {
        Default();
        return;
    }
    const DWORD style = GetStyle();
    const bool bySpace = (style & LBS_MULTIPLESEL) != 0; // the key selects first, and then changes the box
    if (!IsEnabled(index))
    {
        if (bySpace)
            SetSel(index, FALSE);
        return;
    }
    if (bySpace && GetSel(index) == 0)
    {
        SetSel(index, TRUE);
        return;
    }
    const int check = CheckNext(index);
    if (bySpace)
        SetSel(index, FALSE);
    else if ((style & LBS_EXTENDEDSEL) != 0)
        SetSelectionCheck(check);
    TellParent();
}

// ---------------------------------------------------------------------------------------------------------
// The list's own messages, to which the item data is the program's

int CCheckListBox::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    const int answer = CListBox::OnCreate(lpCreateStruct);
    FitItemHeight();
    return answer;
}

LRESULT CCheckListBox::OnSetFont(WPARAM, LPARAM)
{
    const LRESULT answer = Default();
    FitItemHeight();
    return answer;
}

/// Without strings the text of a new item is its data.
LRESULT CCheckListBox::AddItem(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (HasStrings())
        return DefWindowProc(message, wParam, lParam);
    auto item = std::make_unique<CItem>();
    item->data = lParam;
    const LRESULT added = DefWindowProc(message, wParam, reinterpret_cast<LPARAM>(item.get()));
    if (added >= 0)
        item.release(); // until WM_DELETEITEM
    return added;
}

/// The next item with the data, all round; -1 for none.
int CCheckListBox::FindData(int after, LPARAM data)
{
    const int count = GetCount();
    for (int step = 1; step <= count; ++step)
    {
        const int index = (after + step) % count;
        if (static_cast<LPARAM>(GetItemData(index)) == data)
            return index;
    }
    return LB_ERR;
}

LRESULT CCheckListBox::OnLBFindString(WPARAM wParam, LPARAM lParam)
{
    return HasStrings() ? Default() : FindData(static_cast<int>(wParam), lParam);
}

LRESULT CCheckListBox::OnLBSelectString(WPARAM wParam, LPARAM lParam)
{
    if (HasStrings())
        return Default();
    const int index = FindData(static_cast<int>(wParam), lParam);
    if (index != LB_ERR)
        SetCurSel(index);
    return index;
}

LRESULT CCheckListBox::OnLBGetText(WPARAM wParam, LPARAM lParam)
{
    if (HasStrings())
        return Default();
    const CItem* const item = FindItem(static_cast<int>(wParam));
    if (item == nullptr)
        return LB_ERR;
    memcpy(reinterpret_cast<void*>(lParam), &item->data, sizeof item->data);
    return sizeof item->data;
}

LRESULT CCheckListBox::OnLBGetItemData(WPARAM wParam, LPARAM)
{
    const LRESULT stored = Default();
    if (stored == LB_ERR || stored == 0)
        return stored;
    return FindItem(static_cast<int>(wParam))->data;
}

LRESULT CCheckListBox::OnLBSetItemData(WPARAM wParam, LPARAM lParam)
{
    CItem* const item = MakeItem(static_cast<int>(wParam));
    if (item == nullptr)
        return LB_ERR;
    item->data = lParam;
    return 0;
}

LRESULT CCheckListBox::OnLBSetItemHeight(WPARAM wParam, LPARAM lParam)
{
    return DefWindowProc(
        LB_SETITEMHEIGHT, wParam,
        (std::max)(static_cast<LPARAM>(LOWORD(lParam)), static_cast<LPARAM>(CalcMinimumItemHeight())));
}
