-- Played on a terminal: messages about mistakes are coloured unless NO_COLOR is set.
print(player.terminal)
velora.isBinded()
velora.setOnExitApp(print)
debug.getregistry().VELORA[60] = print
offline.post(60)
player.onFrame(function() error(setmetatable({}, { __tostring = function() return "the end" end })) end)
