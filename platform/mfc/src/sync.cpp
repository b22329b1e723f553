// Synchronisation objects and the locks on them.

#include <afxmt.h>

IMPLEMENT_DYNAMIC(CSyncObject, CObject)
IMPLEMENT_DYNAMIC(CSemaphore, CSyncObject)
IMPLEMENT_DYNAMIC(CMutex, CSyncObject)
IMPLEMENT_DYNAMIC(CEvent, CSyncObject)
IMPLEMENT_DYNAMIC(CCriticalSection, CSyncObject)

CSyncObject::CSyncObject(LPCTSTR pstrName) : m_strName(pstrName)
{
}

CSyncObject::~CSyncObject()
{
    if (m_hObject != nullptr)
        ::CloseHandle(m_hObject);
}

void CSyncObject::TakeHandle(HANDLE hObject)
{
    if (hObject == nullptr)
        AfxThrowResourceException();
    m_hObject = hObject;
}

BOOL CSyncObject::Lock(DWORD dwTimeout)
{
    const DWORD answer = ::WaitForSingleObject(m_hObject, dwTimeout);
    return answer == WAIT_OBJECT_0 || answer == WAIT_ABANDONED;
}

void CSyncObject::Dump(CDumpContext& dc) const
{
    CObject::Dump(dc);
    dc << "name = " << m_strName << ", handle = " << static_cast<const void*>(m_hObject) << "\n";
}

CSemaphore::CSemaphore(LONG lInitialCount, LONG lMaxCount, LPCTSTR pstrName,
                       LPSECURITY_ATTRIBUTES lpsaAttributes)
    : CSyncObject(pstrName)
{
    TakeHandle(::CreateSemaphore(lpsaAttributes, lInitialCount, lMaxCount, pstrName));
}

BOOL CSemaphore::Unlock(LONG lCount, LPLONG lprevCount)
{
    return ::ReleaseSemaphore(m_hObject, lCount, lprevCount);
}

CMutex::CMutex(BOOL bInitiallyOwn, LPCTSTR lpszName, LPSECURITY_ATTRIBUTES lpsaAttribute)
    : CSyncObject(lpszName)
{
    TakeHandle(::CreateMutex(lpsaAttribute, bInitiallyOwn, lpszName));
}

CEvent::CEvent(BOOL bInitiallyOwn, BOOL bManualReset, LPCTSTR lpszName, LPSECURITY_ATTRIBUTES lpsaAttribute)
    : CSyncObject(lpszName)
{
    TakeHandle(::CreateEvent(lpsaAttribute, bManualReset, bInitiallyOwn, lpszName));
}

BOOL CCriticalSection::Lock(DWORD dwTimeout)
{
    ASSERT(dwTimeout == INFINITE);
    (void)dwTimeout;
    ::EnterCriticalSection(&m_sect);
    return TRUE;
}

BOOL CCriticalSection::Unlock()
{
    ::LeaveCriticalSection(&m_sect);
    return TRUE;
}

// ---------------------------------------------------------------------------------------------------------
// Locks

CSingleLock::CSingleLock(CSyncObject* pObject, BOOL bInitialLock) : m_pObject(pObject)
{
    ENSURE_ARG(pObject != nullptr);
    if (bInitialLock)
        Lock();
}

BOOL CSingleLock::Lock(DWORD dwTimeOut)
{
    ASSERT(!m_bAcquired);
    m_bAcquired = m_pObject->Lock(dwTimeOut);
    return m_bAcquired;
}

BOOL CSingleLock::Unlock()
{
    if (m_bAcquired)
        m_bAcquired = !m_pObject->Unlock();
    return !m_bAcquired;
}

BOOL CSingleLock::Unlock(LONG lCount, LPLONG lPrevCount)
{
    if (m_bAcquired)
        m_bAcquired = !m_pObject->Unlock(lCount, lPrevCount);
    return !m_bAcquired;
}

CMultiLock::CMultiLock(CSyncObject* ppObjects[], DWORD dwCount, BOOL bInitialLock)
{
    ENSURE_ARG(ppObjects != nullptr && dwCount > 0 && dwCount <= MAXIMUM_WAIT_OBJECTS);
    m_objects.assign(ppObjects, ppObjects + dwCount);
    m_locked.resize(dwCount, FALSE);
    for (const CSyncObject* const object : m_objects)
    {
        ENSURE_ARG(object != nullptr && object->m_hObject != nullptr);
        m_handles.push_back(object->m_hObject);
    }
    if (bInitialLock)
        Lock();
}

DWORD CMultiLock::Lock(DWORD dwTimeOut, BOOL bWaitForAll, DWORD dwWakeMask)
{
    const auto count = static_cast<DWORD>(m_handles.size());
    const DWORD answer =
        dwWakeMask == 0
            ? ::WaitForMultipleObjects(count, m_handles.data(), bWaitForAll, dwTimeOut)
            : ::MsgWaitForMultipleObjects(count, m_handles.data(), bWaitForAll, dwTimeOut, dwWakeMask);
    for (const DWORD first : {WAIT_OBJECT_0, WAIT_ABANDONED_0})
    {
        const DWORD item = answer - first;
        if (item >= count)
            continue; // none, or below `first` and wrapped round
        if (bWaitForAll)
            m_locked.assign(count, TRUE);
        else
            m_locked[item] = TRUE;
    }
    return answer;
}

BOOL CMultiLock::Unlock()
{
    for (size_t item = 0; item < m_objects.size(); ++item)
        if (m_locked[item])
            m_locked[item] = !m_objects[item]->Unlock();
    return TRUE;
}

BOOL CMultiLock::Unlock(LONG lCount, LPLONG lPrevCount)
{
    BOOL unlockedOne = FALSE;
    for (size_t item = 0; item < m_objects.size(); ++item)
    {
        if (!m_locked[item] || !m_objects[item]->IsKindOf(RUNTIME_CLASS(CSemaphore)))
            continue;
        m_locked[item] = !m_objects[item]->Unlock(lCount, lPrevCount);
        unlockedOne |= !m_locked[item];
    }
    return unlockedOne;
}
