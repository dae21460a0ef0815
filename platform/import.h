// How the closed platform libraries' names are imported, and how the offline runtime, which
// replaces them, exports the same names.
#pragma once

#if defined(_WIN32)
#if defined(VELORA_SDK_BUILD)
#define VELORA_SDK_API __declspec(dllexport)
#define VELORA_SDK_DATA __declspec(dllexport)
#else
// Functions need no mark: the import library's thunk serves, and its address is a constant.
#define VELORA_SDK_API
#define VELORA_SDK_DATA __declspec(dllimport)
#endif
#define VELORA_SDK_TYPE
#else
#define VELORA_SDK_API __attribute__((visibility("default")))
#define VELORA_SDK_DATA __attribute__((visibility("default")))
#define VELORA_SDK_TYPE __attribute__((visibility("default")))
#endif
