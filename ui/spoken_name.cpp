#include "ui/spoken_name.h"

namespace korvale {

std::string SpokenName(const FormState& form) {
  std::string name = form.caption;
  if (form.role != FormRole::kAlert && !name.empty()) return name;
  for (const ControlState& control : form.controls) {
    if (control.kind != ControlKind::kLabel || control.text.empty()) continue;
    if (!form.IsVisible(control)) continue;
    if (!name.empty()) name += ": ";
    name += control.text;
  }
  return name;
}

}  // namespace korvale
