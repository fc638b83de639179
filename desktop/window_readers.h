#pragma once

#include <cstdint>
#include <string>

#include "platform/types.h"
#include "platform/window_api.h"

namespace korvale {

/// No program has a longer chain of owners.
inline constexpr int kMostOwners = 16;

/// Stands where a title is shown that is empty.
inline constexpr const char* kUntitled = "(window without a title)";

/// The whole title of a window, read now (GetWindowTextLengthA, GetWindowTextA); "" when the window
/// is gone or untitled. A title that grew between the two calls is read again, never cut.
std::string GetWindowTitle(WindowQueries& windows, WindowHandle hwnd);

/// The class name of a window (GetClassNameA); "" when the window is gone.
std::string GetWindowClass(WindowQueries& windows, WindowHandle hwnd);

/// A window and its class, by which another one that has got its handle is told apart.
struct KnownWindow {
  WindowHandle handle = 0;
  std::string className;
};

/// The window that has this handle now (GetClassNameA); without a class when there is none.
KnownWindow Know(WindowQueries& windows, WindowHandle hwnd);
/// False when the window is gone, also when another one of another class has got its handle
/// (IsWindow, GetClassNameA).
bool StillExists(WindowQueries& windows, const KnownWindow& window);

/// `which` 1: the first child window; 2: the owner if it has a minimize box; 0 when there is none,
/// and for any other `which` (GetWindow, GetWindowLongA).
WindowHandle GetRelatedWindow(WindowQueries& windows, WindowHandle hwnd, std::int16_t which);

}  // namespace korvale
