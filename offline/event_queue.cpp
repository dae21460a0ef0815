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
  std::vector<std::shared_ptr<Event>> answers;
  std::function<void()> effect;
};

using Effects = std::list<std::function<void()>>;

struct Queue {
  std::mutex mutex;
  std::vector<std::shared_ptr<Event>> events;
  Effects effects;                      // of the answers among them
  std::atomic<bool> hasEvents = false;  // spares an idle frame the lock
  std::list<Job> jobs;                  // a list, so that jobs move from hand to hand without allocating
  bool busy = false;                    // a job is being done
  bool stopping = false;
  std::condition_variable wake;
  std::condition_variable idle;

  // Held while the thread is started or stopped; taken before `mutex`, never by the thread itself.
  std::mutex threadMutex;
  std::thread thread;
};

// Never destroyed: the thread may outlive the process's statics if nobody called Stop.
Queue& TheQueue() {
  static Queue& queue = *new Queue;
  return queue;
}

void NoteEvents(Queue& queue) { queue.hasEvents = !queue.events.empty() || !queue.effects.empty(); }

void Enqueue(std::vector<std::shared_ptr<Event>> fresh, std::function<void()> effect) {
  Effects effects;
  if (effect) effects.push_back(std::move(effect));
  Queue& queue = TheQueue();
  std::lock_guard lock(queue.mutex);
  queue.events.insert(queue.events.end(), std::make_move_iterator(fresh.begin()), std::make_move_iterator(fresh.end()));
  queue.effects.splice(queue.effects.end(), effects);
  NoteEvents(queue);
}

// Nothing may leave the thread: what cannot be done (for want of memory, say) is reported and left.
void Perform(Job& job) {
  try {
    Enqueue(std::move(job.answers), std::move(job.effect));
  } catch (...) {
    std::fputs("[sdk] an answer is lost\n", stderr);
  }
}

void RunThread() {
  Queue& queue = TheQueue();
  std::unique_lock lock(queue.mutex);
  for (;;) {
    queue.wake.wait(lock, [&] { return queue.stopping || !queue.jobs.empty(); });
    if (queue.jobs.empty()) return;
    std::list<Job> current;
    current.splice(current.begin(), queue.jobs, queue.jobs.begin());
    queue.busy = true;
    lock.unlock();
    Perform(current.front());
    current.clear();  // whoever waits for this job may count on its records being released
    lock.lock();
    queue.busy = false;
    queue.idle.notify_all();
  }
}

}  // namespace

void Reply(std::vector<std::shared_ptr<Event>> answers, std::function<void()> effect) {
  std::list<Job> job;
  job.push_back({std::move(answers), std::move(effect)});
  Queue& queue = TheQueue();
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
  std::vector<std::shared_ptr<Event>> fresh;
  fresh.push_back(std::move(event));
  Enqueue(std::move(fresh), nullptr);
}

void TakeBack(bool (*unwanted)(const Event& event)) {
  const auto drop = [unwanted](std::vector<std::shared_ptr<Event>>& events) {
    std::erase_if(events, [unwanted](const auto& event) { return unwanted(*event); });
  };
  Queue& queue = TheQueue();
  std::unique_lock lock(queue.mutex);
  queue.idle.wait(lock, [&] { return !queue.busy; });
  drop(queue.events);
  NoteEvents(queue);
  for (Job& job : queue.jobs) drop(job.answers);
}

void ForgetEvents() {
  Queue& queue = TheQueue();
  std::list<Job> jobs;  // released when the lock is open again
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
  Queue& queue = TheQueue();
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
  offline::Queue& queue = offline::TheQueue();
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
  offline::NoteEvents(queue);
  lock.unlock();
  if (offline::Observer* observer = offline::TheObserver()) observer->OnEvents(events);
}

}  // namespace tarn::velora
