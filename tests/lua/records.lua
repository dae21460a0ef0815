-- What is set and what is read back, by accessor family.
local long, single = ("y"):rep(5000), string.unpack("f", string.pack("f", 0.1))
local none = {} -- means no result
local roundTrips = {
  String = {{"text", "text"}, {12, "12"}, {1.5, "1.5"}, {"ab\0c", "ab"}, {nil, ""}, {"x", "x"}, {{}, ""}, {true, ""},
    {long, long}},
  Int = {{7, 7}, {-1, -1}, {2^32 + 5, 5}, {(1 << 62) + 3, 3}, {2.5, 0}, {"7", 7}, {"x", 0}, {3.0, 3}, {nil, 0}, {{}, 0},
    {1 << 31, -(1 << 31)}},
  Int64 = {{(1 << 53) + 1, (1 << 53) + 1}, {math.mininteger, math.mininteger}, {2.5, 0}, {"9", 9}},
  Float = {{0.5, 0.5}, {0.1, single}, {3, 3.0}, {"2.5", 2.5}, {{}, 0.0}, {nil, 0.0}, {1e300, math.huge}},
  Double = {{0.1, 0.1}, {"2.5", 2.5}, {true, 0.0}, {1e300, 1e300}},
  Bool = {{0, true}, {nil, false}, {"", true}, {false, false}},
  CachedIntMap = {{{a = 2^32 + 3, b = "x", c = 2.0, d = "7", e = 1 << 62 | 5, [{}] = 1},
    {a = 3, b = 0, c = 2, d = 7, e = 5}},
    {{5, ["1"] = 7}, {["1"] = 7}}, {{}, {}}},
  CachedMap = {{{a = "x", b = {}, c = 3, [true] = "y", [1.5] = "z", [2] = false}, {["1.5"] = "z", a = "x", c = "3"}},
    {{"a", "b"}, {["1"] = "a", ["2"] = "b"}}, {{"first", ["1"] = "later"}, {["1"] = "later"}},
    {{["k\0x"] = "v\0w"}, {k = "v"}}, {{}, {}}},
  RecordMap = {{{a = "1", c = true}, {a = "1"}}, {{}, none}},
  CachedList = {{{"a", 1 << 53 | 1}, {"a", "9007199254740993"}}, {{"a", true, "b"}, {"a", "b"}}, {{}, {}}},
  StrictList = {{{"a", 5}, {"a", "5"}}, {{}, {}}},
}

local function same(a, b)
  if type(a) ~= "table" or type(b) ~= "table" then return a == b and math.type(a) == math.type(b) end
  for key, value in pairs(a) do if not same(value, b[key]) then return false end end
  for key in pairs(b) do if a[key] == nil then return false end end
  return true
end

local functions, object

-- The class of the fields that follow.
function setClass(class) functions, object = velora[class], objects[class] end

-- Sets a field to each value of its family and reads it back.
function checkField(field, family, readOnly)
  local get, set = functions["get_" .. field], functions["set_" .. field]
  assert(type(get) == "function" and type(set) == (readOnly and "nil" or "function"), field)
  if readOnly then return end
  assert(roundTrips[family], family .. " has no row of values in records.lua")
  for i, row in ipairs(roundTrips[family]) do
    assert(select("#", set(object, row[1])) == 0, field)
    local got = table.pack(object["get_" .. field](object, 1))
    local expected = row[2] == none and {n = 0} or {n = 1, row[2]}
    assert(same(got, expected), ("%s, value %d: %s"):format(field, i, got[1]))
  end
end

-- Calls every class function that takes an object with no argument and with each of `selves`, objects of the class
-- itself left out; none may return a result.
function callAll(selves)
  for name, class in pairs(velora) do
    if type(class) == "table" and class.__gc then
      for key, f in pairs(class) do
        if key ~= "new" and not key:find("Product") or key:find("^[sg]et_") then
          if select("#", f()) ~= 0 then error(key) end
          for of, self in pairs(selves) do
            local n = of ~= name and select("#", f(self, 1, 2)) or 0
            if n ~= 0 then error(("%s.%s gave %d for %s"):format(name, key, n, of)) end
          end
        end
      end
    end
  end
end
