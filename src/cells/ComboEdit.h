#pragma once
// The edit part of a CInPlaceList: hands the keys that end an edit to the list around it.

#include <afxwin.h>

#include "module/Export.h"

/// The id that Windows gives to the edit part of a combo box.
constexpr int kComboEditId = 1001;

class OW_DIALOGCONTROLS_API CComboEdit : public CEdit
{
    BOOL PreTranslateMessage(MSG* pMsg) override;

protected:
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    DECLARE_MESSAGE_MAP()

private:
    void PassOn(UINT message, UINT nChar, UINT nRepCnt, UINT nFlags);
};
