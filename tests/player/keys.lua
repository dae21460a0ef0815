-- Every key of the module table with its kind, and the values of the module's own integers.
local function kind(key, value)
  if type(value) == "table" then
    local names = {}
    for name in pairs(value) do names[#names + 1] = name end
    table.sort(names)
    return "table " .. table.concat(names, " ")
  end
  local own = key:find("^CODE_SCANNER_") or key:find("^CONNECT_") or key:find("^FINISH_INIT_") or key:find("^LOGIN_DONE_")
    or key:find("^LOGOUT_DONE_") or key:find("^PROTOCOL_FINISH_") or key:find("^PAD_")
    or key:find("^ORDER_S_") or key:find("^ORDER_ZV_") or key:find("^PRODUCT_TYPE_")
  return math.type(value) == "integer" and own and "integer " .. value or math.type(value) or type(value)
end

local lines = {}
for key, value in pairs(velora) do lines[#lines + 1] = key .. " " .. kind(key, value) end
table.sort(lines)
print(table.concat(lines, "\n"))
player.quit()
