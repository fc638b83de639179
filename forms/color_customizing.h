#pragma once

#include <functional>
#include <optional>

#include "app/core/message_boxes.h"
#include "platform/form_events.h"
#include "platform/input_devices.h"
#include "platform/menu_model.h"
#include "platform/system_api.h"
#include "ui/control.h"

namespace korvale {

/// Customize Colors: the mode in which a click on one of the main window's fields changes its
/// colour. On while its menu item is checked; off at every start.
class ColorCustomizing {
 public:
  /// What the mode needs of the main window. `lastColor` is the colour that was
  /// last chosen in the colour dialog.
  struct Parts {
    MenuItem& item;
    SystemApi& system;
    MessageBoxes& messages;
    const Color& lastColor;
    std::function<MousePointer()> pointer;
    std::function<void(MousePointer)> setPointer;
    std::function<std::optional<Color>(Color initial)> showColorPalette;
    std::function<void()> showColors;
    std::function<void()> showTip;
  };

  explicit ColorCustomizing(Parts parts) : parts_(std::move(parts)) {}

  bool On() const { return parts_.item.checked; }
  /// Turns the mode on, which shows its pointer and its tip, or off.
  void Toggle();
  /// Turns the mode off, as every other menu command does.
  void End();
  /// The mouse over a field, `color` being the field's stored colour. While the mode is on, a click
  /// with the left button changes it: to a colour that the user chooses, or with Alt to the last
  /// one chosen.
  void Mouse(const Control& field, Color& color, const MouseInput& input);

 private:
  void Move(const Control& field, const MouseInput& input);
  void Click(Color& color);
  void ChangeColor(Color& color);

  Parts parts_;
  unsigned shift_ = kNoShift;  ///< Held at the last press while the pointer was the mode's.
  int pressed_ = 0;            ///< The field that the left button went down on, 0 = none.
};

}  // namespace korvale
