// The part of a private header of the runtime that the standard library's sources use.
#pragma once
#include <malloc.h>
#include <stdlib.h>
#include <vcruntime.h>
#include <windows.h>

#define _calloc_crt calloc
#define _free_crt free

template <class T>
class __crt_unique_heap_ptr {
 public:
  explicit __crt_unique_heap_ptr(T* block = nullptr) noexcept : block_(block) {}
  __crt_unique_heap_ptr(__crt_unique_heap_ptr&& other) noexcept : block_(other.block_) { other.block_ = nullptr; }
  __crt_unique_heap_ptr& operator=(__crt_unique_heap_ptr&& other) noexcept {
    T* const block = other.block_;
    other.block_ = block_;
    block_ = block;
    return *this;
  }
  ~__crt_unique_heap_ptr() { free(block_); }
  explicit operator bool() const noexcept { return block_ != nullptr; }
  T* get() const noexcept { return block_; }

 private:
  T* block_;
};
#define _malloc_crt_t(type, count) __crt_unique_heap_ptr<type>(static_cast<type*>(malloc((count) * sizeof(type))))
