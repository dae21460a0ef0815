-- Returns the annotated globals for luacheck: a table for `stds` for each annotation file in this folder, by name. In a
-- .luacheckrc:
--
--   stds.velora = dofile("types/luacheck.lua").velora
--   std = "lua53+velora"
local folder = debug.getinfo(1, "S").source:match("^@(.*)luacheck%.lua$")
local annotations = dofile(folder .. "annotations.lua")

local function define(fields)
  local definition = {}
  for name, member in pairs(fields) do
    -- Any field of a constant may be read, since strings have methods.
    definition[name] = member.fields and { fields = define(member.fields) } or { other_fields = true }
  end
  return definition
end

local stds = {}
for _, name in ipairs{ "velora", "player" } do
  stds[name] = { read_globals = define(annotations.globals(annotations.read(folder .. name .. ".lua"))) }
end
return stds
