// Counts the heap blocks of operator new in the whole program and of CountingLuaAllocator.
#pragma once

#include <cstddef>
#include <cstdint>

namespace bench {

// Returns how often a block has been allocated or grown so far.
std::int64_t Allocations();

// Allocated memory: bytes, including malloc's headers and rounding, and blocks.
struct Held {
  double bytes;
  double blocks;
};

// Returns what is allocated now.
Held HeldNow();

// A lua_Alloc, the allocator of the measured Lua states.
void* CountingLuaAllocator(void*, void* block, std::size_t oldSize, std::size_t newSize);

}  // namespace bench
