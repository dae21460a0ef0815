-- Played on a terminal: what tells of a mistake stands out, unless the user wants no colours.
print(player.terminal)
velora.isBinded()
velora.setOnExitApp(print)
debug.getregistry().VELORA[60] = print
offline.post(60)
player.onFrame(function() error(setmetatable({}, { __tostring = function() return "the end" end })) end)
