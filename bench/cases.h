// The measured cases. Each runs the same work through the module and through the hand-written lower bound.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "bench/allocations.h"

namespace bench {

enum class Side { kModule, kBare };

// One side of a case, in its own Lua state. The state has both the module and the lower bound.
class Workload {
 public:
  virtual ~Workload() = default;
  // Called before each Run, not measured.
  virtual void Prepare() = 0;
  virtual void Run() = 0;
};

struct Case {
  const char* group;
  const char* name;
  std::int64_t operations;  // in one run
  std::unique_ptr<Workload> (*make)(const Case&, Side);
  const char* script = "";  // of a call case; returns a function(n) that does n operations of the table `api`
  struct Frame {            // of an event case
    const struct EventKind* kind = nullptr;
    std::int64_t events = 0;
  } frame = {};
};

// Returns all cases.
const std::vector<Case>& Cases();

// Returns the heap memory of an OrderInfo userdata, without the SDK's record.
Held HeldRecord(Side side);

}  // namespace bench
