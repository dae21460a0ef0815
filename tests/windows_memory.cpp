// Leads the C++ allocations of other DLLs to the test program's own operator new and delete, which replace those of the
// program only.
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>

namespace tests {
namespace {

// The DLL whose operator new and delete call malloc and free for others: with MinGW-w64 the standard library's, which
// all DLLs share; with Visual C++ each DLL has its own.
#if defined(__MINGW32__)
constexpr const char* kLibrary = "libstdc++-6.dll";
#else
constexpr const char* kLibrary = "velora_sdk.dll";
#endif

void* Allocate(std::size_t size) { return operator new(size, std::nothrow); }
void Free(void* block) { operator delete(block); }

// The place of the address of an imported function, null if `library` does not import `name`.
ULONGLONG* FindImport(char* library, const char* name) {
  const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(library);
  const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS64*>(library + dos->e_lfanew);
  const DWORD imports = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
  const auto* dll = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(library + imports);
  for (; dll->Name != 0; ++dll) {
    const auto* names = reinterpret_cast<const IMAGE_THUNK_DATA64*>(library + dll->OriginalFirstThunk);
    auto* addresses = reinterpret_cast<IMAGE_THUNK_DATA64*>(library + dll->FirstThunk);
    for (; names->u1.AddressOfData != 0; ++names, ++addresses) {
      if (IMAGE_SNAP_BY_ORDINAL64(names->u1.Ordinal)) continue;
      const auto* import = reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(library + names->u1.AddressOfData);
      if (std::strcmp(reinterpret_cast<const char*>(import->Name), name) == 0) return &addresses->u1.Function;
    }
  }
  return nullptr;
}

template <class Function>
void Redirect(const char* name, Function* target) {
  const HMODULE library = GetModuleHandleA(kLibrary);
  ULONGLONG* address = library != nullptr ? FindImport(reinterpret_cast<char*>(library), name) : nullptr;
  DWORD access = 0;
  if (address == nullptr || VirtualProtect(address, sizeof *address, PAGE_READWRITE, &access) == 0) {
    std::fprintf(stderr, "cannot redirect %s\n", name);
    std::abort();
  }
  *address = reinterpret_cast<ULONGLONG>(target);
  VirtualProtect(address, sizeof *address, access, &access);
}

// Before main, while there is one thread only. All sides take their memory from the same heap.
[[maybe_unused]] const bool kRedirected = [] {
  Redirect("malloc", Allocate);
  Redirect("free", Free);
  return true;
}();

}  // namespace
}  // namespace tests
