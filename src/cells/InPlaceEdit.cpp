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
    : m_nRow(nRow), m_nColumn(nColumn), m_sInitText(sInitText), m_bExitOnArrows(nFirstChar != VK_LBUTTON),
      m_Rect(rect)
{
    if (Create(dwStyle | WS_CHILD | WS_VISIBLE | WS_BORDER | ES_AUTOHSCROLL, rect, pParent, nID))
    {
        SetFont(pParent->GetFont());
        SetWindowText(sInitText);
        SetFocus();
        TakeFirstChar(nFirstChar);
    }
    m_bConstructed = true;
}

// A mouse click or Enter leaves the text as it is with the caret behind it; a key that moves about selects
// all; any other character replaces the text.
void CInPlaceEdit::TakeFirstChar(UINT nChar)
{
    const bool bToEnd = nChar == VK_LBUTTON || nChar == VK_RETURN || nChar == VK_BACK;
    const bool bDropped = nChar == VK_TAB || nChar == VK_SPACE || (nChar >= VK_PRIOR && nChar <= VK_DOWN);
    SendMessage(EM_SETSEL, bToEnd ? GetWindowTextLength() : 0, -1);
    SendMessage(EM_SCROLLCARET);
    if (nChar == VK_BACK || (!bToEnd && !bDropped))
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
    if (gfnIsCellMoveKey(nChar) && (m_bExitOnArrows || ::GetKeyState(VK_CONTROL) < 0))
        Leave(nChar);
    else
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
    if (m_bConstructed)
        delete this;
}

void CInPlaceEdit::EndEdit()
{
    if (s_bEnding)
        return;
    const CEndingScope ending;
    NotifyEnd(*this, m_nRow, m_nColumn, m_nLastChar, gfnWholeText(*this));
}

/// Giving the focus away is what ends the edit; the editor may be gone when this returns.
void CInPlaceEdit::Leave(UINT nLastChar)
{
    m_nLastChar = nLastChar;
    if (CWnd* const pParent = GetParent())
        pParent->SetFocus();
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
