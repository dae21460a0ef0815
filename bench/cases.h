// What is measured: each case runs the same work through the module and through the hand-written lower bound.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "bench/allocations.h"

namespace bench {

enum class Side { kModule, kBare };

// One side of a case, in a Lua state of its own with both module and lower bound.
class Workload {
 public:
  virtual ~Workload() = default;
  // Prepares what one run consumes. Not measured.
  virtual void Prepare() = 0;
  virtual void Run() = 0;
};

struct Case {
  const char* group;
  const char* name;
  std::int64_t operations;  // in one run
  std::unique_ptr<Workload> (*make)(const Case&, Side);
  const char* script = "";  // of a call case: returns a function that does n operations with the table `api`
  struct Frame {            // of an event case
    const struct EventKind* kind = nullptr;
    std::int64_t events = 0;
  } frame = {};
};

const std::vector<Case>& Cases();

// What an OrderInfo userdata that a script holds takes from the heap, without the SDK's record.
Held HeldRecord(Side side);

}  // namespace bench
