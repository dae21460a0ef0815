-- Starts the SDK and logs the player in. The game draws session.state, and session.reason if there is one.
local session = { state = "off", reason = nil }

local PATIENCE = 120 -- frames to wait for a result

local reasons = {
  [velora.LOGIN_DONE_WRONG_PASSWD] = "wrong password",
  [velora.LOGIN_DONE_NET_UNAVAILABLE] = "no network",
  [velora.LOGIN_DONE_NET_TIME_OUT] = "no reply from the network",
}

local waiting -- for how many frames more; nil if no result is due

local function enter(state, reason, patience)
  session.state, session.reason, waiting = state, reason, patience
end

function session.logIn()
  enter("logging in", nil, PATIENCE)
  velora.zvLogin()
end

function session.start()
  enter("starting", nil, PATIENCE)
  velora.zvInit()
end

-- To be called once per frame.
function session.update()
  if not waiting then return end
  waiting = waiting - 1
  if waiting == 0 then enter("failed", "no result") end
end

velora.setOnFinishInit(function(code)
  if code == velora.FINISH_INIT_OK then
    session.logIn()
  else
    enter("failed", "the SDK has not started: code " .. code)
  end
end)

velora.setOnLoginDone(function(code)
  if code == velora.LOGIN_DONE_OK then
    enter("logged in")
  elseif code == velora.LOGIN_DONE_CANCEL then
    enter("cancelled")
  else
    enter("failed", reasons[code] or ("code " .. code))
  end
end)

velora.setOnLogoutDone(function(code)
  enter("logged out", code == velora.LOGOUT_DONE_NEED_RELOGIN and "logged in elsewhere" or nil)
end)

return session
