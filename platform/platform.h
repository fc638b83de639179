#pragma once

#include "platform/clock.h"
#include "platform/crash_api.h"
#include "platform/form_host.h"
#include "platform/hot_key_api.h"
#include "platform/input_devices.h"
#include "platform/message_loop.h"
#include "platform/screen_queries.h"
#include "platform/settings_store.h"
#include "platform/system_api.h"
#include "platform/system_dialogs.h"
#include "platform/virtual_desktops.h"
#include "platform/window_api.h"

namespace korvale {

/// Everything that the program asks of the system that it runs on.
struct Platform {
  WindowQueries& windows;
  WindowCommands& commands;
  HotKeyApi& hotKeys;
  SettingsStore& store;
  SystemApi& system;
  CrashApi& crashes;
  Clock& clock;
  TimerApi& timers;
  FormHost& host;
  MessageLoop& loop;
  ScreenQueries& screen;
  SystemDialogs& dialogs;
  InputDevices& input;
  VirtualDesktops& virtualDesktops;
};

}  // namespace korvale
