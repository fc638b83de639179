#pragma once

#include <string>
#include <vector>

#include "tests/endtoend/harness/process.h"
#include "tests/endtoend/harness/window.h"

namespace korvale::endtoend {

/// A program by somebody else, and its main window.
class RealProgram {
 public:
  /// Starts the first of `commands` that Windows can start, and waits until its window is in front.
  /// Throws std::runtime_error when none starts or no window comes.
  explicit RealProgram(const std::vector<std::string>& commands);

  Window window() const { return window_; }

 private:
  std::vector<Window> before_;
  Process process_;
  Window window_;
};

/// The programs of the tour.
RealProgram StartNotepad(const std::string& document = "");
RealProgram StartWordPad();
RealProgram StartRegistryEditor();
/// A program whose window has no child windows.
RealProgram StartMineGame();

}  // namespace korvale::endtoend
