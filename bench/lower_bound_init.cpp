// The lower bound of the module's start. The functions behind the rows are one and the same; what counts is storing
// them.
#include "bench/lower_bound.h"
#include "platform/const_prop.h"
#include "platform/log.h"
#include "platform/operations.h"
#include "platform/query_rank_info.h"
#include "platform/share_info.h"
#include "wrappers/registration.h"

namespace bench {
namespace {

using namespace tarn::velora;

int Function(lua_State*) { return 0; }

#define VELORA_FIELD(name, family) {"get_" #name, Function}, {"set_" #name, Function},
#define VELORA_FIELD_READ_ONLY(name, family) {"get_" #name, Function},
#define CLASS_FUNCTIONS {"new", Function}, {"__gc", Function}, {"__tostring", Function},

const luaL_Reg kProductRows[] = {
    CLASS_FUNCTIONS
#include "platform/product_info.def"
    {nullptr, nullptr},
};

const luaL_Reg kOrderRows[] = {
#include "platform/order_info.def"
    CLASS_FUNCTIONS{"getProductList", Function},
    {"hasProduct", Function},
    {"regProduct", Function},
    {"getProductType", Function},
    {"setProductType", Function},
    {"obj2Json", Function},
    {"produceCartInfo", Function},
    {nullptr, nullptr},
};

const luaL_Reg kQueryRows[] = {
    CLASS_FUNCTIONS
#include "platform/query_rank_info.def"
    {nullptr, nullptr},
};

const luaL_Reg kShareRows[] = {
    CLASS_FUNCTIONS
#include "platform/share_info.def"
    {nullptr, nullptr},
};

const luaL_Reg kAccountRows[] = {
    CLASS_FUNCTIONS
#include "platform/account_info.def"
    {nullptr, nullptr},
};

const luaL_Reg kSkuRows[] = {
    CLASS_FUNCTIONS
#include "platform/sku_details_info.def"
    {nullptr, nullptr},
};

const luaL_Reg kPadRows[] = {
    {"__gc", Function},
#include "platform/pad_record.def"
    {nullptr, nullptr},
};

const luaL_Reg kDownloadRows[] = {
    {"init", Function},
    {"query", Function},
    {"extendFunc", Function},
    {"getDownloadSDKVersion", Function},
    {"getOrbitSessionId", Function},
    {"disableDownloadFinish2", Function},
    {"setSyncDownloadHandler", Function},
    {"getSyncDownloadHandler", Function},
    {nullptr, nullptr},
};

const luaL_Reg kNoRows[] = {{nullptr, nullptr}};

const struct {
  const char* name;
  int value;
} kOrderConstants[] = {
    {"ORDER_S_PREPARING", 0},
    {"ORDER_S_SDK_CHECKING", 1},
    {"ORDER_S_SDK_CHECK_OK", 2},
    {"ORDER_S_SDK_CHECK_ERR", 3},
    {"ORDER_S_GS_CHECKING", 4},
    {"ORDER_S_GS_CHECK_OK", 5},
    {"ORDER_S_GS_CHECK_ERR", 6},
    {"ORDER_S_WRONG_PRODUCT_ID", 7},
    {"ORDER_S_WRONG_ORDER_ID", 8},
    {"ORDER_ZV_OS_SDK_INVALID_CURRENCY", 9},
    {"ORDER_S_SDK_CHECK_RESTORE_OK", 10},
    {"ORDER_S_SDK_CHECK_CANCEL", 11},
    {"ORDER_S_SDK_CHANNEL_IN_BLACKLIST", 430},
    {"PRODUCT_TYPE_CONSUMABLE", 0},
    {"PRODUCT_TYPE_NONCONSUMABLE", 1},
    {"PRODUCT_TYPE_AUTORENEWABLE", 2},
    {"PRODUCT_TYPE_NONRENEWABLE", 3},
    {"PRODUCT_TYPE_PROMOCODE", 4},
};

void Add(lua_State* L, const char* key, lua_Integer value) {
  lua_pushstring(L, key);
  lua_pushinteger(L, value);
  lua_rawset(L, -3);
}

void Add(lua_State* L, const char* key, std::int32_t value) { Add(L, key, lua_Integer{value}); }

void Add(lua_State* L, const char* key, float value) { Add(L, key, static_cast<lua_Integer>(value)); }

void Add(lua_State* L, const char* key, const std::string& value) {
  lua_pushstring(L, key);
  lua_pushstring(L, value.c_str());
  lua_rawset(L, -3);
}

void AddTable(lua_State* L, const char* key, const luaL_Reg* rows) {
  lua_newtable(L);
  luaL_setfuncs(L, rows, 0);
  lua_setfield(L, -2, key);
}

void AddClass(lua_State* L, const char* name, const char* metatable, const luaL_Reg* rows) {
  lua_newtable(L);
  luaL_setfuncs(L, rows, 0);
  luaL_newmetatable(L, metatable);
  lua_pushcfunction(L, Function);
  lua_setfield(L, -2, "__gc");
  lua_pushcfunction(L, Function);
  lua_setfield(L, -2, "__tostring");
  lua_pushboolean(L, 0);
  lua_setfield(L, -2, "__metatable");
  lua_pushvalue(L, -2);
  lua_setfield(L, -2, "__index");
  lua_pop(L, 1);
  lua_setfield(L, -2, name);
}

}  // namespace

void InitBare(lua_State* L) {
  LogChannel = tarn::log::RegisterChannel("VELORA");
  lua_createtable(L, 0, 0);
  luaL_setfuncs(L, luavelora::kModuleFunctions, 0);
  lua_pushvalue(L, -1);
  lua_setglobal(L, "velora");
  AddClass(L, "ProductInfo", "LuaProductInfo", kProductRows);
  AddClass(L, "OrderInfo", "LuaOrderInfo", kOrderRows);
  for (const auto& [name, value] : kOrderConstants) Add(L, name, value);
  AddClass(L, "QueryRankInfo", "LuaQueryRankInfo", kQueryRows);
  Add(L, "QUERY_RANK_TYPE_SCORE", QueryRankInfo::QUERY_RANK_TYPE_SCORE);
  Add(L, "QUERY_RANK_TYPE_GRADE", QueryRankInfo::QUERY_RANK_TYPE_GRADE);
  Add(L, "QUERY_RANK_SCOPE_ALL", QueryRankInfo::QUERY_RANK_SCOPE_ALL);
  Add(L, "QUERY_RANK_SCOPE_FRIEND", QueryRankInfo::QUERY_RANK_SCOPE_FRIEND);
  AddClass(L, "ShareInfo", "LuaShareInfo", kShareRows);
#define VELORA_SHARE_CONSTANT(name) Add(L, "SHARE_" #name, ShareInfo::name);
#include "platform/share_constants.def"
  AddClass(L, "AccountInfo", "LuaAccountInfo", kAccountRows);
  AddClass(L, "SkuDetailsInfo", "LuaSkuDetailsInfo", kSkuRows);
  AddClass(L, "PadEvent", "LuaPadEvent", kPadRows);
#define VELORA_CONSTANT(name, kind) Add(L, #name, ConstProp::name);
#include "platform/constants.def"
#define VELORA_MODULE_CONSTANT(name, value) Add(L, #name, lua_Integer{value});
#include "constants/module_constants.def"
  AddTable(L, "download", kDownloadRows);
  AddTable(L, "utils", kNoRows);
  lua_pop(L, 1);
}

}  // namespace bench
