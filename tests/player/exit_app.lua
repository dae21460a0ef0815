-- exitApp only says that the game is to end; the run goes on until the script quits.
local function show(name)
  velora["setOn" .. name](function(...) print(name, ...) end)
end
show("ExitApp")
show("ExitOpenExitViewFailed")
velora.exitApp()
offline.answer("zvOpenExitView", false)
velora.zvOpenExitView()
velora.setOnLogoutDone(function() player.quit(5) end)
velora.zvLogout()
print("goes on")
