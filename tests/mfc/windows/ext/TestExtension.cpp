#include "TestExtension.h"

#include <afxdllx.h>

namespace
{
AFX_EXTENSION_MODULE module = {};
wchar_t textAtAttach[32];
} // namespace

CString TextAtAttach()
{
    return textAtAttach;
}

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH)
    {
        if (!AfxInitExtensionModule(module, instance))
            return FALSE;
        new CDynLinkLibrary(module); // deleted by AfxTermExtensionModule
        AfxLoadString(IDS_EXTENSION_NAME, textAtAttach, ARRAYSIZE(textAtAttach));
    }
    else if (reason == DLL_PROCESS_DETACH)
        AfxTermExtensionModule(module);
    return TRUE;
}
