#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "desktop/desktop_parts.h"
#include "desktop/seen_window.h"
#include "desktop/tag_list.h"
#include "desktop/window_actions.h"
#include "desktop/window_filter.h"
#include "desktop/window_readers.h"
#include "desktop/worked_windows.h"
#include "platform/types.h"

namespace korvale {

/// How often tmrWindow ticks, in ms.
inline constexpr std::uint32_t kTrackingInterval = 100;

/// Follows the foreground window and keeps the Previous Window record.
class ForegroundTracker {
 public:
  ForegroundTracker(const DesktopParts& parts, const WindowFilter& filter, WindowActions& actions,
                    TagList& tags);

  /// The tick of tmrWindow.
  void tmrWindow_Timer();

  /// Takes the present foreground window into the record, as the tick does, so that nothing is lost
  /// between two ticks, and makes sure of the windows in it; called before a hot key's action.
  void LookAtForeground();

  /// As LookAtForeground, when the record is going to be updated or validated anyway. Returns
  /// WindowInFront.
  WindowHandle FollowForeground();

  /// Makes the next tick look at the foreground window as if it had just come to the front; called
  /// once the main window has come up in front of the window that the user worked in.
  void LookAnew();

  /// The window that the user has in front (GetForegroundWindow); 0 while the main window is there
  /// only for its popped-up menu, or while a selected window is about to take the place of this
  /// one.
  WindowHandle WindowInFront();

  /// The window to bring forward when `closing`, a window of ours, goes: the one that was in front
  /// before it, else the one last worked in. None when `closing` is not in front, or nothing is
  /// left.
  KnownWindow WindowBehind(WindowHandle closing);

  /// The window last worked in, or the dialog that takes its input, that can be in front where the
  /// user is; `except` does not count. None when there is none.
  KnownWindow LastWorkedIn(WindowHandle except = 0);

  /// Makes the record as if `closing`, a window of ours, had never come forward.
  void ForgetVisit(WindowHandle closing);

  /// Fills the record with the windows last worked in that Tag 0 can lead to now.
  void UpdateRecord();

  /// Updates the record, then shows it in the main window.
  void ValidatePreviousWindow();

  /// Takes the present foreground window into the record and updates all that the Window menu shows
  /// of it; called when the menu opens.
  void PrepareWindowMenu();

  /// Sets both always-on-top check marks from the windows' real state.
  void udmRefreshAlwaysOnTopMenuChecked();

  /// Whether a window that passed the basic checks may become the Previous Window: the options
  /// allow it, or else a Tag identifies it.
  bool IsAccepted(SeenWindow& window) const;

  /// Moves the record to a window that is accepted, and shows it; when the options exclude the
  /// window, the Tag that identifies it takes its handle. Otherwise does nothing and gives false.
  bool FollowIfAccepted(SeenWindow& window);

  /// Moves the record to a window that was just brought to the front (SetForegroundWindow), which
  /// Windows may do a moment later, and shows it.
  void RecordSelection(const KnownWindow& window);

  /// The menu has closed for which the main window was in front; it may stay there for a moment.
  void PopUpClosed();

 private:
  /// Whether a window may become the Previous Window, and the entry of the Tag that identifies it
  /// where the options do not allow it.
  struct Acceptance {
    bool accepted;
    MenuItem* identifiedBy;
  };

  /// Why the current window and the alternate are not on the screen (DWM_CLOAKED_ values).
  using Cloaks = std::array<std::uint32_t, 2>;

  Acceptance Accept(SeenWindow& window) const;
  void NoteForeground(SeenWindow& front);
  void FollowForeground(SeenWindow& front);
  /// The user is in `window` now. Unless that is the main window, it becomes the Previous Window,
  /// and the window before it, or the main window when that had the focus, the alternate.
  void MoveRecordTo(const KnownWindow& window);
  void LookBehindDialog(WindowHandle dialog);
  void MoveRecordBehindDialog(SeenWindow& window);
  bool IsGone(const WindowTriple& window);
  bool RecordIsOutdated();
  bool RecordIsOutdatedSinceTick(WindowHandle front);
  std::uint32_t CloakOf(WindowHandle hwnd);
  bool IsBehindDialog(WindowHandle hwnd);
  bool CanBeReached(SeenWindow& window);
  bool CanComeBack(WindowHandle hwnd);
  std::array<WindowTriple, 2> FindReachable();
  void ShowRecord();

  WindowQueries* windows_;
  const WindowFilter* filter_;
  WindowActions* actions_;
  MainWindow* mainWindow_;
  PreviousWindow* previous_;
  TagList* tags_;
  WorkedWindows worked_;
  /// The window that the user was seen in last.
  WindowHandle lastSeen_ = 0;
  bool firstTick_ = true;
  /// What the last tick found in front; none when there has been a hot key or menu since.
  std::optional<WindowHandle> tickedOver_;
  /// As the record was last validated.
  Cloaks cloaks_{};
  /// What was in front last and before that, followed or not.
  KnownWindow inFront_;
  KnownWindow inFrontBefore_;
};

}  // namespace korvale
