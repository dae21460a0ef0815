// The program's own definitions of SDK operations. The linker prefers them to those in the SDK's library.
#include "bench/null_sdk.h"

#include <cstddef>
#include <utility>

#include "platform/field_families.h"
#include "platform/operations.h"
#include "platform/order_info.h"
#include "platform/share_info.h"

namespace bench {
namespace {

using namespace tarn::velora;

std::vector<Batch> queuedFrames;
std::size_t nextFrame = 0;

// Accessors that read and write plain members.
class PlainFields {
 protected:
  static bool ReadText(const char*, const std::string& field, std::string& out) {
    out = field;
    return true;
  }
  static bool ReadMap(const char*, const StringMap& field, StringMap& out) {
    out = field;
    return true;
  }
  template <class Value>
  static const Value& ReadNumber(const char*, const Value& field) {
    return field;
  }
  template <class Container>
  static const Container& ReadContainer(const char*, const Container& field) {
    return field;
  }
  template <class Value>
  static void Write(const char*, Value& field, families::Parameter<Value> value) {
    field = value;
  }
};

class Order final : public OrderInfo, PlainFields {
 public:
#define RECORD_CLASS ""
#define RECORD_FIELDS "platform/order_info.def"
#include "offline/record_fields.inc"
  bool produceCartInfo(std::string&) override { return false; }
  bool toString(std::string&) override { return false; }
};

class Share final : public ShareInfo, PlainFields {
 public:
#define RECORD_CLASS ""
#define RECORD_FIELDS "platform/share_info.def"
#include "offline/record_fields.inc"
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

// Too long for std::string's small-string buffer.
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
