-- Counts frames without end, and shows what a script is given.
print(#arg, arg[0], ...)
player.onFrame(function(frame) print(frame) end)
