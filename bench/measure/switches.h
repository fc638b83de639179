#pragma once

#include "bench/measure/samples.h"
#include "bench/measure/subject.h"
#include "bench/measure/targets.h"

namespace korvale::bench {

/// Presses the hot keys of a running subject and waits for what comes of them.
class Switches {
 public:
  Switches(const Subject& subject, Targets& targets) : subject_(subject), targets_(targets) {}

  /// From the key to the window in front, in ms: all Tags in turn, their windows open since the
  /// start of the subject.
  void Live(Samples& samples);
  /// The same with each window closed and opened again before its key is pressed.
  void Reopened(Samples& samples);
  /// From the key to the message that there is no such window, in ms; some Tags lose their windows.
  void NothingFound(Samples& samples);
  /// That many switches, each as soon as the one before has come to the front.
  void Flood(int count);
  /// How many keys nothing came of, and which are in no sample.
  int LostKeys() const { return lostKeys_; }

 private:
  void StandInLastTag() const;
  void Press(int tag, Samples& samples);
  void PressForMessage(int tag, Samples& samples);
  void Take(double time, Samples& samples);
  void Dismiss() const;

  const Subject& subject_;
  Targets& targets_;
  int lostKeys_ = 0;
};

}  // namespace korvale::bench
