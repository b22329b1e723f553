#pragma once
#define __AFXTEMPL_H__ // asked for by the headers that wizards make
// Collection templates: CArray, CList and CMap hold values of any type; CTypedPtrArray, CTypedPtrList and
// CTypedPtrMap give one of the pointer collections the type of its pointers.
//
//     CMap<int, int, CString, LPCTSTR> mapNames;
//     mapNames.SetAt(7, _T("seven"));
//     for (POSITION pos = mapNames.GetStartPosition(); pos != nullptr;)
//     {
//         int nKey;
//         CString strName;
//         mapNames.GetNextAssoc(pos, nKey, strName);
//     }
//
// - ARG_TYPE is what elements are passed as, TYPE what they are stored as.
// - A bad index, a null position or an access to an empty list throws CInvalidArgException.
// - When there is no memory to grow, or an element's constructor throws, the collection stays as it was and
//   the exception goes on. Memory failures are CMemoryException.
// - New elements that are not given a value are value-initialised: numbers and pointers are zero.

#include "afx.h"
#include "afxplex_.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

// ---------------------------------------------------------------------------------------------------------
// Helpers that may be specialised for a client's own types

template <class TYPE>
inline void AFXAPI CopyElements(TYPE* pDest, const TYPE* pSrc, INT_PTR nCount)
{
    std::copy(pSrc, pSrc + nCount, pDest);
}

template <class TYPE>
inline void AFXAPI DumpElements(CDumpContext& dc, const TYPE* pElements, INT_PTR nCount)
{
    dc.HexDump(_T(" "), (BYTE*)pElements, int(nCount * sizeof(TYPE)), 16);
}

template <class TYPE, class ARG_TYPE>
inline BOOL AFXAPI CompareElements(const TYPE* pElement1, const ARG_TYPE* pElement2)
{
    return *pElement1 == *pElement2;
}

/// The default suits numbers and pointers. A map with a key class of its own needs a specialisation for the
/// type that it passes keys as.
template <class ARG_KEY>
inline UINT AFXAPI HashKey(ARG_KEY key)
{
    const DWORD_PTR nBits = (DWORD_PTR)key;
    if constexpr (std::is_pointer_v<std::remove_reference_t<ARG_KEY>>)
        return UINT(nBits >> 4); // the low bits of addresses are the same for all
    else
        return UINT(nBits ^ (nBits >> 32));
}
template <>
AFX_CORE_API UINT AFXAPI HashKey<LPCWSTR>(LPCWSTR key);
template <>
AFX_CORE_API UINT AFXAPI HashKey<LPCSTR>(LPCSTR key);

// ---------------------------------------------------------------------------------------------------------
// Placing elements in raw memory

/// Value-initialises nCount elements; if one throws, those before it are destroyed again.
template <class TYPE>
inline void AfxConstructElements(TYPE* pElements, INT_PTR nCount)
{
    std::uninitialized_value_construct_n(pElements, nCount);
}

template <class TYPE>
inline void AfxDestroyElements(TYPE* pElements, INT_PTR nCount) noexcept
{
    std::destroy_n(pElements, nCount);
}

/// Moves elements to raw memory that does not overlap them. If that throws, the source is as it was. Objects
/// that can be neither moved nor copied (windows, for instance) are carried over byte by byte: nobody may know
/// them by their address when the array grows.
template <class TYPE>
inline void AfxRelocateElements(TYPE* pDest, TYPE* pSrc, INT_PTR nCount)
{
    constexpr bool bMovable = std::is_move_constructible_v<TYPE>;
    if constexpr (std::is_trivially_copyable_v<TYPE> || !bMovable)
    {
        if (nCount > 0)
            memcpy(static_cast<void*>(pDest), static_cast<const void*>(pSrc), size_t(nCount) * sizeof(TYPE));
    }
    else
    {
        if constexpr (std::is_nothrow_move_constructible_v<TYPE> || !std::is_copy_constructible_v<TYPE>)
            std::uninitialized_move_n(pSrc, nCount, pDest);
        else
            std::uninitialized_copy_n(pSrc, nCount, pDest);
        AfxDestroyElements(pSrc, nCount);
    }
}

// ---------------------------------------------------------------------------------------------------------
// CArray

template <class TYPE, class ARG_TYPE = const TYPE&>
class CArray : public CObject
{
public:
    typedef TYPE BASE_TYPE;
    typedef ARG_TYPE BASE_ARG_TYPE;

    CArray();
    ~CArray() override { RemoveAll(); }

    INT_PTR GetSize() const { return m_nSize; }
    INT_PTR GetCount() const { return m_nSize; }
    BOOL IsEmpty() const { return m_nSize == 0; }
    /// -1 if empty
    INT_PTR GetUpperBound() const { return m_nSize - 1; }

    /// Changes the number of elements. nGrowBy is how many elements the memory grows by when it must; 0 lets
    /// the array choose, -1 keeps the former value. Size 0 gives the memory back.
    void SetSize(INT_PTR nNewSize, INT_PTR nGrowBy = -1);
    void FreeExtra();
    void RemoveAll();

    const TYPE& GetAt(INT_PTR nIndex) const;
    TYPE& GetAt(INT_PTR nIndex);
    void SetAt(INT_PTR nIndex, ARG_TYPE newElement);
    const TYPE& ElementAt(INT_PTR nIndex) const { return GetAt(nIndex); }
    TYPE& ElementAt(INT_PTR nIndex) { return GetAt(nIndex); }
    const TYPE& operator[](INT_PTR nIndex) const { return GetAt(nIndex); }
    TYPE& operator[](INT_PTR nIndex) { return GetAt(nIndex); }

    /// The elements in a row; good until the array changes its size. Null if there is no memory yet.
    const TYPE* GetData() const { return m_pData; }
    TYPE* GetData() { return m_pData; }

    /// These grow the array. Add and Append answer the index of the first new element.
    void SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement);
    INT_PTR Add(ARG_TYPE newElement);
    INT_PTR Append(const CArray& src);
    void Copy(const CArray& src);

    /// An insertion behind the end first grows the array up to that index.
    void InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount = 1);
    void InsertAt(INT_PTR nStartIndex, CArray* pNewArray);
    void RemoveAt(INT_PTR nIndex, INT_PTR nCount = 1);

    void AssertValid() const override;
    void Dump(CDumpContext& dc) const override;

protected:
    TYPE* m_pData;
    INT_PTR m_nSize;
    INT_PTR m_nMaxSize;
    INT_PTR m_nGrowBy;

private:
    void CheckIndex(INT_PTR nIndex) const;
    INT_PTR CapacityFor(INT_PTR nNewSize) const;
    void Reallocate(INT_PTR nCapacity, INT_PTR nNewElements);
    template <class FILL>
    void AppendFilled(INT_PTR nNewSize, FILL fill);
    INT_PTR FindOwn(const TYPE* pElement) const;
    void FillFrom(INT_PTR nFirst, INT_PTR nCount, ARG_TYPE newElement);
};

template <class TYPE, class ARG_TYPE>
inline CArray<TYPE, ARG_TYPE>::CArray() : m_pData(nullptr), m_nSize(0), m_nMaxSize(0), m_nGrowBy(0)
{
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::SetSize(INT_PTR nNewSize, INT_PTR nGrowBy)
{
    if (nNewSize < 0)
        AfxThrowInvalidArgException();
    if (nGrowBy >= 0)
        m_nGrowBy = nGrowBy;

    if (nNewSize == 0)
    {
        RemoveAll();
    }
    else if (nNewSize > m_nMaxSize)
    {
        Reallocate(CapacityFor(nNewSize), nNewSize - m_nSize);
    }
    else if (nNewSize > m_nSize)
    {
        AfxConstructElements(m_pData + m_nSize, nNewSize - m_nSize);
        m_nSize = nNewSize;
    }
    else
    {
        AfxDestroyElements(m_pData + nNewSize, m_nSize - nNewSize);
        m_nSize = nNewSize;
    }
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::FreeExtra()
{
    if (m_nSize == 0)
        RemoveAll();
    else if (m_nSize != m_nMaxSize)
        Reallocate(m_nSize, 0);
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::RemoveAll()
{
    // Detached first: a destructor may look at the array.
    TYPE* const pData = std::exchange(m_pData, nullptr);
    const INT_PTR nSize = std::exchange(m_nSize, 0);
    m_nMaxSize = 0;
    AfxDestroyElements(pData, nSize);
    AfxFreeElements(pData);
}

template <class TYPE, class ARG_TYPE>
inline const TYPE& CArray<TYPE, ARG_TYPE>::GetAt(INT_PTR nIndex) const
{
    CheckIndex(nIndex);
    return m_pData[nIndex];
}

template <class TYPE, class ARG_TYPE>
inline TYPE& CArray<TYPE, ARG_TYPE>::GetAt(INT_PTR nIndex)
{
    CheckIndex(nIndex);
    return m_pData[nIndex];
}

template <class TYPE, class ARG_TYPE>
inline void CArray<TYPE, ARG_TYPE>::SetAt(INT_PTR nIndex, ARG_TYPE newElement)
{
    CheckIndex(nIndex);
    m_pData[nIndex] = newElement;
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::SetAtGrow(INT_PTR nIndex, ARG_TYPE newElement)
{
    if (nIndex < 0)
        AfxThrowInvalidArgException();
    if (nIndex < m_nSize)
        m_pData[nIndex] = newElement;
    else
        FillFrom(nIndex, 1, newElement);
}

template <class TYPE, class ARG_TYPE>
inline INT_PTR CArray<TYPE, ARG_TYPE>::Add(ARG_TYPE newElement)
{
    const INT_PTR nIndex = m_nSize;
    SetAtGrow(nIndex, newElement);
    return nIndex;
}

template <class TYPE, class ARG_TYPE>
INT_PTR CArray<TYPE, ARG_TYPE>::Append(const CArray& src)
{
    const INT_PTR nOldSize = m_nSize;
    const INT_PTR nCount = src.m_nSize; // src may be this array
    AppendFilled(nOldSize + nCount, [&] { CopyElements<TYPE>(m_pData + nOldSize, src.m_pData, nCount); });
    return nOldSize;
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Copy(const CArray& src)
{
    if (this != &src)
    {
        SetSize(src.m_nSize);
        CopyElements<TYPE>(m_pData, src.m_pData, src.m_nSize);
    }
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::InsertAt(INT_PTR nIndex, ARG_TYPE newElement, INT_PTR nCount)
{
    if (nIndex < 0 || nCount <= 0)
        AfxThrowInvalidArgException();
    const INT_PTR nOldSize = m_nSize;
    FillFrom(std::max(nIndex, nOldSize), nCount, newElement);
    if (nIndex < nOldSize)
        std::rotate(m_pData + nIndex, m_pData + nOldSize, m_pData + m_nSize);
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::InsertAt(INT_PTR nStartIndex, CArray* pNewArray)
{
    if (pNewArray == nullptr || nStartIndex < 0)
        AfxThrowInvalidArgException();
    const INT_PTR nCount = pNewArray->m_nSize;
    if (nCount == 0)
        return;
    const INT_PTR nOldSize = m_nSize;
    const INT_PTR nFirst = std::max(nStartIndex, nOldSize);
    AppendFilled(nFirst + nCount, [&] { CopyElements<TYPE>(m_pData + nFirst, pNewArray->m_pData, nCount); });
    if (nStartIndex < nOldSize)
        std::rotate(m_pData + nStartIndex, m_pData + nOldSize, m_pData + m_nSize);
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::RemoveAt(INT_PTR nIndex, INT_PTR nCount)
{
    if (nIndex < 0 || nCount < 0 || nIndex > m_nSize || nCount > m_nSize - nIndex)
        AfxThrowInvalidArgException();
    TYPE* const pFirst = m_pData + nIndex;
    if constexpr (std::is_move_assignable_v<TYPE>)
    {
        std::move(pFirst + nCount, m_pData + m_nSize, pFirst);
        AfxDestroyElements(m_pData + m_nSize - nCount, nCount);
    }
    else
    {
        AfxDestroyElements(pFirst, nCount);
        memmove(static_cast<void*>(pFirst), static_cast<const void*>(pFirst + nCount),
                size_t(m_nSize - nIndex - nCount) * sizeof(TYPE));
    }
    m_nSize -= nCount;
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::AssertValid() const
{
    CObject::AssertValid();
    ASSERT(m_nSize >= 0 && m_nSize <= m_nMaxSize);
    ASSERT((m_pData == nullptr) == (m_nMaxSize == 0));
}

template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Dump(CDumpContext& dc) const
{
    CObject::Dump(dc);
    dc << "with " << LONGLONG(m_nSize) << " elements\n";
    if (dc.GetDepth() > 0)
        DumpElements<TYPE>(dc, m_pData, m_nSize);
}

template <class TYPE, class ARG_TYPE>
inline void CArray<TYPE, ARG_TYPE>::CheckIndex(INT_PTR nIndex) const
{
    if (nIndex < 0 || nIndex >= m_nSize)
        AfxThrowInvalidArgException();
}

/// How many elements to make room for when nNewSize do not fit any more.
template <class TYPE, class ARG_TYPE>
INT_PTR CArray<TYPE, ARG_TYPE>::CapacityFor(INT_PTR nNewSize) const
{
    if (m_pData == nullptr)
        return std::max(nNewSize, m_nGrowBy);
    const INT_PTR nGrowBy = m_nGrowBy > 0 ? m_nGrowBy : std::max<INT_PTR>(4, m_nSize / 2);
    return m_nMaxSize <= INTPTR_MAX - nGrowBy ? std::max(nNewSize, m_nMaxSize + nGrowBy) : nNewSize;
}

/// Moves to memory for nCapacity elements and value-initialises nNewElements behind the present ones.
template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::Reallocate(INT_PTR nCapacity, INT_PTR nNewElements)
{
    std::unique_ptr<void, decltype(&AfxFreeElements)> memory(AfxAllocElements(nCapacity, sizeof(TYPE)),
                                                             &AfxFreeElements);
    TYPE* const pNewData = static_cast<TYPE*>(memory.get());

    AfxConstructElements(pNewData + m_nSize, nNewElements);
    try
    {
        AfxRelocateElements(pNewData, m_pData, m_nSize);
    }
    catch (...)
    {
        AfxDestroyElements(pNewData + m_nSize, nNewElements);
        throw;
    }

    memory.release();
    AfxFreeElements(std::exchange(m_pData, pNewData));
    m_nSize += nNewElements;
    m_nMaxSize = nCapacity;
}

/// Grows to nNewSize and lets fill give the new elements their values. If it throws, they are gone again.
template <class TYPE, class ARG_TYPE>
template <class FILL>
void CArray<TYPE, ARG_TYPE>::AppendFilled(INT_PTR nNewSize, FILL fill)
{
    const INT_PTR nOldSize = m_nSize;
    if (nNewSize == nOldSize)
        return;
    SetSize(nNewSize);
    try
    {
        fill();
    }
    catch (...)
    {
        SetSize(nOldSize);
        throw;
    }
}

/// The index of an element by its address, or -1 for an object from elsewhere.
template <class TYPE, class ARG_TYPE>
inline INT_PTR CArray<TYPE, ARG_TYPE>::FindOwn(const TYPE* pElement) const
{
    const std::less<const TYPE*> before;
    const bool bOwn = !before(pElement, m_pData) && before(pElement, m_pData + m_nSize);
    return bOwn ? pElement - m_pData : -1;
}

/// Grows to nFirst + nCount and gives the last nCount elements the value newElement. That may be a reference
/// to an element of this array, which moves when the array grows.
template <class TYPE, class ARG_TYPE>
void CArray<TYPE, ARG_TYPE>::FillFrom(INT_PTR nFirst, INT_PTR nCount, ARG_TYPE newElement)
{
    if (nCount > INTPTR_MAX - nFirst)
        AfxThrowMemoryException();
    INT_PTR nOwn = -1;
    if constexpr (std::is_convertible_v<std::remove_reference_t<ARG_TYPE>*, const TYPE*>)
        nOwn = FindOwn(std::addressof(newElement));
    AppendFilled(nFirst + nCount,
                 [&]
                 {
                     TYPE* const pFirst = m_pData + nFirst;
                     for (TYPE* pElement = pFirst; pElement != pFirst + nCount; ++pElement)
                         if (nOwn >= 0)
                             *pElement = m_pData[nOwn];
                         else
                             *pElement = newElement;
                 });
}

// ---------------------------------------------------------------------------------------------------------
// CList

/// A doubly linked list. Its nodes come from blocks of nBlockSize, which are given back when the last element
/// leaves.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CList : public CObject
{
protected:
    struct CNode
    {
        CNode* pNext;
        CNode* pPrev;
        TYPE data;
    };

public:
    typedef TYPE BASE_TYPE;
    typedef ARG_TYPE BASE_ARG_TYPE;

    explicit CList(INT_PTR nBlockSize = 10);
    ~CList() override { RemoveAll(); }

    INT_PTR GetCount() const { return m_nCount; }
    INT_PTR GetSize() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }

    TYPE& GetHead();
    const TYPE& GetHead() const;
    TYPE& GetTail();
    const TYPE& GetTail() const;

    TYPE RemoveHead();
    TYPE RemoveTail();
    POSITION AddHead(ARG_TYPE newElement) { return Link(NewNode(newElement), nullptr, m_pNodeHead); }
    POSITION AddTail(ARG_TYPE newElement) { return Link(NewNode(newElement), m_pNodeTail, nullptr); }
    void AddHead(CList* pNewList);
    void AddTail(CList* pNewList);
    void RemoveAll();

    /// GetNext and GetPrev answer the element at the position and move on, to null at the end.
    POSITION GetHeadPosition() const { return reinterpret_cast<POSITION>(m_pNodeHead); }
    POSITION GetTailPosition() const { return reinterpret_cast<POSITION>(m_pNodeTail); }
    TYPE& GetNext(POSITION& rPosition);
    const TYPE& GetNext(POSITION& rPosition) const { return const_cast<CList*>(this)->GetNext(rPosition); }
    TYPE& GetPrev(POSITION& rPosition);
    const TYPE& GetPrev(POSITION& rPosition) const { return const_cast<CList*>(this)->GetPrev(rPosition); }

    TYPE& GetAt(POSITION position) { return NodeFrom(position)->data; }
    const TYPE& GetAt(POSITION position) const { return NodeFrom(position)->data; }
    void SetAt(POSITION pos, ARG_TYPE newElement) { NodeFrom(pos)->data = newElement; }
    void RemoveAt(POSITION position);

    /// Before null is the head, after null the tail.
    POSITION InsertBefore(POSITION position, ARG_TYPE newElement);
    POSITION InsertAfter(POSITION position, ARG_TYPE newElement);

    /// The first match behind startAfter, and the position of an index counted from the head; or null.
    POSITION Find(ARG_TYPE searchValue, POSITION startAfter = nullptr) const;
    POSITION FindIndex(INT_PTR nIndex) const;

    void AssertValid() const override;
    void Dump(CDumpContext& dc) const override;

protected:
    CNode* m_pNodeHead;
    CNode* m_pNodeTail;
    INT_PTR m_nCount;
    CNode* m_pNodeFree;
    CPlex* m_pBlocks;
    INT_PTR m_nBlockSize;

private:
    CNode* NodeFrom(POSITION position) const;
    void CheckNotEmpty() const;
    CNode* AllocNode();
    CNode* NewNode(ARG_TYPE newElement);
    POSITION Link(CNode* pNode, CNode* pPrev, CNode* pNext);
    void Recycle(CNode* pNode);
    void FreeBlocksIfEmpty();
};

template <class TYPE, class ARG_TYPE>
inline CList<TYPE, ARG_TYPE>::CList(INT_PTR nBlockSize)
    : m_pNodeHead(nullptr), m_pNodeTail(nullptr), m_nCount(0), m_pNodeFree(nullptr), m_pBlocks(nullptr),
      m_nBlockSize(std::max<INT_PTR>(1, nBlockSize))
{
}

template <class TYPE, class ARG_TYPE>
inline TYPE& CList<TYPE, ARG_TYPE>::GetHead()
{
    CheckNotEmpty();
    return m_pNodeHead->data;
}

template <class TYPE, class ARG_TYPE>
inline const TYPE& CList<TYPE, ARG_TYPE>::GetHead() const
{
    CheckNotEmpty();
    return m_pNodeHead->data;
}

template <class TYPE, class ARG_TYPE>
inline TYPE& CList<TYPE, ARG_TYPE>::GetTail()
{
    CheckNotEmpty();
    return m_pNodeTail->data;
}

template <class TYPE, class ARG_TYPE>
inline const TYPE& CList<TYPE, ARG_TYPE>::GetTail() const
{
    CheckNotEmpty();
    return m_pNodeTail->data;
}

template <class TYPE, class ARG_TYPE>
TYPE CList<TYPE, ARG_TYPE>::RemoveHead()
{
    TYPE element = GetHead();
    RemoveAt(GetHeadPosition());
    return element;
}

template <class TYPE, class ARG_TYPE>
TYPE CList<TYPE, ARG_TYPE>::RemoveTail()
{
    TYPE element = GetTail();
    RemoveAt(GetTailPosition());
    return element;
}

template <class TYPE, class ARG_TYPE>
void CList<TYPE, ARG_TYPE>::AddHead(CList* pNewList)
{
    if (pNewList == nullptr)
        AfxThrowInvalidArgException();
    INT_PTR nLeft = pNewList->m_nCount; // pNewList may be this list
    for (CNode* pNode = pNewList->m_pNodeTail; nLeft > 0; --nLeft)
    {
        CNode* const pSource = pNode;
        pNode = pNode->pPrev;
        AddHead(pSource->data);
    }
}

template <class TYPE, class ARG_TYPE>
void CList<TYPE, ARG_TYPE>::AddTail(CList* pNewList)
{
    if (pNewList == nullptr)
        AfxThrowInvalidArgException();
    INT_PTR nLeft = pNewList->m_nCount; // pNewList may be this list
    for (CNode* pNode = pNewList->m_pNodeHead; nLeft > 0; --nLeft)
    {
        CNode* const pSource = pNode;
        pNode = pNode->pNext;
        AddTail(pSource->data);
    }
}

template <class TYPE, class ARG_TYPE>
void CList<TYPE, ARG_TYPE>::RemoveAll()
{
    for (CNode* pNode = m_pNodeHead; pNode != nullptr; pNode = pNode->pNext)
        std::destroy_at(&pNode->data);
    m_pNodeHead = m_pNodeTail = nullptr;
    m_nCount = 0;
    FreeBlocksIfEmpty();
}

template <class TYPE, class ARG_TYPE>
inline TYPE& CList<TYPE, ARG_TYPE>::GetNext(POSITION& rPosition)
{
    CNode* const pNode = NodeFrom(rPosition);
    rPosition = reinterpret_cast<POSITION>(pNode->pNext);
    return pNode->data;
}

template <class TYPE, class ARG_TYPE>
inline TYPE& CList<TYPE, ARG_TYPE>::GetPrev(POSITION& rPosition)
{
    CNode* const pNode = NodeFrom(rPosition);
    rPosition = reinterpret_cast<POSITION>(pNode->pPrev);
    return pNode->data;
}

template <class TYPE, class ARG_TYPE>
void CList<TYPE, ARG_TYPE>::RemoveAt(POSITION position)
{
    CNode* const pNode = NodeFrom(position);
    (pNode->pPrev != nullptr ? pNode->pPrev->pNext : m_pNodeHead) = pNode->pNext;
    (pNode->pNext != nullptr ? pNode->pNext->pPrev : m_pNodeTail) = pNode->pPrev;
    --m_nCount;
    std::destroy_at(&pNode->data);
    Recycle(pNode);
    FreeBlocksIfEmpty();
}

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::InsertBefore(POSITION position, ARG_TYPE newElement)
{
    if (position == nullptr)
        return AddHead(newElement);
    CNode* const pNode = NodeFrom(position);
    return Link(NewNode(newElement), pNode->pPrev, pNode);
}

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::InsertAfter(POSITION position, ARG_TYPE newElement)
{
    if (position == nullptr)
        return AddTail(newElement);
    CNode* const pNode = NodeFrom(position);
    return Link(NewNode(newElement), pNode, pNode->pNext);
}

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::Find(ARG_TYPE searchValue, POSITION startAfter) const
{
    const CNode* pNode = startAfter == nullptr ? m_pNodeHead : NodeFrom(startAfter)->pNext;
    while (pNode != nullptr && !CompareElements(&pNode->data, std::addressof(searchValue)))
        pNode = pNode->pNext;
    return reinterpret_cast<POSITION>(const_cast<CNode*>(pNode));
}

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::FindIndex(INT_PTR nIndex) const
{
    if (nIndex < 0 || nIndex >= m_nCount)
        return nullptr;
    CNode* pNode = m_pNodeHead;
    for (; nIndex > 0; --nIndex)
        pNode = pNode->pNext;
    return reinterpret_cast<POSITION>(pNode);
}

template <class TYPE, class ARG_TYPE>
void CList<TYPE, ARG_TYPE>::AssertValid() const
{
    CObject::AssertValid();
    ASSERT((m_nCount == 0) == (m_pNodeHead == nullptr));
    ASSERT((m_nCount == 0) == (m_pNodeTail == nullptr));
}

template <class TYPE, class ARG_TYPE>
void CList<TYPE, ARG_TYPE>::Dump(CDumpContext& dc) const
{
    CObject::Dump(dc);
    dc << "with " << LONGLONG(m_nCount) << " elements\n";
    if (dc.GetDepth() > 0)
        for (const CNode* pNode = m_pNodeHead; pNode != nullptr; pNode = pNode->pNext)
            DumpElements<TYPE>(dc, &pNode->data, 1);
}

template <class TYPE, class ARG_TYPE>
inline typename CList<TYPE, ARG_TYPE>::CNode* CList<TYPE, ARG_TYPE>::NodeFrom(POSITION position) const
{
    if (position == nullptr)
        AfxThrowInvalidArgException();
    return reinterpret_cast<CNode*>(position);
}

template <class TYPE, class ARG_TYPE>
inline void CList<TYPE, ARG_TYPE>::CheckNotEmpty() const
{
    if (m_nCount == 0)
        AfxThrowInvalidArgException();
}

/// A node from the free list, whose element is still to be constructed.
template <class TYPE, class ARG_TYPE>
typename CList<TYPE, ARG_TYPE>::CNode* CList<TYPE, ARG_TYPE>::AllocNode()
{
    if (m_pNodeFree == nullptr)
    {
        CNode* const pNodes =
            static_cast<CNode*>(CPlex::Create(m_pBlocks, m_nBlockSize, sizeof(CNode))->data());
        for (INT_PTR i = m_nBlockSize; i-- > 0;)
            Recycle(pNodes + i);
    }
    return std::exchange(m_pNodeFree, m_pNodeFree->pNext);
}

template <class TYPE, class ARG_TYPE>
typename CList<TYPE, ARG_TYPE>::CNode* CList<TYPE, ARG_TYPE>::NewNode(ARG_TYPE newElement)
{
    CNode* const pNode = AllocNode();
    try
    {
        ::new (static_cast<void*>(&pNode->data)) TYPE();
        try
        {
            pNode->data = newElement;
        }
        catch (...)
        {
            std::destroy_at(&pNode->data);
            throw;
        }
    }
    catch (...)
    {
        Recycle(pNode);
        FreeBlocksIfEmpty();
        throw;
    }
    return pNode;
}

template <class TYPE, class ARG_TYPE>
POSITION CList<TYPE, ARG_TYPE>::Link(CNode* pNode, CNode* pPrev, CNode* pNext)
{
    pNode->pPrev = pPrev;
    pNode->pNext = pNext;
    (pPrev != nullptr ? pPrev->pNext : m_pNodeHead) = pNode;
    (pNext != nullptr ? pNext->pPrev : m_pNodeTail) = pNode;
    ++m_nCount;
    return reinterpret_cast<POSITION>(pNode);
}

template <class TYPE, class ARG_TYPE>
inline void CList<TYPE, ARG_TYPE>::Recycle(CNode* pNode)
{
    pNode->pNext = m_pNodeFree;
    m_pNodeFree = pNode;
}

template <class TYPE, class ARG_TYPE>
inline void CList<TYPE, ARG_TYPE>::FreeBlocksIfEmpty()
{
    if (m_nCount == 0 && m_pBlocks != nullptr)
    {
        m_pNodeFree = nullptr;
        std::exchange(m_pBlocks, nullptr)->FreeDataChain();
    }
}

// ---------------------------------------------------------------------------------------------------------
// CMap

/// A hash map with a fixed number of buckets (17 unless InitHashTable says otherwise; about one and a fifth
/// of the expected number of entries, and prime, suits best). Entries come from blocks of nBlockSize, which
/// are given back when the last entry leaves. Iteration follows no particular order.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
class CMap : public CObject
{
public:
    struct CPair
    {
        const KEY key;
        VALUE value;

    protected:
        CPair(ARG_KEY keyval) : key(keyval), value() {}
    };

    typedef KEY BASE_KEY;
    typedef ARG_KEY BASE_ARG_KEY;
    typedef VALUE BASE_VALUE;
    typedef ARG_VALUE BASE_ARG_VALUE;

protected:
    class CAssoc : public CPair
    {
    public:
        CAssoc(ARG_KEY key) : CPair(key) {}
        CAssoc* pNext = nullptr;
        UINT nHashValue = 0;
    };

    /// A free entry is raw memory; only this link lives in it.
    struct CFree
    {
        CFree* pNext;
    };

public:
    explicit CMap(INT_PTR nBlockSize = 10);
    ~CMap() override { RemoveAll(); }

    INT_PTR GetCount() const { return m_nCount; }
    INT_PTR GetSize() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }

    /// FALSE, and rValue as it was, if there is no such key. PLookup answers null then.
    BOOL Lookup(ARG_KEY key, VALUE& rValue) const;
    const CPair* PLookup(ARG_KEY key) const { return FindAssoc(key, HashKey<ARG_KEY>(key)); }
    CPair* PLookup(ARG_KEY key) { return FindAssoc(key, HashKey<ARG_KEY>(key)); }

    /// Both enter the key if it is new.
    VALUE& operator[](ARG_KEY key);
    void SetAt(ARG_KEY key, ARG_VALUE newValue) { (*this)[key] = newValue; }

    BOOL RemoveKey(ARG_KEY key); ///< FALSE if there is no such key
    void RemoveAll();

    /// Iteration: a position that turns null at the end, or a pair. The entry that was just answered may be
    /// removed meanwhile.
    POSITION GetStartPosition() const { return reinterpret_cast<POSITION>(FirstFrom(0)); }
    void GetNextAssoc(POSITION& rNextPosition, KEY& rKey, VALUE& rValue) const;
    const CPair* PGetFirstAssoc() const { return FirstFrom(0); }
    CPair* PGetFirstAssoc() { return FirstFrom(0); }
    const CPair* PGetNextAssoc(const CPair* pAssocRet) const;
    CPair* PGetNextAssoc(const CPair* pAssocRet);

    /// The number of buckets can only be set while the map is empty.
    UINT GetHashTableSize() const { return m_nHashTableSize; }
    void InitHashTable(UINT hashSize, BOOL bAllocNow = TRUE);

    void AssertValid() const override;
    void Dump(CDumpContext& dc) const override;

protected:
    CAssoc** m_pHashTable;
    UINT m_nHashTableSize;
    INT_PTR m_nCount;
    CFree* m_pFreeList;
    CPlex* m_pBlocks;
    INT_PTR m_nBlockSize;

private:
    void AllocHashTable();
    CAssoc* FindAssoc(ARG_KEY key, UINT nHashValue) const;
    CAssoc* FirstFrom(UINT nBucket) const;
    CAssoc* NextOf(const CAssoc* pAssoc) const;
    CAssoc* NewAssoc(ARG_KEY key, UINT nHashValue);
    void Recycle(void* pAssoc) { m_pFreeList = ::new (pAssoc) CFree{m_pFreeList}; }
    void FreeMemory();
};

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
inline CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::CMap(INT_PTR nBlockSize)
    : m_pHashTable(nullptr), m_nHashTableSize(17), m_nCount(0), m_pFreeList(nullptr), m_pBlocks(nullptr),
      m_nBlockSize(std::max<INT_PTR>(1, nBlockSize))
{
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
BOOL CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::Lookup(ARG_KEY key, VALUE& rValue) const
{
    const CPair* const pPair = PLookup(key);
    if (pPair == nullptr)
        return FALSE;
    rValue = pPair->value;
    return TRUE;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
VALUE& CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::operator[](ARG_KEY key)
{
    const UINT nHashValue = HashKey<ARG_KEY>(key);
    CAssoc* const pFound = FindAssoc(key, nHashValue);
    return (pFound != nullptr ? pFound : NewAssoc(key, nHashValue))->value;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
BOOL CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::RemoveKey(ARG_KEY key)
{
    CAssoc* const pAssoc = static_cast<CAssoc*>(PLookup(key));
    if (pAssoc == nullptr)
        return FALSE;
    CAssoc** ppLink = &m_pHashTable[pAssoc->nHashValue % m_nHashTableSize];
    while (*ppLink != pAssoc)
        ppLink = &(*ppLink)->pNext;
    *ppLink = pAssoc->pNext;
    std::destroy_at(pAssoc);
    Recycle(pAssoc);
    if (--m_nCount == 0)
        FreeMemory();
    return TRUE;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::RemoveAll()
{
    for (CAssoc* pAssoc = FirstFrom(0); pAssoc != nullptr;)
    {
        CAssoc* const pNext = NextOf(pAssoc);
        std::destroy_at(pAssoc);
        pAssoc = pNext;
    }
    m_nCount = 0;
    FreeMemory();
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::GetNextAssoc(POSITION& rNextPosition, KEY& rKey,
                                                        VALUE& rValue) const
{
    const CAssoc* pAssoc = reinterpret_cast<const CAssoc*>(rNextPosition);
    if (rNextPosition == BEFORE_START_POSITION)
        pAssoc = FirstFrom(0);
    if (pAssoc == nullptr)
        AfxThrowInvalidArgException();
    rNextPosition = reinterpret_cast<POSITION>(NextOf(pAssoc));
    rKey = pAssoc->key;
    rValue = pAssoc->value;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
inline const typename CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::CPair* CMap<
    KEY, ARG_KEY, VALUE, ARG_VALUE>::PGetNextAssoc(const CPair* pAssocRet) const
{
    return const_cast<CMap*>(this)->PGetNextAssoc(pAssocRet);
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
typename CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::CPair* CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::PGetNextAssoc(
    const CPair* pAssocRet)
{
    if (pAssocRet == nullptr)
        AfxThrowInvalidArgException();
    return NextOf(static_cast<const CAssoc*>(pAssocRet));
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::InitHashTable(UINT hashSize, BOOL bAllocNow)
{
    if (m_nCount != 0 || hashSize == 0)
        AfxThrowInvalidArgException();
    FreeMemory();
    m_nHashTableSize = hashSize;
    if (bAllocNow)
        AllocHashTable();
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::AssertValid() const
{
    CObject::AssertValid();
    ASSERT(m_nHashTableSize > 0);
    ASSERT(m_nCount == 0 || m_pHashTable != nullptr);
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::Dump(CDumpContext& dc) const
{
    CObject::Dump(dc);
    dc << "with " << LONGLONG(m_nCount) << " elements\n";
    if (dc.GetDepth() > 0)
    {
        for (const CAssoc* pAssoc = FirstFrom(0); pAssoc != nullptr; pAssoc = NextOf(pAssoc))
        {
            DumpElements<KEY>(dc, &pAssoc->key, 1);
            DumpElements<VALUE>(dc, &pAssoc->value, 1);
        }
    }
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::AllocHashTable()
{
    m_pHashTable = static_cast<CAssoc**>(AfxAllocElements(m_nHashTableSize, sizeof(CAssoc*)));
    std::fill_n(m_pHashTable, m_nHashTableSize, nullptr);
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
typename CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::CAssoc* CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::FindAssoc(
    ARG_KEY key, UINT nHashValue) const
{
    if (m_pHashTable == nullptr)
        return nullptr;
    CAssoc* pAssoc = m_pHashTable[nHashValue % m_nHashTableSize];
    while (pAssoc != nullptr &&
           !(pAssoc->nHashValue == nHashValue && CompareElements(&pAssoc->key, std::addressof(key))))
        pAssoc = pAssoc->pNext;
    return pAssoc;
}

/// The first entry in the given bucket or one behind it.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
typename CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::CAssoc* CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::FirstFrom(
    UINT nBucket) const
{
    if (m_nCount == 0)
        return nullptr;
    while (nBucket < m_nHashTableSize && m_pHashTable[nBucket] == nullptr)
        ++nBucket;
    return nBucket < m_nHashTableSize ? m_pHashTable[nBucket] : nullptr;
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
inline typename CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::CAssoc* CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::NextOf(
    const CAssoc* pAssoc) const
{
    return pAssoc->pNext != nullptr ? pAssoc->pNext : FirstFrom(pAssoc->nHashValue % m_nHashTableSize + 1);
}

template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
typename CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::CAssoc* CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::NewAssoc(
    ARG_KEY key, UINT nHashValue)
{
    if (m_pHashTable == nullptr)
        AllocHashTable();
    if (m_pFreeList == nullptr)
    {
        BYTE* const pEntries =
            static_cast<BYTE*>(CPlex::Create(m_pBlocks, m_nBlockSize, sizeof(CAssoc))->data());
        for (INT_PTR i = m_nBlockSize; i-- > 0;)
            Recycle(pEntries + i * sizeof(CAssoc));
    }

    // The entry leaves the free list only when it is constructed.
    CFree* const pFree = m_pFreeList;
    CFree* const pNextFree = pFree->pNext;
    CAssoc* pAssoc;
    try
    {
        pAssoc = ::new (static_cast<void*>(pFree)) CAssoc(key);
    }
    catch (...)
    {
        ::new (static_cast<void*>(pFree)) CFree{pNextFree};
        throw;
    }
    m_pFreeList = pNextFree;

    CAssoc*& rBucket = m_pHashTable[nHashValue % m_nHashTableSize];
    pAssoc->nHashValue = nHashValue;
    pAssoc->pNext = rBucket;
    rBucket = pAssoc;
    ++m_nCount;
    return pAssoc;
}

/// Gives back the memory of a map without entries.
template <class KEY, class ARG_KEY, class VALUE, class ARG_VALUE>
void CMap<KEY, ARG_KEY, VALUE, ARG_VALUE>::FreeMemory()
{
    AfxFreeElements(std::exchange(m_pHashTable, nullptr));
    m_pFreeList = nullptr;
    if (m_pBlocks != nullptr)
        std::exchange(m_pBlocks, nullptr)->FreeDataChain();
}

// ---------------------------------------------------------------------------------------------------------
// Typed pointer collections: BASE_CLASS is CPtrArray or CObArray, CPtrList or CObList, CMapPtrToPtr, ...
// The pointers are not owned. Subscripts that answer a reference look at the stored pointer under TYPE, so
// client code is compiled without assumptions on aliasing of pointer types (-fno-strict-aliasing).

template <class BASE_CLASS, class TYPE>
class CTypedPtrArray : public BASE_CLASS
{
public:
    TYPE GetAt(INT_PTR nIndex) const { return (TYPE)BASE_CLASS::GetAt(nIndex); }
    TYPE& ElementAt(INT_PTR nIndex) { return reinterpret_cast<TYPE&>(BASE_CLASS::ElementAt(nIndex)); }
    void SetAt(INT_PTR nIndex, TYPE ptr) { BASE_CLASS::SetAt(nIndex, ptr); }
    void SetAtGrow(INT_PTR nIndex, TYPE newElement) { BASE_CLASS::SetAtGrow(nIndex, newElement); }
    INT_PTR Add(TYPE newElement) { return BASE_CLASS::Add(newElement); }
    INT_PTR Append(const CTypedPtrArray& src) { return BASE_CLASS::Append(src); }
    void Copy(const CTypedPtrArray& src) { BASE_CLASS::Copy(src); }
    void InsertAt(INT_PTR nIndex, TYPE newElement, INT_PTR nCount = 1)
    {
        BASE_CLASS::InsertAt(nIndex, newElement, nCount);
    }
    void InsertAt(INT_PTR nStartIndex, CTypedPtrArray* pNewArray)
    {
        BASE_CLASS::InsertAt(nStartIndex, static_cast<BASE_CLASS*>(pNewArray));
    }
    TYPE operator[](INT_PTR nIndex) const { return (TYPE)BASE_CLASS::GetAt(nIndex); }
    TYPE& operator[](INT_PTR nIndex) { return ElementAt(nIndex); }
};

template <class BASE_CLASS, class TYPE>
class CTypedPtrList : public BASE_CLASS
{
public:
    CTypedPtrList(INT_PTR nBlockSize = 10) : BASE_CLASS(nBlockSize) {}

    TYPE& GetHead() { return reinterpret_cast<TYPE&>(BASE_CLASS::GetHead()); }
    TYPE GetHead() const { return (TYPE)BASE_CLASS::GetHead(); }
    TYPE& GetTail() { return reinterpret_cast<TYPE&>(BASE_CLASS::GetTail()); }
    TYPE GetTail() const { return (TYPE)BASE_CLASS::GetTail(); }
    TYPE RemoveHead() { return (TYPE)BASE_CLASS::RemoveHead(); }
    TYPE RemoveTail() { return (TYPE)BASE_CLASS::RemoveTail(); }
    POSITION AddHead(TYPE newElement) { return BASE_CLASS::AddHead(newElement); }
    POSITION AddTail(TYPE newElement) { return BASE_CLASS::AddTail(newElement); }
    void AddHead(CTypedPtrList* pNewList) { BASE_CLASS::AddHead(static_cast<BASE_CLASS*>(pNewList)); }
    void AddTail(CTypedPtrList* pNewList) { BASE_CLASS::AddTail(static_cast<BASE_CLASS*>(pNewList)); }
    TYPE& GetNext(POSITION& rPosition) { return reinterpret_cast<TYPE&>(BASE_CLASS::GetNext(rPosition)); }
    TYPE GetNext(POSITION& rPosition) const { return (TYPE)BASE_CLASS::GetNext(rPosition); }
    TYPE& GetPrev(POSITION& rPosition) { return reinterpret_cast<TYPE&>(BASE_CLASS::GetPrev(rPosition)); }
    TYPE GetPrev(POSITION& rPosition) const { return (TYPE)BASE_CLASS::GetPrev(rPosition); }
    TYPE& GetAt(POSITION position) { return reinterpret_cast<TYPE&>(BASE_CLASS::GetAt(position)); }
    TYPE GetAt(POSITION position) const { return (TYPE)BASE_CLASS::GetAt(position); }
    void SetAt(POSITION pos, TYPE newElement) { BASE_CLASS::SetAt(pos, newElement); }
    POSITION InsertBefore(POSITION position, TYPE newElement)
    {
        return BASE_CLASS::InsertBefore(position, newElement);
    }
    POSITION InsertAfter(POSITION position, TYPE newElement)
    {
        return BASE_CLASS::InsertAfter(position, newElement);
    }
};

template <class BASE_CLASS, class KEY, class VALUE>
class CTypedPtrMap : public BASE_CLASS
{
public:
    CTypedPtrMap(INT_PTR nBlockSize = 10) : BASE_CLASS(nBlockSize) {}

    BOOL Lookup(typename BASE_CLASS::BASE_ARG_KEY key, VALUE& rValue) const
    {
        typename BASE_CLASS::BASE_VALUE value{};
        const BOOL bFound = BASE_CLASS::Lookup(key, value);
        if (bFound)
            rValue = (VALUE)value;
        return bFound;
    }
    VALUE& operator[](typename BASE_CLASS::BASE_ARG_KEY key)
    {
        return reinterpret_cast<VALUE&>(BASE_CLASS::operator[](key));
    }
    void SetAt(KEY key, VALUE newValue) { BASE_CLASS::SetAt(key, newValue); }
    BOOL RemoveKey(KEY key) { return BASE_CLASS::RemoveKey(key); }
    void GetNextAssoc(POSITION& rPosition, KEY& rKey, VALUE& rValue) const
    {
        typename BASE_CLASS::BASE_KEY key{};
        typename BASE_CLASS::BASE_VALUE value{};
        BASE_CLASS::GetNextAssoc(rPosition, key, value);
        rKey = (KEY)key;
        rValue = (VALUE)value;
    }
};
