// The log library, with named channels and printf formats. May be called from any thread. Its exceptions derive from
// std::exception.
#pragma once

#include <cstdint>

#include "platform/import.h"

#if defined(__GNUC__)
#define VELORA_PRINTF(text, first) __attribute__((format(printf, text, first)))
#else
#define VELORA_PRINTF(text, first)
#endif

namespace tarn::log {

// Returns the id of the channel of that name. A name may be registered more than once.
VELORA_SDK_API std::uint32_t RegisterChannel(const char* name);

// Writes one line at `level` (the module only uses 0).
VELORA_SDK_API void Log(std::uint32_t channel, std::int32_t level, const char* format, ...) VELORA_PRINTF(3, 4);

// Writes one error line.
VELORA_SDK_API void LogError(std::uint32_t channel, const char* format, ...) VELORA_PRINTF(2, 3);

}  // namespace tarn::log
