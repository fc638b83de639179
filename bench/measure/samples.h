#pragma once

#include <windows.h>

#include <vector>

namespace korvale::bench {

/// Measured values of one kind, in the order in which they were taken.
class Samples {
 public:
  void Add(double value) { values_.push_back(value); }
  bool Empty() const { return values_.empty(); }
  /// 0 when nothing was measured.
  double Median() const;
  double Worst() const;

 private:
  std::vector<double> values_;
};

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
