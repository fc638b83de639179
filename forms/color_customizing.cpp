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
  if (On()) {
    parts_.item.checked = false;
    parts_.setPointer(MousePointer::kDefault);
    return;
  }
  parts_.item.checked = true;
  parts_.setPointer(MousePointer::kCustom);
  parts_.showTip();
}

void ColorCustomizing::End() {
  parts_.item.checked = false;
  if (GetOSInfo(parts_.system, "PLATFORM_ID") != "9x") {
    parts_.item.caption = "&Customize Colors - C";
  }
  parts_.setPointer(MousePointer::kDefault);
}

void ColorCustomizing::Mouse(const Control& field, Color& color, const MouseInput& input) {
  const bool left = input.button == MouseButton::kLeft;
  switch (input.event) {
    case MouseEvent::kMove:
      Move(field, input);
      break;
    case MouseEvent::kDown:
      if (On() && parts_.pointer() == MousePointer::kCustom) shift_ = input.shift;
      if (left) pressed_ = field.Id();
      break;
    case MouseEvent::kUp:
      if (left && std::exchange(pressed_, 0) == field.Id() && IsInside(field, input)) Click(color);
      break;
  }
}

void ColorCustomizing::Move(const Control& field, const MouseInput& input) {
  const bool own = On() && input.x < field.Place().width - kOffRightEdge && input.y < kBelowTop;
  const MousePointer wanted = own ? MousePointer::kCustom : MousePointer::kDefault;
  if (parts_.pointer() != wanted) parts_.setPointer(wanted);
}

void ColorCustomizing::Click(Color& color) {
  if (!On()) return;
  if (parts_.pointer() == MousePointer::kCustom) {
    ChangeColor(color);
  } else {
    parts_.messages.ShowMessageBox("position the mouse until the cursor has changed to a 'C'",
                                   win32::kMbOk, std::string(kProductName) + " - Customize Colors");
  }
  shift_ = kNoShift;
}

void ColorCustomizing::ChangeColor(Color& color) {
  const std::optional<Color> chosen =
      shift_ == kAlt ? parts_.lastColor : parts_.showColorPalette(color);
  if (!chosen) return;
  color = *chosen;
  parts_.showColors();
}

}  // namespace korvale
