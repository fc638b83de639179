#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "tests/endtoend/harness/keyboard.h"
#include "tests/endtoend/harness/window.h"

namespace korvale::endtoend {

/// Prints one line a step, keeps the times from key to foreground, and counts the failures.
class Report {
 public:
  void Headline(const std::string& text) const;
  /// A step without a time: prints whether it worked.
  void Step(const std::string& what, bool worked);
  /// Presses the key and takes the time until `window` is in front.
  void KeyToFront(const std::string& what, Chord chord, Window window);
  /// Presses the key and takes the time until `done` holds.
  void KeyUntil(const std::string& what, Chord chord, const std::function<bool()>& done);
  /// Presses the key; nothing else may come to the front for three ticks.
  void KeyDoesNothing(const std::string& what, Chord chord);
  /// A picture of the screen, when somebody takes them, and what the last line said beside it.
  void Picture(const std::string& name);

  /// Median and worst; 0 when every step worked, else 1.
  int Finish() const;

 private:
  double TimeKey(Chord chord, const std::function<bool()>& done, bool& worked) const;
  void Line(const std::string& what, const std::string& time, bool worked);

  std::string said_;
  std::vector<double> times_;
  int failures_ = 0;
};

}  // namespace korvale::endtoend
