-- The event of each number, and the argument errors of offline.post and the other controls.
for setter, set in pairs(velora) do
  if setter:find("^setOn") then set(function(value) print(setter, tonumber(value)) end) end
end
for number = 0, 59 do offline.post(number) end
offline.post(15, 9)
offline.post(60)
local finished = velora.OrderInfo.new("x")
velora.OrderInfo.__gc(finished)
local gaps, long = {}, {}
for i = 1, 1 << 20 do long[i] = i < 1 << 20 and "x" end
for k = 0, 40 do gaps[#gaps + 1] = "[" .. (1 << k) .. "] = false" end
gaps = load("return {" .. table.concat(gaps, ", ") .. "}")() -- claims a length of 2^40
for _, bad in ipairs{ { "QueryFriendListFinished", gaps }, { "QueryInviteFriendListFinished", long },
    { "NoSuchEvent" }, { "LoginDon" }, {}, { "LoginDone", "text" }, { "LoginDone", 1, 2 },
    { "OrderCheckDone", { ["%s"] = 1 } }, { "OrderCheckDone", velora.ShareInfo.new() }, { "OrderCheckDone", finished } } do
  print(select(2, pcall(function() offline.post(table.unpack(bad)) end)))
end
for _, bad in ipairs{ { player.quit, 256 }, { player.quit, "1" }, { player.onFrame, 1 }, { offline.download, "onEnd" },
    { offline.download, "onInited", 1 }, { offline.download, "onFinish", "a", "b", 2 }, { offline.answer, nil } } do
  print(select(2, pcall(table.unpack(bad, 1, 5))))
end
player.onFrame(function() assert(select("#", player.quit(7)) == 0) os.exit() end)
