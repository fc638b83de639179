#pragma once

#include <cstdint>

#include "platform/run_time_error.h"

namespace korvale {

/// Number of the run-time error that the call throws, 0 when it throws none.
template <typename Call>
std::int16_t ErrorOf(Call call) {
  try {
    call();
  } catch (const RunTimeError& error) {
    return error.Number();
  }
  return 0;
}

}  // namespace korvale
