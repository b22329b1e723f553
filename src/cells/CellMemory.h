#pragma once
// For the cells' own sources: memory for cells, in blocks. A grid makes and destroys them by the hundred
// thousand, and the heap takes longer over one of them than the grid over the rest of its making.
//
//     void* CGridCellBase::operator new(size_t nSize) { return gfnTakeCellMemory(nSize); }
//     void CGridCellBase::operator delete(void* p, size_t nSize) { gfnGiveCellMemory(p, nSize); }
//
// Any thread may take and give. A block in which no cell is left goes back to the heap.

#include <cstddef>

/// Aligned as operator new does, and failing as CObject's does, with a memory exception.
void* gfnTakeCellMemory(std::size_t nSize);
/// `nSize` is what was asked for. Null is let be.
void gfnGiveCellMemory(void* p, std::size_t nSize) noexcept;
