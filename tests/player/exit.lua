-- os.exit ends the run at once, even in a callback and inside pcall, with the same steps as at the end of every run.
atTheEnd = setmetatable({}, {__gc = function()
  print(velora.getOnFinishInit() == nil, velora.getOnLoginDone() == nil)
  os.exit(4) -- while the state is being closed
end})
velora.setOnFinishInit(print)
velora.setOnLoginDone(function(code)
  print("LoginDone", code)
  velora.zvLogin() -- its event is queued while the run ends
  print(pcall(coroutine.wrap(function() print(pcall(os.exit, 3)) end)))
end)
velora.zvLogin()
