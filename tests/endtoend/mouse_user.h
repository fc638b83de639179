#pragma once

#include <string>
#include <vector>

#include "tests/endtoend/harness/menu_picture.h"
#include "tests/endtoend/options_test.h"

namespace korvale::endtoend {

/// A user who has only a mouse, and looks at the menus.
class MouseUser : public OptionsTest {
 protected:
  enum Menu : size_t { kFile, kView, kTools, kWindow, kHelp };

  /// Entries of the menus, counted from 0; separators do not count.
  enum ViewEntry : size_t { kViewMenu, kViewTarget, kViewColors, kViewDefaults, kViewOptions };
  enum WindowEntry : size_t { kOnTop, kOtherOnTop, kMinimizeAll, kRestoreAll, kTag0, kTag1, kTag2 };

  static void ClickOnScreen(POINT at) { ClickAt(Window(GetDesktopWindow()), at); }

  /// Opens a menu of the bar; its entries, once there are so many.
  std::vector<SeenEntry> OpenMenuOf(Menu menu, size_t count);
  ::testing::AssertionResult ChooseByMouse(Menu menu, size_t entry, size_t count);
  /// The same of the Window menu, with its Tags.
  ::testing::AssertionResult ChooseFromWindowMenu(size_t entry);

  /// Clicks in the window, which is on the screen, and expects to work in it.
  ::testing::AssertionResult GoToByClick(Window window);
  static ::testing::AssertionResult PickEntry(Window list, int entry);
  static ::testing::AssertionResult Toggle(Window box, bool checked);
  /// Clicks a button that closes its window, and expects to work in the main window again.
  ::testing::AssertionResult LeaveBy(Window form, Window button);
  /// Chooses the options from the Tools menu, and clicks the tab of that page.
  OptionsDialog OpenOptionsOn(Page page);
  /// Chooses the last entry of the Window menu.
  AddWindowDialog AddPrevious();
  /// Opens a window where nothing covers it.
  Window OpenAt(int left, const WindowSpec& spec);

  size_t tags_ = 0;
  Window alpha_;
  Window beta_;
  Window letter_;
};

}  // namespace korvale::endtoend
