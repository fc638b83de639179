#pragma once

#include <span>
#include <string>
#include <vector>

#include "bench/measure/samples.h"
#include "bench/measure/subject.h"
#include "bench/measure/targets.h"

namespace korvale::bench {

/// How much is measured.
struct Plan {
  int rounds;
  int floodSwitches;
  int idleSeconds;
  int changingTitleSeconds;
};

/// What a program costs while nobody uses it.
struct Upkeep {
  double processorMs = 0;
  int settingsChanges = 0;
};

/// What was measured of one program; times in ms, by the number of windows on the desktop.
struct Figures {
  ByDesktop live;
  ByDesktop reopened;
  ByDesktop nothingFound;
  ByDesktop start;
  double size = 0;
  Samples memoryAfterStart;
  double memoryAfterFlood = 0;
  /// What the flood began with, in the same run.
  double memoryBeforeFlood = 0;
  double settingsChangesPerSwitch = 0;
  Upkeep idle;
  Upkeep changingTitle;
  int lostKeys = 0;
  int repeatedStarts = 0;
};

/// Measures several programs on the same desktops, one after the other in short turns.
class Session {
 public:
  /// The desktops on which keys are pressed, and those on which starts are reported.
  static constexpr int kKeyDesktops[] = {9, 200, 1000};
  static constexpr int kStartDesktops[] = {20, 1000};

  Session(std::span<Subject> subjects, const Plan& plan);

  void Run();

  const Plan& plan() const { return plan_; }
  /// In the order of the subjects.
  const std::vector<Figures>& figures() const { return figures_; }
  /// One bare loop over the desktop, in ms.
  const ByDesktop& bareLoop() const { return bareLoop_; }

 private:
  void MeasureKeys(int windows);
  void MeasureStarts(int windows);
  void MeasureUse(Targets& targets);
  void MeasureFlood(size_t subject, Targets& targets);
  void MeasureUpkeep(const Subject& subject, int seconds, endtoend::Window changing,
                     Upkeep& upkeep) const;
  void MeasureBareLoop(int windows);

  std::span<Subject> subjects_;
  Plan plan_;
  std::vector<Figures> figures_;
  std::vector<size_t> order_;
  ByDesktop bareLoop_;
};

}  // namespace korvale::bench
