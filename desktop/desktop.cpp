#include "desktop/desktop.h"

namespace korvale {

Desktop::Desktop(const DesktopParts& parts, Clock& clock, const OptionsHolder& options,
                 MenuItem& windowMenu)
    : DesktopParts(parts),
      tags{MenuItemArray(windowMenu, "mnuWindowParentList")},
      tagPasses(tags, windows, virtualDesktops),
      filter(windows, virtualDesktops, options, forms, mainWindow),
      requests(parts, clock),
      enumeration(windows, requests, filter, mainWindow, tagPasses),
      actions(parts, requests, filter, enumeration),
      tracker(parts, filter, actions, tags),
      selection(parts, requests, enumeration, actions, tracker, tags) {}

}  // namespace korvale
