#include "app/core/settings.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "app/core/save_journal.h"
#include "app/core/setting_rows.h"
#include "app/core/store_changes.h"

namespace korvale {
namespace {

constexpr const char* kTagCaptions = "ParentWindowList";
constexpr const char* kTagClasses = "ParentWindowClass";

/// Rewritten by every SaveINI; nothing but its deletion is left of those that nothing else names.
constexpr std::array kSectionsOfSaveINI = {kStartupSection, "ButtonTags", "ButtonColors",
                                           kTagCaptions,    kTagClasses,  "ChildWindowList"};

template <typename Record>
void Load(SettingsStore& store, const std::string& appName,
          std::span<const SettingRow<Record>> rows, Record& record) {
  Record defaults;
  for (const SettingRow<Record>& row : rows) {
    const SettingField field = row.field(record);
    const auto stored = store.GetSetting(appName, row.section, row.key);
    if (!ReadSetting(stored, field, row.least, row.most)) CopySetting(row.field(defaults), field);
  }
}

template <typename Record>
void Save(SettingsStore& store, const std::string& appName,
          std::span<const SettingRow<Record>> rows, Record record) {
  for (const SettingRow<Record>& row : rows) {
    store.SaveSetting(appName, row.section, row.key, SettingText(row.field(record)));
  }
}

bool IsTagNumber(std::string_view key) {
  return key.size() == 1 && key.front() >= '1' && key.front() <= '9';
}

bool IsTagCaption(const std::pair<std::string, std::string>& stored) {
  return stored.second.starts_with("&" + stored.first + "  ");
}

SettingsStore::Pairs LoadTags(SettingsStore& store, const std::string& appName,
                              const char* section) {
  SettingsStore::Pairs pairs = store.GetAllSettings(appName, section);
  std::erase_if(pairs, [](const auto& pair) { return !IsTagNumber(pair.first); });
  std::ranges::sort(pairs);
  return pairs;
}

}  // namespace

Settings::Settings(SettingsStore& store, std::string appName)
    : store_(&store), appName_(std::move(appName)) {}

void Settings::LoadOptions(clsOptions& options) const {
  Load(*store_, appName_, OptionRows(), options);
}

void Settings::SaveOptions(const clsOptions& options) {
  SaveTogether([&](SettingsStore& store) { Save(store, appName_, OptionRows(), options); });
}

void Settings::DeleteOptions() {
  SaveTogether([&](SettingsStore& store) { store.DeleteSection(appName_, kOptionsSection); });
}

StartupSettings Settings::LoadStartup() const {
  StartupSettings startup;
  Load(*store_, appName_, StartupRows(), startup);
  return startup;
}

StoredTagList Settings::LoadTagList() const {
  StoredTagList tags{LoadTags(*store_, appName_, kTagCaptions),
                     LoadTags(*store_, appName_, kTagClasses)};
  std::erase_if(tags.captions, [](const auto& stored) { return !IsTagCaption(stored); });
  return tags;
}

void Settings::SaveINI(const StartupSettings& startup,
                       const std::function<void(SettingsStore&)>& saveTagList) {
  SaveTogether([&](SettingsStore& store) {
    DeleteINI();
    Save(store, appName_, StartupRows(), startup);
    saveTagList(store);
  });
}

void Settings::DeleteINI() {
  SaveTogether([&](SettingsStore& store) {
    for (const char* section : kSectionsOfSaveINI) store.DeleteSection(appName_, section);
  });
}

void Settings::DeletePlacement() {
  SaveTogether([&](SettingsStore& store) {
    for (const auto& row : StartupRows()) {
      if (row.onImport == OnImport::kDrop) store.DeleteSetting(appName_, row.section, row.key);
    }
  });
}

void Settings::ForgetPlacement(StartupSettings& startup) {
  StartupSettings defaults;
  for (const auto& row : StartupRows()) {
    if (row.onImport == OnImport::kDrop) CopySetting(row.field(defaults), row.field(startup));
  }
}

bool Settings::NothingStored() const {
  return std::ranges::all_of(
      std::array{kStartupSection, kTagCaptions, kTagClasses, kOptionsSection},
      [&](const char* section) { return store_->GetAllSettings(appName_, section).empty(); });
}

void Settings::SaveTogether(const std::function<void(SettingsStore&)>& work) {
  if (together_ != nullptr) return work(*together_);
  SaveJournal journal(*store_, appName_);
  ChangeRecorder recorder(*store_);
  together_ = &recorder;
  try {
    work(recorder);
  } catch (...) {
    together_ = nullptr;
    throw;
  }
  together_ = nullptr;
  journal.Commit(recorder.Changes());
}

void Settings::SaveThenDelete(const std::function<void(SettingsStore&)>& work,
                              const std::function<void(SettingsStore&)>& deletions) {
  SaveTogether([&](SettingsStore& store) {
    work(store);
    together_->DeleteLast(true);
    deletions(store);
    together_->DeleteLast(false);
  });
}

void Settings::FinishInterruptedSave() { SaveJournal(*store_, appName_).FinishInterrupted(); }

}  // namespace korvale
