#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/menu_model.h"
#include "platform/types.h"

namespace korvale {

/// What Windows itself shows until the user has answered: message boxes, the colour dialog and
/// pop-up menus.
class SystemDialogs {
 public:
  virtual ~SystemDialogs() = default;

  /// A message box; returns the number of the pressed button. `style` is a sum of MB_ values.
  virtual std::int16_t MessageBoxW(WindowHandle owner, const std::string& text,
                                   const std::string& title, std::int32_t style) = 0;
  /// The colour dialog; nothing when the user cancels it. Colours are 0x00BBGGRR.
  virtual std::optional<Color> ChooseColorW(WindowHandle owner, Color initial) = 0;
  /// Pops a menu of the form up at the mouse position and returns when it has closed; the choice
  /// has then been told through OnMenuClicked (TrackPopupMenuEx).
  virtual void TrackPopupMenuEx(WindowHandle hwnd, MenuItem& menu) = 0;
  /// Closes the menu that is open in the program, of a bar or popped up; false when there is none.
  /// The loop that shows it returns later, without a choice (EndMenu).
  virtual bool EndMenu() = 0;
};

}  // namespace korvale
