#include "bench/measure/stop_watch.h"

namespace korvale::bench {

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
