#include "desktop/worked_windows.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>

namespace korvale {
namespace {

/// More than a user can remember.
constexpr std::size_t kMostWindows = 64;

}  // namespace

std::size_t WorkedWindows::PlaceOf(WindowHandle hwnd) const {
  const auto found = std::ranges::find(windows_, hwnd, &KnownWindow::handle);
  return static_cast<std::size_t>(found - windows_.begin());
}

bool WorkedWindows::Holds(WindowHandle hwnd) const { return PlaceOf(hwnd) < windows_.size(); }

void WorkedWindows::PutFirst(KnownWindow window, const Visit& isGone) {
  Remove(window.handle);
  if (windows_.size() == kMostWindows) std::erase_if(windows_, isGone);
  if (windows_.size() == kMostWindows) windows_.pop_back();
  windows_.insert(windows_.begin(), std::move(window));
}

void WorkedWindows::Remove(WindowHandle hwnd) {
  std::erase_if(windows_, [&](const KnownWindow& window) { return window.handle == hwnd; });
}

void WorkedWindows::ForEach(const Visit& visit) const {
  std::array<WindowHandle, kMostWindows> handles{};
  std::ranges::transform(windows_, handles.begin(), &KnownWindow::handle);
  for (const WindowHandle hwnd : std::span(handles).first(windows_.size())) {
    const std::size_t place = PlaceOf(hwnd);
    if (place == windows_.size()) continue;
    const KnownWindow window = windows_[place];
    if (!visit(window)) return;
  }
}

}  // namespace korvale
