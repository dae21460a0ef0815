// The counted allocation functions.
#include "bench/allocations.h"

#include <cstdlib>
#include <new>

namespace bench {
namespace {

std::int64_t allocations = 0;

void* Allocate(std::size_t size) {
  ++allocations;
  void* block = std::malloc(size == 0 ? 1 : size);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}

}  // namespace

std::int64_t Allocations() { return allocations; }

void* CountingLuaAllocator(void*, void* block, std::size_t oldSize, std::size_t newSize) {
  if (newSize == 0) {
    std::free(block);
    return nullptr;
  }
  if (block == nullptr || newSize > oldSize) ++allocations;
  return std::realloc(block, newSize);
}

}  // namespace bench

void* operator new(std::size_t size) { return bench::Allocate(size); }
void* operator new[](std::size_t size) { return bench::Allocate(size); }
void operator delete(void* block) noexcept { std::free(block); }
void operator delete[](void* block) noexcept { std::free(block); }
void operator delete(void* block, std::size_t) noexcept { std::free(block); }
void operator delete[](void* block, std::size_t) noexcept { std::free(block); }
