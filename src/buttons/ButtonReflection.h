#pragma once
// What CButtonReflected and CButtonSTReflected have in common: a button of class Base that passes the
// notifications which its parent sends back to a typed handler. Use those two; their headers tell the rest.

#include <afxwin.h>

#include "module/NotificationHandler.h"
#include "module/NotificationInterfaces.h"

namespace ow
{
template <class Base>
class CButtonReflection : public Base
{
protected:
    explicit CButtonReflection(CButtonReflectedNotificationHandler* pHandler);

    bool DoesNotificationHandlerExist() const;
    CButtonReflectedNotificationHandler* GetNotificationHandler() const;
    CButtonReflectedNotificationHandler* GetSafeNotificationHandler() const;

    afx_msg void OnClicked();
    afx_msg void OnDoubleclicked();
    afx_msg HBRUSH CtlColor(CDC* pDC, UINT nCtlColor);
    afx_msg void ParentNotify(UINT message, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    CButtonReflectedNotificationHandler* m_pHandler;
};

template <class Base>
CButtonReflection<Base>::CButtonReflection(CButtonReflectedNotificationHandler* pHandler)
    : m_pHandler(pHandler)
{
}

BEGIN_TEMPLATE_MESSAGE_MAP(CButtonReflection, Base, Base)
    ON_CONTROL_REFLECT(BN_CLICKED, &ThisClass::OnClicked)
    ON_CONTROL_REFLECT(BN_DOUBLECLICKED, &ThisClass::OnDoubleclicked)
    ON_WM_CTLCOLOR_REFLECT()
    ON_WM_PARENTNOTIFY_REFLECT()
END_MESSAGE_MAP()

template <class Base>
void CButtonReflection<Base>::OnClicked()
{
    if (auto* pHandler = GetNotificationHandler())
        pHandler->ButtonReflectedOnClicked(this->GetDlgCtrlID());
}

template <class Base>
void CButtonReflection<Base>::OnDoubleclicked()
{
    if (auto* pHandler = GetNotificationHandler())
        pHandler->ButtonReflectedOnDoubleclicked(this->GetDlgCtrlID());
}

template <class Base>
HBRUSH CButtonReflection<Base>::CtlColor(CDC* pDC, UINT nCtlColor)
{
    auto* pHandler = GetNotificationHandler();
    return pHandler ? pHandler->ButtonReflectedOnCtlColor(this->GetDlgCtrlID(), pDC, nCtlColor) : nullptr;
}

template <class Base>
void CButtonReflection<Base>::ParentNotify(UINT message, LPARAM lParam)
{
    if (auto* pHandler = GetNotificationHandler())
        pHandler->ButtonReflectedOnParentNotify(this->GetDlgCtrlID(), message, lParam);
}

template <class Base>
bool CButtonReflection<Base>::DoesNotificationHandlerExist() const
{
    return GetNotificationHandler() != nullptr;
}

template <class Base>
CButtonReflectedNotificationHandler* CButtonReflection<Base>::GetNotificationHandler() const
{
    return FindNotificationHandler(*this, m_pHandler);
}

template <class Base>
CButtonReflectedNotificationHandler* CButtonReflection<Base>::GetSafeNotificationHandler() const
{
    return GetNotificationHandler();
}
} // namespace ow
