// The runtime's store items. The arguments of New are the fields in row order.
#include "platform/sku_details_info.h"

#include "offline/record.h"

namespace tarn::velora {
namespace offline {
namespace {

class Sku final : public SkuDetailsInfo, public Record {
 public:
  explicit Sku(std::string arguments) : Record("SkuDetailsInfo", std::move(arguments)) {}

#define RECORD_CLASS "SkuDetailsInfo"
#define RECORD_FIELDS "platform/sku_details_info.def"
#include "offline/record_fields.inc"

  bool toString(std::string& out) override { return TextForm("SkuDetailsInfo.toString", *this, out); }
};

}  // namespace

std::shared_ptr<SkuDetailsInfo> MakeSku(const Fields& fields) { return MakeFilled<Sku>(fields); }

}  // namespace offline

std::shared_ptr<SkuDetailsInfo> SkuDetailsInfo::New(const std::string& first, const std::string& second,
                                                    const std::string& third, const std::string& fourth,
                                                    const std::string& fifth, const std::string& sixth,
                                                    const std::string& seventh) {
  offline::Call("SkuDetailsInfo.New", first, second, third, fourth, fifth, sixth, seventh);
  const auto sku = offline::CreateRecord<offline::Sku>(
      "SkuDetailsInfo.New", offline::FormatArguments(first, second, third, fourth, fifth, sixth, seventh));
  if (sku == nullptr) return nullptr;
  const std::string* const texts[] = {&first, &second, &third, &fourth, &fifth, &sixth, &seventh};
  auto text = std::begin(texts);
  offline::Sku::EachField(*sku, [&](const char*, std::string& field) { field = **text++; });
  return sku;
}

}  // namespace tarn::velora
