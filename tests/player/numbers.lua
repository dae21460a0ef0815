-- Prints the event whose callback is called for each number from 0 on.
local names = {}
for setter, set in pairs(velora) do
  local name = setter:match("^setOn(.+)")
  if name then set(function() names[#names + 1] = name end) end
end
for number = 0, 59 do offline.post(number) end
player.onFrame(function()
  for number, name in ipairs(names) do print(number - 1, name) end
  player.quit()
end)
