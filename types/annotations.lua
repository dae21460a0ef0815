-- Reads annotation files in the form of velora.lua, for the reference, the luacheck globals and the tests.
local annotations = {}

-- Returns the type at the start of `text`, and the rest of `text`. A space ends a type, except inside brackets and
-- before the result of a function type.
local function takeType(text)
  local depth, i = 0, 1
  while i <= #text do
    local char = text:sub(i, i)
    if char:find("[%(<]") then
      depth = depth + 1
    elseif char:find("[%)>]") then
      depth = depth - 1
    elseif char == " " and depth == 0 and text:sub(i - 2, i - 1) ~= "):" then
      break
    end
    i = i + 1
  end
  return text:sub(1, i - 1), text:sub(i):match("^%s*(.*)$")
end

-- Splits `text` at the commas that are not inside brackets.
local function splitAtCommas(text)
  local parts, depth, first = {}, 0, 1
  for i = 1, #text + 1 do
    local char = text:sub(i, i)
    if char:find("[%(<]") then depth = depth + 1 end
    if char:find("[%)>]") then depth = depth - 1 end
    if (char == "," and depth == 0) or i > #text then
      parts[#parts + 1] = text:sub(first, i - 1):match("^%s*(.-)%s*$")
      first = i + 1
    end
  end
  return parts[1] == "" and {} or parts
end

-- Returns the description of a parameter, whose name ends with `?` if it is optional.
local function parameter(name, type, text)
  local bare, mark = name:match("^([%w_.]+)(%??)$")
  return { name = bare, type = type, optional = mark == "?", text = text }
end

-- Returns the parameters and results of a function type, `fun(a: T, b?: U): V`, or nil if it is another type.
function annotations.signature(type)
  local list, result = type:match("^fun(%b()):?%s*(.*)$")
  if not list then return nil end
  local params = {}
  for i, part in ipairs(splitAtCommas(list:sub(2, -2))) do
    local name, paramType = part:match("^(.-):%s*(.+)$")
    params[i] = parameter(name, paramType)
  end
  return params, result ~= "" and { { type = result } } or {}
end

-- The function that adds each tag to the current block.
local tags = {
  class = function(block, rest) block.class = { kind = "class", name = rest, fields = {}, text = block.text } end,
  alias = function(block, rest)
    local name, type = rest:match("^(%S+)%s+(.+)$")
    block.alias = { kind = "alias", name = name, type = type, text = block.text }
  end,
  field = function(block, rest)
    local name, tail = rest:match("^(%S+)%s+(.+)$")
    local type, text = takeType(tail)
    table.insert(block.class.fields, { name = name, type = type, text = text })
  end,
  param = function(block, rest)
    local name, tail = rest:match("^(%S+)%s+(.+)$")
    table.insert(block.params, parameter(name, takeType(tail)))
  end,
  ["return"] = function(block, rest)
    local type, tail = takeType(rest)
    local name, text = tail:match("^(%S*)%s*(.*)$")
    table.insert(block.returns, { type = type, name = name, text = text })
  end,
  overload = function(block, rest) table.insert(block.overloads, rest) end,
  meta = function() end,
}

local function newBlock() return { text = "", params = {}, returns = {}, overloads = {} } end

local function addComment(block, line)
  local tag, rest = line:match("^%-%-%-@(%w+)%s*(.*)$")
  if tag then
    assert(tags[tag], "unknown tag: " .. line)(block, rest)
  else
    block.text = (block.text == "" and "" or block.text .. " ") .. line:sub(4)
  end
end

local function functionItem(block, owner, separator, name)
  if separator == ":" then
    table.insert(block.params, 1, { name = "self", type = owner, optional = false, text = "" })
  end
  return { kind = "function", owner = owner, name = name, method = separator == ":", params = block.params,
    returns = block.returns, overloads = block.overloads, text = block.text }
end

-- Adds the items of a block of comments and the line of code below it.
local function finish(items, block, line)
  if block.alias then items[#items + 1] = block.alias end
  local owner, separator, name = line:match("^function ([%w_.]+)([.:])([%w_]+)%(")
  local value = line:match("^([%w_.]+) = {}$")
  assert(not (block.alias and owner), "editors show the description for the alias, not the function: " .. line)
  assert(owner or value or line == "", "unknown syntax: " .. line)
  if owner then
    items[#items + 1] = functionItem(block, owner, separator, name)
  elseif value then
    local class = block.class or { kind = "class", fields = {}, text = block.text }
    class.value = value
    items[#items + 1] = class
  elseif block.class then
    items[#items + 1] = block.class
  end
end

-- Returns the items of an annotation file in their order. By kind:
--   heading    level, title, text: a comment that begins with one to three #, up to the next blank line
--   class      name, text, fields {name, type, text}; value: the table that is declared with it, if any
--   alias      name, type, text
--   function   owner, name, method, text, params {name, type, optional, text}, returns {type, name, text}, overloads
function annotations.read(path)
  local items, block, heading = {}, newBlock(), nil
  for line in io.lines(path) do
    line = line:gsub("\r$", "")
    local marks, title = line:match("^%-%- (#+) (.+)$")
    if marks then
      heading = { kind = "heading", level = #marks, title = title, text = {} }
      items[#items + 1] = heading
    elseif line:find("^%-%-%-") then
      addComment(block, line)
    elseif line:find("^%-%-") then
      table.insert(assert(heading, "a comment outside a heading: " .. line).text, line:match("^%-%-%s?(.*)$"))
    else
      finish(items, block, line)
      block, heading = newBlock(), nil
    end
  end
  finish(items, block, "")
  return items
end

local function tableOf(globals, path)
  local node = { fields = globals }
  for name in path:gmatch("[^.]+") do
    node.fields[name] = node.fields[name] or { kind = "table", fields = {} }
    node = node.fields[name]
  end
  return node
end

local function member(field)
  local params, returns = annotations.signature(field.type)
  if params then return { kind = "function", params = params, returns = returns, text = field.text } end
  return { kind = "constant", type = field.type, text = field.text }
end

-- Returns the described global tables by name. Members are {kind = "table", fields}, {kind = "function", params,
-- returns, text} or {kind = "constant", type, text}. Classes without a table are omitted.
function annotations.globals(items)
  local globals, values = {}, {}
  for _, item in ipairs(items) do
    if item.kind == "class" and item.value then
      values[item.name or item.value] = item.value
      tableOf(globals, item.value)
    end
  end
  for _, item in ipairs(items) do
    if item.kind == "function" then
      local fields = tableOf(globals, item.owner).fields
      assert(not fields[item.name], "declared twice: " .. item.name)
      fields[item.name] = item
    elseif item.kind == "class" and values[item.name] then
      local fields = tableOf(globals, values[item.name]).fields
      for _, field in ipairs(item.fields) do
        assert(not fields[field.name], "declared twice: " .. field.name)
        fields[field.name] = member(field)
      end
    end
  end
  return globals
end

return annotations
