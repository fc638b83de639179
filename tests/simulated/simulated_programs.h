#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>

#include "tests/fakes/fake_desktop.h"
#include "tests/program/dice.h"

namespace korvale {

/// The other programs on the desktop and what their user and Windows do with their windows. Each
/// thing that happens is told in a few words, "" when there was no window for it.
class SimulatedPrograms {
 public:
  /// Both must outlive this.
  SimulatedPrograms(FakeDesktop& desktop, Dice& dice) : desktop_(&desktop), dice_(&dice) {}

  // simulated_programs.cpp
  std::string OpenWindow();
  std::string OpenDialog();
  std::string CloseWindow();
  /// Opens one that gets the handle of the window closed last.
  std::string ReuseHandle();
  std::string RenameWindow();
  std::string CountInTitle();
  std::string EnableOrDisable();
  std::string GoToWindow();
  std::string Minimize();
  std::string Maximize();
  std::string Restore();
  std::string HideOrReveal();

  // simulated_faults.cpp
  std::string HangOrRecover();
  std::string ShowGhost();
  std::string BeBusy();
  std::string LeaveNothingInFront();
  std::string LockForeground();
  std::string VisitShell();
  std::string SwitchDesktop();
  std::string SuspendOrWake();
  std::string CloakItself();
  std::string LoseVirtualDesktops();
  std::string EndOrStartShell();

  // What a step of Korvale's user meets.
  /// Windows refuses to change the foreground, also after an input of our own.
  bool RefusesForeground() const;
  /// Windows would refuse it to everybody but whoever is in front.
  bool GuardsForeground() const { return lock_ == ForegroundLock::kForGood; }
  /// Nobody can tell a window on another virtual desktop from one that has been put away.
  bool DesktopsAreLost() const { return desktopsAreLost_; }
  /// One of the windows dies, hangs or changes; called in the middle of something.
  std::string MeetFate();

  /// A title or a part of one.
  std::string SomeTitle();
  /// Whether this is or was the title of the window with that handle.
  bool WasCalled(WindowHandle hwnd, std::string_view title) const;
  /// How a window is written: its first title and its handle.
  std::string Name(WindowHandle hwnd) const;

 private:
  using Fits = std::function<bool(const FakeWindow&)>;
  using Places = std::array<WindowHandle, 12>;

  /// A window that fits; 0 when there is none. The choice depends little on which others there are.
  WindowHandle Some(const Fits& fits = {});
  WindowHandle* FreePlace();
  std::string OpenAt(WindowHandle* place, NewWindow options);
  NewWindow SomeKind();
  std::string Close(WindowHandle hwnd);
  FakeWindow* Find(WindowHandle hwnd) const { return desktop_->Windows().Find(hwnd); }

  FakeDesktop* desktop_;
  Dice* dice_;
  Places places_{};
  /// All titles that the windows with this handle have had.
  std::map<WindowHandle, std::set<std::string>> titles_;
  WindowHandle lastClosed_ = 0;
  ForegroundLock lock_ = ForegroundLock::kNone;
  bool shellIsGone_ = false;
  bool desktopsAreLost_ = false;
};

}  // namespace korvale
