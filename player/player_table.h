// The table `player`, with which a script ends the run and is called each frame.
#pragma once

#include <lua.hpp>

namespace player {

// The request made with player.quit.
struct QuitRequest {
  bool requested = false;
  int status = 0;
};

// Sets the global `player`. `terminal` is whether stdout is a terminal. `request` must outlive the state. May raise a
// memory error.
void OpenPlayerTable(lua_State* L, QuitRequest& request, bool terminal);

// Pushes the function given to player.onFrame and returns true, or pushes nothing and returns false.
bool PushFrameFunction(lua_State* L);

}  // namespace player
