#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "desktop/previous_window.h"
#include "platform/types.h"

namespace korvale {

/// The windows that the user worked in, the latest first. None is in it twice.
class WorkedWindows {
 public:
  using Test = std::function<bool(const WindowTriple&)>;

  /// Puts a window in front of all others.
  void PutFirst(const WindowTriple& window);
  void Remove(WindowHandle hwnd);
  void RemoveIf(const Test& test);
  /// The latest one that passes. The test may change what is in here.
  std::optional<WindowTriple> First(const Test& test) const;

 private:
  std::vector<WindowTriple> windows_;
};

}  // namespace korvale
