#pragma once
// The list at the foot of the gallery that shows each call of a handler as it happens.

#include <afxcmn.h>

class CNotificationLog : public CListCtrl
{
public:
    /// To be called once, when the window is there.
    void MakeColumns();
    /// Adds a line at the end and shows it. The oldest lines go when there are many.
    void Write(LPCTSTR pszControl, LPCTSTR pszCall);
};
