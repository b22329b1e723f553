#pragma once
// A small extension module: resources in the chain.

#include <afxwin.h>

#include "TestExtensionIds.h"

/// The text that AfxLoadString found for IDS_EXTENSION_NAME while the module was attached.
AFX_EXT_API CString TextAtAttach();
