#pragma once

#include <windows.h>

namespace korvale::bench {

/// Milliseconds since it was made, as exact as the machine can tell.
class StopWatch {
 public:
  StopWatch() : start_(Now()) {}
  double Milliseconds() const;

 private:
  static LONGLONG Now();

  LONGLONG start_;
};

}  // namespace korvale::bench
