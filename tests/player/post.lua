-- Events by number, and what offline.post says of those that it cannot make.
for setter, set in pairs(velora) do
  if setter:find("^setOn") then set(function(...) print(setter, ...) end) end
end
offline.post(15, 9)
offline.post(60)
local gaps = {}
for k = 0, 40 do gaps[#gaps + 1] = "[" .. (1 << k) .. "] = false" end
gaps = load("return {" .. table.concat(gaps, ", ") .. "}")() -- claims a length of 2^40
for _, bad in ipairs{ { "QueryFriendListFinished", gaps }, { "NoSuchEvent" }, { "LoginDone", "text" }, { "LoginDone", 1, 2 },
    { "OrderCheckDone", { nothing = 1 } }, { "OrderCheckDone", velora.ShareInfo.new() } } do
  print(select(2, pcall(function() offline.post(table.unpack(bad)) end)))
end
player.onFrame(function() player.quit() end)
