// What the wrappers need of share requests: writing the cached fields back before the record leaves the module.
#pragma once

#include <memory>

#include "records/holder.h"

namespace luavelora {

// Writes the eight caches into the record, changed or not, and gives the holder's reference, which stays the
// holder's. Pin the holder: the SDK's setters are called.
const std::shared_ptr<tarn::velora::ShareInfo>& FlushShare(ShareInfoHolder& holder);

}  // namespace luavelora
