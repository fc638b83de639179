#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/types.h"

namespace korvale {

/// A timer of the main window. Its tag is "ON" when it is meant to run.
class TimerControl {
 public:
  virtual ~TimerControl() = default;

  virtual bool Enabled() const = 0;
  virtual void SetEnabled(bool enabled) = 0;
  virtual std::string Tag() const = 0;
  virtual void SetTag(std::string_view tag) = 0;
  /// In milliseconds; restarts a running timer.
  virtual void SetInterval(std::uint32_t milliseconds) = 0;
};

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
  /// The Window menu is popped up by its hot key, for which the main window is in front without
  /// having the focus.
  virtual bool WindowMenuPoppedUp() = 0;
  /// The Enabled property of the main window (EnableWindow).
  virtual void SetMainEnabled(bool enabled) = 0;

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
