#include "tests/program/simulated_programs.h"

#include <array>

#include "platform/win32_constants.h"

namespace korvale {
namespace {

constexpr std::size_t kMostWindows = 12;

constexpr std::array kTitles = {"Alpha",
                                "one - Editor",
                                "two - Editor",
                                "one - draft - Viewer",
                                "Save & Close",
                                "*** - x",
                                "x - ***",
                                " - ",
                                "Übersicht - Größe",
                                "Alphabet",
                                "",
                                "Korvale - Work",
                                "&1  Alpha",
                                "a title of more than thirty characters - Editor"};
constexpr std::array kClasses = {"Editor", "Viewer", "#32770", "Static"};

}  // namespace

std::string SimulatedPrograms::SomeTitle() { return dice_->Pick(kTitles); }

std::string SimulatedPrograms::Act() {
  std::erase_if(open_,
                [&](WindowHandle hwnd) { return desktop_->Windows().Find(hwnd) == nullptr; });
  if (open_.size() < 2) return OpenWindow();
  if (locked_ && dice_->OneIn(3)) return LockForeground();
  const WindowHandle hwnd = dice_->Pick(open_);
  switch (dice_->Below(16)) {
    case 0:
    case 1:
      return open_.size() < kMostWindows ? OpenWindow() : CloseWindow(hwnd);
    case 2:
      return CloseWindow(hwnd);
    case 3:
    case 4:
      return ChangeWindow(hwnd);
    case 5:
    case 6:
      return Show(hwnd);
    case 7:
      return Bother(hwnd);
    case 8:
      return dice_->OneIn(4) ? LockForeground() : Show(hwnd);
    case 9:
      return VisitShell();
    case 10:
      return dice_->OneIn(2) ? SwitchDesktop() : Suspend(hwnd);
    default:
      if (!desktop_->Windows().IsVisible(hwnd)) return Show(hwnd);
      desktop_->SetSuspended(hwnd, false);
      desktop_->UserActivates(hwnd);
      return "activates " + desktop_->Log().Window(hwnd);
  }
}

std::string SimulatedPrograms::OpenWindow() {
  NewWindow options;
  options.className = dice_->Pick(kClasses);
  if (dice_->OneIn(6)) options.exStyle |= win32::kWsExToolWindow;
  if (dice_->OneIn(9)) options.exStyle |= win32::kWsExTopmost;
  if (dice_->OneIn(9)) options.style |= win32::kDsModalFrame;
  options.children = dice_->OneIn(5) ? 0 : 1;
  options.enabled = !dice_->OneIn(12);
  options.iconic = dice_->OneIn(8);
  options.zoomed = dice_->OneIn(8);
  options.activate = !dice_->OneIn(5);
  options.elevated = dice_->OneIn(9);
  elevated_ = elevated_ || options.elevated;
  options.extraTextLength = dice_->OneIn(8) ? 5 : 0;
  if (!open_.empty() && dice_->OneIn(5)) options.owner = dice_->Pick(open_);
  if (dice_->OneIn(2) && desktop_->Windows().Find(lastClosed_) == nullptr) {
    options.reuseHandle = lastClosed_;
  }
  const std::string title = SomeTitle();
  open_.push_back(desktop_->Open(title, options));
  return "opens [" + title + "] as " + desktop_->Log().Window(open_.back());
}

std::string SimulatedPrograms::CloseWindow(WindowHandle hwnd) {
  const std::string name = desktop_->Log().Window(hwnd);
  desktop_->Close(hwnd);
  desktop_->Log().NameWindow(hwnd, "");
  lastClosed_ = hwnd;
  return "closes " + name;
}

std::string SimulatedPrograms::ChangeWindow(WindowHandle hwnd) {
  const std::string name = desktop_->Log().Window(hwnd);
  if (dice_->OneIn(3)) {
    const bool enable = !desktop_->Windows().Find(hwnd)->enabled;
    desktop_->SetEnabled(hwnd, enable);
    return (enable ? "enables " : "disables ") + name;
  }
  const std::string title = SomeTitle();
  desktop_->Rename(hwnd, title);
  return "renames " + name + " to [" + title + "]";
}

std::string SimulatedPrograms::Show(WindowHandle hwnd) {
  const std::string name = desktop_->Log().Window(hwnd);
  const FakeWindow& window = *desktop_->Windows().Find(hwnd);
  if (!window.visible) {
    desktop_->Reveal(hwnd);
    return "reveals " + name;
  }
  switch (dice_->Below(5)) {
    case 0:
      desktop_->Hide(hwnd);
      return "hides " + name;
    case 1:
      desktop_->UserMaximizes(hwnd);
      return "maximizes " + name;
    case 2:
      desktop_->UserRestores(hwnd);
      return "restores " + name;
    default:
      desktop_->UserMinimizes(hwnd);
      return "minimizes " + name;
  }
}

std::string SimulatedPrograms::Bother(WindowHandle hwnd) {
  const std::string name = desktop_->Log().Window(hwnd);
  const FakeWindow& window = *desktop_->Windows().Find(hwnd);
  if (window.hung || dice_->OneIn(4)) {
    const bool hang = !window.hung;
    desktop_->SetHung(hwnd, hang);
    return (hang ? "hangs " : "revives ") + name;
  }
  if (dice_->OneIn(3)) {
    desktop_->LoseForeground();
    return "has nothing in the foreground";
  }
  if (window.enabled) {
    open_.push_back(desktop_->OpenModalDialog(hwnd, SomeTitle()));
    return "opens a dialog of " + name;
  }
  const WindowHandle owner = window.owner;
  if (owner == 0) return ChangeWindow(hwnd);
  desktop_->SetEnabled(owner, true);
  return CloseWindow(hwnd);
}

/// A click into the taskbar or onto the bare desktop, or a look into Start.
std::string SimulatedPrograms::VisitShell() {
  constexpr std::array kPlaces = {"Shell_TrayWnd", "Progman", "Windows.UI.Core.CoreWindow"};
  const std::string name = dice_->Pick(kPlaces);
  for (const WindowHandle hwnd : desktop_->Windows().TopLevel()) {
    if (desktop_->Windows().Find(hwnd)->className != name) continue;
    desktop_->UserActivates(hwnd);
    break;
  }
  return "is left for " + name;
}

std::string SimulatedPrograms::SwitchDesktop() {
  const int number = 1 + dice_->Below(3);
  desktop_->UserSwitchesDesktop(number);
  return "are left for virtual desktop " + std::to_string(number);
}

std::string SimulatedPrograms::Suspend(WindowHandle hwnd) {
  // A Store program's window has no owner.
  if (desktop_->Windows().Find(hwnd)->owner != 0) return ChangeWindow(hwnd);
  const bool suspend = desktop_->Windows().Find(hwnd)->cloaked == 0;
  desktop_->SetSuspended(hwnd, suspend);
  return (suspend ? "suspends " : "wakes ") + desktop_->Log().Window(hwnd);
}

std::string SimulatedPrograms::LockForeground() {
  locked_ = !locked_;
  const ForegroundLock lock =
      dice_->OneIn(2) ? ForegroundLock::kUntilInput : ForegroundLock::kForGood;
  desktop_->LockForeground(locked_ ? lock : ForegroundLock::kNone);
  return locked_ ? "locks the foreground" : "unlocks the foreground";
}

}  // namespace korvale
