#pragma once

#include <cstdint>
#include <memory>

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
  WindowHandle Find(frmMain& form);
  std::uint32_t Patience(frmMain& form);
  void BringForward(frmMain& form, WindowHandle copy);

  Platform* platform_;
  std::unique_ptr<InstanceLock> lock_;
  bool alone_ = false;
};

}  // namespace korvale
