-- An error in the frame function ends the run as one of the script does, even after player.quit.
player.onFrame(function(frame)
  print("frame", frame)
  if frame < 2 then return end
  player.quit()
  error(setmetatable({}, {__tostring = function() return "as frame " .. frame .. " must" end}))
end)
