-- Friends and ranks: a function sends a query, and a callback receives a list of accounts.
-- A game starts the SDK and logs in first, as login.lua does. Play it with: velora-play examples/friends.lua

-- A rank query is a record with the ranking, its scope and the number of places.
local function askForRanks()
  local query = velora.QueryRankInfo.new()
  query:set_type(velora.QUERY_RANK_TYPE_SCORE)
  query:set_scope(velora.QUERY_RANK_SCOPE_FRIEND)
  query:set_count(5)
  velora.zvQueryRank(query)
end

velora.setOnQueryFriendListFinished(function(friends)
  print("Friends: " .. #friends)
  for _, friend in ipairs(friends) do
    print("  " .. friend:get_nickname() .. (friend:get_inGame() and " is playing" or ""))
  end
  velora.zvUpdateRank("score", 985.5)
end)

velora.setOnQueryRankUpdateFinished(function(done)
  print("Score reported: " .. tostring(done))
  askForRanks()
end)

velora.setOnQueryRankFinished(function(accounts)
  print("Ranking:")
  for _, account in ipairs(accounts) do
    local name, score = account:get_nickname(), account:get_rankScore()
    print(string.format("  %d. %s with %.1f points", account:get_rank(), name, score))
  end
  player.quit()
end)

velora.zvQueryFriendList()
