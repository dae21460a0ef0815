// The table `player`: how a script ends the run and follows its frames.
#pragma once

#include <lua.hpp>

namespace player {

// What a script asked for with player.quit.
struct QuitRequest {
  bool made = false;
  int status = 0;
};

// Sets the global `player`, where `terminal` tells whether the output goes to one. `request` must outlive the state.
// May raise a memory error.
void OpenPlayerTable(lua_State* L, QuitRequest& request, bool terminal);

// Pushes the function given to player.onFrame and answers true, or pushes nothing where there is none.
bool PushFrameFunction(lua_State* L);

}  // namespace player
