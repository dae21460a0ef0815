// The event queue and the runtime's thread.
#include "offline/event_queue.h"

#include <atomic>
#include <condition_variable>
#include <cstdio>
#include <iterator>
#include <list>
#include <mutex>
#include <thread>

#include "offline/calls.h"
#include "offline/control.h"

namespace tarn::velora::offline {
namespace {

struct Job {
  std::vector<std::shared_ptr<Event>> replies;
  std::function<void()> effect;
};

using Effects = std::list<std::function<void()>>;

struct Queue {
  std::mutex mutex;
  std::vector<std::shared_ptr<Event>> events;
  Effects effects;                      // of the replies in `events`
  std::atomic<bool> hasEvents = false;  // lets SwapEvents skip the lock in an idle frame
  std::list<Job> jobs;                  // a list, so that moving a job allocates nothing
  bool busy = false;                    // the thread runs a job
  bool stopping = false;
  std::condition_variable wake;
  std::condition_variable idle;

  // Held while the thread is started or stopped. Locked before `mutex`; never locked by the thread itself.
  std::mutex threadMutex;
  std::thread thread;
};

// Never destroyed: without a Stop, the thread outlives the static objects of the process.
Queue& GetQueue() {
  static Queue& queue = *new Queue;
  return queue;
}

void UpdateHasEvents(Queue& queue) { queue.hasEvents = !queue.events.empty() || !queue.effects.empty(); }

void Enqueue(std::vector<std::shared_ptr<Event>> events, std::function<void()> effect) {
  Effects effects;
  if (effect) effects.push_back(std::move(effect));
  Queue& queue = GetQueue();
  std::lock_guard lock(queue.mutex);
  queue.events.insert(queue.events.end(), std::make_move_iterator(events.begin()),
                      std::make_move_iterator(events.end()));
  queue.effects.splice(queue.effects.end(), effects);
  UpdateHasEvents(queue);
}

// No exception may leave the thread: if memory runs out, the reply is dropped, with a message.
void RunJob(Job& job) {
  try {
    Enqueue(std::move(job.replies), std::move(job.effect));
  } catch (...) {
    std::fputs("[sdk] not enough memory, an event is dropped\n", stderr);
  }
}

void RunThread() {
  Queue& queue = GetQueue();
  std::unique_lock lock(queue.mutex);
  for (;;) {
    queue.wake.wait(lock, [&] { return queue.stopping || !queue.jobs.empty(); });
    if (queue.jobs.empty()) return;
    std::list<Job> current;
    current.splice(current.begin(), queue.jobs, queue.jobs.begin());
    queue.busy = true;
    lock.unlock();
    RunJob(current.front());
    current.clear();  // a thread that waits for this job expects its records to be released
    lock.lock();
    queue.busy = false;
    queue.idle.notify_all();
  }
}

}  // namespace

void Reply(std::vector<std::shared_ptr<Event>> replies, std::function<void()> effect) {
  std::list<Job> job;
  job.push_back({std::move(replies), std::move(effect)});
  Queue& queue = GetQueue();
  std::lock_guard threadLock(queue.threadMutex);
  if (!queue.thread.joinable()) queue.thread = std::thread(RunThread);
  {
    std::lock_guard lock(queue.mutex);
    queue.jobs.splice(queue.jobs.end(), job);
  }
  queue.wake.notify_one();
}

void Post(std::shared_ptr<Event> event) {
  if (event == nullptr) return;
  std::vector<std::shared_ptr<Event>> events;
  events.push_back(std::move(event));
  Enqueue(std::move(events), nullptr);
}

void DropEvents(bool (*predicate)(const Event& event)) {
  const auto drop = [predicate](std::vector<std::shared_ptr<Event>>& events) {
    std::erase_if(events, [predicate](const auto& event) { return predicate(*event); });
  };
  Queue& queue = GetQueue();
  std::unique_lock lock(queue.mutex);
  queue.idle.wait(lock, [&] { return !queue.busy; });
  drop(queue.events);
  UpdateHasEvents(queue);
  for (Job& job : queue.jobs) drop(job.replies);
}

void ClearEvents() {
  Queue& queue = GetQueue();
  // Destroyed after the lock is released, since destroying a record may call back.
  std::list<Job> jobs;
  std::vector<std::shared_ptr<Event>> dropped;
  Effects effects;
  std::unique_lock lock(queue.mutex);
  jobs.swap(queue.jobs);
  queue.idle.wait(lock, [&] { return !queue.busy; });
  dropped.swap(queue.events);
  effects.swap(queue.effects);
  queue.hasEvents = false;
  lock.unlock();
}

void Stop() {
  Queue& queue = GetQueue();
  std::lock_guard threadLock(queue.threadMutex);
  if (!queue.thread.joinable()) return;
  {
    std::lock_guard lock(queue.mutex);
    queue.stopping = true;
  }
  queue.wake.notify_one();
  queue.thread.join();
  queue.thread = std::thread();
  queue.stopping = false;
}

}  // namespace tarn::velora::offline

namespace tarn::velora {

void SwapEvents(std::vector<std::shared_ptr<Event>>& events) {
  offline::RunHook("SwapEvents");
  offline::Queue& queue = offline::GetQueue();
  if (!queue.hasEvents) return;
  const offline::ControlPause pause;
  std::unique_lock lock(queue.mutex);
  while (!queue.effects.empty()) {
    offline::Effects current;
    current.splice(current.begin(), queue.effects, queue.effects.begin());
    lock.unlock();
    current.front()();
    current.clear();
    lock.lock();
  }
  events.swap(queue.events);
  offline::UpdateHasEvents(queue);
  lock.unlock();
  if (offline::Observer* observer = offline::GetObserver()) observer->OnEvents(events);
}

}  // namespace tarn::velora
