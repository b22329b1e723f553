#include <afxwin.h>

#include "buttons/ExtButton.h"

#include "module/HasWindow.h"

CExtButton::CExtButton() = default;

CExtButton::CExtButton(AButtonSTNotificationHandler* pHandler) : m_pHandler(pHandler)
{
}

BEGIN_MESSAGE_MAP(CExtButton, CButton)
    ON_CONTROL_REFLECT_EX(BN_CLICKED, &CExtButton::OnClicked)
END_MESSAGE_MAP()

// False: the parent receives the command, too, unless the handler has closed it.
BOOL CExtButton::OnClicked()
{
    const HWND hWnd = m_hWnd;
    if (m_pHandler)
        m_pHandler->OnButtonClicked(GetDlgCtrlID());
    return !gfnHasWindow(this, hWnd);
}

void CExtButton::SetNotificationHandler(AButtonSTNotificationHandler* pHandler)
{
    m_pHandler = pHandler;
}
