#pragma once

#include <chrono>
#include <functional>

namespace korvale::endtoend {

/// How long a condition may take before it counts as failed.
inline constexpr std::chrono::milliseconds kPatience{10000};

/// How long a condition must hold before it counts as lasting: three ticks of a 100 ms timer.
inline constexpr std::chrono::milliseconds kWhile{350};

/// Returns true as soon as `condition` holds, false when it still does not after `limit`.
bool WaitFor(const std::function<bool()>& condition, std::chrono::milliseconds limit = kPatience);

/// Returns false as soon as `condition` fails, true when it has held for all of `span`.
bool HoldsFor(const std::function<bool()>& condition, std::chrono::milliseconds span = kWhile);

}  // namespace korvale::endtoend
