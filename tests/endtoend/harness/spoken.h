#pragma once

#include <chrono>
#include <string>
#include <vector>

#include "tests/endtoend/harness/wait.h"
#include "tests/endtoend/harness/window.h"

namespace korvale::endtoend {

/// What a screen reader comes to in a window, in its order, first the window itself:
///
///   check box 'Display splash screen on startup', checked, Alt+D
///   list 'Assign a Tag' = '1', focused, Alt+T
///
/// It is asked for as screen readers do, by Active Accessibility (IAccessible), because Wine 8 has
/// no client of the newer UI Automation. Where it knows no more of a control than that it is a
/// window, as in Wine, the line has what Windows documents for controls of this class.
std::vector<std::string> Spoken(Window window);

/// A text in quotes as it is said: with one blank instead of several and of line breaks.
std::string Said(const std::string& text);

/// The lines as one text, each behind a line's end.
std::string Table(const std::vector<std::string>& lines);

/// Hears what screen readers are told of a program while this exists.
class Told {
 public:
  explicit Told(DWORD process);
  ~Told();
  Told(const Told&) = delete;
  Told& operator=(const Told&) = delete;

  /// Waits until they have been told that the window's text is another one; false when they are
  /// not.
  bool Change(Window window, std::chrono::milliseconds limit = kPatience) const;

 private:
  HWINEVENTHOOK hook_;
};

}  // namespace korvale::endtoend
