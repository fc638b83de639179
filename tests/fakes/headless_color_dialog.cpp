#include <utility>

#include "tests/fakes/disabled_owner.h"
#include "tests/fakes/headless_form_host.h"

namespace korvale {

void HeadlessFormHost::WhenColorDialog(std::function<std::optional<Color>(Color)> choose) {
  colors_.push_back(std::move(choose));
}

std::optional<Color> HeadlessFormHost::ChooseColorW(WindowHandle owner, Color initial) {
  log_->Add("ChooseColorW(" + log_->Window(owner) + ", " + std::to_string(initial) + ")");
  if (colors_.empty()) FailTest("nobody answers the colour dialog");
  const auto choose = std::move(colors_.front());
  colors_.pop_front();
  const DisabledOwner below(*desktop_, owner);
  return choose(initial);
}

Color HeadlessFormHost::GetSysColor(Color color) {
  const auto found = sysColors_.find(color);
  return found == sysColors_.end() ? color : found->second;
}

void HeadlessFormHost::ChangeSysColor(Color system, Color shown) {
  sysColors_[system] = shown;
  TellColorsChanged();
}

void HeadlessFormHost::ChangeHighContrast(bool on) {
  highContrast_ = on;
  TellColorsChanged();
}

void HeadlessFormHost::TellColorsChanged() {
  std::vector<WindowHandle> windows;
  for (const auto& window : windows_) windows.push_back(window->handle);
  for (const WindowHandle hwnd : windows) {
    if (FindWindow(hwnd) == nullptr) continue;
    Tell(hwnd, [](FormEvents& events) { events.OnSysColorChange(); });
  }
}

}  // namespace korvale
