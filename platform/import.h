// Macros that import the names of the closed platform libraries and, in the offline runtime, which replaces them,
// export the same names.
#pragma once

#if defined(_WIN32)
#if defined(VELORA_SDK_BUILD)
#define VELORA_SDK_API __declspec(dllexport)
#define VELORA_SDK_DATA __declspec(dllexport)
#else
// Functions are called through the import library's thunks, whose addresses, unlike those of dllimport functions, are
// constants.
#define VELORA_SDK_API
#define VELORA_SDK_DATA __declspec(dllimport)
#endif
#define VELORA_SDK_TYPE
#else
#define VELORA_SDK_API __attribute__((visibility("default")))
#define VELORA_SDK_DATA __attribute__((visibility("default")))
#define VELORA_SDK_TYPE __attribute__((visibility("default")))
#endif
