#pragma once
// The CAD host's document manager, as far as add-ons use it here: the resource-handle stack.
//
// An add-on that opens a dialog from its own resources pushes its resource module first, so that MFC finds
// the templates there, and pops it when the dialog has closed:
//
//     acDocManagerPtr()->pushResourceHandle(extensionModule.hResource);
//     CNameDlg dlg;
//     const INT_PTR answer = dlg.DoModal();
//     acDocManagerPtr()->popResourceHandle();
//
// Pushes and pops nest. They are to be called on the main thread only.

#include "acadhostdef.h"
#include "adesk.h"

#include <afxwin.h>

class ACADHOST_API AcApDocManager
{
public:
    /// Remembers MFC's current resource handle and makes `hResource` the current one. A null handle is
    /// passed on like any other.
    void pushResourceHandle(HINSTANCE hResource);

    /// Makes the handle current again that was so at the matching push. With nothing pushed it answers
    /// Acad::eNotApplicable and leaves MFC's handle alone.
    Acad::ErrorStatus popResourceHandle();

    /// How many pushes wait for their pop.
    int resourceHandleDepth() const;

    AcApDocManager(const AcApDocManager&) = delete;
    AcApDocManager& operator=(const AcApDocManager&) = delete;

private:
    friend ACADHOST_API AcApDocManager* acDocManagerPtr();
    AcApDocManager() = default;
};

/// The one document manager of the process; never null, not to be deleted. It works from the moment at which
/// the host's module is loaded, and so in the entry point of a module that depends on it.
ACADHOST_API AcApDocManager* acDocManagerPtr();

#define acDocManager acDocManagerPtr()
