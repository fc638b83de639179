#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/types.h"

namespace korvale {

/// A form of the program that is loaded now. `handle` is 0 while it has no window.
struct LoadedForm {
  std::string name;
  WindowHandle handle = 0;
};

/// The forms of the program that are loaded now.
class LoadedForms {
 public:
  virtual ~LoadedForms() = default;

  /// Visits all loaded forms in the order in which they were loaded. The visitor must not load or
  /// unload.
  virtual void ForEach(const std::function<void(std::string_view, WindowHandle)>& visit) const = 0;
  /// The same as a list.
  std::vector<LoadedForm> List() const;
};

/// True when a form of this name is loaded, ignoring case. `flag` has no effect.
bool IsFormLoaded(const LoadedForms& forms, std::string_view name, bool flag = false);

/// The window of the first loaded form of this name, ignoring case; 0 when none is loaded.
WindowHandle FormHandle(const LoadedForms& forms, std::string_view name);

/// True when the window is that of a loaded form. A form without a window has the handle 0, which
/// never counts.
bool IsOwnForm(const LoadedForms& forms, WindowHandle hwnd);

}  // namespace korvale
