#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "app/core/instance_lock.h"
#include "forms/main_form.h"
#include "platform/platform.h"

namespace korvale {

/// What a start does about another copy of the same installation.
class OtherCopy {
 public:
  explicit OtherCopy(Platform& platform) : platform_(&platform) {}

  /// Takes the installation's lock. A copy that was started in the same instant holds it while its
  /// window is still hidden, one that is just ending while it has none any more: waits until that
  /// one is seen or gone.
  void WaitFor(frmMain& form);

  /// No other copy of this installation runs or is about to.
  bool Alone() const { return alone_; }

  /// When another copy runs: tells the user, brings that one forward, and leaves with ProgramEnded.
  void RefuseToRunBeside(frmMain& form);

 private:
  using InstanceSearch = std::function<WindowHandle(
      WindowEnumeration&, const std::string& className, const std::string& caption)>;

  WindowHandle Find(frmMain& form);
  WindowHandle FindHidden(frmMain& form, const WindowEnumeration::Test& qualifies);
  WindowHandle FindByCaption(frmMain& form, const InstanceSearch& search);
  std::uint32_t Patience(frmMain& form);
  void BringForward(frmMain& form, WindowHandle copy);

  Platform* platform_;
  std::unique_ptr<InstanceLock> lock_;
  bool alone_ = false;
  /// Captions that the main window of another copy may have.
  std::vector<std::string> captions_;
};

}  // namespace korvale
