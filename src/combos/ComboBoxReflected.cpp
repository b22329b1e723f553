#include <afxwin.h>

#include "combos/ComboBoxReflected.h"

#include "module/NotificationHandler.h"

using Handler = CComboBoxReflectedNotificationHandler;

CComboBoxReflected::CComboBoxReflected(CComboBoxReflectedNotificationHandler* pHandler) : m_pHandler(pHandler)
{
}

BEGIN_MESSAGE_MAP(CComboBoxReflected, CComboBox)
    ON_CONTROL_REFLECT(CBN_EDITCHANGE, &CComboBoxReflected::OnEditchange)
    ON_CONTROL_REFLECT(CBN_CLOSEUP, &CComboBoxReflected::OnCloseup)
    ON_CONTROL_REFLECT(CBN_DBLCLK, &CComboBoxReflected::OnDblclk)
    ON_CONTROL_REFLECT(CBN_DROPDOWN, &CComboBoxReflected::OnDropdown)
    ON_CONTROL_REFLECT(CBN_EDITUPDATE, &CComboBoxReflected::OnEditupdate)
    ON_CONTROL_REFLECT(CBN_ERRSPACE, &CComboBoxReflected::OnErrspace)
    ON_CONTROL_REFLECT(CBN_KILLFOCUS, &CComboBoxReflected::OnKillfocus)
    ON_CONTROL_REFLECT(CBN_SELCHANGE, &CComboBoxReflected::OnSelchange)
    ON_CONTROL_REFLECT(CBN_SELENDCANCEL, &CComboBoxReflected::OnSelendcancel)
    ON_CONTROL_REFLECT(CBN_SELENDOK, &CComboBoxReflected::OnSelendok)
    ON_CONTROL_REFLECT(CBN_SETFOCUS, &CComboBoxReflected::OnSetfocus)
END_MESSAGE_MAP()

void CComboBoxReflected::OnEditchange()
{
    Tell(&Handler::ComboBoxReflectedOnEditchange);
}

void CComboBoxReflected::OnCloseup()
{
    Tell(&Handler::ComboBoxReflectedOnCloseup);
}

void CComboBoxReflected::OnDblclk()
{
    Tell(&Handler::ComboBoxReflectedOnDblclk);
}

void CComboBoxReflected::OnDropdown()
{
    Tell(&Handler::ComboBoxReflectedOnDropdown);
}

void CComboBoxReflected::OnEditupdate()
{
    Tell(&Handler::ComboBoxReflectedOnEditupdate);
}

void CComboBoxReflected::OnErrspace()
{
    Tell(&Handler::ComboBoxReflectedOnErrspace);
}

void CComboBoxReflected::OnKillfocus()
{
    Tell(&Handler::ComboBoxReflectedOnKillfocus);
}

void CComboBoxReflected::OnSelchange()
{
    Tell(&Handler::ComboBoxReflectedOnSelchange);
}

void CComboBoxReflected::OnSelendcancel()
{
    Tell(&Handler::ComboBoxReflectedOnSelendcancel);
}

void CComboBoxReflected::OnSelendok()
{
    Tell(&Handler::ComboBoxReflectedOnSelendok);
}

void CComboBoxReflected::OnSetfocus()
{
    Tell(&Handler::ComboBoxReflectedOnSetfocus);
}

bool CComboBoxReflected::DoesNotificationHandlerExist() const
{
    return GetNotificationHandler() != nullptr;
}

CComboBoxReflectedNotificationHandler* CComboBoxReflected::GetNotificationHandler() const
{
    return ow::FindNotificationHandler(*this, m_pHandler);
}

CComboBoxReflectedNotificationHandler* CComboBoxReflected::GetSafeNotificationHandler() const
{
    return GetNotificationHandler();
}

void CComboBoxReflected::Tell(void (CComboBoxReflectedNotificationHandler::*pOperation)(int nId))
{
    if (auto* pHandler = GetNotificationHandler())
        (pHandler->*pOperation)(GetDlgCtrlID());
}
