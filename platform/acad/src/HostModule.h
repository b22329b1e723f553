#pragma once
// The host's own module.

#include <afxwin.h>

/// Where the host's dialog templates are.
HINSTANCE HostResourceHandle();

/// Makes the host's resources MFC's current ones for as long as the object lives.
class CHostResources
{
public:
    CHostResources();
    ~CHostResources();
    CHostResources(const CHostResources&) = delete;
    CHostResources& operator=(const CHostResources&) = delete;
};
