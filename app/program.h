#pragma once

#include "platform/platform.h"

namespace korvale {

/// Runs the program from start-up to its end; returns the exit code of the process (0 = ended
/// normally or refused to run beside its own copy).
int RunProgram(Platform& platform);

}  // namespace korvale
