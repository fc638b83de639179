#pragma once

#include <vector>

#include "tests/endtoend/harness/window.h"

namespace korvale::endtoend {

/// Waits until nothing on the screen has changed for a moment, so everything has been painted.
bool ScreenComesToRest();
/// The same of what the windows cover, which takes less time to look at.
bool ComeToRest(const std::vector<Window>& windows);

}  // namespace korvale::endtoend
