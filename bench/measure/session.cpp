#include "bench/measure/session.h"

#include <algorithm>
#include <iostream>
#include <numeric>
#include <stdexcept>

#include "bench/floor/bare_loop.h"
#include "bench/measure/processors.h"
#include "bench/measure/stop_watch.h"
#include "bench/measure/switches.h"
#include "bench/measure/usage.h"

namespace korvale::bench {
namespace {

using endtoend::Window;

/// The desktop on which memory and upkeep are measured.
constexpr int kUsualWindows = 20;
constexpr int kStartsPerRound = 3;
constexpr int kLoopsPerTurn = 3;
/// Upkeep is measured in so many turns.
constexpr int kUpkeepTurns = 4;
/// So that a loop is measured from rest, as a key is.
constexpr DWORD kBeforeLoopMs = 100;
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
  Targets targets(kUsualWindows);
  for (int turn = 1; turn <= kUpkeepTurns; ++turn) {
    std::cerr << "idle use, turn " << turn << " of " << kUpkeepTurns << std::endl;
    MeasureUse(targets);
    std::reverse(order_.begin(), order_.end());
  }
  for (const size_t at : order_) {
    std::cerr << "many switches, " << subjects_[at].name() << std::endl;
    MeasureFlood(at, targets);
    figures_[at].repeatedStarts = subjects_[at].RepeatedStarts();
  }
}

void Session::MeasureKeys(int windows) {
  Targets targets(windows);
  for (const size_t at : order_) {
    subjects_[at].StartAndRest();
    Switches switches(subjects_[at], targets);
    switches.Live(figures_[at].live[windows]);
    switches.Reopened(figures_[at].reopened[windows]);
    switches.NothingFound(figures_[at].nothingFound[windows]);
    figures_[at].lostKeys += switches.LostKeys();
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

void Session::MeasureUse(Targets& targets) {
  for (const size_t at : order_) {
    Figures& figures = figures_[at];
    subjects_[at].StartAndRest();
    figures.memoryAfterStart.Add(ResidentMemory(subjects_[at].process()));
    BringToFront(targets.Tagged(1));
    subjects_[at].Rest();
    MeasureUpkeep(subjects_[at], plan_.idleSeconds, {}, figures.idle);
    MeasureUpkeep(subjects_[at], plan_.changingTitleSeconds, targets.Tagged(1),
                  figures.changingTitle);
    targets.Tagged(1).SetTitle(Targets::Title(1));
    subjects_[at].End();
  }
}

void Session::MeasureFlood(size_t subject, Targets& targets) {
  Subject& program = subjects_[subject];
  Figures& figures = figures_[subject];
  program.StartAndRest();
  figures.memoryBeforeFlood = ResidentMemory(program.process());
  Switches switches(program, targets);
  Samples ignored;
  ChangeCounter changes(program.StoredIn());
  switches.Live(ignored);
  program.Rest();
  figures.settingsChangesPerSwitch = static_cast<double>(changes.Count()) / kTags;
  switches.Flood(plan_.floodSwitches);
  program.Rest();
  figures.memoryAfterFlood = ResidentMemory(program.process());
  figures.lostKeys += switches.LostKeys();
  program.End();
}

void Session::MeasureUpkeep(const Subject& subject, int seconds, Window changing,
                            Upkeep& upkeep) const {
  ChangeCounter changes(subject.StoredIn());
  const double before = ProcessorTime(subject.process(), subject.program());
  const StopWatch watch;
  for (int change = 0; watch.Milliseconds() < seconds * 1000.0 / kUpkeepTurns; ++change) {
    Sleep(kTitleChangeMs);
    if (changing) changing.SetTitle("Page " + std::to_string(change) + " - Editor");
  }
  upkeep.processorMs += ProcessorTime(subject.process(), subject.program()) - before;
  upkeep.settingsChanges += changes.Count();
}

void Session::MeasureBareLoop(int windows) {
  KeepThreadOn(Side::kSubject);
  for (int loop = 0; loop < kLoopsPerTurn; ++loop) {
    int found = 0;
    Sleep(kBeforeLoopMs);
    const StopWatch watch;
    BareLoop([&](const BareWindow& window) { found += window.child != nullptr ? 1 : 0; });
    bareLoop_[windows].Add(watch.Milliseconds());
    if (found < windows) throw std::runtime_error("windows are missing");
  }
  KeepThreadOn(Side::kUser);
}

}  // namespace korvale::bench
