// Connects the offline runtime's observer to the parts of the player.
#pragma once

namespace player {

// Sets the runtime's observer.
void OpenObserver();

}  // namespace player
