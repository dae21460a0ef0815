// The code that Visual C++ links into every program and library: initializers, exit functions, static variables in
// functions, thread-local storage. Implements the documented behaviour as far as the build needs it.
#include <corecrt_startup.h>
#include <windows.h>

#include <climits>
#include <new>
#include <typeinfo>

#include "start.h"

#pragma comment(lib, "kernel32")

const std::nothrow_t std::nothrow{};

extern "C" {

int _fltused = 0x9875;  // referenced by objects that use floating point
__type_info_node __type_info_root_node;

// Checked before a function returns in objects that were built with /GS.
uintptr_t __security_cookie = 0x2B992DDFA232;
void __cdecl __security_check_cookie(uintptr_t cookie) {
  if (cookie != __security_cookie) __builtin_trap();
}

// Initializers. The compiler puts pointers to them into sections that the linker sorts by name, between these sections.
#pragma section(".CRT$XIA", read)
#pragma section(".CRT$XIZ", read)
#pragma section(".CRT$XCA", read)
#pragma section(".CRT$XCZ", read)
#pragma section(".CRT$XLA", read)
#pragma section(".CRT$XLZ", read)
__declspec(allocate(".CRT$XIA")) _PIFV __xi_a[] = {nullptr};
__declspec(allocate(".CRT$XIZ")) _PIFV __xi_z[] = {nullptr};
__declspec(allocate(".CRT$XCA")) _PVFV __xc_a[] = {nullptr};
__declspec(allocate(".CRT$XCZ")) _PVFV __xc_z[] = {nullptr};
__declspec(allocate(".CRT$XLA")) PIMAGE_TLS_CALLBACK __xl_a = nullptr;
__declspec(allocate(".CRT$XLZ")) PIMAGE_TLS_CALLBACK __xl_z = nullptr;

__declspec(dllimport) int __cdecl _initterm_e(_PIFV* first, _PIFV* last);
__declspec(dllimport) void __cdecl _initterm(_PVFV* first, _PVFV* last);

// Thread-local storage: the loader copies what is between _tls_start and _tls_end for each thread.
#pragma section(".tls", read, write)
#pragma section(".tls$ZZZ", read, write)
#pragma section(".rdata$T", read)
unsigned long _tls_index = 0;
__declspec(allocate(".tls")) char _tls_start = 0;
__declspec(allocate(".tls$ZZZ")) char _tls_end = 0;
__declspec(allocate(".rdata$T")) extern const IMAGE_TLS_DIRECTORY64 _tls_used;
const IMAGE_TLS_DIRECTORY64 _tls_used = {reinterpret_cast<ULONGLONG>(&_tls_start),
                                         reinterpret_cast<ULONGLONG>(&_tls_end),
                                         reinterpret_cast<ULONGLONG>(&_tls_index),
                                         reinterpret_cast<ULONGLONG>(&__xl_a + 1),
                                         0,
                                         0};

// Guards of static variables in functions: 0 is uninitialized, -1 is being initialized, any other value is the epoch of
// the initialization.
int _Init_global_epoch = INT_MIN;
__declspec(thread) int _Init_thread_epoch = INT_MIN;
static SRWLOCK init_lock;
static CONDITION_VARIABLE init_done;

void __cdecl _Init_thread_header(int* guard) {
  AcquireSRWLockExclusive(&init_lock);
  while (*guard == -1) SleepConditionVariableSRW(&init_done, &init_lock, INFINITE, 0);
  if (*guard == 0) {
    *guard = -1;
  } else {
    _Init_thread_epoch = _Init_global_epoch;
  }
  ReleaseSRWLockExclusive(&init_lock);
}

static void FinishInit(int* guard, bool completed) {
  AcquireSRWLockExclusive(&init_lock);
  if (completed) _Init_thread_epoch = ++_Init_global_epoch;
  *guard = completed ? _Init_global_epoch : 0;
  ReleaseSRWLockExclusive(&init_lock);
  WakeAllConditionVariable(&init_done);
}

void __cdecl _Init_thread_footer(int* guard) { FinishInit(guard, true); }
void __cdecl _Init_thread_abort(int* guard) { FinishInit(guard, false); }

// Each program or library runs its own exit functions, when it ends or is unloaded.
static _onexit_table_t at_exit;
_onexit_t __cdecl _onexit(_onexit_t function) {
  return _register_onexit_function(&at_exit, function) == 0 ? function : nullptr;
}
int __cdecl atexit(_PVFV function) { return _onexit(reinterpret_cast<_onexit_t>(function)) != nullptr ? 0 : -1; }

bool StartModule() {
  if (_initialize_onexit_table(&at_exit) != 0 || _initterm_e(__xi_a, __xi_z) != 0) return false;
  _initterm(__xc_a, __xc_z);
  return true;
}
void __cdecl EndModule() { _execute_onexit_table(&at_exit); }

}  // extern "C"

// The virtual table that every type descriptor points to. Nothing calls through it.
extern const void* const type_info_table[1] __asm__("??_7type_info@@6B@");
const void* const type_info_table[1] = {nullptr};
