#pragma once

#include <functional>
#include <string>

#include "app/core/error_reporting.h"
#include "app/core/message_boxes.h"
#include "desktop/foreground_tracker.h"
#include "desktop/main_window.h"
#include "desktop/previous_window.h"
#include "desktop/tag_list.h"
#include "desktop/window_actions.h"
#include "desktop/window_filter.h"
#include "hotkeys/hot_key_actions.h"
#include "hotkeys/hot_key_toggle.h"
#include "hotkeys/suspension.h"
#include "platform/window_api.h"
#include "util/forms.h"

namespace korvale {

/// What the dispatcher works with.
struct HotKeyDispatchParts {
  WindowQueries& windows;
  WindowCommands& commands;
  MainWindow& mainWindow;
  const LoadedForms& forms;
  TagListPasses& tagPasses;
  const WindowFilter& filter;
  WindowActions& windowActions;
  ForegroundTracker& tracker;
  PreviousWindow& previous;
  Suspension& suspension;
  MessageBoxes& messages;
  HotKeyActions& actions;
  HotKeyToggle& toggle;
  ErrorReporters& errors;
};

/// Carries out a hot key by its name.
class HotKeyDispatch {
 public:
  HotKeyDispatch(HotKeyDispatchParts parts, std::string productName, std::string programTitle);

  /// Returns the description of the hot key; performs its action only when `booDoAction` is true.
  /// While a message box or dialog of the program is shown it does neither and tells the user so.
  /// With `booReturnWindow` the title of the window concerned is returned instead:
  /// `strSupplyWindowText` unless that is empty, else of the main window while it has the focus,
  /// else of the target window. A name of no hot key makes the foreground window the target. An
  /// error is reported and gives ""; only ProgramEnded leaves this call.
  std::string udmProcessHotKey(const std::string& name, bool booDoAction, bool booReturnWindow,
                               const std::string& strSupplyWindowText);

 private:
  std::string Process(const std::string& name, bool doAction, bool returnWindow,
                      const std::string& suppliedText);
  void ShowSuspensionNotice();
  WindowTriple ChooseWindow(const std::string& suppliedText);
  bool IdentifyForeground(WindowTriple& chosen);
  bool IsIdentified(const WindowTriple& window);
  void MakeTarget(const WindowTriple& window);
  void ShowNotRecognized(const std::string& title);
  void Perform(const std::string& name);
  void MinimizeOrMaximize(const std::string& name);
  void SelectTag(int tag);
  void ShowOptions();
  void PopUpWindowMenu();

  HotKeyDispatchParts parts_;
  std::string productName_;
  std::string programTitle_;
};

}  // namespace korvale
