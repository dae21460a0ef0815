-- What host.c and host.cpp play: the SDK starts, the player logs in, the game ends. The host has set quitGame.
-- luacheck: read globals quitGame

velora.setOnFinishInit(function(code)
  print("started: " .. tostring(code == velora.FINISH_INIT_OK))
  velora.zvLogin()
end)

velora.setOnLoginDone(function(code)
  print("logged in: " .. tostring(code == velora.LOGIN_DONE_OK))
  quitGame()
end)

velora.zvInit()
