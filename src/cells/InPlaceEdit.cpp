#include <afxwin.h>

#include "cells/InPlaceEdit.h"

#include "edits/WholeText.h"

#include <algorithm>

namespace
{
/// One for all editors: the grid's work at the end of an edit may take the focus away from the editor, whose
/// kill focus would then report the same edit again.
bool s_bEnding = false;

class CEndingScope
{
public:
    CEndingScope() { s_bEnding = true; }
    ~CEndingScope() { s_bEnding = false; }
    CEndingScope(const CEndingScope&) = delete;
    CEndingScope& operator=(const CEndingScope&) = delete;
};

/// The character that takes part in an edit as text goes back into the queue under the message that carries
/// it.
constexpr UINT CharMessage(UINT nChar)
{
    return nChar < 128 ? WM_CHAR : WM_IME_CHAR;
}
} // namespace

CInPlaceEdit::CInPlaceEdit(CWnd* pParent, CRect& rect, DWORD dwStyle, UINT nID, int nRow, int nColumn,
                           CString sInitText, UINT nFirstChar)
    : CInPlaceEditor(*this, nRow, nColumn, sInitText, nFirstChar != VK_LBUTTON), m_Rect(rect)
{
    if (Create(dwStyle | WS_CHILD | WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL, rect, pParent, nID))
    {
        SetFont(pParent->GetFont());
        SetWindowText(sInitText);
        SetFocus();
        TakeFirstChar(nFirstChar);
    }
    Constructed();
}

// A key that moves about, Tab or the blank only selects; any other character replaces the text.
void CInPlaceEdit::TakeFirstChar(UINT nChar)
{
    SelectForFirstChar(*this, nChar);
    const bool bDropped = nChar == VK_TAB || nChar == VK_SPACE || (nChar >= VK_PRIOR && nChar <= VK_DOWN);
    if (nChar == VK_BACK || !(gfnKeepsText(nChar) || bDropped))
        PostMessage(CharMessage(nChar), nChar);
}

BEGIN_MESSAGE_MAP(CInPlaceEdit, CEdit)
    ON_WM_KILLFOCUS()
    ON_WM_CHAR()
    ON_WM_KEYDOWN()
    ON_WM_GETDLGCODE()
END_MESSAGE_MAP()

void CInPlaceEdit::OnKillFocus(CWnd* pNewWnd)
{
    CEdit::OnKillFocus(pNewWnd);
    EndEdit();
}

void CInPlaceEdit::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (nChar == VK_TAB || nChar == VK_RETURN)
    {
        Leave(nChar);
        return;
    }
    if (nChar == VK_ESCAPE)
    {
        SetWindowText(m_sInitText);
        Leave(nChar);
        return;
    }
    CEdit::OnChar(nChar, nRepCnt, nFlags);
    GrowToText();
}

void CInPlaceEdit::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (!LeaveByMoveKey(nChar))
        CEdit::OnKeyDown(nChar, nRepCnt, nFlags);
}

// Without it the dialog around the grid would take Tab, Enter and Escape.
UINT CInPlaceEdit::OnGetDlgCode()
{
    return DLGC_WANTALLKEYS;
}

// A character with Alt belongs neither to the text nor to the menus of the dialog.
BOOL CInPlaceEdit::PreTranslateMessage(MSG* pMsg)
{
    if (pMsg->message == WM_SYSCHAR)
        return TRUE;
    return CEdit::PreTranslateMessage(pMsg);
}

void CInPlaceEdit::PostNcDestroy()
{
    CEdit::PostNcDestroy();
    DeleteWithWindow();
}

void CInPlaceEdit::EndEdit()
{
    if (s_bEnding)
        return;
    const CEndingScope ending;
    NotifyEnd(gfnWholeText(*this));
}

// Room for two blanks more than the text, as far as the grid reaches; never less than before.
void CInPlaceEdit::GrowToText()
{
    CClientDC dc(this);
    CFont* const pOldFont = dc.SelectObject(GetFont());
    const int nWidth = dc.GetTextExtent(gfnWholeText(*this) + L"  ").cx;
    dc.SelectObject(pOldFont);
    if (nWidth <= m_Rect.Width())
        return;

    CRect rectParent;
    GetParent()->GetClientRect(&rectParent);
    m_Rect.right = std::min<int>(m_Rect.left + nWidth, rectParent.right);
    MoveWindow(&m_Rect);
}
