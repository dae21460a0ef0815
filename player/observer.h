// Passes on what the offline runtime tells.
#pragma once

namespace player {

// Sets the runtime's observer.
void OpenObserver();

}  // namespace player
