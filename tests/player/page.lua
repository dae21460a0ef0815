-- Plays every Lua snippet of a page and compares its output, of both streams, with the text block that follows it. A
-- snippet begins with a comment that names its file. If its output has reports or errors of callbacks, its status is 3.
-- Every C++ block must be equal to the file HOST. Usage: lua5.3 page.lua PAGE FOLDER HOST PLAYER...
local function read(name)
  local file = assert(io.open(name, "rb"))
  local text = file:read("a")
  file:close()
  return text
end

local page, folder, host = read(arg[1]), arg[2], read(arg[3])
local player = "'" .. table.concat(arg, "' '", 4) .. "'"
os.execute(("mkdir -p '%s'"):format(folder))

for block in page:gmatch("\n```cpp\n(.-\n)```\n") do assert(block == host, "a C++ block differs from " .. arg[3]) end

local snippets = 0
for snippet, rest in page:gmatch("\n```lua\n(.-\n)```\n()") do
  local name = assert(snippet:match("^%-%- ([a-z_]+%.lua)\n"), "a snippet does not name its file:\n" .. snippet)
  local expected = assert(page:match("^\n```text\n(.-)```\n", rest), "no text block follows " .. name)
  local file = assert(io.open(folder .. "/" .. name, "wb"))
  file:write(snippet)
  file:close()
  local output = io.popen(("cd '%s' && timeout 60 %s --strict --frames 600 %s 2>&1"):format(folder, player, name))
  local printed = output:read("a")
  local _, _, status = output:close()
  local reports = expected:find("[strict] ", 1, true) or expected:find("velora-play: error in ", 1, true)
  if status ~= (reports and 3 or 0) or printed ~= expected then
    error(("%s ended with %d and printed\n%s\ninstead of\n%s"):format(name, status, printed, expected), 0)
  end
  snippets = snippets + 1
end
assert(snippets > 0, arg[1] .. " has no snippets")
