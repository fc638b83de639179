#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <optional>
#include <string>

#include "tests/endtoend/harness/add_window_dialog.h"
#include "tests/endtoend/harness/installation.h"
#include "tests/endtoend/harness/keyboard.h"
#include "tests/endtoend/harness/running_korvale.h"
#include "tests/endtoend/harness/test_program.h"
#include "tests/endtoend/harness/wait.h"
#include "tests/endtoend/harness/window.h"

namespace korvale::endtoend {

/// One installation of Korvale and one program with windows, both gone after the test.
class KorvaleTest : public ::testing::Test {
 protected:
  /// Starts the installation as one that was used before, and waits until it is in front.
  /// Throws, and so ends the test, when that does not happen.
  void Start();
  void TearDown() override;

  Window Open(const char* title) { return program_.Open(title); }
  Window Open(const WindowSpec& spec) { return program_.Open(spec); }

  /// Brings the window to the front and waits until it is the Target Window.
  ::testing::AssertionResult WorkIn(Window window);
  /// Opens a window and works in it; throws, and so ends the test, when that fails.
  Window WorkInNew(const WindowSpec& spec);
  Window WorkInNew(const char* title) { return WorkInNew(WindowSpec{.title = title}); }
  /// Waits until the window is in front.
  ::testing::AssertionResult InFront(Window window);
  /// The window is in front for as long as three ticks, and no message is shown.
  ::testing::AssertionResult StaysInFront(Window window);
  /// Waits until the Target Window box shows that text.
  ::testing::AssertionResult Target(const std::string& title);
  /// Waits for a message box, compares its text, and presses OK.
  ::testing::AssertionResult Says(const std::string& text);

  /// Chooses from the menu bar: the menu's letter with Alt, then the letters of the entries.
  ::testing::AssertionResult Choose(UINT menu, std::initializer_list<UINT> entries);
  /// Waits until the settings hold that state of the main window.
  ::testing::AssertionResult Stored(const std::string& key, const std::string& value);
  /// Opens the Window menu from the main window's menu bar, or as a pop-up.
  ::testing::AssertionResult OpenWindowMenu();
  ::testing::AssertionResult PopUpWindowMenu();
  /// Tags the Target Window: opens the Add Window dialog with the menu.
  AddWindowDialog OpenAddWindow();
  /// Ends Korvale as a user does, with Alt+F4 in its main window.
  ::testing::AssertionResult Exit();

  Window main() { return korvale_->Main(); }

  Installation installation_;
  TestProgram program_;
  std::optional<RunningKorvale> korvale_;
};

/// "'Title' [Class]", for messages about windows.
std::string Describe(Window window);

}  // namespace korvale::endtoend
