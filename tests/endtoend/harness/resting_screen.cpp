#include "tests/endtoend/harness/resting_screen.h"

#include "tests/endtoend/harness/screen.h"
#include "tests/endtoend/harness/wait.h"

namespace korvale::endtoend {
namespace {

// Shorter than a caret takes to blink.
constexpr std::chrono::milliseconds kMoment{250};

}  // namespace

bool ScreenComesToRest() {
  const Window screen(GetDesktopWindow());
  return WaitFor([&] {
    const std::vector<COLORREF> before = PictureOf(screen);
    return HoldsFor([&] { return PictureOf(screen) == before; }, kMoment);
  });
}

}  // namespace korvale::endtoend
