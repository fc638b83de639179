#pragma once

#include <windows.h>

#include <string>

#include "tests/endtoend/harness/keyboard.h"
#include "tests/endtoend/harness/process.h"
#include "tests/endtoend/harness/window.h"

namespace korvale::endtoend {

/// What a window of the test program is to look like.
struct WindowSpec {
  std::string title;
  std::string class_name = "Test.Window";
  DWORD style = WS_OVERLAPPEDWINDOW;
  DWORD extended_style = 0;
  Window owner{};
  bool with_child = true;
  int show = SW_SHOWNORMAL;
};

/// A program of our own, in its own process, that opens windows of every style on request.
class TestProgram {
 public:
  TestProgram();

  /// Opens a window; it is in front when it was asked to be shown.
  Window Open(const WindowSpec& spec);
  Window Open(const char* title) { return Open(WindowSpec{.title = title}); }

  /// Takes a hot key for this program; false when somebody else has it.
  bool TakeHotKey(Chord chord);

  /// Shows a message box with OK and Cancel, and waits for it.
  Window ShowMessage(const std::string& text);

  /// Stops answering messages, and goes on answering them.
  void Hang();
  void Recover();

 private:
  Process process_;
};

}  // namespace korvale::endtoend
