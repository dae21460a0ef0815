// An SDK whose operations do almost nothing, so that the cost of calls between Lua and the SDK is measured. Has only
// the operations that the cases call; the others are those of the offline runtime, which is slower since it logs every
// call.
#pragma once

#include <memory>
#include <vector>

#include "platform/event.h"

namespace bench {

using Batch = std::vector<std::shared_ptr<tarn::velora::Event>>;

// Sets the batches that the next calls of SwapEvents return, one per call. Further calls return no events.
void QueueFrames(std::vector<Batch> frames);

}  // namespace bench
