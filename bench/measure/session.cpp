#include "bench/measure/session.h"

#include <algorithm>
#include <iostream>
#include <numeric>
#include <stdexcept>

#include "bench/floor/bare_loop.h"
#include "bench/measure/processors.h"
#include "bench/measure/switches.h"
#include "bench/measure/usage.h"

namespace korvale::bench {
namespace {

using endtoend::Window;

/// The desktop on which memory and upkeep are measured.
constexpr int kUsualWindows = 20;
constexpr int kStartsPerRound = 3;
constexpr int kLoopsPerTurn = 3;
/// So that a loop is measured from rest, as a key is.
constexpr DWORD kRestMs = 100;
constexpr DWORD kTitleChangeMs = 100;

}  // namespace

Session::Session(std::span<Subject> subjects, const Plan& plan)
    : subjects_(subjects), plan_(plan), figures_(subjects.size()), order_(subjects.size()) {
  std::iota(order_.begin(), order_.end(), 0);
}

void Session::Run() {
  KeepThreadOn(Side::kUser);
  for (size_t at = 0; at < subjects_.size(); ++at) figures_[at].size = subjects_[at].Size();
  for (int round = 1; round <= plan_.rounds; ++round) {
    std::cerr << "round " << round << " of " << plan_.rounds << std::endl;
    for (const int windows : kKeyDesktops) MeasureKeys(windows);
    for (const int windows : kStartDesktops) MeasureStarts(windows);
    // Nobody always comes first on a fresh desktop.
    std::reverse(order_.begin(), order_.end());
  }
  MeasureUse();
}

void Session::MeasureKeys(int windows) {
  Targets targets(windows);
  for (const size_t at : order_) {
    subjects_[at].StartAndRest();
    const Switches switches(subjects_[at], targets);
    switches.Live(figures_[at].live[windows]);
    switches.Reopened(figures_[at].reopened[windows]);
    switches.NothingFound(figures_[at].nothingFound[windows]);
    subjects_[at].End();
    MeasureBareLoop(windows);
  }
}

void Session::MeasureStarts(int windows) {
  const Targets targets(windows);
  for (int start = 0; start < kStartsPerRound; ++start) {
    for (const size_t at : order_) {
      figures_[at].start[windows].Add(subjects_[at].StartAndRest());
      subjects_[at].End();
    }
    MeasureBareLoop(windows);
  }
}

void Session::MeasureUse() {
  Targets targets(kUsualWindows);
  for (size_t at = 0; at < subjects_.size(); ++at) {
    std::cerr << "memory and idle use, " << subjects_[at].name() << std::endl;
    Figures& figures = figures_[at];
    subjects_[at].StartAndRest();
    figures.memoryAfterStart = ResidentMemory(subjects_[at].process());
    BringToFront(targets.Tagged(1));
    subjects_[at].Rest();
    figures.idle = MeasureUpkeep(subjects_[at], plan_.idleSeconds, {});
    figures.changingTitle =
        MeasureUpkeep(subjects_[at], plan_.changingTitleSeconds, targets.Tagged(1));
    targets.Tagged(1).SetTitle(Targets::Title(1));
    MeasureFlood(at, targets);
    subjects_[at].End();
  }
}

void Session::MeasureFlood(size_t subject, Targets& targets) {
  const Subject& program = subjects_[subject];
  const Switches switches(program, targets);
  Samples ignored;
  ChangeCounter changes(program.StoredIn());
  switches.Live(ignored);
  program.Rest();
  figures_[subject].settingsChangesPerSwitch = static_cast<double>(changes.Count()) / kTags;
  switches.Flood(plan_.floodSwitches);
  program.Rest();
  figures_[subject].memoryAfterFlood = ResidentMemory(program.process());
}

Upkeep Session::MeasureUpkeep(const Subject& subject, int seconds, Window changing) const {
  ChangeCounter changes(subject.StoredIn());
  const double before = ProcessorTime(subject.process(), subject.program());
  const StopWatch watch;
  for (int change = 0; watch.Milliseconds() < seconds * 1000.0; ++change) {
    Sleep(kTitleChangeMs);
    if (changing) changing.SetTitle("Page " + std::to_string(change) + " - Editor");
  }
  return {ProcessorTime(subject.process(), subject.program()) - before, changes.Count()};
}

void Session::MeasureBareLoop(int windows) {
  KeepThreadOn(Side::kSubject);
  for (int loop = 0; loop < kLoopsPerTurn; ++loop) {
    int found = 0;
    Sleep(kRestMs);
    const StopWatch watch;
    BareLoop([&](const BareWindow& window) { found += window.child != nullptr ? 1 : 0; });
    bareLoop_[windows].Add(watch.Milliseconds());
    if (found < windows) throw std::runtime_error("windows are missing");
  }
  KeepThreadOn(Side::kUser);
}

}  // namespace korvale::bench
