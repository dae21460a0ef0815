-- A first walk through the module: start the SDK, log in, look around, log out.
-- Run it with velora-play; every answer of the SDK arrives as a callback on a later frame.

local CODES = {
  FINISH_INIT_OK = 0,
  LOGIN_DONE_OK = 0,
  LOGOUT_DONE_OK = 0,
}

-- Far more frames than any answer takes: past them something is wrong.
local PATIENCE = 120

local story -- the coroutine that runs the tour, resumed once per frame
local answers = {} -- event name -> what its callback received

-- Remembers what the callback of an event receives, for `wait` to find.
local function listen(event)
  velora["setOn" .. event](function(...)
    answers[event] = table.pack(...)
  end)
end

-- Lets frames pass until the event has come, and returns what its callback received.
local function wait(event)
  for _ = 1, PATIENCE do
    local answer = answers[event]
    if answer then
      answers[event] = nil
      return table.unpack(answer, 1, answer.n)
    end
    coroutine.yield()
  end
  error("no " .. event .. " came within " .. PATIENCE .. " frames")
end

local function say(format, ...)
  print(string.format(format, ...))
end

-- What is not there reads as nil.
local function show(label, value)
  say("  %-16s %s", label, value == nil and "(none)" or tostring(value))
end

-- The callback error's own line goes to stderr as well; here it is found in the log.
local function findInLog(text)
  for _, line in ipairs(offline.log()) do
    if line:find(text, 1, true) then
      return line
    end
  end
end

local function tour()
  say("Good day. This is the tour of the module, played offline: no account, no network.")

  say("\nFirst the SDK has to start. zvInit returns at once; the outcome comes as FinishInit.")
  listen("FinishInit")
  velora.zvInit()
  assert(wait("FinishInit") == CODES.FINISH_INIT_OK, "the SDK did not start")
  show("isInit", velora.isInit())

  say("\nNow the login, which is answered by LoginDone in the same manner.")
  show("hasLogin", velora.hasLogin())
  listen("LoginDone")
  velora.zvLogin()
  local code = wait("LoginDone")
  show("LoginDone", code)
  assert(code == CODES.LOGIN_DONE_OK, "the login failed")
  show("hasLogin", velora.hasLogin())

  say("\nThe SDK keeps properties: texts and integers, by name.")
  velora.setPropStr("GAME_NAME", "Tour of the Lighthouse")
  velora.setPropInt("LEVEL", 7)
  show("GAME_NAME", velora.getPropStr("GAME_NAME"))
  show("LEVEL", velora.getPropInt("LEVEL", 0))
  show("HIGH_SCORE", velora.getPropInt("HIGH_SCORE", -1))

  say("\nIt keeps one command line, which can be cleared again.")
  velora.setCmdLineParameter("--windowed --volume 40")
  show("command line", velora.getCmdLineParameter())
  velora.setCmdLineParameter()
  show("command line", velora.getCmdLineParameter())

  say("\nAnd it knows where the game runs.")
  show("channel", velora.getChannel())
  show("app channel", velora.getAppChannel())
  show("platform", velora.getPlatform())
  show("device id", velora.getUdid())

  say("\nA callback with a mistake in it ends no game. The error is logged, and the next event comes as ever:")
  local heard = 0
  velora.setOnReceiveMsgNotification(function()
    heard = heard + 1
    error("this callback has a bad day")
  end)
  offline.log() -- what came before is of no interest
  offline.post("ReceiveMsgNotification")
  offline.post("ReceiveMsgNotification")
  coroutine.yield()
  show("callback calls", heard)
  show("in the log", findInLog("this callback has a bad day"))

  say("\nTime to leave.")
  listen("LogoutDone")
  velora.zvLogout()
  assert(wait("LogoutDone") == CODES.LOGOUT_DONE_OK, "the logout failed")
  show("hasLogin", velora.hasLogin())

  say("\nThat was the tour. Goodbye.")
  player.quit(0)
end

story = coroutine.create(tour)
player.onFrame(function()
  if coroutine.status(story) == "dead" then
    return
  end
  local ok, message = coroutine.resume(story)
  if not ok then
    error(debug.traceback(story, message), 0)
  end
end)
