// The allocation functions, in a separate object so that a program can replace them.
#include <malloc.h>

#include <new>

extern "C" __declspec(dllimport) int __cdecl _callnewh(size_t size);

void* __cdecl operator new(size_t size) {
  for (;;) {
    if (void* const block = malloc(size != 0 ? size : 1)) return block;
    if (_callnewh(size) == 0) throw std::bad_alloc();
  }
}
void* __cdecl operator new(size_t size, const std::nothrow_t&) noexcept {
  try {
    return operator new(size);
  } catch (...) {
    return nullptr;
  }
}
void* __cdecl operator new[](size_t size) { return operator new(size); }
void* __cdecl operator new[](size_t size, const std::nothrow_t& tag) noexcept { return operator new(size, tag); }
void __cdecl operator delete(void* block) noexcept { free(block); }
void __cdecl operator delete[](void* block) noexcept { free(block); }
void __cdecl operator delete(void* block, size_t) noexcept { free(block); }
void __cdecl operator delete[](void* block, size_t) noexcept { free(block); }
void __cdecl operator delete(void* block, const std::nothrow_t&) noexcept { free(block); }
void __cdecl operator delete[](void* block, const std::nothrow_t&) noexcept { free(block); }
