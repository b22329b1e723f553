#include <afxwin.h>

#include "buttons/DropMenu.h"

#include "module/HasWindow.h"

namespace
{
/// A key clicks when it goes down, and its character is still to come: the menu would take it for a choice.
void DropCharacterOfKey(HWND hWnd)
{
    MSG msg;
    ::PeekMessage(&msg, hWnd, WM_CHAR, WM_CHAR, PM_REMOVE);
}
} // namespace

bool gfnTrackDropMenu(CButton& button, CMenu& menu)
{
    const HWND hWnd = button.m_hWnd;
    button.SendMessage(WM_KILLFOCUS);
    CRect rect;
    button.GetClientRect(rect);
    CPoint corner(rect.right + 1, rect.top);
    button.ClientToScreen(&corner);
    DropCharacterOfKey(hWnd);
    menu.TrackPopupMenu(TPM_RIGHTBUTTON, corner.x, corner.y, &button);
    if (!gfnHasWindow(&button, hWnd))
        return false;
    // A menu that was closed without a choice leaves nothing behind that would show the focus again.
    if (::GetFocus() == hWnd)
        button.SendMessage(WM_SETFOCUS);
    return true;
}

// The handler may have given the focus away, as a box does that inserts a text: the mark goes with it.
bool gfnEndDropChoice(CButton& button, HWND hWnd)
{
    if (!gfnHasWindow(&button, hWnd))
        return false;
    button.SendMessage(WM_SETFOCUS);
    button.GetParent()->Invalidate(FALSE);
    if (::GetFocus() != hWnd)
        button.SendMessage(WM_KILLFOCUS);
    return true;
}
