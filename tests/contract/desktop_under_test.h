#pragma once

#include <memory>
#include <string>

#include "platform/types.h"
#include "platform/virtual_desktops.h"
#include "platform/window_api.h"

namespace korvale {

/// A window that a contract test opens.
struct ContractWindow {
  std::string title;
  std::string className = "Korvale.contract";
  WindowHandle owner = 0;
  bool popup = false;  ///< Carries WS_POPUP instead of a sizable frame.
  bool toolWindow = false;
  bool boxes = true;  ///< Minimize and maximize box; never with `popup`.
  bool visible = true;
  bool enabled = true;
  int children = 0;
};

/// A desktop, in memory or real, and windows of another program on it.
class DesktopUnderTest {
 public:
  /// Closes every window that is left.
  virtual ~DesktopUnderTest() = default;

  virtual WindowQueries& Queries() = 0;
  virtual WindowCommands& Commands() = 0;
  virtual VirtualDesktops& Desktops() = 0;

  /// Opens a window and, when it is visible, brings it to the foreground as the user does.
  virtual WindowHandle Open(const ContractWindow& window) = 0;
  virtual void Close(WindowHandle hwnd) = 0;
  virtual void Rename(WindowHandle hwnd, const std::string& title) = 0;
  /// Returns when everything that was asked for has happened.
  virtual void Settle() = 0;
};

/// Every test program that includes a contract of the desktop defines this once.
std::unique_ptr<DesktopUnderTest> MakeDesktopUnderTest();

}  // namespace korvale
