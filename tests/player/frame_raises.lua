-- An error in the frame function ends the run like an error in the script, even after player.quit.
player.onFrame(function(frame)
  print("frame", frame)
  if frame < 2 then return end
  player.quit()
  error(setmetatable({}, {__tostring = function() return "error in frame " .. frame end}))
end)
