#pragma once

#include <windows.h>

namespace korvale::endtoend {

/// Text, title bars and menus of all windows at so many percent of their usual size, as the
/// accessibility settings make them, until the end of the test.
class TextSize {
 public:
  explicit TextSize(int percent);
  TextSize(const TextSize&) = delete;
  TextSize& operator=(const TextSize&) = delete;
  ~TextSize();

  void Change(int percent) const;

 private:
  NONCLIENTMETRICSW before_{};
};

}  // namespace korvale::endtoend
