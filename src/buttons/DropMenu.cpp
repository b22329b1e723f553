#include <afxwin.h>

#include "buttons/DropMenu.h"

#include "buttons/DropButton.h"
#include "module/HasWindow.h"

namespace
{
/// While a menu is open: the key that opened it, and is held, does nothing in it.
class CHeldKeyFilter
{
public:
    CHeldKeyFilter() : m_hHook(::SetWindowsHookEx(WH_MSGFILTER, &Filter, nullptr, ::GetCurrentThreadId())) {}
    ~CHeldKeyFilter() { ::UnhookWindowsHookEx(m_hHook); }
    CHeldKeyFilter(const CHeldKeyFilter&) = delete;
    CHeldKeyFilter& operator=(const CHeldKeyFilter&) = delete;

private:
    static LRESULT CALLBACK Filter(int nCode, WPARAM wParam, LPARAM lParam)
    {
        if (nCode == MSGF_MENU && gfnIsHeldChoice(*reinterpret_cast<const MSG*>(lParam)))
            return TRUE;
        return ::CallNextHookEx(nullptr, nCode, wParam, lParam);
    }

    HHOOK m_hHook;
};

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
    {
        const CHeldKeyFilter heldKey;
        menu.TrackPopupMenu(TPM_RIGHTBUTTON, corner.x, corner.y, &button);
    }
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
