#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "tests/fakes/headless_form_host.h"
#include "ui/form_dpi.h"
#include "ui/form_scaling.h"
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

void HeadlessFormHost::SetDpi(int dpi) {
  dpi_ = dpi;
  for (HeadlessMonitor& monitor : monitors_) monitor.dpi = dpi;
}

void HeadlessFormHost::SetWorkArea(const TwipsRect& workArea) {
  monitors_ = {{workArea, workArea, dpi_}};
}

void HeadlessFormHost::ChangeWorkArea(const TwipsRect& workArea) {
  SetWorkArea(workArea);
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
    Place(*window, Rescaled(*window, state));
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
  const auto& [area, workArea, dpi] = MonitorOf(form);
  const TwipsRect frame = FrameOf(form);
  return FormDpi(dpi, UsualTextHeight(dpi) * textPercent_ / 100, form.content,
                 Pixels(workArea.width - Scaled(frame.width, dpi, dpi_), dpi_),
                 Pixels(workArea.height - Scaled(frame.height, dpi, dpi_), dpi_));
}

TwipsRect HeadlessFormHost::OnScreen(const HeadlessWindow& window) const {
  const int dpi = DpiOf(*window.form);
  const TwipsRect& place = window.place;
  return {place.left, place.top, Scaled(place.width, dpi, dpi_), Scaled(place.height, dpi, dpi_)};
}

TwipsRect HeadlessFormHost::Rescaled(const HeadlessWindow& window, ShowState state) const {
  const bool normal = state == ShowState::kNormal;
  const bool own = TakesOwnSize(*window.form, normal, false);
  if (!own && state == ShowState::kMaximized) return Maximized(window);
  return StaysOnMonitor(normal, ScaleCause::kScreen) ? Kept(window) : window.place;
}

TwipsRect HeadlessFormHost::Maximized(const HeadlessWindow& window) const {
  const int dpi = DpiOf(*window.form);
  const TwipsRect& area = MonitorOf(*window.form).workArea;
  return {area.left, area.top, Scaled(area.width, dpi_, dpi), Scaled(area.height, dpi_, dpi)};
}

TwipsRect HeadlessFormHost::AdjustWindowRectEx(const FormState& form) {
  const TwipsRect frame = FrameOf(form);
  const int dpi = DpiOf(form);
  const int dots = MonitorOf(form).dpi;
  return {Scaled(frame.left, dots, dpi), Scaled(frame.top, dots, dpi),
          Scaled(frame.width, dots, dpi), Scaled(frame.height, dots, dpi)};
}

Twips HeadlessFormHost::GetTextExtentPoint32W(WindowHandle hwnd, const std::string& text) {
  const std::int32_t characters = CharacterCount(text);
  return characters > measurable_ ? 0
                                  : Scaled(textPercent_ * characters, GetDpiForWindow(hwnd), dpi_);
}

}  // namespace korvale
