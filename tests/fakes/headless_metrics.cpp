#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "tests/fakes/headless_form_host.h"
#include "ui/form_dpi.h"
#include "util/text.h"

namespace korvale {
namespace {

Twips Scaled(Twips length, int by, int from) { return (length * by + from / 2) / from; }

int Pixels(Twips length, int dpi) { return Scaled(length, dpi, kTwipsPerInch); }

}  // namespace

void HeadlessFormHost::SetFrame(const TwipsRect& frame, Twips menuHeight) {
  frame_ = frame;
  menuHeight_ = menuHeight;
}

void HeadlessFormHost::ChangeTextSize(int percent) {
  textPercent_ = percent;
  TellMetricsChanged();
}

void HeadlessFormHost::ChangeWorkArea(const TwipsRect& workArea) {
  workArea_ = workArea;
  TellMetricsChanged();
}

void HeadlessFormHost::TellMetricsChanged() {
  std::vector<WindowHandle> all;
  for (const auto& window : windows_) all.push_back(window->handle);
  for (const WindowHandle hwnd : all) {
    CloseLists(hwnd);
    HeadlessWindow* const window = FindWindow(hwnd);
    if (window == nullptr) continue;
    const ShowState state = desktop_->State(hwnd);
    Place(*window, state == ShowState::kMaximized ? Maximized(*window) : window->place);
    const TwipsRect taken = window->place;
    Tell(hwnd, [&](FormEvents& events) { events.OnPlaced(state, taken); });
    if (FindWindow(hwnd) == nullptr) continue;
    Tell(hwnd, [](FormEvents& events) { events.OnMetricsChanged(); });
  }
}

/// A list that is open when its combo box is given another size closes first.
void HeadlessFormHost::CloseLists(WindowHandle hwnd) {
  const HeadlessWindow* const before = FindWindow(hwnd);
  const std::size_t controls = before == nullptr ? 0 : before->controls.size();
  for (int id = 1; id <= static_cast<int>(controls) && FindWindow(hwnd) != nullptr; ++id) {
    if (!std::exchange(Window(hwnd).Control(id).dropped, false)) continue;
    Tell(hwnd, [&](FormEvents& events) { events.OnListClosedUp(id); });
  }
}

TwipsRect HeadlessFormHost::FrameOf(const FormState& form) const {
  TwipsRect frame = form.border == BorderStyle::kNone ? TwipsRect{} : frame_;
  if (form.ShowsMenuBar()) {
    frame.top += menuHeight_;
    frame.height += menuHeight_;
  }
  return frame;
}

int HeadlessFormHost::DpiOf(const FormState& form) const {
  const TwipsRect frame = FrameOf(form);
  return FormDpi(dpi_, UsualTextHeight(dpi_) * textPercent_ / 100, form.content,
                 Pixels(workArea_.width - frame.width, dpi_),
                 Pixels(workArea_.height - frame.height, dpi_));
}

TwipsRect HeadlessFormHost::OnScreen(const HeadlessWindow& window) const {
  const int dpi = DpiOf(*window.form);
  const TwipsRect& place = window.place;
  return {place.left, place.top, Scaled(place.width, dpi, dpi_), Scaled(place.height, dpi, dpi_)};
}

TwipsRect HeadlessFormHost::Maximized(const HeadlessWindow& window) const {
  const int dpi = DpiOf(*window.form);
  return {workArea_.left, workArea_.top, Scaled(workArea_.width, dpi_, dpi),
          Scaled(workArea_.height, dpi_, dpi)};
}

TwipsRect HeadlessFormHost::AdjustWindowRectEx(const FormState& form) {
  const TwipsRect frame = FrameOf(form);
  const int dpi = DpiOf(form);
  return {Scaled(frame.left, dpi_, dpi), Scaled(frame.top, dpi_, dpi),
          Scaled(frame.width, dpi_, dpi), Scaled(frame.height, dpi_, dpi)};
}

Twips HeadlessFormHost::GetTextExtentPoint32W(WindowHandle hwnd, const std::string& text) {
  Window(hwnd);
  const std::int32_t characters = CharacterCount(text);
  return characters > measurable_ ? 0 : textPercent_ * characters;
}

TwipsRect HeadlessFormHost::GetMonitorInfoW(WindowHandle /*hwnd*/) { return workArea_; }

}  // namespace korvale
