#pragma once
// The library as an MFC extension module.

#include <afxwin.h>

/// The record of this extension module; one for the library.
struct OwExtensionModule
{
    int attached = 0;                     ///< non-zero while MFC knows the module
    HINSTANCE defaultResource = nullptr;  ///< MFC's current resource handle when the module was attached
    HINSTANCE moduleResource = nullptr;   ///< the library's own instance handle
    AFX_EXTENSION_MODULE module = {};     ///< MFC's part; its hResource is given to the host around loads
};

OwExtensionModule& gOwExtensionModule();
