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

  /// Puts a window in front of all others. When there are too many then, those that are gone are
  /// forgotten, or else the last one.
  void PutFirst(KnownWindow window, const Visit& isGone);
  void Remove(WindowHandle hwnd);
  bool Holds(WindowHandle hwnd) const;
  /// The latest one; 0 when there is none.
  WindowHandle Latest() const { return windows_.empty() ? 0 : windows_.front().handle; }
  /// Hands them to `visit` until it returns false, none twice. What is in here may change
  /// meanwhile: one that has been removed is left out, one that is new may be.
  void ForEach(const Visit& visit) const;

 private:
  std::size_t PlaceOf(WindowHandle hwnd) const;

  std::vector<KnownWindow> windows_;
};

}  // namespace korvale
