#include "bench/measure/samples.h"

#include <algorithm>

namespace korvale::bench {

double Samples::Median() const {
  if (values_.empty()) return 0;
  std::vector<double> sorted = values_;
  std::sort(sorted.begin(), sorted.end());
  const size_t middle = sorted.size() / 2;
  return sorted.size() % 2 == 1 ? sorted[middle] : (sorted[middle - 1] + sorted[middle]) / 2;
}

double Samples::Worst() const {
  return values_.empty() ? 0 : *std::max_element(values_.begin(), values_.end());
}

double StopWatch::Milliseconds() const {
  LARGE_INTEGER frequency{};
  QueryPerformanceFrequency(&frequency);
  return static_cast<double>(Now() - start_) * 1000 / static_cast<double>(frequency.QuadPart);
}

LONGLONG StopWatch::Now() {
  LARGE_INTEGER now{};
  QueryPerformanceCounter(&now);
  return now.QuadPart;
}

}  // namespace korvale::bench
