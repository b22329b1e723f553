// A small extension module: resources in the chain.

#include <afxdllx.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID)
{
    static AFX_EXTENSION_MODULE module = {};
    if (reason == DLL_PROCESS_ATTACH)
    {
        if (!AfxInitExtensionModule(module, instance))
            return FALSE;
        new CDynLinkLibrary(module); // deleted by AfxTermExtensionModule
    }
    else if (reason == DLL_PROCESS_DETACH)
        AfxTermExtensionModule(module);
    return TRUE;
}
