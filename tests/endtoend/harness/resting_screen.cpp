#include "tests/endtoend/harness/resting_screen.h"

#include "tests/endtoend/harness/screen.h"
#include "tests/endtoend/harness/wait.h"

namespace korvale::endtoend {
namespace {

// Shorter than a caret takes to blink.
constexpr std::chrono::milliseconds kMoment{250};

}  // namespace

bool ScreenComesToRest() { return ComeToRest({Window(GetDesktopWindow())}); }

bool ComeToRest(const std::vector<Window>& windows) {
  const auto look = [&] {
    std::vector<std::vector<COLORREF>> pictures;
    for (const Window window : windows) pictures.push_back(PictureOf(window));
    return pictures;
  };
  return WaitFor([&] {
    const auto before = look();
    return HoldsFor([&] { return look() == before; }, kMoment);
  });
}

}  // namespace korvale::endtoend
