// Measures both sides of each case with Google Benchmark, and takes its options. With the single argument
// --instructions it runs each side once for callgrind, which writes a dump per side. With --held-record it prints the
// heap memory of a record that a script holds.
#include <benchmark/benchmark.h>
#include <valgrind/callgrind.h>

#include <cstdio>
#include <cstring>
#include <string>

#include "bench/allocations.h"
#include "bench/cases.h"

namespace bench {
namespace {

std::string NameOf(const Case& measured, Side side) {
  return std::string(measured.group) + "/" + measured.name + "/" + (side == Side::kModule ? "module" : "bare");
}

void Measure(benchmark::State& state, const Case& measured, Side side) {
  const auto workload = measured.make(measured, side);
  workload->Prepare();
  workload->Run();  // warms caches and interns strings
  std::int64_t allocations = 0;
  for ([[maybe_unused]] auto _ : state) {
    state.PauseTiming();
    workload->Prepare();
    const std::int64_t before = Allocations();
    state.ResumeTiming();
    workload->Run();
    allocations += Allocations() - before;
  }
  const auto operations = static_cast<double>(state.iterations() * measured.operations);
  state.counters["operations"] = operations / static_cast<double>(state.iterations());
  state.counters["allocations"] = static_cast<double>(allocations) / operations;
}

void CountInstructions() {
  for (const Case& measured : Cases()) {
    for (const Side side : {Side::kModule, Side::kBare}) {
      const auto workload = measured.make(measured, side);
      workload->Prepare();
      workload->Run();
      workload->Prepare();
      const std::string label = NameOf(measured, side) + "=" + std::to_string(measured.operations);
      CALLGRIND_START_INSTRUMENTATION;
      CALLGRIND_ZERO_STATS;
      workload->Run();
      CALLGRIND_DUMP_STATS_AT(label.c_str());
      CALLGRIND_STOP_INSTRUMENTATION;
    }
  }
}

void PrintHeldRecord() {
  for (const Side side : {Side::kModule, Side::kBare}) {
    const Held held = HeldRecord(side);
    std::printf("%s %.1f bytes, %.2f blocks\n", side == Side::kModule ? "module" : "bare", held.bytes, held.blocks);
  }
}

}  // namespace
}  // namespace bench

int main(int argc, char** argv) {
  using namespace bench;
  if (argc == 2 && std::strcmp(argv[1], "--instructions") == 0) {
    CountInstructions();
    return 0;
  }
  if (argc == 2 && std::strcmp(argv[1], "--held-record") == 0) {
    PrintHeldRecord();
    return 0;
  }
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 64;
  for (const Case& measured : Cases())
    for (const Side side : {Side::kModule, Side::kBare})
      benchmark::RegisterBenchmark(NameOf(measured, side).c_str(),
                                   [&measured, side](benchmark::State& state) { Measure(state, measured, side); });
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
