// CObject, CRuntimeClass and the class list.

#include <afx.h>

#include <new>

// ---------------------------------------------------------------------------------------------------------
// CObject

const CRuntimeClass CObject::classCObject = {"CObject", sizeof(CObject), 0xFFFF, nullptr,
                                             &CObject::_GetBaseClass};
static const AFX_CLASSINIT _init_CObject(RUNTIME_CLASS(CObject));

void* PASCAL CObject::operator new(size_t nSize)
{
    void* const p = ::operator new(nSize, std::nothrow);
    if (p == nullptr)
        AfxThrowMemoryException();
    return p;
}

void PASCAL CObject::operator delete(void* p)
{
    ::operator delete(p);
}

void CObject::Serialize(CArchive&)
{
}

void CObject::AssertValid() const
{
}

void CObject::Dump(CDumpContext& dc) const
{
    dc << "a " << GetRuntimeClass()->m_lpszClassName << " at $" << static_cast<const void*>(this) << "\n";
}

CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject)
{
    return pObject != nullptr && pObject->IsKindOf(pClass) ? pObject : nullptr;
}

CObject* AFXAPI AfxStaticDownCast([[maybe_unused]] CRuntimeClass* pClass, CObject* pObject)
{
    ASSERT(pObject == nullptr || pObject->IsKindOf(pClass));
    return pObject;
}

// ---------------------------------------------------------------------------------------------------------
// The class list: one for the process, of all modules that are loaded

namespace
{
/// Neither has a constructor or destructor to run: classes come and go while modules load and unload.
constinit SRWLOCK classListLock = SRWLOCK_INIT;
constinit CRuntimeClass* pFirstClass = nullptr;

class ClassListGuard
{
public:
    ClassListGuard() { ::AcquireSRWLockExclusive(&classListLock); }
    ~ClassListGuard() { ::ReleaseSRWLockExclusive(&classListLock); }
    ClassListGuard(const ClassListGuard&) = delete;
    ClassListGuard& operator=(const ClassListGuard&) = delete;
};
} // namespace

AFX_CLASSINIT::AFX_CLASSINIT(CRuntimeClass* pNewClass) : m_pClass(pNewClass)
{
    AfxClassInit(pNewClass);
}

AFX_CLASSINIT::~AFX_CLASSINIT()
{
    AfxClassTerm(m_pClass);
}

void AFXAPI AfxClassInit(CRuntimeClass* pNewClass)
{
    const ClassListGuard guard;
    pNewClass->m_pNextClass = pFirstClass;
    pFirstClass = pNewClass;
}

void AFXAPI AfxClassTerm(CRuntimeClass* pOldClass)
{
    const ClassListGuard guard;
    for (CRuntimeClass** ppLink = &pFirstClass; *ppLink != nullptr; ppLink = &(*ppLink)->m_pNextClass)
    {
        if (*ppLink == pOldClass)
        {
            *ppLink = pOldClass->m_pNextClass;
            pOldClass->m_pNextClass = nullptr;
            return;
        }
    }
}

// ---------------------------------------------------------------------------------------------------------
// CRuntimeClass

CObject* CRuntimeClass::CreateObject()
{
    if (m_pfnCreateObject == nullptr)
    {
        TRACE("Warning: objects of class %hs cannot be made by name.\n", m_lpszClassName);
        return nullptr;
    }
    try // and not TRY, whose chain of handlers would take as long as making a small object
    {
        return (*m_pfnCreateObject)();
    }
    catch (CException* e)
    {
        e->Delete();
        return nullptr;
    }
}

CObject* PASCAL CRuntimeClass::CreateObject(LPCSTR lpszClassName)
{
    CRuntimeClass* const pClass = FromName(lpszClassName);
    return pClass != nullptr ? pClass->CreateObject() : nullptr;
}

CObject* PASCAL CRuntimeClass::CreateObject(LPCWSTR lpszClassName)
{
    return CreateObject(CStringA(lpszClassName));
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const
{
    const CRuntimeClass* pClass = this;
    while (pClass != nullptr && pClass != pBaseClass)
        pClass = (*pClass->m_pfnGetBaseClass)();
    return pClass != nullptr;
}

CRuntimeClass* PASCAL CRuntimeClass::FromName(LPCSTR lpszClassName)
{
    const ClassListGuard guard;
    CRuntimeClass* pClass = pFirstClass;
    while (pClass != nullptr && strcmp(pClass->m_lpszClassName, lpszClassName) != 0)
        pClass = pClass->m_pNextClass;
    return pClass;
}

CRuntimeClass* PASCAL CRuntimeClass::FromName(LPCWSTR lpszClassName)
{
    return FromName(CStringA(lpszClassName));
}
