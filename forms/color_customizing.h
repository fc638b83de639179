#pragma once

#include "forms/options_owner.h"
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
  /// `item` is checked while the mode is on; `pointer` is the live mouse pointer, `lastColor` the
  /// colour that was last chosen in the colour dialog.
  ColorCustomizing(MenuItem& item, OptionsDialogOwner& form, SystemApi& system,
                   const MousePointer& pointer, const Color& lastColor)
      : item_(&item), form_(&form), system_(&system), pointer_(&pointer), lastColor_(&lastColor) {}

  bool On() const { return item_->checked; }
  /// Turns the mode on, which shows its pointer, or off.
  void Toggle();
  /// Turns the mode off, as every other menu command does.
  void End();
  /// The mouse over a field, `color` being the field's stored colour. While the mode is on, a click
  /// with the left button changes it: to a colour that the user chooses, or with Alt to the last
  /// one chosen. True when it has changed.
  bool Mouse(const Control& field, Color& color, const MouseInput& input);
  /// The Enter key in a field, pressed with these modifiers, does what a click does.
  bool Enter(Color& color, unsigned shift) { return On() && ChangeColor(color, shift); }

 private:
  void Move(const Control& field, const MouseInput& input);
  bool Click(Color& color);
  bool ChangeColor(Color& color, unsigned shift);

  MenuItem* item_;
  OptionsDialogOwner* form_;
  SystemApi* system_;
  const MousePointer* pointer_;
  const Color* lastColor_;
  unsigned shift_ = kNoShift;  ///< Held at the last press while the pointer was the mode's.
  int pressed_ = 0;            ///< The field that the left button went down on, 0 = none.
};

}  // namespace korvale
