#pragma once

#include <windows.h>

namespace korvale::endtoend {

/// A system colour that the user has changed, until the end of the test.
class SystemColor {
 public:
  SystemColor(int index, COLORREF color) : index_(index), before_(GetSysColor(index)) {
    SetSysColors(1, &index_, &color);
  }
  SystemColor(const SystemColor&) = delete;
  SystemColor& operator=(const SystemColor&) = delete;
  ~SystemColor() { SetSysColors(1, &index_, &before_); }

 private:
  int index_;
  COLORREF before_;
};

}  // namespace korvale::endtoend
