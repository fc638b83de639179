#include <algorithm>
#include <cstdint>
#include <utility>

#include "tests/fakes/headless_form_host.h"
#include "ui/form_scaling.h"

namespace korvale {
namespace {

/// The length that two stretches have in common; negative, the gap between them.
std::int64_t Common(Twips start, Twips length, Twips otherStart, Twips otherLength) {
  return std::min<std::int64_t>(start + length, otherStart + otherLength) -
         std::max<std::int64_t>(start, otherStart);
}

/// How well a monitor shows the place: by the area that it shows, or else by how near it is.
std::int64_t Closeness(const TwipsRect& area, const TwipsRect& place) {
  const std::int64_t wide = Common(area.left, area.width, place.left, place.width);
  const std::int64_t high = Common(area.top, area.height, place.top, place.height);
  if (wide > 0 && high > 0) return wide * high;
  return std::min<std::int64_t>(wide, 0) + std::min<std::int64_t>(high, 0);
}

}  // namespace

std::size_t FindMonitor(const std::vector<HeadlessMonitor>& monitors, const TwipsRect& place) {
  const auto best = std::ranges::max_element(
      monitors, {}, [&](const HeadlessMonitor& monitor) { return Closeness(monitor.area, place); });
  return static_cast<std::size_t>(best - monitors.begin());
}

void HeadlessFormHost::SetMonitors(std::vector<HeadlessMonitor> monitors) {
  monitors_ = std::move(monitors);
  dpi_ = monitors_.front().dpi;
}

void HeadlessFormHost::ChangeMonitors(std::vector<HeadlessMonitor> monitors) {
  std::vector<std::size_t> nearest;
  for (const auto& window : windows_) nearest.push_back(FindMonitor(monitors, OnScreen(*window)));
  monitors_ = std::move(monitors);
  for (std::size_t i = 0; i < windows_.size(); ++i) windows_[i]->monitor = nearest[i];
  TellMetricsChanged();
}

const HeadlessMonitor& HeadlessFormHost::MonitorOf(const FormState& form) const {
  const auto window =
      std::ranges::find_if(windows_, [&](const auto& each) { return each->form == &form; });
  return monitors_[window == windows_.end() ? 0 : (*window)->monitor];
}

TwipsRect HeadlessFormHost::GetMonitorInfoW(WindowHandle hwnd) {
  if (const HeadlessWindow* const window = FindWindow(hwnd)) {
    return monitors_[FindMonitor(monitors_, OnScreen(*window))].workArea;
  }
  const auto other = elsewhere_.find(hwnd);
  return monitors_.at(other == elsewhere_.end() ? 0 : other->second).workArea;
}

TwipsRect HeadlessFormHost::Kept(const HeadlessWindow& window) const {
  const TwipsRect grown = OnScreen(window);
  const bool over = FindMonitor(monitors_, grown) != window.monitor;
  const TwipsRect kept = KeptOnMonitor(grown, monitors_[window.monitor].workArea, over);
  return {kept.left, kept.top, window.place.width, window.place.height};
}

void HeadlessFormHost::Place(HeadlessWindow& window, const TwipsRect& place) {
  window.place = Limited(place, window.form->limits);
  window.monitor = FindMonitor(monitors_, OnScreen(window));
  window.frame = AdjustWindowRectEx(*window.form);
  if (desktop_->State(window.handle) == ShowState::kNormal) window.restored = window.place;
  desktop_->SetPlace(window.handle, OnScreen(window));
}

}  // namespace korvale
