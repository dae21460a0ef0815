-- A script for host.c and host.cpp: starts the SDK, logs the player in, and ends the game by setting `over`.
-- luacheck: globals over

velora.setOnFinishInit(function(code)
  print("started: " .. tostring(code == velora.FINISH_INIT_OK))
  velora.zvLogin()
end)

velora.setOnLoginDone(function(code)
  print("logged in: " .. tostring(code == velora.LOGIN_DONE_OK))
  over = true
end)

velora.zvInit()
