#include <afxwin.h>

#include "module/DialogKeys.h"

bool gfnHandleDialogKey(const CWnd& control, UINT nChar)
{
    if (!gfnIsDialogKeyChar(nChar))
        return false;
    CWnd* pParent = control.GetParent();
    if (!pParent)
        return true;
    const bool backwards = nChar == VK_TAB && ::GetKeyState(VK_SHIFT) < 0;
    if (nChar == VK_ESCAPE)
        pParent->PostMessage(WM_COMMAND, IDCANCEL, 0);
    else
        pParent->PostMessage(WM_NEXTDLGCTL, backwards, 0);
    return true;
}

// The key codes of the three are also the characters that they make.
bool gfnIsDialogKeyChar(UINT nChar)
{
    return nChar == VK_TAB || nChar == VK_RETURN || nChar == VK_ESCAPE;
}
