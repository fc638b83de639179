#include <algorithm>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/simulated/simulated_programs.h"

namespace korvale {
namespace {

constexpr std::array kShellClasses = {"Shell_TrayWnd", "Progman", "Windows.UI.Core.CoreWindow"};

bool Hangs(const FakeWindow& window) { return window.hung; }

}  // namespace

std::string SimulatedPrograms::HangOrRecover() {
  const bool recover = dice_->OneIn(2);
  const WindowHandle hwnd =
      recover ? Some(Hangs) : Some([](const FakeWindow& window) { return !window.hung; });
  if (hwnd == 0) return "";
  desktop_->SetHung(hwnd, !recover);
  return (recover ? "recovers: " : "hangs: ") + Name(hwnd);
}

std::string SimulatedPrograms::ShowGhost() {
  const WindowHandle hwnd = Some([this](const FakeWindow& window) {
    return window.ghost == 0 && desktop_->Windows().IsVisible(window.handle) && !window.iconic;
  });
  if (hwnd == 0) return "";
  desktop_->ShowGhost(hwnd);
  return "hangs, and Windows shows a ghost of " + Name(hwnd);
}

std::string SimulatedPrograms::BeBusy() {
  const WindowHandle hwnd = Some();
  const int milliseconds = 20 << dice_->Below(7);
  if (hwnd == 0) return "";
  desktop_->SetBusy(hwnd, static_cast<std::uint64_t>(milliseconds));
  return "is busy for " + std::to_string(milliseconds) + " ms: " + Name(hwnd);
}

std::string SimulatedPrograms::LeaveNothingInFront() {
  desktop_->LoseForeground();
  return "has nothing in the foreground";
}

std::string SimulatedPrograms::LockForeground() {
  constexpr std::array kLocks = {ForegroundLock::kUntilInput, ForegroundLock::kForGood};
  lock_ = lock_ == ForegroundLock::kNone ? dice_->Pick(kLocks) : ForegroundLock::kNone;
  desktop_->LockForeground(lock_);
  if (lock_ == ForegroundLock::kNone) return "unlocks the foreground";
  return lock_ == ForegroundLock::kForGood ? "locks the foreground"
                                           : "locks the foreground until an input";
}

bool SimulatedPrograms::RefusesForeground() const {
  const FakeWindow* const front = Find(desktop_->Windows().Foreground());
  return desktop_->Windows().IsForegroundLocked() &&
         (lock_ == ForegroundLock::kForGood || front->elevated);
}

/// A click into the taskbar or onto the bare desktop, or a look into Start.
std::string SimulatedPrograms::VisitShell() {
  const std::string name = dice_->Pick(kShellClasses);
  for (const WindowHandle hwnd : desktop_->Windows().TopLevel()) {
    if (Find(hwnd)->className != name) continue;
    desktop_->UserActivates(hwnd);
    return "is left for " + name;
  }
  return "";
}

std::string SimulatedPrograms::SwitchDesktop() {
  const int number = 1 + dice_->Below(3);
  const auto front = dice_->OneIn(3) ? FrontOfLeftDesktop::kStays : FrontOfLeftDesktop::kGoes;
  if (number == desktop_->Windows().CurrentDesktop()) return "";
  desktop_->UserSwitchesDesktop(number, front);
  return "is left for virtual desktop " + std::to_string(number) +
         (front == FrontOfLeftDesktop::kStays ? ", still in front" : "");
}

std::string SimulatedPrograms::SuspendOrWake() {
  // A Store program's window has no owner.
  const WindowHandle hwnd = Some([](const FakeWindow& window) { return window.owner == 0; });
  if (hwnd == 0) return "";
  const bool suspend = Find(hwnd)->cloaked == 0;
  desktop_->SetSuspended(hwnd, suspend);
  return (suspend ? "is suspended: " : "wakes: ") + Name(hwnd);
}

std::string SimulatedPrograms::CloakItself() {
  const WindowHandle hwnd = Some();
  if (hwnd == 0) return "";
  const bool cloak = Find(hwnd)->cloaked == 0;
  desktop_->SetCloakedByProgram(hwnd, cloak);
  return (cloak ? "cloaks itself: " : "uncloaks itself: ") + Name(hwnd);
}

std::string SimulatedPrograms::LoseVirtualDesktops() {
  desktopsAreLost_ = !desktopsAreLost_;
  desktop_->LoseVirtualDesktopManager(desktopsAreLost_ ? "" : "none of its calls");
  return desktopsAreLost_ ? "has no manager of virtual desktops" : "has the manager again";
}

std::string SimulatedPrograms::EndOrStartShell() {
  shellIsGone_ = !shellIsGone_;
  if (!shellIsGone_) {
    desktop_->OpenShell();
    return "finds Explorer started";
  }
  const std::vector<WindowHandle> all = desktop_->Windows().TopLevel();
  for (const WindowHandle hwnd : all) {
    const FakeWindow* const window = Find(hwnd);
    if (window == nullptr || window->process != kOtherProcess) continue;
    const bool shells = std::ranges::find(kShellClasses, window->className) != kShellClasses.end();
    if (shells) desktop_->Close(hwnd);
  }
  return "finds Explorer gone";
}

std::string SimulatedPrograms::MeetFate() {
  switch (dice_->Below(5)) {
    case 0:
      return CloseWindow();
    case 1:
      return HangOrRecover();
    case 2:
      return EnableOrDisable();
    case 3:
      return HideOrReveal();
    default:
      return RenameWindow();
  }
}

}  // namespace korvale
