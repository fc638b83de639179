#pragma once

#include "tests/endtoend/harness/window.h"

namespace korvale::endtoend {

/// Lets the program of that window crash: the next message that its message loop takes leads
/// it to a place where no memory is. False when that cannot be arranged.
bool Crash(Window window);

}  // namespace korvale::endtoend
