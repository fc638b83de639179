#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tests/fakes/fake_desktop.h"
#include "tests/program/dice.h"

namespace korvale {

/// The other programs on the desktop and what their user does with their windows.
class SimulatedPrograms {
 public:
  /// Both must outlive this.
  SimulatedPrograms(FakeDesktop& desktop, Dice& dice) : desktop_(&desktop), dice_(&dice) {}

  /// Lets one thing happen and returns what it was.
  std::string Act();
  /// Windows refuses to change the foreground.
  bool ForegroundLocked() const { return locked_; }
  /// A program may run as administrator.
  bool RunElevated() const { return elevated_; }

  /// A title or a part of one.
  std::string SomeTitle();

 private:
  std::string OpenWindow();
  std::string CloseWindow(WindowHandle hwnd);
  std::string ChangeWindow(WindowHandle hwnd);
  std::string Show(WindowHandle hwnd);
  std::string Bother(WindowHandle hwnd);
  std::string VisitShell();
  std::string SwitchDesktop();
  std::string Suspend(WindowHandle hwnd);
  std::string LockForeground();

  FakeDesktop* desktop_;
  Dice* dice_;
  std::vector<WindowHandle> open_;
  WindowHandle lastClosed_ = 0;
  bool locked_ = false;
  bool elevated_ = false;
};

}  // namespace korvale
