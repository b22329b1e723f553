#pragma once
// A button that passes its notifications to a typed handler.
//
// ```cpp
//     class CPickDialog : public CDialog, public CButtonReflectedNotificationHandler
//     {
//         CButtonReflected m_btnPick;                       // no handler: the dialog itself is asked
//         void DoDataExchange(CDataExchange* pDX) override { DDX_Control(pDX, IDC_PICK, m_btnPick); }
//         void ButtonReflectedOnClicked(int nId) override { ... }
//         void ButtonReflectedOnDoubleclicked(int nId) override { ... }
//     };
// ```
//
// The handler given to the constructor is called; without one the button's parent window is, if its class
// implements CButtonReflectedNotificationHandler; without either the notification is dropped. The handler is
// not owned and must outlive the button; it must not destroy it. The parent's own map receives neither
// clicks nor double clicks in any of these cases.
//
//     ButtonReflectedOnClicked        The button was clicked.
//     ButtonReflectedOnDoubleclicked  It was clicked twice, in place of the second click. The system sees
//                                     double clicks on radio buttons (BS_RADIOBUTTON), on owner-drawn
//                                     buttons, and on others with the style BS_NOTIFY. Without it each of
//                                     two fast clicks is a click.
//     ButtonReflectedOnCtlColor       The brush for the background, which the handler keeps and later
//                                     deletes; colours of the text may be set in the context. A null brush
//                                     leaves the choice to the parent. The system asks for check boxes,
//                                     radio buttons and group boxes with CTLCOLOR_STATIC, for others with
//                                     CTLCOLOR_BTN.
//     ButtonReflectedOnParentNotify   The button's window is made (low word of `message` WM_CREATE) or
//                                     destroyed (WM_DESTROY); high word its id, lParam its window. The
//                                     system says so of windows without WS_EX_NOPARENTNOTIFY; the controls of
//                                     a dialog template have it.

#include <afxwin.h>

#include "buttons/ButtonReflection.h"
#include "module/Export.h"

class OW_DIALOGCONTROLS_API CButtonReflected : public ow::CButtonReflection<CButton>
{
public:
    CButtonReflected();
    explicit CButtonReflected(CButtonReflectedNotificationHandler* pHandler);
};
