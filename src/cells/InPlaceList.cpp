#include <afxwin.h>

#include "cells/InPlaceList.h"

#include "combos/DropWidth.h"

#include <algorithm>

namespace
{
/// The key that ends an edit by its release and is down now, or 0.
UINT EndingKeyThatIsDown()
{
    for (const UINT nKey : {VK_TAB, VK_RETURN, VK_ESCAPE})
        if (::GetKeyState(static_cast<int>(nKey)) < 0)
            return nKey;
    return 0;
}
} // namespace

CInPlaceList::CInPlaceList(CWnd* pParent, CRect& rect, DWORD dwStyle, UINT nID, int nRow, int nColumn,
                           COLORREF crFore, COLORREF crBack, CStringArray& Items, CString sInitText,
                           UINT nFirstChar)
    : CInPlaceEditor(*this, nRow, nColumn, sInitText, FALSE), m_crForeClr(crFore), m_crBackClr(crBack),
      m_nOpeningKey(EndingKeyThatIsDown())
{
    // The height of a combo box is that of its open list.
    CRect rectOpen(rect);
    rectOpen.bottom += ::GetSystemMetrics(SM_CYHSCROLL) + rect.Height() * m_nNumLines;
    if (Create(dwStyle | WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_BORDER | CBS_AUTOHSCROLL, rectOpen, pParent,
               nID))
    {
        for (INT_PTR i = 0; i < Items.GetSize(); ++i)
            AddString(Items[i]);
        SetFont(pParent->GetFont());
        SetItemHeight(-1, rect.Height());
        SetDroppedWidth(GetCorrectDropWidth());
        SetHorizontalExtent(0);
        if (SelectString(-1, sInitText) == CB_ERR)
            SetWindowText(sInitText);
        TakeFirstChar(nFirstChar);
    }
    Constructed();
}

// The character is sent, not posted, and Tab and the blank count as characters, unlike in CInPlaceEdit.
void CInPlaceList::TakeFirstChar(UINT nChar)
{
    if (IsDropList())
    {
        ShowDropDown();
        SetFocus();
        return;
    }
    m_edit.SubclassDlgItem(kComboEditId, this);
    SetFocus();

    SelectForFirstChar(m_edit, nChar);
    const bool bDropped = nChar >= VK_PRIOR && nChar <= VK_DOWN;
    if (nChar == VK_BACK || !(gfnKeepsText(nChar) || bDropped))
        SendMessage(WM_CHAR, nChar);
}

BEGIN_MESSAGE_MAP(CInPlaceList, CComboBox)
    ON_WM_KILLFOCUS()
    ON_WM_KEYDOWN()
    ON_WM_KEYUP()
    ON_CONTROL_REFLECT(CBN_DROPDOWN, &CInPlaceList::OnDropdown)
    ON_WM_GETDLGCODE()
    ON_WM_CTLCOLOR_REFLECT()
    ON_CONTROL_REFLECT(CBN_SELENDOK, &CInPlaceList::OnSelendok)
END_MESSAGE_MAP()

// With an edit part, that one decides: the focus goes back and forth between the two.
void CInPlaceList::OnKillFocus(CWnd* pNewWnd)
{
    CComboBox::OnKillFocus(pNewWnd);
    if ((pNewWnd && pNewWnd->m_hWnd == m_hWnd) || !IsDropList())
        return;
    EndEdit();
}

void CInPlaceList::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (!LeaveByMoveKey(nChar))
        CComboBox::OnKeyDown(nChar, nRepCnt, nFlags);
}

void CInPlaceList::OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (nChar == m_nOpeningKey)
    {
        m_nOpeningKey = 0; // its next release counts
        return;
    }
    if (nChar == VK_ESCAPE)
        SetWindowText(m_sInitText);
    if (nChar == VK_ESCAPE || nChar == VK_TAB || nChar == VK_RETURN)
        Leave(nChar);
    else
        CComboBox::OnKeyUp(nChar, nRepCnt, nFlags);
}

void CInPlaceList::OnDropdown()
{
    SetDroppedWidth(GetCorrectDropWidth());
}

UINT CInPlaceList::OnGetDlgCode()
{
    return DLGC_WANTALLKEYS;
}

HBRUSH CInPlaceList::CtlColor(CDC* /*pDC*/, UINT /*nCtlColor*/)
{
    return nullptr;
}

// A choice from the list ends the edit at once.
void CInPlaceList::OnSelendok()
{
    const int nSel = GetCurSel();
    if (nSel != CB_ERR)
    {
        CString strText;
        GetLBText(nSel, strText);
        if (!IsDropList())
            m_edit.SetWindowText(strText);
    }
    Leave();
}

void CInPlaceList::PostNcDestroy()
{
    CComboBox::PostNcDestroy();
    DeleteWithWindow();
}

// Escape takes a choice back, too: a list without an edit part shows it already.
void CInPlaceList::EndEdit()
{
    CString strText;
    if (m_nLastChar == VK_ESCAPE)
        strText = m_sInitText;
    else if (::IsWindow(m_hWnd))
        GetWindowText(strText);
    NotifyEnd(strText);
}

int CInPlaceList::GetCorrectDropWidth()
{
    constexpr int kWidest = 200;
    return std::min(gfnMeasureDropWidth(*this), kWidest);
}

bool CInPlaceList::IsDropList() const
{
    return (GetStyle() & 3) == CBS_DROPDOWNLIST;
}
