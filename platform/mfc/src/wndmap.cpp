// CWnd and window handles: the handle map, attaching, and the lock on temporary objects.

#include "handlemap.h"
#include "threadstate.h"

template <>
struct CHandleTraits<CWnd>
{
    using Handle = HWND;
    static void Assign(CWnd& window, HWND handle) { window.m_hWnd = handle; }
};

CWnd* PASCAL CWnd::FromHandle(HWND hWnd)
{
    return CHandleMap<CWnd>::OfThread().FromHandle(hWnd);
}

CWnd* PASCAL CWnd::FromHandlePermanent(HWND hWnd)
{
    const CHandleMap<CWnd>* const map = CHandleMap<CWnd>::OfThreadIfAny();
    return map != nullptr ? map->FromHandlePermanent(hWnd) : nullptr;
}

void PASCAL CWnd::DeleteTempMap()
{
    if (CHandleMap<CWnd>* const map = CHandleMap<CWnd>::OfThreadIfAny())
        map->DeleteTemp();
}

BOOL CWnd::Attach(HWND hWndNew)
{
    ASSERT(m_hWnd == nullptr); // detach first
    ASSERT(FromHandlePermanent(hWndNew) == nullptr);
    if (hWndNew == nullptr)
        return FALSE;
    m_hWnd = hWndNew;
    CHandleMap<CWnd>::OfThread().SetPermanent(hWndNew, this);
    return TRUE;
}

HWND CWnd::Detach()
{
    const HWND detached = m_hWnd;
    if (detached != nullptr)
        if (CHandleMap<CWnd>* const map = CHandleMap<CWnd>::OfThreadIfAny())
            map->RemoveHandle(detached);
    m_hWnd = nullptr;
    m_hWndOwner = nullptr;
    return detached;
}

void AFXAPI AfxLockTempMaps()
{
    ++GetThreadState().tempMapLocks;
}

BOOL AFXAPI AfxUnlockTempMaps(BOOL bDeleteTemps)
{
    int& locks = GetThreadState().tempMapLocks;
    ASSERT(locks > 0);
    --locks;
    if (locks == 0 && bDeleteTemps)
    {
        CGdiObject::DeleteTempMap();
        CDC::DeleteTempMap();
        CMenu::DeleteTempMap();
        CWnd::DeleteTempMap();
    }
    return locks != 0;
}
