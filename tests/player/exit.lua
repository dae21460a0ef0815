-- os.exit ends the run at once, in a callback and below pcall too, but in the order in which every run ends.
atTheEnd = setmetatable({}, {__gc = function()
  print(velora.getOnFinishInit() == nil, velora.getOnLoginDone() == nil)
  os.exit(4) -- the state is closing already
end})
velora.setOnFinishInit(print)
velora.setOnLoginDone(function(code)
  print("LoginDone", code)
  velora.zvLogin() -- answered while the run ends
  print(pcall(coroutine.wrap(function() print(pcall(os.exit, 3)) end)))
end)
velora.zvLogin()
