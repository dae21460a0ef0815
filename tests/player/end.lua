-- At the end the callbacks are taken away, then the state is closed, and its finalisers run.
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
  for i = 1, 100000 do garbage[i] = {} end -- a collection is under way by now
end)
