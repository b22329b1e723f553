#pragma once
// The edit control that is laid over a text cell for the length of one edit.
//
// It creates its window in the constructor, takes the first key, grows to the right with its text, and ends
// on Tab, Enter, Escape, an arrow or page key, or the loss of the focus. Escape ends it with the text that it
// began with. It tells the grid by LVN_ENDLABELEDITW, closes itself and deletes itself: make it with `new`
// and never delete it. An edit that a mouse click began keeps the arrow keys for the caret, unless Ctrl is
// held.

#include <afxwin.h>

#include "cells/InPlaceEditor.h"

class OW_DIALOGCONTROLS_API CInPlaceEdit : public CEdit, public CInPlaceEditor
{
public:
    /// `rect` is in the parent's client area; `nFirstChar` is the key that began the edit, VK_LBUTTON for the
    /// mouse.
    CInPlaceEdit(CWnd* pParent, CRect& rect, DWORD dwStyle, UINT nID, int nRow, int nColumn,
                 CString sInitText, UINT nFirstChar);

    void EndEdit() override;

    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    void PostNcDestroy() override;

    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg UINT OnGetDlgCode();
    DECLARE_MESSAGE_MAP()

    CRect m_Rect; ///< in the grid's client area; grows with the text

private:
    void TakeFirstChar(UINT nChar);
    void GrowToText();
};
