#pragma once
// A combo box that passes all of its notifications to a typed handler.
//
// ```cpp
//     class CLayerDialog : public CDialog, public CComboBoxReflectedNotificationHandler
//     {
//         CComboBoxReflected m_comboLayer{nullptr};         // null: the dialog itself is asked
//         void DoDataExchange(CDataExchange* pDX) override { DDX_Control(pDX, IDC_LAYER, m_comboLayer); }
//         void ComboBoxReflectedOnDropdown(int nId) override { ... }
//     };
// ```
//
// The handler given to the constructor is called; without one the combo box's parent window is, if its class
// implements CComboBoxReflectedNotificationHandler; without either the combo box is silent. The handler is
// not owned and must outlive the combo box. The parent's own map receives none of the notifications.
//
// Keys and the width of the list are the system's. CExtComboBox is the one with the library's.

#include <afxwin.h>

#include "module/Export.h"
#include "module/NotificationInterfaces.h"

class OW_DIALOGCONTROLS_API CComboBoxReflected : public CComboBox
{
public:
    explicit CComboBoxReflected(CComboBoxReflectedNotificationHandler* pHandler);

protected:
    bool DoesNotificationHandlerExist() const;
    CComboBoxReflectedNotificationHandler* GetNotificationHandler() const;
    CComboBoxReflectedNotificationHandler* GetSafeNotificationHandler() const;

    afx_msg void OnEditchange();
    afx_msg void OnCloseup();
    afx_msg void OnDblclk();
    afx_msg void OnDropdown();
    afx_msg void OnEditupdate();
    afx_msg void OnErrspace();
    afx_msg void OnKillfocus();
    afx_msg void OnSelchange();
    afx_msg void OnSelendcancel();
    afx_msg void OnSelendok();
    afx_msg void OnSetfocus();
    DECLARE_MESSAGE_MAP()

private:
    void Tell(void (CComboBoxReflectedNotificationHandler::*pOperation)(int nId));

    CComboBoxReflectedNotificationHandler* m_pHandler;
};
