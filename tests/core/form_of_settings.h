#pragma once

#include "app/core/installation.h"
#include "app/core/settings.h"

namespace korvale {

/// What the main form keeps and does during the rule.
struct FormOfSettings {
  explicit FormOfSettings(Settings& settingsToUse) : settings(settingsToUse) {}

  InstallationImport Import() {
    return {[this] { settings.LoadOptions(options); },
            [this] {
              startup = settings.LoadStartup();
              tags = settings.LoadTagList();
            },
            [this] { Settings::ForgetPlacement(startup); },
            [this] { settings.SaveOptions(options); }, [this] { settings.SaveINI(startup, tags); }};
  }

  Settings& settings;
  clsOptions options;
  StartupSettings startup;
  StoredTagList tags;
};

}  // namespace korvale
