#pragma once

namespace korvale::endtoend {

/// Waits until nothing on the screen has changed for a moment: all has been painted.
bool ScreenComesToRest();

}  // namespace korvale::endtoend
