#pragma once
// A small extension module: resources in the chain, a run-time class that is thrown.

#include <afxwin.h>

#include "TestExtensionIds.h"

class AFX_EXT_CLASS CExtensionException : public CException
{
    DECLARE_DYNAMIC(CExtensionException)

public:
    explicit CExtensionException(int code);
    int m_code;
};

/// Throws a CExtensionException, which the catcher deletes.
AFX_EXT_API void ThrowFromExtension(int code);

/// The text that AfxLoadString found for IDS_EXTENSION_NAME while the module was attached.
AFX_EXT_API CString TextAtAttach();
