// Overloads of Read convert Lua values to the C++ types of payload fields.
#include "player/event_maker.h"

#include <cstdint>
#include <limits>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "offline/control.h"
#include "platform/binding_helpers.h"
#include "platform/record_classes.h"
#include "player/arguments.h"
#include "player/suggest.h"
#include "records/holder.h"

namespace player {
namespace {

using namespace tarn::velora;

// A value on the Lua stack: an argument, or an element of one.
struct Value {
  lua_State* L;
  int index;
  int argument;           // for error messages, the argument's number
  std::string part = {};  // and the path to the element, "element 2, field 'aid'"
};

[[noreturn]] void Fail(const Value& value, const std::string& text) {
  throw ArgumentError(value.argument, value.part.empty() ? text : value.part + ": " + text);
}

[[noreturn]] void FailType(const Value& value, const std::string& expected) {
  Fail(value, TypeMismatch(value.L, value.index, expected.c_str()));
}

// Returns the value on top of the stack, which is the element `part` of `whole`.
Value ElementOnTop(const Value& whole, const std::string& part) {
  return {whole.L, lua_gettop(whole.L), whole.argument, whole.part.empty() ? part : whole.part + ", " + part};
}

int TypeOf(const Value& value) { return lua_type(value.L, value.index); }

void Read(const Value& value, lua_Integer& field) {
  if (!ToInteger(value.L, value.index, field)) FailType(value, "integer");
}

// Takes the low 32 bits.
void Read(const Value& value, std::int32_t& field) {
  lua_Integer integer = 0;
  Read(value, integer);
  field = static_cast<std::int32_t>(static_cast<std::uint32_t>(integer));
}

// Takes a boolean, or the raw byte, so that scripts can test values other than 0 and 1.
void Read(const Value& value, std::uint8_t& field) {
  if (TypeOf(value) == LUA_TBOOLEAN) {
    field = lua_toboolean(value.L, value.index) != 0 ? 1 : 0;
    return;
  }
  if (TypeOf(value) != LUA_TNUMBER) FailType(value, "boolean or integer");
  lua_Integer integer = 0;
  Read(value, integer);
  if (integer < 0 || integer > std::numeric_limits<std::uint8_t>::max())
    Fail(value, "integer from 0 to 255 expected, got " + std::to_string(integer));
  field = static_cast<std::uint8_t>(integer);
}

void Read(const Value& value, float& field) {
  if (TypeOf(value) != LUA_TNUMBER) FailType(value, "number");
  field = static_cast<float>(lua_tonumber(value.L, value.index));
}

void Read(const Value& value, std::string& field) {
  if (TypeOf(value) != LUA_TSTRING) FailType(value, "string");
  std::size_t length = 0;
  const char* text = lua_tolstring(value.L, value.index, &length);
  field.assign(text, length);
}

void Read(const Value& value, std::optional<std::string>& field) { Read(value, field.emplace()); }

template <class Record>
void Read(const Value& value, std::shared_ptr<Record>& field);

// The length of a table with gaps may be any number.
constexpr std::size_t kMaxLength = 1 << 20;

template <class Element>
void Read(const Value& value, std::vector<Element>& field) {
  if (TypeOf(value) != LUA_TTABLE) FailType(value, "table");
  const std::size_t length = lua_rawlen(value.L, value.index);
  if (length > kMaxLength) Fail(value, "list of at most " + std::to_string(kMaxLength) + " elements expected");
  for (std::size_t i = 1; i <= length; ++i) {
    lua_rawgeti(value.L, value.index, static_cast<lua_Integer>(i));
    Read(ElementOnTop(value, "element " + std::to_string(i)), field.emplace_back());
    lua_pop(value.L, 1);
  }
}

// Calls `visit(key, value)` for every pair of a table whose keys are strings.
template <class Visitor>
void ForEachPair(const Value& table, Visitor visit) {
  lua_pushnil(table.L);
  while (lua_next(table.L, table.index) != 0) {
    if (lua_type(table.L, -2) != LUA_TSTRING)
      Fail(table, "table with string keys expected, got " + std::string(luaL_typename(table.L, -2)) + " as a key");
    const std::string key = lua_tostring(table.L, -2);
    visit(key, ElementOnTop(table, "field '" + key + "'"));
    lua_pop(table.L, 1);
  }
}

void Read(const Value& value, offline::FieldScalar& field) {
  switch (TypeOf(value)) {
    case LUA_TBOOLEAN:
      field = lua_toboolean(value.L, value.index) != 0;
      break;
    case LUA_TNUMBER:
      if (lua_isinteger(value.L, value.index)) {
        field = std::int64_t{lua_tointeger(value.L, value.index)};
      } else {
        field = double{lua_tonumber(value.L, value.index)};
      }
      break;
    case LUA_TSTRING:
      Read(value, field.emplace<std::string>());
      break;
    default:
      FailType(value, "boolean, number or string");
  }
}

// A table with an element 1 is a list, any other table a map.
offline::FieldValue ReadFieldValue(const Value& value) {
  if (TypeOf(value) != LUA_TTABLE) {
    offline::FieldScalar scalar;
    Read(value, scalar);
    return scalar;
  }
  const bool isList = lua_rawgeti(value.L, value.index, 1) != LUA_TNIL;
  lua_pop(value.L, 1);
  if (isList) {
    offline::FieldList list;
    Read(value, list);
    return list;
  }
  offline::FieldMap map;
  ForEachPair(value, [&](const std::string& key, const Value& element) { Read(element, map[key]); });
  return map;
}

// The runtime's function that makes a record from its fields.
template <class Record>
constexpr std::shared_ptr<Record> (*kMake)(const offline::Fields&) = nullptr;
template <>
constexpr auto kMake<OrderInfo> = &offline::MakeOrder;
template <>
constexpr auto kMake<AccountInfo> = &offline::MakeAccount;
template <>
constexpr auto kMake<SkuDetailsInfo> = &offline::MakeSku;
template <>
constexpr auto kMake<PadRecord> = &offline::MakePad;

template <class Record>
std::shared_ptr<Record> MakeRecord(const Value& table) {
  offline::Fields fields;
  ForEachPair(table, [&](const std::string& name, const Value& value) { fields.emplace(name, ReadFieldValue(value)); });
  try {
    return kMake<Record>(fields);
  } catch (const std::invalid_argument& error) {
    Fail(table, error.what());
  }
}

// Takes a userdata of the class, whose record the event then shares, or a table of fields. Nil is a null reference; so
// is false, which unlike nil can be an element of a list.
template <class Record>
void Read(const Value& value, std::shared_ptr<Record>& field) {
  if (lua_toboolean(value.L, value.index) == 0) {
    field.reset();
  } else if (TypeOf(value) == LUA_TTABLE) {
    field = MakeRecord<Record>(value);
  } else if (CheckMetaTableInUserType(value.L, value.index, ClassNames<Record>::kMetatable)) {
    const auto* holder = luavelora::HolderIn<Record>(lua_touserdata(value.L, value.index));
    if (holder == nullptr) Fail(value, ClassNames<Record>::kName + std::string(" expected, got a finalized object"));
    field = holder->record;
  } else {
    FailType(value, ClassNames<Record>::kName + std::string(", table of its fields or nil"));
  }
}

// Reads the payload arguments of offline.post in order.
class Payload {
 public:
  Payload(lua_State* L, int first) : L_(L), next_(first) {}

  template <class Field>
  void Read(Field& field) {
    if (!lua_isnoneornil(L_, next_)) player::Read(Value{L_, next_, next_}, field);
    ++next_;
  }

  // Refuses further arguments, which are a mistake in the script.
  void CheckEnd() const {
    if (next_ <= lua_gettop(L_)) throw ArgumentError(next_, TypeMismatch(L_, next_, "no value"));
  }

 private:
  lua_State* L_;
  int next_;
};

// An event with storage for the bytes that it points to.
template <class Layout>
struct EventWithBytes : Layout {
  using Layout::Layout;
  std::optional<std::string> storage;
  ByteBlock block{};
};

template <class Layout, class Field>
void Fill(EventWithBytes<Layout>&, Payload& payload, Field& field) {
  payload.Read(field);
}

// Keeps the pointer null if no bytes are given.
template <class Layout>
void Fill(EventWithBytes<Layout>& event, Payload& payload, const ByteBlock*& field) {
  payload.Read(event.storage);
  if (!event.storage) return;
  event.block = {reinterpret_cast<const unsigned char*>(event.storage->data()), event.storage->size()};
  field = &event.block;
}

template <class Layout>
std::shared_ptr<Event> Make(std::int32_t type, Payload& payload) {
  auto event = std::make_shared<EventWithBytes<Layout>>(type);
  std::apply([&](auto... field) { (Fill(*event, payload, (*event).*field), ...); }, kPayload<Layout>);
  return event;
}

struct EventRow {
  std::int32_t type;
  std::string_view name;
  std::shared_ptr<Event> (*make)(std::int32_t type, Payload& payload);
};

constexpr EventRow kEvents[] = {
#define VELORA_EVENT(number, name, layout) {number, #name, Make<layout>},
#include "platform/events.def"
};

// Returns the row of the event whose name or number is at `index`. An unknown number gets a row without a payload.
EventRow FindRow(lua_State* L, int index) {
  if (lua_type(L, index) == LUA_TSTRING) {
    const std::string_view name = CheckString(L, index);
    Suggestion suggestion(name);
    for (const EventRow& row : kEvents) {
      if (row.name == name) return row;
      suggestion.Consider(row.name);
    }
    throw ArgumentError(index, "invalid event '" + std::string(name) + "'" + suggestion.Text());
  }
  if (lua_type(L, index) != LUA_TNUMBER) throw ArgumentError(index, TypeMismatch(L, index, "event name or number"));
  const lua_Integer number = CheckInteger(L, index);
  using Limits = std::numeric_limits<std::int32_t>;
  if (number < Limits::min() || number > Limits::max())
    throw ArgumentError(index, "32-bit integer expected, got " + std::to_string(number));
  for (const EventRow& row : kEvents)
    if (row.type == number) return row;
  return {static_cast<std::int32_t>(number), {}, Make<PlainEvent>};
}

}  // namespace

std::shared_ptr<Event> MakeEvent(lua_State* L) {
  const EventRow row = FindRow(L, 1);
  Payload payload(L, 2);
  std::shared_ptr<Event> event = row.make(row.type, payload);
  payload.CheckEnd();
  return event;
}

}  // namespace player
