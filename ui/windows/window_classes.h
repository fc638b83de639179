#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/input_devices.h"
#include "platform/windows/handles.h"

namespace korvale {

/// The names of our window classes begin so.
inline constexpr std::wstring_view kClassPrefix = L"Korvale.";

// The numbers of the program's icon and of its own mouse pointer among its resources, which
// resources/korvale.rc.in gives them.
inline constexpr WORD kIconResource = 1;
inline constexpr WORD kPointerResource = 2;

/// Loads the program's icon at a size in pixels; empty when the executable has none.
UniqueIcon LoadProgramIcon(HINSTANCE instance, int size);

/// The cursor for this pointer, shared by all; null when the executable has none of its own.
HCURSOR LoadPointer(HINSTANCE instance, MousePointer pointer);

/// The window classes that the forms use; each is registered when it is first needed.
class WindowClasses {
 public:
  explicit WindowClasses(HINSTANCE instance);
  ~WindowClasses();
  WindowClasses(const WindowClasses&) = delete;
  WindowClasses& operator=(const WindowClasses&) = delete;

  HINSTANCE Instance() const { return instance_; }
  /// The program's icon at a size in pixels, shared by all windows; null when it cannot be loaded
  /// now.
  HICON Icon(int size);
  /// Registers the class kClassPrefix + `name` with this procedure unless it is registered, and
  /// returns its name.
  std::wstring Register(std::string_view name, WNDPROC procedure);

 private:
  HINSTANCE instance_;
  std::vector<std::pair<int, UniqueIcon>> icons_;
  std::vector<std::wstring> registered_;
};

}  // namespace korvale
