// Threads post events while frames run. Each event must be delivered once and in its thread's order, and records must
// live as long as their last owner. To be run with the thread sanitizer, as make test does.
#include <atomic>
#include <thread>

#include "platform/order_info.h"
#include "tests/harness.h"

namespace tests {
namespace {

using namespace tarn::velora;

using Threads = VeloraTest;

TEST_F(Threads, EveryEventArrivesOnceAndInItsThreadsOrder) {
  // Each thread posts codes with an event type of its own, and an order after every hundredth.
  constexpr int kTypes[] = {14, 15, 16, 19};
  constexpr int kEventsPerThread = 250000;
  constexpr int kOrderEvery = 100;
  constexpr int kFrameEvery = kEventsPerThread / 20;  // after so many events a thread waits for a frame
  Host host;
  ASSERT_EQ(host.RunFile("threads.lua"), "");
  std::atomic<int> running{static_cast<int>(std::size(kTypes))};
  std::atomic<int> frames{0};
  std::vector<std::thread> threads;
  for (int type : kTypes) {
    threads.emplace_back([type, &running, &frames] {
      for (int i = 0; i < kEventsPerThread; ++i) {
        auto code = std::make_shared<CodeEvent>(type);
        code->code = i;
        offline::Post(code);
        const int seen = frames;
        while (i % kFrameEvery == 0 && frames == seen) std::this_thread::yield();
        if (i % kOrderEvery != 0) continue;
        auto order = std::make_shared<OrderEvent>(17);
        order->order = offline::MakeOrder({});
        offline::Post(order);
        std::string text;
        order->order->get_orderId(text);
      }
      --running;
    });
  }
  for (; running != 0; ++frames) EXPECT_EQ(host.Frame(), "");
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(host.Frame(), "");
  EXPECT_GT(frames.load(), 10);
  const std::string all = std::to_string(kEventsPerThread);
  EXPECT_EQ(host.Run("return next.FinishInit, next.LoginDone, next.LogoutDone, next.ProtocolFinish, orders"),
            all + ", " + all + ", " + all + ", " + all + ", " +
                std::to_string(std::size(kTypes) * kEventsPerThread / kOrderEvery));
  EXPECT_TRUE(offline::TakeLog().empty());
  host.Run("kept = nil collectgarbage()");
  EXPECT_EQ(offline::LiveRecords(), 0u);
}

// The runtime's own thread queues events while scripts run and while it is stopped and started.
TEST_F(Threads, RepliesWhileTheRuntimeIsStopped) {
  Host host;
  host.Run("answers = 0 velora.setOnLoginDone(function() answers = answers + 1 end)");
  for (int i = 0; i < 50; ++i) {
    host.Run("velora.zvLogin() velora.zvQueryFriendList() velora.zvCheckOrder(velora.OrderInfo.new(1))");
    if (i % 10 == 9) offline::Stop();
    EXPECT_EQ(host.Frame(), "");
  }
  host.Run("velora.zvLogin()");
  while (host.Run("return answers > 0") != "true") EXPECT_EQ(host.Frame(), "");  // if none comes, the time runs out
}

}  // namespace
}  // namespace tests
