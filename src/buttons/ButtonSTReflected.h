#pragma once
// A self-painting button with images and colours that passes its notifications to a typed handler.
//
// ```cpp
//     CButtonSTReflected m_btnPick{this};                   // this: a CButtonReflectedNotificationHandler
//     DDX_Control(pDX, IDC_PICK, m_btnPick);
//     m_btnPick.SetIcon(CButtonST::hIconPogled, nullptr);
// ```
//
// Looks, attaching, keys and images are those of CButtonST; who is called and what for, CButtonReflected's.
// What differs from both:
//
// - A click calls ButtonReflectedOnClicked and does nothing else: it toggles no check box and opens no
//   address, and the focus is where the system puts it. A handler that wants a check box to toggle does it:
//   m_box.SetCheck(!m_box.GetCheck()).
// - Fast clicks are all clicks, with BS_NOTIFY, too. ButtonReflectedOnDoubleclicked answers a
//   BN_DOUBLECLICKED that somebody else sends to the parent.
// - The brush of ButtonReflectedOnCtlColor is what the system erases with; face and border are painted over
//   it. A button with DrawTransparent needs the stock NULL_BRUSH there, or it copies the erased ground.

#include "buttons/ButtonReflection.h"
#include "buttons/ButtonST.h"
#include "module/Export.h"

class OW_DIALOGCONTROLS_API CButtonSTReflected : public ow::CButtonReflection<CButtonST>
{
public:
    CButtonSTReflected();
    explicit CButtonSTReflected(CButtonReflectedNotificationHandler* pHandler);
};
