#pragma once

#include "tests/endtoend/harness/window.h"

namespace korvale::endtoend {

/// Lets the program of that window crash: its tool tips get a message with a bad pointer, which no
/// program looks at before the system's own code follows it. False when there are no tool tips.
bool Crash(Window window);

}  // namespace korvale::endtoend
