#include "player/call_text.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <string_view>

#include "platform/binding_helpers.h"
#include "platform/record_classes.h"

namespace player {
namespace {

constexpr struct {
  const char* name;
  const char* metatable;
} kClasses[] = {
#define VELORA_CLASS(Record, luaName) {luaName, tarn::velora::ClassNames<tarn::velora::Record>::kMetatable},
#include "platform/records.def"
};

// Appends to a buffer, truncating what does not fit.
class Line {
 public:
  explicit Line(CallText& text) : text_(text) { text_[0] = '\0'; }

  void Add(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    const int length = std::vsnprintf(text_ + length_, sizeof text_ - length_, format, arguments);
    va_end(arguments);
    if (length > 0) length_ = std::min(length_ + static_cast<std::size_t>(length), sizeof text_ - 1);
  }

 private:
  CallText& text_;
  std::size_t length_ = 0;
};

// Adds `text` with its control bytes and the characters of `marks` escaped as in Lua source.
void AddEscaped(Line& line, std::string_view text, std::string_view marks) {
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    if (character == '\n')
      line.Add("\\n");
    else if (byte < 0x20 || byte == 0x7f)
      line.Add("\\%03u", static_cast<unsigned>(byte));
    else
      line.Add(marks.find(character) == marks.npos ? "%c" : "\\%c", character);
  }
}

// Adds `text` in quotes. A long string is cut between two UTF-8 characters and ends in dots.
void AddQuoted(Line& line, std::string_view text) {
  constexpr std::size_t kLongest = 48;
  std::size_t length = std::min(text.size(), kLongest);
  if (length < text.size())
    while (length > 0 && (static_cast<unsigned char>(text[length]) & 0xc0U) == 0x80U) --length;
  line.Add("\"");
  AddEscaped(line, text.substr(0, length), "\"\\");
  line.Add(length < text.size() ? "...\"" : "\"");
}

// Adds `number` as Lua prints a float, with ".0" if it looks like an integer.
void AddFloat(Line& line, double number) {
  char text[32];
  std::snprintf(text, sizeof text, "%.14g", number);
  line.Add(text[std::strspn(text, "-0123456789")] == '\0' ? "%s.0" : "%s", text);
}

void AddObject(Line& line, lua_State* L, int index) {
  const char* name = ClassName(L, index);
  if (name == nullptr)
    line.Add("userdata");
  else
    line.Add(FromUserType(L, index) == nullptr ? "finalized %s" : "%s", name);
}

void AddValue(Line& line, lua_State* L, int index) {
  std::size_t length = 0;
  switch (lua_type(L, index)) {
    case LUA_TBOOLEAN:
      return line.Add(lua_toboolean(L, index) != 0 ? "true" : "false");
    case LUA_TNUMBER:
      if (!lua_isinteger(L, index)) return AddFloat(line, lua_tonumber(L, index));
      return line.Add("%lld", static_cast<long long>(lua_tointeger(L, index)));
    case LUA_TSTRING: {
      const char* text = lua_tolstring(L, index, &length);
      return AddQuoted(line, {text, length});
    }
    case LUA_TUSERDATA:
      return AddObject(line, L, index);
    default:
      return line.Add("%s", luaL_typename(L, index));
  }
}

// Adds the position in the script that made the running call. Scripts compiled without line numbers show `?`.
void AddPosition(Line& line, lua_State* L) {
  lua_Debug caller;
  for (int level = 1; lua_getstack(L, level, &caller) != 0; ++level) {
    lua_getinfo(L, "Sl", &caller);
    if (*caller.what == 'C') continue;
    AddEscaped(line, caller.short_src, "");
    return caller.currentline > 0 ? line.Add(":%d", caller.currentline) : line.Add(":?");
  }
  line.Add("[C]");
}

}  // namespace

const char* ClassName(lua_State* L, int index) {
  for (const auto& [name, metatable] : kClasses)
    if (CheckMetaTableInUserType(L, index, metatable)) return name;
  return nullptr;
}

void DescribePosition(lua_State* L, CallText& text) {
  Line line(text);
  AddPosition(line, L);
}

void DescribeCall(lua_State* L, const char* function, CallText& text) {
  Line line(text);
  AddPosition(line, L);
  line.Add(": %s(", function);
  for (int i = 1; i <= lua_gettop(L); ++i) {
    if (i > 1) line.Add(", ");
    AddValue(line, L, i);
  }
  line.Add(")");
}

}  // namespace player
