#pragma once

namespace korvale::endtoend {

/// Waits until nothing on the screen has changed for a moment, so everything has been painted.
bool ScreenComesToRest();

}  // namespace korvale::endtoend
