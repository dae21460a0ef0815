local testing = require("tests.testing")
local case, equal = testing.case, testing.equal

-- Starts a session, waits until it has one of the states in which the player must act, and returns it.
local function play()
  local session = testing.load("game.session")
  session.start()
  testing.waitUntil(function()
    session.update()
    return session.state ~= "starting" and session.state ~= "logging in"
  end)
  return session
end

case("the player logs in", function()
  local session = play()
  equal(session.state, "logged in")
  equal(velora.hasLogin(), true)
end)

case("the SDK does not start", function()
  testing.answer("zvInit", velora.FINISH_INIT_FAILED)
  local session = play()
  equal(session.state, "failed")
  equal(session.reason, "the SDK has not started: code " .. velora.FINISH_INIT_FAILED)
end)

case("the player cancels the login, then logs in", function()
  testing.answer("zvLogin", velora.LOGIN_DONE_CANCEL)
  local session = play()
  equal(session.state, "cancelled")
  testing.answer("zvLogin", nil)
  session.logIn()
  testing.settle()
  equal(session.state, "logged in")
end)

for _, row in ipairs{
  { velora.LOGIN_DONE_WRONG_PASSWD, "wrong password" },
  { velora.LOGIN_DONE_NET_UNAVAILABLE, "no network" },
  { velora.LOGIN_DONE_NET_TIME_OUT, "no reply from the network" },
  { 12345, "code 12345" },
} do
  local code, reason = row[1], row[2]
  case("the login fails: " .. reason, function()
    testing.answer("zvLogin", code)
    local session = play()
    equal(session.state, "failed")
    equal(session.reason, reason)
  end)
end

case("no result comes", function()
  testing.replace("zvLogin", function() end)
  local session = play()
  equal(session.state, "failed")
  equal(session.reason, "no result")
end)

case("the player logs in on another device", function()
  local session = play()
  offline.post("LogoutDone", velora.LOGOUT_DONE_NEED_RELOGIN)
  testing.settle()
  equal(session.state, "logged out")
  equal(session.reason, "logged in elsewhere")
end)

testing.run()
