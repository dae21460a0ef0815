-- exitApp only causes the event ExitApp; the run continues until the script quits.
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
