// Counts what is taken from the heap: by operator new, anywhere in the program, and by Lua's allocator.
#pragma once

#include <cstddef>
#include <cstdint>

namespace bench {

// Blocks taken and blocks grown so far.
std::int64_t Allocations();

// The allocator of the measured states.
void* CountingLuaAllocator(void*, void* block, std::size_t oldSize, std::size_t newSize);

}  // namespace bench
