#include <afxwin.h>

#include "cells/CellMemory.h"

#include <atomic>
#include <mutex>
#include <new>

namespace
{
constexpr std::size_t kAlignment = 16;
/// From one cell of a block to the next. Larger ones come from the heap.
constexpr std::size_t kMostStride = 512;
constexpr std::size_t kBlockSize = 32 * 1024;

constexpr std::size_t Aligned(std::size_t nSize)
{
    return (nSize + kAlignment - 1) / kAlignment * kAlignment;
}

/// Held for some instructions only, and hardly ever asked for by two.
class CSpinLock
{
public:
    void lock()
    {
        while (m_flag.test_and_set(std::memory_order_acquire))
            ::SwitchToThread();
    }
    void unlock() { m_flag.clear(std::memory_order_release); }

private:
    std::atomic_flag m_flag;
};

/// A place that was given back.
struct SFree
{
    SFree* pNext;
};

/// Places for cells of one size, one behind the other. In front of each stands whose it is.
struct SBlock
{
    SBlock* pBefore = nullptr; ///< of those that have room
    SBlock* pBehind = nullptr;
    SFree* pFree = nullptr;
    unsigned nFresh = 0; ///< the first place that was never taken
    unsigned nUsed = 0;
};

constexpr std::size_t kFirstPlace = Aligned(sizeof(SBlock) + sizeof(SBlock*));

constexpr std::size_t StrideOf(std::size_t nSize)
{
    return Aligned(nSize + sizeof(SBlock*));
}

SBlock*& BlockOf(void* p)
{
    return static_cast<SBlock**>(p)[-1];
}

/// All blocks with cells of one size.
class CBlocks
{
public:
    void* Take(std::size_t nStride)
    {
        const std::lock_guard lock(m_lock);
        SBlock& block = m_pRoom ? *m_pRoom : Add();
        void* const p = block.pFree ? TakeFree(block) : TakeFresh(block, nStride);
        ++block.nUsed;
        if (!HasRoom(block, nStride))
            Unlink(block);
        return p;
    }

    void Give(void* p, std::size_t nStride) noexcept
    {
        const std::lock_guard lock(m_lock);
        SBlock& block = *BlockOf(p);
        if (!HasRoom(block, nStride))
            Link(block);
        block.pFree = new (p) SFree{block.pFree};
        if (--block.nUsed > 0)
            return;
        Unlink(block);
        CObject::operator delete(&block);
    }

private:
    static bool HasRoom(const SBlock& block, std::size_t nStride)
    {
        return block.pFree || kFirstPlace + (block.nFresh + 1) * nStride <= kBlockSize;
    }

    static void* TakeFree(SBlock& block)
    {
        SFree* const p = block.pFree;
        block.pFree = p->pNext;
        return p;
    }

    static void* TakeFresh(SBlock& block, std::size_t nStride)
    {
        void* const p = reinterpret_cast<char*>(&block) + kFirstPlace + block.nFresh++ * nStride;
        BlockOf(p) = &block;
        return p;
    }

    SBlock& Add()
    {
        auto& block = *new (CObject::operator new(kBlockSize)) SBlock;
        Link(block);
        return block;
    }

    /// In front. It has none before it: a new one, or one that was taken off the front when it was full.
    void Link(SBlock& block)
    {
        block.pBehind = m_pRoom;
        if (m_pRoom)
            m_pRoom->pBefore = &block;
        m_pRoom = &block;
    }

    void Unlink(SBlock& block)
    {
        (block.pBefore ? block.pBefore->pBehind : m_pRoom) = block.pBehind;
        if (block.pBehind)
            block.pBehind->pBefore = block.pBefore;
    }

    CSpinLock m_lock;
    SBlock* m_pRoom = nullptr; ///< the blocks that have room
};

CBlocks& BlocksOf(std::size_t nStride)
{
    static constinit CBlocks s_blocks[kMostStride / kAlignment + 1];
    return s_blocks[nStride / kAlignment];
}
} // namespace

void* gfnTakeCellMemory(std::size_t nSize)
{
    const std::size_t nStride = StrideOf(nSize);
    return nStride > kMostStride ? CObject::operator new(nSize) : BlocksOf(nStride).Take(nStride);
}

void gfnGiveCellMemory(void* p, std::size_t nSize) noexcept
{
    if (!p)
        return;
    const std::size_t nStride = StrideOf(nSize);
    if (nStride > kMostStride)
        CObject::operator delete(p);
    else
        BlocksOf(nStride).Give(p, nStride);
}
