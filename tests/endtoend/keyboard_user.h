#pragma once

#include "tests/endtoend/harness/color_dialog.h"
#include "tests/endtoend/options_test.h"

namespace korvale::endtoend {

/// A user without a mouse. Windows come to the front only by being started and by keys.
class KeyboardUser : public OptionsTest {
 protected:
  void SetUp() override;

  /// The control has the focus in the window in front, and can be seen.
  ::testing::AssertionResult FocusIs(Window form, Window control);
  /// The control shows the focus by a frame, too.
  static ::testing::AssertionResult ShowsFocusFrame(Window control);
  /// Presses the Tab key, which must lead to that control.
  ::testing::AssertionResult TabTo(Window form, Window control);

  /// Presses the hot key of a Tag; its window must come.
  ::testing::AssertionResult GoTo(int tag, Window window);
  ::testing::AssertionResult OpenPopUp(Chord chord);
  /// The dialog that an entry of the Window menu has opened.
  AddWindowDialog AddWindow();
  /// Chooses the options from a menu of the bar, and goes to that page.
  OptionsDialog OpenOptionsPage(UINT menu, UINT entry, Page page);
  /// Presses Enter, Esc or Space, and expects to work in the main window again, or where the user
  /// has come from.
  ::testing::AssertionResult Leave(Window form, UINT key);
  ::testing::AssertionResult LeaveTo(Window window, Window form, UINT key);
  /// How many of the entries of the menu with this letter are checked, as it looks on the screen.
  int Checked(UINT menu, size_t entries);
  static ::testing::AssertionResult HasColor(Window box, Rgb color);

  /// Asked before Korvale starts.
  const bool windows_keeps_options_key_ = !HotKeyIsFree(kDefaultOptionsKey);
  Window alpha_;
  Window beta_;
  Window letter_;
};

}  // namespace korvale::endtoend
