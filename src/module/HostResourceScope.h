#pragma once
// Makes this library's resources the host's current ones for the length of a scope.

#include <acdocman.h>

#include "module/ExtensionModule.h"

/// Every function that loads or opens something from this library's resources does it inside one of these.
class CHostResourceScope
{
public:
    CHostResourceScope() : m_pManager(acDocManagerPtr())
    {
        m_pManager->pushResourceHandle(gOwExtensionModule().module.hResource);
    }
    ~CHostResourceScope() { m_pManager->popResourceHandle(); }
    CHostResourceScope(const CHostResourceScope&) = delete;
    CHostResourceScope& operator=(const CHostResourceScope&) = delete;

private:
    AcApDocManager* m_pManager;
};
