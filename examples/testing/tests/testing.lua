-- Runs the cases of a test one after the other. They are a coroutine that is resumed once per frame, so that they can
-- wait for events. The first failure ends the run with status 1.
local testing = {}

local LONGEST_WAIT = 300 -- frames

local cases = {}
local running -- the name of the running case
local undo -- of the running case: functions that undo what it has changed

-- Adds a case. `body` may call the functions below.
function testing.case(name, body) cases[#cases + 1] = { name = name, body = body } end

function testing.equal(actual, expected)
  if actual ~= expected then error("expected " .. tostring(expected) .. ", got " .. tostring(actual), 2) end
end

-- Waits until `condition()` is true.
function testing.waitUntil(condition)
  for _ = 1, LONGEST_WAIT do
    if condition() then return end
    coroutine.yield()
  end
  error("timed out", 2)
end

-- Waits until the results of all calls so far have arrived. They arrive in the order of the calls.
function testing.settle()
  local settled = false
  velora.setOnExtendFuncCall(function() settled = true end)
  velora.zvExtendFunc("settle")
  testing.waitUntil(function() return settled end)
end

-- Sets the result of an operation until the case ends.
function testing.answer(operation, value)
  offline.answer(operation, value)
  undo[#undo + 1] = function() offline.answer(operation, nil) end
end

-- Replaces a function of `velora` until the case ends.
function testing.replace(name, replacement)
  local original = velora[name]
  rawset(velora, name, replacement)
  undo[#undo + 1] = function() rawset(velora, name, original) end
end

-- Loads a module of the game again, as if the game had just started.
function testing.load(module)
  package.loaded[module] = nil
  return require(module)
end

local function runAll()
  for _, case in ipairs(cases) do
    running, undo = case.name, {}
    case.body()
    testing.settle()
    for _, f in ipairs(undo) do f() end
    print("ok    " .. case.name)
  end
end

-- Runs the cases and ends the run.
function testing.run()
  local all = coroutine.create(runAll)
  player.onFrame(function()
    local ok, message = coroutine.resume(all)
    if not ok then error(debug.traceback(all, running .. ": " .. tostring(message)), 0) end
    if coroutine.status(all) == "dead" then player.quit() end
  end)
end

return testing
