// Looks at each block of memory as it is deleted: whoever wrote behind its end is found there and then. Linked into
// every module of a build with OW_CHECK; the heap fills the ends of blocks because `./run check` tells it to.

#include <windows.h>

#include <malloc.h>

#include <cstdio>
#include <cstdlib>
#include <new>

namespace
{
void CheckAndFree(void* pBlock)
{
    if (pBlock && !::HeapValidate(reinterpret_cast<HANDLE>(::_get_heap_handle()), 0, pBlock))
    {
        std::fputs("check: a block of memory was written past its end, or was deleted before\n", stderr);
        std::fflush(stderr);
        __builtin_trap();
    }
    std::free(pBlock);
}
} // namespace

void operator delete(void* pBlock) noexcept
{
    CheckAndFree(pBlock);
}

void operator delete(void* pBlock, std::size_t) noexcept
{
    CheckAndFree(pBlock);
}

void operator delete[](void* pBlock) noexcept
{
    CheckAndFree(pBlock);
}

void operator delete[](void* pBlock, std::size_t) noexcept
{
    CheckAndFree(pBlock);
}
