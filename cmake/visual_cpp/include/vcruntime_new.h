// The allocation functions and their parameter types.
#pragma once
#include <vcruntime.h>

namespace std {
enum class align_val_t : size_t {};
struct nothrow_t {
  explicit nothrow_t() = default;
};
extern const nothrow_t nothrow;
}  // namespace std

[[nodiscard]] __declspec(allocator) void* __cdecl operator new(size_t size);
[[nodiscard]] __declspec(allocator) void* __cdecl operator new[](size_t size);
[[nodiscard]] __declspec(allocator) void* __cdecl operator new(size_t size, const std::nothrow_t&) noexcept;
[[nodiscard]] __declspec(allocator) void* __cdecl operator new[](size_t size, const std::nothrow_t&) noexcept;
[[nodiscard]] __declspec(allocator) void* __cdecl operator new(size_t size, std::align_val_t alignment);
[[nodiscard]] __declspec(allocator) void* __cdecl operator new[](size_t size, std::align_val_t alignment);
void __cdecl operator delete(void* block) noexcept;
void __cdecl operator delete[](void* block) noexcept;
void __cdecl operator delete(void* block, size_t) noexcept;
void __cdecl operator delete[](void* block, size_t) noexcept;
void __cdecl operator delete(void* block, const std::nothrow_t&) noexcept;
void __cdecl operator delete[](void* block, const std::nothrow_t&) noexcept;
void __cdecl operator delete(void* block, std::align_val_t) noexcept;
void __cdecl operator delete[](void* block, std::align_val_t) noexcept;
void __cdecl operator delete(void* block, size_t, std::align_val_t) noexcept;
void __cdecl operator delete[](void* block, size_t, std::align_val_t) noexcept;

#ifndef __PLACEMENT_NEW_INLINE
#define __PLACEMENT_NEW_INLINE
[[nodiscard]] inline void* __cdecl operator new(size_t, void* place) noexcept { return place; }
inline void __cdecl operator delete(void*, void*) noexcept {}
#endif
#ifndef __PLACEMENT_VEC_NEW_INLINE
#define __PLACEMENT_VEC_NEW_INLINE
[[nodiscard]] inline void* __cdecl operator new[](size_t, void* place) noexcept { return place; }
inline void __cdecl operator delete[](void*, void*) noexcept {}
#endif
