#include <utility>

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
  return choose(initial);
}

}  // namespace korvale
