#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "app/core/message_boxes.h"
#include "desktop/foreground_tracker.h"
#include "desktop/main_window.h"
#include "desktop/previous_window.h"
#include "desktop/tag_list.h"
#include "desktop/window_actions.h"
#include "desktop/window_enumeration.h"
#include "forms/add_window_context.h"
#include "platform/menu_model.h"
#include "platform/window_api.h"

namespace korvale {

/// What the Window menu works with.
struct WindowMenuParts {
  WindowQueries& windows;
  WindowCommands& commands;
  MainWindow& mainWindow;
  WindowEnumeration& enumeration;
  WindowActions& actions;
  ForegroundTracker& tracker;
  TagList& tags;
  PreviousWindow& previous;
  MessageBoxes& messages;
  MenuBar& menus;
  /// The live always-on-top state of the main window.
  bool& alwaysOnTop;
  /// Refreshes the main window's menus as after the menu command "mnu".
  std::function<void()> refreshMenus;
  /// Shows the Add Window dialog for the mode set before.
  std::function<void(AddWindowMode)> showAddWindow;
};

/// The Window menu: the user's list of tagged windows and the place where Tags are used.
class WindowMenu {
 public:
  WindowMenu(WindowMenuParts parts, std::string applicationTitle);

  /// Runs each time the menu opens, from the menu bar or as a pop-up: brings its state and captions
  /// up to date.
  void mnuWindow_Click();
  /// Selects the window of Tag `Index` (0-9).
  void mnuWindowParentList_Click(std::int16_t Index);
  /// 1 adds the main window, 2 the Previous Window.
  void mnuWindowAddToList_Click(std::int16_t Index);
  void mnuWindowAlwaysOnTop_Click();
  void mnuWindowPreviousWindowAlwaysOnTop_Click();
  void mnuWindowMinimizeAll_Click();
  void mnuWindowRestoreAll_Click();

  /// True while a search over the windows must not be started.
  bool windowSearch = false;
  /// The window to which an entry has last led; 0 = none since this was cleared.
  WindowHandle selected = 0;

 private:
  void SelectPrevious();
  void SelectTag(MenuItem& entry, std::size_t slot);
  ActivationResult ActivateTag(MenuItem& entry, std::size_t slot, bool reportFailure, bool act);
  ActivationResult ActivateOrSearch(MenuItem& entry, std::size_t slot);
  void TellFailure(MenuItem& entry, std::size_t slot, ActivationResult result);
  void MoveRecordToSelected(const MenuItem& entry);
  bool PreviousCanBeAdded();
  MenuItem& Item(const char* name, int index = -1);

  WindowMenuParts parts_;
  std::string applicationTitle_;
};

/// A title for a menu caption: at most 30 characters, longer ones are their first 27 and "...".
std::string ShortTitle(const std::string& title);

}  // namespace korvale
