#include "acdocman.h"

#include <vector>

/// The handles to go back to, one for each push.
static std::vector<HINSTANCE> s_resourceHandles;

static HINSTANCE CurrentResourceHandle()
{
    // read from the state itself: AfxGetResourceHandle expects a handle to be there, and there is none yet
    // while the modules of a program are being loaded
    return AfxGetModuleState()->m_hCurrentResourceHandle;
}

AcApDocManager* acDocManagerPtr()
{
    static AcApDocManager s_manager;
    return &s_manager;
}

void AcApDocManager::pushResourceHandle(HINSTANCE hResource)
{
    s_resourceHandles.push_back(CurrentResourceHandle());
    AfxSetResourceHandle(hResource);
}

Acad::ErrorStatus AcApDocManager::popResourceHandle()
{
    if (s_resourceHandles.empty())
        return Acad::eNotApplicable;
    AfxSetResourceHandle(s_resourceHandles.back());
    s_resourceHandles.pop_back();
    return Acad::eOk;
}

int AcApDocManager::resourceHandleDepth() const
{
    return static_cast<int>(s_resourceHandles.size());
}
