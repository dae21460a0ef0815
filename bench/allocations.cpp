#include "bench/allocations.h"

#include <malloc.h>

#include <cstdlib>
#include <new>

namespace bench {
namespace {

std::int64_t allocations = 0;
std::int64_t blocks = 0;

void* Allocate(std::size_t size) {
  ++allocations;
  ++blocks;
  void* block = std::malloc(size == 0 ? 1 : size);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}

void Free(void* block) {
  if (block != nullptr) --blocks;
  std::free(block);
}

}  // namespace

std::int64_t Allocations() { return allocations; }

Held HeldNow() { return {static_cast<double>(mallinfo2().uordblks), static_cast<double>(blocks)}; }

void* CountingLuaAllocator(void*, void* block, std::size_t oldSize, std::size_t newSize) {
  if (newSize == 0) {
    Free(block);
    return nullptr;
  }
  if (block == nullptr) ++blocks;
  if (block == nullptr || newSize > oldSize) ++allocations;
  return std::realloc(block, newSize);
}

}  // namespace bench

void* operator new(std::size_t size) { return bench::Allocate(size); }
void* operator new[](std::size_t size) { return bench::Allocate(size); }
void operator delete(void* block) noexcept { bench::Free(block); }
void operator delete[](void* block) noexcept { bench::Free(block); }
void operator delete(void* block, std::size_t) noexcept { bench::Free(block); }
void operator delete[](void* block, std::size_t) noexcept { bench::Free(block); }
