#include <afxwin.h>

#include "cells/ComboEdit.h"

#include "cells/InPlaceEditor.h"

BEGIN_MESSAGE_MAP(CComboEdit, CEdit)
    ON_WM_KILLFOCUS()
    ON_WM_KEYDOWN()
    ON_WM_KEYUP()
END_MESSAGE_MAP()

// The focus has left the whole list, since its edit part always has it.
void CComboEdit::OnKillFocus(CWnd* pNewWnd)
{
    CEdit::OnKillFocus(pNewWnd);
    if (auto* const pList = dynamic_cast<CInPlaceEditor*>(GetOwner()))
        pList->EndEdit();
}

void CComboEdit::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (gfnIsCellMoveKey(nChar) && ::GetKeyState(VK_CONTROL) < 0 && GetDlgCtrlID() == kComboEditId)
        PassOn(WM_KEYDOWN, nChar, nRepCnt, nFlags);
    else
        CEdit::OnKeyDown(nChar, nRepCnt, nFlags);
}

void CComboEdit::OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (nChar == VK_TAB || nChar == VK_RETURN || nChar == VK_ESCAPE)
        PassOn(WM_KEYUP, nChar, nRepCnt, nFlags);
    else
        CEdit::OnKeyUp(nChar, nRepCnt, nFlags);
}

// The dialog around the grid must not see the keys, and above all not Enter, Escape and Tab.
BOOL CComboEdit::PreTranslateMessage(MSG* pMsg)
{
    if (pMsg->message == WM_SYSCHAR)
        return TRUE;
    if (pMsg->message != WM_KEYDOWN && pMsg->message != WM_KEYUP)
        return CEdit::PreTranslateMessage(pMsg);
    ::TranslateMessage(pMsg);
    ::DispatchMessage(pMsg);
    return TRUE;
}

void CComboEdit::PassOn(UINT message, UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (CWnd* const pOwner = GetOwner())
        pOwner->SendMessage(message, nChar, static_cast<LPARAM>(nRepCnt + (nFlags << 16)));
}
