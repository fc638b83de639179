#pragma once

#include <cstdint>
#include <functional>

#include "app/core/crash_reports.h"
#include "app/core/error_log.h"
#include "app/core/error_reports.h"
#include "app/core/identity.h"
#include "app/core/options.h"
#include "app/core/settings.h"
#include "app/core/startup_settings.h"
#include "desktop/desktop.h"
#include "desktop/previous_window.h"
#include "desktop/responsive_desktops.h"
#include "forms/form_display.h"
#include "hotkeys/hot_key_dispatch.h"
#include "hotkeys/hot_key_table.h"
#include "hotkeys/hot_key_toggle.h"
#include "hotkeys/message_box.h"
#include "hotkeys/suspension.h"
#include "hotkeys/window_proc_hook.h"
#include "platform/platform.h"
#include "ui/form_collection.h"

namespace korvale {

/// The main form's state that is neither an option nor a stored setting.
struct MainState {
  /// Set at the end of the first activation.
  bool firstActivation = false;
  /// No settings of this installation existed at start-up.
  bool firstRun = false;
  /// Result code of the last Yes/No question of the main form.
  std::int16_t lastAnswer = 0;
  /// Set at the end of start-up; until then the main window keeps its size.
  bool startUpFinished = false;
};

/// The records and routines that the main form owns for the whole run, in the order in which they
/// build on each other; but the message boxes look at the desktop, which shows messages, so neither
/// may be used before both exist.
struct MainParts {
  MainParts(Platform& platform, FormCollection& forms, MainWindow& mainWindow, MenuItem& windowMenu,
            HotKeyActions& hotKeyActions, std::function<void()> shutDown);
  MainParts(const MainParts&) = delete;
  MainParts& operator=(const MainParts&) = delete;

  ProgramIdentity identity;
  MainState state;
  StartupSettings startup;
  OptionsHolder options;
  Settings settings;
  PreviousWindow previous;

  Suspension suspension;
  SuspendingMessageBoxes messages;
  ErrorLog errorLog;
  ErrorReports errors;
  CrashReports crashes;

  ResponsiveDesktops virtualDesktops;
  Desktop desktop;
  FormDisplay display;

  HotKeyTable hotKeys;
  HotKeyToggle toggle;
  HotKeyDispatch dispatch;
  WindowProcHook hook;
};

}  // namespace korvale
