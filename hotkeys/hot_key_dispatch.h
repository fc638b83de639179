#pragma once

#include <string>

#include "app/core/error_reporting.h"
#include "desktop/desktop.h"
#include "hotkeys/hot_key_actions.h"
#include "hotkeys/hot_key_processor.h"
#include "hotkeys/hot_key_toggle.h"
#include "hotkeys/suspension.h"

namespace korvale {

/// Carries out a hot key by its name.
class HotKeyDispatch : public HotKeyProcessor {
 public:
  HotKeyDispatch(Desktop& desktop, Suspension& suspension, HotKeyActions& actions,
                 HotKeyToggle& toggle, ErrorReporters& errors);

  /// Returns the description of the hot key; performs its action only when `booDoAction` is true.
  /// While a message box or dialog of the program is shown, does neither and tells the user so.
  /// With `booReturnWindow` the title of the window concerned is returned instead:
  /// `strSupplyWindowText` unless that is empty, else that of the main window while it has the
  /// focus, else that of the target window. A name that belongs to no hot key makes the foreground
  /// window the target. An error is reported and gives ""; only ProgramEnded leaves this call.
  std::string udmProcessHotKey(const std::string& name, bool booDoAction, bool booReturnWindow,
                               const std::string& strSupplyWindowText) override;

 private:
  std::string Process(const std::string& name, bool doAction, bool returnWindow,
                      const std::string& suppliedText);
  void ShowSuspensionNotice();
  void BringNoticeToUser(WindowHandle notice);
  WindowTriple ChooseWindow(const std::string& suppliedText);
  bool IdentifyForeground(WindowTriple& chosen);
  void ShowNotRecognized(const std::string& title);
  void Perform(const std::string& name);
  void MinimizeOrMaximize(const std::string& name);
  void SelectTag(int tag);
  void ShowOptions();
  RequestResult BringForwardForMenu(WindowHandle main);
  void PopUpWindowMenu();

  Desktop* desktop_;
  Suspension* suspension_;
  HotKeyActions* actions_;
  HotKeyToggle* toggle_;
  ErrorReporters* errors_;
};

}  // namespace korvale
