#include "bench/measure/switches.h"

#include <stdexcept>

#include "bench/measure/stop_watch.h"
#include "tests/endtoend/harness/keyboard.h"
#include "tests/endtoend/harness/wait.h"

namespace korvale::bench {
namespace {

using endtoend::Window;

/// Wine can lose a key when a window has just got the focus.
constexpr double kLostMs = 3000;

/// Every question is work for Wine's server, which the program under test needs, too.
constexpr double kBetweenQuestionsMs = 0.05;

/// How often a lost key is pressed again.
constexpr int kPatience = 20;

constexpr int kTagsWithoutWindow = 3;

/// Milliseconds from the key until `condition` holds; 0 when it does not.
template <typename Condition>
double TimeFromKey(int tag, const Condition& condition) {
  double asked = 0;
  const StopWatch watch;
  endtoend::PressAtOnce(endtoend::TagKey(tag));
  while (watch.Milliseconds() < kLostMs) {
    // The window that comes forward goes first.
    Sleep(0);
    if (watch.Milliseconds() - asked < kBetweenQuestionsMs) continue;
    asked = watch.Milliseconds();
    if (condition()) return watch.Milliseconds();
  }
  return 0;
}

}  // namespace

void Switches::Live(Samples& samples) {
  StandInLastTag();
  for (int tag = 1; tag <= kTags; ++tag) {
    subject_.Rest();
    Press(tag, samples);
  }
}

void Switches::Reopened(Samples& samples) {
  StandInLastTag();
  for (int tag = 1; tag <= kTags; ++tag) {
    targets_.Close(tag);
    targets_.Reopen(tag);
    subject_.Rest();
    Press(tag, samples);
  }
}

void Switches::NothingFound(Samples& samples) {
  StandInLastTag();
  for (int tag = 1; tag <= kTagsWithoutWindow; ++tag) {
    targets_.Close(tag);
    subject_.Rest();
    PressForMessage(tag, samples);
    Dismiss();
  }
  for (int tag = 1; tag <= kTagsWithoutWindow; ++tag) targets_.Reopen(tag);
}

void Switches::Flood(int count) {
  int lost = 0;
  StandInLastTag();
  for (int done = 0; done < count; ++done) {
    const int tag = 1 + done % kTags;
    endtoend::PressAtOnce(endtoend::TagKey(tag));
    while (!endtoend::WaitFor([&] { return endtoend::Foreground() == targets_.Tagged(tag); })) {
      endtoend::PressAtOnce(endtoend::TagKey(tag));
      ++lostKeys_;
      if (++lost > kPatience) throw std::runtime_error("keys of " + subject_.name() + " are lost");
    }
  }
}

void Switches::StandInLastTag() const {
  subject_.Rest();
  if (!BringToFront(targets_.Tagged(kTags))) throw std::runtime_error("no window comes forward");
}

void Switches::Press(int tag, Samples& samples) {
  const Window target = targets_.Tagged(tag);
  Take(TimeFromKey(tag, [&] { return endtoend::Foreground() == target; }), samples);
}

void Switches::PressForMessage(int tag, Samples& samples) {
  Take(TimeFromKey(tag, [&] { return static_cast<bool>(subject_.MessageBox()); }), samples);
}

void Switches::Take(double time, Samples& samples) {
  if (time == 0) {
    ++lostKeys_;
  } else {
    samples.Add(time);
  }
}

void Switches::Dismiss() const {
  const Window box = subject_.MessageBox();
  if (box && !box.Close()) throw std::runtime_error("a message box stays open");
}

}  // namespace korvale::bench
