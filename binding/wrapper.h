// One template for the wrappers whose rules follow from their SDK operation's type: it tests and reads the Lua
// arguments, calls the operation and pushes its result. A registration row then only names the operation.
#pragma once

#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

#include "binding/boundary.h"
#include "binding/conversions.h"
#include "platform/types.h"

namespace luavelora {

// How a Lua argument becomes a parameter of one type. `Test` returns whether the argument may be read. `Read` returns a
// view of it, which owns nothing; a view that is a pointer is null if the argument is wrong. `Make` returns the SDK's
// value for a view.
template <class Type>
struct Parameter;

struct TextParameter {
  using View = const char*;
  static bool Test(lua_State*, int) { return true; }
  static View Read(lua_State* L, int index) { return TextArgument(L, index); }
};

template <>
struct Parameter<const std::string&> : TextParameter {
  static std::string Make(View view) { return view; }
};

template <>
struct Parameter<const char*> : TextParameter {
  static const char* Make(View view) { return view; }
};

template <>
struct Parameter<std::int32_t> {
  using View = std::int32_t;
  static bool Test(lua_State* L, int index) { return lua_isinteger(L, index) != 0; }
  static View Read(lua_State* L, int index) { return Low32(lua_tointeger(L, index)); }
  static std::int32_t Make(View view) { return view; }
};

template <>
struct Parameter<double> {
  using View = double;
  static bool Test(lua_State* L, int index) { return lua_isnumber(L, index) != 0; }
  static View Read(lua_State* L, int index) { return lua_tonumber(L, index); }
  static double Make(View view) { return view; }
};

template <>
struct Parameter<bool> {
  using View = bool;
  static bool Test(lua_State* L, int index) { return lua_isboolean(L, index); }
  static View Read(lua_State* L, int index) { return lua_toboolean(L, index) != 0; }
  static bool Make(View view) { return view; }
};

// Pushes what an operation returned and returns it as the single result. Null and the empty string are no result.
inline Outcome PushResult(lua_State* L, bool value) {
  lua_pushboolean(L, value);
  return Outcome::Results(1);
}
inline Outcome PushResult(lua_State* L, std::int32_t value) {
  lua_pushinteger(L, value);
  return Outcome::Results(1);
}
inline Outcome PushResult(lua_State* L, const char* text) {
  if (text == nullptr || *text == '\0') return Outcome::Results(0);
  lua_pushstring(L, text);
  return Outcome::Results(1);
}

// Whether a view points to an object, which script code may finalize.
template <class View>
inline constexpr bool kIsObject = std::is_pointer_v<View> && !std::is_same_v<View, const char*>;

// Returns whether Read found the argument to be wrong.
template <class View>
bool IsMissing(const View& view) {
  if constexpr (std::is_pointer_v<View>) return view == nullptr;
  return false;
}

// Tests the arguments, reads them, calls `use(views...)` with the views of all parameters and returns its outcome.
// Returns a refusal if an argument is wrong.
template <class... Parameters, class Use>
Outcome WithArguments(lua_State* L, Use use) {
  static_assert(sizeof...(Parameters) < 2 || !(kIsObject<typename Parameter<Parameters>::View> || ...),
                "reading a string after an object may finalize the object");
  return [&]<std::size_t... i>(std::index_sequence<i...>) {
    if (!(Parameter<Parameters>::Test(L, static_cast<int>(i) + 1) && ...)) return Refusal();
    const std::tuple<typename Parameter<Parameters>::View...> views{
        Parameter<Parameters>::Read(L, static_cast<int>(i) + 1)...};
    if ((IsMissing(std::get<i>(views)) || ...)) return Refusal();
    return use(std::get<i>(views)...);
  }
  (std::index_sequence_for<Parameters...>());
}

// Calls an operation with the script's arguments and returns the outcome. There is an overload for each kind of type.
template <class... Parameters>
Outcome CallOperation(lua_State* L, void (*operation)(Parameters...)) {
  return WithArguments<Parameters...>(L, [operation](auto... views) {
    operation(Parameter<Parameters>::Make(views)...);
    return Outcome::Results(0);
  });
}

template <class Result, class... Parameters>
Outcome CallOperation(lua_State* L, Result (*operation)(Parameters...)) {
  static_assert(std::is_arithmetic_v<Result> || sizeof...(Parameters) == 0,
                "a string is pushed while nothing is owned");
  return WithArguments<Parameters...>(
      L, [L, operation](auto... views) { return PushResult(L, operation(Parameter<Parameters>::Make(views)...)); });
}

inline Outcome CallOperation(lua_State* L, bool (*operation)(std::string&)) { return TextResult(L, operation); }

inline Outcome CallOperation(lua_State* L, bool (*operation)(const std::string&, std::string&)) {
  return WithArguments<const std::string&>(L, [L, operation](const char* text) {
    return TextResult(L, [=](std::string& out) { return operation(text, out); });
  });
}

// Raised for a list argument that is not a table. The wording is part of the interface.
inline constexpr const char* kNeedsTable = "ptrmust be table";

inline Outcome CallOperation(lua_State* L, void (*operation)(const tarn::velora::StringList&)) {
  if (!lua_istable(L, 1)) return Outcome::Error(kNeedsTable);
  std::int32_t length = 0;
  if (const char* error = ClaimedLength(L, 1, length)) return Outcome::Error(error);
  operation(ReadStringList(L, 1, length));
  return Outcome::Results(0);
}

template <auto operation>
Outcome Wrapper(lua_State* L) {
  return CallOperation(L, operation);
}

}  // namespace luavelora
