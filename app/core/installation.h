#pragma once

#include <cstdint>
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

struct InstallationResult {
  /// The folder name belongs to another living installation; the program must end.
  bool mustEnd = false;
  /// Nothing was stored under this installation's name.
  bool firstRun = false;
  /// The installation whose settings the user wants to take over, "" for none.
  std::string takeOverFrom;
  /// Result of the question about taking settings over, 0 when it was not asked.
  std::int16_t lastAnswer = 0;
};

/// The rule that gives each installation folder its own settings; runs once before loading, in the
/// only copy of the installation that is starting.
///
/// The settings offered are those of the first registered installation that has any and whose
/// folder no longer holds the executable, or is this one under another name. A folder that cannot
/// be reached counts as holding it. FinishInterruptedSave must have been called for this
/// installation; for the others it is called here.
InstallationResult RunInstallationRule(const ProgramIdentity& identity, Settings& settings,
                                       SystemApi& system, MessageBoxes& messages);

/// Everything that an installation stores.
struct InstallationSettings {
  clsOptions options;
  StartupSettings startup;
  StoredTagList tags;
};

/// Loads the settings of another installation, with the window's place at its default, stores
/// them under this one's name and deletes the other's. That is one save, or part of the open
/// SaveScope: at any moment the settings stand under one of the two names, even when the store
/// refuses some.
InstallationSettings TakeOver(Settings& settings, const std::string& other);

/// The settings application names (each also a main caption) under which this installation is
/// registered: started through the root of a share it has a different one.
std::vector<std::string> RegisteredNames(const ProgramIdentity& identity, SettingsStore& store,
                                         SystemApi& system);

}  // namespace korvale
