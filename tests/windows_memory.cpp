// Leads the allocations of every DLL to the test program's own operator new and delete. On Windows those are the
// program's alone: the DLLs go on with the shared standard library's, which also builds every std::string.
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>

namespace tests {
namespace {

// Writes a jump to `target` over the start of the standard library's function of that name; its other allocation
// functions go through the two below. Both sides take their memory from the same heap.
template <class Function>
void Redirect(const char* name, Function* target) {
  const HMODULE library = GetModuleHandleA("libstdc++-6.dll");
  void* code = library != nullptr ? reinterpret_cast<void*>(GetProcAddress(library, name)) : nullptr;
  unsigned char jump[] = {0x48, 0xB8, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0xE0};  // mov rax, target; jmp rax
  std::memcpy(jump + 2, &target, sizeof target);
  DWORD access = 0;
  if (code == nullptr || VirtualProtect(code, sizeof jump, PAGE_EXECUTE_READWRITE, &access) == 0) {
    std::fprintf(stderr, "cannot redirect %s\n", name);
    std::abort();
  }
  std::memcpy(code, jump, sizeof jump);
  VirtualProtect(code, sizeof jump, access, &access);
  FlushInstructionCache(GetCurrentProcess(), code, sizeof jump);
}

// Before main, while there is one thread only.
[[maybe_unused]] const bool kRedirected = [] {
  Redirect<void*(std::size_t)>("_Znwy", operator new);
  Redirect<void(void*) noexcept>("_ZdlPv", operator delete);
  return true;
}();

}  // namespace
}  // namespace tests
