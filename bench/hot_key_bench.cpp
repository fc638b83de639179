#include <benchmark/benchmark.h>

#include "bench/bench_desktop.h"
#include "bench/processor_time.h"

namespace korvale {
namespace {

constexpr int kFewWindows = 20;
constexpr int kManyWindows = 200;

double Calls(BenchDesktop& desktop, bool forgetful) {
  if (forgetful) desktop.ForgetHandles();
  return static_cast<double>(desktop.CallsOfPress());
}

/// A Tag key on a desktop of few and on one of many windows, measured in turn: `ratio` is how many
/// times longer it takes with many. The times include the fake desktop's own work (it sorts its
/// windows at each change of the foreground), the counted calls do not.
void CompareDesktops(benchmark::State& state, bool forgetful) {
  BenchDesktop few(kFewWindows);
  BenchDesktop many(kManyWindows);
  const auto press = [forgetful](BenchDesktop& desktop) {
    if (forgetful) desktop.ForgetHandles();
    return ProcessorNanoseconds([&] { desktop.PressTagKey(); });
  };
  double fewTime = 0;
  double manyTime = 0;
  for ([[maybe_unused]] auto _ : state) {
    fewTime += press(few);
    manyTime += press(many);
  }
  if (many.ForegroundTitle().find("Editor") == std::string::npos) state.SkipWithError("no window");
  const auto runs = static_cast<double>(state.iterations());
  state.counters["ns_20"] = fewTime / runs;
  state.counters["ns_200"] = manyTime / runs;
  state.counters["ratio"] = manyTime / fewTime;
  state.counters["calls_20"] = Calls(few, forgetful);
  state.counters["calls_200"] = Calls(many, forgetful);
}
BENCHMARK_CAPTURE(CompareDesktops, tag_key_with_known_handle, false);
BENCHMARK_CAPTURE(CompareDesktops, tag_key_with_lost_handle, true);

}  // namespace
}  // namespace korvale
