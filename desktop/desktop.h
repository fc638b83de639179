#pragma once

#include "app/core/options.h"
#include "desktop/desktop_parts.h"
#include "desktop/foreground_tracker.h"
#include "desktop/tag_list.h"
#include "desktop/tag_list_passes.h"
#include "desktop/window_actions.h"
#include "desktop/window_enumeration.h"
#include "desktop/window_filter.h"
#include "desktop/window_requests.h"
#include "desktop/window_selection.h"
#include "platform/clock.h"
#include "platform/menu_model.h"

namespace korvale {

/// The Tag list and the routines for the windows of the desktop, put together in the order in which
/// they build on each other.
struct Desktop : DesktopParts {
  /// `windowMenu` holds the items of the Tags.
  Desktop(const DesktopParts& parts, Clock& clock, const OptionsHolder& options,
          MenuItem& windowMenu);
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  TagList tags;
  TagListPasses tagPasses;
  WindowFilter filter;
  WindowRequests requests;
  WindowEnumeration enumeration;
  WindowActions actions;
  ForegroundTracker tracker;
  WindowSelection selection;
  /// The main window is being brought to the front only for its menu, as its activation must know.
  bool comesForMenu = false;
};

}  // namespace korvale
