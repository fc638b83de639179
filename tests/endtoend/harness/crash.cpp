#include "tests/endtoend/harness/crash.h"

// After windows.h, which it needs.
#include <commctrl.h>

namespace korvale::endtoend {

bool Crash(Window window) {
  constexpr LPARAM kNoPlaceInMemory = 8;
  const Window tips = FindTopLevel([&](Window candidate) {
    return candidate.ProcessId() == window.ProcessId() &&
           candidate.ClassName() == "tooltips_class32";
  });
  return PostMessageW(tips.handle(), TTM_ADDTOOLW, 0, kNoPlaceInMemory) != 0;
}

}  // namespace korvale::endtoend
