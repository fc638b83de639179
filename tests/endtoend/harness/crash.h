#pragma once

#include "tests/endtoend/harness/window.h"

namespace korvale::endtoend {

/// Makes the program of that window crash: the next message that its message loop takes leads to an
/// address without memory. False when that cannot be arranged.
bool Crash(Window window);

/// The same inside the window procedure of that window.
bool CrashInWindowProcedure(Window window);

/// The same on a new thread of that program.
bool CrashInSecondThread(Window window);

}  // namespace korvale::endtoend
