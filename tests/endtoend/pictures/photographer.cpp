#include "tests/endtoend/pictures/photographer.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>

#include "tests/endtoend/harness/files.h"
#include "tests/endtoend/harness/resting_screen.h"
#include "tests/endtoend/harness/wait.h"

namespace korvale::endtoend {
namespace {

RECT AreaAround(const std::vector<Window>& windows) {
  RECT all{};
  for (const Window window : windows) {
    RECT area{};
    GetWindowRect(window.handle(), &area);
    UnionRect(&all, &all, &area);
  }
  const RECT screen{0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
  IntersectRect(&all, &all, &screen);
  return all;
}

/// Waits until the windows have painted and nothing moves any more.
bool AtRest(const std::vector<Window>& windows) {
  return WaitFor([&] {
    const auto answers = [](Window window) { return window.Visible() && window.Responds(); };
    const RECT area = AreaAround(windows);
    return std::ranges::all_of(windows, answers) && HoldsFor([&] {
             const RECT now = AreaAround(windows);
             return EqualRect(&now, &area) != 0;
           });
  });
}

}  // namespace

void Photographer::Take(const std::string& name, const std::vector<Window>& windows) {
  Request(name, windows, AtRest(windows) && ComeToRest(windows));
}

void Photographer::TakeAtOnce(const std::string& name, const std::vector<Window>& windows) {
  Request(name, windows, true);
}

void Photographer::Request(const std::string& name, const std::vector<Window>& windows,
                           bool ready) {
  const RECT area = AreaAround(windows);
  const char* folder = std::getenv("KORVALE_PICTURES");
  if (folder != nullptr) {
    std::ofstream(std::string(folder) + "\\" + name + ".area")
        << area.right - area.left << 'x' << area.bottom - area.top << '+' << area.left << '+'
        << area.top << "\n";
  }
  const auto shown = [](Window window) { return window.Visible(); };
  const bool taken = ready && TakePicture(name) && std::ranges::all_of(windows, shown);
  if (!taken) ++missed_;
  std::cout << (taken ? "  ok    " : "  FAIL  ") << name << std::endl;
}

}  // namespace korvale::endtoend
