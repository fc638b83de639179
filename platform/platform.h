#pragma once

#include "platform/clock.h"
#include "platform/form_host.h"
#include "platform/hot_key_api.h"
#include "platform/settings_store.h"
#include "platform/system_api.h"
#include "platform/window_api.h"

namespace korvale {

/// Everything that the program asks of the system that it runs on.
struct Platform {
  WindowQueries& windows;
  WindowCommands& commands;
  HotKeyApi& hotKeys;
  SettingsStore& store;
  SystemApi& system;
  Clock& clock;
  TimerApi& timers;
  FormHost& host;
};

}  // namespace korvale
