#include <benchmark/benchmark.h>

#include <string>
#include <string_view>

#include "desktop/title_match.h"

namespace korvale {
namespace {

constexpr std::string_view kTitle = "Quarterly report, second draft - Notes of the team - Editor";

/// The bare search that a partial title needs at least; the matches below cost multiples of it.
void PlainFind(benchmark::State& state) {
  const std::string sought = "Notes of the team";
  for ([[maybe_unused]] auto _ : state) benchmark::DoNotOptimize(kTitle.find(sought));
}
BENCHMARK(PlainFind);

void Matches(benchmark::State& state, const std::string& stored) {
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(TitleMatches(stored, kTitle, true));
  }
}
BENCHMARK_CAPTURE(Matches, partial_title, std::string("&3  Notes of the team"));
BENCHMARK_CAPTURE(Matches, left_part, std::string("&3  Quarterly report, second draft - ***"));
BENCHMARK_CAPTURE(Matches, right_part, std::string("&3  *** - Editor"));

}  // namespace
}  // namespace korvale
