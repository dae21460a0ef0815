-- Compares the annotation files with the live tables: every name, kind, description and fixed value; what each callback
-- receives; what each function takes and returns. Arguments are made from the annotated types, so a wrong type is
-- refused.
local annotations = dofile("types/annotations.lua")
local items = annotations.read("types/velora.lua")
local globals = annotations.globals(items)
local failed = false

local function fail(...)
  failed = true
  print(string.format(...))
end

local function sortedPairs(map)
  local names = {}
  for name in pairs(map) do names[#names + 1] = name end
  table.sort(names)
  local i = 0
  return function()
    i = i + 1
    return names[i], map[names[i]]
  end
end

local aliases, structures = {}, {}
for _, item in ipairs(items) do
  if item.kind == "alias" then aliases[item.name] = item.type end
  if item.kind == "class" and item.name == "velora.SyncDownloadHandler" then structures[item.name] = item.fields end
end

-- Returns the class table of a type, or nil if it is not a class.
local function classOf(type)
  local name = type:match("^velora%.(%w+)$")
  return name and velora[name]
end

-- Returns a value of an annotated type. `object(name)` must return an object of the class.
local function sample(type, object)
  type = (aliases[type] or type):gsub("%?$", ""):match("^[^|]+")
  if aliases[type] then return sample(aliases[type], object) end
  local element, key, value = type:match("^(.*)%[%]$"), type:match("^table<(.-), (.*)>$")
  if element then return { sample(element, object) } end
  if key then return { [sample(key, object)] = sample(value, object) } end
  if classOf(type) then return object(type:match("%w+$")) end
  if type:find("^fun%(") then return print end
  if structures[type] then
    local structure = {}
    for _, field in ipairs(structures[type]) do structure[field.name] = sample(field.type, object) end
    return structure
  end
  local plain = { string = "text", integer = 7, number = 2.0, boolean = true, any = "text" }
  return (assert(plain[type], type))
end

local function fits(value, type)
  type = aliases[type] or type
  if type:find("%?$") then return value == nil or fits(value, type:sub(1, -2)) end
  local element, key, inner = type:match("^(.*)%[%]$"), type:match("^table<(.-), (.*)>$")
  if element then key, inner = "integer", element end
  if key then
    if _G.type(value) ~= "table" then return false end
    for k, v in pairs(value) do
      if not fits(k, key) or not fits(v, inner) then return false end
    end
    return true
  end
  if classOf(type) then
    return _G.type(value) == "userdata" and debug.getmetatable(value).__index == classOf(type)
  end
  if structures[type] then return _G.type(value) == "table" end
  if type == "integer" or type == "number" then
    return math.type(value) == (type == "integer" and "integer" or "float")
  end
  if type:find("^%-?%d+$") then return math.type(value) == "integer" and value == math.tointeger(type) end
  return _G.type(value) == (type:find("^fun%(") and "function" or type)
end

-- Compares names and kinds in both directions. Ignores metamethods, which scripts do not use by name.
local function compare(path, described, live)
  for name, member in sortedPairs(described) do
    local value = live[name]
    if member.fields then
      if type(value) == "table" then compare(path .. name .. ".", member.fields, value)
      else fail("%s%s is not a table", path, name) end
    elseif not (member.type and fits(value, member.type) or not member.type and type(value) == "function") then
      fail("%s%s is %s, described as %s", path, name, value, member.type or "a function")
    end
    if member.text == "" then fail("%s%s has no description", path, name) end
  end
  for name in sortedPairs(live) do
    if not described[name] and not name:find("^__") then fail("%s%s is not described", path, name) end
  end
end

-- Returns a record for offline.post: a table with a value of the getter's type for each field of the class.
local function record(class)
  local fields = {}
  for name, member in pairs(globals.velora.fields[class].fields) do
    local field = name:match("^get_(.*)")
    if field then fields[field] = sample(member.returns[1].type) end
  end
  return fields
end

-- `received` are the arguments for a full payload, `bare` those for an empty one. Arguments that are described as nil
-- must be nil in `bare`, and no others.
local function compareReceived(name, params, received, bare)
  if received.n ~= #params or bare.n ~= #params then
    return fail("%s receives %d and %d values, not %d", name, received.n, bare.n, #params)
  end
  for i, param in ipairs(params) do
    local value = received[i]
    if value == nil or not fits(value, param.type) then fail("%s receives %s as its %s", name, value, param.name) end
    if (bare[i] == nil) ~= (param.type:sub(-1) == "?") then
      fail("%s receives %s as its %s for an empty payload", name, bare[i], param.name)
    end
  end
end

local function payload(params, make)
  local values = {}
  for i, param in ipairs(params) do values[i] = sample(param.type, make) end
  return table.unpack(values)
end

-- Posts each event with a full payload and with an empty one. `objects` keeps received objects by class.
local objects, events = {}, {}

local function postEvents()
  for name, member in sortedPairs(globals.velora.fields) do
    local event = name:match("^setOn(.+)")
    if event then
      local params = annotations.signature(aliases[member.params[1].type])
      local calls = { params = params }
      events[event] = calls
      velora[name](function(...) calls[#calls + 1] = table.pack(...) end)
      local ok, message = pcall(function() offline.post(event, payload(params, record)) end)
      if not ok then fail("%s: %s", event, message) end
      offline.post(event)
    end
  end
end

local function compareEvents()
  for event, calls in sortedPairs(events) do
    if #calls == 2 then compareReceived(event, calls.params, calls[1], calls[2])
    else fail("%s came %d times, not twice", event, #calls) end
    for i, param in ipairs(calls.params) do
      local class = param.type:match("^velora%.(%w+)")
      local value = #calls > 0 and calls[1][i]
      if class and value then objects[class] = type(value) == "table" and value[1] or value end
    end
  end
end

-- Returns a new object if the class has `new`, else one that was received.
local function newObject(class)
  local make = globals.velora.fields[class].fields.new
  if not make then return objects[class] end
  return velora[class].new(payload(make.params))
end

local function object(class)
  objects[class] = objects[class] or newObject(class)
  return objects[class]
end

-- The events that followed the calls in the reference's tables and those that should have, with their first argument.
local pages = dofile("tools/reference_pages.lua")
local followed, expected = {}, {}

local function joined(set)
  local names = {}
  for name in sortedPairs(set) do names[#names + 1] = name end
  return table.concat(names, " ")
end

-- If a description says which events follow a call, it must name those in the reference's tables, and no others.
local function compareNamedEvents(name, member, reply)
  local named, listed = {}, {}
  if member.text:find("arrive") or member.text:find("follow") or member.text:find(" comes? ") then
    for word in member.text:gmatch("%u%w+") do named[word] = events[word] end
  end
  if reply then
    for _, event in ipairs(reply[2]) do listed[event] = true end
    if reply[4] then listed[reply[4]] = true end
  end
  if joined(named) ~= joined(listed) then fail("%s names %s, not %s", name, joined(named), joined(listed)) end
end

local function callReply(name, member, callee, reply)
  local names, answer, failure, received = table.unpack(reply, 2, 5)
  local operation = name:match("%w+$")
  local function call() callee(payload(member.params, newObject)) end
  call()
  for _, event in ipairs(names) do expected[#expected + 1] = { name, event } end
  if answer then
    offline.answer(operation, load("return " .. answer)())
    call()
    offline.answer(operation, nil)
  end
  if failure then expected[#expected + 1] = { name, failure, received and load("return " .. received)(), received } end
end

-- Calls every function that events follow, once with success and once with the failure that the reference names.
local function callReplies()
  local replies = {}
  for _, page in pairs(pages) do
    for _, reply in ipairs(page.replies or {}) do replies[reply[1]] = reply end
  end
  for event in pairs(events) do
    velora["setOn" .. event](function(value)
      if type(value) == "userdata" and value.get_orderStatus then value = value:get_orderStatus() end
      followed[#followed + 1] = { event, value }
    end)
  end
  local function visit(path, fields, live)
    for name, member in sortedPairs(fields) do
      if member.kind == "function" and not name:find("^[gs]etOn") then
        local reply = replies[path .. name]
        replies[path .. name] = nil
        compareNamedEvents(path .. name, member, reply)
        if reply then callReply(path .. name, member, live[name], reply) end
      end
    end
  end
  visit("", globals.velora.fields, velora)
  visit("download.", globals.velora.fields.download.fields, velora.download)
  for name in pairs(replies) do fail("the reference lists %s, which is not a function", name) end
end

local function compareReplies()
  for i = 1, math.max(#expected, #followed) do
    local name, event, received, isNamed = table.unpack(expected[i] or {}, 1, 4)
    local came, value = table.unpack(followed[i] or {}, 1, 2)
    local isSame = value == received or type(received) == "table" and type(value) == "table" and #value == 0
    if event ~= came or isNamed and not isSame then
      return fail("%s: %s (%s) follows, not %s (%s)", name, came, value, event, isNamed)
    end
  end
end

local function compareHandler()
  local calls, handler = {}, {}
  for _, field in ipairs(structures["velora.SyncDownloadHandler"]) do
    handler[field.name] = function(...) calls[#calls + 1] = table.pack(...) end
  end
  velora.download.setSyncDownloadHandler(handler)
  for _, field in ipairs(structures["velora.SyncDownloadHandler"]) do
    calls = {}
    local params = annotations.signature(field.type)
    offline.download(field.name, payload(params, record))
    offline.download(field.name)
    compareReceived(field.name, params, calls[1], calls[2])
  end
  velora.download.setSyncDownloadHandler()
end

-- Returns the results of a call, nil if it raised an error, and whether it reached the SDK.
local function try(callee, values, n)
  offline.calls()
  local results = table.pack(pcall(callee, table.unpack(values, 1, n)))
  local reached = #offline.calls() > 0
  if not results[1] then return nil, reached end
  return table.pack(table.unpack(results, 2, results.n)), reached
end

local function compareResults(name, returns, results)
  if not results then return fail("%s raises an error", name) end
  if results.n > #returns then fail("%s returns %d results, not %d", name, results.n, #returns) end
  for i, result in ipairs(returns) do
    if not fits(results[i], result.type) then fail("%s returns %s, not %s", name, results[i], result.type) end
  end
end

-- Calls a function with all arguments, with only the required ones, with one less, and without a result of the SDK.
local function compareFunction(name, operation, member, callee)
  local values, required = {}, 0
  for i, param in ipairs(member.params) do
    values[i] = sample(param.type, object)
    if not param.optional then required = i end
  end
  if name == operation then offline.answer(operation, nil) end -- raises an error if the runtime does not know it
  local function call(n)
    local results, reached = try(callee, values, n)
    compareResults(name, member.returns, results)
    if not reached then fail("%s does not reach the SDK", name) end
  end
  call(#values)
  call(required)
  if #member.overloads > 0 then call(0) end
  if required > 0 and #member.overloads == 0 and select(2, try(callee, values, required - 1)) then
    fail("%s does not need its %s", name, member.params[required].name)
  end
  if member.returns[1] and member.returns[1].type:find("^string") then
    offline.answer(operation, false)
    call(#values)
    offline.answer(operation, nil)
  end
end

-- A getter must return the type that its setter takes, and nil only if that is described and its operation fails.
local function compareAccessors(class, members)
  local self, new = object(class), newObject(class)
  for name, member in sortedPairs(members) do
    if name:find("^get_") then
      local result, setter = member.returns[1].type, name:gsub("^get", "set")
      if members[setter] then
        local value = sample(members[setter].params[2].type)
        compareResults(class .. "." .. setter, {}, try(self[setter], { self, value }, 2))
      end
      compareResults(class .. "." .. name, { { type = result:gsub("%?$", "") } }, try(self[name], { self }, 1))
      pcall(offline.answer, class .. "." .. name, false)
      local value = new[name](new)
      if (value == nil) ~= (result:sub(-1) == "?") then fail("%s.%s returns %s", class, name, value) end
      pcall(offline.answer, class .. "." .. name, nil)
    end
  end
end

-- Functions that do not call an SDK operation of the same name.
local ownRules = { getSyncDownloadHandler = true, ["ProductInfo.new"] = true }

local function compareFunctions()
  for name, member in sortedPairs(globals.velora.fields) do
    if member.kind == "function" and not name:find("^[gs]etOn") then
      compareFunction(name, name, member, velora[name])
    end
    if velora[name] and member.fields and name ~= "utils" then
      for inner, function_ in sortedPairs(member.fields) do
        local operation = name == "download" and inner or name .. "." .. inner:gsub("^new$", "New")
        if not inner:find("^[gs]et_") and not ownRules[inner] and not ownRules[name .. "." .. inner] then
          compareFunction(name .. "." .. inner, operation, function_, velora[name][inner])
        end
      end
      if name ~= "download" then compareAccessors(name, member.fields) end
    end
  end
end

compare("velora.", globals.velora.fields, velora)
local playerGlobals = annotations.globals(annotations.read("types/player.lua"))
for _, name in ipairs{ "player", "offline" } do compare(name .. ".", playerGlobals[name].fields, _G[name]) end
postEvents()
player.onFrame(function(frame)
  if frame == 1 then
    compareEvents()
    callReplies()
  elseif frame == 30 then -- all events have been delivered
    compareReplies()
    compareHandler()
    compareFunctions()
    player.quit(not failed)
  end
end)
