-- Keeps in `got` what a callback receives; an object is replaced by the name of the class whose getters return
-- something for it, a zero byte by 0.
local function name(v)
  if type(v) == "string" then return (v:gsub("\0", "0")) end
  if type(v) == "table" then local t = {} for k, e in pairs(v) do t[k] = name(e) end return t end
  if type(v) ~= "userdata" then return v end
  local names = {}
  for class, functions in pairs(velora) do
    local results = 0
    for key, f in pairs(type(functions) == "table" and functions or {}) do
      if key:find("^get_") then results = results + select("#", f(v)) end
    end
    if results > 0 then names[#names + 1] = class end
  end
  return table.concat(names, "+")
end

function receive(...)
  got = table.pack(...)
  for i = 1, got.n do got[i] = name(got[i]) end
end
