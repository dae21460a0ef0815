// The part of the share class that the wrappers use.
#pragma once

#include <memory>

#include "records/holder.h"

namespace luavelora {

// Writes all cached fields into the record and returns the holder's reference. The holder must be pinned, since the
// SDK's setters may call scripts.
const std::shared_ptr<tarn::velora::ShareInfo>& FlushShare(ShareInfoHolder& holder);

}  // namespace luavelora
