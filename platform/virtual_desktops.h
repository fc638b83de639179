#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "platform/types.h"

namespace korvale {

/// Names a virtual desktop (a GUID).
using VirtualDesktopId = std::array<std::uint8_t, 16>;

/// Stands for a window without a desktop of its own (GUID_NULL).
inline constexpr VirtualDesktopId kNoVirtualDesktop = {};

/// The virtual desktops among which the user has divided the windows. Every method is that of
/// IVirtualDesktopManager. Meanwhile Windows may deliver sent messages, so windows, forms and
/// records can have changed afterwards.
class VirtualDesktops {
 public:
  virtual ~VirtualDesktops() = default;

  /// True also for a window that belongs to no desktop. Nothing when Windows does not answer.
  virtual std::optional<bool> IsWindowOnCurrentVirtualDesktop(WindowHandle hwnd) = 0;
  /// kNoVirtualDesktop for a window that has no desktop of its own, such as those of the shell and
  /// most that have an owner. A window that the user has put on every desktop has an id of its own
  /// kind. Nothing when Windows does not answer.
  virtual std::optional<VirtualDesktopId> GetWindowDesktopId(WindowHandle hwnd) = 0;
  /// Moves a window of this process, and what it owns; false when that is not possible.
  virtual bool MoveWindowToDesktop(WindowHandle hwnd, const VirtualDesktopId& desktop) = 0;
};

}  // namespace korvale
