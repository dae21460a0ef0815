// The SDK as the measurements see it: the operations that the cases call do next to nothing, so that what is measured
// is the way from Lua to the SDK and back. The offline runtime, which writes down every call, supplies all others.
#pragma once

#include <memory>
#include <vector>

#include "platform/event.h"

namespace bench {

using Batch = std::vector<std::shared_ptr<tarn::velora::Event>>;

// Gives the batches that the next calls of SwapEvents hand over, one each; after them there are no events.
void QueueFrames(std::vector<Batch> frames);

}  // namespace bench
