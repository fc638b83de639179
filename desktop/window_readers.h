#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/types.h"
#include "platform/window_api.h"

namespace korvale {

/// No program has a longer chain of owners.
inline constexpr int kMostOwners = 16;

/// Stands where a title is shown that is empty.
inline constexpr const char* kUntitled = "(window without a title)";

using TitleBuffer = std::array<char, kOrdinaryTitle>;
/// Holds the class name of any window.
using ClassBuffer = std::array<char, 255>;

/// The whole title of a window, read now (GetWindowTextA); "" when the window is gone or untitled.
/// One that its buffer may have cut is read again into a larger one (GetWindowTextLengthA), also
/// when it grows meanwhile.
std::string GetWindowTitle(WindowQueries& windows, WindowHandle hwnd);
/// The same without an allocation, unless it is too long for `buffer` and stands in `longTitle`.
std::string_view ReadWindowTitle(WindowQueries& windows, WindowHandle hwnd, TitleBuffer& buffer,
                                 std::string& longTitle);

/// The class name of a window (GetClassNameA); "" when the window is gone.
std::string GetWindowClass(WindowQueries& windows, WindowHandle hwnd);
/// The same in `buffer`.
std::string_view ReadWindowClass(WindowQueries& windows, WindowHandle hwnd, ClassBuffer& buffer);

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
