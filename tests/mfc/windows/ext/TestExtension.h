#pragma once
// A small extension module: resources in the chain, a run-time class, and an exception type of its own.

#include <afxwin.h>

#include "TestExtensionIds.h"

class AFX_EXT_CLASS CExtensionException : public CException
{
    DECLARE_DYNAMIC(CExtensionException)

public:
    explicit CExtensionException(int code);
    int m_code;
};

struct AFX_EXT_CLASS ExtensionFailure
{
    virtual ~ExtensionFailure();
    int code = 0;
};

AFX_EXT_API void ThrowMfcException(int code); ///< throws a CExtensionException, which the catcher deletes
AFX_EXT_API void ThrowStandardException(int code); ///< throws an ExtensionFailure by value

/// The text that AfxLoadString found for IDS_EXTENSION_NAME while the module was attached.
AFX_EXT_API CString TextAtAttach();
