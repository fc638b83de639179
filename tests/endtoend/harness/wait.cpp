#include "tests/endtoend/harness/wait.h"

#include <windows.h>

namespace korvale::endtoend {

using std::chrono::steady_clock;

bool WaitFor(const std::function<bool()>& condition, std::chrono::milliseconds limit) {
  const auto end = steady_clock::now() + limit;
  while (!condition()) {
    if (steady_clock::now() >= end) return false;
    Sleep(1);
  }
  return true;
}

bool HoldsFor(const std::function<bool()>& condition, std::chrono::milliseconds span) {
  return !WaitFor([&] { return !condition(); }, span);
}

}  // namespace korvale::endtoend
