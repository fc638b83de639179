#pragma once

#include <cstdint>
#include <optional>

#include "desktop/desktop_parts.h"
#include "desktop/foreground_tracker.h"
#include "desktop/tag_list.h"
#include "desktop/window_actions.h"
#include "desktop/window_enumeration.h"

namespace korvale {

/// Selects the windows of the Tags: looks for them, brings them to the front and moves the Previous
/// Window record.
class WindowSelection {
 public:
  WindowSelection(const DesktopParts& parts, WindowRequests& requests,
                  WindowEnumeration& enumeration, WindowActions& actions,
                  ForegroundTracker& tracker, TagList& tags);

  /// Selects the window of Tag `tag` (0-9) with the timers stopped, and tells the user when that is
  /// not possible. Does nothing for a Tag without an entry. `inFront` is the tracker's
  /// WindowInFront where that has just been asked.
  void SelectTag(std::int16_t tag, std::optional<WindowHandle> inFront = {});

  /// Brings the current Previous Window to the front as the program starts; a failure is nothing to
  /// tell.
  void SelectAtStart();

  /// True while a search over the windows must not be started.
  bool windowSearch = false;
  /// The window to which the user has last been led; 0 = none since this was cleared.
  WindowHandle selected = 0;

 private:
  /// Both give true when the record has moved to the selected window.
  bool SelectPrevious();
  bool SelectEntry(const MenuItem& entry, WindowHandle inFront);
  MenuItem* Entry(int tag) { return tags_->mnuWindowParentList.Find(tag); }
  void RestoreInFront(WindowHandle hwnd);
  WindowTriple WindowOf(const MenuItem& entry) const;
  ActivationResult Activate(int tag, WindowHandle inFront = 0);
  ActivationResult ActivateOrSearch(int tag, WindowHandle inFront);
  ActivationResult ActivateFound(MenuItem& entry, WindowHandle found);
  void TellFailure(const MenuItem& entry, ActivationResult result);

  WindowQueries* windows_;
  MainWindow* mainWindow_;
  MessageBoxes* messages_;
  PreviousWindow* previous_;
  WindowRequests* requests_;
  WindowEnumeration* enumeration_;
  WindowActions* actions_;
  ForegroundTracker* tracker_;
  TagList* tags_;
};

}  // namespace korvale
