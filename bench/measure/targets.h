#pragma once

#include <string>
#include <vector>

#include "tests/endtoend/harness/test_program.h"
#include "tests/endtoend/harness/window.h"

namespace korvale::bench {

/// How many Tags the measured programs have; the first windows of every desktop carry them.
inline constexpr int kTags = 9;

/// Windows of another process that the measured programs go to: usual titles, several classes, each
/// with a child window.
class Targets {
 public:
  /// Opens that many windows, at least one for each Tag.
  explicit Targets(int count);

  /// What Tag 1 to 9 stands for.
  static std::string Title(int tag);
  static std::string ClassName(int tag);
  endtoend::Window Tagged(int tag) const { return windows_[Index(tag)]; }

  /// Closes the window of a Tag.
  void Close(int tag);
  /// Opens it again with the same title, behind the window in front.
  void Reopen(int tag);

 private:
  static size_t Index(int number) { return static_cast<size_t>(number - 1); }
  endtoend::Window Open(int number);

  endtoend::TestProgram program_;
  std::vector<endtoend::Window> windows_;
};

}  // namespace korvale::bench
