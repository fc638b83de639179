#include "desktop/worked_windows.h"

#include <algorithm>
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

void WorkedWindows::PutFirst(KnownWindow window) {
  Remove(window.handle);
  windows_.insert(windows_.begin(), std::move(window));
  if (windows_.size() > kMostWindows) windows_.pop_back();
}

void WorkedWindows::Remove(WindowHandle hwnd) {
  std::erase_if(windows_, [&](const KnownWindow& window) { return window.handle == hwnd; });
}

void WorkedWindows::ForEach(const Visit& visit) const {
  for (std::size_t next = 0; next < windows_.size();) {
    const KnownWindow window = windows_[next];
    if (!visit(window)) return;
    // Goes on behind it, wherever it stands now.
    const std::size_t place = PlaceOf(window.handle);
    if (place < windows_.size()) next = std::max(next, place + 1);
  }
}

}  // namespace korvale
