// The classic controls.

#include "drawn.h"

// ---------------------------------------------------------------------------------------------------------
// CStatic

IMPLEMENT_DYNAMIC(CStatic, CWnd)
IMPLEMENT_DRAWN_CONTROL(CStatic)

CStatic::CStatic() = default;

BOOL CStatic::Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create(WC_STATIC, lpszText, dwStyle, rect, pParentWnd, nID);
}

HENHMETAFILE CStatic::SetEnhMetaFile(HENHMETAFILE hMetaFile)
{
    return AfxSend<HENHMETAFILE>(STM_SETIMAGE, IMAGE_ENHMETAFILE, hMetaFile);
}

// ---------------------------------------------------------------------------------------------------------
// CButton

IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DRAWN_CONTROL(CButton)

CButton::CButton() = default;

BOOL CButton::Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create(WC_BUTTON, lpszCaption, dwStyle, rect, pParentWnd, nID);
}

UINT CButton::GetButtonStyle() const
{
    constexpr DWORD buttonStyles = 0x00FF;
    return GetStyle() & buttonStyles;
}

BOOL CButton::SetImageList(PBUTTON_IMAGELIST pbuttonImagelist)
{
    return AfxSend<BOOL>(BCM_SETIMAGELIST, 0, pbuttonImagelist);
}

BOOL CButton::GetImageList(PBUTTON_IMAGELIST pbuttonImagelist) const
{
    return AfxSend<BOOL>(BCM_GETIMAGELIST, 0, pbuttonImagelist);
}

// ---------------------------------------------------------------------------------------------------------
// CListBox

IMPLEMENT_DYNAMIC(CListBox, CWnd)

CListBox::CListBox() = default;

BOOL CListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create(WC_LISTBOX, nullptr, dwStyle, rect, pParentWnd, nID);
}

UINT CListBox::ItemFromPoint(CPoint pt, BOOL& bOutside) const
{
    const DWORD answer = AfxSend<DWORD>(LB_ITEMFROMPOINT, 0, MAKELPARAM(pt.x, pt.y));
    bOutside = HIWORD(answer);
    return LOWORD(answer);
}

BOOL CListBox::SetTabStops(int nTabStops, LPINT rgTabStops)
{
    return AfxSend<BOOL>(LB_SETTABSTOPS, nTabStops, rgTabStops);
}

int CListBox::GetSelItems(int nMaxItems, LPINT rgIndex) const
{
    return AfxSend<int>(LB_GETSELITEMS, nMaxItems, rgIndex);
}

int CListBox::SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem)
{
    if (bSelect)
        return AfxSend<int>(LB_SELITEMRANGEEX, nFirstItem, nLastItem);
    // The message takes a selection away when the range is given backwards.
    return AfxSend<int>(LB_SELITEMRANGEEX, nLastItem, nFirstItem);
}

int CListBox::SetCaretIndex(int nIndex, BOOL bScroll)
{
    return AfxSend<int>(LB_SETCARETINDEX, nIndex, MAKELPARAM(bScroll, 0));
}

int CListBox::SetItemData(int nIndex, DWORD_PTR dwItemData)
{
    return AfxSend<int>(LB_SETITEMDATA, nIndex, dwItemData);
}

int CListBox::SetItemHeight(int nIndex, UINT cyItemHeight)
{
    return AfxSend<int>(LB_SETITEMHEIGHT, nIndex, MAKELPARAM(cyItemHeight, 0));
}

int CListBox::FindString(int nStartAfter, LPCTSTR lpszItem) const
{
    return AfxSend<int>(LB_FINDSTRING, nStartAfter, lpszItem);
}

int CListBox::FindStringExact(int nIndexStart, LPCTSTR lpszFind) const
{
    return AfxSend<int>(LB_FINDSTRINGEXACT, nIndexStart, lpszFind);
}

int CListBox::SelectString(int nStartAfter, LPCTSTR lpszItem)
{
    return AfxSend<int>(LB_SELECTSTRING, nStartAfter, lpszItem);
}

namespace
{
/// The text of an item in a string, empty where there is no such item.
template <class ReadText>
void ReadItemText(CString& text, int length, ReadText read)
{
    text.Empty();
    if (length == LB_ERR)
        return;
    read(text.GetBufferSetLength(length));
    text.ReleaseBuffer();
}

/// The owner-drawing messages that list boxes and combo boxes share; false for another message.
template <class List>
bool NotifyDrawnList(List& list, UINT message, LPARAM lParam, LRESULT* pLResult)
{
    switch (message)
    {
    case WM_DRAWITEM:
        list.DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        return true;
    case WM_MEASUREITEM:
        list.MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        return true;
    case WM_COMPAREITEM:
        *pLResult = list.CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        return true;
    case WM_DELETEITEM:
        list.DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        return true;
    default:
        return false;
    }
}
} // namespace

void CListBox::GetText(int nIndex, CString& rString) const
{
    ReadItemText(rString, GetTextLen(nIndex), [&](LPTSTR buffer) { GetText(nIndex, buffer); });
}

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    if (NotifyDrawnList(*this, message, lParam, pLResult))
        return TRUE;
    if (message != WM_VKEYTOITEM && message != WM_CHARTOITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, pLResult);
    *pLResult = message == WM_VKEYTOITEM ? VKeyToItem(LOWORD(wParam), HIWORD(wParam))
                                         : CharToItem(LOWORD(wParam), HIWORD(wParam));
    return TRUE;
}

void CListBox::DrawItem(LPDRAWITEMSTRUCT)
{
    ASSERT(FALSE); // an owner-drawn list must draw its items
}

void CListBox::MeasureItem(LPMEASUREITEMSTRUCT)
{
    ASSERT(FALSE); // an owner-drawn list must know the height of its items
}

int CListBox::CompareItem(LPCOMPAREITEMSTRUCT)
{
    ASSERT(FALSE); // an owner-drawn, sorted list must know the order of its items
    return 0;
}

void CListBox::DeleteItem(LPDELETEITEMSTRUCT)
{
}

int CListBox::VKeyToItem(UINT, UINT)
{
    return -1;
}

int CListBox::CharToItem(UINT, UINT)
{
    return -1;
}

// ---------------------------------------------------------------------------------------------------------
// CComboBox

IMPLEMENT_DYNAMIC(CComboBox, CWnd)

CComboBox::CComboBox() = default;

BOOL CComboBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create(WC_COMBOBOX, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CComboBox::SetEditSel(int nStartChar, int nEndChar)
{
    return AfxSend<BOOL>(CB_SETEDITSEL, 0, MAKELPARAM(nStartChar, nEndChar));
}

BOOL CComboBox::GetCueBanner(LPTSTR lpcwText, int cchText) const
{
    return AfxSend<BOOL>(CB_GETCUEBANNER, lpcwText, cchText);
}

int CComboBox::SetItemData(int nIndex, DWORD_PTR dwItemData)
{
    return AfxSend<int>(CB_SETITEMDATA, nIndex, dwItemData);
}

void CComboBox::GetLBText(int nIndex, CString& rString) const
{
    ReadItemText(rString, GetLBTextLen(nIndex), [&](LPTSTR buffer) { GetLBText(nIndex, buffer); });
}

int CComboBox::SetItemHeight(int nIndex, UINT cyItemHeight)
{
    return AfxSend<int>(CB_SETITEMHEIGHT, nIndex, MAKELPARAM(cyItemHeight, 0));
}

int CComboBox::InsertString(int nIndex, LPCTSTR lpszString)
{
    return AfxSend<int>(CB_INSERTSTRING, nIndex, lpszString);
}

int CComboBox::FindString(int nStartAfter, LPCTSTR lpszString) const
{
    return AfxSend<int>(CB_FINDSTRING, nStartAfter, lpszString);
}

int CComboBox::FindStringExact(int nIndexStart, LPCTSTR lpszFind) const
{
    return AfxSend<int>(CB_FINDSTRINGEXACT, nIndexStart, lpszFind);
}

int CComboBox::SelectString(int nStartAfter, LPCTSTR lpszString)
{
    return AfxSend<int>(CB_SELECTSTRING, nStartAfter, lpszString);
}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult)
{
    return NotifyDrawnList(*this, message, lParam, pLResult) ||
           CWnd::OnChildNotify(message, wParam, lParam, pLResult);
}

void CComboBox::DrawItem(LPDRAWITEMSTRUCT)
{
    ASSERT(FALSE); // an owner-drawn combo box must draw its items
}

void CComboBox::MeasureItem(LPMEASUREITEMSTRUCT)
{
    ASSERT(FALSE); // an owner-drawn combo box must know the height of its items
}

int CComboBox::CompareItem(LPCOMPAREITEMSTRUCT)
{
    ASSERT(FALSE); // an owner-drawn, sorted combo box must know the order of its items
    return 0;
}

void CComboBox::DeleteItem(LPDELETEITEMSTRUCT)
{
}

// ---------------------------------------------------------------------------------------------------------
// CEdit

IMPLEMENT_DYNAMIC(CEdit, CWnd)

CEdit::CEdit() = default;

BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create(WC_EDIT, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CEdit::SetMargins(UINT nLeft, UINT nRight)
{
    AfxSend(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(nLeft, nRight));
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const
{
    // The message reads the size of the buffer from its first word.
    *reinterpret_cast<WORD*>(lpszBuffer) = static_cast<WORD>(nMaxLength);
    return GetLine(nIndex, lpszBuffer);
}

void CEdit::ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo)
{
    AfxSend(EM_REPLACESEL, bCanUndo, lpszNewText);
}

void CEdit::SetSel(DWORD dwSelection, BOOL bNoScroll)
{
    const auto position = [](WORD word) { return word == 0xFFFF ? -1 : static_cast<int>(word); };
    SetSel(position(LOWORD(dwSelection)), position(HIWORD(dwSelection)), bNoScroll);
}

void CEdit::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll)
{
    AfxSend(EM_SETSEL, nStartChar, nEndChar);
    if (!bNoScroll)
        AfxSend(EM_SCROLLCARET);
}

BOOL CEdit::SetTabStops(int nTabStops, LPINT rgTabStops)
{
    return AfxSend<BOOL>(EM_SETTABSTOPS, nTabStops, rgTabStops);
}

BOOL CEdit::GetCueBanner(LPWSTR lpszText, int cchText) const
{
    return AfxSend<BOOL>(EM_GETCUEBANNER, lpszText, cchText);
}

BOOL CEdit::ShowBalloonTip(PEDITBALLOONTIP pEditBalloonTip)
{
    return AfxSend<BOOL>(EM_SHOWBALLOONTIP, 0, pEditBalloonTip);
}

BOOL CEdit::ShowBalloonTip(LPCWSTR lpszTitle, LPCWSTR lpszText, INT ttiIcon)
{
    EDITBALLOONTIP tip = {};
    tip.cbStruct = sizeof(tip);
    tip.pszTitle = lpszTitle;
    tip.pszText = lpszText;
    tip.ttiIcon = ttiIcon;
    return ShowBalloonTip(&tip);
}

void CEdit::Paste()
{
    AfxSend(WM_PASTE);
}

// ---------------------------------------------------------------------------------------------------------
// CScrollBar

IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

CScrollBar::CScrollBar() = default;

BOOL CScrollBar::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    return CWnd::Create(WC_SCROLLBAR, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CScrollBar::GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const
{
    ::GetScrollRange(m_hWnd, SB_CTL, lpMinPos, lpMaxPos);
}

void CScrollBar::SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw)
{
    ::SetScrollRange(m_hWnd, SB_CTL, nMinPos, nMaxPos, bRedraw);
}

BOOL CScrollBar::EnableScrollBar(UINT nArrowFlags)
{
    return ::EnableScrollBar(m_hWnd, SB_CTL, nArrowFlags);
}

BOOL CScrollBar::SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw)
{
    lpScrollInfo->cbSize = sizeof(SCROLLINFO);
    ::SetScrollInfo(m_hWnd, SB_CTL, lpScrollInfo, bRedraw);
    return TRUE;
}

BOOL CScrollBar::GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask)
{
    lpScrollInfo->cbSize = sizeof(SCROLLINFO);
    lpScrollInfo->fMask |= nMask;
    return ::GetScrollInfo(m_hWnd, SB_CTL, lpScrollInfo);
}

int CScrollBar::GetScrollLimit()
{
    return CWnd::GetScrollLimit(SB_CTL);
}

BOOL CScrollBar::GetScrollBarInfo(PSCROLLBARINFO pScrollInfo) const
{
    pScrollInfo->cbSize = sizeof(SCROLLBARINFO);
    return ::GetScrollBarInfo(m_hWnd, OBJID_CLIENT, pScrollInfo);
}
