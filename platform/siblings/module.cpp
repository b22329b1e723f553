// The entry point of each sibling module: joins it to MFC's chain of extension modules.

#include <afxwin.h>
#include <afxdllx.h>

static AFX_EXTENSION_MODULE s_module;

extern "C" BOOL WINAPI DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID)
{
    if (dwReason == DLL_PROCESS_ATTACH)
    {
        if (!AfxInitExtensionModule(s_module, hInstance))
            return FALSE;
        new CDynLinkLibrary(s_module); // owned by MFC, released by AfxTermExtensionModule
    }
    else if (dwReason == DLL_PROCESS_DETACH)
    {
        AfxTermExtensionModule(s_module);
    }
    return TRUE;
}
