#pragma once
// Memory whose addresses fit in 32 bits.
//
// For the few objects whose address travels through a 32-bit word. The memory is taken from the system in
// large pieces that are kept for the life of the process; what is freed serves the next block of its size.
// Not guarded: for the dialogs' thread only.

#include <cstddef>

/// A block of at least `size` bytes below 4 GiB, aligned for any object. Raises MFC's memory exception if the
/// system has no address left there.
void* gfnAllocateLow(std::size_t size);

/// Gives back a block of gfnAllocateLow. Null is allowed.
void gfnFreeLow(void* pBlock) noexcept;
