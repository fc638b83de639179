#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "app/core/identity.h"
#include "app/core/instance_lock.h"
#include "desktop/desktop.h"
#include "platform/platform.h"

namespace korvale {

/// What start-up does about another copy of the same installation.
class OtherCopy {
 public:
  explicit OtherCopy(Platform& platform) : platform_(&platform) {}

  /// Takes the installation's lock. A copy that was started in the same instant holds it before its
  /// window is shown, one that is ending still holds it after its window is gone: waits until that
  /// copy can be seen or is gone.
  void WaitFor(Desktop& desktop, const ProgramIdentity& identity);

  /// No other copy of this installation runs or is about to.
  bool Alone() const { return alone_; }

  /// The main windows of all copies of Korvale, this one's included, topmost first. While it
  /// starts, its own is hidden, so that a search for visible ones passes over it.
  WindowHandles FindAll(Desktop& desktop);
  /// When another copy of this installation is among `copies`, tells the user, brings it forward
  /// and returns true: this one must end.
  bool GiveWay(Desktop& desktop, const WindowHandles& copies);

 private:
  bool IsSeenOrLate(Desktop& desktop, std::uint32_t waited);
  WindowHandle FindByCaption(Desktop& desktop, const WindowHandles& copies, bool visible,
                             const WindowEnumeration::Test& qualifies = WindowEnumeration::Any);
  WindowHandle Find(Desktop& desktop, const WindowHandles& copies);
  void BringForward(Desktop& desktop, WindowHandle copy);

  Platform* platform_;
  std::unique_ptr<InstanceLock> lock_;
  bool alone_ = false;
  /// Captions that the main window of another copy may have.
  std::vector<std::string> captions_;
};

}  // namespace korvale
