// The log lines that the log library keeps for TakeLog.
#pragma once

namespace tarn::velora::offline {

void ForgetLogLines();

}  // namespace tarn::velora::offline
