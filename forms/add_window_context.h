#pragma once

#include "desktop/main_window.h"
#include "desktop/previous_window.h"
#include "desktop/tag_list.h"
#include "platform/window_api.h"

namespace korvale {

enum class AddWindowMode { kNone, kThisWindow, kPreviousWindow };

/// What the Add Window dialog works on.
struct AddWindowContext {
  WindowQueries& windows;
  const MainWindow& mainWindow;
  const PreviousWindow& previous;
  TagList& tags;
  /// Set before the dialog is loaded, reset to kNone once it has been read.
  AddWindowMode& mode;
};

}  // namespace korvale
