#pragma once
// A standard button that tells a handler of its clicks.
//
// ```cpp
//     CExtButton m_btnApply{this};                          // this: an AButtonSTNotificationHandler
//     DDX_Control(pDX, IDC_APPLY, m_btnApply);
// ```
//
// The system paints it, so a push button, a check box or a radio button looks as anywhere else. The parent's
// own handling of BN_CLICKED runs as well, after the handler's.
//
// An automatic radio button that is hidden or disabled takes no click, even if it became so between the press
// and its end, as by a handler of the edit that the user leaves with that press.

#include <afxwin.h>

#include "module/Export.h"
#include "module/NotificationInterfaces.h"

class OW_DIALOGCONTROLS_API CExtButton : public CButton
{
public:
    CExtButton();
    /// The handler is not owned, may be null, and must outlive the button.
    explicit CExtButton(AButtonSTNotificationHandler* pHandler);

    /// Replaces the handler; null silences the button.
    void SetNotificationHandler(AButtonSTNotificationHandler* pHandler);

protected:
    afx_msg BOOL OnClicked();
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    DECLARE_MESSAGE_MAP()

private:
    bool MayClick() const;
    void LetGo();

    AButtonSTNotificationHandler* m_pHandler = nullptr;
};
