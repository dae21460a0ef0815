// Stand-ins for SDK operations. Being the program's own, they come before those of the SDK's library.
#include "bench/null_sdk.h"

#include <cstddef>
#include <type_traits>
#include <utility>

#include "platform/operations.h"
#include "platform/order_info.h"
#include "platform/share_info.h"

namespace bench {
namespace {

std::vector<Batch> queuedFrames;
std::size_t nextFrame = 0;

namespace families {
using String = std::string;
using Int = std::int32_t;
using Int64 = std::int64_t;
using Float = float;
using Double = double;
using IntAsNumber = std::int32_t;
using Bool = bool;
using StringMap = tarn::velora::StringMap;
using IntMap = tarn::velora::IntMap;
using StrictList = tarn::velora::StringList;
using CachedList = tarn::velora::StringList;
using CachedMap = tarn::velora::StringMap;
using RecordMap = tarn::velora::StringMap;
}  // namespace families

template <class Value>
using Parameter = std::conditional_t<std::is_arithmetic_v<Value>, Value, const Value&>;

// The operations of a field read and write a plain member.
#define READ_VALUE(name, family) \
  families::family get_##name() override { return name##_; }
#define READ_OUT(Result, name, family, ...)           \
  Result get_##name(families::family& out) override { \
    out = name##_;                                    \
    __VA_ARGS__                                       \
  }
#define GETTER_String(name) READ_OUT(bool, name, String, return true;)
#define GETTER_Int(name) READ_VALUE(name, Int)
#define GETTER_Int64(name) READ_VALUE(name, Int64)
#define GETTER_Float(name) READ_VALUE(name, Float)
#define GETTER_Double(name) READ_VALUE(name, Double)
#define GETTER_IntAsNumber(name) READ_VALUE(name, IntAsNumber)
#define GETTER_Bool(name) READ_VALUE(name, Bool)
#define GETTER_StringMap(name) READ_OUT(void, name, StringMap)
#define GETTER_IntMap(name) READ_OUT(void, name, IntMap)
#define GETTER_StrictList(name) READ_OUT(void, name, StrictList)
#define GETTER_CachedList(name) READ_OUT(void, name, CachedList)
#define GETTER_CachedMap(name) READ_OUT(void, name, CachedMap)
#define GETTER_RecordMap(name) READ_OUT(bool, name, RecordMap, return true;)

#define VELORA_FIELD_READ_ONLY(name, family) \
  families::family name##_{};                \
  GETTER_##family(name)
#define VELORA_FIELD(name, family)     \
  VELORA_FIELD_READ_ONLY(name, family) \
  void set_##name(Parameter<families::family> value) override { name##_ = value; }

struct Order final : tarn::velora::OrderInfo {
#include "platform/order_info.def"
  bool produceCartInfo(std::string&) override { return false; }
  bool toString(std::string&) override { return false; }
};

struct Share final : tarn::velora::ShareInfo {
#include "platform/share_info.def"
  bool toString(std::string&) override { return false; }
};

}  // namespace

void QueueFrames(std::vector<Batch> frames) {
  queuedFrames = std::move(frames);
  nextFrame = 0;
}

}  // namespace bench

namespace tarn::velora {

void SwapEvents(std::vector<std::shared_ptr<Event>>& events) {
  if (bench::nextFrame < bench::queuedFrames.size()) events.swap(bench::queuedFrames[bench::nextFrame++]);
}

void zvFlushCustomEvents() {}
void zvCancelLocalNotification(std::int32_t) {}
void setPropStr(const std::string&, const std::string&) {}
void setPropInt(const std::string&, std::int32_t) {}
void zvCheckOrder(const std::shared_ptr<OrderInfo>&) {}
void zvDeleteInviters(const StringList&) {}

bool getChannel(std::string& out) {
  out = "app_store";
  return true;
}

// Longer than what a std::string holds without the heap.
bool getAppChannel(std::string& out) {
  out = "app_store.region_7.tester";
  return true;
}

bool getUdid(std::string& out) {
  out.assign(4096, 'u');
  return true;
}

std::shared_ptr<OrderInfo> OrderInfo::New(const std::string&) { return std::make_shared<bench::Order>(); }

std::shared_ptr<ShareInfo> ShareInfo::New() { return std::make_shared<bench::Share>(); }

}  // namespace tarn::velora
