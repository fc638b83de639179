#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "tests/fuzz/fuzz.h"

/// Ends the run with this input when an expectation has failed or an exception leaves the target.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  korvale::Fuzz({reinterpret_cast<const char*>(data), size});
  if (testing::Test::HasFailure()) std::abort();
  return 0;
}
