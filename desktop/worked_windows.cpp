#include "desktop/worked_windows.h"

#include <algorithm>
#include <cstddef>

namespace korvale {
namespace {

/// More than a user can remember.
constexpr std::size_t kMostWindows = 64;

}  // namespace

void WorkedWindows::PutFirst(const WindowTriple& window) {
  const WindowTriple first = window;
  Remove(first.handle);
  windows_.insert(windows_.begin(), first);
  if (windows_.size() > kMostWindows) windows_.pop_back();
}

void WorkedWindows::Remove(WindowHandle hwnd) {
  std::erase_if(windows_, [&](const WindowTriple& window) { return window.handle == hwnd; });
}

void WorkedWindows::RemoveIf(const Test& test) { std::erase_if(windows_, test); }

std::optional<WindowTriple> WorkedWindows::First(const Test& test) const {
  const std::vector<WindowTriple> windows = windows_;
  const auto found = std::ranges::find_if(windows, test);
  if (found == windows.end()) return std::nullopt;
  return *found;
}

}  // namespace korvale
