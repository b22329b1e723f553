#pragma once
// How a control of the families with empty defaults finds whom to tell.

#include <afxwin.h>

namespace ow
{
/// The handler that the control was given, or else the control's parent, if its class implements the
/// interface; null if neither is there. A dialog that derives from the interface so needs no registration.
/// Looked up anew at each call: the parent may change.
template <class Handler>
Handler* FindNotificationHandler(const CWnd& control, Handler* given)
{
    if (given)
        return given;
    return control.m_hWnd ? dynamic_cast<Handler*>(control.GetParent()) : nullptr;
}
} // namespace ow
