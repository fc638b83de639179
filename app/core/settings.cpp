#include "app/core/settings.h"

#include <algorithm>
#include <array>
#include <span>

#include "app/core/save_journal.h"
#include "app/core/setting_rows.h"
#include "app/core/store_changes.h"
#include "util/text.h"

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

/// The value of the key, "" when there is none.
std::string ValueOf(const SettingsStore::Pairs& pairs, const std::string& key) {
  const auto found = std::ranges::find(pairs, key, &SettingsStore::Pairs::value_type::first);
  return found == pairs.end() ? "" : found->second;
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
  const SettingsStore::Pairs captions = store_->GetAllSettings(appName_, kTagCaptions);
  const SettingsStore::Pairs classes = store_->GetAllSettings(appName_, kTagClasses);
  StoredTagList tags;
  for (int number = 1; number <= kTagCount; ++number) {
    const std::string key = DecimalText(number);
    const std::string caption = ValueOf(captions, key);
    if (!caption.starts_with(TagCaption(number, ""))) continue;
    tags.push_back({number, caption, ValueOf(classes, key)});
  }
  return tags;
}

void Settings::SaveINI(const StartupSettings& startup, const StoredTagList& tags) {
  SaveTogether([&](SettingsStore& store) {
    DeleteINI();
    Save(store, appName_, StartupRows(), startup);
    for (const StoredTag& tag : tags) {
      const std::string key = DecimalText(tag.number);
      store.SaveSetting(appName_, kTagCaptions, key, tag.caption);
      if (!tag.className.empty()) store.SaveSetting(appName_, kTagClasses, key, tag.className);
    }
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
