-- Sharing a link: fills a ShareInfo, tests it with zvCheckArgs and sends it with zvShare. The player declines the first
-- time.
-- A game starts the SDK and logs in first, as login.lua does. Play it with: velora-play examples/share.lua

local share = velora.ShareInfo.new()
share:set_type(velora.SHARE_TYPE_LINK)
share:set_scope(velora.SHARE_SCOPE_MULTIUSER)
share:set_title("The Lighthouse")
share:set_text("Come up, one can see the sea.")
share:set_link("https://example.com/lighthouse")
share:set_toUserList{ "friend.1", "friend.2" }
share:set_linkParams{ floor = "7" }

-- A getter returns a copy of a table field: change the copy, then set the whole field again.
local params = share:get_linkParams()
params.guide = "anna"
share:set_linkParams(params)
print("floor " .. share:get_linkParams().floor .. ", guide " .. share:get_linkParams().guide)
print("for " .. table.concat(share:get_toUserList(), " and "))

velora.setOnShareFinished(function(shared)
  print("shared: " .. tostring(shared))
  if not shared then
    offline.answer("zvShare", nil) -- restores success
    velora.zvShare(share)
    return
  end
  print("message: " .. velora.getLastShareMessage())
  player.quit()
end)

if velora.zvCheckArgs(share) then
  offline.answer("zvShare", false) -- the next share fails
  velora.zvShare(share)
else
  print("the request is not complete")
  player.quit(1)
end
