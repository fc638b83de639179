#pragma once

#include <map>
#include <vector>

namespace korvale::bench {

/// Measured values of one kind, in the order in which they were taken.
class Samples {
 public:
  void Add(double value) { values_.push_back(value); }
  /// Both throw std::runtime_error when nothing was measured.
  double Median() const;
  double Worst() const;

 private:
  std::vector<double> values_;
};

/// Measured values by the number of windows on the desktop.
using ByDesktop = std::map<int, Samples>;

/// How many bare loops a program needs more than the floor: from what a larger desktop costs more
/// than a small one, so that what is the same on both, such as showing a message, cancels out.
double LoopsMore(const ByDesktop& times, const ByDesktop& ofFloor, const ByDesktop& bareLoop,
                 int small, int large);

}  // namespace korvale::bench
