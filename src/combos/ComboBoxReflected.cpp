#include <afxwin.h>

#include "combos/ComboBoxReflected.h"

#include "module/NotificationHandler.h"

using Handler = CComboBoxReflectedNotificationHandler;

CComboBoxReflected::CComboBoxReflected(CComboBoxReflectedNotificationHandler* pHandler) : m_pHandler(pHandler)
{
}

BEGIN_MESSAGE_MAP(CComboBoxReflected, CComboBox)
    ON_CONTROL_REFLECT(CBN_EDITCHANGE, OnEditchange)
    ON_CONTROL_REFLECT(CBN_CLOSEUP, OnCloseup)
    ON_CONTROL_REFLECT(CBN_DBLCLK, OnDblclk)
    ON_CONTROL_REFLECT(CBN_DROPDOWN, OnDropdown)
    ON_CONTROL_REFLECT(CBN_EDITUPDATE, OnEditupdate)
    ON_CONTROL_REFLECT(CBN_ERRSPACE, OnErrspace)
    ON_CONTROL_REFLECT(CBN_KILLFOCUS, OnKillfocus)
    ON_CONTROL_REFLECT(CBN_SELCHANGE, OnSelchange)
    ON_CONTROL_REFLECT(CBN_SELENDCANCEL, OnSelendcancel)
    ON_CONTROL_REFLECT(CBN_SELENDOK, OnSelendok)
    ON_CONTROL_REFLECT(CBN_SETFOCUS, OnSetfocus)
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
