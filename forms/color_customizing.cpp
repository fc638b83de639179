#include "forms/color_customizing.h"

#include <utility>

#include "app/core/identity.h"
#include "platform/win32_constants.h"
#include "util/system.h"

namespace korvale {

namespace {

/// The mode's pointer is shown up to this far from a field's right edge, and from its top.
constexpr Twips kOffRightEdge = 115;
constexpr Twips kBelowTop = 155;

bool IsInside(const Control& field, const MouseInput& input) {
  return input.x >= 0 && input.x < field.Place().width && input.y >= 0 &&
         input.y < field.Place().height;
}

}  // namespace

void ColorCustomizing::Toggle() {
  item_->checked = !item_->checked;
  form_->SetMousePointer(On() ? MousePointer::kCustom : MousePointer::kDefault);
}

void ColorCustomizing::End() {
  item_->checked = false;
  if (GetOSInfo(*system_, "PLATFORM_ID") != "9x") item_->caption = "&Customize Colors - C";
  form_->SetMousePointer(MousePointer::kDefault);
}

bool ColorCustomizing::Mouse(const Control& field, Color& color, const MouseInput& input) {
  const bool left = input.button == MouseButton::kLeft;
  switch (input.event) {
    case MouseEvent::kMove:
      Move(field, input);
      break;
    case MouseEvent::kDown:
      if (On() && *pointer_ == MousePointer::kCustom) shift_ = input.shift;
      if (left) pressed_ = field.Id();
      break;
    case MouseEvent::kUp:
      return left && std::exchange(pressed_, 0) == field.Id() && IsInside(field, input) &&
             Click(color);
  }
  return false;
}

void ColorCustomizing::Move(const Control& field, const MouseInput& input) {
  const bool own = On() && input.x < field.Place().width - kOffRightEdge && input.y < kBelowTop;
  const MousePointer wanted = own ? MousePointer::kCustom : MousePointer::kDefault;
  if (*pointer_ != wanted) form_->SetMousePointer(wanted);
}

bool ColorCustomizing::Click(Color& color) {
  if (!On()) return false;
  bool changed = false;
  if (*pointer_ == MousePointer::kCustom) {
    changed = ChangeColor(color, shift_);
  } else {
    form_->Messages().ShowMessageBox("position the mouse until the cursor has changed to a 'C'",
                                     win32::kMbOk,
                                     std::string(kProductName) + " - Customize Colors");
  }
  shift_ = kNoShift;
  return changed;
}

bool ColorCustomizing::ChangeColor(Color& color, unsigned shift) {
  const std::optional<Color> chosen =
      shift == kAlt ? *lastColor_ : form_->udmShowColorPalette(color);
  if (chosen) color = *chosen;
  return chosen.has_value();
}

}  // namespace korvale
