#pragma once

#include <string>

#include "platform/form_model.h"
#include "platform/types.h"

namespace korvale {

/// What a desktop reports about the windows of the headless host, whatever the cause.
class DesktopListener {
 public:
  virtual ~DesktopListener() = default;

  /// The window is the active one now.
  virtual void WindowActivated(WindowHandle hwnd) = 0;
  /// The window was minimized, maximized or restored.
  virtual void WindowStateChanged(WindowHandle hwnd, ShowState state) = 0;
};

/// The desktop on which the headless host's windows stand; it decides who is active.
class DesktopWindows {
 public:
  virtual ~DesktopWindows() = default;

  /// The listener hears of every window made here from now on.
  virtual void SetListener(DesktopListener* listener) = 0;

  /// Makes a hidden window; `children` counts its child windows.
  virtual WindowHandle Create(const FormState& form, int children) = 0;
  /// Makes, shows and activates a message box.
  virtual WindowHandle OpenBox(WindowHandle owner, const std::string& title) = 0;
  virtual void Destroy(WindowHandle hwnd) = 0;
  virtual void SetTitle(WindowHandle hwnd, const std::string& title) = 0;
  virtual void SetPlace(WindowHandle hwnd, const TwipsRect& place) = 0;
  virtual void Enable(WindowHandle hwnd, bool enable) = 0;
  /// `command` is one of the SW_ values.
  virtual void Show(WindowHandle hwnd, int command) = 0;
  /// Brings the window to the front and activates it, as a click on it does.
  virtual void Activate(WindowHandle hwnd) = 0;
  /// The program has sent an input of its own.
  virtual void TakeInput() = 0;

  virtual bool IsShown(WindowHandle hwnd) const = 0;
  virtual bool IsEnabled(WindowHandle hwnd) const = 0;
  virtual ShowState State(WindowHandle hwnd) const = 0;
  virtual std::string Title(WindowHandle hwnd) const = 0;
  virtual std::string ClassName(WindowHandle hwnd) const = 0;
  /// The window of any program that has the keyboard, 0 = none.
  virtual WindowHandle Active() const = 0;
};

}  // namespace korvale
