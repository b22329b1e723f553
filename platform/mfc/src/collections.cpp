// The ready-made collections, hashing of texts, and the memory of all collections.

#include <afxcoll.h>

#include <cstdint>

// ---------------------------------------------------------------------------------------------------------
// Memory

void* AFXAPI AfxAllocElements(size_t nCount, size_t cbElement)
{
    const bool bFits = cbElement == 0 || nCount <= PTRDIFF_MAX / cbElement;
    void* const p = bFits ? malloc(nCount * cbElement) : nullptr;
    if (p == nullptr)
        AfxThrowMemoryException();
    return p;
}

void AFXAPI AfxFreeElements(void* p) noexcept
{
    free(p);
}

CPlex* PASCAL CPlex::Create(CPlex*& head, UINT_PTR nMax, UINT_PTR cbElement)
{
    const UINT_PTR nHeaders = (sizeof(CPlex) + cbElement - 1) / cbElement; // the header, in elements
    CPlex* const pBlock = static_cast<CPlex*>(AfxAllocElements(nMax + nHeaders, cbElement));
    pBlock->pNext = head;
    head = pBlock;
    return pBlock;
}

void CPlex::FreeDataChain()
{
    for (CPlex* pBlock = this; pBlock != nullptr;)
    {
        CPlex* const pNextBlock = pBlock->pNext;
        AfxFreeElements(pBlock);
        pBlock = pNextBlock;
    }
}

// ---------------------------------------------------------------------------------------------------------
// Hashing

template <typename CH>
static UINT HashText(const CH* lpsz)
{
    UINT nHash = 5381;
    for (; *lpsz != 0; ++lpsz)
        nHash = nHash * 33 + *lpsz;
    return nHash;
}

template <>
UINT AFXAPI HashKey<LPCWSTR>(LPCWSTR key)
{
    return HashText(key);
}

template <>
UINT AFXAPI HashKey<LPCSTR>(LPCSTR key)
{
    return HashText(key);
}

// ---------------------------------------------------------------------------------------------------------
// Class information

IMPLEMENT_DYNAMIC(CByteArray, CObject)
IMPLEMENT_DYNAMIC(CWordArray, CObject)
IMPLEMENT_DYNAMIC(CDWordArray, CObject)
IMPLEMENT_DYNAMIC(CUIntArray, CObject)
IMPLEMENT_DYNAMIC(CPtrArray, CObject)
IMPLEMENT_DYNAMIC(CObArray, CObject)
IMPLEMENT_DYNAMIC(CStringArray, CObject)
IMPLEMENT_DYNAMIC(CPtrList, CObject)
IMPLEMENT_DYNAMIC(CObList, CObject)
IMPLEMENT_DYNAMIC(CStringList, CObject)
IMPLEMENT_DYNAMIC(CMapPtrToPtr, CObject)
IMPLEMENT_DYNAMIC(CMapPtrToWord, CObject)
IMPLEMENT_DYNAMIC(CMapWordToOb, CObject)
IMPLEMENT_DYNAMIC(CMapWordToPtr, CObject)
IMPLEMENT_DYNAMIC(CMapStringToPtr, CObject)
IMPLEMENT_DYNAMIC(CMapStringToOb, CObject)
IMPLEMENT_DYNAMIC(CMapStringToString, CObject)

// ---------------------------------------------------------------------------------------------------------
// Look-ups of the ready-made maps

void* CMapPtrToPtr::GetValueAt(void* key) const
{
    const CPair* const pPair = PLookup(key);
    return pPair != nullptr ? pPair->value : nullptr;
}

template <class MAP>
static BOOL LookupOwnKey(const MAP& map, LPCTSTR key, LPCTSTR& rKey)
{
    const typename MAP::CPair* const pPair = map.PLookup(key);
    if (pPair == nullptr)
        return FALSE;
    rKey = pPair->key;
    return TRUE;
}

BOOL CMapStringToPtr::LookupKey(LPCTSTR key, LPCTSTR& rKey) const
{
    return LookupOwnKey(*this, key, rKey);
}

BOOL CMapStringToOb::LookupKey(LPCTSTR key, LPCTSTR& rKey) const
{
    return LookupOwnKey(*this, key, rKey);
}

BOOL CMapStringToString::LookupKey(LPCTSTR key, LPCTSTR& rKey) const
{
    return LookupOwnKey(*this, key, rKey);
}
