#pragma once
#define __AFXMT_H__ // asked for by the headers that wizards make
// Objects that threads wait for, and locks on them that the end of a scope gives back.
//
//     CCriticalSection m_guard; // beside the results that it protects
//
//     CSingleLock lock(&m_guard, TRUE); // waits here; unlocks at the end of the scope
//     m_results.Add(result);
//
// A named object is shared by all processes that give the name. Times are milliseconds. The constructors throw
// CResourceException when the system refuses the object, and CInvalidArgException for a lock on nothing.

#include <afx.h>

#include <vector>

/// What can be waited for.
class AFX_CORE_CLASS CSyncObject : public CObject
{
    DECLARE_DYNAMIC(CSyncObject)

public:
    explicit CSyncObject(LPCTSTR pstrName);
    ~CSyncObject() override;

    HANDLE m_hObject = nullptr;

    operator HANDLE() const { return m_hObject; }
    /// TRUE when the object became the caller's, also where its owner ended without giving it back.
    virtual BOOL Lock(DWORD dwTimeout = INFINITE);
    virtual BOOL Unlock() = 0;
    virtual BOOL Unlock(LONG /*lCount*/, LPLONG /*lpPrevCount*/ = nullptr) { return TRUE; }

    void Dump(CDumpContext& dc) const override;

protected:
    void TakeHandle(HANDLE hObject); ///< throws CResourceException for none

    CString m_strName;
};

/// Lets up to `lMaxCount` callers in at once; `lInitialCount` places are free at first.
class AFX_CORE_CLASS CSemaphore : public CSyncObject
{
    DECLARE_DYNAMIC(CSemaphore)

public:
    CSemaphore(LONG lInitialCount = 1, LONG lMaxCount = 1, LPCTSTR pstrName = nullptr,
               LPSECURITY_ATTRIBUTES lpsaAttributes = nullptr);

    BOOL Unlock() override { return Unlock(1, nullptr); }
    /// Frees `lCount` places; FALSE, and none is freed, when that would be more than there are.
    BOOL Unlock(LONG lCount, LPLONG lprevCount = nullptr) override;
};

/// Belongs to one thread at a time, which may lock it again and unlocks it as often.
class AFX_CORE_CLASS CMutex : public CSyncObject
{
    DECLARE_DYNAMIC(CMutex)

public:
    CMutex(BOOL bInitiallyOwn = FALSE, LPCTSTR lpszName = nullptr,
           LPSECURITY_ATTRIBUTES lpsaAttribute = nullptr);

    using CSyncObject::Unlock;
    BOOL Unlock() override { return ::ReleaseMutex(m_hObject); }
};

/// Set by one thread for others that wait. An automatic event lets one of them go on and is reset thereby; a
/// manual one lets all go on until ResetEvent. Unlocking leaves it as it is.
class AFX_CORE_CLASS CEvent : public CSyncObject
{
    DECLARE_DYNAMIC(CEvent)

public:
    CEvent(BOOL bInitiallyOwn = FALSE, BOOL bManualReset = FALSE, LPCTSTR lpszName = nullptr,
           LPSECURITY_ATTRIBUTES lpsaAttribute = nullptr);

    BOOL SetEvent() { return ::SetEvent(m_hObject); }
    BOOL PulseEvent() { return ::PulseEvent(m_hObject); }
    BOOL ResetEvent() { return ::ResetEvent(m_hObject); }
    using CSyncObject::Unlock;
    BOOL Unlock() override { return TRUE; }
};

/// A mutex of this process alone, and quicker. It has no handle, so that CMultiLock cannot wait for it.
class AFX_CORE_CLASS CCriticalSection : public CSyncObject
{
    DECLARE_DYNAMIC(CCriticalSection)

public:
    CCriticalSection() : CSyncObject(nullptr) { ::InitializeCriticalSection(&m_sect); }
    ~CCriticalSection() override { ::DeleteCriticalSection(&m_sect); }

    CRITICAL_SECTION m_sect;

    operator CRITICAL_SECTION*() { return &m_sect; }
    BOOL Lock() { return Lock(INFINITE); }
    BOOL Lock(DWORD dwTimeout) override; ///< always waits for as long as it takes
    using CSyncObject::Unlock;
    BOOL Unlock() override;
};

/// A lock on one object.
class AFX_CORE_CLASS CSingleLock
{
public:
    explicit CSingleLock(CSyncObject* pObject, BOOL bInitialLock = FALSE);
    ~CSingleLock() { Unlock(); }
    CSingleLock(const CSingleLock&) = delete;
    CSingleLock& operator=(const CSingleLock&) = delete;

    BOOL Lock(DWORD dwTimeOut = INFINITE);
    BOOL Unlock(); ///< TRUE when the object is not, or no longer, locked by this lock
    BOOL Unlock(LONG lCount, LPLONG lPrevCount = nullptr); ///< gives back places of a semaphore
    BOOL IsLocked() { return m_bAcquired; }

protected:
    CSyncObject* m_pObject;
    BOOL m_bAcquired = FALSE;
};

/// A lock on several objects, up to MAXIMUM_WAIT_OBJECTS, of which one or all are waited for.
class AFX_CORE_CLASS CMultiLock
{
public:
    CMultiLock(CSyncObject* ppObjects[], DWORD dwCount, BOOL bInitialLock = FALSE);
    ~CMultiLock() { Unlock(); }
    CMultiLock(const CMultiLock&) = delete;
    CMultiLock& operator=(const CMultiLock&) = delete;

    /// Answers as WaitForMultipleObjects does; with QS_ flags in `dwWakeMask` a message of that kind ends the
    /// wait too, and the answer is WAIT_OBJECT_0 plus the count of objects.
    DWORD Lock(DWORD dwTimeOut = INFINITE, BOOL bWaitForAll = TRUE, DWORD dwWakeMask = 0);
    /// Gives back what is locked.
    BOOL Unlock();
    /// Of semaphores; TRUE when one could be unlocked.
    BOOL Unlock(LONG lCount, LPLONG lPrevCount = nullptr);
    BOOL IsLocked(DWORD dwItem) { return m_locked[dwItem]; }

protected:
    std::vector<CSyncObject*> m_objects;
    std::vector<HANDLE> m_handles;
    std::vector<BOOL> m_locked;
};
