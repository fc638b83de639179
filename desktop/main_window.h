#pragma once

#include <string>
#include <string_view>

#include "platform/clock.h"
#include "platform/types.h"

namespace korvale {

/// Tag of the main window while it is the tracked foreground window.
inline constexpr const char* kGotFocus = "GOTFOCUS";

/// What the routines below the forms need of the main window.
class MainWindow {
 public:
  virtual ~MainWindow() = default;

  virtual WindowHandle MainHandle() const = 0;
  virtual std::string MainCaption() const = 0;
  /// kGotFocus while the main window itself is the tracked foreground window, otherwise "".
  virtual std::string FocusTag() const = 0;
  virtual void SetFocusTag(std::string_view tag) = 0;
  /// The Window menu is popped up by its hot key, or about to be, for which the main window is in
  /// front without having the focus.
  virtual bool WindowMenuPoppedUp() = 0;
  /// The Enabled property of the main window (EnableWindow).
  virtual void SetMainEnabled(bool enabled) = 0;

  /// Its tag is "ON" when it is meant to run.
  virtual TimerControl& tmrWindow() = 0;
  /// False stops all timers of the main window, true starts those whose tag is "ON".
  virtual void udmTimersEnabled(bool booTrueFalse) = 0;

  /// Fills txtWindow and txtWindowClass.
  virtual void ShowTargetWindow(const std::string& title, const std::string& className) = 0;
  /// Enables mnuWindowPreviousWindowAlwaysOnTop, mnuWindowParentList 0 and mnuWindowAddToList 2.
  virtual void EnablePreviousWindowItems(bool enabled) = 0;
  virtual void CheckAlwaysOnTop(bool checked) = 0;
  virtual void CheckPreviousWindowAlwaysOnTop(bool checked) = 0;
};

}  // namespace korvale
