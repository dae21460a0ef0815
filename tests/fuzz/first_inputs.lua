-- Writes the fuzzer's first inputs to FOLDER: programs that call every function with every set of valid arguments, and
-- programs that post every event.
local folder = assert(arg[1], "usage: lua5.3 first_inputs.lua FOLDER")
local FRAME, CALL, LISTEN, COLLECT, POST = 0, 6, 9, 11, 12
local FUNCTIONS, PATTERNS, EVENTS, CALLBACKS = 1024, 20, 256, 11 -- upper bounds

local function write(name, bytes)
  local file = assert(io.open(folder .. "/" .. name, "wb"))
  file:write(string.char(table.unpack(bytes)))
  file:close()
end

for pattern = 0, PATTERNS - 1 do
  for first = 0, FUNCTIONS - 1, 512 do
    local bytes = {}
    for f = first, first + 511 do
      for _, byte in ipairs{CALL, f % 256, f // 256, pattern} do bytes[#bytes + 1] = byte end
    end
    write("calls-" .. pattern .. "-" .. first, bytes)
  end
end

for callback = 0, CALLBACKS - 1 do
  local bytes = {LISTEN, callback}
  for type = 0, EVENTS - 1 do
    for _, byte in ipairs{POST, type, 1} do bytes[#bytes + 1] = byte end
  end
  bytes[#bytes + 1], bytes[#bytes + 2] = FRAME, COLLECT
  write("events-" .. callback, bytes)
end
