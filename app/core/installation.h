#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/core/identity.h"
#include "app/core/message_boxes.h"
#include "app/core/settings.h"
#include "platform/system_api.h"

namespace korvale {

/// Application name of the register of all installations: section "0", settings application name ->
/// folder.
inline constexpr const char* kInstallationRegister = "Korvale Installations";

/// What the main form does while settings of another installation are taken over.
struct InstallationImport {
  std::function<void()> udmLoadOptions;
  std::function<void()> loadStartupSettings;
  /// Sets the settings that are not taken over back to their defaults.
  std::function<void()> forgetPlacement;
  std::function<void()> udmSaveOptions;
  std::function<void()> udmSaveINI;
  /// Makes the whole import; a refusal of the store is no reason not to start.
  std::function<void(const std::function<void()>&)> saveOrTell =
      [](const std::function<void()>& saves) { saves(); };
};

struct InstallationResult {
  /// The folder name belongs to another living installation; the program must end.
  bool mustEnd = false;
  /// Nothing was stored under this installation's name.
  bool firstRun = false;
  /// The settings of another installation have been loaded and are in use, also where the store
  /// refused to save them.
  bool takenOver = false;
  /// Result of the question about taking settings over, 0 when it was not asked.
  std::int16_t lastAnswer = 0;
};

/// The rule that gives each installation folder its own settings; runs once before loading, in the
/// only copy of the installation that is starting.
///
/// Settings are taken over as one save: at any moment they stand under one of the two names. They
/// are the ones of the first registered installation that has settings and whose folder no longer
/// holds the executable, or is this one under another name. A folder that cannot be reached has not
/// lost it.
/// An interrupted save must have been finished before.
InstallationResult RunInstallationRule(const ProgramIdentity& identity, Settings& settings,
                                       SystemApi& system, MessageBoxes& messages,
                                       const InstallationImport& import);

/// The settings application names, each also a main caption, under which this installation is
/// registered: started through the root of a share it has another name.
std::vector<std::string> RegisteredNames(const ProgramIdentity& identity, SettingsStore& store,
                                         SystemApi& system);

}  // namespace korvale
