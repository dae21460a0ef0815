-- Each social wrapper, with good and with bad arguments; run with --trace.
local function fails(f) print(select(2, pcall(f))) end

for _, name in ipairs{"zvQueryFriendList", "zvQueryAvailablesInvitees", "zvQueryMyAccount", "zvQueryFriendListInGame",
    "zvQueryInviterList", "zvIsDarenUpdated", "zvMoreGame", "zvDisplayAchievement", "getLastShareMessage"} do
  velora[name](1)
end
for _, name in ipairs{"zvApplyFriend", "zvDisplayLeaderboard"} do
  velora[name]("anna")
  velora[name](2.5)
  velora[name]({})
end
velora.zvInviteFriendList("anna", 2)
velora.zvInviteFriendList("anna")
for _, name in ipairs{"zvUpdateAchievement", "zvUpdateEvent"} do
  velora[name]("steps", 5)
  velora[name]("steps", 5.0)
  velora[name]("steps")
end
velora.zvUpdateRank("speed", "99.5")
velora.zvUpdateRank("speed", 0.1)
velora.zvUpdateRank("speed", {})
velora.zvDeleteInviters{"anna", 7, {}, "ben"}
velora.zvDeleteInviters{}
fails(function() velora.zvDeleteInviters("anna") end)
velora.zvDisplayQuests{1, 4294967298, "3", "x"}
velora.zvDisplayQuests{}
fails(function() velora.zvDisplayQuests() end)

local query, share = velora.QueryRankInfo.new(), velora.ShareInfo.new("spring")
velora.zvQueryRank(query)
velora.zvQueryRank(share)
velora.zvShare(share)
velora.zvShare(query)
print(velora.zvCheckArgs(share), velora.zvCheckArgs(query))
velora.AccountInfo.new(42)
velora.AccountInfo.new({})
fails(function() share:set_textMsg("x") end)
fails(function() share:set_toUserList() end)
fails(function() share:set_shareData(1) end)
player.quit()
