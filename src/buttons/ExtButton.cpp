#include <afxwin.h>

#include "buttons/ExtButton.h"

#include "module/HasWindow.h"

CExtButton::CExtButton() = default;

CExtButton::CExtButton(AButtonSTNotificationHandler* pHandler) : m_pHandler(pHandler)
{
}

BEGIN_MESSAGE_MAP(CExtButton, CButton)
    ON_CONTROL_REFLECT_EX(BN_CLICKED, &CExtButton::OnClicked)
    ON_WM_LBUTTONUP()
    ON_WM_KEYUP()
END_MESSAGE_MAP()

// False: the parent receives the command, too, unless the handler has closed it.
BOOL CExtButton::OnClicked()
{
    const HWND hWnd = m_hWnd;
    if (m_pHandler)
        m_pHandler->OnButtonClicked(GetDlgCtrlID());
    return !gfnHasWindow(this, hWnd);
}

void CExtButton::OnLButtonUp(UINT nFlags, CPoint point)
{
    if (MayClick())
        CButton::OnLButtonUp(nFlags, point);
    else
        LetGo();
}

void CExtButton::OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (nChar != VK_SPACE || MayClick())
        CButton::OnKeyUp(nChar, nRepCnt, nFlags);
    else
        LetGo();
}

// A click on an automatic radio button goes round the controls of its dialog group, which passes over those that
// are hidden or disabled: with one of these it may never come back to where it began.
bool CExtButton::MayClick() const
{
    return (GetStyle() & BS_TYPEMASK) != BS_AUTORADIOBUTTON ||
           (GetStyle() & (WS_VISIBLE | WS_DISABLED)) == WS_VISIBLE;
}

/// Ends a press without a click.
void CExtButton::LetGo()
{
    if (::GetCapture() == m_hWnd)
        ::ReleaseCapture();
}

void CExtButton::SetNotificationHandler(AButtonSTNotificationHandler* pHandler)
{
    m_pHandler = pHandler;
}
