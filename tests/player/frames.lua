-- Prints the script's arguments, then the number of each frame, and never quits.
assert(arg[-3]) print(#arg, arg[0], ...)
player.onFrame(function(frame) print(frame) end)
