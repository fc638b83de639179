#include "app/core/installation.h"

#include "app/core/save_journal.h"
#include "app/core/save_scope.h"
#include "platform/win32_constants.h"
#include "util/text.h"

namespace korvale {
namespace {

constexpr const char* kRegisterSection = "0";

/// Points the settings at another installation and back again, however the scope is left.
class PointedAt {
 public:
  PointedAt(Settings& settings, const std::string& appName)
      : settings_(settings), own_(settings.AppName()) {
    settings_.SetAppName(appName);
  }
  ~PointedAt() { settings_.SetAppName(own_); }
  PointedAt(const PointedAt&) = delete;
  PointedAt& operator=(const PointedAt&) = delete;

 private:
  Settings& settings_;
  std::string own_;
};

class InstallationRule {
 public:
  InstallationRule(const ProgramIdentity& identity, Settings& settings, SystemApi& system,
                   MessageBoxes& messages)
      : identity_(identity), settings_(settings), system_(system), messages_(messages) {}

  InstallationResult Run() {
    InstallationResult result;
    result.firstRun = settings_.NothingStored();
    const auto installations =
        settings_.Store().GetAllSettings(kInstallationRegister, kRegisterSection);
    if (NameIsTaken(installations)) {
      ShowNameIsTaken();
      result.mustEnd = true;
      return result;
    }
    // Without an entry only the rule about equal names is lost, which is no reason not to start.
    settings_.Store().SaveSetting(kInstallationRegister, kRegisterSection, settings_.AppName(),
                                  identity_.installation.path);
    if (!result.firstRun) return result;
    const std::string other = FirstToTakeOver(installations);
    if (other.empty()) return result;
    result.lastAnswer = AskForImport(other);
    if (result.lastAnswer == win32::kIdYes) result.takeOverFrom = other;
    return result;
  }

 private:
  bool HoldsExecutable(const std::string& folder) {
    return system_.FileExists(WithoutClosingBackslash(folder) + "\\" + identity_.executableName);
  }

  bool IsOwnFolder(const std::string& folder) {
    return ReadFolderIdentity(system_, folder).IsSameAs(identity_.installation);
  }

  /// True when the folder is this installation's own or is known not to hold the program any more.
  bool HasLeft(const std::string& folder) {
    if (IsOwnFolder(folder)) return true;
    return LookForFolder(system_, folder) != FolderPresence::kAway && !HoldsExecutable(folder);
  }

  bool NameIsTaken(const SettingsStore::Pairs& installations) {
    for (const auto& [name, folder] : installations) {
      if (EqualsIgnoreCase(FolderName(folder), identity_.installationFolderName) &&
          !IsOwnFolder(folder) && HoldsExecutable(folder)) {
        return true;
      }
    }
    return false;
  }

  void ShowNameIsTaken() {
    messages_.ShowMessageBox(
        "An installation in a folder named '" + identity_.installationFolderName +
            "' already exists.  Korvale does not support two installations with the same folder "
            "name.  Please rename the folder then re-run Korvale.",
        win32::kMbOk, kProductName);
  }

  /// The first installation that is gone from its folder but has settings left; "" when there is
  /// none.
  std::string FirstToTakeOver(const SettingsStore::Pairs& installations) {
    for (const auto& [name, folder] : installations) {
      if (name.empty() || EqualsIgnoreCase(name, settings_.AppName())) continue;
      if (!HasLeft(folder)) continue;
      const PointedAt other(settings_, name);
      settings_.FinishInterruptedSave();
      if (!settings_.NothingStored()) return name;
    }
    return "";
  }

  std::int16_t AskForImport(const std::string& other) {
    return messages_.ShowMessageBox("Do you want to import common settings and options from " +
                                        other + " into this installation of Korvale ?",
                                    win32::kMbYesNo, kProductName);
  }

  const ProgramIdentity& identity_;
  Settings& settings_;
  SystemApi& system_;
  MessageBoxes& messages_;
};

}  // namespace

InstallationResult RunInstallationRule(const ProgramIdentity& identity, Settings& settings,
                                       SystemApi& system, MessageBoxes& messages) {
  return InstallationRule(identity, settings, system, messages).Run();
}

InstallationSettings TakeOver(Settings& settings, const std::string& other) {
  InstallationSettings taken;
  {
    const PointedAt from(settings, other);
    settings.LoadOptions(taken.options);
    taken.startup = settings.LoadStartup();
    taken.tags = settings.LoadTagList();
  }
  Settings::ForgetPlacement(taken.startup);
  SaveScope save(settings);
  settings.SaveOptions(taken.options);
  settings.SaveINI(taken.startup, taken.tags);
  save.DeleteLast();
  save.DeleteSetting(kInstallationRegister, kRegisterSection, other);
  {
    const PointedAt removed(settings, other);
    settings.DeleteINI();
    settings.DeleteOptions();
    for (const char* const journal : kJournalSections) save.DeleteSection(other, journal);
  }
  settings.DeletePlacement();
  save.Commit();
  return taken;
}

std::vector<std::string> RegisteredNames(const ProgramIdentity& identity, SettingsStore& store,
                                         SystemApi& system) {
  std::vector<std::string> names;
  for (const auto& [name, folder] : store.GetAllSettings(kInstallationRegister, kRegisterSection)) {
    if (ReadFolderIdentity(system, folder).IsSameAs(identity.installation)) names.push_back(name);
  }
  return names;
}

}  // namespace korvale
