#include "bench/measure/samples.h"

#include <algorithm>
#include <cstddef>
#include <stdexcept>

namespace korvale::bench {
namespace {

double Growth(const ByDesktop& times, int small, int large) {
  return times.at(large).Median() - times.at(small).Median();
}

const std::vector<double>& Measured(const std::vector<double>& values) {
  if (values.empty()) throw std::runtime_error("nothing was measured");
  return values;
}

}  // namespace

double Samples::Median() const {
  std::vector<double> sorted = Measured(values_);
  std::sort(sorted.begin(), sorted.end());
  const std::size_t middle = sorted.size() / 2;
  return sorted.size() % 2 == 1 ? sorted[middle] : (sorted[middle - 1] + sorted[middle]) / 2;
}

double Samples::Worst() const {
  const std::vector<double>& values = Measured(values_);
  return *std::max_element(values.begin(), values.end());
}

double LoopsMore(const ByDesktop& times, const ByDesktop& ofFloor, const ByDesktop& bareLoop,
                 int small, int large) {
  return (Growth(times, small, large) - Growth(ofFloor, small, large)) /
         Growth(bareLoop, small, large);
}

}  // namespace korvale::bench
