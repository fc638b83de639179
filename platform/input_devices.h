#pragma once

#include <cstdint>

#include "platform/types.h"

namespace korvale {

/// Mouse pointers over the program's windows.
enum class MousePointer : std::int16_t { kDefault = 0, kHourglass = 11, kCustom = 99 };

/// The user's mouse and keyboard, as far as the program controls them.
class InputDevices {
 public:
  virtual ~InputDevices() = default;

  /// The pointer over all windows of the program; kDefault leaves it to each window.
  virtual void SetCursor(MousePointer pointer) = 0;
  /// Presses and releases a key with the `shift` keys held, as the user does in this window; does
  /// nothing while it is not in front (SendInput).
  virtual void SendInput(WindowHandle hwnd, int virtualKey, unsigned shift) = 0;
  /// One mouse event without movement or buttons (SendInput). To Windows the program then has had
  /// the last input, which is one of the rights to change the foreground.
  virtual void SendMouseInput() = 0;
};

}  // namespace korvale
