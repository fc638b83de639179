#include <benchmark/benchmark.h>

#include <cstddef>
#include <string>
#include <string_view>

#include "app/core/stored_tags.h"
#include "bench/plain_windows.h"
#include "bench/processor_time.h"
#include "desktop/tag_list.h"
#include "desktop/title_match.h"
#include "tests/fakes/dispatch_desktop.h"
#include "ui/shortened_text.h"
#include "util/text.h"

namespace korvale {
namespace {

constexpr int kSmallDesktop = 10;
constexpr int kLargestDesktop = 100'000;
constexpr int kTags = 9;
constexpr int kColumns = 50;

/// The routines for windows on a desktop of that many. The windows of the Tags lie spread over it
/// and are identified by another kind of text in turn.
class PassDesktop {
 public:
  explicit PassDesktop(int count) : windows_(count) {
    for (int tag = 1; tag <= kTags; ++tag) {
      const std::string title = PlainWindows::Title(tag * count / kTags);
      AddTagEntry(routines_.tags, tag, TagCaption(tag, Identification(tag, title)));
    }
  }

  void Filter() { benchmark::DoNotOptimize(Passed()); }

  void MatchTitles() {
    for (const std::string& title : windows_.Titles()) {
      benchmark::DoNotOptimize(TitleMatches("*** - Editor 1", title, false));
    }
  }

  void PassOverTags() { routines_.enumeration.RefreshTags(kTags); }

  void MakeCaptions() {
    for (const std::string& title : windows_.Titles()) {
      benchmark::DoNotOptimize(TagCaption(1, OnOneLine(title)));
      benchmark::DoNotOptimize(ShortenedText(title, kColumns));
      benchmark::DoNotOptimize(ShortenedText(LeftTitlePart(title), kColumns, kLeftPartMark));
    }
  }

  /// Whether each window passes the filter and each Tag finds its own.
  bool AllFound() {
    PassOverTags();
    bool found = Passed() == windows_.Titles().size();
    for (int tag = 1; tag <= kTags; ++tag) {
      found = found && TagHandle(*routines_.tags.mnuWindowParentList.Find(tag)) != 0;
    }
    return found;
  }

 private:
  /// How many windows pass the filter.
  std::size_t Passed() {
    std::size_t passed = 0;
    routines_.enumeration.EnumWindows(kSearchTitle, [&](const auto&) { ++passed; });
    return passed;
  }

  static std::string Identification(int tag, const std::string& title) {
    if (tag % 3 == 1) return title;
    if (tag % 3 == 2) return std::string(LeftTitlePart(title)).append(kLeftPartMark);
    return std::string(kRightPartMark).append(RightTitlePart(title));
  }

  DispatchDesktop fakes_;
  PlainWindows windows_;
  Desktop routines_{{windows_, fakes_.desktop, fakes_.input, fakes_.mainWindow, fakes_.forms,
                     fakes_.messages, fakes_.previous, fakes_.desktop},
                    fakes_.clock,
                    fakes_.options,
                    fakes_.windowMenu};
};

/// What a pass costs for each window of a desktop, and how many times the cost on the smallest
/// desktop that is. Both are measured in turn, over as many windows.
void PerWindow(benchmark::State& state, void (PassDesktop::*pass)()) {
  const auto count = static_cast<int>(state.range(0));
  PassDesktop small(kSmallDesktop);
  PassDesktop desktop(count);
  double smallTime = 0;
  double time = 0;
  for ([[maybe_unused]] auto _ : state) {
    smallTime += ProcessorNanoseconds([&] {
      for (int windows = 0; windows < count; windows += kSmallDesktop) (small.*pass)();
    });
    time += ProcessorNanoseconds([&] { (desktop.*pass)(); });
  }
  if (!desktop.AllFound()) state.SkipWithError("a window is not found");
  state.counters["ns_per_window"] = time / static_cast<double>(state.iterations()) / count;
  state.counters["beside_10"] = time / smallTime;
}

#define PASS_BENCHMARK(name, pass)         \
  BENCHMARK_CAPTURE(PerWindow, name, pass) \
      ->RangeMultiplier(kSmallDesktop)     \
      ->Range(kSmallDesktop, kLargestDesktop)
PASS_BENCHMARK(filter, &PassDesktop::Filter);
PASS_BENCHMARK(title_match, &PassDesktop::MatchTitles);
PASS_BENCHMARK(tag_pass, &PassDesktop::PassOverTags);
PASS_BENCHMARK(captions, &PassDesktop::MakeCaptions);
#undef PASS_BENCHMARK

}  // namespace
}  // namespace korvale
