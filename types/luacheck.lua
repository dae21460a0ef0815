-- What luacheck has to know of the annotated globals: for each annotation file a table for its `stds`. The folder of
-- this file is where the others are looked for. In a .luacheckrc:
--
--   stds.velora = dofile("types/luacheck.lua").velora
--   std = "lua53+velora"
local folder = debug.getinfo(1, "S").source:match("^@(.*)luacheck%.lua$")
local annotations = dofile(folder .. "annotations.lua")

local function define(fields)
  local definition = {}
  for name, member in pairs(fields) do
    -- A string has methods, so anything may be read of a constant.
    definition[name] = member.fields and { fields = define(member.fields) } or { other_fields = true }
  end
  return definition
end

local stds = {}
for _, name in ipairs{ "velora", "player" } do
  stds[name] = { read_globals = define(annotations.globals(annotations.read(folder .. name .. ".lua"))) }
end
return stds
