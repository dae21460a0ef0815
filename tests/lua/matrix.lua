-- The walk over the wrappers. calls() returns the number of SDK calls since the last time, and the first one's line;
-- answer(operation, value) sets what the SDK returns; `light` is a light userdata.
local finished = velora.OrderInfo.new("x")
velora.OrderInfo.__gc(finished)
local selfish = {}
selfish[1], selfish.k = selfish, selfish
local function claim(n) return setmetatable({"a", "b"}, {__len = function() return n end}) end
local live = {O = velora.OrderInfo.new("o"), S = velora.ShareInfo.new(), Q = velora.QueryRankInfo.new(),
  P = velora.ProductInfo.new(), A = velora.AccountInfo.new()}
local values = {
  true, false, 0, 1, -1, 2^31 | 0, (2^31 | 0) - 1, -(2^31 | 0) - 1, 2^32 | 0, math.maxinteger, math.mininteger,
  0.5, 3.0, -0.0, 1e15, -1.5e-7, 3.14159265358979, 1e308, 1/0, -1/0, 0/0, "12", "0x10", " 5 ", "1e3", "text", "",
  "a\0b", ("x"):rep(70000), {}, {"a", 2, 3.5}, {1, nil, 3}, {[1] = "a", [2] = {}, x = 1}, {a = "b", [1.5] = true},
  selfish, claim(2), claim(-5), claim(0/0), claim("x"), claim(1 << 40), print, coroutine.create(print), light,
  io.stdout, finished, live.O, live.S, live.Q, live.P, live.A,
}
local badLength = {[claim((1 << 20) + 1)] = true, [claim(1 << 31 - 1)] = true,
  [setmetatable({}, {__len = function() error("len") end})] = true}
for t in pairs(badLength) do values[#values + 1] = t end
local last = #values + 1 -- nil is among the values

local function isText(v) return type(v) == "string" or type(v) == "number" end
local tests = {
  t = isText,
  i = function(v) return math.type(v) == "integer" end,
  n = function(v) return type(v) ~= "table" and tonumber(v) ~= nil end,
  b = function(v) return type(v) == "boolean" end,
  l = function(v) return type(v) == "table" and not badLength[v] end,
  s = function(v)
    if type(v) ~= "table" then return false end
    for i = 1, rawlen(v) do if not isText(rawget(v, i)) then return false end end
    return true
  end,
  o = function(v) return isText(v) or type(v) == "boolean" end,
  c = function(v) return v == nil or isText(v) end,
  O = function(v) return v == live.O end, S = function(v) return v == live.S end,
  Q = function(v) return v == live.Q end,
}
-- How a call line shows an argument of a kind; other kinds, and the functions in `special`, have tests of their own.
local shown = {
  t = function(v) return '"' .. tostring(v):match("^[^\0]*") .. '"' end,
  i = function(v) return ("%d"):format((v + (1 << 31) & 0xffffffff) - (1 << 31)) end,
  n = function(v) return ("%.14g"):format(tonumber(v)) end,
  b = tostring,
  O = function() return 'OrderInfo("o")' end, S = function() return "ShareInfo()" end,
  Q = function() return "QueryRankInfo()" end,
}
local refused = {hasFeature = false} -- what a refusal returns; else nothing
local special = {getPropStr = true, zvSetFloatBtnVisible = true, zvPushGameVoice = true, zvCreateQRCode = true}

-- Walks the combinations: all of up to two values, and a pseudo-random choice of the longer ones.
local seed = 1
local function random(n)
  seed = (seed * 1103515245 + 12345) % 2147483648
  return seed // 65536 % n + 1
end
local function walk(longest, check)
  check()
  for i = 1, last do
    check(values[i])
    if longest > 1 then for j = 1, last do check(values[i], values[j]) end end
  end
  for _ = 1, longest > 2 and 1500 or 0 do
    local args = {}
    -- Half of them begin well, so that the later tests are reached.
    local good = random(2) == 1
    for k = 1, longest + 1 do args[k] = values[random(last)] end
    if good then args[1] = "text" if longest > 3 then args[2], args[3] = 5, 6 end end
    check(table.unpack(args, 1, longest + 1))
  end
end

local wrappers = {}
for _, functions in ipairs{velora, velora.download} do
  for name, f in pairs(functions) do
    if type(f) == "function" and not name:find("^[sg]etOn") and not name:find("Handler$") then wrappers[name] = f end
  end
end

-- Calls visit(name, parameters, result) for each wrapper.
local function forEachWrapper(visit)
  local unseen = {}
  for name in pairs(wrappers) do unseen[name] = true end
  for signature, names in pairs(signatures) do
    local parameters, result = signature:match("^(%a*)>?(%a?)$")
    for name in names:gmatch("%S+") do
      assert(unseen[name], name .. " is no wrapper, or has two rows in signatures.lua")
      unseen[name] = nil
      visit(name, parameters, result)
    end
  end
  assert(next(unseen) == nil, tostring(next(unseen)) .. " has no row in signatures.lua")
end

local function checkArgumentsOf(name, parameters)
  local function check(...)
    local accepted, line = true, not special[name] and {}
    for k = 1, #parameters do
      local kind, v = parameters:sub(k, k), (select(k, ...))
      if not tests[kind](v) then accepted = false break end
      line = line and shown[kind] and line
      if line then line[k] = shown[kind](v) end
    end
    if parameters == "c" and select("#", ...) > 1 and (...) ~= nil then accepted = false end
    local got = table.pack(pcall(wrappers[name], ...))
    -- What is refused raises nothing, but for lists, options and the command line.
    local a, b = ...
    local raises = not accepted and (parameters == "l" or parameters == "c" or
      (parameters == "tl" or parameters == "ts") and tests.t(a) and type(b) == "table" or
      parameters == "to" and tests.t(a) and select("#", ...) > 1)
    assert(got[1] == not raises, name)
    assert(accepted or raises or got[2] == refused[name] and got.n == (refused[name] == nil and 1 or 2), name)
    local made, call = calls()
    local expected = line and name .. "(" .. table.concat(line, ", ") .. ")"
    if made ~= (accepted and 1 or 0) or accepted and expected and call ~= expected then
      local given = table.pack(...)
      for k = 1, given.n do given[k] = tostring(given[k]):sub(1, 30) end
      error(("%s(%s) made %d calls: %s"):format(name, table.concat(given, ", "), made, call))
    end
  end
  walk(#parameters, check)
end

-- What the SDK returns, by the kind of the result; false for a string is none, and then there is no result.
local long = ("x"):rep(300) .. "\0cut"
local answers = {b = {true, false}, i = {-7, 7}, s = {"text", "", "cut\0here", long, false}, x = {}}
for _, size in ipairs{255, 256, 257, 264, 100000} do table.insert(answers.s, ("x"):rep(size)) end
local good = {t = 1.5, i = 7, n = 1.5, b = true, l = {"a"}, s = {"a"}, o = "text", c = "text",
  O = live.O, S = live.S, Q = live.Q}

local function checkResultsOf(name, parameters, result)
  local arguments = {}
  for kind in parameters:gmatch(".") do arguments[#arguments + 1] = good[kind] end
  if result == "" then assert(select("#", wrappers[name](table.unpack(arguments))) == 0, name) end
  for _, value in ipairs(answers[result] or {}) do
    answer(name, value)
    local got = table.pack(wrappers[name](table.unpack(arguments)))
    local count = result == "s" and not value and 0 or 1
    local expected = type(value) == "string" and value:match("^[^\0]*") or value
    assert(got.n == count and (count == 0 or got[1] == expected and math.type(got[1]) == math.type(expected)), name)
  end
end

function checkArguments() forEachWrapper(checkArgumentsOf) end
function checkResults() forEachWrapper(checkResultsOf) end

function callEverythingElse()
  for name, class in pairs(velora) do
    if type(class) == "table" then
      for key, f in pairs(class) do
        if key ~= "__gc" then walk(key == "new" and 1 or 2, function(...) pcall(f, ...) end) end
      end
    elseif name:find("^[sg]etOn") then
      walk(1, function(...) pcall(class, ...) end)
    end
  end
  for _, class in pairs(velora) do
    if type(class) == "table" and class.__gc then for _, v in ipairs(values) do class.__gc(v) end end
  end
end
