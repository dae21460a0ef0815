-- Ctrl-C, by argument: "waiting" presses it while frames run, "stuck" before an endless loop that catches errors;
-- "twice" presses it twice, which ends the process at once.
local function press()
  io.popen("kill -INT $PPID"):close()
end

velora.setOnLoginDone(print)
atTheEnd = setmetatable({}, {__gc = function() print("the end", velora.getOnLoginDone() == nil) end})

if ... == "twice" then
  press()
  press()
  print("still here")
elseif ... == "stuck" then
  press()
  coroutine.wrap(function()
    while true do
      pcall(function() while true do end end)
    end
  end)()
end

player.onFrame(function(frame)
  print("frame", frame)
  if frame == 2 then
    press()
    for _ = 1, 50000 do end
    print("the frame goes on")
  end
end)
