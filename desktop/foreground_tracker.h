#pragma once

#include <array>
#include <string>

#include "desktop/main_window.h"
#include "desktop/previous_window.h"
#include "desktop/tag_list.h"
#include "desktop/window_actions.h"
#include "desktop/window_filter.h"
#include "platform/types.h"
#include "platform/window_api.h"

namespace korvale {

/// Follows the foreground window and keeps the Previous Window record.
class ForegroundTracker {
 public:
  ForegroundTracker(WindowQueries& windows, const WindowFilter& filter, WindowActions& actions,
                    MainWindow& mainWindow, PreviousWindow& previous, TagList& tags);

  /// The tick of tmrWindow; also called when the Window menu opens.
  void tmrWindow_Timer();

  /// Makes the next tick look at the foreground window as if it had just come to the front; called
  /// once the main window has come up in front of the window that the user worked in.
  void LookAnew();

  /// Falls back to the alternate window when the Previous Window cannot be activated any more, then
  /// shows the record in the main window.
  void ValidatePreviousWindow();

  /// Sets both always-on-top check marks from the windows' real state.
  void udmRefreshAlwaysOnTopMenuChecked();

  /// Whether a window that passed the basic checks may become the Previous Window: the options
  /// allow it, or else a Tag identifies it, which then takes its handle.
  bool AcceptForeground(WindowHandle hwnd, const std::string& title);

  /// Makes `window` the Previous Window. The window before it, or the main window when that was the
  /// tracked one, becomes the alternate.
  void MoveRecordTo(const WindowTriple& window);

 private:
  void ShowRecord(bool valid);
  bool HasLeftSelectionUnseen(WindowHandle foreground);

  WindowQueries* windows_;
  const WindowFilter* filter_;
  WindowActions* actions_;
  MainWindow* mainWindow_;
  PreviousWindow* previous_;
  TagList* tags_;
  WindowHandle lastSeen_ = 0;
  bool firstTick_ = true;
  /// The last tick has not seen the selected window yet.
  bool selectionUnseen_ = false;
};

}  // namespace korvale
