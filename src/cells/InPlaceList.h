#pragma once
// The combo box that is laid over a cell with a list for the length of one edit.
//
// Like CInPlaceEdit it creates its window in the constructor, tells the grid by LVN_ENDLABELEDITW, closes
// itself and deletes itself. It ends on Tab, Enter or Escape when the key is released, but not by the release
// of the key that has opened it; on an arrow or page key with Ctrl, or where the edit leaves on arrows; on a
// choice from the list; and on the loss of the focus. Escape keeps the text from before. With CBS_DROPDOWNLIST
// the list opens at once, and otherwise a text that it lacks is lost.

#include <afxwin.h>
#include <afxcoll.h>

#include "cells/ComboEdit.h"
#include "cells/InPlaceEditor.h"

class OW_DIALOGCONTROLS_API CInPlaceList : public CComboBox, public CInPlaceEditor
{
public:
    CInPlaceList(CWnd* pParent, CRect& rect, DWORD dwStyle, UINT nID, int nRow, int nColumn, COLORREF crFore,
                 COLORREF crBack, CStringArray& Items, CString sInitText, UINT nFirstChar);

    void EndEdit() override;

    /// Room for the longest entry, in pixels, at most 200.
    int GetCorrectDropWidth();

    CComboEdit m_edit; ///< bound unless the style is CBS_DROPDOWNLIST

protected:
    void PostNcDestroy() override;

    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnDropdown();
    afx_msg UINT OnGetDlgCode();
    afx_msg HBRUSH CtlColor(CDC* pDC, UINT nCtlColor);
    afx_msg void OnSelendok();
    DECLARE_MESSAGE_MAP()

    int m_nNumLines = 4; ///< lines of room in the open list
    COLORREF m_crForeClr;
    COLORREF m_crBackClr;

private:
    UINT m_nOpeningKey = 0; ///< Tab, Enter or Escape while it is still down from before the edit
    bool IsDropList() const;
    void TakeFirstChar(UINT nChar);
};
