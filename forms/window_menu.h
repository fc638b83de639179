#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "desktop/desktop.h"
#include "forms/add_window_context.h"
#include "ui/form.h"

namespace korvale {

/// The Window menu: the user's list of tagged windows and the place where Tags are used.
class WindowMenu {
 public:
  /// `form` has the menu and refreshes its menus after each command; `alwaysOnTop` is its live
  /// state, `showAddWindow` shows the Add Window dialog.
  WindowMenu(Desktop& desktop, Form& form, bool& alwaysOnTop,
             std::function<void(AddWindowMode)> showAddWindow);

  /// Runs each time the menu opens, from the menu bar or as a pop-up: brings its state and captions
  /// up to date.
  void mnuWindow_Click();
  /// Selects the window of Tag `Index` (0-9).
  void mnuWindowParentList_Click(std::int16_t Index);
  /// `Index` is kAddThisWindow or kAddPreviousWindow.
  void mnuWindowAddToList_Click(std::int16_t Index);
  void mnuWindowAlwaysOnTop_Click();
  void mnuWindowPreviousWindowAlwaysOnTop_Click();
  void mnuWindowMinimizeAll_Click();
  void mnuWindowRestoreAll_Click();

 private:
  /// Whether the Previous Window can be added; tells the user why not.
  bool CheckPreviousOrTell();

  Desktop* desktop_;
  Form* form_;
  bool* alwaysOnTop_;
  std::function<void(AddWindowMode)> showAddWindow_;
};

/// A title for a menu caption: at most 30 characters; a longer one becomes its first 27 and "...".
std::string ShortTitle(const std::string& title);

}  // namespace korvale
