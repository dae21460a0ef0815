-- At the end the callbacks are removed, then the state is closed, which runs finalizers.
velora.setOnFinishInit(print)
velora.setOnLoginDone(function() print("comes too late") end)
atTheEnd = setmetatable({}, {__gc = function()
  collectgarbage()
  print(velora.getOnFinishInit() == nil, velora.getOnLoginDone() == nil)
end})
player.onFrame(function()
  print(velora.getOnFinishInit() == nil, velora.getOnLoginDone() == nil)
  velora.zvLogin()
  player.quit()
  local garbage = {}
  for i = 1, 100000 do garbage[i] = {} end -- starts a collection, which lua_close interrupts
end)
