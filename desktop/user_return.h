#pragma once

#include "desktop/desktop.h"
#include "desktop/window_readers.h"

namespace korvale {

/// Puts `before`, where the user was before a window of ours came up, in front again. When it
/// cannot be, as Start once it has lost the front, it is the window last worked in, unless that is
/// our main window. Leaves the user in a window of another program.
void ReturnUserTo(Desktop& desktop, const KnownWindow& before);

}  // namespace korvale
