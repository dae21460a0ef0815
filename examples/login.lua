-- Starting the SDK and logging in: both return at once, and a callback brings the outcome as a code. The first login
-- is refused, the second goes through.
-- Play it with: velora-play examples/login.lua

velora.setOnFinishInit(function(code)
  if code ~= velora.FINISH_INIT_OK then
    print("The SDK did not start: code " .. code)
    player.quit(1)
    return
  end
  print("The SDK has started.")
  -- Offline every login goes through, unless the script wants another answer. This one is to be refused.
  offline.answer("zvLogin", velora.LOGIN_DONE_WRONG_PASSWD)
  velora.zvLogin()
end)

velora.setOnLoginDone(function(code)
  if code == velora.LOGIN_DONE_OK then
    print("Logged in by channel " .. velora.getChannel() .. ", hasLogin says " .. tostring(velora.hasLogin()) .. ".")
    player.quit()
  elseif code == velora.LOGIN_DONE_WRONG_PASSWD then
    print("Wrong password, hasLogin says " .. tostring(velora.hasLogin()) .. ". Once more.")
    offline.answer("zvLogin", nil) -- back to what logins answer by themselves
    velora.zvLogin()
  else
    print("No login: code " .. code)
    player.quit(1)
  end
end)

velora.zvInit()
