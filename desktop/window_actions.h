#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "desktop/desktop_parts.h"
#include "desktop/seen_window.h"
#include "desktop/window_enumeration.h"
#include "desktop/window_filter.h"
#include "desktop/window_readers.h"
#include "desktop/window_requests.h"
#include "platform/types.h"

namespace korvale {

enum ActivationResult : std::int16_t {
  kActivationFailed = 0,
  kActivationDone = 1,
  kWindowNotOpen = 2,
  kWindowNotEnabled = 3,
  /// The window's program is busy and did not carry out a necessary first step in time.
  kWindowNotAnswering = 4,
  /// Windows refuses it, although the window is there: its program runs as administrator, or the
  /// foreground is locked.
  kWindowDenied = 5,
};

/// What hot keys and menus do with the windows of the desktop.
class WindowActions {
 public:
  WindowActions(const DesktopParts& parts, WindowRequests& requests, const WindowFilter& filter,
                WindowEnumeration& enumeration);

  /// Brings a window to the front, or with `act` false only finds out whether it could. The text is
  /// refreshed for the Previous Window and its alternate; the handle becomes 0 when the title no
  /// longer fits. With `reportFailure` a failure is shown to the user. `inFront` is the window in
  /// front where that has just been asked, 0 = ask (GetForegroundWindow).
  ActivationResult ActivateWindow(WindowTriple& window, bool reportFailure, bool act,
                                  WindowHandle inFront = 0);

  /// As ActivateWindow with `act` false, of a window that is known by its handle, whatever its
  /// class and title.
  ActivationResult Examine(SeenWindow& window);

  /// Brings the window of Tag 0 to the front, or the dialog that disables it and in which the user
  /// was.
  ActivationResult ActivatePreviousWindow(WindowTriple& window);

  /// `hotKeyName` is HOTKEY_MINIMIZE_PARENT or HOTKEY_RESTORE/MAXIMIZE_PARENT; others do nothing.
  /// Returns the window that came forward in place of a minimized one; all empty when there is
  /// none.
  WindowTriple MinimizeOrMaximizeForeground(std::string_view hotKeyName);

  /// Tells the user that an operation was not carried out.
  void ReportFailure();
  /// The same after an activation that failed: validates the window once more, and tells in any
  /// case.
  void ReportFailureOf(WindowTriple& window);

  /// Minimizes every window of the desktop that can be minimized, with the timers stopped. When
  /// Windows denies one, the user is told once, after all others.
  void MinimizeAll();
  /// Restores every minimized window of the desktop, then brings the main window to the front, with
  /// the timers stopped. When Windows denies one, the user is told once, after all others.
  void RestoreAll();

 private:
  ActivationResult TryActivation(WindowTriple& window, bool act, WindowHandle inFront);
  ActivationResult CheckKind(SeenWindow& window);
  ActivationResult CheckShown(SeenWindow& window);
  ActivationResult CheckEnabled(SeenWindow& window);
  ActivationResult RestoreIconicOwner(WindowHandle hwnd);
  void RefreshRecordedTitle(WindowTriple& window, std::string_view title);
  ActivationResult BringForward(SeenWindow& window, WindowHandle inFront);
  void AwaitTheOneSelectedBefore(WindowHandle hwnd);
  ActivationResult Unfold(WindowHandle hwnd, const KnownWindow& before);
  bool StaysMinimized(WindowHandle hwnd);
  bool ChangeAll(EnumerationMode mode);
  WindowTriple MinimizeForeground(WindowHandle hwnd);
  void MaximizeOrRestoreForeground(WindowHandle hwnd);

  WindowQueries* windows_;
  WindowRequests* requests_;
  const WindowFilter* filter_;
  WindowEnumeration* enumeration_;
  MainWindow* mainWindow_;
  PreviousWindow* previous_;
  MessageBoxes* messages_;
};

}  // namespace korvale
