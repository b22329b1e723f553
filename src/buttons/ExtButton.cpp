#include <afxwin.h>

#include "buttons/ExtButton.h"

CExtButton::CExtButton() = default;

CExtButton::CExtButton(AButtonSTNotificationHandler* pHandler) : m_pHandler(pHandler)
{
}

BEGIN_MESSAGE_MAP(CExtButton, CButton)
    ON_CONTROL_REFLECT_EX(BN_CLICKED, OnClicked)
END_MESSAGE_MAP()

// False: the parent receives the command, too.
BOOL CExtButton::OnClicked()
{
    if (m_pHandler)
        m_pHandler->OnButtonClicked(GetDlgCtrlID());
    return FALSE;
}

void CExtButton::SetNotificationHandler(AButtonSTNotificationHandler* pHandler)
{
    m_pHandler = pHandler;
}
