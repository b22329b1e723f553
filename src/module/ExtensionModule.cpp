// The library's entry point: attaching is where all of the start-up work is done.

#include "module/ExtensionModule.h"

#include <afxdllx.h>

#include "module/Initialize.h"

OwExtensionModule& gOwExtensionModule()
{
    static OwExtensionModule object;
    return object;
}

namespace
{
/// Puts the module into MFC's resource chain. AfxTermExtensionModule deletes the link; without memory for it the
/// module does without.
void LinkResources(AFX_EXTENSION_MODULE& module)
{
    try
    {
        new CDynLinkLibrary(module, FALSE);
    }
    catch (CMemoryException* e)
    {
        e->Delete();
    }
}

void AttachExtension(HINSTANCE hInstance)
{
    OwExtensionModule& extension = gOwExtensionModule();
    if (extension.attached)
        return;
    extension.attached = AfxInitExtensionModule(extension.module, hInstance);
    if (!extension.attached)
        return;
    extension.defaultResource = AfxGetModuleState()->m_hCurrentResourceHandle;
    extension.moduleResource = hInstance;
    LinkResources(extension.module);
}

// The shared graphics are not released: sibling modules may outlive this one.
void DetachExtension()
{
    OwExtensionModule& extension = gOwExtensionModule();
    if (!extension.attached)
        return;
    AfxTermExtensionModule(extension.module);
    extension.attached = 0;
}
} // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE hInstance, DWORD reason, LPVOID)
{
    switch (reason)
    {
    case DLL_PROCESS_ATTACH:
        AttachExtension(hInstance);
        gfnInitialize(hInstance); // whether or not there was something to attach
        break;
    case DLL_PROCESS_DETACH:
        DetachExtension();
        break;
    }
    return TRUE;
}
