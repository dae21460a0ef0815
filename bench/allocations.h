// Counts heap blocks, those of operator new anywhere in the program and those of Lua's allocator.
#pragma once

#include <cstddef>
#include <cstdint>

namespace bench {

// Blocks allocated and blocks grown so far.
std::int64_t Allocations();

// What is allocated now: bytes as malloc counts them, headers and rounding included, and blocks.
struct Held {
  double bytes;
  double blocks;
};
Held HeldNow();

// The allocator of the measured states.
void* CountingLuaAllocator(void*, void* block, std::size_t oldSize, std::size_t newSize);

}  // namespace bench
