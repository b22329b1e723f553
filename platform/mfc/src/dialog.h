#pragma once
// What dialogs and property pages share.

#include <afxwin.h>

/// The template of a resource, found along the chain of modules, or null; `module` is where it was looked for.
LPCDLGTEMPLATE LoadTemplate(LPCTSTR name, HINSTANCE& module);

/// The dialog procedure: passes WM_INITDIALOG to the object's OnInitDialog, as messages have been handled already.
INT_PTR CALLBACK AfxDlgProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// The way of a command that a dialog or sheet does not handle: to its owner, then to the thread. Notifications and the
/// system's commands do not go there.
BOOL RouteBeyondDialog(CWnd& dialog, UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo);

/// Disables the owner of a modal dialog until `Restore`, or the end of the scope.
class COwnerLock
{
public:
    explicit COwnerLock(HWND owner);
    ~COwnerLock() { Restore(); }
    COwnerLock(const COwnerLock&) = delete;
    COwnerLock& operator=(const COwnerLock&) = delete;
    void Restore();

private:
    HWND m_owner;
    bool m_disabled = false;
};
