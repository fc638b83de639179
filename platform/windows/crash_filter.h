#pragma once

#include <functional>

#include "platform/system_api.h"

namespace korvale {

/// `filter` is called for an exception that nothing handled (SetUnhandledExceptionFilter) and for
/// an uncaught C++ exception (std::set_terminate); the process ends when it returns. An empty one
/// takes the former one back.
void SetCrashFilter(std::function<void(const Crash&)> filter);

}  // namespace korvale
