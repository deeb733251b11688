#pragma once

#include <cstddef>

// Memory for MemObject's objects, carved from chunks that each thread fills
// in turn. A tree's nodes are made together and mostly deleted together:
// taking one is a pointer bump, and deleting a tree gives a few large
// blocks back to the system allocator instead of one block per node.
//
// The room of a deleted object is not reused: a chunk is freed whole once
// its last object is deleted, on whichever thread that happens.
namespace memobject::chunkpool {

// Room for `size` bytes aligned for any object; null when the system
// allocator has none.
void* allocate(std::size_t size) noexcept;
// The same, always in a chunk of its own.
void* allocateAlone(std::size_t size) noexcept;
// Gives back what allocate or allocateAlone answered; `size` is what was asked for, or 0
// where it is not known.
void deallocate(void* block, std::size_t size) noexcept;

}  // namespace memobject::chunkpool
