#include <afxwin.h>

#include "buttons/DropMenu.h"

namespace
{
/// A key clicks when it goes down, and its character is still to come: the menu would take it for a choice.
void DropCharacterOfKey(HWND hWnd)
{
    MSG msg;
    ::PeekMessage(&msg, hWnd, WM_CHAR, WM_CHAR, PM_REMOVE);
}
} // namespace

void gfnTrackDropMenu(CButton& button, CMenu& menu)
{
    const HWND hWnd = button.m_hWnd;
    button.SendMessage(WM_KILLFOCUS);
    CRect rect;
    button.GetClientRect(rect);
    CPoint corner(rect.right + 1, rect.top);
    button.ClientToScreen(&corner);
    DropCharacterOfKey(hWnd);
    menu.TrackPopupMenu(TPM_RIGHTBUTTON, corner.x, corner.y, &button);
    // A menu that was closed without a choice leaves nothing behind that would show the focus again.
    if (::IsWindow(hWnd) && ::GetFocus() == hWnd)
        ::SendMessage(hWnd, WM_SETFOCUS, 0, 0);
}

// A handler may have closed the dialog.
void gfnEndDropChoice(CButton& button)
{
    if (!button.m_hWnd)
        return;
    button.SendMessage(WM_SETFOCUS);
    button.GetParent()->Invalidate(FALSE);
}
