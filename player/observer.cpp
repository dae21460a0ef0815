#include "player/observer.h"

#include "offline/control.h"
#include "player/event_pass.h"
#include "player/strict.h"
#include "player/timeline.h"

namespace player {
namespace {

class PlayerObserver final : public tarn::velora::offline::Observer {
  void OnCall(const std::string& line) override { MarkPoint(Track::kCalls, line); }
  void OnLog(const std::string& line) override { ReadLogLine(line); }
  void OnEvents(const std::vector<std::shared_ptr<tarn::velora::Event>>& events) override { SetPassEvents(events); }
  void OnWarning(const char* operation, const std::string& reason) override {
    ReportWarning(operation, reason.c_str());
  }
};

}  // namespace

void OpenObserver() {
  static PlayerObserver observer;
  tarn::velora::offline::SetObserver(&observer);
}

}  // namespace player
