-- Starting the SDK and logging in: both functions return at once, and a callback receives the result as a code. The
-- first login fails, the second succeeds.
-- Play it with: velora-play examples/login.lua

velora.setOnFinishInit(function(code)
  if code ~= velora.FINISH_INIT_OK then
    print("The SDK did not start: code " .. code)
    player.quit(1)
    return
  end
  print("The SDK has started.")
  -- Offline every login succeeds unless offline.answer sets another result, as it does here.
  offline.answer("zvLogin", velora.LOGIN_DONE_WRONG_PASSWD)
  velora.zvLogin()
end)

velora.setOnLoginDone(function(code)
  if code == velora.LOGIN_DONE_OK then
    print("Logged in by channel " .. velora.getChannel() .. ", hasLogin says " .. tostring(velora.hasLogin()) .. ".")
    player.quit()
  elseif code == velora.LOGIN_DONE_WRONG_PASSWD then
    print("Wrong password, hasLogin says " .. tostring(velora.hasLogin()) .. ". Once more.")
    offline.answer("zvLogin", nil) -- restores success
    velora.zvLogin()
  else
    print("No login: code " .. code)
    player.quit(1)
  end
end)

velora.zvInit()
