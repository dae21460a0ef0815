-- Starts the SDK and logs the player in. The game displays session.state and, if not nil, session.reason.
local session = { state = "off", reason = nil }

local TIMEOUT = 120 -- frames to wait for a result

local reasons = {
  [velora.LOGIN_DONE_WRONG_PASSWD] = "wrong password",
  [velora.LOGIN_DONE_NET_UNAVAILABLE] = "no network",
  [velora.LOGIN_DONE_NET_TIME_OUT] = "no reply from the network",
}

local waiting -- the number of frames left to wait; nil if no result is due

local function enter(state, reason, timeout)
  session.state, session.reason, waiting = state, reason, timeout
end

function session.logIn()
  enter("logging in", nil, TIMEOUT)
  velora.zvLogin()
end

function session.start()
  enter("starting", nil, TIMEOUT)
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
