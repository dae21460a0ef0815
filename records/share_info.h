// What the wrappers need of share requests.
#pragma once

#include <memory>

#include "records/holder.h"

namespace luavelora {

// Writes the cached fields into the record, changed or not, and returns the holder's reference. Pin the holder: this
// calls the SDK's setters.
const std::shared_ptr<tarn::velora::ShareInfo>& FlushShare(ShareInfoHolder& holder);

}  // namespace luavelora
