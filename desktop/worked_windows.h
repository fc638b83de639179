#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "desktop/window_readers.h"
#include "platform/types.h"

namespace korvale {

/// The windows that the user worked in, the latest first. None is in it twice.
class WorkedWindows {
 public:
  using Visit = std::function<bool(const KnownWindow&)>;

  /// Puts a window in front of all others.
  void PutFirst(KnownWindow window);
  void Remove(WindowHandle hwnd);
  bool Holds(WindowHandle hwnd) const;
  /// The latest one; 0 when there is none.
  WindowHandle Latest() const { return windows_.empty() ? 0 : windows_.front().handle; }
  /// Hands them to `visit`, which may change what is in here, until it returns false.
  void ForEach(const Visit& visit) const;

 private:
  std::size_t PlaceOf(WindowHandle hwnd) const;

  std::vector<KnownWindow> windows_;
};

}  // namespace korvale
