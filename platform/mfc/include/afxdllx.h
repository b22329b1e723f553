#pragma once
// For the source file of an extension module that has its DllMain:
//
//     static AFX_EXTENSION_MODULE module = {};
//
//     extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID)
//     {
//         if (reason == DLL_PROCESS_ATTACH)
//         {
//             if (!AfxInitExtensionModule(module, instance))
//                 return FALSE;
//             new CDynLinkLibrary(module); // deleted by AfxTermExtensionModule
//         }
//         else if (reason == DLL_PROCESS_DETACH)
//             AfxTermExtensionModule(module);
//         return TRUE;
//     }

#include <afxwin.h>

#ifndef _AFXEXT
#error An extension module is compiled with _AFXEXT.
#endif
