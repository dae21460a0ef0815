// The part of the compiler's runtime header that the standard library uses. Written from the documented interface.
#pragma once
#include <corecrt.h>
#include <sal.h>
#include <vadefs.h>

#define _CRT_PACKING 8
#ifdef __cplusplus
#define _CRT_BEGIN_C_HEADER extern "C" {
#define _CRT_END_C_HEADER }
#else
#define _CRT_BEGIN_C_HEADER
#define _CRT_END_C_HEADER
#endif
#define _CRTNOALIAS __declspec(noalias)
#define _CRTRESTRICT __declspec(restrict)
#define _VCRTIMP
#define _CRT_STRINGIZE_(x) #x
#define _CRT_STRINGIZE(x) _CRT_STRINGIZE_(x)
#define _CRT_WIDE_(x) L##x
#define _CRT_WIDE(x) _CRT_WIDE_(x)
#define __CRTDECL __cdecl
#define __CLRCALL_OR_CDECL __cdecl
#define __CLRCALL_PURE_OR_CDECL __cdecl
#define __CLR_OR_THIS_CALL
#define _CRT_GUARDOVERFLOW
#define _CRT_SATELLITE_1 __declspec(dllimport)
#define _CRT_SATELLITE_2 __declspec(dllimport)
#define _CRT_SATELLITE_CODECVT_IDS __declspec(dllimport)
#define _CRT_SATELLITE_CODECVT_IDS_NOIMPORT
#define _PGLOBAL
#define _MSVC_CONSTEXPR [[msvc::constexpr]]

// Annotations that Wine's sal.h lacks.
#define _Analysis_assume_(expr)
#define _Analysis_assume_lock_held_(lock)
#define _Check_return_opt_
#define _Field_z_
#define _Guarded_by_(lock)
#define _In_NLS_string_(size)
#define _Inout_bytecount_(size)
#define _Pre_satisfies_(expr)
#define _CRTIMP2  // no dllimport, since some of these functions are in a static library
#define _MRTIMP2

// Called if the standard library detects a violated precondition.
#ifdef __cplusplus
extern "C"
#endif
    __declspec(dllimport) __declspec(noreturn) void __cdecl _invoke_watson(const wchar_t* expression,
                                                                           const wchar_t* function, const wchar_t* file,
                                                                           unsigned int line, uintptr_t reserved);
#define _CRT_SECURE_INVALID_PARAMETER(expr) ::_invoke_watson(nullptr, nullptr, nullptr, 0, 0)

#ifdef __cplusplus
#define _HAS_CXX17 (_MSVC_LANG > 201402L)
#define _HAS_CXX20 (_MSVC_LANG > 201703L)
#define _HAS_CXX23 (_MSVC_LANG > 202002L)
#define _HAS_CXX26 0
#define _HAS_NODISCARD 1
#define _HAS_EXCEPTIONS 1
#define _NODISCARD [[nodiscard]]
#endif
