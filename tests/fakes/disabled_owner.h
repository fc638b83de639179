#pragma once

#include "platform/types.h"
#include "tests/fakes/desktop_windows.h"

namespace korvale {

/// What Windows does with the owner of a message box or of a dialog of its own while that is up: it
/// takes no input, and then takes it again if it did before.
class DisabledOwner {
 public:
  DisabledOwner(DesktopWindows& desktop, WindowHandle owner)
      : desktop_(&desktop), owner_(owner != 0 && desktop.IsEnabled(owner) ? owner : 0) {
    if (owner_ != 0) desktop_->Enable(owner_, false);
  }
  ~DisabledOwner() {
    if (owner_ != 0) desktop_->Enable(owner_, true);
  }
  DisabledOwner(const DisabledOwner&) = delete;
  DisabledOwner& operator=(const DisabledOwner&) = delete;

 private:
  DesktopWindows* desktop_;
  WindowHandle owner_;
};

}  // namespace korvale
