#pragma once
#define __AFXPLEX_H__ // asked for by the headers that wizards make
// Memory of the collections: raw blocks, and chains of blocks that list and map nodes are cut from.

#include "afx.h"

/// nCount * cbElement bytes of raw memory. Throws CMemoryException if there is not that much, and also when
/// the product does not fit. Freed with AfxFreeElements, which takes null.
AFX_CORE_API void* AFXAPI AfxAllocElements(size_t nCount, size_t cbElement);
AFX_CORE_API void AFXAPI AfxFreeElements(void* p) noexcept;

/// One block of a chain; the elements follow the header.
struct AFX_CORE_CLASS CPlex
{
    alignas(16) CPlex* pNext; ///< aligns the elements behind it as well

    void* data() { return this + 1; }

    /// Puts a new block for nMax elements of cbElement bytes in front of the chain.
    static CPlex* PASCAL Create(CPlex*& head, UINT_PTR nMax, UINT_PTR cbElement);

    /// Frees this block and all behind it.
    void FreeDataChain();
};
