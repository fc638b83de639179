#pragma once

#include <windows.h>

namespace korvale::endtoend {

/// The work area of the primary monitor; at the end of the test it is again what it was.
class WorkArea {
 public:
  WorkArea();
  WorkArea(const WorkArea&) = delete;
  WorkArea& operator=(const WorkArea&) = delete;
  ~WorkArea();

  /// Takes so many pixels from its right.
  static void Narrow(LONG by);

 private:
  RECT before_;
};

}  // namespace korvale::endtoend
