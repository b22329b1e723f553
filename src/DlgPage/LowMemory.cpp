#include <afxwin.h>

#include "DlgPage/LowMemory.h"

#include <cstdint>
#include <map>
#include <new>
#include <utility>

namespace
{
constexpr std::uintptr_t kLimit = std::uintptr_t{1} << 32;
constexpr std::size_t kPiece = 64 * 1024; ///< the granularity of addresses that the system gives out

constexpr std::uintptr_t RoundUp(std::uintptr_t n, std::uintptr_t unit)
{
    return (n + unit - 1) / unit * unit;
}

/// A piece of the first free addresses that hold it; null if there are none below the limit.
std::byte* TakePiece(std::size_t size)
{
    MEMORY_BASIC_INFORMATION region{};
    for (std::uintptr_t address = kPiece; address + size <= kLimit;
         address = RoundUp(reinterpret_cast<std::uintptr_t>(region.BaseAddress) + region.RegionSize, kPiece))
    {
        void* place = reinterpret_cast<void*>(address);
        if (void* piece = ::VirtualAlloc(place, size, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE))
            return static_cast<std::byte*>(piece);
        if (!::VirtualQuery(place, &region, sizeof(region)))
            return nullptr;
    }
    return nullptr;
}

/// What stands before each block.
struct alignas(16) Header
{
    std::size_t size;  ///< of the block with its header
    Header* pNextFree; ///< while the block is free: the next one of its size
};

class CLowMemory
{
public:
    Header* Allocate(std::size_t size)
    {
        Header*& pFree = m_free[size];
        if (pFree)
            return std::exchange(pFree, pFree->pNextFree);
        if (static_cast<std::size_t>(m_pEnd - m_pNext) < size)
            StartPiece(RoundUp(size, kPiece));
        return new (std::exchange(m_pNext, m_pNext + size)) Header{size, nullptr};
    }

    void Free(Header* pBlock) noexcept
    {
        Header*& pFree = m_free.find(pBlock->size)->second;
        pBlock->pNextFree = std::exchange(pFree, pBlock);
    }

private:
    void StartPiece(std::size_t size)
    {
        std::byte* piece = TakePiece(size);
        if (!piece)
            AfxThrowMemoryException();
        m_pNext = piece;
        m_pEnd = piece + size;
    }

    std::byte* m_pNext = nullptr; ///< what is left of the newest piece
    std::byte* m_pEnd = nullptr;
    std::map<std::size_t, Header*> m_free; ///< by size, a list of blocks given back
};

// Never destroyed: objects of static storage may still free blocks while the process ends.
CLowMemory& LowMemory()
{
    static auto* s_pMemory = new CLowMemory;
    return *s_pMemory;
}
} // namespace

void* gfnAllocateLow(std::size_t size)
{
    try
    {
        return LowMemory().Allocate(sizeof(Header) + RoundUp(size, alignof(Header))) + 1;
    }
    catch (const std::bad_alloc&) // of the books
    {
        AfxThrowMemoryException();
    }
}

void gfnFreeLow(void* pBlock) noexcept
{
    if (pBlock)
        LowMemory().Free(static_cast<Header*>(pBlock) - 1);
}
