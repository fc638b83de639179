#include "tests/endtoend/harness/gui_mode.h"

#include <windows.h>

namespace korvale::endtoend {
namespace {

bool IsIn(DWORD mode, Window window) {
  GUITHREADINFO info{};
  info.cbSize = sizeof(info);
  const DWORD thread = GetWindowThreadProcessId(window.handle(), nullptr);
  return GetGUIThreadInfo(thread, &info) != FALSE && (info.flags & mode) != 0;
}

}  // namespace

bool IsMovedOrSized(Window window) { return IsIn(GUI_INMOVESIZE, window); }

bool IsInMenu(Window window) { return IsIn(GUI_INMENUMODE, window); }

}  // namespace korvale::endtoend
