#pragma once

#include <ctime>

namespace korvale {

/// How many ns of the processor `work` takes; what else runs on the machine does not count.
template <typename Work>
double ProcessorNanoseconds(Work work) {
  const auto now = [] {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e9 + static_cast<double>(time.tv_nsec);
  };
  const double start = now();
  work();
  return now() - start;
}

}  // namespace korvale
